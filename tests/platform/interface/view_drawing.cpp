// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Which pixels drawing paints.
#include "platform/interface/stage.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

bool
is_colour(rgb_color found, uint8 r, uint8 g, uint8 b, uint8 a)
{
	return found == rgb_color{r, g, b, a} && found.alpha == a;
}


// What a view that covers the sheet paints.
std::string
painted(int32 width, int32 height, const std::function<void(BView&)>& paint)
{
	sheet page(width, height);
	paint(page.whole());
	return page.picture();
}

}


TEST(view_drawing, a_new_view_draws_black_on_white_with_the_pen_at_the_origin)
{
	BView view(BRect(5, 5, 9, 9), "view", B_FOLLOW_NONE, 0);
	EXPECT_TRUE(is_colour(view.HighColor(), 0, 0, 0, 255));
	EXPECT_TRUE(is_colour(view.LowColor(), 255, 255, 255, 255));
	EXPECT_TRUE(is_colour(view.ViewColor(), 255, 255, 255, 255));
	EXPECT_EQ(view.PenLocation(), BPoint(0, 0));
}


TEST(view_drawing, colours_are_kept_also_without_a_window)
{
	BView view(BRect(0, 0, 9, 9), "view", B_FOLLOW_NONE, 0);
	view.SetHighColor(1, 2, 3);
	view.SetLowColor(rgb_color{4, 5, 6, 7});
	view.SetViewColor(8, 9, 10, 11);
	EXPECT_TRUE(is_colour(view.HighColor(), 1, 2, 3, 255));
	EXPECT_TRUE(is_colour(view.LowColor(), 4, 5, 6, 7));
	EXPECT_TRUE(is_colour(view.ViewColor(), 8, 9, 10, 11));
}


TEST(view_drawing, the_pen_moves_without_a_window_too)
{
	BView view(BRect(0, 0, 9, 9), "view", B_FOLLOW_NONE, 0);
	view.MovePenTo(3, 4);
	view.MovePenBy(0.5F, -1);
	EXPECT_EQ(view.PenLocation(), BPoint(3.5F, 3));
	view.StrokeLine(BPoint(7, 8));
	EXPECT_EQ(view.PenLocation(), BPoint(7, 8));
}


TEST(view_drawing, a_pen_place_that_is_no_number_is_ignored)
{
	BView view(BRect(0, 0, 9, 9), "view", B_FOLLOW_NONE, 0);
	view.MovePenTo(3, 4);
	view.MovePenTo(NAN, 0);
	view.MovePenBy(0, INFINITY);
	EXPECT_EQ(view.PenLocation(), BPoint(3, 4));
}


TEST(fill_rect, covers_its_edges)
{
	EXPECT_EQ(painted(6, 5, [](BView& view) { view.FillRect(BRect(1, 1, 3, 2)); }),
		"......\n"
		".###..\n"
		".###..\n"
		"......\n"
		"......\n");
}


TEST(fill_rect, of_equal_edges_is_one_pixel)
{
	EXPECT_EQ(painted(3, 3, [](BView& view) { view.FillRect(BRect(1, 1, 1, 1)); }),
		"...\n"
		".#.\n"
		"...\n");
}


TEST(fill_rect, truncates_to_whole_pixels)
{
	EXPECT_EQ(painted(6, 4, [](BView& view) { view.FillRect(BRect(1.9F, 1.1F, 3.9F, 2.9F)); }),
		"......\n"
		".###..\n"
		".###..\n"
		"......\n");
}


TEST(fill_rect, truncates_toward_zero)
{
	EXPECT_EQ(painted(3, 2, [](BView& view) { view.FillRect(BRect(-0.9F, -0.9F, -0.1F, -0.1F)); }),
		"#..\n"
		"...\n");
}


TEST(fill_rect, of_an_invalid_rectangle_paints_nothing)
{
	EXPECT_EQ(painted(4, 3,
				  [](BView& view) {
					  view.FillRect(BRect(2, 0, 1, 2));
					  view.FillRect(BRect(0, 2, 3, 1));
					  view.FillRect(BRect());
				  }),
		"....\n"
		"....\n"
		"....\n");
}


