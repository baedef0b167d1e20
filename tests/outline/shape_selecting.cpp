// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// How a contour is hit.
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


TEST(shape_rectangle_hit, selects_the_contour_whose_frame_it_contains)
{
	shape_ptr square = box(10, 10, 20, 20);
	EXPECT_EQ(square->select_chk(BRect(0, 0, 30, 30)), -1);
	EXPECT_EQ(square->sel, -1);
}


TEST(shape_rectangle_hit, selects_the_contour_whose_frame_it_meets_edges_included)
{
	shape_ptr square = box(10, 10, 20, 20);
	EXPECT_EQ(square->select_chk(BRect(20, 20, 30, 30)), -1);
	square->sel = 0;
	EXPECT_EQ(square->select_chk(BRect(12, 12, 13, 13)), -1);
	EXPECT_EQ(square->sel, -1);
}


TEST(shape_rectangle_hit, that_misses_is_0)
{
	shape_ptr square = box(10, 10, 20, 20);
	EXPECT_EQ(square->select_chk(BRect(20.5F, 10, 30, 20)), 0);
	EXPECT_EQ(square->sel, 0);
}


TEST(shape_rectangle_hit, never_deselects)
{
	shape_ptr square = box(10, 10, 20, 20);
	square->sel = -1;
	EXPECT_EQ(square->select_chk(BRect(30, 30, 40, 40)), 0);
	EXPECT_EQ(square->sel, -1);
	square->sel = 2;
	EXPECT_EQ(square->select_chk(BRect(30, 30, 40, 40)), 0);
	EXPECT_EQ(square->sel, 2);
}


TEST(shape_rectangle_hit, makes_a_whole_selection_of_a_selected_point)
{
	shape_ptr square = box(10, 10, 20, 20);
	square->sel = 2;
	EXPECT_EQ(square->select_chk(BRect(0, 0, 30, 30)), -1);
	EXPECT_EQ(square->sel, -1);
}


TEST(shape_rectangle_hit, disarms_whether_it_hits_or_misses)
{
	shape_ptr hit = hit_square(BPoint(10, 0));
	hit->select_chk(BRect(0, 0, 30, 30));
	EXPECT_EQ(hit->armed, 0);
	shape_ptr missed = hit_square(BPoint(10, 0));
	missed->select_chk(BRect(50, 50, 60, 60));
	EXPECT_EQ(missed->armed, 0);
}


// Containing is four comparisons, also of the empty frame's.
TEST(shape_rectangle_hit, contains_the_empty_frame_when_it_starts_at_or_before_0)
{
	shape_ptr square = box(10, 10, 20, 20);
	square->frame = BRect();
	EXPECT_EQ(square->select_chk(BRect(0, 1, 30, 30)), 0);
	EXPECT_EQ(square->select_chk(BRect(1, 0, 30, 30)), 0);
	EXPECT_EQ(square->select_chk(BRect(0, 0, 30, 30)), -1);
}


TEST(shape_point_hit, selects_and_arms_the_point_within_the_tolerance)
{
	shape_ptr square = box(0, 0, 10, 10);
	EXPECT_EQ(square->select_chk(BPoint(8, 2), 2), 2);
	EXPECT_EQ(square->sel, 2);
	EXPECT_EQ(square->armed, 1);
}


TEST(shape_point_hit, takes_the_tolerance_on_both_axes_and_not_round)
{
	shape_ptr square = box(0, 0, 10, 10);
	EXPECT_EQ(square->select_chk(BPoint(12, -2), 2), 2);
	EXPECT_EQ(square->select_chk(BPoint(12.25F, 0), 2), 0);
	EXPECT_EQ(square->select_chk(BPoint(10, -2.25F), 2), 0);
}


TEST(shape_point_hit, takes_the_higher_index_of_two_points)
{
	shape_ptr ring = contour({{0, 0}, {1, 0}, {0, 9}});
	EXPECT_EQ(ring->select_chk(BPoint(0, 0), 2), 2);
	EXPECT_EQ(ring->sel, 2);
}


TEST(shape_point_hit, hits_control_points_too)
{
	shape_ptr arc = contour({{0, 0}, {5, 20, 1}, {10, 0}});
	EXPECT_EQ(arc->select_chk(BPoint(5, 20), 1), 2);
}


TEST(shape_point_hit, inside_the_frame_selects_the_whole_contour_unarmed)
{
	shape_ptr square = hit_square(BPoint(10, 0));
	EXPECT_EQ(square->select_chk(BPoint(5, 5), 1), -1);
	EXPECT_EQ(square->sel, -1);
	EXPECT_EQ(square->armed, 0);
}


TEST(shape_point_hit, prefers_a_point_to_the_frame)
{
	shape_ptr ring = contour({{0, 0}, {10, 0}, {10, 10}, {5, 5}});
	EXPECT_EQ(ring->select_chk(BPoint(5, 5), 1), 4);
}


TEST(shape_point_hit, outside_leaves_the_selection_and_disarms)
{
	shape_ptr square = hit_square(BPoint(10, 0));
	EXPECT_EQ(square->select_chk(BPoint(50, 50), 1), 0);
	EXPECT_EQ(square->sel, 2);
	EXPECT_EQ(square->armed, 0);
}


TEST(shape_point_hit, goes_by_the_frame_as_it_stands)
{
	shape_ptr square = box(0, 0, 10, 10);
	square->frame = BRect();
	EXPECT_EQ(square->select_chk(BPoint(5, 5), 1), 0);
}
