// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The preview on the panel of hmtx: outline, lines, sliders.
#include "font/ttf_head.h"
#include "outline/glyph.h"
#include "program/hmtx_user.h"
#include "support/opened.h"

#include <gtest/gtest.h>
#include <QImage>
#include <Slider.h>

static const rgb_color grey = {50, 50, 50, 255};
static const rgb_color green = {0, 255, 0, 255};
static const rgb_color cyan = {0, 255, 255, 255};
static const rgb_color white = {255, 255, 255, 255};
static const rgb_color black = {0, 0, 0, 255};
static const rgb_color bluish = {100, 100, 255, 255};

// Window pixels: all above the controls, and the square without its edges.
static const BRect upper(0, 53, 561, 492);
static const BRect inside(101, 154, 398, 451);


// From which column to which the panel's upper part has this colour, and how many pixels of it:
// "100-100: 300".
static std::string
columns(robot& user, rgb_color color)
{
	QImage image = user.picture();
	QRgb wanted = qRgb(color.red, color.green, color.blue);
	int first = -1;
	int last = -1;
	int count = 0;
	for (int x = 0; x < 562; x++) {
		for (int y = 53; y < 493; y++) {
			if ((image.pixel(x, y) | 0xFF000000) != wanted)
				continue;
			first = first < 0 ? x : first;
			last = x;
			count++;
		}
	}
	return first < 0
		? "none"
		: std::to_string(first) + "-" + std::to_string(last) + ": " + std::to_string(count);
}


// The columns of the pixels of this colour in one row of the panel.
static std::vector<int>
in_row(robot& user, int row, rgb_color color)
{
	QImage image = user.picture();
	QRgb wanted = qRgb(color.red, color.green, color.blue);
	std::vector<int> found;
	for (int x = 0; x < 562; x++) {
		if ((image.pixel(x, row + 53) | 0xFF000000) == wanted)
			found.push_back(x);
	}
	return found;
}


TEST(hmtx_preview, is_an_empty_square_at_first)
{
	at_hmtx(five_glyphs(), [](kernix&, robot& user) {
		EXPECT_EQ(columns(user, grey), "100-399: 1196");
		EXPECT_EQ(in_row(user, 99, grey).size(), 0u);
		EXPECT_EQ(in_row(user, 100, grey).size(), 300u);
		EXPECT_EQ(in_row(user, 250, grey), (std::vector<int>{100, 399}));
		EXPECT_EQ(in_row(user, 399, grey).size(), 300u);
		EXPECT_EQ(user.count(upper, black), 562 * 440 - 1196);
	});
}


TEST(hmtx_preview, shows_the_outline_of_the_glyph_and_its_two_lines)
{
	at_hmtx(five_glyphs(), [](kernix&, robot& user) {
		enter(user, first_glyph, "1");
		EXPECT_EQ(columns(user, green), "119-119: 300");
		EXPECT_EQ(columns(user, cyan), "401-401: 300");
		EXPECT_EQ(columns(user, white), "none");
		// The bearing's line crosses the base.
		EXPECT_EQ(in_row(user, 399, bluish).size(), 299u);
		std::vector<int> sides = in_row(user, 250, bluish);
		ASSERT_EQ(sides.size(), 2u);
		EXPECT_NEAR(sides[0], 174.35, 1);
		EXPECT_NEAR(sides[1], 324.35, 1);
		std::vector<int> apex = in_row(user, 100, bluish);
		ASSERT_GE(apex.size(), 1u);
		EXPECT_NEAR(apex[0], 249.2, 1);
	});
}


TEST(hmtx_preview, of_an_empty_glyph_has_the_lines_alone)
{
	at_hmtx(five_glyphs(), [](kernix&, robot& user) {
		enter(user, first_glyph, "1");
		enter(user, first_glyph, "0");
		EXPECT_EQ(columns(user, white), "none");
		EXPECT_EQ(columns(user, bluish), "none");
		EXPECT_EQ(columns(user, green), "109-109: 300");
		EXPECT_EQ(columns(user, cyan), "251-251: 300");
	});
}


