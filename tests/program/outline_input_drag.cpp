// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Drags of what is selected: bodies, points, duplicates, components.
#include "program/outline_user.h"

static const int16 square = 1;
static const int16 three_squares = 2;
static const int16 composite = 3;
static const int16 round_one = 4;


TEST(outline_input, a_drag_of_a_body_moves_everything_selected)
{
	at_outline(three_squares, [](outline_user& user) {
		user.band({10, 10}, {60, 20});
		user.press({12, 12});
		EXPECT_EQ(user.state(), 2);
		user.move({15, 32});
		EXPECT_EQ(user.outline(),
			"11,28 27,28 27,44 11,44 | 51,28 67,28 67,44 51,44 | 88,8 104,8 104,24 88,24");
		user.release({15, 32});
		EXPECT_EQ(user.state(), 1);
		EXPECT_EQ(user.selection(), "-1 -1 0");
		EXPECT_TRUE(user.looks_fresh());
	});
}


TEST(outline_input, a_drag_moves_by_each_step_from_the_last)
{
	at_outline(square, [](outline_user& user) {
		user.click({40, 40});
		user.press({40, 40});
		for (BPoint to : {BPoint(50, 30), BPoint(45, 45), BPoint(41, 38)})
			user.move(to);
		EXPECT_EQ(user.edit(&glyfeditview::anchor_point), BPoint(41, 38));
		user.release({41, 38});
		EXPECT_EQ(user.outline(), "21,18 61,18 61,58 21,58");
	});
}


TEST(outline_input, a_click_on_a_selected_body_moves_nothing)
{
	at_outline(square, [](outline_user& user) {
		user.click({40, 40});
		user.click({30, 50});
		EXPECT_EQ(user.outline(), "20,20 60,20 60,60 20,60");
		EXPECT_EQ(user.state(), 1);
	});
}


TEST(outline_input, a_drag_stands_still_while_the_pointer_is_outside_the_canvas)
{
	at_outline(square, [](outline_user& user) {
		user.set_scale(2);
		user.click({40, 40});
		user.press({40, 40});
		user.move({50, 40});
		user.move({140, 40});
		EXPECT_EQ(user.outline(), "30,20 70,20 70,60 30,60");
		user.move({52, 40});
		EXPECT_EQ(user.outline(), "32,20 72,20 72,60 32,60");
		user.release({140, 140});
		EXPECT_EQ(user.outline(), "32,20 72,20 72,60 32,60");
		EXPECT_EQ(user.state(), 1);
	});
}


TEST(outline_input, a_contour_may_be_dragged_over_the_edge_and_leaves_nothing_there)
{
	at_outline(square, [](outline_user& user) {
		user.set_scale(2);
		user.click({40, 40});
		user.drag({40, 40}, {0, 0});
		EXPECT_EQ(user.outline(), "-20,-20 20,-20 20,20 -20,20");
		user.drag({0, 0}, {120, 127});
		EXPECT_EQ(user.outline(), "100,107 140,107 140,147 100,147");
		EXPECT_TRUE(user.looks_fresh());
	});
}


TEST(outline_input, a_drag_of_a_point_moves_that_point_alone)
{
	at_outline(three_squares, [](outline_user& user) {
		user.band({10, 10}, {60, 20});
		user.press({24, 8});
		EXPECT_EQ(user.state(), 3);
		EXPECT_EQ(user.selection(), "2 0 0");
		user.move({30, 4});
		user.release({30, 4});
		EXPECT_EQ(user.outline(),
			"8,8 30,4 24,24 8,24 | 48,8 64,8 64,24 48,24 | 88,8 104,8 104,24 88,24");
		EXPECT_EQ(user.state(), 1);
		EXPECT_TRUE(user.looks_fresh());
	});
}


TEST(outline_input, a_release_selects_the_whole_contour_of_a_point)
{
	at_outline(square, [](outline_user& user) {
		user.click({40, 40});
		user.drag({60, 60}, {70, 65});
		EXPECT_EQ(user.selection(), "-1");
		user.drag({40, 40}, {41, 41});
		EXPECT_EQ(user.outline(), "21,21 61,21 71,66 21,61");
	});
}


