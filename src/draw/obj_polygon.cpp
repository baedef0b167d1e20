// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "draw/obj_polygon.h"

#include <View.h>


obj_polygon::obj_polygon() : object_l(0) {}


void
obj_polygon::drawframe(BView* view, float scale)
{
	if (num < 1)
		return;
	const BPoint start(pts[0].x * scale, pts[0].y * scale);
	view->SetDrawingMode(B_OP_INVERT);
	view->MovePenTo(start);
	for (int32 i = 1; i < num; i++)
		view->StrokeLine(BPoint(pts[i].x * scale, pts[i].y * scale), B_MIXED_COLORS);
	if (num > 2)
		view->StrokeLine(start, B_MIXED_COLORS);
	view->MovePenTo(0, 0);
	view->SetDrawingMode(B_OP_COPY);
}


shape**
obj_polygon::to_shape()
{
	return as_contour(0);
}
