// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The tools that are dragged from corner to corner.
#include "draw/object.h"
#include "program/outline_user.h"

static const int16 empty = 0;
static const int16 square = 1;
static const int16 composite = 3;


static std::string
drawn(uint32 tool, BPoint from, BPoint to)
{
	std::string outline;
	at_outline(empty, [&](outline_user& user) {
		user.take(tool);
		user.press(from);
		user.move({70, 70});
		user.move(to);
		user.release(to);
		outline = user.outline();
		EXPECT_EQ(user.state(), 0);
		EXPECT_TRUE(user.looks_fresh());
	});
	return outline;
}


// What is being drawn: its kind, state and points; with none, nothing.
static std::string
object_in(outline_user& user)
{
	std::string text;
	looking(user.app, [&] {
		if (cur_object == nullptr)
			return;
		char part[64];
		snprintf(part, sizeof part, "%02x %d:", cur_object->kind, cur_object->state);
		text = part;
		for (int32 i = 0; i < cur_object->num; i++) {
			snprintf(part, sizeof part, " %g,%g", cur_object->pts[i].x, cur_object->pts[i].y);
			text += part;
		}
	});
	return text;
}


TEST(outline_tools, a_rectangle_has_the_corners_of_the_drag_in_its_direction)
{
	EXPECT_EQ(drawn(msg_rect, {10, 20}, {50, 45}), "10,20 50,20 50,45 10,45");
	EXPECT_EQ(drawn(msg_rect, {50, 20}, {10, 45}), "50,20 10,20 10,45 50,45");
	EXPECT_EQ(drawn(msg_rect, {10, 45}, {50, 20}), "10,45 50,45 50,20 10,20");
	EXPECT_EQ(drawn(msg_rect, {50, 45}, {10, 20}), "50,45 10,45 10,20 50,20");
}


TEST(outline_tools, an_ellipse_has_eight_control_points_in_the_direction_of_the_drag)
{
	EXPECT_EQ(drawn(msg_ellipse, {10, 10}, {50, 30}),
		"21.7157,10* 38.2843,10* 50,15.8579* 50,24.1421* 38.2843,30* 21.7157,30* 10,24.1421* "
		"10,15.8579*");
	EXPECT_EQ(drawn(msg_ellipse, {50, 10}, {10, 30}),
		"38.2843,10* 21.7157,10* 10,15.8579* 10,24.1421* 21.7157,30* 38.2843,30* 50,24.1421* "
		"50,15.8579*");
}


TEST(outline_tools, the_direction_of_the_drag_gives_the_colour)
{
	at_outline(empty, [](outline_user& user) {
		user.take(msg_rect);
		user.drag({10, 20}, {50, 45});
		user.drag({100, 20}, {60, 45});
		EXPECT_EQ(
			user.hand.pixel(user.place({30, 20}) - BPoint(0, 2)), (rgb_color{255, 255, 255, 255}));
		EXPECT_EQ(
			user.hand.pixel(user.place({80, 20}) - BPoint(0, 2)), (rgb_color{100, 100, 255, 255}));
	});
}


TEST(outline_tools, a_press_makes_the_object_of_the_tool_and_a_release_ends_it)
{
	at_outline(square, [](outline_user& user) {
		user.take(msg_rect);
		EXPECT_EQ(object_in(user), "");
		user.press({70, 20});
		EXPECT_EQ(object_in(user), "30 1: 70,20 70,20 70,20 70,20");
		EXPECT_EQ(user.state(), -1);
		user.move({90, 30});
		EXPECT_EQ(object_in(user), "30 1: 70,20 90,20 90,30 70,30");
		user.release({90, 30});
		EXPECT_EQ(object_in(user), "");
		EXPECT_EQ(user.state(), 0);
		EXPECT_EQ(user.outline(), "20,20 60,20 60,60 20,60 | 70,20 90,20 90,30 70,30");
		EXPECT_EQ(user.selection(), "0 0");
		user.take(msg_ellipse);
		user.press({70, 20});
		EXPECT_EQ(object_in(user), "40 1: 70,20 70,20 70,20 70,20");
		user.release({90, 30});
		EXPECT_EQ(object_in(user), "");
	});
}


TEST(outline_tools, a_rectangle_grows_with_its_preview_and_leaves_nothing_of_it)
{
	at_outline(square, [](outline_user& user) {
		user.take(msg_rect);
		user.press({30, 30});
		for (BPoint to : {BPoint(90, 90), BPoint(10, 10), BPoint(0, 127), BPoint(127, 0)}) {
			user.move(to);
			EXPECT_TRUE(user.looks_fresh());
		}
		user.release({70, 70});
		EXPECT_TRUE(user.looks_fresh());
	});
}


