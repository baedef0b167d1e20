// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include <Rect.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

int32
rounded_up(float length)
{
	// In double every int32 is exact, so the limits can be compared with.
	const double whole = std::ceil(static_cast<double>(length));
	if (std::isnan(whole)) {
		return 0;
	}
	return static_cast<int32>(std::clamp<double>(
		whole, std::numeric_limits<int32>::min(), std::numeric_limits<int32>::max()));
}

}


void
BRect::Set(float l, float t, float r, float b)
{
	left = l;
	top = t;
	right = r;
	bottom = b;
}


BPoint
BRect::LeftTop() const
{
	return BPoint(left, top);
}


BPoint
BRect::RightBottom() const
{
	return BPoint(right, bottom);
}


BPoint
BRect::LeftBottom() const
{
	return BPoint(left, bottom);
}


BPoint
BRect::RightTop() const
{
	return BPoint(right, top);
}


void
BRect::SetLeftTop(const BPoint point)
{
	left = point.x;
	top = point.y;
}


void
BRect::SetRightBottom(const BPoint point)
{
	right = point.x;
	bottom = point.y;
}


void
BRect::SetLeftBottom(const BPoint point)
{
	left = point.x;
	bottom = point.y;
}


void
BRect::SetRightTop(const BPoint point)
{
	right = point.x;
	top = point.y;
}


float
BRect::Width() const
{
	return right - left;
}


float
BRect::Height() const
{
	return bottom - top;
}


int32
BRect::IntegerWidth() const
{
	return rounded_up(Width());
}


int32
BRect::IntegerHeight() const
{
	return rounded_up(Height());
}


bool
BRect::IsValid() const
{
	return left <= right && top <= bottom;
}


void
BRect::InsetBy(float dx, float dy)
{
	left += dx;
	top += dy;
	right -= dx;
	bottom -= dy;
}


void
BRect::InsetBy(BPoint inset)
{
	InsetBy(inset.x, inset.y);
}


void
BRect::OffsetBy(float dx, float dy)
{
	left += dx;
	top += dy;
	right += dx;
	bottom += dy;
}


void
BRect::OffsetBy(BPoint delta)
{
	OffsetBy(delta.x, delta.y);
}


void
BRect::OffsetTo(float x, float y)
{
	Set(x, y, x + Width(), y + Height());
}


void
BRect::OffsetTo(BPoint leftTop)
{
	OffsetTo(leftTop.x, leftTop.y);
}


bool
BRect::Contains(BPoint point) const
{
	return point.x >= left && point.x <= right && point.y >= top && point.y <= bottom;
}


bool
BRect::Contains(BRect rect) const
{
	return rect.left >= left && rect.right <= right && rect.top >= top && rect.bottom <= bottom;
}


bool
BRect::Intersects(BRect rect) const
{
	if (!IsValid() || !rect.IsValid()) {
		return false;
	}
	return rect.left <= right && rect.right >= left && rect.top <= bottom && rect.bottom >= top;
}


BRect
BRect::operator&(BRect other) const
{
	return BRect(std::max(left, other.left), std::max(top, other.top), std::min(right, other.right),
		std::min(bottom, other.bottom));
}


BRect
BRect::operator|(BRect other) const
{
	return BRect(std::min(left, other.left), std::min(top, other.top), std::max(right, other.right),
		std::max(bottom, other.bottom));
}


bool
BRect::operator==(BRect other) const
{
	return left == other.left && top == other.top && right == other.right && bottom == other.bottom;
}


bool
BRect::operator!=(BRect other) const
{
	return !(*this == other);
}
