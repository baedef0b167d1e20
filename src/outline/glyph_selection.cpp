// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// What is selected in a glyph, and what editing does with it.
#include "font/truncate.h"
#include "outline/glyph.h"
#include "outline/shape.h"
#include <algorithm>


int32
glyph::sel_begin() const
{
	return num_compo > 0 ? num_shape : 0;
}


int32
glyph::sel_end() const
{
	// Components added or deleted since the frames were made have no frame, or no longer.
	return num_compo > 0 ? num_shape + std::min(num_compo, frames) : num_shape;
}


unsigned char
glyph::sel_check(const BPoint& p, float t)
{
	bool whole = false;
	bool point = false;
	for (int32 i = sel_begin(); i < sel_end(); i++) {
		if (shapes[i]->sel == 0)
			continue;
		const int hit = shapes[i]->select_chk(p, t);
		whole = whole || hit < 0;
		point = point || hit > 0;
	}
	if (num_compo > 0)
		return whole || point;
	return (whole ? 0x01 : 0) | (point ? 0x02 : 0);
}


bool
glyph::sel_check(const BRect& r)
{
	bool caught = false;
	for (int32 i = sel_begin(); i < sel_end(); i++) {
		if (shapes[i]->sel == 0 && shapes[i]->select_chk(r) != 0)
			caught = true;
	}
	return caught;
}


void
glyph::sel_check()
{
	for (int32 i = sel_begin(); i < sel_end(); i++) {
		if (shapes[i]->sel > 0)
			shapes[i]->sel = -1;
	}
}


void
glyph::sel_none()
{
	for (int32 i = 0; i < num_shape + frames; i++)
		shapes[i]->sel = 0;
}


void
glyph::sel_only(int32 index)
{
	for (int32 i = sel_begin(); i < sel_end(); i++)
		shapes[i]->sel = i == index ? -1 : 0;
}


void
glyph::sel_first()
{
	sel_only(sel_begin());
}


void
glyph::sel_last()
{
	sel_only(sel_end() - 1);
}


void
glyph::sel_next()
{
	int32 lowest = sel_begin();
	while (lowest < sel_end() && shapes[lowest]->sel == 0)
		lowest++;
	const bool wraps = lowest == sel_end() || lowest == sel_begin();
	sel_only(wraps ? sel_end() - 1 : lowest - 1);
}


void
glyph::sel_back()
{
	int32 highest = sel_end() - 1;
	while (highest >= sel_begin() && shapes[highest]->sel == 0)
		highest--;
	const bool wraps = highest < sel_begin() || highest == sel_end() - 1;
	sel_only(wraps ? sel_begin() : highest + 1);
}


void
glyph::sel_to_top()
{
	std::stable_partition(
		shapes, shapes + num_shape, [](shape* contour) { return contour->sel == 0; });
}


void
glyph::sel_to_bot()
{
	std::stable_partition(
		shapes, shapes + num_shape, [](shape* contour) { return contour->sel != 0; });
}


void
glyph::move_sel(const BPoint& d)
{
	for (int32 i = sel_begin(); i < sel_end(); i++) {
		if (shapes[i]->sel == 0)
			continue;
		if (num_compo > 0) {
			const int32 k = i - num_shape;
			compo_dx[k] = toward_zero<int16>(compo_dx[k] + d.x);
			compo_dy[k] = toward_zero<int16>(compo_dy[k] - d.y);
		}
		shapes[i]->move(d);
	}
}


// Deletes what is selected of a contour; true when nothing of it is to be kept.
static bool
is_used_up(shape* contour)
{
	return contour->sel < 0 || (contour->sel > 0 && contour->delpoint());
}


void
glyph::del_sel()
{
	int32 kept = 0;
	for (int32 i = 0; i < num_shape; i++) {
		if (is_used_up(shapes[i]))
			delete shapes[i];
		else
			shapes[kept++] = shapes[i];
	}
	std::copy_n(shapes + num_shape, frames, shapes + kept);
	num_shape = kept;
}


void
glyph::rev_sel()
{
	for (int32 i = 0; i < num_shape; i++)
		shapes[i]->reverse();
}


void
glyph::tgl_sel()
{
	for (int32 i = 0; i < num_shape; i++)
		shapes[i]->tglpoint();
}


void
glyph::copy_sel(const BPoint& d)
{
	const int32 before = num_shape;
	for (int32 i = 0; i < before; i++) {
		if (shapes[i]->sel < 0 && room() > 0) {
			add_shape(shapes[i]->copy());
			shapes[i]->sel = 0;
		} else if (shapes[i]->sel > 0) {
			shapes[i]->inspoint(d);
		}
	}
}


bool
glyph::can_copy_sel() const
{
	int32 copies = 0;
	for (int32 i = 0; i < num_shape; i++) {
		if (shapes[i]->sel > 0 && shapes[i]->num >= shape::max_points)
			return false;
		copies += shapes[i]->sel < 0;
	}
	return copies <= room();
}
