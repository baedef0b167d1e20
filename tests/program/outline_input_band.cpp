// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Presses where nothing selected is: the rubber band.
#include "program/outline_user.h"

// Three squares of side 16, from (8, 8), (48, 8) and (88, 8) on.
static const int16 three_squares = 2;


TEST(outline_input, a_press_beside_everything_starts_a_band_and_clears_the_selection)
{
	at_outline(three_squares, [](outline_user& user) {
		user.click({10, 10});
		EXPECT_EQ(user.selection(), "-1 0 0");
		user.press({40, 40});
		EXPECT_EQ(user.selection(), "0 0 0");
		EXPECT_EQ(user.state(), -1);
		EXPECT_EQ(user.edit(&glyfeditview::band_active), 1);
		EXPECT_EQ(user.edit(&glyfeditview::band_rect), BRect(40, 40, 40, 40));
		user.release({40, 40});
	});
}


TEST(outline_input, a_band_reaches_from_the_press_to_the_pointer_unordered)
{
	at_outline(three_squares, [](outline_user& user) {
		user.press({70, 60});
		user.move({50, 40});
		EXPECT_EQ(user.edit(&glyfeditview::band_rect), BRect(70, 60, 50, 40));
		user.release({50, 40});
	});
}


TEST(outline_input, a_band_that_ends_is_put_in_order_and_goes)
{
	at_outline(three_squares, [](outline_user& user) {
		user.band({70, 60}, {50, 40});
		EXPECT_EQ(user.edit(&glyfeditview::band_rect), BRect(50, 40, 70, 60));
		EXPECT_EQ(user.edit(&glyfeditview::band_active), 0);
		EXPECT_TRUE(user.looks_fresh());
	});
}


TEST(outline_input, a_band_selects_what_it_touches)
{
	at_outline(three_squares, [](outline_user& user) {
		user.band({24, 30}, {48, 24});
		EXPECT_EQ(user.selection(), "-1 -1 0");
		EXPECT_EQ(user.state(), 1);
	});
}


TEST(outline_input, a_band_drawn_to_the_left_and_up_selects_the_same)
{
	at_outline(three_squares, [](outline_user& user) {
		user.band({120, 40}, {50, 10});
		EXPECT_EQ(user.selection(), "0 -1 -1");
		EXPECT_EQ(user.state(), 1);
	});
}


TEST(outline_input, a_band_that_catches_nothing_leaves_the_state_as_it_is)
{
	at_outline(three_squares, [](outline_user& user) {
		user.band({25, 40}, {47, 100});
		EXPECT_EQ(user.selection(), "0 0 0");
		EXPECT_EQ(user.state(), -1);
		EXPECT_EQ(user.edit(&glyfeditview::band_active), 0);
	});
}


TEST(outline_input, a_click_selects_the_contour_whose_box_it_is_in)
{
	at_outline(three_squares, [](outline_user& user) {
		user.click({56, 16});
		EXPECT_EQ(user.selection(), "0 -1 0");
		EXPECT_EQ(user.state(), 1);
	});
}


TEST(outline_input, a_drag_from_a_contour_that_is_not_selected_draws_a_band)
{
	at_outline(three_squares, [](outline_user& user) {
		user.drag({56, 16}, {90, 50});
		EXPECT_EQ(user.selection(), "0 -1 -1");
		EXPECT_EQ(user.outline(),
			"8,8 24,8 24,24 8,24 | 48,8 64,8 64,24 48,24 | 88,8 104,8 104,24 88,24");
	});
}


TEST(outline_input, only_what_is_selected_is_hit)
{
	at_outline(three_squares, [](outline_user& user) {
		user.click({10, 10});
		user.press({56, 16});
		EXPECT_EQ(user.selection(), "0 0 0");
		EXPECT_EQ(user.state(), -1);
		user.release({56, 16});
		EXPECT_EQ(user.selection(), "0 -1 0");
	});
}


struct other_press {
	int32 button;
	int32 keys;
};
static const other_press other_presses[] = {{B_PRIMARY_MOUSE_BUTTON, B_SHIFT_KEY},
	{B_PRIMARY_MOUSE_BUTTON, B_CONTROL_KEY}, {B_PRIMARY_MOUSE_BUTTON, B_COMMAND_KEY},
	{B_SECONDARY_MOUSE_BUTTON, 0}, {B_TERTIARY_MOUSE_BUTTON, 0}};


TEST(outline_input, any_other_press_beside_everything_keeps_the_selection_and_the_state)
{
	at_outline(three_squares, [](outline_user& user) {
		for (const other_press& each : other_presses) {
			user.click({10, 10});
			user.press({40, 40}, each.button, each.keys);
			EXPECT_EQ(user.selection(), "-1 0 0");
			EXPECT_EQ(user.state(), 1);
			EXPECT_EQ(user.edit(&glyfeditview::band_active), 1);
			user.release({40, 40}, each.button, each.keys);
			EXPECT_EQ(user.selection(), "-1 0 0");
			EXPECT_EQ(user.state(), 1);
			user.click({120, 120});
		}
	});
}


