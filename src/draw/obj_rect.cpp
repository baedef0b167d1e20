// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "draw/obj_rect.h"


obj_rect::obj_rect() : object_r(4) {}


shape**
obj_rect::to_shape()
{
	return as_contour(0);
}
