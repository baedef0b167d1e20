// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Where a glyph is full: what does not fit is left out and nothing is overwritten.
#include "outline/shape_fixture.h"

#include <gtest/gtest.h>


TEST(glyph_limits, hold_512_contours_and_delete_the_next)
{
	glyph_ptr full = squares(512);
	shape* last = full->shapes[511];
	EXPECT_EQ(full->room(), 0);
	full->add_shape(box(0, 0, 1, 1).release());
	EXPECT_EQ(full->num_shape, 512);
	EXPECT_EQ(full->shapes[511], last);
}


TEST(glyph_limits, count_the_slots_that_are_left)
{
	EXPECT_EQ(glyph(1).room(), 512);
	EXPECT_EQ(squares(500)->room(), 12);
	EXPECT_EQ(composite(3)->room(), 506);
}


TEST(glyph_limits, keep_a_slot_for_the_frame_of_every_component)
{
	glyph_ptr full = squares(512);
	add_part(*full, squares(1));
	EXPECT_EQ(full->room(), 0);
	glyph_ptr nearly = squares(510);
	add_part(*nearly, std::make_unique<glyph>(2));
	nearly->add_shape(box(0, 0, 1, 1).release());
	nearly->add_shape(box(0, 0, 1, 1).release());
	EXPECT_EQ(nearly->num_shape, 511);
}


TEST(glyph_limits, stop_adding_to_a_composite_at_its_frames)
{
	glyph_ptr parts = composite(7);
	shape* frame = parts->shapes[7];
	for (int i = 0; i < 600; i++)
		parts->add_shape(box(0, 0, 1, 1).release());
	EXPECT_EQ(parts->num_shape, 505);
	EXPECT_EQ(parts->shapes[505], frame);
	EXPECT_EQ(parts->sel_end(), 512);
}


TEST(glyph_limits, stop_pasting)
{
	prepare_clipboard();
	glyph_ptr made = squares(300);
	for (int i = 0; i < 300; i++)
		made->shapes[i]->sel = -1;
	made->copy();
	made->paste();
	EXPECT_EQ(made->num_shape, 512);
	EXPECT_EQ(made->shapes[511]->frame, BRect(2110, 0, 2115, 5));
	prepare_clipboard();
}


TEST(glyph_limits, let_the_clipboard_hold_a_full_glyph)
{
	prepare_clipboard();
	glyph_ptr full = squares(512);
	for (int i = 0; i < 512; i++)
		full->shapes[i]->sel = -1;
	full->copy();
	EXPECT_EQ(cnt_cp, 512);
	prepare_clipboard();
}


TEST(glyph_limits, stop_duplicating_and_keep_selected_what_has_no_duplicate)
{
	glyph_ptr made = squares(511);
	select(*made, {-1, -1, -1});
	EXPECT_FALSE(made->can_copy_sel());
	made->copy_sel(BPoint(0, 0));
	EXPECT_EQ(made->num_shape, 512);
	EXPECT_EQ(made->shapes[0]->sel, 0);
	EXPECT_EQ(made->shapes[1]->sel, -1);
	EXPECT_EQ(made->shapes[2]->sel, -1);
	EXPECT_EQ(made->shapes[511]->sel, -1);
}


TEST(glyph_limits, tell_whether_all_that_is_selected_can_be_duplicated)
{
	glyph_ptr made = squares(509);
	select(*made, {-1, -1, -1});
	EXPECT_TRUE(made->can_copy_sel());
	made->add_shape(row(1023).release());
	EXPECT_FALSE(made->can_copy_sel());
	select(*made, {0, -1, -1});
	EXPECT_TRUE(made->can_copy_sel());
	made->shapes[509]->sel = 1;
	EXPECT_TRUE(made->can_copy_sel());
	made->add_shape(row(1024).release());
	select(*made, {0, 0, 0});
	made->shapes[510]->sel = 1;
	EXPECT_FALSE(made->can_copy_sel());
}


TEST(glyph_limits, stop_flattening_before_the_frames)
{
	glyph made(1);
	for (int k = 0; k < 7; k++)
		add_part(made, squares(100));
	made.create_composhape();
	EXPECT_EQ(made.num_shape, 505);
	EXPECT_EQ(made.sel_end(), 512);
	// The sixth component has 5 contours of its hundred, the seventh none.
	EXPECT_EQ(dots(*made.shapes[510]), "0,0 45,0 45,5 0,5");
	EXPECT_EQ(made.shapes[511]->pts[0], BPoint(-4, -4));
}


TEST(glyph_limits, make_a_glyph_incomplete_that_was_not_wholly_flattened)
{
	glyph made(1);
	for (int k = 0; k < 6; k++)
		add_part(made, squares(100));
	made.create_composhape();
	EXPECT_FALSE(made.complete());
	made.del_compo(0);
	made.clr_composhape();
	made.create_composhape();
	EXPECT_TRUE(made.complete());
	EXPECT_EQ(made.num_shape, 500);
}


TEST(glyph_limits, leave_out_frames_for_which_contours_left_no_slot)
{
	glyph_ptr full = squares(511);
	for (int k = 0; k < 3; k++)
		add_part(*full, squares(1));
	full->create_composhape();
	EXPECT_EQ(full->num_shape, 511);
	EXPECT_EQ(full->sel_end(), 512);
	full->sel_last();
	EXPECT_EQ(full->shapes[511]->sel, -1);
	full->sel_none();
	EXPECT_EQ(full->shapes[511]->sel, 0);
}


TEST(glyph_limits, reorder_a_full_glyph)
{
	glyph_ptr full = squares(512);
	full->shapes[511]->sel = -1;
	full->sel_to_bot();
	EXPECT_EQ(full->shapes[0]->frame, BRect(5110, 0, 5115, 5));
	full->sel_to_top();
	EXPECT_EQ(full->shapes[511]->frame, BRect(5110, 0, 5115, 5));
}
