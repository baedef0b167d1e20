// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// What editing does with the selection of a glyph.
#include "outline/shape_fixture.h"

#include <gtest/gtest.h>


TEST(glyph_sel_to_bot, moves_the_selected_contours_to_the_front_in_order)
{
	glyph_ptr made = squares(6);
	select(*made, {0, -1, 0, 2, 0, -1});
	made->sel_to_bot();
	EXPECT_EQ(order(*made), "1 3 5 0 2 4");
	EXPECT_EQ(selection(*made), "-1 2 -1 0 0 0");
}


TEST(glyph_sel_to_top, moves_the_selected_contours_to_the_end_in_order)
{
	glyph_ptr made = squares(6);
	select(*made, {-1, 0, 3, 0, -1, 0});
	made->sel_to_top();
	EXPECT_EQ(order(*made), "1 3 5 0 2 4");
	EXPECT_EQ(selection(*made), "0 0 0 -1 3 -1");
}


TEST(glyph_reordering, works_on_the_own_contours_of_a_composite_alone)
{
	glyph_ptr parts = composite(3);
	select(*parts, {0, 0, -1, -1, 0, 0});
	shape* frame = parts->shapes[3];
	parts->sel_to_bot();
	EXPECT_EQ(order(*parts), "2 0 1");
	parts->sel_to_top();
	EXPECT_EQ(order(*parts), "0 1 2");
	EXPECT_EQ(parts->shapes[3], frame);
}


TEST(glyph_move_sel, moves_selected_contours_and_points)
{
	glyph_ptr made = squares(3);
	select(*made, {-1, 0, 3});
	made->move_sel(BPoint(1.5F, 2));
	EXPECT_EQ(dots(*made->shapes[0]), "1.5,2 6.5,2 6.5,7 1.5,7");
	EXPECT_EQ(dots(*made->shapes[1]), "10,0 15,0 15,5 10,5");
	EXPECT_EQ(dots(*made->shapes[2]), "20,0 25,0 26.5,7 20,5");
	EXPECT_EQ(made->shapes[2]->frame, BRect(20, 0, 26.5F, 7));
}


TEST(glyph_move_sel, of_a_component_truncates_and_subtracts_y)
{
	glyph_ptr parts = composite(2);
	parts->compo_dx[0] = 0;
	parts->shapes[2]->sel = -1;
	parts->move_sel(BPoint(3.7F, 2.2F));
	EXPECT_EQ(parts->compo_dx[0], 3);
	EXPECT_EQ(parts->compo_dy[0], -2);
	EXPECT_EQ(parts->compo_dx[1], 10);
	EXPECT_EQ(parts->compo_dy[1], 0);
}


// 10 - 2.2 is 7.8, and -5 + 3.7 is -1.3.
TEST(glyph_move_sel, of_a_component_adds_before_it_truncates_toward_zero)
{
	glyph_ptr parts = composite(1);
	parts->compo_dx[0] = -5;
	parts->compo_dy[0] = 10;
	parts->shapes[1]->sel = -1;
	parts->move_sel(BPoint(3.7F, 2.2F));
	EXPECT_EQ(parts->compo_dx[0], -1);
	EXPECT_EQ(parts->compo_dy[0], 7);
}


TEST(glyph_move_sel, of_a_component_keeps_offsets_within_16_bits)
{
	glyph_ptr parts = composite(1);
	parts->compo_dx[0] = 32760;
	parts->compo_dy[0] = -32760;
	parts->shapes[1]->sel = -1;
	parts->move_sel(BPoint(100, 100));
	EXPECT_EQ(parts->compo_dx[0], 32767);
	EXPECT_EQ(parts->compo_dy[0], -32768);
}


TEST(glyph_move_sel, of_a_component_moves_its_frame_and_leaves_its_contours)
{
	glyph_ptr parts = composite(1);
	parts->shapes[0]->sel = -1;
	parts->shapes[1]->sel = -1;
	parts->move_sel(BPoint(3.5F, 2));
	EXPECT_EQ(dots(*parts->shapes[0]), "0,0 5,0 5,5 0,5");
	EXPECT_EQ(dots(*parts->shapes[1]), "3.5,2 8.5,2 8.5,7 3.5,7");
	EXPECT_EQ(parts->shapes[1]->frame, BRect(3.5F, 2, 8.5F, 7));
}


TEST(glyph_move_sel, of_a_point_of_a_frame_moves_that_point_and_the_offset)
{
	glyph_ptr parts = composite(1);
	parts->shapes[1]->sel = 2;
	parts->move_sel(BPoint(4, 1));
	EXPECT_EQ(dots(*parts->shapes[1]), "0,0 9,1 5,5 0,5");
	EXPECT_EQ(parts->compo_dx[0], 4);
	EXPECT_EQ(parts->compo_dy[0], -1);
}


TEST(glyph_del_sel, deletes_selected_contours_and_keeps_the_others_in_order)
{
	glyph_ptr made = squares(5);
	select(*made, {-1, 0, -1, 0, -1});
	made->del_sel();
	EXPECT_EQ(order(*made), "1 3");
	EXPECT_EQ(made->num_shape, 2);
}


TEST(glyph_del_sel, takes_a_selected_point_out_and_keeps_the_selection)
{
	glyph_ptr made = squares(1);
	select(*made, {3});
	made->del_sel();
	EXPECT_EQ(dots(*made->shapes[0]), "0,0 5,0 0,5");
	EXPECT_EQ(selection(*made), "3");
}


