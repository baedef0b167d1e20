// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_TABLES_TTF_CMAP_H
#define KERNIX_TABLES_TTF_CMAP_H

#include "font/ttf_table.h"

class BButton;
class BTextControl;

// The character map, cmap: from character codes to glyphs. No font opens without one.
//
// The only table whose model is not its bytes: it keeps a flat map of the 16-bit codes, read from
// the Windows Unicode subtable (platform 3, encoding 1) of format 4 and written back as a table
// with that subtable alone. Until the first edit the bytes stay as they were loaded, whatever else
// they hold.
class ttf_cmap : public ttf_table {
public:
	// As for every table: takes the buffer over, without reading it into the map; none means the
	// default content.
	ttf_cmap(ttf* font, unsigned char* buffer, unsigned long size);
	~ttf_cmap() override;

	// The content of a new font's table: glyphs 1, 2, 3, ... for the chosen codes from 1 on in
	// ascending order. Gives 0.
	int create_default();

	// Fills the map from the bytes: 0; -1 without a (3, 1) subtable and 1 when the last of these is
	// not in format 4, both with an empty map. Words outside the table count as 0.
	int get_tbl();

	// Makes the bytes anew from the map. A run of codes that have glyphs becomes one segment which
	// counts up from its first glyph, whatever the glyphs of its other codes. Invalidates data.
	// Gives 0.
	int set_tbl();

	// Gives the codes first..last the glyphs glyph, glyph + 1, ...; 0xFFFF takes their glyphs away.
	// Rewrites the bytes, also when first lies above last. Gives 0.
	int set_chr(unsigned short first, unsigned short last, unsigned short glyph);

	// The glyph of a code; 0 for none.
	unsigned short get_gno(unsigned short code) const;

	// The lowest code of a glyph, up to 0xFFFE; 0xFFFF for none.
	unsigned short get_chr(unsigned short glyph) const;

	void AttachedToWindow() override;
	// Everything black: the panel has only its controls.
	void Draw(BRect area) override;
	void MessageReceived(BMessage* message) override;
	// Nothing: no part of the panel depends on the map.
	void redraw();

private:
	bytes subtable() const;
	uint32 segments() const;
	void put_header(uint32 count);
	void put_segment(uint32 count, uint32 index, uint32 first, uint32 last, uint32 delta);
	void changed(const void* source);
	void pressed();

	// The panel's children; null until it is attached.
	BTextControl* st;
	BTextControl* ed;
	BTextControl* gno;
	BButton* set;

	unsigned short* map; // owned; the glyph of each of the 65536 codes, 0 for none
};

#endif
