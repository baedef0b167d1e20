// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include <Rect.h>

#include <cmath>
#include <cstring>
#include <gtest/gtest.h>


TEST(rect, starts_empty_and_invalid)
{
	const BRect rect;
	EXPECT_EQ(rect, BRect(0, 0, -1, -1));
	EXPECT_FALSE(rect.IsValid());
}


TEST(rect, is_four_floats_in_memory_left_top_right_bottom)
{
	const BRect rect(1, 2, 3, 4);
	float numbers[4] = {};
	memcpy(numbers, &rect, sizeof(numbers));
	EXPECT_EQ(numbers[0], 1);
	EXPECT_EQ(numbers[1], 2);
	EXPECT_EQ(numbers[2], 3);
	EXPECT_EQ(numbers[3], 4);
}


TEST(rect, is_made_of_two_corners)
{
	EXPECT_EQ(BRect(BPoint(1, 2), BPoint(3, 4)), BRect(1, 2, 3, 4));
}


TEST(rect, is_kept_as_given_never_put_in_order)
{
	const BRect rect(30, 40, 10, 20);
	EXPECT_EQ(rect.left, 30);
	EXPECT_EQ(rect.top, 40);
	EXPECT_EQ(rect.right, 10);
	EXPECT_EQ(rect.bottom, 20);
	EXPECT_EQ(rect.Width(), -20);
	EXPECT_EQ(rect.Height(), -20);
	BRect set;
	set.Set(30, 40, 10, 20);
	EXPECT_EQ(set, rect);
}


TEST(rect, width_is_one_less_than_the_count_of_pixels)
{
	const BRect rect(10, 20, 10, 29);
	EXPECT_EQ(rect.Width(), 0);
	EXPECT_EQ(rect.Height(), 9);
}


TEST(rect, integer_sizes_are_rounded_up)
{
	EXPECT_EQ(BRect(0, 0, 10.25F, 20).IntegerWidth(), 11);
	EXPECT_EQ(BRect(0, 0, 10, 20.75F).IntegerHeight(), 21);
	EXPECT_EQ(BRect(0, 0, 10, 20).IntegerWidth(), 10);
	EXPECT_EQ(BRect(1.5F, 0, 0, 0).IntegerWidth(), -1);
}


TEST(rect, integer_sizes_beyond_an_integer_stop_at_its_limits)
{
	EXPECT_EQ(BRect(-3e9F, 3e9F, 3e9F, -3e9F).IntegerWidth(), 2147483647);
	EXPECT_EQ(BRect(-3e9F, 3e9F, 3e9F, -3e9F).IntegerHeight(), -2147483647 - 1);
	EXPECT_EQ(BRect(0, 0, NAN, NAN).IntegerWidth(), 0);
	EXPECT_EQ(BRect(0, 0, INFINITY, 0).IntegerWidth(), 2147483647);
}


TEST(rect, a_single_pixel_is_valid_and_less_is_not)
{
	EXPECT_TRUE(BRect(5, 5, 5, 5).IsValid());
	EXPECT_FALSE(BRect(5, 5, 4, 5).IsValid());
	EXPECT_FALSE(BRect(5, 5, 5, 4).IsValid());
}


TEST(rect, corners_are_read)
{
	const BRect rect(1, 2, 3, 4);
	EXPECT_EQ(rect.LeftTop(), BPoint(1, 2));
	EXPECT_EQ(rect.RightBottom(), BPoint(3, 4));
	EXPECT_EQ(rect.LeftBottom(), BPoint(1, 4));
	EXPECT_EQ(rect.RightTop(), BPoint(3, 2));
}


TEST(rect, setting_a_corner_moves_its_two_edges_only)
{
	BRect rect(1, 2, 3, 4);
	rect.SetLeftTop(BPoint(10, 20));
	EXPECT_EQ(rect, BRect(10, 20, 3, 4));
	rect = BRect(1, 2, 3, 4);
	rect.SetRightBottom(BPoint(10, 20));
	EXPECT_EQ(rect, BRect(1, 2, 10, 20));
	rect = BRect(1, 2, 3, 4);
	rect.SetLeftBottom(BPoint(10, 20));
	EXPECT_EQ(rect, BRect(10, 2, 3, 20));
	rect = BRect(1, 2, 3, 4);
	rect.SetRightTop(BPoint(10, 20));
	EXPECT_EQ(rect, BRect(1, 20, 10, 4));
}


TEST(rect, a_positive_inset_shrinks_on_all_sides)
{
	BRect rect(10, 20, 30, 40);
	rect.InsetBy(1, 2);
	EXPECT_EQ(rect, BRect(11, 22, 29, 38));
	rect.InsetBy(BPoint(-1, -2));
	EXPECT_EQ(rect, BRect(10, 20, 30, 40));
}


