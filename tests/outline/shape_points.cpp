// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The points of a contour: kept, copied, mapped, judged.
#include "outline/shape_fixture.h"

#include <gtest/gtest.h>


TEST(shape, starts_unselected_unarmed_and_with_the_empty_frame)
{
	shape made(5);
	EXPECT_EQ(made.num, 5);
	EXPECT_EQ(made.sel, 0);
	EXPECT_EQ(made.armed, 0);
	EXPECT_EQ(made.frame, BRect(0, 0, -1, -1));
}


TEST(shape, has_room_for_1024_points_whatever_it_starts_with)
{
	shape made(3);
	made.set(1023, BPoint(7, 8), 1);
	made.num = 1024;
	BPoint p;
	char f = 0;
	EXPECT_TRUE(made.get(1023, p, f));
	EXPECT_EQ(p, BPoint(7, 8));
	EXPECT_EQ(f, 1);
}


TEST(shape, of_more_points_than_it_holds_has_1024)
{
	EXPECT_EQ(shape(1024).num, 1024);
	EXPECT_EQ(shape(1025).num, 1024);
	EXPECT_EQ(shape(65536).num, 1024);
}


TEST(shape, of_a_negative_count_has_no_points)
{
	EXPECT_EQ(shape(-1).num, 0);
}


TEST(shape_set, changes_neither_the_count_nor_the_frame)
{
	shape_ptr square = box(0, 0, 10, 10);
	square->set(2, BPoint(90, 80), 1);
	square->set(4, BPoint(-5, -5), 0);
	EXPECT_EQ(dots(*square), "0,0 10,0 90,80* 0,10");
	EXPECT_EQ(square->frame, BRect(0, 0, 10, 10));
}


TEST(shape_set, outside_the_arrays_writes_nothing)
{
	shape_ptr square = box(0, 0, 10, 10);
	square->set(-1, BPoint(1, 1), 1);
	square->set(1024, BPoint(1, 1), 1);
	EXPECT_EQ(dots(*square), "0,0 10,0 10,10 0,10");
}


TEST(shape_get, gives_the_point_and_its_flag)
{
	shape_ptr arc = contour({{0, 0}, {5.5F, -2, 1}, {10, 0}});
	BPoint p;
	char f = 0;
	EXPECT_TRUE(arc->get(1, p, f));
	EXPECT_EQ(p, BPoint(5.5F, -2));
	EXPECT_EQ(f, 1);
}


TEST(shape_get, past_the_last_point_is_false_and_touches_nothing)
{
	shape_ptr square = box(0, 0, 10, 10);
	BPoint p(3, 4);
	char f = 5;
	EXPECT_FALSE(square->get(4, p, f));
	EXPECT_FALSE(square->get(1024, p, f));
	EXPECT_FALSE(square->get(-1, p, f));
	EXPECT_EQ(p, BPoint(3, 4));
	EXPECT_EQ(f, 5);
}


TEST(shape_frame, is_the_box_of_all_points_control_points_too)
{
	shape_ptr arc = contour({{3, 4}, {-7.5F, 20, 1}, {9, -2}});
	EXPECT_EQ(arc->frame, BRect(-7.5F, -2, 9, 20));
}


TEST(shape_frame, of_one_point_is_that_point)
{
	EXPECT_EQ(contour({{3, 4}})->frame, BRect(3, 4, 3, 4));
}


TEST(shape_frame, of_no_point_is_the_empty_one)
{
	shape none(0);
	none.frame = BRect(1, 2, 3, 4);
	none.ctrlp2form();
	EXPECT_EQ(none.frame, BRect(0, 0, -1, -1));
}


TEST(shape_copy, has_points_flags_selection_and_frame)
{
	shape_ptr arc = contour({{0, 0}, {5, 8, 1}, {10, 0}});
	arc->sel = 2;
	arc->frame = BRect(1, 2, 3, 4);
	shape_ptr copy(arc->copy());
	EXPECT_EQ(dots(*copy), "0,0 5,8* 10,0");
	EXPECT_EQ(copy->sel, 2);
	EXPECT_EQ(copy->frame, BRect(1, 2, 3, 4));
}


TEST(shape_copy, is_not_armed)
{
	shape_ptr square = box(0, 0, 10, 10);
	square->select_chk(BPoint(10, 0), 1);
	ASSERT_EQ(square->armed, 1);
	EXPECT_EQ(shape_ptr(square->copy())->armed, 0);
}


TEST(shape_copy, shares_no_points)
{
	shape_ptr square = box(0, 0, 10, 10);
	shape_ptr copy(square->copy());
	copy->set(0, BPoint(-3, -3), 1);
	EXPECT_EQ(dots(*square), "0,0 10,0 10,10 0,10");
}


