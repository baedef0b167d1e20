// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_SUPPORT_STRIKES_H
#define KERNIX_SUPPORT_STRIKES_H

#include <string>
#include <vector>

#include "support/font_file.h"
#include "support/octets.h"

// A bitmap as rows of '#' and '.'.
using picture = std::vector<std::string>;

// Embedded bitmaps put together octet by octet. Operations give the object itself, so that a test
// names its tables in one expression:
//
//     strikes().size(12, 12).images(1, 3, 7, {{"#.#"}}).in(tiny_font())
//
// The images stand in EBDT in the order in which they are named, from octet 4 on.
class strikes {
public:
	// Begins a size, in pixels per em across and down.
	strikes& size(int across, int down, int depth = 1);
	// One index sub-table of the size begun last: images of glyphs from `first` on, in one index
	// format (1, 2, 3) and one image format (1, 2, 5, 6, 7). For index format 2 all are of one
	// size.
	strikes& images(
		int first, int index_format, int image_format, const std::vector<picture>& glyphs);
	// Bearings and advance of the images that follow; 1, 9 and 11 unless told.
	strikes& placed(int x, int y, int advance);

	octets eblc() const;
	const octets& ebdt() const { return fData; }
	// A font with both tables.
	font_file in(const font_file& font) const;

	// Where the pixels of the image named so manyth begin in EBDT, behind its metrics.
	size_t place(size_t image) const { return fPlaces.at(image); }

private:
	struct sub_table {
		int first;
		int last;
		octets contents;
	};
	struct strike {
		octets record;
		std::vector<sub_table> indexes;
	};

	octets metrics(const picture& rows) const;
	void add_image(int format, const picture& rows);

	std::vector<strike> fStrikes;
	octets fData = {0, 2, 0, 0};
	std::vector<size_t> fPlaces;
	int fX = 1;
	int fY = 9;
	int fAdvance = 11;
};

// tiny_font() with five glyphs, all but glyph 1 empty.
font_file font_for_strikes();

#endif
