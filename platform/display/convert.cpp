// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/convert.h"

#include <algorithm>
#include <cmath>


namespace {

// Far outside every screen, and sums of two still fit an int.
constexpr float farthest = 1e8F;


int
whole(float value)
{
	return (int)std::floor(std::clamp(value, -farthest, farthest));
}

}


QRect
kits::to_qrect(BRect rect)
{
	return QRect(QPoint(whole(rect.left), whole(rect.top)),
		QPoint(whole(std::ceil(rect.right)), whole(std::ceil(rect.bottom))));
}


BRect
kits::to_brect(const QRect& rect)
{
	return BRect((float)rect.left(), (float)rect.top(), (float)rect.right(), (float)rect.bottom());
}
