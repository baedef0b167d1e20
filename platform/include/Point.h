// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_POINT_H
#define KITS_POINT_H

#include <SupportDefs.h>

class BRect;

// A place, y downward, in the coordinate space its user gives it. Two packed floats.
class BPoint {
public:
	float x;
	float y;

	constexpr BPoint() : x(0), y(0) {}
	constexpr BPoint(float px, float py) : x(px), y(py) {}

	void Set(float px, float py);

	// Moves each coordinate by itself to the nearest one inside the rectangle, edges included.
	void ConstrainTo(BRect rect);

	// One line on standard output.
	void PrintToStream() const;

	BPoint operator-() const;
	BPoint operator+(const BPoint& other) const;
	BPoint operator-(const BPoint& other) const;
	BPoint& operator+=(const BPoint& other);
	BPoint& operator-=(const BPoint& other);

	// Exact, both coordinates.
	bool operator==(const BPoint& other) const;
	bool operator!=(const BPoint& other) const;
};

extern const BPoint B_ORIGIN;

#endif
