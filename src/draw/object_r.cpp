// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The tools that are dragged from corner to corner.
#include "draw/object.h"

#include <algorithm>
#include <View.h>


object_r::object_r(int n) : object(std::max(n, 4)) {}


void
object_r::follow(const BPoint& p)
{
	pts[1].x = pts[2].x = p.x;
	pts[2].y = pts[3].y = p.y;
}


int32
object_r::create(const unsigned char& code, const BPoint& p, unsigned char)
{
	if (code == press && state == 0) {
		std::fill_n(pts, 4, p);
		state = 1;
	} else if (code == drag && state == 1) {
		follow(p);
	} else if (code == release && state == 1) {
		follow(p);
		state = complete;
	}
	return state;
}


BRect
object_r::dragged(float scale) const
{
	return BRect(pts[0].x * scale, pts[0].y * scale, pts[2].x * scale, pts[2].y * scale);
}


void
object_r::drawframe(BView* view, float scale)
{
	if (state == 0)
		return;
	view->SetDrawingMode(B_OP_INVERT);
	view->StrokeRect(dragged(scale), B_MIXED_COLORS);
	view->SetDrawingMode(B_OP_COPY);
}