TEST(shape_transcopy, of_the_identity_moves_by_the_offset)
{
	shape_ptr arc = contour({{0, 0}, {5, 8, 1}, {10, 0}});
	shape_ptr copy(arc->transcopy(100, -20, 16384, 0, 0, 16384));
	EXPECT_EQ(dots(*copy), "100,-20 105,-12* 110,-20");
}


TEST(shape_transcopy, is_unselected_unarmed_and_without_a_frame)
{
	shape_ptr square = box(0, 0, 10, 10);
	square->select_chk(BPoint(10, 0), 1);
	shape_ptr copy(square->transcopy(1, 2, 16384, 0, 0, 16384));
	EXPECT_EQ(copy->sel, 0);
	EXPECT_EQ(copy->armed, 0);
	EXPECT_EQ(copy->frame, BRect(0, 0, -1, -1));
}


TEST(shape_transcopy, of_half_a_unit_makes_every_x_b_times_y_plus_dx)
{
	shape_ptr line = contour({{1, 2}, {30, 4}, {500, 6}});
	shape_ptr copy(line->transcopy(7, 0, 0x2000, 16384, 0, 16384));
	EXPECT_EQ(dots(*copy), "9,2 11,4 13,6");
}


TEST(shape_transcopy, mixes_x_and_y_by_all_four_factors)
{
	shape_ptr line = contour({{10, 1}});
	shape_ptr copy(line->transcopy(1000, 2000, 16384, -16384, -32768, 16384));
	EXPECT_EQ(dots(*copy), "1009,1981");
}


// A shift would make -1 of the small negative ones, and -2 of those just past -1.
TEST(shape_transcopy, divides_by_whole_numbers_toward_zero_and_does_not_shift)
{
	shape_ptr dot = contour({{10, 100}});
	EXPECT_EQ(dots(*shape_ptr(dot->transcopy(0, 0, -1, 0, 0, -16383))), "0,0");
	EXPECT_EQ(dots(*shape_ptr(dot->transcopy(0, 0, -16385, 0, 0, -32767))), "-10,-100");
}


TEST(shape_transcopy, knows_only_the_factors_from_minus_2_to_1)
{
	shape_ptr dot = contour({{10, 100}});
	EXPECT_EQ(dots(*shape_ptr(dot->transcopy(0, 0, 16383, 0, 0, 16384))), "0,100");
	EXPECT_EQ(dots(*shape_ptr(dot->transcopy(0, 0, 32767, 0, 0, 24576))), "10,100");
	EXPECT_EQ(dots(*shape_ptr(dot->transcopy(0, 0, -16384, 0, 0, -32768))), "-10,-200");
}


TEST(shape_trans, scales_inclusive_pixels)
{
	shape_ptr line = contour({{0, 0}, {50, 25}, {99, 99}});
	line->trans(BRect(0, 0, 99, 99), BRect(0, 0, 199, 199));
	EXPECT_EQ(dots(*line), "0,0 100,50 198,198");
}


TEST(shape_trans, moves_the_left_top_of_one_rectangle_to_that_of_the_other)
{
	shape_ptr line = contour({{10, 20}, {12, 25}});
	line->trans(BRect(10, 20, 19, 39), BRect(100, 200, 119, 219));
	EXPECT_EQ(dots(*line), "100,200 104,205");
}


TEST(shape_trans, turns_y_round_for_a_bottom_above_the_top)
{
	shape_ptr line = contour({{10, 20}, {0, 99}, {0, 0}});
	line->trans(BRect(0, 99, 99, 0), BRect(0, 0, 99, 99));
	EXPECT_EQ(dots(*line), "10,79 0,0 0,99");
}


TEST(shape_trans, counts_a_negative_distance_one_further_from_zero_too)
{
	shape_ptr line = contour({{0, 0}, {30, 0}});
	line->trans(BRect(0, 0, -9, 0), BRect(0, 0, 19, 0));
	EXPECT_EQ(dots(*line), "0,0 -60,0");
}


TEST(shape_trans, takes_equal_edges_for_one_pixel)
{
	shape_ptr line = contour({{5, 5}, {6, 5}});
	line->trans(BRect(5, 5, 5, 5), BRect(0, 0, 9, 9));
	EXPECT_EQ(dots(*line), "0,0 10,0");
}


TEST(shape_trans, finds_the_frame_anew)
{
	shape_ptr line = contour({{0, 0}, {50, 25}});
	line->frame = BRect();
	line->trans(BRect(0, 0, 99, 99), BRect(0, 0, 199, 199));
	EXPECT_EQ(line->frame, BRect(0, 0, 100, 50));
}


TEST(shape_ispositive, is_true_when_x_grows_through_the_point_of_the_smallest_y)
{
	EXPECT_TRUE(contour({{0, 0}, {10, 0}, {10, 10}, {0, 10}})->ispositive());
	EXPECT_TRUE(contour({{0, 10}, {5, 0}, {9, 10}})->ispositive());
}


