// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "draw/obj_round.h"

#include <Shape.h>
#include <View.h>


obj_round::obj_round() : object_l(0) {}


static BPoint
scaled(const BPoint& p, float scale)
{
	return BPoint(p.x * scale, p.y * scale);
}


static BPoint
middle(const BPoint& a, const BPoint& b)
{
	return BPoint((a.x + b.x) / 2, (a.y + b.y) / 2);
}


// Two thirds of the way from an end of a quadratic curve to its control point: where the cubic
// curve of the same course has its own.
static BPoint
toward(const BPoint& control, const BPoint& end)
{
	return BPoint((2 * control.x + end.x) / 3, (2 * control.y + end.y) / 3);
}


// Through the middles of each two points, and back to the first.
static void
trace_curve(BShape& path, const BPoint* pts, int32 num, float scale)
{
	BPoint from = middle(pts[0], pts[1]);
	path.MoveTo(scaled(from, scale));
	for (int32 i = 1; i <= num; i++) {
		const BPoint control = pts[i % num];
		const BPoint to = middle(control, pts[(i + 1) % num]);
		BPoint curve[3] = {scaled(toward(control, from), scale), scaled(toward(control, to), scale),
			scaled(to, scale)};
		path.BezierTo(curve);
		from = to;
	}
}


void
obj_round::drawframe(BView* view, float scale)
{
	if (num < 2)
		return;
	view->SetDrawingMode(B_OP_INVERT);
	view->MovePenTo(0, 0);
	if (num < 3) {
		view->StrokeLine(scaled(pts[0], scale), scaled(pts[1], scale), B_MIXED_COLORS);
		view->MovePenTo(0, 0);
	} else {
		BShape path;
		trace_curve(path, pts, num, scale);
		view->StrokeShape(&path, B_MIXED_COLORS);
	}
	view->SetDrawingMode(B_OP_COPY);
}


shape**
obj_round::to_shape()
{
	return as_contour(1);
}
