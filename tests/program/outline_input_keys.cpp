// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Keys at the canvas.
#include "program/outline_user.h"

static const int16 empty = 0;
static const int16 square = 1;
static const int16 three_squares = 2;
static const int16 composite = 3;
static const int16 round_one = 4;


// With the keyboard at the canvas.
static void
at_keys(int16 glyph, const std::function<void(outline_user&)>& work)
{
	at_outline(glyph, [&](outline_user& user) {
		user.click({2, 2});
		user.choose(glyph);
		work(user);
	});
}


// The left edges of the contours, in their order.
static std::string
order(outline_user& user)
{
	std::string text;
	looking(user.app, [&] {
		for (int32 i = 0; i < cur_glyph->num_shape; i++) {
			text += text.empty() ? "" : " ";
			text += std::to_string((int)cur_glyph->shapes[i]->frame.left);
		}
	});
	return text;
}


TEST(outline_input, left_goes_forward_through_the_contours_and_around)
{
	at_keys(three_squares, [](outline_user& user) {
		for (const char* expected : {"-1 0 0", "0 -1 0", "0 0 -1", "-1 0 0"}) {
			user.hand.key(Qt::Key_Left);
			EXPECT_EQ(user.selection(), expected);
			EXPECT_EQ(user.state(), 1);
		}
		EXPECT_TRUE(user.looks_fresh());
	});
}


TEST(outline_input, right_goes_backward_through_the_contours_and_around)
{
	at_keys(three_squares, [](outline_user& user) {
		for (const char* expected : {"0 0 -1", "0 -1 0", "-1 0 0", "0 0 -1"}) {
			user.hand.key(Qt::Key_Right);
			EXPECT_EQ(user.selection(), expected);
			EXPECT_EQ(user.state(), 1);
		}
		EXPECT_TRUE(user.looks_fresh());
	});
}


TEST(outline_input, of_several_selected_left_goes_on_from_the_last_and_right_from_the_first)
{
	at_keys(three_squares, [](outline_user& user) {
		user.band({10, 10}, {60, 20});
		user.hand.key(Qt::Key_Left);
		EXPECT_EQ(user.selection(), "0 0 -1");
		user.click({120, 120});
		user.band({50, 10}, {100, 20});
		user.hand.key(Qt::Key_Right);
		EXPECT_EQ(user.selection(), "-1 0 0");
	});
}


TEST(outline_input, up_selects_the_first_and_down_the_last_when_nothing_is_selected)
{
	at_keys(three_squares, [](outline_user& user) {
		user.hand.key(Qt::Key_Up);
		EXPECT_EQ(user.selection(), "-1 0 0");
		EXPECT_EQ(user.state(), 1);
		user.click({120, 120});
		EXPECT_EQ(user.state(), -1);
		user.hand.key(Qt::Key_Down);
		EXPECT_EQ(user.selection(), "0 0 -1");
		EXPECT_EQ(user.state(), 1);
		EXPECT_EQ(order(user), "8 48 88");
	});
}


TEST(outline_input, up_moves_the_selected_contours_to_the_end)
{
	at_keys(three_squares, [](outline_user& user) {
		user.band({10, 10}, {60, 20});
		user.hand.key(Qt::Key_Up);
		EXPECT_EQ(order(user), "88 8 48");
		EXPECT_EQ(user.selection(), "0 -1 -1");
		EXPECT_EQ(user.state(), 1);
	});
}


TEST(outline_input, down_moves_the_selected_contours_to_the_start)
{
	at_keys(three_squares, [](outline_user& user) {
		user.band({50, 10}, {100, 20});
		user.hand.key(Qt::Key_Down);
		EXPECT_EQ(order(user), "48 88 8");
		EXPECT_EQ(user.selection(), "-1 -1 0");
	});
}


