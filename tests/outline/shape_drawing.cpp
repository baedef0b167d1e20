// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// What a contour paints, judged by pixels.
#include "outline/shape_fixture.h"

#include <gtest/gtest.h>
#include <View.h>


TEST(shape_draw, strokes_straight_lines_between_points_on_the_curve_and_back_to_the_first)
{
	paper sheet(7, 5);
	box(1, 1, 5, 3)->draw(&sheet.view, 0);
	EXPECT_EQ(sheet.picture(),
		"       \n"
		" WWWWW \n"
		" W   W \n"
		" WWWWW \n"
		"       \n");
}


TEST(shape_draw, strokes_a_contour_that_is_not_positive_in_light_blue)
{
	paper sheet(7, 5);
	contour({{1, 1}, {1, 3}, {5, 3}, {5, 1}})->draw(&sheet.view, 0);
	EXPECT_EQ(sheet.picture(),
		"       \n"
		" LLLLL \n"
		" L   L \n"
		" LLLLL \n"
		"       \n");
}


TEST(shape_draw, reads_the_colour_as_red_green_and_blue)
{
	paper sheet(5, 9);
	box(1, 0, 3, 1)->draw(&sheet.view, 0xFF0000);
	box(1, 2, 3, 3)->draw(&sheet.view, 0x00FF00);
	box(1, 4, 3, 5)->draw(&sheet.view, 0x0000FF);
	box(1, 6, 3, 7)->draw(&sheet.view, 0x123456);
	EXPECT_EQ(sheet.picture(),
		" RRR \n"
		" RRR \n"
		" GGG \n"
		" GGG \n"
		" BBB \n"
		" BBB \n"
		" ??? \n"
		" ??? \n"
		"     \n");
	EXPECT_EQ(sheet.pixel(2, 6), 0x123456U);
}


TEST(shape_draw, takes_a_colour_above_24_bits_as_given_and_not_as_automatic)
{
	paper sheet(5, 3, true);
	box(1, 0, 3, 2)->draw(&sheet.view, 0xFF000000);
	EXPECT_EQ(sheet.picture(),
		"W   W\n"
		"W W W\n"
		"W   W\n");
}


TEST(shape_draw, leaves_the_drawing_state_as_it_was)
{
	paper sheet(7, 5);
	sheet.view.SetHighColor(1, 2, 3);
	sheet.view.MovePenTo(2, 1);
	box(1, 1, 5, 3)->draw(&sheet.view, 0);
	EXPECT_EQ(sheet.view.HighColor().red, 1);
	EXPECT_EQ(sheet.view.HighColor().green, 2);
	EXPECT_EQ(sheet.view.HighColor().blue, 3);
	EXPECT_EQ(sheet.view.PenLocation(), BPoint(2, 1));
}


TEST(shape_draw, is_relative_to_the_pen)
{
	paper sheet(7, 5);
	sheet.view.MovePenTo(1, 2);
	box(1, 0, 3, 2)->draw(&sheet.view, 0);
	EXPECT_EQ(sheet.picture(),
		"       \n"
		"       \n"
		"  WWW  \n"
		"  W W  \n"
		"  WWW  \n");
}


TEST(shape_draw, goes_by_the_scale_of_the_view)
{
	paper sheet(9, 7);
	sheet.view.SetScale(2);
	sheet.view.SetPenSize(0);
	box(1, 1, 3, 2)->draw(&sheet.view, 0);
	EXPECT_EQ(sheet.pixel(2, 2), 0xFFFFFFU);
	EXPECT_EQ(sheet.pixel(6, 4), 0xFFFFFFU);
	EXPECT_EQ(sheet.pixel(4, 3), 0x000000U);
	EXPECT_EQ(sheet.pixel(1, 1), 0x000000U);
}


