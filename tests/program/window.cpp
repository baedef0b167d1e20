// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The main window: its parts, its title card and its one size.
#include "app/kernix.h"
#include "app/kernixview.h"
#include "app/kernixwindow.h"
#include "app/selectview.h"
#include "program/journey.h"
#include "support/desktop_kind.h"
#include "support/temp_files.h"

#include <gtest/gtest.h>
#include <MenuBar.h>
#include <ScrollBar.h>

static const rgb_color card = {50, 50, 50, 255};
static const rgb_color white = {255, 255, 255, 255};


// The smallest rectangle that holds what stands out from the title card's ground.
static BRect
ink_in(const QImage& picture, BRect place)
{
	BRect box(1e6, 1e6, -1e6, -1e6);
	for (int y = (int)place.top; y <= (int)place.bottom; y++) {
		for (int x = (int)place.left; x <= (int)place.right; x++) {
			if (picture.pixel(x, y) != qRgb(50, 50, 50)) {
				box.left = std::min(box.left, (float)x);
				box.top = std::min(box.top, (float)y);
				box.right = std::max(box.right, (float)x);
				box.bottom = std::max(box.bottom, (float)y);
			}
		}
	}
	return box;
}


TEST(window, stands_where_it_is_put)
{
	if (!programs_place_windows())
		GTEST_SKIP() << "the display server places the windows";
	journey([](kernix& app, robot&) {
		looking(app, [&] {
			EXPECT_EQ(app.window->Frame(), BRect(100, 100, 499, 399));
			EXPECT_EQ(app.window->PulseRate(), 100000);
			EXPECT_STREQ(app.window->Title(), "kernix ver.0.02");
		});
	});
}


TEST(window, has_the_strip_the_work_view_and_the_scroll_bars_side_by_side)
{
	journey([](kernix& app, robot&) {
		looking(app, [&] {
			EXPECT_EQ(app.window->selector->Frame(), BRect(0, 20, 399, 52));
			EXPECT_EQ(app.window->workview->Frame(), BRect(0, 53, 385, 286));
			EXPECT_EQ(app.window->scrollv->Frame(), BRect(386, 53, 400, 286));
			EXPECT_EQ(app.window->scrollh->Frame(), BRect(0, 287, 385, 301));
			EXPECT_EQ(app.window->CountChildren(), 5);
		});
	});
}


TEST(window, lets_its_parts_follow_its_size)
{
	temp_file font(tiny_font());
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		looking(app, [&] {
			EXPECT_EQ(app.window->selector->Frame(), BRect(0, 20, 575, 52));
			EXPECT_EQ(app.window->workview->Frame(), BRect(0, 53, 561, 565));
			EXPECT_EQ(app.window->scrollv->Frame(), BRect(562, 53, 576, 565));
			EXPECT_EQ(app.window->scrollh->Frame(), BRect(0, 566, 561, 580));
			EXPECT_EQ(app.window->menubar->Frame().Width(), 575);
		});
	});
}


TEST(window, starts_with_scroll_bars_that_do_not_move)
{
	journey([](kernix& app, robot& user) {
		looking(app, [&] {
			EXPECT_STREQ(app.window->scrollv->Name(), "scrollv");
			EXPECT_STREQ(app.window->scrollh->Name(), "scrollh");
			EXPECT_EQ(app.window->scrollv->Orientation(), B_VERTICAL);
			EXPECT_EQ(app.window->scrollh->Orientation(), B_HORIZONTAL);
			EXPECT_EQ(app.window->scrollv->Target(), app.window->workview);
			EXPECT_EQ(app.window->scrollh->Target(), app.window->workview);
		});
		EXPECT_EQ(bar(app, B_VERTICAL).substr(0, 6), "0 to 0");
		EXPECT_EQ(bar(app, B_HORIZONTAL).substr(0, 6), "0 to 0");
		EXPECT_EQ(user.scroll_bar(B_VERTICAL).at(1), 0);
	});
}