TEST(outline_input, the_digits_of_a_number_pad_are_arrows)
{
	at_keys(three_squares, [](outline_user& user) {
		user.hand.type("4");
		EXPECT_EQ(user.selection(), "-1 0 0");
		user.hand.type("8");
		EXPECT_EQ(order(user), "48 88 8");
		EXPECT_EQ(user.selection(), "0 0 -1");
		user.hand.type("6");
		EXPECT_EQ(user.selection(), "0 -1 0");
		user.hand.type("2");
		EXPECT_EQ(order(user), "88 48 8");
		EXPECT_EQ(user.selection(), "-1 0 0");
	});
}


TEST(outline_input, an_at_sign_turns_the_selected_contours_around)
{
	at_keys(round_one, [](outline_user& user) {
		user.click({90, 80});
		user.hand.type("@");
		EXPECT_EQ(user.outline(), "80,90* 100,90 100,70* 80,70");
		EXPECT_EQ(user.selection(), "-1");
		user.hand.type("@");
		EXPECT_EQ(user.outline(), "80,70 100,70* 100,90 80,90*");
		EXPECT_EQ(user.state(), 1);
	});
}


TEST(outline_input, a_contour_that_is_turned_around_changes_its_colour)
{
	at_keys(square, [](outline_user& user) {
		BPoint edge = user.place({40, 20}) - BPoint(0, 2);
		EXPECT_EQ(user.hand.pixel(edge), (rgb_color{255, 255, 255, 255}));
		user.hand.key(Qt::Key_Left);
		user.hand.type("@");
		EXPECT_EQ(user.hand.pixel(edge), (rgb_color{100, 100, 255, 255}));
	});
}


TEST(outline_input, an_at_sign_with_nothing_selected_changes_nothing)
{
	at_keys(square, [](outline_user& user) {
		user.hand.type("@");
		EXPECT_EQ(user.outline(), "20,20 60,20 60,60 20,60");
		EXPECT_EQ(user.state(), 0);
	});
}


TEST(outline_input, delete_takes_the_selected_contours_away)
{
	at_keys(three_squares, [](outline_user& user) {
		user.band({50, 10}, {100, 20});
		user.hand.key(Qt::Key_Delete, "\x7f");
		EXPECT_EQ(user.outline(), "8,8 24,8 24,24 8,24");
		EXPECT_EQ(user.state(), 0);
		EXPECT_TRUE(user.looks_fresh());
		user.hand.key(Qt::Key_Delete, "\x7f");
		EXPECT_EQ(user.outline(), "8,8 24,8 24,24 8,24");
	});
}


TEST(outline_input, a_key_that_is_held_counts_once)
{
	at_keys(three_squares, [](outline_user& user) {
		for (int i = 0; i < 20; i++)
			user.hand.key_down(Qt::Key_Left);
		EXPECT_EQ(user.selection(), "-1 0 0");
		EXPECT_EQ(user.edit(&glyfeditview::key_state), 4);
		user.hand.key_up(Qt::Key_Left);
		EXPECT_TRUE(user.hand.wait_for([&] { return user.edit(&glyfeditview::key_state) == 0; }));
		user.hand.key(Qt::Key_Left);
		EXPECT_EQ(user.selection(), "0 -1 0");
	});
}


TEST(outline_input, a_key_pressed_while_another_is_held_does_nothing)
{
	at_keys(three_squares, [](outline_user& user) {
		user.hand.key_down(Qt::Key_Left);
		user.hand.key(Qt::Key_Delete, "\x7f");
		EXPECT_EQ(order(user), "8 48 88");
		user.hand.key_up(Qt::Key_Left);
	});
}


TEST(outline_input, other_keys_do_nothing_and_hold_nothing_up)
{
	at_keys(three_squares, [](outline_user& user) {
		for (const char* text : {"a", "5", "0", " ", "9"})
			user.hand.type(text);
		user.hand.key(Qt::Key_Backspace, "\b");
		user.hand.key(Qt::Key_Home);
		user.hand.key(Qt::Key_Escape);
		user.hand.key_down(Qt::Key_A, "a");
		EXPECT_EQ(user.selection(), "0 0 0");
		EXPECT_EQ(user.state(), 0);
		user.hand.key(Qt::Key_Left);
		EXPECT_EQ(user.selection(), "-1 0 0");
		user.hand.key_up(Qt::Key_A, "a");
	});
}


