// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// A glyph as the holder of its contours.
#include "outline/shape_fixture.h"

#include <gtest/gtest.h>
#include <View.h>


TEST(glyph, starts_empty_with_its_index_at_the_outermost_level)
{
	glyph made(0xFFFE);
	EXPECT_EQ(made.gid, 0xFFFE);
	EXPECT_EQ(made.depth, 0);
	EXPECT_EQ(made.num_shape, 0);
	EXPECT_EQ(made.num_compo, 0);
	EXPECT_TRUE(made.complete());
}


TEST(glyph, of_index_minus_one_stands_for_none)
{
	EXPECT_EQ(glyph((unsigned short)-1).gid, 0xFFFF);
}


TEST(glyph_add_shape, appends_and_takes_over)
{
	glyph made(1);
	shape* first = box(0, 0, 5, 5).release();
	shape* second = box(10, 0, 15, 5).release();
	made.add_shape(first);
	made.add_shape(second);
	EXPECT_EQ(made.num_shape, 2);
	EXPECT_EQ(made.shapes[0], first);
	EXPECT_EQ(made.shapes[1], second);
}


TEST(glyph_add_shape, to_a_composite_moves_its_frames_up_by_one)
{
	glyph_ptr parts = composite(2);
	shape* frame = parts->shapes[2];
	shape* other = parts->shapes[3];
	shape* added = box(50, 0, 55, 5).release();
	parts->add_shape(added);
	EXPECT_EQ(parts->num_shape, 3);
	EXPECT_EQ(parts->shapes[2], added);
	EXPECT_EQ(parts->shapes[3], frame);
	EXPECT_EQ(parts->shapes[4], other);
}


TEST(glyph_bounds, is_the_box_around_all_contours)
{
	glyph made(1);
	made.add_shape(box(-10, 20, 5, 30).release());
	made.add_shape(box(0, -7, 40, 25).release());
	EXPECT_EQ(made.bounds(), BRect(-10, -7, 40, 30));
}


TEST(glyph_bounds, of_no_contour_is_the_box_it_starts_from)
{
	EXPECT_EQ(
		glyph(1).bounds(), BRect(3.40282347e38F, 3.40282347e38F, 1.17549435e-38F, 1.17549435e-38F));
}


TEST(glyph_bounds, never_ends_left_of_or_above_0)
{
	glyph made(1);
	made.add_shape(box(-30, -40, -10, -20).release());
	EXPECT_EQ(made.bounds(), BRect(-30, -40, 1.17549435e-38F, 1.17549435e-38F));
}


TEST(glyph_bounds, leaves_the_frames_out)
{
	glyph_ptr parts = composite(2);
	parts->shapes[2]->frame = BRect(0, 0, 1000, 1000);
	EXPECT_EQ(parts->bounds(), BRect(0, 0, 15, 5));
}


TEST(glyph_trans, maps_every_contour)
{
	glyph_ptr made = squares(2);
	made->trans(BRect(0, 0, 9, 9), BRect(0, 0, 19, 9));
	EXPECT_EQ(dots(*made->shapes[0]), "0,0 10,0 10,5 0,5");
	EXPECT_EQ(dots(*made->shapes[1]), "20,0 30,0 30,5 20,5");
	EXPECT_EQ(made->shapes[1]->frame, BRect(20, 0, 30, 5));
}


TEST(glyph_trans, maps_the_frames_too)
{
	glyph_ptr parts = composite(2);
	parts->trans(BRect(0, 0, 9, 9), BRect(100, 0, 109, 9));
	EXPECT_EQ(parts->shapes[1]->frame, BRect(110, 0, 115, 5));
	EXPECT_EQ(parts->shapes[3]->frame, BRect(110, 0, 115, 5));
}


TEST(glyph_draw, draws_the_contours_in_order)
{
	paper sheet(7, 4);
	glyph made(1);
	made.add_shape(box(0, 0, 4, 2).release());
	made.add_shape(contour({{2, 1}, {2, 3}, {6, 3}, {6, 1}}).release());
	made.draw(&sheet.view, 0);
	EXPECT_EQ(sheet.picture(),
		"WWWWW  \n"
		"W LLLLL\n"
		"WWLWW L\n"
		"  LLLLL\n");
}


TEST(glyph_draw, draws_all_in_the_colour_given)
{
	paper sheet(7, 2);
	glyph made(1);
	made.add_shape(box(0, 0, 2, 1).release());
	made.add_shape(contour({{4, 0}, {4, 1}, {6, 1}, {6, 0}}).release());
	made.draw(&sheet.view, 0x00FF00);
	EXPECT_EQ(sheet.picture(),
		"GGG GGG\n"
		"GGG GGG\n");
}


TEST(glyph_draw, leaves_the_frames_out)
{
	paper sheet(8, 6);
	glyph_ptr parts = composite(1);
	parts->shapes[0]->sel = -1;
	parts->shapes[0]->move(BPoint(1000, 0));
	parts->draw(&sheet.view, 0);
	EXPECT_EQ(sheet.picture().find('W'), std::string::npos);
}


TEST(glyph_drawframe, marks_the_selected_contours)
{
	paper sheet(26, 6);
	glyph_ptr made = squares(3);
	select(*made, {-1, 0, 2});
	made->drawframe(&sheet.view, 0);
	EXPECT_EQ(sheet.pixel(0, 0), 0xFFFFFFU);
	EXPECT_EQ(sheet.pixel(5, 5), 0xFFFFFFU);
	EXPECT_EQ(sheet.pixel(10, 0), 0x000000U);
	EXPECT_EQ(sheet.pixel(20, 0), 0xFFFFFFU);
	EXPECT_EQ(sheet.pixel(25, 5), 0xFFFFFFU);
}


TEST(glyph_drawframe, marks_the_frames_of_a_composite_and_not_its_contours)
{
	paper sheet(26, 6);
	glyph_ptr parts = composite(2);
	select(*parts, {-1, 0, 0, -1});
	parts->drawframe(&sheet.view, 0);
	EXPECT_EQ(sheet.pixel(0, 0), 0x000000U);
	EXPECT_EQ(sheet.pixel(10, 0), 0xFFFFFFU);
	EXPECT_EQ(sheet.pixel(15, 5), 0xFFFFFFU);
}
