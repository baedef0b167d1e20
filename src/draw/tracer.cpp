// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "draw/tracer.h"

#include "outline/shape.h"
#include <algorithm>

static const int32 most_contours = 256;

namespace {

// The edges between pixels, one byte each, in one row after another: first the vertical edges of a
// row of pixels, each left of its pixel and one more at the end, then the horizontal ones below,
// with an unused byte on both sides. Row 0 has only the horizontal edges above the first pixels.
// An edge is 1 where ink meets background.
class crack_map {
public:
	explicit crack_map(const ink_grid& ink);

	// The first edge from that place on that is 1, or -1.
	int64 first_from(int64 place) const;
	// Follows a boundary from its first edge on and erases it; edges are added to the path.
	void follow(int64 start, std::vector<uint32>& path);
	// The middle of an edge, in canvas units.
	BPoint middle(int64 place) const;

private:
	const ink_grid& fInk;
	int32 fColumns;
	// Bytes from an edge to the one a pixel below.
	int64 fRow;
	std::vector<uint8> fEdges;
};

// A move from one edge to the next: how far in the map, and where it then heads.
enum heading { right, left, down, up };

struct turn {
	int64 offset;
	heading to;
};

}


crack_map::crack_map(const ink_grid& ink)
	: fInk(ink),
	  fColumns(ink.columns()),
	  fRow(2 * (int64)ink.columns() + 3),
	  fEdges((size_t)(fRow * (ink.rows() + 1) + ink.columns() + 1))
{
	for (int32 y = 0; y <= ink.rows(); y++) {
		uint8* vertical = &fEdges[(size_t)(y * fRow)];
		uint8* horizontal = vertical + fColumns + 2;
		for (int32 x = 0; x <= fColumns; x++)
			vertical[x] = ink.at(x - 1, y - 1) ^ ink.at(x, y - 1);
		for (int32 x = 0; x < fColumns; x++)
			horizontal[x] = ink.at(x, y - 1) ^ ink.at(x, y);
	}
}


int64
crack_map::first_from(int64 place) const
{
	const auto found = std::find(fEdges.begin() + place, fEdges.end(), 1);
	return found == fEdges.end() ? -1 : found - fEdges.begin();
}


// At each end of an edge the mover's left comes first, then straight on, then the right: pixels
// that meet at a corner alone are one piece of ink.
void
crack_map::follow(int64 start, std::vector<uint32>& path)
{
	const int64 row = fRow;
	const int64 back = fColumns + 1;
	const int64 on = fColumns + 2;
	const turn turns[4][3] = {
		{{-back, up}, {1, right}, {on, down}},
		{{back, down}, {-1, left}, {-on, up}},
		{{on, right}, {row, down}, {back, left}},
		{{-on, left}, {-row, up}, {-back, right}},
	};
	const int32 x = (int32)(start % row - on);
	const int32 y = (int32)(start / row);
	// The first edge of a boundary is a horizontal one. The ink is kept on the right.
	heading to = fInk.at(x, y) ? right : left;
	for (int64 place = start;;) {
		path.push_back((uint32)place);
		fEdges[(size_t)place] = 0;
		const turn* next = std::find_if(std::begin(turns[to]), std::end(turns[to]),
			[&](const turn& each) { return fEdges[(size_t)(place + each.offset)] != 0; });
		if (next == std::end(turns[to]))
			return;
		place += next->offset;
		to = next->to;
	}
}


BPoint
crack_map::middle(int64 place) const
{
	const int64 row = place / fRow;
	const int64 x = place % fRow;
	if (x < fColumns + 2)
		return BPoint((float)(2 * x), (float)(2 * row - 1));
	return BPoint((float)(2 * (x - fColumns - 2) + 1), (float)(2 * row));
}


ink_grid::ink_grid(int32 columns, int32 rows)
	: fColumns(columns),
	  fRows(rows),
	  fCells((size_t)(columns + 2) * (size_t)(rows + 2))
{
}


int32
thinning_step(int32 length)
{
	const int32 hundredth = length / 100;
	return hundredth == 0 ? length / 3 : std::max(hundredth, 20);
}


static shape*
thinned(const crack_map& cracks, const std::vector<uint32>& path, const BPoint& corner)
{
	const size_t length = path.size();
	const size_t step = (size_t)thinning_step((int32)length);
	shape* contour = new shape((int)((length + step - 1) / step));
	for (int i = 0; i < contour->num; i++)
		contour->set(i, cracks.middle(path[(size_t)i * step]) + corner, 1);
	contour->ctrlp2form();
	return contour;
}


shape**
trace(const ink_grid& ink, int32 left, int32 top)
{
	const BPoint corner(2 * (float)left, 2 * (float)top);
	crack_map cracks(ink);
	shape** contours = new shape*[most_contours + 1]();
	std::vector<uint32> path;
	int64 start = cracks.first_from(0);
	for (int32 i = 0; i < most_contours && start >= 0; i++) {
		path.clear();
		cracks.follow(start, path);
		contours[i] = thinned(cracks, path, corner);
		start = cracks.first_from(start);
	}
	return contours;
}