TEST(window, starts_with_a_canvas_of_512_and_nothing_to_scroll_or_record)
{
	journey([](kernix& app, robot&) {
		looking(app, [&] {
			EXPECT_EQ(app.window->canvaswidth, 512);
			EXPECT_EQ(app.window->canvasheight, 512);
			EXPECT_EQ(app.window->scrolltarget, nullptr);
			EXPECT_EQ(app.window->inputhandler, nullptr);
		});
	});
}


TEST(title_card, is_white_on_dark_grey)
{
	journey([](kernix& app, robot& user) {
		looking(app, [&] {
			EXPECT_EQ(app.window->workview->HighColor(), white);
			EXPECT_EQ(app.window->workview->ViewColor(), card);
			EXPECT_EQ(app.window->workview->LowColor(), (rgb_color{100, 100, 100, 255}));
		});
		EXPECT_EQ(user.pixel(BPoint(5, 60)), card);
		EXPECT_EQ(user.pixel(BPoint(385, 286)), card);
		EXPECT_GT(user.count(BRect(45, 75, 300, 103), white), 100) << "kernix";
		EXPECT_GT(user.count(BRect(75, 115, 300, 133), white), 50) << "ver.0.02";
	});
}


TEST(title_card, has_the_name_at_45_50_thirty_pixels_large)
{
	journey([](kernix&, robot& user) {
		// The work view starts at row 53: the baseline is row 103, and letters stand on it.
		BRect ink = ink_in(user.picture(), BRect(0, 53, 385, 110));
		EXPECT_NEAR(ink.left, 47, 2);
		EXPECT_NEAR(ink.top, 80, 2);
		EXPECT_NEAR(ink.bottom, 102, 1);
		EXPECT_NEAR(ink.Width(), 102, 4);
	});
}


TEST(title_card, has_the_version_at_75_80_twenty_pixels_large)
{
	journey([](kernix&, robot& user) {
		BRect ink = ink_in(user.picture(), BRect(0, 111, 385, 286));
		EXPECT_NEAR(ink.left, 76, 2);
		EXPECT_NEAR(ink.top, 118, 2);
		EXPECT_NEAR(ink.bottom, 132, 1);
		EXPECT_NEAR(ink.Width(), 90, 4);
	});
}


TEST(title_card, shows_nothing_else)
{
	journey([](kernix&, robot& user) {
		BRect ink = ink_in(user.picture(), BRect(0, 53, 385, 286));
		EXPECT_GE(ink.left, 45);
		EXPECT_LE(ink.bottom, 133);
	});
}


TEST(title_card, still_shows_when_a_font_has_been_opened)
{
	temp_file font(tiny_font());
	journey([&](kernix&, robot& user) {
		QImage before = user.picture().copy(0, 53, 380, 100);
		open_file(user, font.path());
		EXPECT_EQ(user.picture().copy(0, 53, 380, 100), before);
	});
}


TEST(zoom, of_the_box_gives_the_one_size)
{
	if (!programs_place_windows())
		GTEST_SKIP() << "the display server places the windows";
	journey([](kernix&, robot& user) {
		user.press_zoom_box();
		EXPECT_EQ(user.window_size(), BPoint(576, 579));
	});
}


TEST(zoom, never_goes_back)
{
	if (!programs_place_windows())
		GTEST_SKIP() << "the display server places the windows";
	journey([](kernix&, robot& user) {
		for (int i = 0; i < 3; i++) {
			user.press_zoom_box();
			EXPECT_EQ(user.window_size(), BPoint(576, 579)) << i;
		}
	});
}


TEST(zoom, ignores_its_arguments)
{
	if (!programs_place_windows())
		GTEST_SKIP() << "the display server places the windows";
	journey([](kernix& app, robot& user) {
		looking(app, [&] { app.window->Zoom(BPoint(7, 7), 123, 45); });
		EXPECT_EQ(user.window_size(), BPoint(576, 579));
		looking(app, [&] {
			app.window->BWindow::Zoom();
			EXPECT_EQ(app.window->Bounds(), BRect(0, 0, 575, 578));
			EXPECT_EQ(app.window->Frame().LeftTop(), BPoint(100, 100));
		});
	});
}
