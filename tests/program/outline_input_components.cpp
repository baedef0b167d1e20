// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Components under the pointer: what stays selected, and what has nothing to show.
#include "program/outline_user.h"

static const int16 square = 1;
static const int16 composite = 3;


// Adds a glyph as a component.
static void
add(outline_user& user, int16 glyph)
{
	BMessage message(msg_add_component);
	message.AddInt16("sub", glyph);
	user.tell(message);
}


TEST(outline_input, a_component_stays_selected_where_it_is_let_go)
{
	at_outline(composite, [](outline_user& user) {
		user.click({40, 40});
		user.click({30, 30});
		EXPECT_EQ(user.selection(), "-1 0");
		EXPECT_EQ(user.state(), 1);
		user.drag({40, 40}, {43, 36});
		EXPECT_EQ(user.selection(), "-1 0");
		EXPECT_EQ(user.state(), 1);
		EXPECT_TRUE(user.looks_fresh());
	});
}


TEST(outline_input, a_component_is_dragged_again_without_being_selected_again)
{
	at_outline(composite, [](outline_user& user) {
		user.click({90, 90});
		user.drag({90, 90}, {80, 92});
		user.drag({80, 92}, {70, 90});
		EXPECT_EQ(user.outline(), "20,20 60,20 60,60 20,60 | 65,80 85,80* 85,100 65,100*");
		EXPECT_EQ(user.selection(), "0 -1");
		EXPECT_TRUE(user.looks_fresh());
	});
}


TEST(outline_input, all_components_that_were_dragged_stay_selected)
{
	at_outline(composite, [](outline_user& user) {
		user.band({10, 10}, {120, 120});
		EXPECT_EQ(user.selection(), "-1 -1");
		user.drag({40, 40}, {41, 41});
		user.drag({40, 40}, {41, 41});
		EXPECT_EQ(user.selection(), "-1 -1");
		EXPECT_EQ(user.outline(), "22,22 62,22 62,62 22,62 | 87,82 107,82* 107,102 87,102*");
		EXPECT_TRUE(user.looks_fresh());
	});
}


TEST(outline_input, a_component_taken_by_the_corner_of_its_handle_is_selected_as_a_whole)
{
	at_outline(composite, [](outline_user& user) {
		user.click({40, 40});
		user.drag({60, 20}, {61, 20});
		EXPECT_EQ(user.selection(), "-1 0");
		user.drag({61, 20}, {62, 20});
		EXPECT_EQ(user.outline(), "22,20 62,20 62,60 22,60 | 85,80 105,80* 105,100 85,100*");
		looking(user.app, [] { EXPECT_EQ(cur_glyph->shapes[2]->frame, BRect(22, 20, 62, 60)); });
	});
}


TEST(outline_input, keys_go_on_from_the_component_that_was_dragged)
{
	at_outline(composite, [](outline_user& user) {
		user.click({40, 40});
		user.drag({40, 40}, {41, 40});
		user.hand.key(Qt::Key_Left);
		EXPECT_EQ(user.selection(), "0 -1");
		user.hand.key(Qt::Key_Left);
		EXPECT_EQ(user.selection(), "-1 0");
		EXPECT_EQ(user.state(), 1);
	});
}


// An empty glyph as a component lies at its offset, here the font's origin.
TEST(outline_input, a_component_without_an_outline_is_caught_where_it_is_and_nowhere_else)
{
	at_outline(composite, [](outline_user& user) {
		add(user, 0);
		user.click({40, 40});
		EXPECT_EQ(user.selection(), "-1 0 0");
		user.band({70, 70}, {110, 110});
		EXPECT_EQ(user.selection(), "0 -1 0");
		user.band({0, 110}, {10, 127});
		EXPECT_EQ(user.selection(), "0 0 -1");
		EXPECT_TRUE(user.looks_fresh());
	});
}


TEST(outline_input, a_component_without_an_outline_is_dragged_by_its_handle)
{
	at_outline(composite, [](outline_user& user) {
		add(user, 0);
		user.band({0, 110}, {10, 127});
		user.drag({2, 125}, {52, 65});
		looking(user.app, [] {
			EXPECT_EQ(cur_glyph->compo_dx[2], 50);
			EXPECT_EQ(cur_glyph->compo_dy[2], 60);
			EXPECT_EQ(cur_glyph->shapes[4]->frame, BRect(46, 63, 54, 71));
		});
		EXPECT_EQ(user.selection(), "0 0 -1");
		EXPECT_TRUE(user.looks_fresh());
	});
}


// Fills all of the glyph's slots.
static void
fill_up(outline_user& user)
{
	looking(user.app, [] {
		while (cur_glyph->room() > 0)
			cur_glyph->add_shape(new shape(0));
	});
}


TEST(outline_input, a_control_drag_without_room_for_the_copy_moves_nothing_and_keeps_the_selection)
{
	at_outline(square, [](outline_user& user) {
		fill_up(user);
		user.click({40, 40});
		const std::string before = user.outline();
		const std::string selected = user.selection();
		user.press({40, 40}, B_PRIMARY_MOUSE_BUTTON, B_CONTROL_KEY);
		user.move({50, 40}, B_CONTROL_KEY);
		user.move({60, 40}, B_CONTROL_KEY);
		EXPECT_EQ(user.selection(), selected);
		user.release({60, 40}, B_PRIMARY_MOUSE_BUTTON, B_CONTROL_KEY);
		EXPECT_EQ(user.outline(), before);
		EXPECT_EQ(user.selection(), selected);
		EXPECT_EQ(user.state(), 1);
		EXPECT_TRUE(user.looks_fresh());
		// Without the key the contour itself goes along.
		user.drag({40, 40}, {41, 40});
		EXPECT_EQ(user.outline().substr(0, 23), "21,20 61,20 61,60 21,60");
	});
}


TEST(outline_input, a_control_drag_copies_all_that_is_selected_or_nothing)
{
	at_outline(2, [](outline_user& user) {
		fill_up(user);
		looking(user.app, [] {
			cur_glyph->sel_last();
			cur_glyph->del_sel();
		});
		user.band({10, 10}, {60, 20});
		const std::string before = user.outline();
		user.drag({12, 12}, {20, 40}, B_CONTROL_KEY);
		EXPECT_EQ(user.outline(), before);
		EXPECT_EQ(user.selection().substr(0, 8), "-1 -1 0 ");
	});
}


TEST(outline_input, a_control_drag_of_a_point_of_a_full_contour_moves_nothing)
{
	at_outline(square, [](outline_user& user) {
		looking(user.app, [] {
			shape* full = cur_glyph->shapes[0];
			for (int i = 4; i < shape::max_points; i++)
				full->set(i, BPoint(20, (float)(60 - i % 40)), 0);
			full->num = shape::max_points;
			full->ctrlp2form();
		});
		user.click({40, 40});
		const std::string before = user.outline();
		user.drag({60, 20}, {70, 10}, B_CONTROL_KEY);
		EXPECT_EQ(user.outline(), before);
		EXPECT_EQ(user.selection(), "-1");
	});
}


TEST(outline_input, a_band_from_the_corner_of_the_canvas_takes_no_contour_without_points)
{
	at_outline(square, [](outline_user& user) {
		looking(user.app, [] { cur_glyph->add_shape(new shape(0)); });
		user.band({0, 0}, {120, 120});
		EXPECT_EQ(user.selection(), "-1 0");
		EXPECT_TRUE(user.looks_fresh());
	});
}