TEST(fill_rect, with_edges_that_are_no_numbers_paints_nothing)
{
	EXPECT_EQ(painted(3, 1,
				  [](BView& view) {
					  view.FillRect(BRect(NAN, 0, 2, 0));
					  view.FillRect(BRect(-INFINITY, 0, INFINITY, 0));
				  }),
		"...\n");
}


TEST(fill_rect, far_larger_than_the_view_fills_it)
{
	EXPECT_EQ(painted(3, 2, [](BView& view) { view.FillRect(BRect(-1e9F, -1e9F, 1e9F, 1e9F)); }),
		"###\n"
		"###\n");
}


TEST(fill_rect, paints_high_and_low_colour_by_the_pattern)
{
	EXPECT_EQ(painted(4, 1,
				  [](BView& view) {
					  view.SetHighColor(red);
					  view.SetLowColor(blue);
					  view.FillRect(BRect(0, 0, 1, 0), B_SOLID_HIGH);
					  view.FillRect(BRect(2, 0, 2, 0), B_SOLID_LOW);
				  }),
		"rrb.\n");
}


TEST(fill_rect, leaves_the_pen)
{
	sheet page(4, 4);
	BView& view = page.whole();
	view.MovePenTo(2, 3);
	view.FillRect(BRect(0, 0, 1, 1));
	view.StrokeRect(BRect(0, 0, 1, 1));
	EXPECT_EQ(view.PenLocation(), BPoint(2, 3));
}


TEST(stroke_line, covers_both_ends_across)
{
	EXPECT_EQ(painted(6, 3, [](BView& view) { view.StrokeLine(BPoint(1, 1), BPoint(4, 1)); }),
		"......\n"
		".####.\n"
		"......\n");
}


TEST(stroke_line, covers_the_same_pixels_in_the_other_direction)
{
	EXPECT_EQ(painted(6, 3, [](BView& view) { view.StrokeLine(BPoint(4, 1), BPoint(1, 1)); }),
		"......\n"
		".####.\n"
		"......\n");
}


TEST(stroke_line, covers_both_ends_down)
{
	const char* expected = "...\n"
						   ".#.\n"
						   ".#.\n"
						   ".#.\n"
						   "...\n";
	EXPECT_EQ(
		painted(3, 5, [](BView& view) { view.StrokeLine(BPoint(1, 1), BPoint(1, 3)); }), expected);
	EXPECT_EQ(
		painted(3, 5, [](BView& view) { view.StrokeLine(BPoint(1, 3), BPoint(1, 1)); }), expected);
}


TEST(stroke_line, covers_both_ends_of_a_diagonal)
{
	const char* falling = ".....\n"
						  ".#...\n"
						  "..#..\n"
						  "...#.\n"
						  ".....\n";
	EXPECT_EQ(
		painted(5, 5, [](BView& view) { view.StrokeLine(BPoint(1, 1), BPoint(3, 3)); }), falling);
	EXPECT_EQ(
		painted(5, 5, [](BView& view) { view.StrokeLine(BPoint(3, 3), BPoint(1, 1)); }), falling);
}


TEST(stroke_line, covers_both_ends_of_a_rising_diagonal)
{
	const char* rising = ".....\n"
						 "...#.\n"
						 "..#..\n"
						 ".#...\n"
						 ".....\n";
	EXPECT_EQ(
		painted(5, 5, [](BView& view) { view.StrokeLine(BPoint(1, 3), BPoint(3, 1)); }), rising);
	EXPECT_EQ(
		painted(5, 5, [](BView& view) { view.StrokeLine(BPoint(3, 1), BPoint(1, 3)); }), rising);
}


TEST(stroke_line, to_its_own_start_is_one_pixel)
{
	EXPECT_EQ(painted(3, 3, [](BView& view) { view.StrokeLine(BPoint(1, 1), BPoint(1, 1)); }),
		"...\n"
		".#.\n"
		"...\n");
}


TEST(stroke_line, of_one_point_starts_at_the_pen)
{
	EXPECT_EQ(painted(5, 4,
				  [](BView& view) {
					  view.MovePenTo(1, 1);
					  view.StrokeLine(BPoint(3, 1));
					  view.StrokeLine(BPoint(3, 3));
				  }),
		".....\n"
		".###.\n"
		"...#.\n"
		"...#.\n");
}


