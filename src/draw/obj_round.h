// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_DRAW_OBJ_ROUND_H
#define KERNIX_DRAW_OBJ_ROUND_H

#include "draw/object.h"

// A smooth closed curve: the clicked points are its control points, and it passes half way between
// each two.
class obj_round : public object_l {
public:
	obj_round();

	// The curve itself, from the third point on; before that a line.
	// Leaves the pen at (0, 0), from where contours are drawn.
	void drawframe(BView* view, float scale) override;
	shape** to_shape() override;
};

#endif