TEST(shape_ispositive, is_false_when_x_shrinks_through_it)
{
	EXPECT_FALSE(contour({{0, 0}, {0, 10}, {10, 10}, {10, 0}})->ispositive());
	EXPECT_FALSE(contour({{9, 10}, {5, 0}, {0, 10}})->ispositive());
}


TEST(shape_ispositive, is_false_for_a_vertical_way_in_and_a_way_out_to_the_left)
{
	EXPECT_FALSE(contour({{5, 10}, {5, 0}, {0, 10}})->ispositive());
}


TEST(shape_ispositive, is_true_when_both_ways_are_vertical)
{
	EXPECT_TRUE(contour({{5, 10}, {5, 0}, {5, 20}})->ispositive());
}


TEST(shape_ispositive, compares_the_slopes_of_a_spike)
{
	// In with slope -2, out with -4, then with -1.
	EXPECT_TRUE(contour({{0, 10}, {5, 0}, {0, 20}})->ispositive());
	EXPECT_FALSE(contour({{0, 10}, {5, 0}, {0, 5}})->ispositive());
	// In with slope 2, out with 1, then with 4.
	EXPECT_TRUE(contour({{10, 10}, {5, 0}, {10, 5}})->ispositive());
	EXPECT_FALSE(contour({{10, 10}, {5, 0}, {10, 20}})->ispositive());
}


TEST(shape_ispositive, is_false_for_equal_slopes)
{
	EXPECT_FALSE(contour({{0, 10}, {5, 0}, {0, 10}, {0, 30}})->ispositive());
}


// The second of the two lowest points would give the other answer.
TEST(shape_ispositive, looks_at_the_first_of_several_lowest_points)
{
	EXPECT_TRUE(contour({{0, 9}, {5, 0}, {9, 9}, {5, 0}, {1, 8}})->ispositive());
}


TEST(shape_ispositive, asks_the_lowest_point_alone_and_no_area)
{
	// A small loop at the bottom the other way round than the large rest.
	auto looped = contour({{2, 2}, {1, 0}, {0, 2}, {0, 100}, {90, 100}, {90, 3}, {0, 3}, {0, 2}});
	EXPECT_FALSE(looped->ispositive());
	EXPECT_TRUE(contour({{0, 2}, {1, 0}, {2, 2}, {0, 3}, {0, 100}, {90, 100}})->ispositive());
}


TEST(shape_ispositive, counts_a_control_point_like_any_other)
{
	EXPECT_TRUE(contour({{10, 10}, {0, 10}, {0, 5}, {5, -9, 1}, {10, 5}})->ispositive());
	EXPECT_FALSE(contour({{10, 5}, {5, -9, 1}, {0, 5}, {0, 10}, {10, 10}})->ispositive());
}


TEST(shape_ispositive, goes_round_the_ends_of_the_list)
{
	EXPECT_TRUE(contour({{5, 0}, {9, 10}, {0, 10}})->ispositive());
	EXPECT_TRUE(contour({{9, 10}, {0, 10}, {5, 0}})->ispositive());
	EXPECT_FALSE(contour({{5, 0}, {0, 10}, {9, 10}})->ispositive());
	EXPECT_FALSE(contour({{0, 10}, {9, 10}, {5, 0}})->ispositive());
}


TEST(shape_reverse, swaps_points_and_flags_end_for_end)
{
	shape_ptr ring = contour({{0, 0, 1}, {1, 0}, {2, 0, 1}, {3, 0}});
	ring->sel = -1;
	ring->reverse();
	EXPECT_EQ(dots(*ring), "3,0 2,0* 1,0 0,0*");
}


TEST(shape_reverse, leaves_the_middle_of_an_odd_count)
{
	shape_ptr ring = contour({{0, 0}, {1, 0, 1}, {2, 0}});
	ring->sel = -1;
	ring->reverse();
	EXPECT_EQ(dots(*ring), "2,0 1,0* 0,0");
}


TEST(shape_reverse, happens_only_when_the_whole_contour_is_selected)
{
	shape_ptr ring = contour({{0, 0}, {1, 0}, {2, 0}});
	ring->reverse();
	ring->sel = 1;
	ring->reverse();
	EXPECT_EQ(dots(*ring), "0,0 1,0 2,0");
}


TEST(shape_reverse, leaves_the_frame_even_a_stale_one)
{
	shape_ptr ring = contour({{0, 0}, {1, 0}, {2, 0}});
	ring->frame = BRect(1, 2, 3, 4);
	ring->sel = -1;
	ring->reverse();
	EXPECT_EQ(ring->frame, BRect(1, 2, 3, 4));
}