TEST(outline_tools, an_ellipse_grows_with_its_preview_and_leaves_nothing_of_it)
{
	at_outline(square, [](outline_user& user) {
		user.take(msg_ellipse);
		user.press({30, 30});
		for (BPoint to : {BPoint(90, 90), BPoint(10, 10), BPoint(0, 127), BPoint(127, 0)}) {
			user.move(to);
			EXPECT_TRUE(user.looks_fresh());
		}
		user.release({70, 70});
		EXPECT_TRUE(user.looks_fresh());
	});
}


TEST(outline_tools, a_click_makes_a_contour_of_one_place)
{
	at_outline(empty, [](outline_user& user) {
		user.take(msg_rect);
		user.click({30, 40});
		EXPECT_EQ(user.outline(), "30,40 30,40 30,40 30,40");
		EXPECT_EQ(user.state(), 0);
	});
}


TEST(outline_tools, a_press_outside_the_canvas_makes_no_object)
{
	at_outline(empty, [](outline_user& user) {
		user.set_scale(2);
		for (uint32 tool : {msg_free, msg_rect, msg_ellipse, msg_polygon, msg_round}) {
			user.take(tool);
			user.press({140, 20});
			EXPECT_EQ(object_in(user), "");
			user.move({60, 60});
			user.release({60, 60});
			EXPECT_EQ(object_in(user), "");
			EXPECT_EQ(user.state(), 0);
		}
		EXPECT_EQ(user.outline(), "");
	});
}


TEST(outline_tools, a_drag_stands_still_outside_the_canvas_and_ends_where_it_is_let_go)
{
	at_outline(empty, [](outline_user& user) {
		user.set_scale(2);
		user.take(msg_rect);
		user.press({10, 20});
		user.move({100, 90});
		user.move({150, 160});
		EXPECT_EQ(object_in(user), "30 1: 10,20 100,20 100,90 10,90");
		user.release({150, 160});
		EXPECT_EQ(user.outline(), "10,20 150,20 150,160 10,160");
		EXPECT_TRUE(user.looks_fresh());
	});
}


TEST(outline_tools, any_button_draws)
{
	at_outline(empty, [](outline_user& user) {
		user.take(msg_rect);
		user.press({10, 20}, B_TERTIARY_MOUSE_BUTTON);
		user.move({30, 30});
		user.release({30, 30}, B_TERTIARY_MOUSE_BUTTON);
		user.drag({50, 20}, {70, 30}, B_COMMAND_KEY);
		EXPECT_EQ(user.outline(), "10,20 30,20 30,30 10,30 | 50,20 70,20 70,30 50,30");
	});
}


TEST(outline_tools, a_shift_press_starts_no_rectangle_and_the_next_press_does)
{
	at_outline(empty, [](outline_user& user) {
		user.take(msg_rect);
		user.drag({10, 20}, {30, 30}, B_SHIFT_KEY);
		EXPECT_EQ(user.outline(), "");
		EXPECT_EQ(object_in(user), "30 0: 0,0 0,0 0,0 0,0");
		user.drag({10, 20}, {30, 30});
		EXPECT_EQ(user.outline(), "10,20 30,20 30,30 10,30");
		EXPECT_TRUE(user.looks_fresh());
	});
}


TEST(outline_tools, another_tool_drops_what_is_being_drawn)
{
	at_outline(square, [](outline_user& user) {
		user.take(msg_rect);
		user.press({70, 20});
		user.move({90, 30});
		user.take(msg_ellipse);
		EXPECT_EQ(object_in(user), "");
		EXPECT_EQ(user.state(), 0);
		EXPECT_TRUE(user.looks_fresh());
		user.move({95, 40});
		user.release({95, 40});
		EXPECT_EQ(user.outline(), "20,20 60,20 60,60 20,60");
		EXPECT_TRUE(user.looks_fresh());
	});
}


TEST(outline_tools, another_glyph_drops_what_is_being_drawn)
{
	at_outline(square, [](outline_user& user) {
		user.take(msg_rect);
		user.press({70, 20});
		user.move({90, 30});
		user.choose(empty);
		EXPECT_EQ(object_in(user), "");
		user.release({95, 40});
		EXPECT_EQ(user.outline(), "");
		EXPECT_TRUE(user.looks_fresh());
	});
}


TEST(outline_tools, nothing_is_drawn_in_a_composite)
{
	at_outline(composite, [](outline_user& user) {
		for (uint32 tool : {msg_free, msg_rect, msg_ellipse, msg_polygon, msg_round}) {
			user.take(tool);
			user.drag({2, 2}, {10, 10});
		}
		EXPECT_EQ(user.outline(), "20,20 60,20 60,60 20,60 | 85,80 105,80* 105,100 85,100*");
	});
}
