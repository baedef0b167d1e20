// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "bitmaps/bitmap.h"

#include "font/cursor.h"
#include "font/truncate.h"
#include <View.h>

bitmap::bitmap(unsigned short index, unsigned char across, unsigned char down, unsigned char depth)
	: glyph(index),
	  ppemX(across),
	  ppemY(down),
	  bitDepth(depth),
	  width(0),
	  height(0),
	  horiBearingX(0),
	  horiBearingY(0),
	  horiAdvance(across),
	  pixels(nullptr),
	  vrect(0, 0, 0, 0)
{
}


bitmap::~bitmap()
{
	delete[] pixels;
}


void
bitmap::setvrect(const BRect& r)
{
	vrect = r;
}


float
bitmap::cell_width() const
{
	return (vrect.right - vrect.left + 1) / ppemX;
}


float
bitmap::cell_height() const
{
	return (vrect.bottom - vrect.top + 1) / ppemY;
}


// The left upper corner of the image.
BPoint
bitmap::origin() const
{
	return BPoint(vrect.left + cell_width() * horiBearingX,
		vrect.top + cell_height() * (float)(ppemY - horiBearingY));
}


int
bitmap::create(const unsigned char&, const BPoint& p)
{
	if (pixels == nullptr || !has_cells())
		return 1;
	BPoint first = origin();
	int32 dx = toward_zero<int32>(p.x - first.x);
	int32 dy = toward_zero<int32>(p.y - first.y);
	if (dx < 0 || dy < 0)
		return 1;
	int32 column = toward_zero<int32>((float)dx / cell_width());
	int32 row = toward_zero<int32>((float)dy / cell_height());
	// Below 0 in a view rectangle that is turned round.
	if (column < 0 || row < 0 || column >= width || row >= height)
		return 1;
	unsigned char& pixel = pixels[row * width + column];
	pixel = (pixel + 1) & 1;
	return 0;
}


void
bitmap::draw(BView* v) const
{
	v->SetHighColor(255, 255, 255);
	if (pixels == nullptr) {
		v->DrawString("Undefined",
			BPoint(0.6f * vrect.left + 0.4f * vrect.right, 0.6f * vrect.top + 0.4f * vrect.bottom));
		return;
	}
	if (has_cells())
		draw_cells(v);
}


void
bitmap::draw_cells(BView* v) const
{
	const BPoint first = origin();
	const float cw = cell_width();
	const float ch = cell_height();
	for (int row = 0; row < height; row++) {
		for (int column = 0; column < width; column++) {
			if (pixels[row * width + column] == 0)
				continue;
			v->FillRect(BRect(first.x + cw * (float)column, first.y + ch * (float)row,
				first.x + cw * (float)(column + 1) - 1, first.y + ch * (float)(row + 1) - 1));
		}
	}
	v->SetHighColor(100, 100, 100);
	v->StrokeRect(BRect(first.x, first.y, first.x + cw * width - 1, first.y + ch * height - 1));
}


bool
bitmap::take_metrics(cursor& from)
{
	uint8 rows = from.u8();
	uint8 columns = from.u8();
	int8 x = from.s8();
	int8 y = from.s8();
	uint8 advance = from.u8();
	if (from.failed())
		return false;
	if (rows != height || columns != width) {
		delete[] pixels;
		pixels = nullptr;
	}
	height = rows;
	width = columns;
	horiBearingX = x;
	horiBearingY = y;
	horiAdvance = advance;
	return true;
}
