// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "draw/obj_free.h"

#include "draw/tracer.h"
#include "font/globals.h"
#include "font/truncate.h"
#include <algorithm>
#include <Bitmap.h>
#include <cmath>
#include <View.h>

// Of a picture, in pixels: more would take hundreds of megabytes. And on one axis, so that numbers
// of pixels fit an int32; a stroke of that length has too many anyway.
static const int64 most_pixels = 1 << 26;
static const double most_in_line = 1 << 30;

namespace {

// Pixels of the whole picture, the first ones and how many.
struct stretch {
	int32 left;
	int32 top;
	int32 columns;
	int32 rows;

	int64 pixels() const { return (int64)columns * rows; }
};

}


obj_free::obj_free() : object(0), width(0) {}


int32
obj_free::create(const unsigned char& code, const BPoint& p, unsigned char psize)
{
	if (state < 0)
		return state;
	if (num == 0)
		width = psize;
	if (num == 0 || pts[num - 1] != p)
		append(p);
	state = num;
	if (code == release)
		state = num >= 2 ? complete : abandoned;
	return state;
}


void
obj_free::drawframe(BView* view, float)
{
	drawtail(view, 1);
}


void
obj_free::drawtail(BView* view, int32 first)
{
	view->PushState();
	view->SetPenSize(width);
	view->SetLineMode(B_ROUND_CAP, B_ROUND_JOIN, 10);
	for (int32 i = std::max(first, 1); i < num; i++)
		view->StrokeLine(pts[i - 1], pts[i], B_SOLID_HIGH);
	view->PopState();
}


// The pixels from low to high, as far as they lie within so many from 0 on; none when count is
// below 1.
static void
clip(double low, double high, double size, int32& start, int32& count)
{
	size = std::clamp(size, 0.0, most_in_line);
	start = toward_zero<int32>(std::clamp(std::floor(low), 0.0, size));
	count = toward_zero<int32>(std::clamp(std::ceil(high), -1.0, size - 1)) - start + 1;
}


// What the pen can reach of the picture of the canvas.
static stretch
reached(const BPoint* pts, int32 num, int pen)
{
	BRect box(pts[0], pts[0]);
	for (int32 i = 1; i < num; i++) {
		box.left = std::min(box.left, pts[i].x);
		box.top = std::min(box.top, pts[i].y);
		box.right = std::max(box.right, pts[i].x);
		box.bottom = std::max(box.bottom, pts[i].y);
	}
	// Half the pen, and pixels that it touches without covering their middle.
	const double reach = pen / 2.0 + 2;
	stretch area;
	clip(box.left * 0.5 - reach, box.right * 0.5 + reach, std::trunc((canvas.right + 1.0) / 2),
		area.left, area.columns);
	clip(box.top * 0.5 - reach, box.bottom * 0.5 + reach, std::trunc((canvas.bottom + 1.0) / 2),
		area.top, area.rows);
	return area;
}


// In the pixels of the whole picture.
static void
stroke(BView* view, const BPoint* pts, int32 num, int pen)
{
	view->SetHighColor(255, 255, 255, 255);
	view->SetLowColor(0, 0, 0, 255);
	view->SetPenSize((float)pen);
	view->SetLineMode(B_ROUND_CAP, B_ROUND_JOIN, 10);
	view->FillRect(view->Bounds(), B_SOLID_LOW);
	view->MovePenTo(BPoint(pts[0].x * 0.5F, pts[0].y * 0.5F));
	for (int32 i = 1; i < num; i++)
		view->StrokeLine(BPoint(pts[i].x * 0.5F, pts[i].y * 0.5F), B_SOLID_HIGH);
}


static void
read_ink(const BBitmap& picture, ink_grid& ink)
{
	const uint8* row = static_cast<const uint8*>(picture.Bits());
	for (int32 y = 0; y < ink.rows(); y++, row += picture.BytesPerRow()) {
		for (int32 x = 0; x < ink.columns(); x++) {
			const uint8* pixel = row + 4 * (size_t)x;
			ink.at(x, y) = pixel[0] + pixel[1] + pixel[2] > 0x180;
		}
	}
}


static bool
draw_ink(ink_grid& ink, const stretch& area, const BPoint* pts, int32 num, int pen)
{
	const BRect bounds(0, 0, (float)area.columns - 1, (float)area.rows - 1);
	BBitmap picture(bounds, B_RGB32, true);
	if (!picture.IsValid() || !picture.Lock())
		return false;
	// The view begins where the whole picture does, before the bitmap: how coordinates are rounded
	// depends on their size, so they must stay what they are there.
	const BRect frame(-(float)area.left, -(float)area.top, bounds.right, bounds.bottom);
	BView* view = new BView(frame, "obj_free", B_FOLLOW_NONE, B_WILL_DRAW);
	picture.AddChild(view);
	stroke(view, pts, num, pen);
	view->Sync();
	picture.RemoveChild(view);
	delete view;
	picture.Unlock();
	read_ink(picture, ink);
	return true;
}


shape**
obj_free::to_shape()
{
	const int pen = width / 2;
	const stretch area = num > 0 ? reached(pts, num, pen) : stretch{};
	if (area.columns < 1 || area.rows < 1 || area.pixels() > most_pixels)
		return contour_list(nullptr);
	ink_grid ink(area.columns, area.rows);
	if (!draw_ink(ink, area, pts, num, pen))
		return contour_list(nullptr);
	return trace(ink, area.left, area.top);
}