TEST(glyph_del_sel, finds_the_frame_anew_after_a_point)
{
	glyph made(1);
	made.add_shape(contour({{0, 0}, {5, 0}, {90, 70}, {0, 5}}).release());
	select(made, {3});
	made.del_sel();
	EXPECT_EQ(made.shapes[0]->frame, BRect(0, 0, 5, 5));
}


TEST(glyph_del_sel, of_a_point_of_three_destroys_the_contour)
{
	glyph made(1);
	made.add_shape(contour({{0, 0}, {5, 0}, {5, 5}}).release());
	made.add_shape(box(10, 0, 15, 5).release());
	select(made, {2, 0});
	made.del_sel();
	EXPECT_EQ(order(made), "1");
}


TEST(glyph_del_sel, on_a_composite_moves_the_frames_down_with_what_they_follow)
{
	glyph_ptr parts = composite(3);
	select(*parts, {0, -1, 0, -1, 0, 0});
	shape* first = parts->shapes[3];
	shape* last = parts->shapes[5];
	parts->del_sel();
	EXPECT_EQ(order(*parts), "0 2");
	EXPECT_EQ(parts->num_compo, 3);
	EXPECT_EQ(parts->shapes[2], first);
	EXPECT_EQ(parts->shapes[4], last);
	EXPECT_EQ(frame_selection(*parts), "-1 0 0");
}


TEST(glyph_rev_sel, reverses_contours_selected_as_a_whole)
{
	glyph_ptr made = squares(3);
	select(*made, {-1, 0, 2});
	made->rev_sel();
	EXPECT_EQ(dots(*made->shapes[0]), "0,5 5,5 5,0 0,0");
	EXPECT_EQ(dots(*made->shapes[1]), "10,0 15,0 15,5 10,5");
	EXPECT_EQ(dots(*made->shapes[2]), "20,0 25,0 25,5 20,5");
}


TEST(glyph_rev_sel, works_on_the_own_contours_of_a_composite_alone)
{
	glyph_ptr parts = composite(1);
	select(*parts, {-1, -1});
	parts->rev_sel();
	EXPECT_EQ(dots(*parts->shapes[0]), "0,5 5,5 5,0 0,0");
	EXPECT_EQ(dots(*parts->shapes[1]), "0,0 5,0 5,5 0,5");
}


TEST(glyph_tgl_sel, turns_all_points_of_a_contour_or_the_selected_one)
{
	glyph_ptr made = squares(3);
	select(*made, {-1, 0, 2});
	made->tgl_sel();
	EXPECT_EQ(dots(*made->shapes[0]), "0,0* 5,0* 5,5* 0,5*");
	EXPECT_EQ(dots(*made->shapes[1]), "10,0 15,0 15,5 10,5");
	EXPECT_EQ(dots(*made->shapes[2]), "20,0 25,0* 25,5 20,5");
}


TEST(glyph_tgl_sel, works_on_the_own_contours_of_a_composite_alone)
{
	glyph_ptr parts = composite(1);
	select(*parts, {1, -1});
	parts->tgl_sel();
	EXPECT_EQ(dots(*parts->shapes[0]), "0,0* 5,0 5,5 0,5");
	EXPECT_EQ(dots(*parts->shapes[1]), "0,0 5,0 5,5 0,5");
}


TEST(glyph_copy_sel, duplicates_whole_contours_where_they_are_and_ignores_the_offset)
{
	glyph_ptr made = squares(2);
	select(*made, {0, -1});
	made->copy_sel(BPoint(100, 100));
	ASSERT_EQ(made->num_shape, 3);
	EXPECT_EQ(dots(*made->shapes[1]), "10,0 15,0 15,5 10,5");
	EXPECT_EQ(dots(*made->shapes[2]), "10,0 15,0 15,5 10,5");
	EXPECT_EQ(made->shapes[2]->frame, BRect(10, 0, 15, 5));
}


TEST(glyph_copy_sel, passes_the_selection_to_the_duplicates_and_does_not_come_to_them)
{
	glyph_ptr made = squares(3);
	select(*made, {-1, 0, -1});
	made->copy_sel(BPoint(1, 1));
	EXPECT_EQ(order(*made), "0 1 2 0 2");
	EXPECT_EQ(selection(*made), "0 0 0 -1 -1");
}


TEST(glyph_copy_sel, inserts_a_point_where_one_is_selected)
{
	glyph_ptr made = squares(2);
	select(*made, {-1, 0});
	made->sel_check(BPoint(5, 0), 1);
	made->copy_sel(BPoint(0, 2));
	EXPECT_EQ(made->num_shape, 2);
	EXPECT_EQ(dots(*made->shapes[0]), "0,0 5,0 5,2 5,5 0,5");
	EXPECT_EQ(selection(*made), "3 0");
}


TEST(glyph_copy_sel, on_a_composite_duplicates_own_contours_before_the_frames)
{
	glyph_ptr parts = composite(2);
	select(*parts, {-1, 0, -1, 0});
	shape* frame = parts->shapes[2];
	parts->copy_sel(BPoint(0, 0));
	EXPECT_EQ(order(*parts), "0 1 0");
	EXPECT_EQ(parts->shapes[3], frame);
	EXPECT_EQ(frame_selection(*parts), "-1 0");
}
