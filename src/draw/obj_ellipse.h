// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_DRAW_OBJ_ELLIPSE_H
#define KERNIX_DRAW_OBJ_ELLIPSE_H

#include "draw/object.h"

// An ellipse inscribed in the dragged rectangle: eight control points, the corners of the octagon
// around it. Where they imply points on the curve, at every eighth of the way round, the outline
// touches the ellipse.
class obj_ellipse : public object_r {
public:
	obj_ellipse();

	// The ellipse.
	void drawframe(BView* view, float scale) override;
	shape** to_shape() override;
};

#endif
