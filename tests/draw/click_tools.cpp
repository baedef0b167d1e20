// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The tools that fix a point at each click.
#include "draw/draw_fixture.h"
#include "draw/obj_polygon.h"
#include "draw/obj_round.h"

#include <gtest/gtest.h>


TEST(obj_polygon, fixes_its_first_point_and_has_one_pending)
{
	obj_polygon made;
	EXPECT_EQ(press(made, 10, 20), 1);
	EXPECT_EQ(points(made), "10,20 10,20");
}


TEST(obj_polygon, follows_the_pointer_with_the_pending_point)
{
	obj_polygon made;
	press(made, 10, 20);
	EXPECT_EQ(hover(made, 30, 40), 1);
	EXPECT_EQ(hover(made, 50, 60), 1);
	EXPECT_EQ(points(made), "10,20 50,60");
}


TEST(obj_polygon, fixes_a_point_at_each_press)
{
	obj_polygon made;
	press(made, 10, 20);
	hover(made, 29, 39);
	EXPECT_EQ(press(made, 30, 40), 2);
	EXPECT_EQ(points(made), "10,20 30,40 30,40");
	EXPECT_EQ(press(made, 50, 20), 3);
	EXPECT_EQ(points(made), "10,20 30,40 50,20 50,20");
}


TEST(obj_polygon, is_complete_when_pressed_on_its_last_point_again)
{
	obj_polygon made;
	press(made, 10, 20);
	press(made, 30, 40);
	press(made, 50, 20);
	hover(made, 51, 21);
	EXPECT_EQ(press(made, 51, 21), -1);
	EXPECT_EQ(points(made), "10,20 30,40 50,20");
}


TEST(obj_polygon, is_complete_when_pressed_two_units_away_on_both_axes)
{
	for (BPoint away : {BPoint(2, 2), BPoint(-2, 2), BPoint(2, -2), BPoint(-2, -2)}) {
		obj_polygon made;
		press(made, 10, 20);
		press(made, 50, 20);
		EXPECT_EQ(press(made, 50 + away.x, 20 + away.y), -1) << away;
		EXPECT_EQ(points(made), "10,20 50,20");
	}
}


TEST(obj_polygon, goes_on_when_pressed_two_and_a_half_units_away_on_either_axis)
{
	for (BPoint away : {BPoint(2.5F, 0), BPoint(-2.5F, 0), BPoint(0, 2.5F), BPoint(0, -2.5F)}) {
		obj_polygon made;
		press(made, 10, 20);
		press(made, 50, 20);
		EXPECT_EQ(press(made, 50 + away.x, 20 + away.y), 3) << away;
		EXPECT_EQ(made.num, 4);
	}
}


TEST(obj_polygon, is_not_completed_on_another_than_the_last_point)
{
	obj_polygon made;
	press(made, 10, 20);
	press(made, 30, 40);
	EXPECT_EQ(press(made, 10, 20), 3);
}


TEST(obj_polygon, pressed_twice_at_one_place_is_complete_with_one_point)
{
	obj_polygon made;
	press(made, 10, 20);
	EXPECT_EQ(press(made, 10, 20), -1);
	EXPECT_EQ(dots_of(made), "10,20");
}


TEST(obj_polygon, steps_back_to_the_point_before)
{
	obj_polygon made;
	press(made, 10, 20);
	press(made, 30, 40);
	press(made, 50, 20);
	EXPECT_EQ(step_back(made, 60, 70), 2);
	EXPECT_EQ(points(made), "10,20 30,40 60,70");
	EXPECT_EQ(step_back(made, 61, 71), 1);
	EXPECT_EQ(points(made), "10,20 61,71");
}


TEST(obj_polygon, goes_on_after_a_step_back)
{
	obj_polygon made;
	press(made, 10, 20);
	press(made, 30, 40);
	step_back(made, 60, 70);
	EXPECT_EQ(press(made, 80, 20), 2);
	EXPECT_EQ(points(made), "10,20 80,20 80,20");
	EXPECT_EQ(press(made, 80, 20), -1);
	EXPECT_EQ(dots_of(made), "10,20 80,20");
}


TEST(obj_polygon, is_abandoned_by_a_step_back_from_its_only_point)
{
	obj_polygon made;
	press(made, 10, 20);
	hover(made, 30, 40);
	EXPECT_EQ(step_back(made, 30, 40), -2);
	EXPECT_EQ(made.num, 0);
}


TEST(obj_polygon, is_abandoned_by_a_step_back_that_comes_first)
{
	obj_polygon made;
	EXPECT_EQ(step_back(made, 30, 40), -2);
	EXPECT_EQ(made.num, 0);
}


TEST(obj_polygon, passes_over_a_hover_that_comes_first)
{
	obj_polygon made;
	EXPECT_EQ(hover(made, 30, 40), 0);
	EXPECT_EQ(made.num, 0);
}


TEST(obj_polygon, passes_over_drags_and_releases)
{
	obj_polygon made;
	press(made, 10, 20);
	for (int code : {0, 2, 3, 5, 7, 255})
		EXPECT_EQ(event(made, code, 30, 40), 1) << code;
	EXPECT_EQ(points(made), "10,20 10,20");
}


