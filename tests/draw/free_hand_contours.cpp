// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// What a free-hand stroke becomes.
#include "draw/draw_fixture.h"
#include "draw/obj_free.h"
#include "draw/stroke_reference.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace {

const std::vector<BPoint> square = {{100, 100}, {300, 100}, {300, 300}, {100, 300}, {100, 100}};

// Its two lines cross in the middle and do not meet at their ends.
const std::vector<BPoint> open_eight = {{60, 60}, {240, 240}, {60, 240}, {240, 60}, {240, 150}};


std::string
outlines_of(const std::vector<BPoint>& path, int width)
{
	obj_free made;
	draw_through(made, path, width);
	std::string text;
	for (const shape_ptr& each : contours_of(made))
		text += dots(*each) + '\n';
	return text;
}


// Twice the area, above 0 for clockwise on the screen.
double
turning(const shape& of)
{
	double sum = 0;
	for (int i = 0; i < of.num; i++) {
		const BPoint a = of.pts[i];
		const BPoint b = of.pts[(i + 1) % of.num];
		sum += (double)a.x * b.y - (double)b.x * a.y;
	}
	return sum;
}


// Wanders within the square from (0, 0), on whole units as the editor's pointer does.
std::vector<BPoint>
wandering(int count, int side, unsigned seed)
{
	std::vector<BPoint> path;
	int x = side / 2;
	int y = side / 2;
	for (int i = 0; i < count; i++) {
		seed = seed * 1664525 + 1013904223;
		x = std::clamp(x + (int)(seed >> 8) % 31 - 15, 0, side - 1);
		seed = seed * 1664525 + 1013904223;
		y = std::clamp(y + (int)(seed >> 8) % 31 - 15, 0, side - 1);
		path.emplace_back((float)x, (float)y);
	}
	return path;
}


std::vector<BPoint>
spiral(int count)
{
	std::vector<BPoint> path;
	for (int i = 0; i < count; i++) {
		const double turn = i * 0.02;
		const double radius = 20 + i * 0.047;
		path.emplace_back((float)std::trunc(500 + radius * std::cos(turn)),
			(float)std::trunc(500 + radius * std::sin(turn)));
	}
	return path;
}


double
distance(BPoint p, BPoint a, BPoint b)
{
	const double dx = b.x - a.x;
	const double dy = b.y - a.y;
	const double length = dx * dx + dy * dy;
	const double along =
		length == 0 ? 0 : std::clamp(((p.x - a.x) * dx + (p.y - a.y) * dy) / length, 0.0, 1.0);
	return std::hypot(p.x - a.x - along * dx, p.y - a.y - along * dy);
}

}


TEST(obj_free_contours, of_a_stroke_are_one_of_control_points)
{
	canvas_of area(399, 399);
	obj_free made;
	draw_through(made, {{100, 100}, {300, 100}}, 20);
	const contours all = contours_of(made);
	ASSERT_EQ(all.size(), 1U);
	EXPECT_GT(all[0]->num, 5);
	for (int i = 0; i < all[0]->num; i++)
		EXPECT_EQ(all[0]->onoff[i], 1);
	EXPECT_GT(turning(*all[0]), 0);
	EXPECT_EQ(all[0]->sel, 0);
}


// A pen of 20 reaches 10 to each side, and beyond the ends, whose last pixels thinning leaves out.
TEST(obj_free_contours, lie_half_a_pen_around_the_stroke)
{
	canvas_of area(399, 399);
	obj_free made;
	draw_through(made, {{100, 100}, {300, 100}}, 20);
	const BRect frame = contours_of(made)[0]->frame;
	EXPECT_NEAR(frame.top, 90, 2);
	EXPECT_NEAR(frame.bottom, 112, 2);
	EXPECT_GE(frame.left, 89);
	EXPECT_LT(frame.left, 100);
	EXPECT_GT(frame.right, 301);
	EXPECT_LE(frame.right, 312);
}


TEST(obj_free_contours, of_a_closed_ring_are_an_outer_one_and_a_hole)
{
	canvas_of area(399, 399);
	obj_free made;
	draw_through(made, square, 20);
	const contours all = contours_of(made);
	ASSERT_EQ(all.size(), 2U);
	EXPECT_GT(turning(*all[0]), 0);
	EXPECT_LT(turning(*all[1]), 0);
	EXPECT_TRUE(all[0]->ispositive());
	EXPECT_FALSE(all[1]->ispositive());
	EXPECT_TRUE(all[0]->frame.Contains(all[1]->frame));
}


TEST(obj_free_contours, of_a_closed_ring_equal_the_reference)
{
	canvas_of area(399, 399);
	EXPECT_EQ(outlines_of(square, 20), outlines(inked(square, 20, 200, 200)));
}