TEST(hmtx_preview, is_the_same_after_a_number_that_is_no_glyphs)
{
	at_hmtx(five_glyphs(), [](kernix&, robot& user) {
		enter(user, first_glyph, "1");
		QImage before = user.picture().copy(0, 53, 562, 440);
		enter(user, first_glyph, "5");
		EXPECT_EQ(user.picture().copy(0, 53, 562, 440), before);
	});
}


TEST(hmtx_preview, draws_a_bearing_below_0_left_of_the_square)
{
	at_hmtx(five_glyphs(), [](kernix&, robot& user) {
		enter(user, first_glyph, "2");
		// 100 - 300 * 16 / 512.
		EXPECT_EQ(columns(user, green), "91-91: 300");
	});
}


TEST(hmtx_preview, draws_a_contour_that_turns_the_other_way_white)
{
	font_file font = five_glyphs().with("glyf",
		"0001 0000 0000 01ff 01ff 0002 0000 01 01 01"
		"0000 00ff 0100 0000 01ff fe01 00 00 00");
	at_hmtx(font, [](kernix&, robot& user) {
		enter(user, first_glyph, "1");
		EXPECT_EQ(columns(user, bluish), "none");
		EXPECT_EQ(in_row(user, 399, white).size(), 299u);
	});
}


TEST(hmtx_preview, draws_the_own_contours_of_a_composite_without_frames)
{
	// Glyph 2 is glyph 1 where it is. All lines lie outside.
	octets glyf = tiny_font().table("glyf");
	octets composite = hex("ffff 0000 0000 01ff 01ff 0000 0001 00 00");
	glyf.insert(glyf.end(), composite.begin(), composite.end());
	font_file font = five_glyphs()
						 .with("glyf", glyf)
						 .with("loca", "00000000 00000000 00000020 00000030 00000030 00000030")
						 .with("hmtx", "0303 fff0 0303 fff0 0303 fff0 fff6 0014");
	at_hmtx(font, [](kernix&, robot& user) {
		enter(user, first_glyph, "1");
		EXPECT_GT(user.count(inside, bluish), 500);
		QImage simple = user.picture().copy(0, 53, 562, 440);
		enter(user, first_glyph, "2");
		EXPECT_EQ(user.picture().copy(0, 53, 562, 440), simple);
	});
}


TEST(hmtx_slider, moves_its_line_and_rewrites_the_width)
{
	at_hmtx(five_glyphs(), [](kernix& app, robot& user) {
		enter(user, first_glyph, "1");
		press_on_slider(app, user, "left", Qt::Key_Home);
		press_on_slider(app, user, "left", Qt::Key_Right);
		int outline = user.count(inside, bluish);
		press_on_slider(app, user, "right", Qt::Key_Home);
		EXPECT_EQ(metric_fields(user), "0001 0001 0000 fe01");
		EXPECT_EQ(columns(user, cyan), "100-100: 300");
		press_on_slider(app, user, "right", Qt::Key_Right);
		EXPECT_EQ(metric_fields(user), "0001 0001 0001 fe01");
		press_on_slider(app, user, "right", Qt::Key_End);
		EXPECT_EQ(metric_fields(user), "0001 0001 0400 fe01");
		EXPECT_EQ(columns(user, cyan), "none");
		EXPECT_EQ(user.count(inside, bluish), outline);
		EXPECT_EQ(hmtx_octets(app), hex(three_and_two));
	});
}


