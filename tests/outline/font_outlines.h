// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_TESTS_FONT_OUTLINES_H
#define KERNIX_TESTS_FONT_OUTLINES_H

#include "support/octets.h"

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_OUTLINE_H

class glyph;

// The outlines of a font file, read with the tests' own eyes as far as they have to know about them.
struct own_eyes {
	explicit own_eyes(const octets& file);

	// Where a glyph's record starts. loca may be an entry short: that glyph ends with glyf.
	size_t place(size_t glyph) const;
	bool empty(size_t glyph) const { return place(glyph) == place(glyph + 1); }
	bool simple(size_t glyph) const;
	// How far FreeType moves the outline: to the bearing of the glyph, or of the component whose
	// metrics it is to have.
	long shift(size_t glyph) const;
	// Whether FreeType and the program mean the same by it, and the program has room for it: no
	// contour of more than 1024 points and at most seven components, each placed by x and y and
	// turned, mirrored or enlarged by whole numbers only, and so on all the way down.
	bool comparable(size_t glyph) const;

	octets glyf, loca, hmtx, maxp, head;
	bool is_long;
	size_t records;
	size_t glyphs;
};

// FreeType, which owes nothing to the program, as a reader of the same outlines.
class judge {
public:
	// Borrows the file.
	explicit judge(const octets& file);
	~judge();
	judge(const judge&) = delete;
	judge& operator=(const judge&) = delete;

	// In font units; the judge's own, and gone with the next. Null for a glyph that it refuses.
	const FT_Outline* outline(size_t glyph);

private:
	FT_Library fLibrary = nullptr;
	FT_Face fFace = nullptr;
};

// Points, whether they are on the curve, and where contours end; FreeType's are moved by shift.
bool agree(const FT_Outline& expected, long shift, const glyph& seen);
bool agree(const FT_Outline& expected, long shift, const FT_Outline& seen, long shift_seen);
bool same_contours(const glyph& one, const glyph& other);

#endif