TEST(outline_input, a_character_of_several_bytes_is_no_key)
{
	at_keys(three_squares, [](outline_user& user) {
		user.hand.key(0, "\xef\xbc\xa0");
		user.hand.key(0, "\xef\xbc\x94");
		EXPECT_EQ(user.selection(), "0 0 0");
		EXPECT_EQ(user.edit(&glyfeditview::key_state), 0);
	});
}


TEST(outline_input, keys_do_nothing_to_an_empty_glyph)
{
	at_keys(empty, [](outline_user& user) {
		for (int key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down, Qt::Key_Delete})
			user.hand.key(key);
		user.hand.type("@");
		EXPECT_EQ(user.state(), 0);
	});
}


TEST(outline_input, keys_do_nothing_with_a_drawing_tool)
{
	at_keys(three_squares, [](outline_user& user) {
		for (uint32 tool : {msg_free, msg_rect, msg_ellipse, msg_polygon, msg_round}) {
			user.take(tool);
			user.hand.key(Qt::Key_Left);
			user.hand.key(Qt::Key_Up);
			EXPECT_EQ(user.selection(), "0 0 0");
			EXPECT_EQ(user.state(), 0);
		}
	});
}


TEST(outline_input, keys_go_through_the_components_of_a_composite)
{
	at_keys(composite, [](outline_user& user) {
		user.hand.key(Qt::Key_Left);
		EXPECT_EQ(user.selection(), "-1 0");
		user.hand.key(Qt::Key_Left);
		EXPECT_EQ(user.selection(), "0 -1");
		user.hand.key(Qt::Key_Right);
		EXPECT_EQ(user.selection(), "-1 0");
		user.click({2, 2});
		user.hand.key(Qt::Key_Down);
		EXPECT_EQ(user.selection(), "0 -1");
		looking(user.app, [] {
			for (int32 i = 0; i < cur_glyph->num_shape; i++)
				EXPECT_EQ(cur_glyph->shapes[i]->sel, 0);
		});
	});
}


TEST(outline_input, the_contours_of_a_composite_cannot_be_turned_ordered_or_deleted)
{
	at_keys(composite, [](outline_user& user) {
		user.hand.key(Qt::Key_Left);
		user.hand.type("@");
		user.hand.type("8");
		user.hand.key(Qt::Key_Delete, "\x7f");
		EXPECT_EQ(user.outline(), "20,20 60,20 60,60 20,60 | 85,80 105,80* 105,100 85,100*");
		looking(user.app, [] { EXPECT_EQ(cur_glyph->num_compo, 2); });
	});
}


TEST(outline_input, a_key_counts_after_the_release_of_another_went_to_a_field)
{
	at_keys(three_squares, [](outline_user& user) {
		const BPoint number_field(35, 133);
		user.hand.key_down(Qt::Key_Left);
		EXPECT_EQ(user.selection(), "-1 0 0");
		user.hand.click(number_field);
		user.hand.key_up(Qt::Key_Left);
		user.click({120, 120});
		user.hand.key(Qt::Key_Down);
		EXPECT_EQ(user.selection(), "0 0 -1");
	});
}


TEST(outline_input, a_press_on_the_canvas_does_not_let_a_held_key_count_again)
{
	at_keys(three_squares, [](outline_user& user) {
		user.hand.key_down(Qt::Key_Left);
		user.click({16, 16});
		user.hand.key_down(Qt::Key_Left);
		EXPECT_EQ(user.selection(), "-1 0 0");
		user.hand.key_up(Qt::Key_Left);
	});
}


TEST(outline_input, a_digit_with_control_is_that_digit)
{
	at_keys(three_squares, [](outline_user& user) {
		user.click({16, 16});
		user.band({0, 0}, {30, 30});
		user.hand.key(Qt::Key_8, "\x7f", B_CONTROL_KEY);
		EXPECT_EQ(order(user), "48 88 8");
		user.hand.key(Qt::Key_6, "\x1e", B_CONTROL_KEY);
		EXPECT_EQ(order(user), "48 88 8");
		EXPECT_EQ(user.selection(), "0 -1 0");
	});
}
