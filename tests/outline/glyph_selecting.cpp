// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// How the selection of a glyph comes about and goes.
#include "outline/shape_fixture.h"

#include <gtest/gtest.h>


TEST(glyph_point_hit, never_touches_an_unselected_contour)
{
	glyph_ptr made = squares(2);
	EXPECT_EQ(made->sel_check(BPoint(0, 0), 1), 0);
	EXPECT_EQ(made->sel_check(BPoint(12, 2), 1), 0);
	EXPECT_EQ(selection(*made), "0 0");
}


TEST(glyph_point_hit, sets_bit_0_for_a_frame)
{
	glyph_ptr made = squares(2);
	select(*made, {-1, 0});
	EXPECT_EQ(made->sel_check(BPoint(2, 2), 1), 0x01);
	EXPECT_EQ(selection(*made), "-1 0");
}


TEST(glyph_point_hit, sets_bit_1_for_a_point_which_it_selects_and_arms)
{
	glyph_ptr made = squares(2);
	select(*made, {-1, 0});
	EXPECT_EQ(made->sel_check(BPoint(5, 5), 1), 0x02);
	EXPECT_EQ(selection(*made), "3 0");
	EXPECT_EQ(made->shapes[0]->armed, 1);
}


TEST(glyph_point_hit, sets_both_bits_for_a_frame_and_a_point)
{
	glyph made(1);
	made.add_shape(box(0, 0, 20, 20).release());
	made.add_shape(box(10, 10, 30, 30).release());
	select(made, {-1, -1});
	EXPECT_EQ(made.sel_check(BPoint(10, 10), 1), 0x03);
	EXPECT_EQ(selection(made), "-1 1");
}


TEST(glyph_point_hit, that_misses_leaves_the_selection_and_disarms)
{
	glyph_ptr made = squares(1);
	select(*made, {-1});
	made->sel_check(BPoint(5, 5), 1);
	EXPECT_EQ(made->sel_check(BPoint(90, 90), 1), 0);
	EXPECT_EQ(selection(*made), "3");
	EXPECT_EQ(made->shapes[0]->armed, 0);
}


TEST(glyph_point_hit, refines_every_selected_contour_at_that_place)
{
	glyph made(1);
	made.add_shape(box(0, 0, 20, 20).release());
	made.add_shape(box(0, 0, 30, 30).release());
	select(made, {-1, 4});
	EXPECT_EQ(made.sel_check(BPoint(0, 0), 1), 0x02);
	EXPECT_EQ(selection(made), "1 1");
}


TEST(glyph_point_hit, of_a_composite_tests_selected_frames_and_gives_1_for_either)
{
	glyph_ptr parts = composite(2);
	select(*parts, {-1, -1, 0, -1});
	EXPECT_EQ(parts->sel_check(BPoint(2, 2), 1), 0);
	EXPECT_EQ(parts->sel_check(BPoint(12, 2), 1), 1);
	EXPECT_EQ(parts->sel_check(BPoint(15, 5), 1), 1);
	EXPECT_EQ(selection(*parts), "-1 -1");
	EXPECT_EQ(frame_selection(*parts), "0 3");
}


TEST(glyph_rectangle_hit, selects_what_it_meets)
{
	glyph_ptr made = squares(3);
	EXPECT_TRUE(made->sel_check(BRect(12, 2, 22, 3)));
	EXPECT_EQ(selection(*made), "0 -1 -1");
}


TEST(glyph_rectangle_hit, that_meets_nothing_new_is_false_and_deselects_nothing)
{
	glyph_ptr made = squares(3);
	select(*made, {-1, 2, 0});
	EXPECT_FALSE(made->sel_check(BRect(0, 0, 16, 5)));
	EXPECT_FALSE(made->sel_check(BRect(70, 70, 80, 80)));
	EXPECT_EQ(selection(*made), "-1 2 0");
}


TEST(glyph_rectangle_hit, adds_up)
{
	glyph_ptr made = squares(3);
	made->sel_check(BRect(0, 0, 1, 1));
	made->sel_check(BRect(20, 0, 21, 1));
	EXPECT_EQ(selection(*made), "-1 0 -1");
}


TEST(glyph_rectangle_hit, passes_over_selected_contours_and_leaves_them_armed)
{
	glyph_ptr made = squares(1);
	select(*made, {-1});
	made->sel_check(BPoint(5, 5), 1);
	made->sel_check(BRect(0, 0, 9, 9));
	EXPECT_EQ(selection(*made), "3");
	EXPECT_EQ(made->shapes[0]->armed, 1);
}


TEST(glyph_rectangle_hit, disarms_the_unselected_contours_hit_or_missed)
{
	glyph_ptr made = squares(2);
	made->shapes[0]->armed = 1;
	made->shapes[1]->armed = 1;
	made->sel_check(BRect(0, 0, 5, 5));
	EXPECT_EQ(made->shapes[0]->armed, 0);
	EXPECT_EQ(made->shapes[1]->armed, 0);
}


TEST(glyph_rectangle_hit, of_a_composite_selects_frames)
{
	glyph_ptr parts = composite(2);
	EXPECT_TRUE(parts->sel_check(BRect(12, 0, 13, 1)));
	EXPECT_EQ(selection(*parts), "0 0");
	EXPECT_EQ(frame_selection(*parts), "0 -1");
}