TEST(obj_free_contours, of_a_stroke_across_itself_equal_the_reference)
{
	canvas_of area(299, 299);
	for (int width : {0, 1, 2, 3, 5, 10, 25, 60, 100, 255}) {
		const std::string expected = outlines(inked(open_eight, width, 150, 150));
		EXPECT_EQ(outlines_of(open_eight, width), expected) << width;
	}
}


TEST(obj_free_contours, of_a_stroke_that_wanders_equal_the_reference)
{
	canvas_of area(599, 599);
	for (unsigned seed = 1; seed <= 12; seed++) {
		const std::vector<BPoint> path = wandering(150, 600, seed);
		const int width = (int)(seed * 5);
		EXPECT_EQ(outlines_of(path, width), outlines(inked(path, width, 300, 300))) << seed;
	}
}


// Upright and level lines, whose round ends lie exactly between pixels.
TEST(obj_free_contours, of_strokes_with_the_smallest_pen_equal_the_reference_everywhere)
{
	canvas_of area(319, 319);
	unsigned seed = 1;
	for (int turn = 0; turn < 150; turn++) {
		std::vector<BPoint> path = {{30, 30}};
		while (path.size() < 12) {
			seed = seed * 1664525 + 1013904223;
			BPoint next = path.back();
			(seed >> 8 & 1 ? next.x : next.y) = (float)((seed >> 9) % 300);
			path.push_back(next);
		}
		path.erase(path.begin());
		EXPECT_EQ(outlines_of(path, 5), outlines(inked(path, 5, 160, 160))) << turn;
	}
}


TEST(obj_free_contours, of_a_stroke_in_the_corners_of_the_canvas_equal_the_reference)
{
	canvas_of area(199, 149);
	const std::vector<BPoint> path = {{0, 0}, {199, 0}, {199, 149}, {0, 149}, {0, 0}};
	for (int width : {0, 5, 20, 60}) {
		const std::string expected = outlines(inked(path, width, 100, 75));
		EXPECT_EQ(outlines_of(path, width), expected) << width;
		EXPECT_NE(expected, "");
	}
}


TEST(obj_free_contours, of_a_stroke_at_each_edge_of_the_canvas_equal_the_reference)
{
	canvas_of area(199, 149);
	const std::vector<std::vector<BPoint>> paths = {{{20, 0}, {150, 0}}, {{199, 20}, {199, 100}},
		{{20, 149}, {150, 149}}, {{0, 20}, {0, 100}}, {{190, 140}, {199, 149}}};
	for (const auto& path : paths) {
		for (int width : {0, 5, 20, 60}) {
			const std::string expected = outlines(inked(path, width, 100, 75));
			EXPECT_EQ(outlines_of(path, width), expected) << path[0] << " " << width;
		}
	}
}


TEST(obj_free_contours, stay_within_the_canvas)
{
	canvas_of area(199, 149);
	obj_free made;
	draw_through(made, {{-50, 70}, {400, 80}}, 60);
	const contours all = contours_of(made);
	ASSERT_EQ(all.size(), 1U);
	EXPECT_GE(all[0]->frame.left, 0);
	EXPECT_LE(all[0]->frame.right, 200);
}


TEST(obj_free_contours, of_a_stroke_beyond_the_canvas_are_none)
{
	canvas_of area(199, 149);
	for (BPoint away : {BPoint(1000, 0), BPoint(-1000, 0), BPoint(0, 1000), BPoint(0, -1000)}) {
		obj_free made;
		draw_through(made, {away, away + BPoint(100, 100)}, 20);
		EXPECT_EQ(contours_of(made).size(), 0U) << away;
	}
}


// An odd row or column of the canvas has no pixel of its own at half the resolution.
TEST(obj_free_contours, of_an_odd_canvas_equal_the_reference)
{
	canvas_of area(200, 150);
	const std::vector<BPoint> path = {{10, 10}, {200, 150}, {200, 0}};
	EXPECT_EQ(outlines_of(path, 20), outlines(inked(path, 20, 100, 75)));
}


TEST(obj_free_contours, of_an_empty_canvas_are_none)
{
	for (BRect none : {BRect(0, 0, 0, 0), BRect(0, 0, -1, -1), BRect(0, 0, 99, 0),
			 BRect(0, 0, 0, 99), BRect(0, 0, -500, 99)}) {
		canvas_of area(none.right, none.bottom);
		obj_free made;
		draw_through(made, {{0, 0}, {10, 10}}, 20);
		shape** all = made.to_shape();
		ASSERT_NE(all, nullptr) << none;
		EXPECT_EQ(all[0], nullptr) << none;
		delete[] all;
	}
}


