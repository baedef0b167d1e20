// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_TESTS_BITMAP_FIXTURE_H
#define KERNIX_TESTS_BITMAP_FIXTURE_H

#include "bitmaps/bitmap.h"
#include "bitmaps/ttf_ebdt.h"
#include "bitmaps/ttf_eblc.h"
#include "font/ttf.h"
#include "support/freetype_bitmaps.h"
#include "support/opened.h"
#include "support/strikes.h"

#include <memory>
#include <string_view>

// What a bitmap holds; no rows while it is undefined.
placed_picture content(const bitmap& of);

// The bitmap of that glyph and size, as get_bitmap() finds it; what it answered goes to `answer`.
std::unique_ptr<bitmap> bitmap_of(
	ttf& font, int glyph, int across = 12, int down = 12, int* answer = nullptr);

// A bitmap with these pixels and no place in a font.
std::unique_ptr<bitmap> bitmap_from(const picture& rows);

// Tables alone, with these octets, of a font without tables.
struct lone_tables {
	explicit lone_tables(std::string_view eblc_digits, std::string_view ebdt_digits = "");

	ttf font;
	ttf_eblc eblc;
	ttf_ebdt ebdt;
};

// What a lookup gives, as "answer offset format" in hexadecimal; the format is ffff unless it is
// set.
std::string looked_up(const ttf_eblc& table, bitmap& b);
// The same for glyph and size alone.
std::string looked_up(const ttf_eblc& table, int glyph, int across = 12, int down = 12);

// What decode() answers, into a bitmap that has 1 x 1 pixels.
int decoded(
	const ttf_ebdt& table, unsigned long offset, int format, placed_picture* found = nullptr);

#endif
