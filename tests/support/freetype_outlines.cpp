// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "support/freetype_outlines.h"

#include <algorithm>

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_OUTLINE_H

namespace {

class library {
public:
	library() { FT_Init_FreeType(&fLibrary); }
	~library() { FT_Done_FreeType(fLibrary); }
	library(const library&) = delete;
	library& operator=(const library&) = delete;
	FT_Library get() const { return fLibrary; }

private:
	FT_Library fLibrary = nullptr;
};

// A face in memory; the octets stay with the caller and outlive it.
class face {
public:
	face(const library& types, const octets& file)
	{
		FT_New_Memory_Face(types.get(), file.data(), FT_Long(file.size()), 0, &fFace);
	}
	~face()
	{
		if (fFace != nullptr)
			FT_Done_Face(fFace);
	}
	face(const face&) = delete;
	face& operator=(const face&) = delete;

	bool open() const { return fFace != nullptr; }
	long glyphs() const { return fFace->num_glyphs; }
	FT_Error load(long index) { return FT_Load_Glyph(fFace, FT_UInt(index), FT_LOAD_NO_SCALE); }
	const FT_Outline& outline() const { return fFace->glyph->outline; }
	unsigned glyph_of(unsigned character) { return FT_Get_Char_Index(fFace, character); }
	unsigned components(unsigned glyph)
	{
		FT_Error error = FT_Load_Glyph(fFace, glyph, FT_LOAD_NO_SCALE | FT_LOAD_NO_RECURSE);
		bool composite = error == 0 && fFace->glyph->format == FT_GLYPH_FORMAT_COMPOSITE;
		return composite ? fFace->glyph->num_subglyphs : 0;
	}
	long advance() const { return fFace->glyph->metrics.horiAdvance; }

private:
	FT_Face fFace = nullptr;
};

}


static bool
same_outline(const FT_Outline& one, const FT_Outline& other)
{
	auto same_point = [](const FT_Vector& a, const FT_Vector& b) {
		return a.x == b.x && a.y == b.y;
	};
	return one.n_points == other.n_points && one.n_contours == other.n_contours
		&& std::equal(one.points, one.points + one.n_points, other.points, same_point)
		&& std::equal(one.tags, one.tags + one.n_points, other.tags)
		&& std::equal(one.contours, one.contours + one.n_contours, other.contours);
}


outline_comparison
compare_outlines(const octets& one, const octets& other)
{
	library types;
	face first(types, one);
	face second(types, other);
	outline_comparison result;
	if (!first.open() || !second.open())
		result.difference =
			first.open() ? "the second file does not open" : "the first file does not open";
	else if (first.glyphs() != second.glyphs())
		result.difference = "not the same number of glyphs";
	while (result.difference.empty() && result.glyphs < first.glyphs()) {
		FT_Error answer = first.load(result.glyphs);
		if (second.load(result.glyphs) != answer)
			result.difference = "only one of them loads glyph ";
		else if (answer == 0 && !same_outline(first.outline(), second.outline()))
			result.difference = "another outline of glyph ";
		else if (answer == 0 && first.advance() != second.advance())
			result.difference = "another advance of glyph ";
		if (!result.difference.empty())
			result.difference += std::to_string(result.glyphs);
		else if (answer == 0)
			result.points += first.outline().n_points;
		result.glyphs++;
	}
	return result;
}


unsigned
glyph_of_character(const octets& font, unsigned character)
{
	library types;
	face one(types, font);
	return one.open() ? one.glyph_of(character) : 0;
}


unsigned
components_of_glyph(const octets& font, unsigned glyph)
{
	library types;
	face one(types, font);
	return one.open() ? one.components(glyph) : 0;
}
