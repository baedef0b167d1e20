// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_OUTLINE_GLYF_RECORD_H
#define KERNIX_OUTLINE_GLYF_RECORD_H

#include <SupportDefs.h>

// The layout of a record of glyf, after the TrueType reference: a header, then either contours or
// references to other glyphs.

// Bytes: numberOfContours, xMin, yMin, xMax, yMax, each 16 bits.
enum { at_contours = 0, at_xmin = 2, at_ymin = 4, at_xmax = 6, at_ymax = 8, record_header = 10 };

// Flags of a point.
enum : uint8 {
	on_curve = 0x01,
	x_is_byte = 0x02,
	y_is_byte = 0x04,
	flag_repeats = 0x08,
	x_same_or_positive = 0x10,
	y_same_or_positive = 0x20
};

// Flags of a component.
enum : uint16 {
	args_are_words = 0x0001,
	has_scale = 0x0008,
	more_components = 0x0020,
	has_x_and_y_scale = 0x0040,
	has_two_by_two = 0x0080,
	has_instructions = 0x0100
};

// One in the 2.14 fixed point of a component's matrix.
constexpr uint16 one_2_14 = 0x4000;

// x and y differ in two bits, so they share their reader and their writer.
struct axis {
	uint8 is_byte;
	uint8 same_or_positive;
};
constexpr axis x_axis = {x_is_byte, x_same_or_positive};
constexpr axis y_axis = {y_is_byte, y_same_or_positive};

// Bounds on what damaged or malicious records may ask for in one outermost call: how deep components
// nest, how many component records are visited, how many points and contours are read, and how many
// bytes the components take in memory. A few hundred bytes of glyf can name more of each than any
// machine has.
constexpr int deepest = 32;
constexpr uint32 most_visits = 65536;
constexpr uint32 most_read = 1 << 20;
constexpr uint32 most_held = 48 << 20;

#endif
