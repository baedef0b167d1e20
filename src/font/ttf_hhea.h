// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_FONT_TTF_HHEA_H
#define KERNIX_FONT_TTF_HHEA_H

#include "font/ttf_table.h"

// The horizontal header, hhea (36 bytes): the line metrics of the font and the number of full
// records in hmtx. Shown, never edited, and never recomputed: its extents stay as they came.
class ttf_hhea : public ttf_table {
public:
	// As for every table: takes the buffer over; none means the default content.
	ttf_hhea(ttf* font, unsigned char* buffer, unsigned long size);

	// The content of a new font's table: an ascent and a width of 512 units, an upright caret, one
	// full record for each glyph.
	void create_default();

	// Everything black, then the listing.
	void Draw(BRect area) override;
	// Lists all fields as they stand in the bytes.
	void redraw();

	// The number of full records in hmtx; 0 where the table is too short to tell.
	unsigned short numhmtx() const;
};

#endif
