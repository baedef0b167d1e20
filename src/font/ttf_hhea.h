// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_FONT_TTF_HHEA_H
#define KERNIX_FONT_TTF_HHEA_H

#include "font/ttf_table.h"

// The horizontal header, hhea: the line metrics of the font and the number of full records in
// hmtx.
class ttf_hhea : public ttf_table {
public:
	// As for every table: takes the buffer over.
	ttf_hhea(ttf* font, unsigned char* buffer, unsigned long size);
};

#endif
