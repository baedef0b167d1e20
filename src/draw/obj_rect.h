// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_DRAW_OBJ_RECT_H
#define KERNIX_DRAW_OBJ_RECT_H

#include "draw/object.h"

// A rectangle: four points on the curve, the corners in the order of object_r.
class obj_rect : public object_r {
public:
	obj_rect();

	shape** to_shape() override;
};

#endif