TEST(hmtx_slider, moves_its_line_and_rewrites_the_bearing)
{
	at_hmtx(five_glyphs(), [](kernix& app, robot& user) {
		enter(user, first_glyph, "1");
		press_on_slider(app, user, "left", Qt::Key_End);
		EXPECT_EQ(metric_fields(user), "0001 0001 0202 0200");
		EXPECT_EQ(columns(user, green), "400-400: 300");
		int outline = user.count(inside, bluish);
		press_on_slider(app, user, "left", Qt::Key_Left);
		EXPECT_EQ(metric_fields(user), "0001 0001 0202 01ff");
		press_on_slider(app, user, "left", Qt::Key_Home);
		EXPECT_EQ(metric_fields(user), "0001 0001 0202 fe00");
		EXPECT_EQ(columns(user, green), "none");
		EXPECT_EQ(user.count(inside, bluish), outline);
		EXPECT_EQ(hmtx_octets(app), hex(three_and_two));
	});
}


TEST(hmtx_slider, follows_the_pointer)
{
	at_hmtx(five_glyphs(), [](kernix& app, robot& user) {
		enter(user, first_glyph, "1");
		drag_slider(user, "right", 300);
		int32 width = stand_of(app)[1];
		EXPECT_NEAR(width, 300, 6);
		char fields[40];
		snprintf(fields, sizeof fields, "0001 0001 %04x 0020", width);
		EXPECT_EQ(metric_fields(user), fields);
		EXPECT_EQ(user.count(BRect(101, 154, 260, 451), cyan), 0);
		EXPECT_EQ(user.count(BRect(270, 153, 282, 452), cyan), 300);
	});
}


TEST(hmtx_slider, gives_the_number_that_is_stored_then)
{
	at_hmtx(five_glyphs(), [](kernix& app, robot& user) {
		enter(user, first_glyph, "1");
		press_on_slider(app, user, "left", Qt::Key_Home);
		press_on_slider(app, user, "right", Qt::Key_End);
		user.click(set_button);
		EXPECT_EQ(hmtx_octets(app), hex("0101 0010 0400 fe00 0303 fff0 fff6 0014"));
	});
}


TEST(hmtx_slider, that_only_ends_before_the_number_leaves_its_field_alone)
{
	font_file font = five_glyphs().with("hmtx", "0101 0010 ffff 8000 0303 fff0 fff6 0014");
	at_hmtx(font, [](kernix& app, robot& user) {
		enter(user, first_glyph, "1");
		EXPECT_EQ(metric_fields(user), "0001 0001 ffff 8000");
		EXPECT_EQ(stand_of(app), (std::vector<int32>{-512, 1024}));
		press_on_slider(app, user, "left", Qt::Key_Right);
		EXPECT_EQ(metric_fields(user), "0001 0001 ffff fe01");
		user.click(set_button);
		EXPECT_EQ(part(hmtx_octets(app), 4, 4), hex("ffff fe01"));
	});
}


TEST(hmtx_preview, is_decoded_anew_after_storing)
{
	at_hmtx(five_glyphs(), [](kernix& app, robot& user) {
		enter(user, first_glyph, "1");
		EXPECT_GT(user.count(inside, bluish), 0);
		looking(app, [&] {
			glyph empty(1);
			EXPECT_EQ(curttf->set_glyph(1, &empty), 0);
		});
		user.click(set_button);
		EXPECT_EQ(user.count(inside, bluish), 0);
		EXPECT_EQ(columns(user, green), "119-119: 300");
	});
}


TEST(hmtx_preview, reads_the_units_per_em_at_every_drawing)
{
	at_hmtx(five_glyphs(), [](kernix& app, robot& user) {
		enter(user, first_glyph, "1");
		looking(app, [&] { curttf->head->put16(18, 256); });
		user.click(set_button);
		EXPECT_EQ(columns(user, green), "137-137: 300");
	});
}


TEST(hmtx_preview, of_a_font_without_head_has_no_lines)
{
	at_hmtx(five_glyphs().without("head"), 3, [](kernix&, robot& user) {
		enter(user, first_glyph, "1");
		EXPECT_EQ(metric_fields(user), "0001 0001 0202 0020");
		EXPECT_EQ(columns(user, green), "none");
		EXPECT_EQ(columns(user, cyan), "none");
		EXPECT_EQ(columns(user, grey), "100-399: 1196");
	});
}
