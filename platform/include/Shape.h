// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_SHAPE_H
#define KITS_SHAPE_H

#include <Archivable.h>
#include <Point.h>
#include <Rect.h>
#include <vector>

// A path of moves, lines and cubic curves. A value to draw with; one thread at a time. Points that
// are not finite are refused with B_BAD_VALUE.
class BShape : public BArchivable {
public:
	BShape();
	~BShape() override;

	void Clear();
	// The box of all points, control points among them; invalid when there is none.
	BRect Bounds() const;
	// One right after another takes its place.
	status_t MoveTo(BPoint point);
	// Without a MoveTo() before, paths start at (0, 0).
	status_t LineTo(BPoint point);
	// Two control points and the end.
	status_t BezierTo(BPoint control[3]);
	// Back to the last MoveTo(). Stroked, a path is not closed by itself.
	status_t Close();

private:
	friend class BView;

	enum verb : uint8 { move_to, line_to, bezier_to, close_path };

	status_t _Add(verb how, const BPoint* points, int32 count);

	std::vector<verb> fVerbs;
	std::vector<BPoint> fPoints;
};

#endif
