// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Points deleted, and turned from one kind into the other.
#include "program/outline_user.h"

static const int16 square = 1;
static const int16 round_one = 4;


TEST(outline_input, a_shift_click_on_a_point_deletes_it_when_it_is_let_go)
{
	at_outline(square, [](outline_user& user) {
		user.click({40, 40});
		user.press({60, 20}, B_PRIMARY_MOUSE_BUTTON, B_SHIFT_KEY);
		EXPECT_EQ(user.state(), 4);
		EXPECT_EQ(user.selection(), "2");
		EXPECT_EQ(user.outline(), "20,20 60,20 60,60 20,60");
		user.release({60, 20}, B_PRIMARY_MOUSE_BUTTON, B_SHIFT_KEY);
		EXPECT_EQ(user.outline(), "20,20 60,60 20,60");
		EXPECT_EQ(user.state(), 1);
		EXPECT_EQ(user.selection(), "-1");
		EXPECT_TRUE(user.looks_fresh());
	});
}


TEST(outline_input, a_click_with_the_second_button_on_a_point_deletes_it)
{
	at_outline(square, [](outline_user& user) {
		user.click({40, 40});
		user.press({20, 60}, B_SECONDARY_MOUSE_BUTTON);
		EXPECT_EQ(user.state(), 4);
		user.release({20, 60}, B_SECONDARY_MOUSE_BUTTON);
		EXPECT_EQ(user.outline(), "20,20 60,20 60,60");
		EXPECT_EQ(user.selection(), "-1");
	});
}


TEST(outline_input, a_contour_goes_with_its_third_last_point)
{
	at_outline(square, [](outline_user& user) {
		user.click({40, 40});
		user.click({20, 60}, B_SECONDARY_MOUSE_BUTTON);
		user.click({20, 20}, B_SECONDARY_MOUSE_BUTTON);
		EXPECT_EQ(user.outline(), "");
		EXPECT_EQ(user.selection(), "");
		EXPECT_EQ(user.state(), 1);
		EXPECT_TRUE(user.looks_fresh());
	});
}


TEST(outline_input, moves_do_not_drag_a_point_that_is_to_be_deleted)
{
	at_outline(square, [](outline_user& user) {
		user.click({40, 40});
		user.press({60, 20}, B_SECONDARY_MOUSE_BUTTON);
		user.move({70, 30});
		EXPECT_EQ(user.outline(), "20,20 60,20 60,60 20,60");
		user.release({70, 30}, B_SECONDARY_MOUSE_BUTTON);
		EXPECT_EQ(user.outline(), "20,20 60,60 20,60");
	});
}


TEST(outline_input, a_command_click_turns_the_kind_of_a_point_when_it_is_let_go)
{
	at_outline(square, [](outline_user& user) {
		user.click({40, 40});
		user.press({60, 20}, B_PRIMARY_MOUSE_BUTTON, B_COMMAND_KEY);
		EXPECT_EQ(user.state(), 5);
		EXPECT_EQ(user.outline(), "20,20 60,20 60,60 20,60");
		user.release({60, 20}, B_PRIMARY_MOUSE_BUTTON, B_COMMAND_KEY);
		EXPECT_EQ(user.outline(), "20,20 60,20* 60,60 20,60");
		EXPECT_EQ(user.state(), 1);
		EXPECT_EQ(user.selection(), "-1");
		EXPECT_TRUE(user.looks_fresh());
	});
}


TEST(outline_input, a_second_command_click_turns_it_back)
{
	at_outline(round_one, [](outline_user& user) {
		user.click({90, 80});
		user.click({100, 70}, B_PRIMARY_MOUSE_BUTTON, B_COMMAND_KEY);
		EXPECT_EQ(user.outline(), "80,70 100,70 100,90 80,90*");
		user.click({100, 70}, B_PRIMARY_MOUSE_BUTTON, B_COMMAND_KEY);
		EXPECT_EQ(user.outline(), "80,70 100,70* 100,90 80,90*");
	});
}


TEST(outline_input, moves_do_not_drag_a_point_that_is_to_be_turned)
{
	at_outline(square, [](outline_user& user) {
		user.click({40, 40});
		user.drag({20, 20}, {30, 30}, B_COMMAND_KEY);
		EXPECT_EQ(user.outline(), "20,20* 60,20 60,60 20,60");
	});
}


TEST(outline_input, a_command_click_on_a_body_only_starts_a_drag)
{
	at_outline(round_one, [](outline_user& user) {
		user.click({90, 80});
		user.press({90, 80}, B_PRIMARY_MOUSE_BUTTON, B_COMMAND_KEY);
		EXPECT_EQ(user.state(), 2);
		user.release({90, 80}, B_PRIMARY_MOUSE_BUTTON, B_COMMAND_KEY);
		EXPECT_EQ(user.outline(), "80,70 100,70* 100,90 80,90*");
		EXPECT_EQ(user.state(), 1);
	});
}


TEST(outline_input, of_several_keys_command_counts_before_control_and_control_before_shift)
{
	at_outline(square, [](outline_user& user) {
		user.click({40, 40});
		int32 all = B_SHIFT_KEY | B_CONTROL_KEY | B_COMMAND_KEY;
		user.press({60, 20}, B_PRIMARY_MOUSE_BUTTON, all);
		EXPECT_EQ(user.state(), 5);
		user.release({60, 20}, B_PRIMARY_MOUSE_BUTTON, all);
		user.press({60, 60}, B_PRIMARY_MOUSE_BUTTON, B_SHIFT_KEY | B_CONTROL_KEY);
		EXPECT_EQ(user.state(), 3);
		user.release({60, 60}, B_PRIMARY_MOUSE_BUTTON, B_SHIFT_KEY | B_CONTROL_KEY);
	});
}


TEST(outline_input, keys_count_with_the_first_button_alone)
{
	at_outline(square, [](outline_user& user) {
		user.click({40, 40});
		user.press({60, 20}, B_SECONDARY_MOUSE_BUTTON, B_COMMAND_KEY);
		EXPECT_EQ(user.state(), 4);
		user.release({60, 20}, B_SECONDARY_MOUSE_BUTTON, B_COMMAND_KEY);
		EXPECT_EQ(user.outline(), "20,20 60,60 20,60");
	});
}


TEST(outline_input, a_third_button_drags_a_point_and_inserts)
{
	at_outline(square, [](outline_user& user) {
		user.click({40, 40});
		user.press({20, 20}, B_TERTIARY_MOUSE_BUTTON);
		EXPECT_EQ(user.state(), 3);
		user.move({20, 24});
		user.release({20, 24}, B_TERTIARY_MOUSE_BUTTON);
		EXPECT_EQ(user.outline(), "20,28 20,20 60,20 60,60 20,60");
	});
}


TEST(outline_input, a_second_button_pressed_on_the_way_starts_over_there)
{
	at_outline(square, [](outline_user& user) {
		user.click({40, 40});
		user.press({60, 20});
		EXPECT_EQ(user.state(), 3);
		user.press({60, 20}, B_SECONDARY_MOUSE_BUTTON);
		EXPECT_EQ(user.state(), 4);
		user.release({60, 20}, B_SECONDARY_MOUSE_BUTTON);
		EXPECT_EQ(user.outline(), "20,20 60,60 20,60");
		EXPECT_EQ(user.edit(&glyfeditview::button_held), 0);
		user.release({60, 20});
		EXPECT_EQ(user.state(), 1);
	});
}