TEST(outline_input, a_point_is_hit_two_pixels_around_it_at_any_scale)
{
	at_outline(square, [](outline_user& user) {
		user.set_scale(1);
		user.click({40, 40});
		user.press({58, 22});
		EXPECT_EQ(user.state(), 3);
		user.release({58, 22});
		user.press({57, 22});
		EXPECT_EQ(user.state(), 2);
		user.release({57, 22});
		user.set_scale(4);
		user.press({59, 20});
		EXPECT_EQ(user.state(), 2);
		user.release({59, 20});
		user.press({62, 20});
		EXPECT_EQ(user.state(), -1);
		user.release({62, 20});
	});
}


TEST(outline_input, a_control_drag_leaves_the_contour_and_moves_a_copy)
{
	at_outline(three_squares, [](outline_user& user) {
		user.band({50, 10}, {52, 12});
		user.press({56, 16}, B_PRIMARY_MOUSE_BUTTON, B_CONTROL_KEY);
		EXPECT_EQ(user.state(), 2);
		user.move({56, 36}, B_CONTROL_KEY);
		EXPECT_EQ(user.selection(), "0 0 0 -1");
		user.move({57, 46}, B_CONTROL_KEY);
		user.release({57, 46}, B_PRIMARY_MOUSE_BUTTON, B_CONTROL_KEY);
		EXPECT_EQ(user.outline(),
			"8,8 24,8 24,24 8,24 | 48,8 64,8 64,24 48,24 | 88,8 104,8 104,24 88,24 | "
			"49,38 65,38 65,54 49,54");
		EXPECT_EQ(user.selection(), "0 0 0 -1");
		EXPECT_TRUE(user.looks_fresh());
	});
}


TEST(outline_input, a_second_control_drag_copies_again)
{
	at_outline(square, [](outline_user& user) {
		user.click({40, 40});
		user.drag({40, 40}, {42, 40}, B_CONTROL_KEY);
		user.drag({40, 40}, {42, 44}, B_CONTROL_KEY);
		EXPECT_EQ(user.outline(),
			"20,20 60,20 60,60 20,60 | 22,20 62,20 62,60 22,60 | 24,24 64,24 64,64 24,64");
		EXPECT_EQ(user.selection(), "0 0 -1");
	});
}


TEST(outline_input, a_drag_with_the_third_button_copies_too)
{
	at_outline(square, [](outline_user& user) {
		user.click({40, 40});
		user.press({40, 40}, B_TERTIARY_MOUSE_BUTTON);
		user.move({42, 40});
		user.release({42, 40}, B_TERTIARY_MOUSE_BUTTON);
		EXPECT_EQ(user.outline(), "20,20 60,20 60,60 20,60 | 22,20 62,20 62,60 22,60");
	});
}


TEST(outline_input, a_control_click_copies_nothing)
{
	at_outline(square, [](outline_user& user) {
		user.click({40, 40});
		user.click({40, 40}, B_PRIMARY_MOUSE_BUTTON, B_CONTROL_KEY);
		EXPECT_EQ(user.outline(), "20,20 60,20 60,60 20,60");
	});
}


TEST(outline_input, a_control_drag_of_a_point_inserts_one_and_moves_it)
{
	at_outline(square, [](outline_user& user) {
		user.click({40, 40});
		user.press({60, 20}, B_PRIMARY_MOUSE_BUTTON, B_CONTROL_KEY);
		EXPECT_EQ(user.state(), 3);
		user.move({60, 30}, B_CONTROL_KEY);
		EXPECT_EQ(user.selection(), "3");
		user.move({64, 40}, B_CONTROL_KEY);
		user.release({64, 40}, B_PRIMARY_MOUSE_BUTTON, B_CONTROL_KEY);
		// The new point starts a step away and then moves by the same step.
		EXPECT_EQ(user.outline(), "20,20 60,20 64,50 60,60 20,60");
		EXPECT_EQ(user.selection(), "-1");
		EXPECT_TRUE(user.looks_fresh());
	});
}


