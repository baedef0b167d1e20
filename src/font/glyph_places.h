// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_FONT_GLYPH_PLACES_H
#define KERNIX_FONT_GLYPH_PLACES_H

#include "font/ttf.h"
#include "font/ttf_head.h"
#include "font/ttf_loca.h"

// Where a font's glyphs lie in glyf, for whoever looks many of them up: what does not depend on the
// glyph is asked once. For as long as the font's tables stay as they are.
class glyph_places {
public:
	explicit glyph_places(const ttf& font)
		: loca(font.head != nullptr ? font.loca : nullptr),
		  is_long(font.head != nullptr && font.head->is32loca()),
		  count(font.numglyphs())
	{
	}

	// As ttf::find_glyph.
	bool find(int index, uint32* offset, uint32* size) const
	{
		unsigned long place;
		unsigned long length;
		if (index < 0 || (uint32)index >= count || loca == nullptr
			|| loca->get_offset(is_long, index, &place, &length) != 0)
			return false;
		*offset = (uint32)place;
		*size = (uint32)length;
		return true;
	}

private:
	const ttf_loca* loca;
	bool is_long;
	uint32 count;
};

#endif
