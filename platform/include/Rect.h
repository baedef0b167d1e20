// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_RECT_H
#define KITS_RECT_H

#include <Point.h>
#include <SupportDefs.h>

// A rectangle that includes its right and bottom edge: as pixels it is right - left + 1 wide.
// Kept as given, never put in order.
class BRect {
public:
	float left;
	float top;
	float right;
	float bottom;

	// Empty and invalid: (0, 0, -1, -1).
	constexpr BRect() : left(0), top(0), right(-1), bottom(-1) {}
	constexpr BRect(float l, float t, float r, float b) : left(l), top(t), right(r), bottom(b) {}
	constexpr BRect(BPoint leftTop, BPoint rightBottom)
		: left(leftTop.x),
		  top(leftTop.y),
		  right(rightBottom.x),
		  bottom(rightBottom.y)
	{
	}

	void Set(float l, float t, float r, float b);

	BPoint LeftTop() const;
	BPoint RightBottom() const;
	BPoint LeftBottom() const;
	BPoint RightTop() const;
	void SetLeftTop(const BPoint point);
	void SetRightBottom(const BPoint point);
	void SetLeftBottom(const BPoint point);
	void SetRightTop(const BPoint point);

	// Differences of the edges, one less than the count of pixels.
	float Width() const;
	float Height() const;

	// The same rounded up; what does not fit an int32 becomes its nearest value, not a number 0.
	int32 IntegerWidth() const;
	int32 IntegerHeight() const;

	// left <= right and top <= bottom.
	bool IsValid() const;

	// Positive shrinks, on all four sides.
	void InsetBy(float dx, float dy);
	void InsetBy(BPoint inset);

	// Both keep the size.
	void OffsetBy(float dx, float dy);
	void OffsetBy(BPoint delta);
	void OffsetTo(float x, float y);
	void OffsetTo(BPoint leftTop);

	// Edges belong to the rectangle. Neither asks whether a rectangle is valid: the empty one is
	// contained in any that holds (0, 0) and (-1, -1).
	bool Contains(BPoint point) const;
	bool Contains(BRect rect) const;

	// False when either is invalid; rectangles that only touch do intersect.
	bool Intersects(BRect rect) const;

	// The common part, invalid where there is none, and the smallest rectangle around both. Neither
	// asks for validity.
	BRect operator&(BRect other) const;
	BRect operator|(BRect other) const;

	// Exact, all four edges.
	bool operator==(BRect other) const;
	bool operator!=(BRect other) const;
};

#endif
