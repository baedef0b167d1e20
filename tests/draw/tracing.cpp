// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Ink into contours.
#include "draw/draw_fixture.h"
#include "draw/stroke_reference.h"
#include "draw/tracer.h"

#include <gtest/gtest.h>


static contours
traced(const ink_rows& rows, int left = 0, int top = 0)
{
	ink_grid ink((int)rows[0].size(), (int)rows.size());
	for (int y = 0; y < ink.rows(); y++) {
		for (int x = 0; x < ink.columns(); x++)
			ink.at(x, y) = rows[y][x] == '#';
	}
	return taken_over(trace(ink, left, top));
}


static std::string
lines(const contours& all)
{
	std::string text;
	for (const shape_ptr& each : all)
		text += dots(*each) + '\n';
	return text;
}


static ink_rows
block(int columns, int rows)
{
	return ink_rows((size_t)rows, std::string((size_t)columns, '#'));
}


static ink_rows
speckled(int columns, int rows, unsigned seed, int share)
{
	ink_rows ink = block(columns, rows);
	for (std::string& row : ink) {
		for (char& pixel : row) {
			seed = seed * 1664525 + 1013904223;
			pixel = (int)(seed >> 24) < share ? '#' : ' ';
		}
	}
	return ink;
}


TEST(ink_grid, begins_without_ink_and_with_a_border)
{
	ink_grid ink(3, 2);
	for (int y = -1; y <= 2; y++) {
		for (int x = -1; x <= 3; x++)
			EXPECT_EQ(ink.at(x, y), 0);
	}
}


TEST(trace, of_no_ink_has_no_contours)
{
	EXPECT_EQ(traced({"   ", "   "}).size(), 0U);
}


TEST(trace, of_a_single_pixel_keeps_the_middles_of_its_four_edges)
{
	const contours all = traced({"     ", "     ", "   # ", "     "});
	ASSERT_EQ(all.size(), 1U);
	EXPECT_EQ(dots(*all[0]), "7,4* 8,5* 7,6* 6,5*");
	EXPECT_EQ(all[0]->frame, BRect(6, 4, 8, 6));
	EXPECT_EQ(all[0]->sel, 0);
	EXPECT_TRUE(all[0]->ispositive());
}


TEST(trace, of_a_picture_of_a_single_pixel)
{
	EXPECT_EQ(lines(traced({"#"})), "1,0* 2,1* 1,2* 0,1*\n");
}


TEST(trace, puts_a_part_of_a_picture_in_its_place)
{
	EXPECT_EQ(lines(traced({"#"}, 100, 2000)), "201,4000* 202,4001* 201,4002* 200,4001*\n");
}


// Six edges, of which each second stays.
TEST(trace, of_two_pixels_keeps_three_points)
{
	EXPECT_EQ(lines(traced({"##"})), "1,0* 4,1* 1,2*\n");
}


TEST(trace, goes_round_the_ink_clockwise_and_round_its_holes_anticlockwise)
{
	const contours all = traced({"###", "# #", "###"});
	EXPECT_EQ(lines(all), "1,0* 6,3* 1,6*\n3,2* 2,3* 3,4* 4,3*\n");
	EXPECT_TRUE(all[0]->ispositive());
	EXPECT_FALSE(all[1]->ispositive());
}


// Eight edges, of which each second stays.
TEST(trace, takes_pixels_that_meet_at_a_corner_for_one_piece)
{
	EXPECT_EQ(lines(traced({"# ", " #"})), "1,0* 3,2* 3,4* 1,2*\n");
	EXPECT_EQ(lines(traced({" #", "# "})), "3,0* 3,2* 1,4* 1,2*\n");
}


TEST(trace, takes_holes_that_meet_at_a_corner_for_two)
{
	const contours all = traced({"####", "# ##", "## #", "####"});
	ASSERT_EQ(all.size(), 3U);
	EXPECT_EQ(dots(*all[1]), "3,2* 2,3* 3,4* 4,3*");
	EXPECT_EQ(dots(*all[2]), "5,4* 4,5* 5,6* 6,5*");
}


