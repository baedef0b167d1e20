// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_FONT_TTF_LOCA_H
#define KERNIX_FONT_TTF_LOCA_H

#include "font/ttf_table.h"

// The index to location, loca: where each glyph's outline starts in glyf. One offset for each glyph
// and one for the end of the last: 32-bit in bytes (the long format), or 16-bit in words of two
// bytes. Which it is stands in head; every call here names it. Without a panel: never attached.
class ttf_loca : public ttf_table {
public:
	// As for every table: takes the buffer over; none means the default content.
	ttf_loca(ttf* font, unsigned char* buffer, unsigned long size);

	// The content of a new font's table: long offsets, every glyph empty.
	void create_default();

	// The place of a glyph in glyf, in bytes: 0, or -1 with nothing stored when its entry lies
	// outside the table. Without a next entry the glyph ends at the byte length of this table, on
	// purpose. A place that ends before it starts gives a length modulo 2^32.
	int get_offset(bool is32, int index, unsigned long* offset, unsigned long* size) const;

	// Notes that a glyph now has so many bytes: moves the entries of all later glyphs up to the
	// first that is all ones, modulo the entries' range. 0, or -1 when the glyph's entry lies
	// outside the table. The bytes in glyf have been moved before.
	int chg_length(bool is32, int index, unsigned long size);

	// Whether short entries are too small for the places that later glyphs are to have once this one
	// has so many bytes: one would pass FFFF. An entry of FFFF that is a place in glyf, and not the
	// mark of none, cannot move either. For a glyph with a place inside glyf.
	// @param glyphs entries behind the end of the last one do not count
	// @param glyf the length of that table
	bool outgrown_by(int index, unsigned long size, uint32 glyphs, uint32 glyf) const;

	// Rewrites short entries as long ones; a place stays where it is, and what is none stays all
	// ones. False, with nothing changed, when there is no memory for them.
	// @param glyf the length of that table
	bool make_long(uint32 glyf);

private:
	// Whether the entry at least begins inside the table; a piece of one reads as 0.
	bool holds(bool is32, int64 index) const
	{
		return index >= 0 && index * (is32 ? 4 : 2) < (int64)length;
	}
	// All ones and outside of glyf, where no glyph can be.
	static bool is_none(uint16 word, uint32 glyf) { return word == 0xFFFF && 2u * word > glyf; }
	uint32 entry(bool is32, uint32 index) const { return is32 ? u32(4 * index) : u16(2 * index); }
};


// Inline: a save looks every glyph up.
inline int
ttf_loca::get_offset(bool is32, int index, unsigned long* offset, unsigned long* size) const
{
	if (!holds(is32, index))
		return -1;
	uint32 unit = is32 ? 1 : 2;
	uint32 start = unit * entry(is32, (uint32)index);
	uint32 end = length;
	if (holds(is32, (int64)index + 1))
		end = unit * entry(is32, (uint32)index + 1);
	*offset = start;
	*size = (uint32)(end - start);
	return 0;
}

#endif
