// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_TESTS_STROKE_REFERENCE_H
#define KERNIX_TESTS_STROKE_REFERENCE_H

#include <Point.h>
#include <string>
#include <vector>

// Free-hand outlines a second way, over the whole canvas and with no thought for cost.

// Rows of pixels, '#' for ink.
using ink_rows = std::vector<std::string>;

// What a round pen of half the width inks along the path in a picture of so many pixels at half the
// resolution.
ink_rows inked(const std::vector<BPoint>& path, int width, int columns, int rows);

// The boundaries of the ink, each the middles of its pixel edges in canvas units, ink on the right:
// found as loops of directed edges between pixel corners. In the order of their first edges, row by
// row, without the limit of 256.
std::vector<std::vector<BPoint>> boundaries(const ink_rows& ink);

// The contours of the boundaries as dots(), one a line.
std::string outlines(const ink_rows& ink);

#endif
