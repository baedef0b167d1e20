// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// What the bitmap editor shows: cells, outline and metric lines in the em square.
#include "program/bitmap_user.h"

#include <Bitmap.h>
#include <Font.h>
#include <gtest/gtest.h>
#include <QImage>
#include <View.h>

static const rgb_color black = {0, 0, 0, 255};
static const rgb_color white = {255, 255, 255, 255};
static const rgb_color square_grey = {50, 50, 50, 255};
static const rgb_color box_grey = {100, 100, 100, 255};
static const rgb_color red = {255, 0, 0, 255};
static const rgb_color green = {0, 255, 0, 255};
static const rgb_color cyan = {0, 255, 255, 255};
static const rgb_color dark_green = {0, 191, 0, 255};
static const rgb_color dark_cyan = {0, 191, 191, 255};


// A rectangle of the edit view, in the window.
static BRect
editor_rect(float left, float top, float right, float bottom)
{
	return BRect(in_editor(left, top), in_editor(right, bottom));
}


static int
count_all(robot& user, rgb_color color)
{
	return user.count(editor_rect(0, 0, 511, 511), color);
}


// How many pixels of the column have this colour, from the top of the em to its bottom; -1 when
// there are others of it beside the column.
static int
in_column(robot& user, float x, rgb_color color)
{
	int count = user.count(editor_rect(x, 100, x, 399), color);
	return count == count_all(user, color) ? count : -1;
}


// "A", or another glyph, at 12 pixels per em.
static void
show(robot& user, const char* glyph = "1")
{
	user.choose_menu_field(strike_menu, "12");
	enter(user, gno_field, glyph);
}


TEST(bitmap_display, is_an_empty_em_square_at_first)
{
	at_bitmaps(font_of(two_sizes()), [](kernix&, robot& user) {
		EXPECT_EQ(count_all(user, square_grey), 4 * 299);
		EXPECT_EQ(count_all(user, black), 512 * 512 - 4 * 299);
		EXPECT_EQ(user.pixel(in_editor(100, 100)), square_grey);
		EXPECT_EQ(user.pixel(in_editor(399, 399)), square_grey);
	});
}


TEST(bitmap_display, shows_ink_as_white_cells_in_a_grey_box)
{
	at_bitmaps(font_of(two_sizes()).with("glyf", ""), [](kernix&, robot& user) {
		show(user);
		// The box from (125, 175) to (199, 249); the lines of metrics cover its left edge and, with
		// every other pixel, the middle of the third column.
		EXPECT_EQ(count_all(user, box_grey), 4 * 74 - 75 - 2);
		EXPECT_EQ(user.pixel(in_editor(126, 176)), white);
		EXPECT_EQ(user.pixel(in_editor(149, 199)), white);
		EXPECT_EQ(user.pixel(in_editor(150, 199)), black);
		EXPECT_EQ(user.pixel(in_editor(150, 200)), white);
		EXPECT_EQ(user.pixel(in_editor(174, 224)), white);
		EXPECT_EQ(user.pixel(in_editor(176, 224)), black);
		EXPECT_EQ(user.pixel(in_editor(176, 225)), white);
	});
}


TEST(bitmap_display, has_the_outline_over_the_pixels)
{
	at_bitmaps(font_of(two_sizes()), [](kernix&, robot& user) {
		show(user);
		// The base of the triangle, but for the four lines that cross it.
		EXPECT_EQ(user.count(editor_rect(100, 399, 399, 399), red), 296);
		EXPECT_EQ(user.pixel(in_editor(101, 399)), red);
		EXPECT_EQ(user.pixel(in_editor(398, 399)), red);
		EXPECT_NEAR(count_all(user, red), 296 + 2 * 300, 20);
		EXPECT_EQ(user.count(editor_rect(0, 0, 99, 511), red), 0);
	});
}


TEST(bitmap_display, has_the_lines_of_the_bitmap_and_those_of_the_outline)
{
	at_bitmaps(font_of(two_sizes()), [](kernix&, robot& user) {
		show(user);
		// 1 and 11 of 12 pixels.
		EXPECT_EQ(in_column(user, 125, green), 300);
		EXPECT_EQ(in_column(user, 375, cyan), 300);
		// 128 and 256 of 512 units, every other pixel.
		EXPECT_EQ(in_column(user, 175, dark_green), 150);
		EXPECT_EQ(user.count(editor_rect(175, 100, 175, 399), black), 150);
		EXPECT_EQ(in_column(user, 250, dark_cyan), 150);
		EXPECT_EQ(user.count(editor_rect(250, 100, 250, 399), black), 150);
	});
}