TEST(trace, comes_upon_pieces_from_the_top_and_then_from_the_left)
{
	const contours all = traced({"     #", "#  #  ", "      "});
	ASSERT_EQ(all.size(), 3U);
	EXPECT_EQ(all[0]->pts[0], BPoint(11, 0));
	EXPECT_EQ(all[1]->pts[0], BPoint(1, 2));
	EXPECT_EQ(all[2]->pts[0], BPoint(7, 2));
}


TEST(trace, follows_ink_at_every_edge_of_the_picture)
{
	const contours all = traced(block(2, 2));
	EXPECT_EQ(lines(all), "1,0* 4,1* 3,4* 0,3*\n");
}


// Boundaries of 98, 100, 1998, 2000 and 2100 edges.
TEST(trace, keeps_so_many_points_of_a_boundary)
{
	EXPECT_EQ(traced(block(24, 25))[0]->num, 4);
	EXPECT_EQ(traced(block(25, 25))[0]->num, 5);
	EXPECT_EQ(traced(block(499, 500))[0]->num, 100);
	EXPECT_EQ(traced(block(500, 500))[0]->num, 100);
	EXPECT_EQ(traced(block(525, 525))[0]->num, 100);
}


TEST(trace, keeps_every_twentieth_point_of_a_boundary_of_a_hundred)
{
	EXPECT_EQ(lines(traced(block(25, 25))), "1,0* 41,0* 50,31* 29,50* 0,39*\n");
}


TEST(trace, stops_after_256_contours)
{
	ink_rows rows = block(1, 1);
	rows[0] = std::string(601, ' ');
	for (size_t i = 0; i < 300; i++)
		rows[0][2 * i] = '#';
	const contours all = traced(rows);
	ASSERT_EQ(all.size(), 256U);
	EXPECT_EQ(all[255]->pts[0], BPoint(1021, 0));
}


TEST(trace, keeps_256_contours)
{
	ink_rows rows = block(1, 1);
	rows[0] = std::string(511, ' ');
	for (size_t i = 0; i < 256; i++)
		rows[0][2 * i] = '#';
	EXPECT_EQ(traced(rows).size(), 256U);
}


TEST(trace, of_speckles_equals_the_loops_of_pixel_sides)
{
	for (unsigned seed = 1; seed <= 60; seed++) {
		const ink_rows rows = speckled(19, 23, seed, 40 + 3 * (int)seed);
		EXPECT_EQ(lines(traced(rows)), outlines(rows)) << seed;
	}
}


TEST(trace, leaves_no_pixel_side_out_and_takes_none_twice)
{
	const ink_rows rows = speckled(40, 30, 7, 128);
	size_t sides = 0;
	for (const auto& boundary : boundaries(rows))
		sides += boundary.size();
	size_t counted = 0;
	for (int y = 0; y <= 30; y++) {
		for (int x = 0; x <= 40; x++) {
			const bool here = y < 30 && x < 40 && rows[y][x] == '#';
			counted += here != (x > 0 && y < 30 && rows[y][x - 1] == '#');
			counted += here != (y > 0 && x < 40 && rows[y - 1][x] == '#');
		}
	}
	EXPECT_EQ(sides, counted);
}


TEST(thinning_step, is_a_third_below_a_hundred)
{
	EXPECT_EQ(thinning_step(4), 1);
	EXPECT_EQ(thinning_step(5), 1);
	EXPECT_EQ(thinning_step(6), 2);
	EXPECT_EQ(thinning_step(98), 32);
	EXPECT_EQ(thinning_step(99), 33);
}


TEST(thinning_step, is_twenty_until_a_hundredth_is_more)
{
	EXPECT_EQ(thinning_step(100), 20);
	EXPECT_EQ(thinning_step(199), 20);
	EXPECT_EQ(thinning_step(1999), 20);
	EXPECT_EQ(thinning_step(2000), 20);
	EXPECT_EQ(thinning_step(2099), 20);
	EXPECT_EQ(thinning_step(2100), 21);
	EXPECT_EQ(thinning_step(12345), 123);
}