TEST(rect, offsets_keep_the_size)
{
	BRect rect(10, 20, 30, 40);
	rect.OffsetBy(5, -5);
	EXPECT_EQ(rect, BRect(15, 15, 35, 35));
	rect.OffsetBy(BPoint(-5, 5));
	EXPECT_EQ(rect, BRect(10, 20, 30, 40));
	rect.OffsetTo(0, 1);
	EXPECT_EQ(rect, BRect(0, 1, 20, 21));
	rect.OffsetTo(BPoint(7, 8));
	EXPECT_EQ(rect, BRect(7, 8, 27, 28));
}


TEST(rect, contains_the_points_on_its_edges)
{
	const BRect rect(10, 20, 30, 40);
	EXPECT_TRUE(rect.Contains(BPoint(10, 20)));
	EXPECT_TRUE(rect.Contains(BPoint(30, 40)));
	EXPECT_TRUE(rect.Contains(BPoint(20, 30)));
	EXPECT_FALSE(rect.Contains(BPoint(9.5F, 30)));
	EXPECT_FALSE(rect.Contains(BPoint(30.5F, 30)));
	EXPECT_FALSE(rect.Contains(BPoint(20, 19)));
	EXPECT_FALSE(rect.Contains(BPoint(20, 41)));
}


TEST(rect, contains_itself_and_what_sticks_out_nowhere)
{
	const BRect rect(10, 20, 30, 40);
	EXPECT_TRUE(rect.Contains(rect));
	EXPECT_TRUE(rect.Contains(BRect(11, 21, 29, 39)));
	EXPECT_FALSE(rect.Contains(BRect(9, 21, 29, 39)));
	EXPECT_FALSE(rect.Contains(BRect(11, 19, 29, 39)));
	EXPECT_FALSE(rect.Contains(BRect(11, 21, 31, 39)));
	EXPECT_FALSE(rect.Contains(BRect(11, 21, 29, 41)));
}


TEST(rect, containment_does_not_ask_for_validity)
{
	EXPECT_TRUE(BRect(0, 0, 10, 10).Contains(BRect()));
	EXPECT_TRUE(BRect(0, 0, 10, 10).Contains(BRect(5, 5, -100, -100)));
	EXPECT_FALSE(BRect(1, 1, 10, 10).Contains(BRect()));
	EXPECT_FALSE(BRect().Contains(BPoint(0, 0)));
}


TEST(rect, touching_edges_and_corners_intersect)
{
	const BRect rect(10, 20, 30, 40);
	EXPECT_TRUE(rect.Intersects(BRect(30, 20, 50, 40)));
	EXPECT_TRUE(rect.Intersects(BRect(0, 0, 10, 20)));
	EXPECT_TRUE(rect.Intersects(BRect(15, 25, 16, 26)));
	EXPECT_TRUE(rect.Intersects(BRect(0, 0, 100, 100)));
}


TEST(rect, apart_on_any_side_does_not_intersect)
{
	const BRect rect(10, 20, 30, 40);
	EXPECT_FALSE(rect.Intersects(BRect(31, 20, 50, 40)));
	EXPECT_FALSE(rect.Intersects(BRect(0, 20, 9, 40)));
	EXPECT_FALSE(rect.Intersects(BRect(10, 41, 30, 50)));
	EXPECT_FALSE(rect.Intersects(BRect(10, 0, 30, 19)));
}


TEST(rect, an_invalid_rectangle_intersects_nothing)
{
	EXPECT_FALSE(BRect(0, 0, 10, 10).Intersects(BRect(5, 5, 4, 6)));
	EXPECT_FALSE(BRect(5, 5, 4, 6).Intersects(BRect(0, 0, 10, 10)));
	EXPECT_FALSE(BRect(-5, -5, 5, 5).Intersects(BRect()));
}


TEST(rect, the_common_part_takes_the_inner_edges)
{
	EXPECT_EQ(BRect(0, 0, 20, 20) & BRect(10, 5, 30, 15), BRect(10, 5, 20, 15));
	EXPECT_EQ(BRect(0, 0, 10, 10) & BRect(20, 20, 30, 30), BRect(20, 20, 10, 10));
}


TEST(rect, the_union_takes_the_outer_edges_of_invalid_ones_too)
{
	EXPECT_EQ(BRect(0, 0, 20, 20) | BRect(10, 5, 30, 15), BRect(0, 0, 30, 20));
	EXPECT_EQ(BRect(5, 5, 10, 10) | BRect(), BRect(0, 0, 10, 10));
}


TEST(rect, equality_is_exact_in_all_four_edges)
{
	const BRect rect(1, 2, 3, 4);
	EXPECT_TRUE(rect == BRect(1, 2, 3, 4));
	EXPECT_FALSE(rect != BRect(1, 2, 3, 4));
	EXPECT_TRUE(rect != BRect(1.001F, 2, 3, 4));
	EXPECT_TRUE(rect != BRect(1, 2.001F, 3, 4));
	EXPECT_TRUE(rect != BRect(1, 2, 3.001F, 4));
	EXPECT_TRUE(rect != BRect(1, 2, 3, 4.001F));
}
