// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// How a contour paints itself.
#include "outline/shape.h"

#include <Shape.h>
#include <View.h>

static const rgb_color positive_color = {255, 255, 255, 255};
static const rgb_color negative_color = {100, 100, 255, 255};


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


BPoint
shape::start() const
{
	if (!onoff[0])
		return pts[0];
	const int32 last = num - 1;
	return onoff[last] ? middle(pts[last], pts[0]) : pts[last];
}


void
shape::trace(BShape& path) const
{
	BPoint current = start();
	path.MoveTo(current);
	for (int32 i = 0; i < num; i++) {
		const int32 next = next_of(i);
		if (onoff[i]) {
			const BPoint end = onoff[next] ? middle(pts[i], pts[next]) : pts[next];
			BPoint curve[3] = {toward(pts[i], current), toward(pts[i], end), end};
			path.BezierTo(curve);
			current = end;
		} else if (!onoff[next]) {
			current = pts[next];
			path.LineTo(current);
		}
	}
}


void
shape::draw(BView* view, unsigned long color) const
{
	if (num < 1)
		return;
	view->PushState();
	const uint32 rgb = (uint32)color;
	if (rgb != 0)
		view->SetHighColor((uchar)(rgb >> 16), (uchar)(rgb >> 8), (uchar)rgb);
	else
		view->SetHighColor(ispositive() ? positive_color : negative_color);
	BShape path;
	trace(path);
	view->StrokeShape(&path, B_SOLID_HIGH);
	view->PopState();
}


void
shape::drawframe(BView* view, float r) const
{
	if (sel == 0)
		return;
	view->SetDrawingMode(B_OP_INVERT);
	for (int32 i = 0; i < num; i++) {
		const BRect marker(pts[i].x - r, pts[i].y - r, pts[i].x + r, pts[i].y + r);
		if (onoff[i])
			view->FillEllipse(marker);
		else
			view->FillRect(marker);
	}
	view->SetDrawingMode(B_OP_COPY);
}
