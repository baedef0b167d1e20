// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_TABLES_TTF_OS2_H
#define KERNIX_TABLES_TTF_OS2_H

#include "font/ttf_table.h"

// The OS/2 table: weight, class, ranges and line metrics as other systems want them. The panel lists
// the fields of version 1 and edits none.
class ttf_os2 : public ttf_table {
public:
	// As for every table: takes the buffer over; none means the default content.
	ttf_os2(ttf* font, unsigned char* buffer, unsigned long size);

	// A new font's: version 1, with the bits of the Unicode ranges that were chosen. Whatever these
	// are, the characters run from 1 to FFFE and all code pages are claimed. Gives 0.
	int create_default();

	void Draw(BRect area) override;
	// Lists the fields, in three groups.
	void redraw();

private:
	void put_ranges();
};

#endif
