// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_DRAW_TRACER_H
#define KERNIX_DRAW_TRACER_H

#include <SupportDefs.h>

#include <vector>

class shape;

// A picture of ink and background, one byte a cell, with a border of background all round.
class ink_grid {
public:
	// Without ink. Neither is below 1.
	ink_grid(int32 columns, int32 rows);

	int32 columns() const { return fColumns; }
	int32 rows() const { return fRows; }

	// 0 or 1. The cell of pixel (x, y); -1 and the size are the border.
	uint8& at(int32 x, int32 y) { return fCells[place(x, y)]; }
	uint8 at(int32 x, int32 y) const { return fCells[place(x, y)]; }

private:
	size_t place(int32 x, int32 y) const
	{
		return (size_t)(y + 1) * (size_t)(fColumns + 2) + (size_t)(x + 1);
	}

	int32 fColumns;
	int32 fRows;
	std::vector<uint8> fCells;
};

// Outlines the ink: each boundary between ink and background becomes a contour of control points,
// with the ink on its right. A pixel is two units of the contours wide; pixel (0, 0) of the ink is
// pixel (left, top) of the whole picture. In the order of their topmost leftmost edges, at most 256.
// The array ends with a null; the caller owns both.
shape** trace(const ink_grid& ink, int32 left, int32 top);

// Of a boundary of so many pixel edges, each so manyth is kept: three to five of one below 100, a
// hundred or so of one from 2000 on, every twentieth in between.
int32 thinning_step(int32 length);

#endif