// The middle of the curve lies half way between its chord and its control point.
TEST(shape_draw, bends_between_points_on_the_curve_half_way_to_the_control_point)
{
	paper sheet(50, 50);
	contour({{4, 44}, {24, 4, 1}, {44, 44}})->draw(&sheet.view, 0);
	EXPECT_EQ(sheet.pixel(24, 24), 0xFFFFFFU);
	EXPECT_EQ(sheet.pixel(24, 44), 0xFFFFFFU);
	EXPECT_EQ(sheet.pixel(24, 4), 0x000000U);
	EXPECT_EQ(sheet.pixel(24, 22), 0x000000U);
	EXPECT_EQ(sheet.pixel(24, 26), 0x000000U);
	// A quarter of the way: x at 14, y at 44 - 15.
	EXPECT_EQ(sheet.pixel(14, 29), 0xFFFFFFU);
}


TEST(shape_draw, paints_the_points_where_curves_and_lines_meet)
{
	paper sheet(50, 50);
	contour({{4, 44}, {24, 4, 1}, {44, 44}})->draw(&sheet.view, 0);
	EXPECT_EQ(sheet.pixel(4, 44), 0xFFFFFFU);
	EXPECT_EQ(sheet.pixel(44, 44), 0xFFFFFFU);
}


TEST(shape_draw, draws_no_line_from_a_point_on_the_curve_to_a_control_point)
{
	paper sheet(50, 50);
	contour({{4, 44}, {4, 4, 1}, {44, 4}, {44, 44}})->draw(&sheet.view, 0);
	EXPECT_EQ(sheet.pixel(14, 14), 0xFFFFFFU);
	EXPECT_EQ(sheet.pixel(4, 14), 0x000000U);
	EXPECT_EQ(sheet.pixel(14, 4), 0x000000U);
	EXPECT_EQ(sheet.pixel(44, 24), 0xFFFFFFU);
	EXPECT_EQ(sheet.pixel(24, 44), 0xFFFFFFU);
}


TEST(shape_draw, passes_half_way_between_two_control_points)
{
	paper sheet(50, 50);
	contour({{4, 44}, {4, 4, 1}, {44, 4, 1}, {44, 44}})->draw(&sheet.view, 0);
	EXPECT_EQ(sheet.pixel(24, 4), 0xFFFFFFU);
	EXPECT_EQ(sheet.pixel(9, 14), 0xFFFFFFU);
	EXPECT_EQ(sheet.pixel(39, 14), 0xFFFFFFU);
	EXPECT_EQ(sheet.pixel(24, 44), 0xFFFFFFU);
}


TEST(shape_draw, of_control_points_alone_is_a_closed_chain_through_the_middles)
{
	paper sheet(50, 50);
	contour({{4, 4, 1}, {44, 4, 1}, {44, 44, 1}, {4, 44, 1}})->draw(&sheet.view, 0);
	EXPECT_EQ(sheet.pixel(24, 4), 0xFFFFFFU);
	EXPECT_EQ(sheet.pixel(44, 24), 0xFFFFFFU);
	EXPECT_EQ(sheet.pixel(24, 44), 0xFFFFFFU);
	EXPECT_EQ(sheet.pixel(4, 24), 0xFFFFFFU);
	// The middles of the four curves.
	EXPECT_EQ(sheet.pixel(9, 9), 0xFFFFFFU);
	EXPECT_EQ(sheet.pixel(39, 9), 0xFFFFFFU);
	EXPECT_EQ(sheet.pixel(39, 39), 0xFFFFFFU);
	EXPECT_EQ(sheet.pixel(9, 39), 0xFFFFFFU);
	EXPECT_EQ(sheet.pixel(4, 4), 0x000000U);
	EXPECT_EQ(sheet.pixel(44, 44), 0x000000U);
}


