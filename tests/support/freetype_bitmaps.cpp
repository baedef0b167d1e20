// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "support/freetype_bitmaps.h"

#include <ostream>
#include <stdexcept>

#include <ft2build.h>
#include FT_FREETYPE_H

struct freetype_bitmaps::face {
	FT_Library library = nullptr;
	FT_Face handle = nullptr;
};

std::ostream&
operator<<(std::ostream& out, const placed_picture& shown)
{
	out << "at " << shown.x << ", " << shown.y << ", advance " << shown.advance << "\n";
	for (const std::string& row : shown.rows)
		out << row << "\n";
	return out;
}

freetype_bitmaps::freetype_bitmaps(const octets& file) : fFace(std::make_unique<face>())
{
	FT_Init_FreeType(&fFace->library);
	FT_Error answer =
		FT_New_Memory_Face(fFace->library, file.data(), FT_Long(file.size()), 0, &fFace->handle);
	if (answer != 0) {
		FT_Done_FreeType(fFace->library);
		throw std::runtime_error("FreeType does not open the font");
	}
}

freetype_bitmaps::~freetype_bitmaps()
{
	FT_Done_Face(fFace->handle);
	FT_Done_FreeType(fFace->library);
}

int
freetype_bitmaps::sizes() const
{
	return fFace->handle->num_fixed_sizes;
}

int
freetype_bitmaps::across(int size) const
{
	return int(fFace->handle->available_sizes[size].x_ppem >> 6);
}

int
freetype_bitmaps::down(int size) const
{
	return int(fFace->handle->available_sizes[size].y_ppem >> 6);
}

int
freetype_bitmaps::glyphs() const
{
	return int(fFace->handle->num_glyphs);
}

bool
freetype_bitmaps::choose(int size)
{
	return FT_Select_Size(fFace->handle, size) == 0;
}

bool
freetype_bitmaps::read(int glyph, placed_picture& found)
{
	if (FT_Load_Glyph(fFace->handle, FT_UInt(glyph), FT_LOAD_SBITS_ONLY) != 0)
		return false;
	const FT_GlyphSlot slot = fFace->handle->glyph;
	if (slot->format != FT_GLYPH_FORMAT_BITMAP)
		return false;
	const FT_Bitmap& image = slot->bitmap;
	found = {{}, slot->bitmap_left, slot->bitmap_top, int(slot->metrics.horiAdvance >> 6)};
	for (unsigned row = 0; row < image.rows; row++) {
		std::string pixels(image.width, '.');
		for (unsigned column = 0; column < image.width; column++) {
			const unsigned char* bits = image.buffer + int(row) * image.pitch;
			if (bits[column / 8] & 0x80 >> column % 8)
				pixels[column] = '#';
		}
		found.rows.push_back(pixels);
	}
	return true;
}
