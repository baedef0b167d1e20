// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// What a free-hand stroke shows while it is drawn, judged by pixels.
#include "draw/draw_fixture.h"
#include "draw/obj_free.h"

#include <gtest/gtest.h>
#include <View.h>


TEST(obj_free_drawframe, draws_the_path_with_the_pen_in_the_high_colour)
{
	paper sheet(20, 11);
	sheet.view.SetHighColor(255, 0, 0);
	obj_free made;
	press(made, 4, 5, 3);
	drag(made, 14, 5);
	made.drawframe(&sheet.view, 1);
	EXPECT_EQ(sheet.pixel(9, 3), 0U);
	EXPECT_EQ(sheet.pixel(9, 4), 0xFF0000U);
	EXPECT_EQ(sheet.pixel(9, 5), 0xFF0000U);
	EXPECT_EQ(sheet.pixel(9, 6), 0xFF0000U);
	EXPECT_EQ(sheet.pixel(9, 7), 0U);
}


TEST(obj_free_drawframe, has_round_ends)
{
	paper sheet(60, 41);
	sheet.view.SetHighColor(255, 255, 255);
	obj_free made;
	press(made, 20, 20, 20);
	drag(made, 40, 20);
	made.drawframe(&sheet.view, 1);
	EXPECT_EQ(sheet.pixel(11, 20), 0xFFFFFFU);
	EXPECT_EQ(sheet.pixel(49, 20), 0xFFFFFFU);
	// The corners that a square end would have.
	EXPECT_EQ(sheet.pixel(11, 11), 0U);
	EXPECT_EQ(sheet.pixel(49, 29), 0U);
}


TEST(obj_free_drawframe, does_not_apply_the_scale_it_is_given)
{
	paper once(20, 11);
	paper twice(20, 11);
	obj_free made;
	press(made, 4, 5, 3);
	drag(made, 14, 5);
	once.view.SetHighColor(255, 255, 255);
	twice.view.SetHighColor(255, 255, 255);
	made.drawframe(&once.view, 1);
	made.drawframe(&twice.view, 2);
	EXPECT_EQ(twice.picture(), once.picture());
}


TEST(obj_free_drawframe, is_not_inverted_and_stays_when_drawn_again)
{
	paper sheet(9, 1, true);
	sheet.view.SetHighColor(255, 0, 0);
	obj_free made;
	press(made, 2, 0, 1);
	drag(made, 6, 0);
	made.drawframe(&sheet.view, 1);
	made.drawframe(&sheet.view, 1);
	EXPECT_EQ(sheet.picture(), "WWRRRRRWW\n");
}


TEST(obj_free_drawframe, of_one_point_paints_nothing)
{
	paper sheet(9, 1, true);
	obj_free made;
	press(made, 4, 0, 5);
	made.drawframe(&sheet.view, 1);
	EXPECT_EQ(sheet.picture(), "WWWWWWWWW\n");
}


TEST(obj_free_drawframe, leaves_the_drawing_state_as_it_was)
{
	paper sheet(9, 9);
	sheet.view.SetPenSize(7);
	sheet.view.MovePenTo(3, 2);
	obj_free made;
	press(made, 2, 0, 1);
	drag(made, 6, 0);
	made.drawframe(&sheet.view, 1);
	EXPECT_EQ(sheet.view.PenSize(), 7);
	EXPECT_EQ(sheet.view.PenLocation(), BPoint(3, 2));
}


TEST(obj_free_drawframe, goes_by_the_scale_of_the_view)
{
	paper sheet(40, 11);
	sheet.view.SetHighColor(255, 255, 255);
	sheet.view.SetScale(2);
	obj_free made;
	press(made, 4, 2, 3);
	drag(made, 14, 2);
	made.drawframe(&sheet.view, 1);
	EXPECT_EQ(sheet.pixel(28, 4), 0xFFFFFFU);
	EXPECT_EQ(sheet.pixel(18, 2), 0xFFFFFFU);
	EXPECT_EQ(sheet.pixel(18, 6), 0xFFFFFFU);
	EXPECT_EQ(sheet.pixel(18, 8), 0U);
}


TEST(obj_free_drawtail, adds_what_is_new_to_what_is_there)
{
	paper whole(100, 100);
	paper added(100, 100);
	whole.view.SetHighColor(255, 255, 255);
	added.view.SetHighColor(255, 255, 255);
	obj_free made;
	for (BPoint p : {BPoint(50, 5), BPoint(79, 95), BPoint(4, 39), BPoint(96, 40)}) {
		drag(made, p.x, p.y, 7);
		made.drawtail(&added.view, made.num - 1);
	}
	made.drawframe(&whole.view, 1);
	EXPECT_EQ(added.picture(), whole.picture());
}


TEST(obj_free_drawtail, from_beyond_the_last_point_paints_nothing)
{
	paper sheet(9, 1, true);
	obj_free made;
	press(made, 2, 0, 1);
	drag(made, 6, 0);
	made.drawtail(&sheet.view, 2);
	EXPECT_EQ(sheet.picture(), "WWWWWWWWW\n");
}
