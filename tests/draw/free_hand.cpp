// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// How a free-hand stroke is recorded.
#include "draw/draw_fixture.h"
#include "draw/obj_free.h"

#include <gtest/gtest.h>


TEST(obj_free, records_the_pointer_at_every_event)
{
	obj_free made;
	EXPECT_EQ(press(made, 1, 2), 1);
	EXPECT_EQ(drag(made, 3, 4), 2);
	EXPECT_EQ(hover(made, 5, 6), 3);
	EXPECT_EQ(step_back(made, 7, 8), 4);
	EXPECT_EQ(event(made, 99, 9, 9), 5);
	EXPECT_EQ(points(made), "1,2 3,4 5,6 7,8 9,9");
}


TEST(obj_free, records_one_point_for_events_at_the_same_place)
{
	obj_free made;
	press(made, 1, 2);
	EXPECT_EQ(drag(made, 1, 2), 1);
	EXPECT_EQ(drag(made, 3, 4), 2);
	EXPECT_EQ(drag(made, 3, 4), 2);
	EXPECT_EQ(drag(made, 1, 2), 3);
	EXPECT_EQ(points(made), "1,2 3,4 1,2");
}


TEST(obj_free, is_complete_where_it_is_released)
{
	obj_free made;
	press(made, 1, 2);
	EXPECT_EQ(release(made, 3, 4), -1);
	EXPECT_EQ(points(made), "1,2 3,4");
}


TEST(obj_free, records_no_second_point_for_a_release_where_the_drag_ended)
{
	obj_free made;
	press(made, 1, 2);
	drag(made, 3, 4);
	EXPECT_EQ(release(made, 3, 4), -1);
	EXPECT_EQ(points(made), "1,2 3,4");
}


TEST(obj_free, is_abandoned_when_released_without_a_movement)
{
	canvas_of area(999, 999);
	obj_free made;
	press(made, 1, 2, 10);
	EXPECT_EQ(release(made, 1, 2, 10), -2);
	EXPECT_EQ(contours_of(made).size(), 0U);
}


TEST(obj_free, stays_as_it_is_once_complete_or_abandoned)
{
	obj_free complete;
	draw_through(complete, {{1, 2}, {3, 4}});
	EXPECT_EQ(drag(complete, 9, 9), -1);
	EXPECT_EQ(points(complete), "1,2 3,4");
	obj_free abandoned;
	release(abandoned, 1, 2);
	EXPECT_EQ(press(abandoned, 9, 9), -2);
	EXPECT_EQ(abandoned.num, 1);
}


TEST(obj_free, takes_the_pen_of_its_first_event)
{
	obj_free made;
	EXPECT_EQ(made.width, 0);
	press(made, 1, 2, 35);
	drag(made, 3, 4, 100);
	EXPECT_EQ(made.width, 35);
}


TEST(obj_free, takes_a_pen_of_up_to_255)
{
	obj_free made;
	press(made, 1, 2, 255);
	EXPECT_EQ(made.width, 255);
}


TEST(obj_free, grows_by_256_points)
{
	obj_free made;
	for (int i = 0; i < 1000; i++)
		ASSERT_EQ(drag(made, (float)i, (float)(i % 3)), i + 1);
	EXPECT_EQ(made.pts[0], BPoint(0, 0));
	EXPECT_EQ(made.pts[255], BPoint(255, 0));
	EXPECT_EQ(made.pts[256], BPoint(256, 1));
	EXPECT_EQ(made.pts[512], BPoint(512, 2));
	EXPECT_EQ(made.pts[999], BPoint(999, 0));
}
