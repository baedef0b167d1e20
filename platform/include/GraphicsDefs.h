// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_GRAPHICSDEFS_H
#define KITS_GRAPHICSDEFS_H

#include <SupportDefs.h>

// 8 x 8 bits, a row per byte, the most significant bit leftmost; 1 is the high colour, 0 the low
// one. It lies fixed to the origin of the view it paints in.
typedef struct pattern {
	uint8 data[8];
} pattern;

extern const pattern B_SOLID_HIGH;
extern const pattern B_SOLID_LOW;
extern const pattern B_MIXED_COLORS; // a checkerboard, its top left pixel high

typedef struct rgb_color {
	uint8 red;
	uint8 green;
	uint8 blue;
	uint8 alpha;
} rgb_color;

// As the colour of a view: do not erase.
extern const rgb_color B_TRANSPARENT_COLOR;

enum drawing_mode {
	B_OP_COPY = 0,
	B_OP_OVER = 1,
	B_OP_ERASE = 2,
	B_OP_INVERT = 3,
	B_OP_ADD = 4,
	B_OP_SUBTRACT = 5,
	B_OP_BLEND = 6,
	B_OP_MIN = 7,
	B_OP_MAX = 8,
	B_OP_SELECT = 9,
	B_OP_ALPHA = 10
};

typedef enum {
	B_GRAY1 = 0x0001,
	B_GRAY8 = 0x0002,
	B_RGB24 = 0x0003,
	B_CMAP8 = 0x0004,
	B_RGB32 = 0x0008, // blue, green, red and an unused byte in memory
	B_RGBA32 = 0x2008,

	B_MONOCHROME_1_BIT = B_GRAY1,
	B_COLOR_8_BIT = B_CMAP8,
	B_RGB_32_BIT = B_RGB32
} color_space;

#endif
