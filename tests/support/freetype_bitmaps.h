// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_SUPPORT_FREETYPE_BITMAPS_H
#define KERNIX_SUPPORT_FREETYPE_BITMAPS_H

#include <memory>

#include "support/strikes.h"

// A bitmap with its place, both in pixels: from the left edge of the em, and from the baseline up
// to the first row.
struct placed_picture {
	picture rows;
	int x = 0;
	int y = 0;
	int advance = 0;

	bool operator==(const placed_picture& other) const = default;
};

std::ostream& operator<<(std::ostream& out, const placed_picture& shown);

// The embedded bitmaps that FreeType, a reader that owes nothing to this program, finds in a font.
class freetype_bitmaps {
public:
	// The file must outlive the object. Throws std::runtime_error when it does not open.
	explicit freetype_bitmaps(const octets& file);
	~freetype_bitmaps();

	int sizes() const;
	int across(int size) const;
	int down(int size) const;
	int glyphs() const;

	// Chooses a size; false when it cannot be.
	bool choose(int size);
	// The bitmap of a glyph at the size chosen; false when there is none.
	bool read(int glyph, placed_picture& found);

private:
	struct face;
	std::unique_ptr<face> fFace;
};

#endif