TEST(shape_draw, starts_at_the_last_point_when_the_first_is_a_control_point_and_that_is_none)
{
	paper sheet(50, 50);
	contour({{4, 4, 1}, {44, 4}, {44, 44}, {4, 44}})->draw(&sheet.view, 0);
	EXPECT_EQ(sheet.pixel(14, 14), 0xFFFFFFU);
	EXPECT_EQ(sheet.pixel(24, 44), 0xFFFFFFU);
	EXPECT_EQ(sheet.pixel(44, 24), 0xFFFFFFU);
	EXPECT_EQ(sheet.pixel(4, 24), 0x000000U);
	EXPECT_EQ(sheet.pixel(24, 4), 0x000000U);
}


TEST(shape_draw, of_no_points_paints_nothing)
{
	paper sheet(3, 1);
	shape(0).draw(&sheet.view, 0xFF0000);
	EXPECT_EQ(sheet.picture(), "   \n");
}


TEST(shape_drawframe, fills_a_square_around_each_point_on_the_curve)
{
	paper sheet(9, 7);
	shape_ptr points = contour({{1, 1}, {6, 1}, {6, 5}});
	points->sel = -1;
	points->drawframe(&sheet.view, 1);
	EXPECT_EQ(sheet.picture(),
		"WWW  WWW \n"
		"WWW  WWW \n"
		"WWW  WWW \n"
		"         \n"
		"     WWW \n"
		"     WWW \n"
		"     WWW \n");
}


TEST(shape_drawframe, fills_an_ellipse_around_each_control_point)
{
	paper sheet(25, 11);
	shape_ptr points = contour({{5, 5, 1}, {18, 5}});
	points->sel = -1;
	points->drawframe(&sheet.view, 5);
	EXPECT_EQ(sheet.pixel(0, 5), 0xFFFFFFU);
	EXPECT_EQ(sheet.pixel(10, 5), 0xFFFFFFU);
	EXPECT_EQ(sheet.pixel(5, 0), 0xFFFFFFU);
	EXPECT_EQ(sheet.pixel(5, 5), 0xFFFFFFU);
	EXPECT_EQ(sheet.pixel(0, 0), 0x000000U);
	EXPECT_EQ(sheet.pixel(10, 10), 0x000000U);
	EXPECT_EQ(sheet.pixel(13, 0), 0xFFFFFFU);
	EXPECT_EQ(sheet.pixel(23, 10), 0xFFFFFFU);
}


TEST(shape_drawframe, marks_every_point_when_one_is_selected)
{
	paper sheet(5, 1);
	shape_ptr points = contour({{0, 0}, {2, 0}, {4, 0}});
	points->sel = 2;
	points->drawframe(&sheet.view, 0);
	EXPECT_EQ(sheet.picture(), "W W W\n");
}


TEST(shape_drawframe, inverts_what_is_there_and_a_second_time_puts_it_back)
{
	paper sheet(3, 1);
	sheet.view.SetHighColor(255, 0, 0);
	sheet.view.FillRect(BRect(1, 0, 1, 0));
	shape_ptr point = contour({{1, 0}});
	point->sel = -1;
	point->drawframe(&sheet.view, 1);
	EXPECT_EQ(sheet.pixel(0, 0), 0xFFFFFFU);
	EXPECT_EQ(sheet.pixel(1, 0), 0x00FFFFU);
	point->drawframe(&sheet.view, 1);
	EXPECT_EQ(sheet.picture(), " R \n");
}


TEST(shape_drawframe, goes_back_to_copying)
{
	paper sheet(3, 1);
	sheet.view.SetDrawingMode(B_OP_INVERT);
	shape_ptr point = contour({{1, 0}});
	point->sel = -1;
	point->drawframe(&sheet.view, 0);
	EXPECT_EQ(sheet.view.DrawingMode(), B_OP_COPY);
}


TEST(shape_drawframe, of_an_unselected_contour_does_nothing_at_all)
{
	paper sheet(3, 1);
	sheet.view.SetDrawingMode(B_OP_INVERT);
	contour({{1, 0}})->drawframe(&sheet.view, 1);
	EXPECT_EQ(sheet.picture(), "   \n");
	EXPECT_EQ(sheet.view.DrawingMode(), B_OP_INVERT);
}
