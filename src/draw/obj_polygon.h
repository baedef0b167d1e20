// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_DRAW_OBJ_POLYGON_H
#define KERNIX_DRAW_OBJ_POLYGON_H

#include "draw/object.h"

// A polygon of straight edges: the clicked points, on the curve.
class obj_polygon : public object_l {
public:
	obj_polygon();

	// The edges clicked and the pending ones, closed from the third point on.
	// Leaves the pen at (0, 0), from where contours are drawn.
	void drawframe(BView* view, float scale) override;
	shape** to_shape() override;
};

#endif
