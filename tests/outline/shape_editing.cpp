// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Changing what is selected of a contour.
#include "outline/shape_fixture.h"

#include <gtest/gtest.h>

namespace {

// The square (0, 0) to (10, 10) with one point hit, and by that selected and armed.
shape_ptr
hit_square(BPoint at)
{
	shape_ptr square = box(0, 0, 10, 10);
	square->select_chk(at, 1);
	return square;
}

}


TEST(shape_tglpoint, turns_all_points_of_a_selected_contour)
{
	shape_ptr arc = contour({{0, 0}, {5, 8, 1}, {10, 0}});
	arc->sel = -1;
	arc->tglpoint();
	EXPECT_EQ(dots(*arc), "0,0* 5,8 10,0*");
}


TEST(shape_tglpoint, turns_the_selected_point_alone)
{
	shape_ptr arc = contour({{0, 0}, {5, 8, 1}, {10, 0}});
	arc->sel = 2;
	arc->tglpoint();
	EXPECT_EQ(dots(*arc), "0,0 5,8 10,0");
	arc->sel = 3;
	arc->tglpoint();
	EXPECT_EQ(dots(*arc), "0,0 5,8 10,0*");
}


TEST(shape_tglpoint, does_nothing_without_a_selection)
{
	shape_ptr arc = contour({{0, 0}, {5, 8, 1}, {10, 0}});
	arc->tglpoint();
	EXPECT_EQ(dots(*arc), "0,0 5,8* 10,0");
}


TEST(shape_tglpoint, flips_the_lowest_bit_and_keeps_the_others)
{
	shape_ptr arc = contour({{0, 0, 6}, {5, 8, 7}, {10, 0}});
	arc->sel = -1;
	arc->tglpoint();
	EXPECT_EQ(arc->onoff[0], 7);
	EXPECT_EQ(arc->onoff[1], 6);
	EXPECT_EQ(arc->onoff[2], 1);
}


TEST(shape_delpoint, moves_the_points_behind_down)
{
	shape_ptr ring = contour({{0, 0}, {10, 0}, {20, 5, 1}, {0, 10}});
	ring->sel = 2;
	EXPECT_FALSE(ring->delpoint());
	EXPECT_EQ(dots(*ring), "0,0 20,5* 0,10");
}


TEST(shape_delpoint, finds_the_frame_anew)
{
	shape_ptr ring = contour({{0, 0}, {10, 0}, {20, 5}, {0, 10}});
	ring->sel = 3;
	ring->delpoint();
	EXPECT_EQ(ring->frame, BRect(0, 0, 10, 10));
}


TEST(shape_delpoint, leaves_the_selection_at_the_point_that_followed)
{
	shape_ptr ring = box(0, 0, 10, 10);
	ring->sel = 1;
	ring->delpoint();
	EXPECT_EQ(ring->sel, 1);
	EXPECT_EQ(dots(*ring), "10,0 10,10 0,10");
}


TEST(shape_delpoint, of_the_last_point_leaves_the_selection_past_the_end)
{
	shape_ptr ring = box(0, 0, 10, 10);
	ring->sel = 4;
	EXPECT_FALSE(ring->delpoint());
	EXPECT_EQ(ring->sel, 4);
	EXPECT_EQ(dots(*ring), "0,0 10,0 10,10");
}


TEST(shape_delpoint, of_three_points_is_true_and_leaves_two_that_have_not_moved)
{
	shape_ptr ring = contour({{0, 0}, {10, 0}, {5, 9}});
	ring->sel = 1;
	EXPECT_TRUE(ring->delpoint());
	EXPECT_EQ(ring->num, 2);
	EXPECT_EQ(dots(*ring), "0,0 10,0");
	EXPECT_EQ(ring->frame, BRect(0, 0, 10, 9));
}


TEST(shape_delpoint, without_a_selected_point_takes_none)
{
	shape_ptr ring = box(0, 0, 10, 10);
	EXPECT_FALSE(ring->delpoint());
	ring->sel = -1;
	EXPECT_FALSE(ring->delpoint());
	EXPECT_EQ(ring->num, 4);
}


TEST(shape_delpoint, works_on_a_full_contour)
{
	shape_ptr full = row(1024);
	full->sel = 1024;
	EXPECT_FALSE(full->delpoint());
	full->sel = 1;
	EXPECT_FALSE(full->delpoint());
	EXPECT_EQ(full->num, 1022);
	EXPECT_EQ(full->frame, BRect(1, 0, 1022, 0));
}


TEST(shape_inspoint, puts_a_point_toward_the_next_one_after_the_selected_one)
{
	shape_ptr square = hit_square(BPoint(10, 0));
	square->inspoint(BPoint(0, 3));
	EXPECT_EQ(dots(*square), "0,0 10,0 10,3 10,10 0,10");
	EXPECT_EQ(square->sel, 3);
}


TEST(shape_inspoint, puts_a_point_toward_the_previous_one_before_the_selected_one)
{
	shape_ptr square = hit_square(BPoint(10, 0));
	square->inspoint(BPoint(-3, 0));
	EXPECT_EQ(dots(*square), "0,0 7,0 10,0 10,10 0,10");
	EXPECT_EQ(square->sel, 2);
}


TEST(shape_inspoint, puts_a_point_as_near_to_both_before_the_selected_one)
{
	shape_ptr square = hit_square(BPoint(10, 0));
	square->inspoint(BPoint(2, -2));
	EXPECT_EQ(dots(*square), "0,0 12,-2 10,0 10,10 0,10");
	EXPECT_EQ(square->sel, 2);
}