TEST(obj_polygon, stays_as_it_is_once_complete_or_abandoned)
{
	obj_polygon complete;
	press(complete, 10, 20);
	press(complete, 30, 40);
	press(complete, 30, 40);
	for (int code : {1, 4, 6})
		EXPECT_EQ(event(complete, code, 70, 80), -1) << code;
	EXPECT_EQ(points(complete), "10,20 30,40");
	obj_polygon abandoned;
	step_back(abandoned, 0, 0);
	for (int code : {1, 4, 6})
		EXPECT_EQ(event(abandoned, code, 70, 80), -2) << code;
	EXPECT_EQ(abandoned.num, 0);
}


TEST(obj_polygon, becomes_a_contour_of_points_on_the_curve_in_the_order_of_the_clicks)
{
	obj_polygon made;
	press(made, 50, 20);
	press(made, 30, 40);
	press(made, 10, 20);
	press(made, 11, 19);
	const contours all = contours_of(made);
	ASSERT_EQ(all.size(), 1U);
	EXPECT_EQ(dots(*all[0]), "50,20 30,40 10,20");
	EXPECT_EQ(all[0]->frame, BRect(10, 20, 50, 40));
	EXPECT_EQ(all[0]->sel, 0);
}


// The 300 fixed points and the pending one do not fit the first 256.
TEST(obj_polygon, grows_beyond_256_points)
{
	obj_polygon made;
	for (int i = 0; i < 300; i++)
		ASSERT_EQ(press(made, (float)(10 * i), (float)(i % 7)), i + 1);
	EXPECT_EQ(made.num, 301);
	EXPECT_EQ(press(made, 2990, 5), -1);
	const contours all = contours_of(made);
	ASSERT_EQ(all.size(), 1U);
	EXPECT_EQ(all[0]->num, 300);
	EXPECT_EQ(all[0]->pts[0], BPoint(0, 0));
	EXPECT_EQ(all[0]->pts[254], BPoint(2540, 2));
	EXPECT_EQ(all[0]->pts[255], BPoint(2550, 3));
	EXPECT_EQ(all[0]->pts[256], BPoint(2560, 4));
	EXPECT_EQ(all[0]->pts[299], BPoint(2990, 5));
}


TEST(obj_polygon, steps_back_and_forth_over_the_256th_point)
{
	obj_polygon made;
	for (int i = 0; i < 257; i++)
		press(made, (float)(10 * i), 0);
	for (int round = 0; round < 3; round++) {
		step_back(made, 5, 5);
		step_back(made, 5, 5);
		EXPECT_EQ(made.num, 256);
		press(made, 9000, 1);
		press(made, 9010, 1);
		EXPECT_EQ(made.num, 258);
	}
	EXPECT_EQ(made.pts[254], BPoint(2540, 0));
	EXPECT_EQ(made.pts[255], BPoint(9000, 1));
	EXPECT_EQ(made.pts[256], BPoint(9010, 1));
	EXPECT_EQ(made.pts[257], BPoint(9010, 1));
}


TEST(obj_polygon, leaves_out_what_a_contour_has_no_room_for)
{
	obj_polygon made;
	for (int i = 0; i < 1030; i++)
		press(made, (float)(10 * i), 0);
	press(made, 10290, 0);
	EXPECT_EQ(made.num, 1030);
	const contours all = contours_of(made);
	ASSERT_EQ(all.size(), 1U);
	EXPECT_EQ(all[0]->num, 1024);
	EXPECT_EQ(all[0]->frame, BRect(0, 0, 10230, 0));
}


TEST(obj_round, takes_the_events_of_a_polygon)
{
	obj_round made;
	EXPECT_EQ(press(made, 10, 20), 1);
	EXPECT_EQ(hover(made, 30, 40), 1);
	EXPECT_EQ(press(made, 30, 40), 2);
	EXPECT_EQ(press(made, 50, 20), 3);
	EXPECT_EQ(step_back(made, 60, 60), 2);
	EXPECT_EQ(press(made, 60, 60), 3);
	EXPECT_EQ(press(made, 62, 58), -1);
	EXPECT_EQ(points(made), "10,20 30,40 60,60");
}


TEST(obj_round, becomes_a_contour_of_control_points)
{
	obj_round made;
	press(made, 10, 20);
	press(made, 50, 20);
	press(made, 30, 40);
	press(made, 30, 40);
	const contours all = contours_of(made);
	ASSERT_EQ(all.size(), 1U);
	EXPECT_EQ(dots(*all[0]), "10,20* 50,20* 30,40*");
	EXPECT_EQ(all[0]->frame, BRect(10, 20, 50, 40));
	EXPECT_EQ(all[0]->sel, 0);
}


TEST(obj_round, is_abandoned_by_a_step_back_from_its_only_point)
{
	obj_round made;
	press(made, 10, 20);
	EXPECT_EQ(step_back(made, 10, 20), -2);
}


// Points that are there from the start leave room for those that come.
TEST(object_l, appends_to_the_points_that_it_was_made_with)
{
	for (int count : {4, 255, 256, 257}) {
		object_l made(count);
		press(made, 10, 20);
		press(made, 30, 40);
		EXPECT_EQ(made.num, count + 3) << count;
		EXPECT_EQ(made.pts[count + 2], BPoint(30, 40)) << count;
		EXPECT_EQ(made.pts[0], BPoint(0, 0)) << count;
	}
}
