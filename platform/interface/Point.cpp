// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include <Point.h>
#include <Rect.h>

#include <algorithm>
#include <cstdio>

const BPoint B_ORIGIN(0, 0);


void
BPoint::Set(float px, float py)
{
	x = px;
	y = py;
}


void
BPoint::ConstrainTo(BRect rect)
{
	x = std::max(std::min(x, rect.right), rect.left);
	y = std::max(std::min(y, rect.bottom), rect.top);
}


void
BPoint::PrintToStream() const
{
	printf("BPoint(x:%g, y:%g)\n", static_cast<double>(x), static_cast<double>(y));
}


BPoint
BPoint::operator-() const
{
	return BPoint(-x, -y);
}


BPoint
BPoint::operator+(const BPoint& other) const
{
	return BPoint(x + other.x, y + other.y);
}


BPoint
BPoint::operator-(const BPoint& other) const
{
	return BPoint(x - other.x, y - other.y);
}


BPoint&
BPoint::operator+=(const BPoint& other)
{
	x += other.x;
	y += other.y;
	return *this;
}


BPoint&
BPoint::operator-=(const BPoint& other)
{
	x -= other.x;
	y -= other.y;
	return *this;
}


bool
BPoint::operator==(const BPoint& other) const
{
	return x == other.x && y == other.y;
}


bool
BPoint::operator!=(const BPoint& other) const
{
	return !(*this == other);
}
