// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "draw/obj_ellipse.h"

#include "outline/shape.h"
#include <View.h>

// The square root of 2, less 1: how far along its half-size a side of the octagon ends.
static const float corner = 0.41421356F;


obj_ellipse::obj_ellipse() : object_r(4) {}


void
obj_ellipse::drawframe(BView* view, float scale)
{
	if (state == 0)
		return;
	view->SetDrawingMode(B_OP_INVERT);
	view->StrokeEllipse(dragged(scale), B_MIXED_COLORS);
	view->SetDrawingMode(B_OP_COPY);
}


// The half-sizes keep their signs: the direction of the contour is that of the drag.
shape**
obj_ellipse::to_shape()
{
	static const BPoint octagon[8] = {{-corner, -1}, {corner, -1}, {1, -corner}, {1, corner},
		{corner, 1}, {-corner, 1}, {-1, corner}, {-1, -corner}};
	const BPoint centre((pts[0].x + pts[2].x) / 2, (pts[0].y + pts[2].y) / 2);
	const BPoint half((pts[2].x - pts[0].x) / 2, (pts[2].y - pts[0].y) / 2);
	shape* contour = new shape(8);
	for (int i = 0; i < 8; i++)
		contour->set(i, centre + BPoint(octagon[i].x * half.x, octagon[i].y * half.y), 1);
	contour->ctrlp2form();
	return contour_list(contour);
}
