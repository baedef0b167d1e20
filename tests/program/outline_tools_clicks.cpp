// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The tools that fix a point at each click.
#include "draw/object.h"
#include "program/outline_user.h"

static const int16 empty = 0;
static const int16 square = 1;

// Both, and whether their points are control points.
struct click_tool {
	uint32 message;
	const char* mark;
	int kind;
};
static const click_tool click_tools[] = {{msg_polygon, "", 0x50}, {msg_round, "*", 0x51}};


static void
with_both(int16 glyph, const std::function<void(outline_user&, const click_tool&)>& work)
{
	for (const click_tool& tool : click_tools) {
		at_outline(glyph, [&](outline_user& user) {
			user.take(tool.message);
			work(user, tool);
		});
	}
}


// The contour of these points with the tool's mark behind each.
static std::string
of(const click_tool& tool, std::initializer_list<const char*> points)
{
	std::string text;
	for (const char* point : points)
		text += (text.empty() ? "" : " ") + std::string(point) + tool.mark;
	return text;
}


TEST(outline_tools, clicks_make_a_contour_that_a_click_on_the_last_finishes)
{
	with_both(empty, [](outline_user& user, const click_tool& tool) {
		for (BPoint at : {BPoint(10, 10), BPoint(50, 10), BPoint(50, 40), BPoint(50, 40)})
			user.click(at);
		EXPECT_EQ(user.outline(), of(tool, {"10,10", "50,10", "50,40"}));
		EXPECT_EQ(points_in(user), "none");
		EXPECT_EQ(user.state(), 0);
		EXPECT_EQ(user.selection(), "0");
		EXPECT_TRUE(user.looks_fresh());
	});
}


TEST(outline_tools, one_object_lives_from_the_first_click_to_the_last)
{
	with_both(empty, [](outline_user& user, const click_tool& tool) {
		user.click({10, 10});
		EXPECT_EQ(points_in(user), "1: 10,10 10,10");
		EXPECT_EQ(user.state(), -1);
		looking(user.app, [&] { EXPECT_EQ(cur_object->kind, tool.kind); });
		user.click({50, 10});
		EXPECT_EQ(points_in(user), "2: 10,10 50,10 50,10");
		EXPECT_EQ(user.state(), -1);
	});
}


TEST(outline_tools, a_click_two_units_from_the_last_point_finishes)
{
	with_both(empty, [](outline_user& user, const click_tool& tool) {
		for (BPoint at : {BPoint(10, 10), BPoint(50, 10), BPoint(50, 40), BPoint(48, 42)})
			user.click(at);
		EXPECT_EQ(user.outline(), of(tool, {"10,10", "50,10", "50,40"}));
	});
}


TEST(outline_tools, a_click_three_units_from_the_last_point_adds_one)
{
	with_both(empty, [](outline_user& user, const click_tool& tool) {
		for (BPoint at : {BPoint(10, 10), BPoint(50, 10), BPoint(50, 40), BPoint(50, 43)})
			user.click(at);
		EXPECT_EQ(points_in(user), "4: 10,10 50,10 50,40 50,43 50,43");
		user.click({50, 43});
		EXPECT_EQ(user.outline(), of(tool, {"10,10", "50,10", "50,40", "50,43"}));
	});
}


TEST(outline_tools, the_direction_follows_the_clicks)
{
	with_both(empty, [](outline_user& user, const click_tool& tool) {
		for (BPoint at : {BPoint(50, 40), BPoint(50, 10), BPoint(10, 10), BPoint(10, 10)})
			user.click(at);
		EXPECT_EQ(user.outline(), of(tool, {"50,40", "50,10", "10,10"}));
		looking(user.app, [] { EXPECT_FALSE(cur_glyph->shapes[0]->ispositive()); });
	});
}


TEST(outline_tools, the_pending_point_follows_the_pointer_without_a_button)
{
	with_both(square, [](outline_user& user, const click_tool&) {
		user.click({10, 10});
		user.move({30, 90});
		EXPECT_EQ(points_in(user), "1: 10,10 30,90");
		EXPECT_TRUE(user.looks_fresh());
		user.click({100, 90});
		user.move({100, 20});
		EXPECT_EQ(points_in(user), "2: 10,10 100,90 100,20");
		EXPECT_TRUE(user.looks_fresh());
		user.move({20, 20});
		EXPECT_TRUE(user.looks_fresh());
	});
}


