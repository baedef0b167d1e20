// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// What the window's scroll bars are aimed at, and the canvas that they range over.
#include "app/kernix.h"
#include "app/kernixview.h"
#include "app/kernixwindow.h"
#include "app/selectview.h"
#include "program/journey.h"

#include <gtest/gtest.h>
#include <ScrollBar.h>


// Limits in which a window of 400 x 300 pixels keeps its size.
static const BRect roomy(100, 100, 800, 700);


static void
aim(kernix& app, BRect limits, BView* target, BView* handler, float width, float height)
{
	looking(app, [&] { app.window->settarget(limits, target, handler, width, height); });
}


TEST(settarget, sets_the_limits_with_room_for_the_other_parts)
{
	journey([](kernix& app, robot&) {
		aim(app, BRect(120, 130, 500, 400), app.window->workview, nullptr, 0, 0);
		EXPECT_EQ(size_limits(app), BRect(120, 130, 514, 467));
	});
}


TEST(settarget, lets_the_bars_range_over_the_canvas)
{
	journey([](kernix& app, robot& user) {
		aim(app, roomy, app.window->workview, nullptr, 1000, 800);
		// The work view shows 386 x 234 pixels.
		EXPECT_EQ(bar(app, B_HORIZONTAL), "0 to 613, 0.386, 5 and 385");
		EXPECT_EQ(bar(app, B_VERTICAL), "0 to 565, 0.292, 5 and 233");
		looking(app, [&] {
			EXPECT_EQ(app.window->canvaswidth, 1000);
			EXPECT_EQ(app.window->canvasheight, 800);
		});
		EXPECT_EQ(user.scroll_bar(B_VERTICAL).at(1), 565) << "as the user sees it";
		EXPECT_EQ(user.scroll_bar(B_HORIZONTAL).at(1), 613);
	});
}


TEST(settarget, gives_a_canvas_smaller_than_the_view_no_range)
{
	journey([](kernix& app, robot&) {
		aim(app, roomy, app.window->workview, nullptr, 50, 60);
		EXPECT_EQ(bar(app, B_HORIZONTAL), "0 to 0, 1, 5 and 385");
		EXPECT_EQ(bar(app, B_VERTICAL), "0 to 0, 1, 5 and 233");
	});
}


TEST(settarget, begins_to_scroll_with_a_canvas_two_pixels_larger)
{
	journey([](kernix& app, robot&) {
		aim(app, roomy, app.window->workview, nullptr, 387, 235);
		EXPECT_EQ(bar(app, B_HORIZONTAL).substr(0, 7), "0 to 0,");
		EXPECT_EQ(bar(app, B_VERTICAL).substr(0, 7), "0 to 0,");
		aim(app, roomy, app.window->workview, nullptr, 388, 236);
		EXPECT_EQ(bar(app, B_HORIZONTAL).substr(0, 7), "0 to 1,");
		EXPECT_EQ(bar(app, B_VERTICAL).substr(0, 7), "0 to 1,");
	});
}


TEST(settarget, measures_the_target_when_a_size_is_zero)
{
	journey([](kernix& app, robot&) {
		for (BPoint size : {BPoint(0, 0), BPoint(1000, 0), BPoint(0, 800)}) {
			aim(app, roomy, app.window->workview, nullptr, 7, 7);
			aim(app, roomy, app.window->workview, nullptr, size.x, size.y);
			looking(app, [&] {
				EXPECT_EQ(app.window->canvaswidth, 386);
				EXPECT_EQ(app.window->canvasheight, 234);
			});
		}
	});
}


TEST(settarget, starts_scrolling_from_zero)
{
	journey([](kernix& app, robot& user) {
		aim(app, roomy, app.window->workview, nullptr, 1000, 800);
		user.drag_scroll_bar(B_VERTICAL, 77);
		user.drag_scroll_bar(B_HORIZONTAL, 55);
		looking(app, [&] { EXPECT_EQ(app.window->workview->Bounds().LeftTop(), BPoint(55, 77)); });
		aim(app, roomy, app.window->workview, nullptr, 1000, 800);
		looking(app, [&] {
			EXPECT_EQ(app.window->scrollv->Value(), 0);
			EXPECT_EQ(app.window->scrollh->Value(), 0);
			EXPECT_EQ(app.window->workview->Bounds().LeftTop(), BPoint(0, 0));
		});
	});
}


