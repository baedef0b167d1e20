// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_BITMAP_STATE_H
#define KITS_BITMAP_STATE_H

#include "display/canvas.h"

#include <Bitmap.h>
#include <Window.h>

#include <vector>

namespace kits {

struct bitmap_state {
	BRect bounds;
	color_space space;
	std::vector<uint32> bits;
	std::unique_ptr<canvas> pixels;
	// Of a bitmap that accepts views.
	BWindow* window = nullptr;
};

}

#endif