// The plain distances, 1 + 16.4 against 12 + 11.05, would put it after.
TEST(shape_inspoint, compares_squares_of_distances)
{
	shape_ptr ring = contour({{-1, 0}, {0, 0}, {0, 12}});
	ring->select_chk(BPoint(0, 0), 0.5F);
	ring->inspoint(BPoint(10, -1));
	EXPECT_EQ(dots(*ring), "-1,0 10,-1 0,0 0,12");
}


TEST(shape_inspoint, takes_the_last_point_for_the_one_before_the_first)
{
	shape_ptr square = hit_square(BPoint(0, 0));
	square->inspoint(BPoint(0, 3));
	EXPECT_EQ(dots(*square), "0,3 0,0 10,0 10,10 0,10");
	EXPECT_EQ(square->sel, 1);
}


TEST(shape_inspoint, takes_the_first_point_for_the_one_after_the_last)
{
	shape_ptr square = hit_square(BPoint(0, 10));
	square->inspoint(BPoint(0, -3));
	EXPECT_EQ(dots(*square), "0,0 10,0 10,10 0,10 0,7");
	EXPECT_EQ(square->sel, 5);
}


TEST(shape_inspoint, gives_the_new_point_the_flag_of_the_selected_one)
{
	shape_ptr arc = contour({{0, 0}, {10, 0, 1}, {10, 10}});
	arc->select_chk(BPoint(10, 0), 1);
	arc->inspoint(BPoint(0, 3));
	EXPECT_EQ(dots(*arc), "0,0 10,0* 10,3* 10,10");
}


TEST(shape_inspoint, finds_the_frame_anew)
{
	shape_ptr square = hit_square(BPoint(10, 0));
	square->inspoint(BPoint(20, -4));
	EXPECT_EQ(square->frame, BRect(0, -4, 30, 10));
}


TEST(shape_inspoint, happens_once_for_each_point_hit)
{
	shape_ptr square = hit_square(BPoint(10, 0));
	square->inspoint(BPoint(0, 3));
	EXPECT_EQ(square->armed, 0);
	square->inspoint(BPoint(0, 3));
	EXPECT_EQ(square->num, 5);
	square->select_chk(BPoint(10, 3), 1);
	square->inspoint(BPoint(0, 3));
	EXPECT_EQ(dots(*square), "0,0 10,0 10,3 10,6 10,10 0,10");
}


TEST(shape_inspoint, needs_a_point_hit_and_no_mere_selection)
{
	shape_ptr square = box(0, 0, 10, 10);
	square->sel = 2;
	square->inspoint(BPoint(0, 3));
	EXPECT_EQ(square->num, 4);
}


TEST(shape_inspoint, without_a_selected_point_does_nothing)
{
	for (int sel : {-1, 0, 5}) {
		shape_ptr square = box(0, 0, 10, 10);
		square->armed = 1;
		square->sel = sel;
		square->inspoint(BPoint(0, 3));
		EXPECT_EQ(dots(*square), "0,0 10,0 10,10 0,10") << sel;
	}
}


TEST(shape_inspoint, fills_a_contour_up_to_its_1024th_point)
{
	shape_ptr nearly = row(1023);
	nearly->select_chk(BPoint(1022, 0), 0.25F);
	nearly->inspoint(BPoint(0, 7));
	EXPECT_EQ(nearly->num, 1024);
	EXPECT_EQ(nearly->frame, BRect(0, 0, 1022, 7));
}


TEST(shape_inspoint, leaves_a_full_contour_as_it_is)
{
	shape_ptr full = row(1024);
	full->select_chk(BPoint(3, 0), 0.25F);
	full->inspoint(BPoint(0, 7));
	EXPECT_EQ(full->num, 1024);
	EXPECT_EQ(full->frame, BRect(0, 0, 1023, 0));
	EXPECT_EQ(full->sel, 4);
}


TEST(shape_move, moves_the_selected_point_alone)
{
	shape_ptr square = box(0, 0, 10, 10);
	square->sel = 3;
	square->move(BPoint(5, -2.5F));
	EXPECT_EQ(dots(*square), "0,0 10,0 15,7.5 0,10");
	EXPECT_EQ(square->frame, BRect(0, 0, 15, 10));
}


TEST(shape_move, moves_all_points_of_a_selected_contour)
{
	shape_ptr square = box(0, 0, 10, 10);
	square->sel = -1;
	square->move(BPoint(5, -2));
	EXPECT_EQ(dots(*square), "5,-2 15,-2 15,8 5,8");
	EXPECT_EQ(square->frame, BRect(5, -2, 15, 8));
}


TEST(shape_move, without_a_selection_does_not_even_find_the_frame_anew)
{
	shape_ptr square = box(0, 0, 10, 10);
	square->frame = BRect(1, 2, 3, 4);
	square->move(BPoint(5, 5));
	EXPECT_EQ(dots(*square), "0,0 10,0 10,10 0,10");
	EXPECT_EQ(square->frame, BRect(1, 2, 3, 4));
}


TEST(shape_move, of_a_point_past_the_end_moves_nothing)
{
	shape_ptr square = box(0, 0, 10, 10);
	square->sel = 5;
	square->move(BPoint(5, 5));
	square->sel = 2000;
	square->move(BPoint(5, 5));
	EXPECT_EQ(dots(*square), "0,0 10,0 10,10 0,10");
}