// Half of 1 is a pen of 0, half of 3 one of 1: both ink a line of single pixels.
TEST(obj_free_contours, of_the_thinnest_pens_are_one_pixel_wide)
{
	canvas_of area(99, 99);
	for (int width : {0, 1, 2, 3}) {
		obj_free made;
		draw_through(made, {{20, 40}, {60, 40}}, width);
		const contours all = contours_of(made);
		ASSERT_EQ(all.size(), 1U) << width;
		// 21 pixels: 44 edges, of which every 14th stays.
		EXPECT_EQ(dots(*all[0]), "21,40* 49,40* 49,42* 21,42*") << width;
	}
}


// There and back within one pixel of half the resolution.
TEST(obj_free_contours, of_a_single_pixel_are_its_four_edges)
{
	canvas_of area(99, 99);
	obj_free made;
	draw_through(made, {{50, 40}, {50.25F, 40}, {50, 40}}, 0);
	EXPECT_EQ(dots_of(made), "51,40* 52,41* 51,42* 50,41*");
}


TEST(obj_free_contours, of_ten_thousand_points_equal_the_reference)
{
	canvas_of area(1023, 1023);
	const std::vector<BPoint> path = spiral(10000);
	EXPECT_EQ(outlines_of(path, 10), outlines(inked(path, 10, 512, 512)));
}


TEST(obj_free_contours, of_ten_thousand_points_follow_the_turns)
{
	canvas_of area(1023, 1023);
	obj_free made;
	draw_through(made, spiral(10000), 4);
	EXPECT_GT(made.num, 9000);
	const contours all = contours_of(made);
	ASSERT_EQ(all.size(), 1U);
	EXPECT_GE(all[0]->num, 100);
	EXPECT_LE(all[0]->num, 102);
}


TEST(obj_free_contours, are_where_a_round_pen_passes)
{
	const std::vector<BPoint> path = {{60, 60}, {240, 110}, {100, 240}};
	const ink_rows ink = inked(path, 40, 150, 150);
	for (int y = 0; y < 150; y++) {
		for (int x = 0; x < 150; x++) {
			const BPoint p((float)x, (float)y);
			const double away = std::min(distance(p, BPoint(30, 30), BPoint(120, 55)),
				distance(p, BPoint(120, 55), BPoint(50, 120)));
			if (away < 9.3 || away > 10.7) {
				EXPECT_EQ(ink[y][x], away < 10 ? '#' : ' ') << p;
			}
		}
	}
}


// The canvas would have 250,000 million pixels at half the resolution.
TEST(obj_free_contours, need_no_more_memory_than_the_stroke_covers)
{
	canvas_of area(999999, 999999);
	obj_free far;
	draw_through(far, {{800000, 900000}, {800200, 900000}}, 20);
	const contours there = contours_of(far);
	ASSERT_EQ(there.size(), 1U);
	obj_free near;
	draw_through(near, {{1000, 1000}, {1200, 1000}}, 20);
	const contours here = contours_of(near);
	ASSERT_EQ(here.size(), 1U);
	ASSERT_EQ(there[0]->num, here[0]->num);
	for (int i = 0; i < here[0]->num; i++)
		EXPECT_EQ(there[0]->pts[i] - here[0]->pts[i], BPoint(799000, 899000)) << i;
}


TEST(obj_free_contours, of_a_stroke_that_covers_too_much_are_none)
{
	canvas_of area(39999, 39999);
	obj_free made;
	draw_through(made, {{0, 0}, {39999, 39999}}, 20);
	EXPECT_EQ(contours_of(made).size(), 0U);
}


// 8192 by 8192 pixels are 2^26.
TEST(obj_free_contours, of_a_stroke_that_covers_just_enough_are_there)
{
	canvas_of area(16383, 16383);
	obj_free made;
	draw_through(made, {{0, 0}, {16383, 16383}}, 20);
	EXPECT_EQ(contours_of(made).size(), 1U);
}


TEST(obj_free_contours, of_a_stroke_that_covers_a_row_too_much_are_none)
{
	canvas_of area(16383, 16385);
	obj_free made;
	draw_through(made, {{0, 0}, {16383, 16385}}, 20);
	EXPECT_EQ(contours_of(made).size(), 0U);
}


TEST(obj_free_contours, of_places_beyond_all_numbers_stay_within_the_canvas)
{
	canvas_of area(199, 149);
	for (float far : {1e30F, -1e30F, INFINITY, -INFINITY, NAN}) {
		obj_free made;
		draw_through(made, {{far, 20}, {100, far}, {50, 60}, {60, 60}}, 20);
		const contours all = contours_of(made);
		ASSERT_GE(all.size(), 1U) << far;
		for (const shape_ptr& each : all)
			EXPECT_TRUE(BRect(0, 0, 200, 150).Contains(each->frame)) << far;
	}
}
