// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_INK_H
#define KITS_INK_H

#include <algorithm>
#include <cmath>
#include <GraphicsDefs.h>
#include <iterator>
#include <Point.h>
#include <QRect>

namespace kits {

// Whether all rows of the pattern are these bits.
inline bool
uniform(const pattern& p, uint8 bits)
{
	return std::all_of(
		std::begin(p.data), std::end(p.data), [=](uint8 row) { return row == bits; });
}


// Canvas pixels to device pixels, whole ones that are touched.
inline QRect
device_pixels(const QRect& rect, float ratio)
{
	int left = (int)std::floor((float)rect.left() * ratio);
	int top = (int)std::floor((float)rect.top() * ratio);
	int right = (int)std::ceil((float)(rect.right() + 1) * ratio);
	int bottom = (int)std::ceil((float)(rect.bottom() + 1) * ratio);
	return QRect(left, top, right - left, bottom - top);
}


// Where the view's (0, 0) is on the canvas, in device pixels. Rounded here, once for all that the
// view draws: at every scroll position it then has the same pixels, a whole number of them further
// on. Rounded downward, so that the view's bounds reach to both ends of the canvas.
inline QPoint
device_origin(BPoint offset, float ratio)
{
	return QPoint(-(int)std::floor(-offset.x * ratio), -(int)std::floor(-offset.y * ratio));
}

}

#endif
