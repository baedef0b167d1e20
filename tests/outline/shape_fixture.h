// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_TESTS_SHAPE_FIXTURE_H
#define KERNIX_TESTS_SHAPE_FIXTURE_H

#include "outline/glyph.h"
#include "outline/shape.h"

#include <Bitmap.h>
#include <initializer_list>
#include <iosfwd>
#include <memory>
#include <Rect.h>
#include <string>

class BView;

// A point of a contour: off the curve when f is 1.
struct dot {
	float x;
	float y;
	char f = 0;
};

using shape_ptr = std::unique_ptr<shape>;
using glyph_ptr = std::unique_ptr<glyph>;

// A contour with its frame.
shape_ptr contour(std::initializer_list<dot> dots);
// Four points on the curve: left top, right top, right bottom, left bottom.
shape_ptr box(float left, float top, float right, float bottom);
// So many points on the curve: (0, 0), (1, 0), (2, 0), ...
shape_ptr row(int points);
// Its points, "x,y" with a '*' for control points, one space between them.
std::string dots(const shape& of);

// A glyph of so many squares of side 5, each 10 to the right of the one before, from (0, 0) on.
glyph_ptr squares(int count);
// The left edges of the own contours, divided by 10: the squares in their present order.
std::string order(const glyph& of);
// The selections of the own contours, or with frames of all.
std::string selection(const glyph& of);
std::string frame_selection(const glyph& of);
// Selects by the numbers given, from the first contour on; frames follow the own ones.
void select(glyph& in, std::initializer_list<int> states);

constexpr unsigned short one = 0x4000;
// Adds a component with the identity matrix.
void add_part(glyph& to, glyph_ptr part, short dx = 0, short dy = 0);
// A composite of so many components, each the one square (0, 0) to (5, 5), 10 to the right of the
// one before; flattened, the frames mapped onto their places.
glyph_ptr composite(int count);

// Pixels in memory with a view over all of them. Locked while it lives.
class paper {
public:
	paper(int width, int height, bool white = false);

	// 0xRRGGBB.
	unsigned pixel(int x, int y) const;
	// A line for each row: ' ' black, 'W' white, 'L' (100, 100, 255), 'R', 'G', 'B' the full
	// colours, '?' any other.
	std::string picture() const;

	BBitmap bitmap;
	BView& view;
};

// Puts rectangles and points into a failed test's output.
std::ostream& operator<<(std::ostream& out, const BRect& rect);
std::ostream& operator<<(std::ostream& out, const BPoint& point);

#endif
