// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// A pen at the canvas: what it tells, and where it is.
#include "app/kernixwindow.h"
#include "program/outline_user.h"

static const int16 square = 1;
static const int16 three_squares = 2;

static constexpr uint16 has_place = 0x0001;
static constexpr uint16 has_tilt = 0x0002;
static constexpr uint16 has_pressure = 0x0004;
static constexpr uint16 has_eraser = 0x0008;
static constexpr uint16 has_mouse = 0x0330;


static struct input
record(outline_user& user)
{
	struct input found = {};
	looking(user.app, [&] { found = user.app.window->input; });
	return found;
}


TEST(outline_input, a_pen_tells_pressure_tilt_and_end)
{
	at_outline(square, [](outline_user& user) {
		// The canvas starts at (50, 53).
		user.hand.pen_down(BPoint(60.5f, 73.25f), {.pressure = 0.75f, .tilt_x = 30, .tilt_y = -15});
		struct input pen = record(user);
		EXPECT_EQ(pen.flags, has_place | has_tilt | has_pressure | has_eraser | has_mouse);
		EXPECT_EQ(pen.where, BPoint(10.5f, 20.25f));
		EXPECT_EQ(pen.pressure, 0.75f);
		EXPECT_EQ(pen.tilt_x, 0.5f);
		EXPECT_EQ(pen.tilt_y, -0.25f);
		EXPECT_EQ(pen.eraser, 0);
		EXPECT_EQ(pen.buttons, 1);
		user.hand.pen_up(BPoint(60.5f, 73.25f), {.tilt_x = 30});
	});
}


TEST(outline_input, the_other_end_of_a_pen_is_the_eraser)
{
	at_outline(square, [](outline_user& user) {
		user.hand.pen_down(BPoint(60, 73), {.pressure = 0.5f, .eraser = true});
		EXPECT_EQ(record(user).eraser, 1);
		EXPECT_EQ(record(user).flags & has_eraser, has_eraser);
		user.hand.pen_up(BPoint(60, 73), {.eraser = true});
		EXPECT_EQ(record(user).eraser, 1);
		EXPECT_EQ(record(user).buttons, 0);
	});
}


TEST(outline_input, a_pen_edits_as_the_mouse_does)
{
	at_outline(three_squares, [](outline_user& user) {
		BPoint within = user.place({56, 16});
		user.hand.pen_down(within, {.pressure = 0.5f});
		user.hand.pen_up(within, {});
		EXPECT_EQ(user.selection(), "0 -1 0");
		user.hand.pen_down(within, {.pressure = 0.5f});
		EXPECT_EQ(user.state(), 2);
		user.hand.pen_move(user.place({58, 19}), {.pressure = 0.25f});
		user.hand.pen_up(user.place({58, 19}), {});
		EXPECT_EQ(user.outline(),
			"8,8 24,8 24,24 8,24 | 50,11 66,11 66,27 50,27 | 88,8 104,8 104,24 88,24");
	});
}


TEST(outline_input, a_place_is_cut_to_whole_units_after_the_scale)
{
	at_outline(square, [](outline_user& user) {
		user.set_scale(0.5f);
		user.hand.pen_down(BPoint(50 + 40.75f, 53 + 20.25f), {.pressure = 0.5f});
		EXPECT_EQ(user.edit(&glyfeditview::anchor_point), BPoint(81, 40));
		user.hand.pen_move(BPoint(50 + 30.25f, 53 + 10.9f), {.pressure = 0.5f});
		EXPECT_EQ(user.edit(&glyfeditview::last_point), BPoint(60, 21));
		user.hand.pen_up(BPoint(50 + 30.25f, 53 + 10.9f), {});
	});
}


TEST(outline_input, a_place_is_cut_toward_zero)
{
	at_outline(square, [](outline_user& user) {
		user.hand.press(BPoint(50 + 83, 53 + 40));
		EXPECT_EQ(user.edit(&glyfeditview::anchor_point), BPoint(20, 10));
		user.hand.move(BPoint(47, 53));
		EXPECT_EQ(user.edit(&glyfeditview::last_point), BPoint(0, 0));
		EXPECT_EQ(user.edit(&glyfeditview::band_rect), BRect(20, 10, 0, 0));
		user.hand.move(BPoint(46, 53));
		EXPECT_EQ(user.edit(&glyfeditview::last_point), BPoint(-1, 0));
		user.hand.release(BPoint(46, 53));
	});
}


TEST(outline_input, moves_within_a_unit_are_none)
{
	at_outline(square, [](outline_user& user) {
		user.click({40, 40});
		user.hand.press(BPoint(50 + 160, 53 + 160));
		user.hand.move(BPoint(50 + 163, 53 + 163));
		EXPECT_EQ(user.outline(), "20,20 60,20 60,60 20,60");
		user.hand.move(BPoint(50 + 164, 53 + 163));
		EXPECT_EQ(user.outline(), "21,20 61,20 61,60 21,60");
		user.hand.release(BPoint(50 + 164, 53 + 163));
	});
}


TEST(outline_input, a_scrolled_canvas_is_pressed_where_it_has_come_to)
{
	at_outline(square, [](outline_user& user) {
		user.set_scale(8);
		user.hand.drag_scroll_bar(B_HORIZONTAL, 80);
		user.hand.drag_scroll_bar(B_VERTICAL, 160);
		user.hand.press(BPoint(50 + 8, 53 + 16));
		EXPECT_EQ(user.edit(&glyfeditview::anchor_point), BPoint(11, 22));
		user.hand.release(BPoint(50 + 8, 53 + 16));
	});
}
