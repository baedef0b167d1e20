// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// What all drawing objects share, and the tools dragged from corner to corner.
#include "draw/draw_fixture.h"
#include "draw/obj_ellipse.h"
#include "draw/obj_free.h"
#include "draw/obj_polygon.h"
#include "draw/obj_rect.h"
#include "draw/obj_round.h"

#include <gtest/gtest.h>
#include <type_traits>
#include <View.h>

static_assert(std::has_virtual_destructor_v<object>, "the editor destroys any object as one");
static_assert(std::is_base_of_v<object_r, obj_rect> && std::is_base_of_v<object_r, obj_ellipse>);
static_assert(std::is_base_of_v<object_l, obj_polygon> && std::is_base_of_v<object_l, obj_round>);
static_assert(std::is_base_of_v<object, obj_free>);


TEST(object, begins_with_the_points_it_is_made_for)
{
	object made(7);
	EXPECT_EQ(made.state, 0);
	EXPECT_EQ(made.num, 7);
	EXPECT_EQ(points(made), "0,0 0,0 0,0 0,0 0,0 0,0 0,0");
}


TEST(object, begins_empty_when_made_for_none)
{
	object made(0);
	EXPECT_EQ(made.state, 0);
	EXPECT_EQ(made.num, 0);
}


TEST(object, of_no_tool_passes_every_event_over)
{
	object made(0);
	for (int code = 0; code < 8; code++)
		EXPECT_EQ(event(made, code, 3, 4), 0) << code;
	EXPECT_EQ(made.num, 0);
}


TEST(object, of_no_tool_answers_the_state_it_has)
{
	object made(0);
	made.state = 5;
	EXPECT_EQ(press(made, 3, 4), 5);
}


TEST(object, of_no_tool_paints_nothing_and_has_no_contours)
{
	object made(4);
	paper sheet(3, 1);
	made.drawframe(&sheet.view, 1);
	EXPECT_EQ(sheet.picture(), "   \n");
	EXPECT_EQ(made.to_shape(), nullptr);
}


TEST(object, starts_in_no_state_with_the_points_of_its_tool)
{
	EXPECT_EQ(obj_rect().num, 4);
	EXPECT_EQ(obj_ellipse().num, 4);
	EXPECT_EQ(obj_polygon().num, 0);
	EXPECT_EQ(obj_round().num, 0);
	EXPECT_EQ(obj_free().num, 0);
	EXPECT_EQ(obj_rect().state, 0);
	EXPECT_EQ(obj_free().state, 0);
}


TEST(object, knows_the_codes_of_the_tools)
{
	EXPECT_EQ(object::free_hand, 0x10);
	EXPECT_EQ(object::rectangle, 0x30);
	EXPECT_EQ(object::ellipse, 0x40);
	EXPECT_EQ(object::polygon, 0x50);
	EXPECT_EQ(object::rounded, 0x51);
}


TEST(obj_rect, puts_all_corners_where_it_is_pressed)
{
	obj_rect made;
	EXPECT_EQ(press(made, 3, 4), 1);
	EXPECT_EQ(points(made), "3,4 3,4 3,4 3,4");
}


TEST(obj_rect, follows_the_pointer_with_three_corners)
{
	obj_rect made;
	press(made, 3, 4);
	EXPECT_EQ(drag(made, 10, 20), 1);
	EXPECT_EQ(points(made), "3,4 10,4 10,20 3,20");
	EXPECT_EQ(drag(made, 1, 2), 1);
	EXPECT_EQ(points(made), "3,4 1,4 1,2 3,2");
}


TEST(obj_rect, is_complete_where_it_is_released)
{
	obj_rect made;
	press(made, 3, 4);
	drag(made, 10, 20);
	EXPECT_EQ(release(made, 30, 40), -1);
	EXPECT_EQ(points(made), "3,4 30,4 30,40 3,40");
}


TEST(obj_rect, is_complete_also_without_a_drag)
{
	obj_rect made;
	press(made, 3, 4);
	EXPECT_EQ(release(made, 3, 4), -1);
	EXPECT_EQ(dots_of(made), "3,4 3,4 3,4 3,4");
}


TEST(obj_rect, passes_over_a_drag_or_a_release_that_comes_first)
{
	obj_rect made;
	EXPECT_EQ(drag(made, 5, 5), 0);
	EXPECT_EQ(release(made, 5, 5), 0);
	EXPECT_EQ(points(made), "0,0 0,0 0,0 0,0");
}


TEST(obj_rect, passes_over_a_second_press)
{
	obj_rect made;
	press(made, 3, 4);
	EXPECT_EQ(press(made, 8, 9), 1);
	EXPECT_EQ(points(made), "3,4 3,4 3,4 3,4");
}


TEST(obj_rect, passes_over_what_it_has_no_use_for)
{
	obj_rect made;
	press(made, 3, 4);
	for (int code : {0, 4, 5, 6, 7, 255})
		EXPECT_EQ(event(made, code, 8, 9), 1) << code;
	EXPECT_EQ(points(made), "3,4 3,4 3,4 3,4");
}