TEST(stroke_line, leaves_the_pen_at_the_end_in_both_forms)
{
	sheet page(5, 5);
	BView& view = page.whole();
	view.StrokeLine(BPoint(1, 1), BPoint(4, 2));
	EXPECT_EQ(view.PenLocation(), BPoint(4, 2));
	view.StrokeLine(BPoint(0, 3));
	EXPECT_EQ(view.PenLocation(), BPoint(0, 3));
}


TEST(stroke_line, with_an_end_that_is_no_number_draws_nothing_and_leaves_the_pen)
{
	sheet page(3, 1);
	BView& view = page.whole();
	view.MovePenTo(1, 0);
	view.StrokeLine(BPoint(NAN, 0));
	view.StrokeLine(BPoint(0, 0), BPoint(INFINITY, 0));
	EXPECT_EQ(page.picture(), "...\n");
	EXPECT_EQ(view.PenLocation(), BPoint(1, 0));
}


TEST(stroke_line, from_far_outside_crosses_the_view)
{
	EXPECT_EQ(
		painted(4, 3, [](BView& view) { view.StrokeLine(BPoint(-1e9F, 1), BPoint(1e9F, 1)); }),
		"....\n"
		"####\n"
		"....\n");
	EXPECT_EQ(
		painted(3, 2, [](BView& view) { view.StrokeLine(BPoint(1, 9e4F), BPoint(1, -9e4F)); }),
		".#.\n"
		".#.\n");
}


TEST(stroke_line, draws_in_the_low_colour_when_the_pattern_says_so)
{
	EXPECT_EQ(painted(3, 1,
				  [](BView& view) {
					  view.SetLowColor(green);
					  view.StrokeLine(BPoint(0, 0), BPoint(1, 0), B_SOLID_LOW);
				  }),
		"gg.\n");
}


TEST(stroke_rect, runs_through_the_edges)
{
	EXPECT_EQ(painted(6, 5, [](BView& view) { view.StrokeRect(BRect(1, 1, 4, 3)); }),
		"......\n"
		".####.\n"
		".#..#.\n"
		".####.\n"
		"......\n");
}


TEST(stroke_rect, puts_its_edges_in_order)
{
	EXPECT_EQ(painted(6, 5, [](BView& view) { view.StrokeRect(BRect(4, 3, 1, 1)); }),
		"......\n"
		".####.\n"
		".#..#.\n"
		".####.\n"
		"......\n");
}


TEST(stroke_rect, of_equal_edges_is_one_pixel)
{
	EXPECT_EQ(painted(3, 3, [](BView& view) { view.StrokeRect(BRect(1, 1, 1, 1)); }),
		"...\n"
		".#.\n"
		"...\n");
}


TEST(stroke_rect, without_width_or_height_is_a_line)
{
	EXPECT_EQ(painted(6, 4,
				  [](BView& view) {
					  view.StrokeRect(BRect(0, 0, 0, 3));
					  view.StrokeRect(BRect(2, 1, 5, 1));
				  }),
		"#.....\n"
		"#.####\n"
		"#.....\n"
		"#.....\n");
}


TEST(stroke_rect, two_pixels_wide_is_full)
{
	EXPECT_EQ(painted(4, 4, [](BView& view) { view.StrokeRect(BRect(1, 1, 2, 2)); }),
		"....\n"
		".##.\n"
		".##.\n"
		"....\n");
}


TEST(stroke_rect, with_edges_that_are_no_numbers_draws_nothing)
{
	EXPECT_EQ(painted(3, 1, [](BView& view) { view.StrokeRect(BRect(0, NAN, 2, 0)); }), "...\n");
}


TEST(stroke_rect, draws_in_the_low_colour_when_the_pattern_says_so)
{
	EXPECT_EQ(painted(3, 1,
				  [](BView& view) {
					  view.SetLowColor(blue);
					  view.StrokeRect(BRect(0, 0, 1, 0), B_SOLID_LOW);
				  }),
		"bb.\n");
}
