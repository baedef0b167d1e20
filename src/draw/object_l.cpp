// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The tools that fix a point at each click.
#include "draw/object.h"

// Canvas units on each side.
static const float finishing = 2;


object_l::object_l(int n) : object(n) {}


static bool
is_near(const BPoint& fixed, const BPoint& p)
{
	const BRect around(
		fixed.x - finishing, fixed.y - finishing, fixed.x + finishing, fixed.y + finishing);
	return around.Contains(p);
}


// What was pending is fixed where the press is; the next pending point starts there as well.
void
object_l::fix(const BPoint& p)
{
	if (state == 0)
		append(p);
	pts[num - 1] = p;
	append(p);
	state++;
}


void
object_l::unfix(const BPoint& p)
{
	state--;
	num--;
	if (num > 1) {
		pts[num - 1] = p;
	} else {
		num = 0;
		state = abandoned;
	}
}


int32
object_l::create(const unsigned char& code, const BPoint& p, unsigned char)
{
	if (state < 0)
		return state;
	if (code == press && state > 0 && is_near(pts[num - 2], p)) {
		num--;
		state = complete;
	} else if (code == press) {
		fix(p);
	} else if (code == hover && state > 0) {
		pts[num - 1] = p;
	} else if (code == step_back) {
		unfix(p);
	}
	return state;
}