TEST(outline_input, the_inserted_point_is_of_the_kind_of_the_one_dragged)
{
	at_outline(round_one, [](outline_user& user) {
		user.click({90, 80});
		user.drag({100, 70}, {96, 70}, B_CONTROL_KEY);
		EXPECT_EQ(user.outline(), "80,70 92,70* 100,70* 100,90 80,90*");
	});
}


TEST(outline_input, the_other_buttons_drag_bodies_as_the_first_does)
{
	at_outline(square, [](outline_user& user) {
		user.click({40, 40});
		user.press({40, 40}, B_SECONDARY_MOUSE_BUTTON);
		EXPECT_EQ(user.state(), 2);
		user.move({41, 42});
		user.release({41, 42}, B_SECONDARY_MOUSE_BUTTON);
		EXPECT_EQ(user.outline(), "21,22 61,22 61,62 21,62");
		user.drag({40, 40}, {39, 38}, B_SHIFT_KEY);
		user.drag({40, 40}, {50, 40}, B_COMMAND_KEY);
		EXPECT_EQ(user.outline(), "30,20 70,20 70,60 30,60");
		EXPECT_EQ(user.state(), 1);
	});
}


TEST(outline_input, a_handle_dragged_moves_its_component)
{
	at_outline(composite, [](outline_user& user) {
		user.click({40, 40});
		EXPECT_EQ(user.selection(), "-1 0");
		user.drag({40, 40}, {43, 36});
		EXPECT_EQ(user.outline(), "23,16 63,16 63,56 23,56 | 85,80 105,80* 105,100 85,100*");
		looking(user.app, [] {
			EXPECT_EQ(cur_glyph->compo_dx[0], 3);
			EXPECT_EQ(cur_glyph->compo_dy[0], 4);
			EXPECT_EQ(cur_glyph->compo_dx[1], 5);
			EXPECT_EQ(cur_glyph->compo_dy[1], -10);
			EXPECT_EQ(cur_glyph->shapes[2]->frame, BRect(23, 16, 63, 56));
		});
		EXPECT_EQ(user.state(), 1);
		EXPECT_EQ(user.selection(), "-1 0");
		EXPECT_TRUE(user.looks_fresh());
	});
}


TEST(outline_input, a_component_follows_when_its_handle_is_let_go)
{
	at_outline(composite, [](outline_user& user) {
		user.click({90, 90});
		EXPECT_EQ(user.selection(), "0 -1");
		user.press({90, 90});
		EXPECT_EQ(user.state(), 2);
		user.move({80, 92});
		EXPECT_EQ(user.outline(), "20,20 60,20 60,60 20,60 | 85,80 105,80* 105,100 85,100*");
		looking(user.app, [] { EXPECT_EQ(cur_glyph->shapes[3]->frame, BRect(75, 82, 95, 102)); });
		user.release({80, 92});
		EXPECT_EQ(user.outline(), "20,20 60,20 60,60 20,60 | 75,82 95,82* 95,102 75,102*");
	});
}


TEST(outline_input, the_corner_of_a_handle_moves_its_component_as_well)
{
	at_outline(composite, [](outline_user& user) {
		user.click({40, 40});
		user.press({60, 20}, B_SECONDARY_MOUSE_BUTTON);
		EXPECT_EQ(user.state(), 2);
		user.move({61, 20});
		user.release({61, 20}, B_SECONDARY_MOUSE_BUTTON);
		EXPECT_EQ(user.outline(), "21,20 61,20 61,60 21,60 | 85,80 105,80* 105,100 85,100*");
		looking(user.app, [] { EXPECT_EQ(cur_glyph->shapes[2]->frame, BRect(21, 20, 61, 60)); });
	});
}


TEST(outline_input, components_are_not_copied_by_a_control_drag)
{
	at_outline(composite, [](outline_user& user) {
		user.click({40, 40});
		user.drag({40, 40}, {41, 40}, B_CONTROL_KEY);
		looking(user.app, [] { EXPECT_EQ(cur_glyph->num_compo, 2); });
		EXPECT_EQ(user.outline(), "21,20 61,20 61,60 21,60 | 85,80 105,80* 105,100 85,100*");
	});
}