TEST(settarget, aims_both_bars_at_the_target)
{
	journey([](kernix& app, robot&) {
		aim(app, roomy, app.window->selector, nullptr, 600, 100);
		looking(app, [&] {
			EXPECT_EQ(app.window->scrolltarget, app.window->selector);
			EXPECT_EQ(app.window->scrollv->Target(), app.window->selector);
			EXPECT_EQ(app.window->scrollh->Target(), app.window->selector);
		});
	});
}


TEST(settarget, without_a_target_changes_the_canvas_alone)
{
	journey([](kernix& app, robot&) {
		aim(app, roomy, app.window->workview, nullptr, 500, 400);
		aim(app, BRect(1, 2, 3, 4), nullptr, nullptr, 1000, 800);
		EXPECT_EQ(size_limits(app), BRect(100, 100, 814, 767));
		EXPECT_EQ(bar(app, B_VERTICAL), "0 to 565, 0.292, 5 and 233");
		looking(app, [&] {
			EXPECT_EQ(app.window->scrolltarget, app.window->workview);
			EXPECT_EQ(app.window->inputhandler, nullptr);
		});
	});
}


TEST(settarget, without_a_target_keeps_the_scroll_position)
{
	journey([](kernix& app, robot& user) {
		aim(app, roomy, app.window->workview, nullptr, 1000, 800);
		user.drag_scroll_bar(B_VERTICAL, 77);
		aim(app, roomy, nullptr, nullptr, 1000, 900);
		looking(app, [&] { EXPECT_EQ(app.window->scrollv->Value(), 77); });
	});
}


TEST(settarget, without_any_target_yet_leaves_the_bars_alone)
{
	journey([](kernix& app, robot&) {
		std::string before = bar(app, B_VERTICAL);
		aim(app, roomy, nullptr, nullptr, 0, 0);
		looking(app, [&] { EXPECT_EQ(app.window->canvaswidth, 512); });
		aim(app, roomy, nullptr, nullptr, 1000, 800);
		EXPECT_EQ(bar(app, B_VERTICAL), before);
	});
}


TEST(settarget, sets_the_input_handler_only_when_there_is_one)
{
	journey([](kernix& app, robot&) {
		aim(app, roomy, nullptr, app.window->selector, 1, 1);
		looking(app, [&] { EXPECT_EQ(app.window->inputhandler, app.window->selector); });
		aim(app, roomy, app.window->workview, nullptr, 1, 1);
		looking(app, [&] { EXPECT_EQ(app.window->inputhandler, app.window->selector); });
	});
}


TEST(updatescrollbar, follows_the_size_that_the_user_gives_the_window)
{
	journey([](kernix& app, robot& user) {
		aim(app, roomy, app.window->workview, nullptr, 1000, 800);
		user.resize_window(500, 402);
		// 486 x 336 pixels.
		EXPECT_EQ(bar(app, B_HORIZONTAL), "0 to 513, 0.486, 5 and 485");
		EXPECT_EQ(bar(app, B_VERTICAL), "0 to 463, 0.42, 5 and 335");
	});
}


TEST(updatescrollbar, follows_the_canvas)
{
	journey([](kernix& app, robot&) {
		aim(app, roomy, app.window->workview, nullptr, 1000, 800);
		looking(app, [&] {
			app.window->canvaswidth = 772;
			app.window->canvasheight = 468;
			app.window->updatescrollbar();
		});
		EXPECT_EQ(bar(app, B_HORIZONTAL), "0 to 385, 0.5, 5 and 385");
		EXPECT_EQ(bar(app, B_VERTICAL), "0 to 233, 0.5, 5 and 233");
	});
}


TEST(updatescrollbar, does_nothing_without_a_target)
{
	journey([](kernix& app, robot& user) {
		std::string before = bar(app, B_VERTICAL);
		looking(app, [&] {
			app.window->canvaswidth = 5000;
			app.window->canvasheight = 5000;
			app.window->updatescrollbar();
		});
		user.resize_window(500, 400);
		EXPECT_EQ(bar(app, B_VERTICAL), before);
	});
}
