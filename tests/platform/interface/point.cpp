// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include <Point.h>
#include <Rect.h>

#include <cstring>
#include <gtest/gtest.h>


TEST(point, starts_at_the_origin)
{
	const BPoint point;
	EXPECT_EQ(point.x, 0);
	EXPECT_EQ(point.y, 0);
	EXPECT_TRUE(point == B_ORIGIN);
}


TEST(point, is_two_floats_in_memory_x_first)
{
	const BPoint point(3, 4);
	float numbers[2] = {};
	memcpy(numbers, &point, sizeof(numbers));
	EXPECT_EQ(numbers[0], 3);
	EXPECT_EQ(numbers[1], 4);
}


TEST(point, set_replaces_both_coordinates)
{
	BPoint point(1, 2);
	point.Set(-5.5F, 7);
	EXPECT_EQ(point.x, -5.5F);
	EXPECT_EQ(point.y, 7);
}


TEST(point, sums_and_differences_are_by_coordinate)
{
	EXPECT_EQ(BPoint(1, 2) + BPoint(10, 20), BPoint(11, 22));
	EXPECT_EQ(BPoint(1, 2) - BPoint(10, 30), BPoint(-9, -28));
	EXPECT_EQ(-BPoint(1, -2), BPoint(-1, 2));
}


TEST(point, assigning_sums_change_the_point_and_return_it)
{
	BPoint point(1, 2);
	EXPECT_EQ(&(point += BPoint(3, 5)), &point);
	EXPECT_EQ(point, BPoint(4, 7));
	EXPECT_EQ(&(point -= BPoint(1, 10)), &point);
	EXPECT_EQ(point, BPoint(3, -3));
}


TEST(point, equality_is_exact_in_both_coordinates)
{
	EXPECT_TRUE(BPoint(1, 2) == BPoint(1, 2));
	EXPECT_FALSE(BPoint(1, 2) == BPoint(1.0001F, 2));
	EXPECT_FALSE(BPoint(1, 2) == BPoint(1, 2.001F));
	EXPECT_TRUE(BPoint(1, 2) != BPoint(2, 1));
	EXPECT_FALSE(BPoint(1, 2) != BPoint(1, 2));
}


TEST(point, is_constrained_to_the_edges_of_a_rectangle)
{
	const BRect rect(10, 20, 30, 40);
	BPoint left_above(0, 0);
	left_above.ConstrainTo(rect);
	EXPECT_EQ(left_above, BPoint(10, 20));
	BPoint right_below(31, 41);
	right_below.ConstrainTo(rect);
	EXPECT_EQ(right_below, BPoint(30, 40));
	BPoint right_only(99, 25);
	right_only.ConstrainTo(rect);
	EXPECT_EQ(right_only, BPoint(30, 25));
}


TEST(point, inside_or_on_an_edge_is_left_alone_by_constraining)
{
	const BRect rect(10, 20, 30, 40);
	BPoint inside(15.5F, 25);
	inside.ConstrainTo(rect);
	EXPECT_EQ(inside, BPoint(15.5F, 25));
	BPoint corner(30, 40);
	corner.ConstrainTo(rect);
	EXPECT_EQ(corner, BPoint(30, 40));
}


TEST(point, prints_one_line)
{
	testing::internal::CaptureStdout();
	BPoint(1.5F, -2).PrintToStream();
	EXPECT_EQ(testing::internal::GetCapturedStdout(), "BPoint(x:1.5, y:-2)\n");
}
