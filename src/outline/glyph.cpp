// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "outline/glyph.h"

#include "outline/shape.h"
#include <algorithm>
#include <limits>

// Font units from the offset of a component without an outline to each side of its frame.
static const float empty_reach = 4;


// The arrays stay unset: only what the counts cover is ever read.
glyph::glyph(unsigned short index)
	: depth(0),
	  num_shape(0),
	  num_compo(0),
	  gid(index),
	  partial(false),
	  frames(0),
	  cut(false)
{
}


glyph::~glyph()
{
	while (num_compo > 0)
		delete compo[--num_compo];
	clr_composhape();
}


int32
glyph::reserved() const
{
	return std::max(frames, num_compo);
}


int32
glyph::room() const
{
	return std::max<int32>(max_shapes - reserved() - num_shape, 0);
}


bool
glyph::complete() const
{
	return !partial && !cut
		&& std::all_of(compo, compo + num_compo, [](glyph* part) { return part->complete(); });
}


void
glyph::add_shape(shape* contour)
{
	if (room() == 0) {
		delete contour;
		return;
	}
	shape** slot = shapes + num_shape;
	std::copy_backward(slot, slot + frames, slot + frames + 1);
	*slot = contour;
	num_shape++;
}


BRect
glyph::box(int32 first, int32 end) const
{
	using limits = std::numeric_limits<float>;
	// Right and bottom start from the smallest positive number, not from the lowest.
	BRect around(limits::max(), limits::max(), limits::min(), limits::min());
	for (int32 i = first; i < end; i++) {
		if (shapes[i]->num > 0)
			around = around | shapes[i]->frame;
	}
	return around;
}


BRect
glyph::bounds() const
{
	return box(0, num_shape);
}


void
glyph::draw(BView* view, unsigned long color) const
{
	for (int32 i = 0; i < num_shape; i++)
		shapes[i]->draw(view, color);
}


void
glyph::drawframe(BView* view, float r) const
{
	for (int32 i = sel_begin(); i < sel_end(); i++)
		shapes[i]->drawframe(view, r);
}


void
glyph::trans(const BRect& src, const BRect& dst)
{
	for (int32 i = 0; i < num_shape + frames; i++)
		shapes[i]->trans(src, dst);
}


bool
glyph::add_compo(glyph* part, short dx, short dy, unsigned short a, unsigned short b,
	unsigned short c, unsigned short d)
{
	if (num_compo >= max_compos)
		return true;
	const int32 k = num_compo++;
	compo[k] = part;
	compo_dx[k] = dx;
	compo_dy[k] = dy;
	compo_a[k] = a;
	compo_b[k] = b;
	compo_c[k] = c;
	compo_d[k] = d;
	return false;
}


// Moves the elements after the first one down over it.
template <typename type>
static void
close_gap(type* gap, type* end)
{
	std::copy(gap + 1, end, gap);
}


bool
glyph::del_compo(unsigned char index)
{
	if (index >= num_compo)
		return true;
	delete compo[index];
	close_gap(compo + index, compo + num_compo);
	close_gap(compo_dx + index, compo_dx + num_compo);
	close_gap(compo_dy + index, compo_dy + num_compo);
	close_gap(compo_a + index, compo_a + num_compo);
	close_gap(compo_b + index, compo_b + num_compo);
	close_gap(compo_c + index, compo_c + num_compo);
	close_gap(compo_d + index, compo_d + num_compo);
	num_compo--;
	return false;
}


void
glyph::flatten(int32 k)
{
	const glyph* part = compo[k];
	for (int32 j = 0; j < part->num_shape; j++) {
		if (room() == 0) {
			cut = true;
			return;
		}
		shape* contour = part->shapes[j]->transcopy(compo_dx[k], compo_dy[k], (int16)compo_a[k],
			(int16)compo_b[k], (int16)compo_c[k], (int16)compo_d[k]);
		contour->ctrlp2form();
		add_shape(contour);
	}
}


// A contour around a rectangle. Its own frame is left empty until the next trans().
static shape*
framing(const BRect& around)
{
	shape* contour = new shape(4);
	contour->set(0, around.LeftTop(), 0);
	contour->set(1, around.RightTop(), 0);
	contour->set(2, around.RightBottom(), 0);
	contour->set(3, around.LeftBottom(), 0);
	return contour;
}


// What a component's frame goes round. One without an outline has nothing but its offset.
BRect
glyph::component_box(int32 k, int32 first, int32 end) const
{
	const BRect around = box(first, end);
	if (around.left <= around.right)
		return around;
	const BPoint at(compo_dx[k], compo_dy[k]);
	return BRect(at.x - empty_reach, at.y - empty_reach, at.x + empty_reach, at.y + empty_reach);
}


void
glyph::frame_components()
{
	// Counted from the very first contour, also when some were there before flattening.
	int32 first = 0;
	for (int32 k = 0; k < num_compo && num_shape + frames < max_shapes; k++) {
		const int32 end = std::min(first + compo[k]->num_shape, num_shape);
		shapes[num_shape + frames] = framing(component_box(k, first, end));
		frames++;
		first = end;
	}
}


void
glyph::create_composhape()
{
	drop_frames();
	for (int32 k = 0; k < num_compo; k++)
		flatten(k);
	frame_components();
}


void
glyph::drop_frames()
{
	while (frames > 0)
		delete shapes[num_shape + --frames];
}


void
glyph::clr_composhape()
{
	drop_frames();
	while (num_shape > 0)
		delete shapes[--num_shape];
	cut = false;
}
