// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_OUTLINE_TTF_GLYF_H
#define KERNIX_OUTLINE_TTF_GLYF_H

#include "font/glyph_info.h"
#include "font/ttf_table.h"
#include <vector>

class cursor;
class glyfeditview;
class glyftoolview;
class glyph;

// The glyph data, glyf: one outline record after the other, found through loca. Converts a record
// into an editable glyph and back.
//
// All operations read within the table whatever a record or loca claims: a damaged record counts as
// far as its bytes go. A record's stated length only tells whether it is empty. They always answer
// 0.
//
// Its panel is the outline editor: the palette and the edit view, which send each other messages.
class ttf_glyf : public ttf_table {
public:
	// As for every table: takes the buffer over. No buffer means an empty table.
	ttf_glyf(ttf* font, unsigned char* buffer, unsigned long size);

	void create_default();

	// Appends the contours or components of the record to the glyph, in font units, y upward. What
	// has no room in the glyph, or not all its bytes in the table, is left out and the glyph marked
	// partial. A composite that contains itself stops at the repetition, and one whose components
	// would take more than 48 MiB or a moment stops there.
	// @param offset of the record in the table, bytes
	// @param size its stated length; 0 does nothing
	int decode(unsigned long offset, unsigned long size, glyph* g);

	// Writes the glyph in the place of a record; the table's buffer is a new one after that.
	// A simple record's instructions are kept for a simple glyph.
	// @param offset of the old record; unchanged
	// @param size in: the old record's length; out: the new one's, always even
	// A place that is not inside the table changes nothing.
	int encode(const glyph* g, unsigned long* offset, unsigned long* size);
	// The two steps of that: the record that takes the place of size bytes at an offset, and putting
	// it there. False, with nothing changed, when that is not inside the table or there is no memory.
	std::vector<uint8> record_of(const glyph* g, uint32 offset, uint32 size) const;
	bool replace(uint32 offset, uint32 size, const std::vector<uint8>& record);

	// Statistics of one glyph: component depth (0 for a simple one), components of its own level,
	// contours and points. All 0 for an empty one and for an index that has no place.
	int get_info(unsigned short index, unsigned short* depth, unsigned short* components,
		unsigned short* contours, unsigned short* points);

	// The same of every glyph from 0 on, each worked out once. Where glyphs share more component
	// records than a table of this length can hold, the rest counts as empty.
	// @param count how many glyphs there are
	std::vector<glyph_info> all_info(uint32 count) const;

	// Whether a glyph is the one sought, or has it among its components at any depth, whatever of
	// that is ever decoded. In doubt it is: when there are more records to look at than a table of
	// this length can hold.
	bool contains(uint16 index, uint16 sought) const;

	// The stored box in font units; (32767, 32767, -32768, -32768) for an empty glyph.
	int get_rect(unsigned short index, short* xmin, short* ymin, short* xmax, short* ymax);

	// The panel's children.
	glyftoolview* tools;
	glyfeditview* edit;

private:
	struct descent;
	struct survey;

	void decode_record(uint32 offset, uint32 size, glyph* g, descent& way) const;
	void decode_simple(cursor& record, int contours, uint64 stop, glyph* g, descent& way) const;
	void decode_composite(cursor& record, glyph* g, descent& way) const;
	glyph* decode_component(uint16 index, int depth, descent& way) const;
	glyph_info info_of(uint16 index, survey& notes) const;
	glyph_info record_info(uint16 index, uint32 offset, survey& notes) const;
	glyph_info composite_info(cursor& record, survey& notes) const;
	std::vector<uint8> instructions(uint32 offset, unsigned long size) const;
};

#endif
