// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The free-hand tool at the canvas.
#include "draw/object.h"
#include "program/outline_user.h"

static const int16 empty = 0;
static const int16 square = 1;


// Presses at the first and goes through the others.
static void
draw(outline_user& user, const std::vector<BPoint>& path)
{
	user.press(path.front());
	for (BPoint each : path)
		user.move(each);
	user.release(path.back());
}


TEST(outline_tools, a_stroke_keeps_every_unit_that_the_pointer_tells)
{
	at_outline(empty, [](outline_user& user) {
		user.take(msg_free);
		user.press({10, 20});
		EXPECT_EQ(points_in(user), "1: 10,20");
		looking(user.app, [] { EXPECT_EQ(cur_object->kind, 0x10); });
		user.hand.move(user.place({10, 20}) + BPoint(1, 1));
		EXPECT_EQ(points_in(user), "1: 10,20");
		user.move({11, 20});
		user.move({60, 30});
		user.move({11, 20});
		EXPECT_EQ(points_in(user), "4: 10,20 11,20 60,30 11,20");
		EXPECT_EQ(user.state(), -1);
		user.release({11, 20});
		EXPECT_EQ(points_in(user), "none");
		EXPECT_EQ(user.state(), 0);
	});
}


// The pen is 10 pixels in a picture of half the size, so 20 units across.
TEST(outline_tools, a_stroke_becomes_the_band_of_the_pen)
{
	at_outline(empty, [](outline_user& user) {
		user.set_pen(20);
		user.take(msg_free);
		draw(user, {{40, 60}, {90, 60}});
		looking(user.app, [] {
			ASSERT_EQ(cur_glyph->num_shape, 1);
			const shape& band = *cur_glyph->shapes[0];
			EXPECT_TRUE(band.ispositive());
			EXPECT_GE(band.num, 3);
			for (int32 i = 0; i < band.num; i++) {
				EXPECT_EQ(band.onoff[i], 1);
				EXPECT_GE(band.pts[i].x, 29);
				EXPECT_LE(band.pts[i].x, 103);
				EXPECT_GE(band.pts[i].y, 49);
				EXPECT_LE(band.pts[i].y, 73);
			}
		});
		EXPECT_EQ(user.selection(), "0");
		EXPECT_TRUE(user.looks_fresh());
	});
}


TEST(outline_tools, a_stroke_around_something_becomes_a_rim_and_a_hole)
{
	at_outline(square, [](outline_user& user) {
		user.set_pen(10);
		user.take(msg_free);
		draw(user, {{15, 15}, {110, 15}, {110, 110}, {15, 110}, {15, 15}});
		looking(user.app, [] {
			ASSERT_EQ(cur_glyph->num_shape, 3);
			EXPECT_TRUE(cur_glyph->shapes[1]->ispositive());
			EXPECT_FALSE(cur_glyph->shapes[2]->ispositive());
			EXPECT_TRUE(cur_glyph->shapes[1]->frame.Contains(cur_glyph->shapes[2]->frame));
		});
		EXPECT_TRUE(user.looks_fresh());
	});
}


TEST(outline_tools, a_click_with_the_free_hand_draws_nothing)
{
	at_outline(square, [](outline_user& user) {
		user.set_pen(20);
		user.take(msg_free);
		user.click({90, 90});
		EXPECT_EQ(user.outline(), "20,20 60,20 60,60 20,60");
		EXPECT_EQ(points_in(user), "none");
		EXPECT_EQ(user.state(), 0);
		EXPECT_TRUE(user.looks_fresh());
	});
}


TEST(outline_tools, a_stroke_shows_as_it_is_drawn)
{
	at_outline(square, [](outline_user& user) {
		user.set_pen(10);
		user.take(msg_free);
		user.press({20, 20});
		for (BPoint to : {BPoint(60, 60), BPoint(20, 60), BPoint(100, 90), BPoint(30, 10)}) {
			user.move(to);
			EXPECT_EQ(user.hand.pixel(user.place(to)), (rgb_color{255, 255, 255, 255}));
			EXPECT_TRUE(user.looks_fresh());
		}
		user.release({30, 10});
		EXPECT_TRUE(user.looks_fresh());
	});
}


TEST(outline_tools, a_stroke_goes_on_where_the_pointer_comes_back_to_the_canvas)
{
	at_outline(empty, [](outline_user& user) {
		user.set_scale(2);
		user.set_pen(10);
		user.take(msg_free);
		user.press({100, 20});
		user.move({120, 20});
		user.move({150, 40});
		user.move({120, 60});
		EXPECT_EQ(points_in(user), "3: 100,20 120,20 120,60");
		user.release({120, 60});
		EXPECT_TRUE(user.looks_fresh());
	});
}


TEST(outline_tools, a_stroke_that_another_tool_drops_is_wiped_off)
{
	at_outline(square, [](outline_user& user) {
		user.set_pen(30);
		user.take(msg_free);
		user.press({80, 80});
		user.move({100, 100});
		user.take(msg_pointer);
		EXPECT_EQ(user.hand.pixel(user.place({90, 90})), (rgb_color{0, 0, 0, 255}));
		EXPECT_TRUE(user.looks_fresh());
		user.release({100, 100});
	});
}


TEST(outline_tools, a_stroke_with_a_pen_is_drawn_as_with_the_mouse)
{
	at_outline(empty, [](outline_user& user) {
		user.set_pen(10);
		user.take(msg_free);
		user.hand.pen_down(user.place({40, 60}), {.pressure = 0.5f});
		user.hand.pen_move(user.place({60, 60}), {.pressure = 0.75f});
		user.hand.pen_move(user.place({80, 70}), {.pressure = 0.25f});
		EXPECT_EQ(points_in(user), "3: 40,60 60,60 80,70");
		user.hand.pen_up(user.place({80, 70}), {});
		std::string by_pen = user.outline();
		user.tell(BMessage(msg_clear));
		draw(user, {{40, 60}, {60, 60}, {80, 70}});
		EXPECT_FALSE(by_pen.empty());
		EXPECT_EQ(user.outline(), by_pen);
	});
}
