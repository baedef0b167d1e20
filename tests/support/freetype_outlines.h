// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_SUPPORT_FREETYPE_OUTLINES_H
#define KERNIX_SUPPORT_FREETYPE_OUTLINES_H

#include <string>

#include "support/octets.h"

// What FreeType, a reader that owes nothing to this program, makes of two font files.
struct outline_comparison {
	// Empty when both files opened and every glyph has the same points, in font units, and the
	// same advance in both; otherwise the first difference.
	std::string difference;
	// Compared so far; glyphs that could be loaded from neither file count as glyphs only.
	long glyphs = 0;
	long points = 0;
};

outline_comparison compare_outlines(const octets& one, const octets& other);

// The glyph of a Unicode character; 0 where the font has none or is no font.
unsigned glyph_of_character(const octets& font, unsigned character);
// How many components a glyph has; 0 for one with contours of its own or without any.
unsigned components_of_glyph(const octets& font, unsigned glyph);

#endif