TEST(glyph_sel_check, makes_whole_selections_of_points)
{
	glyph_ptr made = squares(3);
	select(*made, {4, 0, -1});
	made->sel_check();
	EXPECT_EQ(selection(*made), "-1 0 -1");
}


TEST(glyph_sel_check, of_a_composite_goes_over_the_frames_alone)
{
	glyph_ptr parts = composite(2);
	select(*parts, {2, 0, 3, 0});
	parts->sel_check();
	EXPECT_EQ(selection(*parts), "2 0");
	EXPECT_EQ(frame_selection(*parts), "-1 0");
}


TEST(glyph_sel_none, clears_contours)
{
	glyph_ptr made = squares(3);
	select(*made, {4, 0, -1});
	made->sel_none();
	EXPECT_EQ(selection(*made), "0 0 0");
}


TEST(glyph_sel_none, of_a_composite_clears_contours_and_frames)
{
	glyph_ptr parts = composite(2);
	select(*parts, {4, -1, 1, -1});
	parts->sel_none();
	EXPECT_EQ(selection(*parts), "0 0");
	EXPECT_EQ(frame_selection(*parts), "0 0");
}


TEST(glyph_sel_first, selects_the_first_alone)
{
	glyph_ptr made = squares(3);
	select(*made, {2, -1, 4});
	made->sel_first();
	EXPECT_EQ(selection(*made), "-1 0 0");
}


TEST(glyph_sel_last, selects_the_last_alone)
{
	glyph_ptr made = squares(3);
	select(*made, {2, -1, 4});
	made->sel_last();
	EXPECT_EQ(selection(*made), "0 0 -1");
}


TEST(glyph_sel_first, of_a_composite_is_the_first_frame_and_leaves_the_contours)
{
	glyph_ptr parts = composite(3);
	select(*parts, {-1, 0, 0, 0, 0, -1});
	parts->sel_first();
	EXPECT_EQ(selection(*parts), "-1 0 0");
	EXPECT_EQ(frame_selection(*parts), "-1 0 0");
}


TEST(glyph_sel_last, of_a_composite_is_the_last_frame)
{
	glyph_ptr parts = composite(3);
	parts->sel_last();
	EXPECT_EQ(frame_selection(*parts), "0 0 -1");
}


TEST(glyph_sel_next, walks_downward_from_the_lowest_selected_one)
{
	glyph_ptr made = squares(6);
	select(*made, {0, 0, -1, 0, 0, 3});
	made->sel_next();
	EXPECT_EQ(selection(*made), "0 -1 0 0 0 0");
}


TEST(glyph_sel_next, goes_from_the_first_to_the_last)
{
	glyph_ptr made = squares(3);
	select(*made, {-1, -1, 0});
	made->sel_next();
	EXPECT_EQ(selection(*made), "0 0 -1");
}


TEST(glyph_sel_next, with_nothing_selected_selects_the_last)
{
	glyph_ptr made = squares(3);
	made->sel_next();
	EXPECT_EQ(selection(*made), "0 0 -1");
}


TEST(glyph_sel_back, walks_upward_from_the_highest_selected_one)
{
	glyph_ptr made = squares(6);
	select(*made, {-1, 0, 2, 0, 0, 0});
	made->sel_back();
	EXPECT_EQ(selection(*made), "0 0 0 -1 0 0");
}


TEST(glyph_sel_back, goes_from_the_last_to_the_first)
{
	glyph_ptr made = squares(3);
	select(*made, {0, -1, -1});
	made->sel_back();
	EXPECT_EQ(selection(*made), "-1 0 0");
}


TEST(glyph_sel_back, with_nothing_selected_selects_the_first)
{
	glyph_ptr made = squares(3);
	made->sel_back();
	EXPECT_EQ(selection(*made), "-1 0 0");
}


TEST(glyph_stepping, stays_at_a_contour_that_is_the_only_one)
{
	glyph_ptr made = squares(1);
	made->sel_next();
	EXPECT_EQ(selection(*made), "-1");
	made->sel_back();
	EXPECT_EQ(selection(*made), "-1");
}


TEST(glyph_stepping, goes_round_the_frames_of_a_composite)
{
	glyph_ptr parts = composite(3);
	parts->sel_next();
	EXPECT_EQ(frame_selection(*parts), "0 0 -1");
	parts->sel_back();
	EXPECT_EQ(frame_selection(*parts), "-1 0 0");
	parts->sel_next();
	EXPECT_EQ(frame_selection(*parts), "0 0 -1");
	parts->sel_next();
	EXPECT_EQ(frame_selection(*parts), "0 -1 0");
	EXPECT_EQ(selection(*parts), "0 0 0");
}


TEST(glyph_stepping, in_an_empty_glyph_does_nothing)
{
	glyph none(1);
	none.sel_first();
	none.sel_last();
	none.sel_next();
	none.sel_back();
	EXPECT_EQ(none.num_shape, 0);
}


TEST(glyph_selecting, passes_over_components_that_have_no_frame_yet)
{
	glyph parts(1);
	add_part(parts, squares(1));
	parts.sel_first();
	parts.sel_back();
	parts.sel_none();
	EXPECT_FALSE(parts.sel_check(BRect(-100, -100, 100, 100)));
	EXPECT_EQ(parts.sel_begin(), 0);
	EXPECT_EQ(parts.sel_end(), 0);
}
