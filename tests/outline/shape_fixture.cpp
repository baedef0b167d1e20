// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "outline/shape_fixture.h"

#include <cstdio>
#include <cstring>
#include <ostream>
#include <View.h>


shape_ptr
contour(std::initializer_list<dot> dots)
{
	shape_ptr made = std::make_unique<shape>((int)dots.size());
	int i = 0;
	for (const dot& each : dots)
		made->set(i++, BPoint(each.x, each.y), each.f);
	made->ctrlp2form();
	return made;
}


shape_ptr
box(float left, float top, float right, float bottom)
{
	return contour({{left, top}, {right, top}, {right, bottom}, {left, bottom}});
}


shape_ptr
row(int points)
{
	shape_ptr made = std::make_unique<shape>(points);
	for (int i = 0; i < points; i++)
		made->set(i, BPoint((float)i, 0), 0);
	made->ctrlp2form();
	return made;
}


std::string
dots(const shape& of)
{
	std::string text;
	for (int i = 0; i < of.num; i++) {
		char point[64];
		snprintf(point, sizeof point, "%s%g,%g%s", i > 0 ? " " : "", of.pts[i].x, of.pts[i].y,
			of.onoff[i] ? "*" : "");
		text += point;
	}
	return text;
}


glyph_ptr
squares(int count)
{
	glyph_ptr made = std::make_unique<glyph>(1);
	for (int i = 0; i < count; i++) {
		const float left = (float)(10 * i);
		made->add_shape(box(left, 0, left + 5, 5).release());
	}
	return made;
}


static std::string
joined(std::string text, int number)
{
	return text + (text.empty() ? "" : " ") + std::to_string(number);
}


std::string
order(const glyph& of)
{
	std::string text;
	for (int i = 0; i < of.num_shape; i++)
		text = joined(text, (int)of.shapes[i]->frame.left / 10);
	return text;
}


std::string
selection(const glyph& of)
{
	std::string text;
	for (int i = 0; i < of.num_shape; i++)
		text = joined(text, of.shapes[i]->sel);
	return text;
}


std::string
frame_selection(const glyph& of)
{
	std::string text;
	for (int k = 0; k < of.num_compo; k++)
		text = joined(text, of.shapes[of.num_shape + k]->sel);
	return text;
}


void
select(glyph& in, std::initializer_list<int> states)
{
	int i = 0;
	for (int state : states)
		in.shapes[i++]->sel = state;
}


void
add_part(glyph& to, glyph_ptr part, short dx, short dy)
{
	if (!to.add_compo(part.get(), dx, dy, one, 0, 0, one))
		part.release();
}


glyph_ptr
composite(int count)
{
	glyph_ptr made = std::make_unique<glyph>(9);
	for (int k = 0; k < count; k++)
		add_part(*made, squares(1), (short)(10 * k));
	made->create_composhape();
	made->trans(BRect(0, 0, 99, 99), BRect(0, 0, 99, 99));
	return made;
}


static BView*
sheet_over(BBitmap& bitmap)
{
	BView* view = new BView(bitmap.Bounds(), "paper", B_FOLLOW_ALL, B_WILL_DRAW);
	bitmap.Lock();
	bitmap.AddChild(view);
	return view;
}


paper::paper(int width, int height, bool white)
	: bitmap(BRect(0, 0, (float)width - 1, (float)height - 1), B_RGB32, true),
	  view(*sheet_over(bitmap))
{
	if (white)
		memset(bitmap.Bits(), 0xFF, (size_t)bitmap.BitsLength());
}


unsigned
paper::pixel(int x, int y) const
{
	uint32 value;
	memcpy(&value, (const char*)bitmap.Bits() + y * bitmap.BytesPerRow() + 4 * x, sizeof value);
	return value & 0xFFFFFF;
}


static char
letter(unsigned color)
{
	switch (color) {
		case 0x000000:
			return ' ';
		case 0xFFFFFF:
			return 'W';
		case 0x6464FF:
			return 'L';
		case 0xFF0000:
			return 'R';
		case 0x00FF00:
			return 'G';
		case 0x0000FF:
			return 'B';
		default:
			return '?';
	}
}


std::string
paper::picture() const
{
	std::string text;
	for (int y = 0; y <= (int)bitmap.Bounds().bottom; y++) {
		for (int x = 0; x <= (int)bitmap.Bounds().right; x++)
			text += letter(pixel(x, y));
		text += '\n';
	}
	return text;
}


std::ostream&
operator<<(std::ostream& out, const BRect& rect)
{
	return out << '(' << rect.left << ", " << rect.top << ", " << rect.right << ", " << rect.bottom
			   << ')';
}


std::ostream&
operator<<(std::ostream& out, const BPoint& point)
{
	return out << '(' << point.x << ", " << point.y << ')';
}