TEST(outline_tools, the_pending_point_stands_still_while_a_button_is_held)
{
	with_both(empty, [](outline_user& user, const click_tool&) {
		user.click({10, 10});
		user.press({50, 10});
		user.move({80, 60});
		EXPECT_EQ(points_in(user), "2: 10,10 50,10 50,10");
		user.release({80, 60});
		EXPECT_EQ(points_in(user), "2: 10,10 50,10 50,10");
		user.move({81, 60});
		EXPECT_EQ(points_in(user), "2: 10,10 50,10 81,60");
		EXPECT_TRUE(user.looks_fresh());
	});
}


TEST(outline_tools, the_pending_point_stands_still_while_the_pointer_is_outside_the_canvas)
{
	with_both(empty, [](outline_user& user, const click_tool&) {
		user.set_scale(2);
		user.click({10, 10});
		user.move({120, 120});
		user.move({140, 120});
		EXPECT_EQ(points_in(user), "1: 10,10 120,120");
		user.click({140, 120});
		EXPECT_EQ(points_in(user), "1: 10,10 120,120");
	});
}


TEST(outline_tools, the_second_button_takes_the_last_point_back)
{
	with_both(empty, [](outline_user& user, const click_tool& tool) {
		for (BPoint at : {BPoint(10, 10), BPoint(50, 10), BPoint(50, 40)})
			user.click(at);
		user.click({70, 70}, B_SECONDARY_MOUSE_BUTTON);
		EXPECT_EQ(points_in(user), "2: 10,10 50,10 70,70");
		EXPECT_TRUE(user.looks_fresh());
		user.click({30, 50});
		user.click({30, 50});
		EXPECT_EQ(user.outline(), of(tool, {"10,10", "50,10", "30,50"}));
	});
}


TEST(outline_tools, a_shift_press_takes_the_last_point_back_too)
{
	with_both(empty, [](outline_user& user, const click_tool&) {
		user.click({10, 10});
		user.click({50, 10});
		user.click({60, 60}, B_PRIMARY_MOUSE_BUTTON, B_SHIFT_KEY);
		EXPECT_EQ(points_in(user), "1: 10,10 60,60");
	});
}


TEST(outline_tools, taking_the_only_point_back_gives_it_up)
{
	with_both(square, [](outline_user& user, const click_tool&) {
		user.click({80, 10});
		user.click({100, 70}, B_SECONDARY_MOUSE_BUTTON);
		EXPECT_EQ(points_in(user), "none");
		EXPECT_EQ(user.state(), 0);
		EXPECT_EQ(user.outline(), "20,20 60,20 60,60 20,60");
		EXPECT_TRUE(user.looks_fresh());
		user.move({90, 90});
		EXPECT_TRUE(user.looks_fresh());
	});
}


TEST(outline_tools, the_second_button_alone_draws_nothing)
{
	with_both(empty, [](outline_user& user, const click_tool&) {
		user.click({100, 70}, B_SECONDARY_MOUSE_BUTTON);
		EXPECT_EQ(points_in(user), "none");
		EXPECT_EQ(user.state(), 0);
		EXPECT_EQ(user.outline(), "");
	});
}


TEST(outline_tools, the_other_clicks_fix_points_as_the_first_button_does)
{
	with_both(empty, [](outline_user& user, const click_tool&) {
		user.click({10, 10}, B_TERTIARY_MOUSE_BUTTON);
		user.click({50, 10}, B_PRIMARY_MOUSE_BUTTON, B_CONTROL_KEY);
		user.click({50, 50}, B_PRIMARY_MOUSE_BUTTON, B_COMMAND_KEY);
		EXPECT_EQ(points_in(user), "3: 10,10 50,10 50,50 50,50");
	});
}


TEST(outline_tools, another_tool_drops_the_points_and_their_preview)
{
	with_both(square, [](outline_user& user, const click_tool& tool) {
		for (BPoint at : {BPoint(10, 10), BPoint(50, 10), BPoint(50, 40)})
			user.click(at);
		user.move({100, 100});
		user.take(tool.message);
		EXPECT_EQ(points_in(user), "none");
		EXPECT_EQ(user.state(), 0);
		EXPECT_TRUE(user.looks_fresh());
		user.click({90, 90});
		EXPECT_EQ(points_in(user), "1: 90,90 90,90");
	});
}


TEST(outline_tools, two_points_make_a_contour_too)
{
	with_both(empty, [](outline_user& user, const click_tool& tool) {
		for (BPoint at : {BPoint(10, 10), BPoint(50, 10), BPoint(50, 10)})
			user.click(at);
		EXPECT_EQ(user.outline(), of(tool, {"10,10", "50,10"}));
		EXPECT_TRUE(user.looks_fresh());
	});
}
