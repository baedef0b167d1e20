// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Strokes of more than a pixel, which take the same pixels wherever their view lies.
#include <Bitmap.h>
#include <View.h>

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

struct line {
	BPoint from;
	BPoint to;
	// How far into the lines' space the cut-out begins.
	BPoint corner;
};


// Paints the line, two pixels thick and round, in a view that begins there in a bitmap; the pixels
// of a part of it, a line for each row.
std::string
painted(const line& l, BPoint view_at, BRect part, pattern p = B_SOLID_HIGH)
{
	BBitmap picture(BRect(0, 0, 199, 199), B_RGB32, true);
	BRect frame = picture.Bounds();
	frame.left = view_at.x;
	frame.top = view_at.y;
	BView* view = new BView(frame, "", B_FOLLOW_NONE, B_WILL_DRAW);
	picture.Lock();
	picture.AddChild(view);
	view->SetHighColor(255, 255, 255);
	view->SetLowColor(0, 0, 0);
	view->FillRect(view->Bounds(), B_SOLID_LOW);
	view->SetPenSize(2);
	view->SetLineMode(B_ROUND_CAP, B_ROUND_JOIN, 10);
	view->StrokeLine(l.from, l.to, p);
	picture.RemoveChild(view);
	delete view;
	picture.Unlock();
	std::string text;
	for (int y = (int)part.top; y <= (int)part.bottom; y++) {
		for (int x = (int)part.left; x <= (int)part.right; x++) {
			auto* row = (const unsigned char*)picture.Bits() + (ptrdiff_t)y * picture.BytesPerRow();
			text += row[4 * x] > 128 ? '#' : '.';
		}
		text += '\n';
	}
	return text;
}

}


// Level and upright lines: their round ends lie exactly between pixels.
TEST(thick_stroke, takes_the_same_pixels_in_a_view_that_begins_outside_of_its_bitmap)
{
	const std::vector<line> lines = {{{26, 88}, {46, 88}, {7, 76}}, {{55, 75}, {53, 75}, {26, 47}},
		{{51, 82.5F}, {51, 84}, {36, 66}}, {{46, 87}, {46, 102}, {33, 73}},
		{{28, 122}, {28, 115.5F}, {16, 94}}, {{62, 84}, {62, 87}, {35, 56}},
		{{83, 64}, {83, 46.5F}, {51, 30}}, {{23, 99}, {34.5F, 99}, {11, 72}},
		{{42, 88}, {42, 94}, {20, 69}}, {{36, 111}, {36, 104}, {26, 91}},
		{{35, 112.5F}, {35, 119}, {24, 87}}, {{45, 69}, {45, 53}, {29, 30}}};
	for (const line& each : lines) {
		const BRect part(each.corner, each.corner + BPoint(60, 60));
		const std::string whole = painted(each, BPoint(0, 0), part);
		EXPECT_EQ(
			painted(each, BPoint(-each.corner.x, -each.corner.y), BRect(0, 0, 60, 60)), whole);
		EXPECT_NE(whole.find("##"), std::string::npos);
	}
}


TEST(thick_stroke, keeps_its_pattern_to_the_view)
{
	const line slanting = {{10, 10}, {50, 31}, {0, 0}};
	const std::string there = painted(slanting, BPoint(0, 0), BRect(0, 0, 60, 60), B_MIXED_COLORS);
	for (BPoint by : {BPoint(1, 0), BPoint(3, 5), BPoint(8, 7)}) {
		const BRect part(by, by + BPoint(60, 60));
		EXPECT_EQ(painted(slanting, by, part, B_MIXED_COLORS), there);
	}
	EXPECT_NE(there, painted(slanting, BPoint(0, 0), BRect(0, 0, 60, 60)));
}
