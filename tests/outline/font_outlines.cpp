// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "outline/font_outlines.h"

#include "outline/glyph.h"
#include "outline/shape.h"
#include "support/sfnt.h"

#include <algorithm>

namespace {

struct part_record {
	uint16_t flags;
	uint16_t index;
	std::vector<uint16_t> matrix;
};

}


static std::vector<part_record>
parts_of(const own_eyes& font, size_t glyph)
{
	std::vector<part_record> parts;
	size_t at = font.place(glyph) + 10;
	do {
		part_record part = {be16(font.glyf, at), be16(font.glyf, at + 2), {}};
		at += part.flags & 0x01 ? 8 : 6;
		size_t words = part.flags & 0x08 ? 1 : part.flags & 0x40 ? 2 : part.flags & 0x80 ? 4 : 0;
		for (; words > 0; words--, at += 2)
			part.matrix.push_back(be16(font.glyf, at));
		parts.push_back(part);
	} while (parts.back().flags & 0x20);
	return parts;
}


// The points of the longest contour of a simple glyph.
static int
longest(const own_eyes& font, size_t glyph)
{
	size_t at = font.place(glyph);
	int most = 0;
	int start = 0;
	for (size_t contour = 0; contour < be16(font.glyf, at); contour++) {
		int end = be16(font.glyf, at + 10 + 2 * contour) + 1;
		most = std::max(most, end - start);
		start = end;
	}
	return most;
}


// Off the diagonal the two readers take b and c the other way round.
static bool
whole_numbers(const std::vector<uint16_t>& matrix)
{
	bool symmetric = matrix.size() < 4 || matrix[1] == matrix[2];
	return symmetric && std::all_of(matrix.begin(), matrix.end(), [](uint16_t number) {
		return number % 0x4000 == 0;
	});
}


own_eyes::own_eyes(const octets& file)
{
	sfnt font(file);
	glyf = font.table("glyf");
	loca = font.table("loca");
	hmtx = font.table("hmtx");
	maxp = font.table("maxp");
	head = font.table("head");
	is_long = be16(head, 50) == 1;
	records = be16(font.table("hhea"), 34);
	glyphs = be16(maxp, 4);
}


size_t
own_eyes::place(size_t glyph) const
{
	if (glyph * (is_long ? 4 : 2) >= loca.size())
		return glyf.size();
	return is_long ? be32(loca, 4 * glyph) : 2u * be16(loca, 2 * glyph);
}


bool
own_eyes::simple(size_t glyph) const
{
	return !empty(glyph) && be16(glyf, place(glyph)) < 0x8000;
}


long
own_eyes::shift(size_t glyph) const
{
	if (!empty(glyph) && !simple(glyph)) {
		auto parts = parts_of(*this, glyph);
		for (size_t k = parts.size(); k > 0; k--) {
			if (parts[k - 1].flags & 0x0200)
				return shift(parts[k - 1].index);
		}
	}
	size_t word = glyph < records ? 2 * glyph + 1 : records + glyph;
	return int16_t(be16(hmtx, 2 * word))
		- (empty(glyph) ? 0 : int16_t(be16(glyf, place(glyph) + 2)));
}


bool
own_eyes::comparable(size_t glyph) const
{
	if (empty(glyph))
		return true;
	if (simple(glyph))
		return longest(*this, glyph) <= 1024;
	auto parts = parts_of(*this, glyph);
	return parts.size() <= 7
		&& std::all_of(parts.begin(), parts.end(), [this](const part_record& part) {
			   return (part.flags & 0x0002) && whole_numbers(part.matrix) && comparable(part.index);
		   });
}


judge::judge(const octets& file)
{
	FT_Init_FreeType(&fLibrary);
	FT_New_Memory_Face(fLibrary, file.data(), FT_Long(file.size()), 0, &fFace);
}


judge::~judge()
{
	FT_Done_FreeType(fLibrary);
}


const FT_Outline*
judge::outline(size_t glyph)
{
	FT_Error answer = FT_Load_Glyph(fFace, FT_UInt(glyph), FT_LOAD_NO_SCALE);
	return answer == 0 ? &fFace->glyph->outline : nullptr;
}


bool
agree(const FT_Outline& expected, long shift, const glyph& seen)
{
	if (expected.n_contours != seen.num_shape)
		return false;
	int at = 0;
	for (int c = 0; c < seen.num_shape; c++) {
		const shape& contour = *seen.shapes[c];
		for (int i = 0; i < contour.num; i++, at++) {
			if (at >= expected.n_points
				|| contour.pts[i].x + (float)shift != (float)expected.points[at].x
				|| contour.pts[i].y != (float)expected.points[at].y
				|| contour.onoff[i] != 1 - (expected.tags[at] & 1))
				return false;
		}
		if (expected.contours[c] != at - 1)
			return false;
	}
	return at == expected.n_points;
}


bool
agree(const FT_Outline& expected, long shift, const FT_Outline& seen, long shift_seen)
{
	auto same_point = [&](const FT_Vector& a, const FT_Vector& b) {
		return a.x - shift == b.x - shift_seen && a.y == b.y;
	};
	auto same_curve = [](char a, char b) { return (a & 1) == (b & 1); };
	return expected.n_points == seen.n_points && expected.n_contours == seen.n_contours
		&& std::equal(expected.points, expected.points + expected.n_points, seen.points, same_point)
		&& std::equal(expected.tags, expected.tags + expected.n_points, seen.tags, same_curve)
		&& std::equal(expected.contours, expected.contours + expected.n_contours, seen.contours);
}


bool
same_contours(const glyph& one, const glyph& other)
{
	if (one.num_shape != other.num_shape)
		return false;
	for (int c = 0; c < one.num_shape; c++) {
		const shape& a = *one.shapes[c];
		const shape& b = *other.shapes[c];
		if (a.num != b.num || !std::equal(a.pts, a.pts + a.num, b.pts)
			|| !std::equal(a.onoff, a.onoff + a.num, b.onoff))
			return false;
	}
	return true;
}