TEST(outline_input, the_band_of_another_press_does_not_follow_the_pointer)
{
	at_outline(three_squares, [](outline_user& user) {
		for (const other_press& each : other_presses) {
			user.click({10, 10});
			user.press({40, 40}, each.button, each.keys);
			user.move({120, 4}, each.keys);
			EXPECT_EQ(user.edit(&glyfeditview::band_rect), BRect(40, 40, 40, 40));
			user.release({120, 4}, each.button, each.keys);
			EXPECT_EQ(user.selection(), "-1 0 0");
			EXPECT_TRUE(user.looks_fresh());
			user.click({120, 120});
		}
	});
}


TEST(outline_input, another_press_adds_the_contour_at_that_place)
{
	at_outline(three_squares, [](outline_user& user) {
		user.click({10, 10});
		user.press({90, 10}, B_PRIMARY_MOUSE_BUTTON, B_SHIFT_KEY);
		user.move({50, 10}, B_SHIFT_KEY);
		user.release({50, 10}, B_PRIMARY_MOUSE_BUTTON, B_SHIFT_KEY);
		EXPECT_EQ(user.selection(), "-1 0 -1");
		EXPECT_EQ(user.state(), 1);
	});
}


TEST(outline_input, another_press_on_nothing_with_nothing_selected_stays_idle)
{
	at_outline(three_squares, [](outline_user& user) {
		user.press({40, 40}, B_SECONDARY_MOUSE_BUTTON);
		EXPECT_EQ(user.state(), 0);
		user.release({40, 40}, B_SECONDARY_MOUSE_BUTTON);
		EXPECT_EQ(user.state(), 0);
	});
}


TEST(outline_input, a_band_stands_still_while_the_pointer_is_outside_the_canvas)
{
	at_outline(three_squares, [](outline_user& user) {
		user.press({40, 40});
		user.move({30, 60});
		user.move({-4, 60});
		EXPECT_EQ(user.edit(&glyfeditview::band_rect), BRect(40, 40, 30, 60));
		user.release({-4, 60});
	});
}


TEST(outline_input, a_band_that_ends_outside_the_canvas_ends_at_its_edge)
{
	at_outline(three_squares, [](outline_user& user) {
		user.set_scale(2);
		user.drag({40, 40}, {-6, -6});
		EXPECT_EQ(user.edit(&glyfeditview::band_rect), BRect(0, 0, 40, 40));
		EXPECT_EQ(user.selection(), "-1 0 0");
		user.drag({40, 40}, {160, 170});
		EXPECT_EQ(user.edit(&glyfeditview::band_rect), BRect(40, 40, 127, 127));
		EXPECT_TRUE(user.looks_fresh());
	});
}


TEST(outline_input, a_press_outside_the_canvas_does_nothing)
{
	at_outline(three_squares, [](outline_user& user) {
		user.set_scale(2);
		user.click({10, 10});
		user.press({128, 60});
		EXPECT_EQ(user.selection(), "-1 0 0");
		EXPECT_EQ(user.state(), 1);
		EXPECT_EQ(user.edit(&glyfeditview::button_held), 0);
		user.move({60, 60});
		user.release({60, 60});
		EXPECT_EQ(user.selection(), "-1 0 0");
		EXPECT_EQ(user.state(), 1);
	});
}


TEST(outline_input, the_canvas_has_its_last_unit)
{
	at_outline(three_squares, [](outline_user& user) {
		user.set_scale(2);
		user.click({127, 127});
		EXPECT_EQ(user.state(), -1);
		user.choose(three_squares);
		user.click({127, 128});
		EXPECT_EQ(user.state(), 0);
	});
}


TEST(outline_input, the_pointer_over_the_canvas_without_a_button_does_nothing)
{
	at_outline(three_squares, [](outline_user& user) {
		user.click({10, 10});
		user.move({12, 12});
		user.move({40, 60});
		EXPECT_EQ(user.selection(), "-1 0 0");
		EXPECT_EQ(user.state(), 1);
		EXPECT_EQ(user.outline(),
			"8,8 24,8 24,24 8,24 | 48,8 64,8 64,24 48,24 | 88,8 104,8 104,24 88,24");
	});
}


TEST(outline_input, a_key_let_go_during_a_press_ends_it_and_starts_a_plain_one)
{
	at_outline(three_squares, [](outline_user& user) {
		user.click({10, 10});
		user.press({40, 40}, B_PRIMARY_MOUSE_BUTTON, B_SHIFT_KEY);
		user.move({41, 40});
		EXPECT_EQ(user.selection(), "0 0 0");
		EXPECT_EQ(user.edit(&glyfeditview::anchor_point), BPoint(41, 40));
		EXPECT_EQ(user.state(), -1);
		user.release({60, 20});
		EXPECT_EQ(user.selection(), "0 -1 0");
	});
}
