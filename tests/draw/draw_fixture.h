// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_TESTS_DRAW_FIXTURE_H
#define KERNIX_TESTS_DRAW_FIXTURE_H

#include "draw/object.h"
#include "outline/shape_fixture.h"

#include <vector>

// Sends the object one event of that code; answers what create() does.
int press(object& to, float x, float y, int psize = 0);
int drag(object& to, float x, float y, int psize = 0);
int hover(object& to, float x, float y);
int release(object& to, float x, float y, int psize = 0);
int step_back(object& to, float x, float y);
int event(object& to, int code, float x, float y, int psize = 0);

// Presses at the first, drags through the others and releases at the last.
void draw_through(object& to, const std::vector<BPoint>& path, int psize = 0);

// Its points, "x,y" with one space between them.
std::string points(const object& of);

using contours = std::vector<shape_ptr>;
// What it turns into; frees the array. None, too, where there is no array.
contours contours_of(object& from);
contours taken_over(shape** array);
// Its single contour as dots(); how many there are, where it is not one.
std::string dots_of(object& from);

// While it lives, the program's canvas reaches from (0, 0) to there.
class canvas_of {
public:
	canvas_of(float right, float bottom);
	~canvas_of();
	canvas_of(const canvas_of&) = delete;
	canvas_of& operator=(const canvas_of&) = delete;

private:
	BRect fBefore;
};

#endif
