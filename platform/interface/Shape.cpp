// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cmath>
#include <Errors.h>
#include <Shape.h>


BShape::BShape() = default;


BShape::~BShape() = default;


void
BShape::Clear()
{
	fVerbs.clear();
	fPoints.clear();
}


BRect
BShape::Bounds() const
{
	if (fPoints.empty())
		return BRect();
	BRect box(fPoints[0], fPoints[0]);
	for (BPoint point : fPoints)
		box = box | BRect(point, point);
	return box;
}


status_t
BShape::MoveTo(BPoint point)
{
	if (!fVerbs.empty() && fVerbs.back() == move_to) {
		fVerbs.pop_back();
		fPoints.pop_back();
	}
	return _Add(move_to, &point, 1);
}


status_t
BShape::LineTo(BPoint point)
{
	return _Add(line_to, &point, 1);
}


status_t
BShape::BezierTo(BPoint control[3])
{
	return control ? _Add(bezier_to, control, 3) : B_BAD_VALUE;
}


status_t
BShape::Close()
{
	return _Add(close_path, nullptr, 0);
}


status_t
BShape::_Add(verb how, const BPoint* points, int32 count)
{
	bool finite = std::all_of(points, points + count,
		[](BPoint point) { return std::isfinite(point.x) && std::isfinite(point.y); });
	if (!finite)
		return B_BAD_VALUE;
	fVerbs.push_back(how);
	fPoints.insert(fPoints.end(), points, points + count);
	return B_OK;
}