TEST(bitmap_display, has_bearings_left_of_the_em)
{
	strikes left;
	left.size(12, 12).placed(-2, 9, 12).images(1, 1, 7, {{"##"}});
	at_bitmaps(
		font_of(left).with("hmtx", "0200 0000 0200 ff80 0000 0000 0000"), [](kernix&, robot& user) {
			show(user);
			EXPECT_EQ(in_column(user, 50, green), 300);
			EXPECT_EQ(in_column(user, 400, cyan), 300);
			EXPECT_EQ(in_column(user, 25, dark_green), 150);
		});
}


TEST(bitmap_display, of_a_glyph_without_a_bitmap_says_so)
{
	at_bitmaps(font_of(two_sizes()), [](kernix&, robot& user) {
		show(user, "0");
		BBitmap bitmap(BRect(0, 0, 299, 299), B_RGB32, true);
		auto* view = new BView(bitmap.Bounds(), "expected", B_FOLLOW_NONE, B_WILL_DRAW);
		bitmap.Lock();
		bitmap.AddChild(view);
		view->SetFont(be_bold_font);
		view->SetHighColor(black);
		view->FillRect(view->Bounds());
		view->SetHighColor(white);
		view->SetLowColor(black);
		view->DrawString("Undefined", BPoint(119.6f, 119.6f));
		view->Sync();
		bitmap.Unlock();
		QImage expected(
			(const uchar*)bitmap.Bits(), 300, 300, bitmap.BytesPerRow(), QImage::Format_RGB32);
		QImage seen = user.picture().copy(150, 153, 300, 300);
		// The lines of the outline stand at the edges: glyph 0 has no bearing and is an em wide.
		EXPECT_EQ(seen.copy(1, 1, 298, 298).convertToFormat(QImage::Format_RGB32),
			expected.copy(1, 1, 298, 298));
		EXPECT_GT(count_all(user, white), 0);
		EXPECT_EQ(count_all(user, green), 0);
		EXPECT_EQ(count_all(user, cyan), 0);
	});
}


TEST(bitmap_display, without_metrics_lacks_the_lines_of_the_outline)
{
	at_bitmaps(font_of(two_sizes()).without("hmtx"), [](kernix&, robot& user) {
		show(user);
		EXPECT_EQ(count_all(user, dark_green), 0);
		EXPECT_EQ(count_all(user, dark_cyan), 0);
		EXPECT_EQ(in_column(user, 125, green), 300);
		EXPECT_GT(count_all(user, red), 500);
	});
}


// Without full records the advance is 0 and the bearing of glyph 1 the table's second word.
TEST(bitmap_display, without_hhea_takes_the_bearings_that_follow)
{
	at_bitmaps(
		font_of(two_sizes()).without("hhea").with("hmtx", "0000 0080"), [](kernix&, robot& user) {
			show(user);
			EXPECT_EQ(in_column(user, 175, dark_green), 150);
			EXPECT_EQ(in_column(user, 100, dark_cyan), 150);
		});
}


TEST(bitmap_display, without_outlines_lacks_the_guide)
{
	for (const char* missing : {"glyf", "loca", "maxp"}) {
		at_bitmaps(font_of(two_sizes()).without(missing), [](kernix&, robot& user) {
			user.choose_menu_field(strike_menu, "12");
			enter(user, chr_field, "41");
			EXPECT_EQ(count_all(user, red), 0);
			EXPECT_EQ(in_column(user, 125, green), 300);
			EXPECT_EQ(user.pixel(in_editor(140, 190)), white);
		});
	}
}


TEST(bitmap_display, without_an_em_lacks_the_lines_of_the_outline)
{
	at_bitmaps(font_of(two_sizes()).without("head"), [](kernix&, robot& user) {
		show(user);
		EXPECT_EQ(count_all(user, dark_green), 0);
		EXPECT_EQ(in_column(user, 125, green), 300);
	});
}


TEST(bitmap_display, of_a_size_of_no_pixels_has_only_the_guides)
{
	strikes flat;
	flat.size(12, 0).images(1, 1, 7, {{"##"}});
	at_bitmaps(font_of(flat), [](kernix&, robot& user) {
		user.choose_menu_field(strike_menu, "0");
		enter(user, gno_field, "1");
		EXPECT_EQ(count_all(user, white), 0);
		EXPECT_EQ(count_all(user, green), 0);
		EXPECT_EQ(count_all(user, cyan), 0);
		EXPECT_EQ(in_column(user, 175, dark_green), 150);
		EXPECT_GT(count_all(user, red), 500);
	});
}


TEST(bitmap_display, follows_each_press)
{
	at_bitmaps(font_of(two_sizes()), [](kernix&, robot& user) {
		show(user);
		EXPECT_EQ(user.pixel(in_editor(160, 185)), black);
		user.click(in_editor(160, 185));
		EXPECT_EQ(user.pixel(in_editor(160, 185)), white);
		user.click(in_editor(160, 185));
		EXPECT_EQ(user.pixel(in_editor(160, 185)), black);
	});
}
