// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "draw/draw_fixture.h"

#include "font/globals.h"
#include <cstdio>


int
event(object& to, int code, float x, float y, int psize)
{
	return to.create((unsigned char)code, BPoint(x, y), (unsigned char)psize);
}


int
press(object& to, float x, float y, int psize)
{
	return event(to, 1, x, y, psize);
}


int
release(object& to, float x, float y, int psize)
{
	return event(to, 2, x, y, psize);
}


int
drag(object& to, float x, float y, int psize)
{
	return event(to, 3, x, y, psize);
}


int
hover(object& to, float x, float y)
{
	return event(to, 4, x, y);
}


int
step_back(object& to, float x, float y)
{
	return event(to, 6, x, y);
}


void
draw_through(object& to, const std::vector<BPoint>& path, int psize)
{
	press(to, path.front().x, path.front().y, psize);
	for (const BPoint& p : path)
		drag(to, p.x, p.y, psize);
	release(to, path.back().x, path.back().y, psize);
}


std::string
points(const object& of)
{
	std::string text;
	for (int i = 0; i < of.num; i++) {
		char point[64];
		snprintf(point, sizeof point, "%s%g,%g", i > 0 ? " " : "", of.pts[i].x, of.pts[i].y);
		text += point;
	}
	return text;
}


contours
taken_over(shape** array)
{
	contours all;
	for (shape** each = array; each != nullptr && *each != nullptr; each++)
		all.emplace_back(*each);
	delete[] array;
	return all;
}


contours
contours_of(object& from)
{
	return taken_over(from.to_shape());
}


std::string
dots_of(object& from)
{
	const contours all = contours_of(from);
	return all.size() == 1 ? dots(*all[0]) : std::to_string(all.size()) + " contours";
}


canvas_of::canvas_of(float right, float bottom) : fBefore(canvas)
{
	canvas = BRect(0, 0, right, bottom);
}


canvas_of::~canvas_of()
{
	canvas = fBefore;
}
