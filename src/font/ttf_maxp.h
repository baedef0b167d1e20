// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_FONT_TTF_MAXP_H
#define KERNIX_FONT_TTF_MAXP_H

#include "font/ttf_table.h"

// The maximum profile, maxp: the glyph count and the limits that a rasteriser reserves for.
class ttf_maxp : public ttf_table {
public:
	// As for every table: takes the buffer over.
	ttf_maxp(ttf* font, unsigned char* buffer, unsigned long size);
};

#endif