TEST(obj_rect, does_not_start_with_the_secondary_button)
{
	obj_rect made;
	EXPECT_EQ(step_back(made, 3, 4), 0);
}


TEST(obj_rect, stays_as_it_is_once_complete)
{
	obj_rect made;
	press(made, 3, 4);
	release(made, 10, 20);
	EXPECT_EQ(drag(made, 50, 50), -1);
	EXPECT_EQ(press(made, 50, 50), -1);
	EXPECT_EQ(points(made), "3,4 10,4 10,20 3,20");
}


TEST(obj_rect, becomes_a_contour_of_four_points_on_the_curve)
{
	obj_rect made;
	draw_through(made, {{3, 4}, {30, 40}});
	EXPECT_EQ(dots_of(made), "3,4 30,4 30,40 3,40");
}


TEST(obj_rect, becomes_a_contour_that_has_its_frame_and_is_not_selected)
{
	obj_rect made;
	draw_through(made, {{30, 4}, {3, 40}});
	const contours all = contours_of(made);
	ASSERT_EQ(all.size(), 1U);
	EXPECT_EQ(all[0]->frame, BRect(3, 4, 30, 40));
	EXPECT_EQ(all[0]->sel, 0);
	EXPECT_EQ(all[0]->armed, 0);
}


TEST(obj_rect, turns_round_with_the_direction_of_the_drag)
{
	obj_rect rightward;
	draw_through(rightward, {{0, 0}, {10, 5}});
	EXPECT_EQ(dots_of(rightward), "0,0 10,0 10,5 0,5");
	EXPECT_TRUE(contours_of(rightward)[0]->ispositive());
	obj_rect leftward;
	draw_through(leftward, {{10, 0}, {0, 5}});
	EXPECT_EQ(dots_of(leftward), "10,0 0,0 0,5 10,5");
	EXPECT_FALSE(contours_of(leftward)[0]->ispositive());
	obj_rect upward;
	draw_through(upward, {{0, 5}, {10, 0}});
	EXPECT_EQ(dots_of(upward), "0,5 10,5 10,0 0,0");
	EXPECT_FALSE(contours_of(upward)[0]->ispositive());
}


TEST(obj_ellipse, takes_the_events_of_a_rectangle)
{
	obj_ellipse made;
	EXPECT_EQ(press(made, 3, 4), 1);
	EXPECT_EQ(drag(made, 10, 20), 1);
	EXPECT_EQ(release(made, 30, 40), -1);
	EXPECT_EQ(points(made), "3,4 30,4 30,40 3,40");
}


// Half the sizes are 50 and 25, times the square root of 2 less 1: 20.710678 and 10.355339.
TEST(obj_ellipse, becomes_the_octagon_around_it_as_control_points)
{
	obj_ellipse made;
	draw_through(made, {{0, 0}, {100, 50}});
	EXPECT_EQ(dots_of(made),
		"29.2893,0* 70.7107,0* 100,14.6447* 100,35.3553* "
		"70.7107,50* 29.2893,50* 0,35.3553* 0,14.6447*");
}


// At (1 - 0.70710678) and (1 + 0.70710678) times half the size, and at its ends.
TEST(obj_ellipse, touches_the_ellipse_at_every_eighth)
{
	obj_ellipse made;
	draw_through(made, {{0, 0}, {200, 200}});
	const contours all = contours_of(made);
	ASSERT_EQ(all.size(), 1U);
	const BPoint expected[8] = {{100, 0}, {170.71068F, 29.289322F}, {200, 100},
		{170.71068F, 170.71068F}, {100, 200}, {29.289322F, 170.71068F}, {0, 100},
		{29.289322F, 29.289322F}};
	for (int i = 0; i < 8; i++) {
		const BPoint sum = all[0]->pts[i] + all[0]->pts[(i + 1) % 8];
		EXPECT_NEAR(sum.x / 2, expected[i].x, 1e-4) << i;
		EXPECT_NEAR(sum.y / 2, expected[i].y, 1e-4) << i;
	}
}


TEST(obj_ellipse, becomes_a_contour_that_has_its_frame_and_is_not_selected)
{
	obj_ellipse made;
	draw_through(made, {{100, 50}, {0, 0}});
	const contours all = contours_of(made);
	ASSERT_EQ(all.size(), 1U);
	EXPECT_EQ(all[0]->frame, BRect(0, 0, 100, 50));
	EXPECT_EQ(all[0]->sel, 0);
}


TEST(obj_ellipse, turns_round_with_the_direction_of_the_drag)
{
	obj_ellipse rightward;
	draw_through(rightward, {{0, 0}, {100, 50}});
	EXPECT_TRUE(contours_of(rightward)[0]->ispositive());
	obj_ellipse leftward;
	draw_through(leftward, {{100, 0}, {0, 50}});
	EXPECT_EQ(dots_of(leftward),
		"70.7107,0* 29.2893,0* 0,14.6447* 0,35.3553* "
		"29.2893,50* 70.7107,50* 100,35.3553* 100,14.6447*");
	EXPECT_FALSE(contours_of(leftward)[0]->ispositive());
}
