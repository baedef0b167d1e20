// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "draw/object.h"

#include "outline/shape.h"
#include <algorithm>
#include <View.h>


object::object(int n)
	: kind(0),
	  state(0),
	  num(std::max(n, 0)),
	  pts(new BPoint[(size_t)(num / step + 1) * step])
{
}


object::~object()
{
	delete[] pts;
}


int32
object::create(const unsigned char&, const BPoint&, unsigned char)
{
	return state;
}


void
object::drawframe(BView*, float)
{
}


shape**
object::to_shape()
{
	return nullptr;
}


void
object::append(const BPoint& p)
{
	const BPoint added = p;
	if (num > 0 && num % step == 0) {
		BPoint* larger = new BPoint[(size_t)num + step];
		std::copy_n(pts, num, larger);
		delete[] pts;
		pts = larger;
	}
	pts[num++] = added;
}


shape**
object::as_contour(char f) const
{
	shape* contour = new shape(num);
	for (int i = 0; i < num; i++)
		contour->set(i, pts[i], f);
	contour->ctrlp2form();
	return contour_list(contour);
}


shape**
contour_list(shape* contour)
{
	shape** list = new shape*[2];
	list[0] = contour;
	list[1] = nullptr;
	return list;
}
