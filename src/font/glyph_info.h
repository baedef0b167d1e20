// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_FONT_GLYPH_INFO_H
#define KERNIX_FONT_GLYPH_INFO_H

#include <SupportDefs.h>

// Statistics of one glyph record, as maxp counts them; sums are 16-bit and may wrap.
struct glyph_info {
	uint16 depth;      // 0 for a simple glyph
	uint16 components; // of its own level
	uint16 contours;   // of all levels
	uint16 points;     // of all levels
};

#endif
