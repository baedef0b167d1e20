// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The main window: its parts, its sizes, its scroll bars and its menu.
#include "app/kernix.h"
#include "app/kernixview.h"
#include "app/kernixwindow.h"
#include "app/selectview.h"
#include "program/journey.h"
#include "support/temp_files.h"

#include <AppDefs.h>
#include <Application.h>
#include <gtest/gtest.h>
#include <MenuBar.h>
#include <MenuItem.h>
#include <Messenger.h>
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


TEST(menu, has_one_menu_with_five_items)
{
	journey([](kernix& app, robot&) {
		looking(app, [&] {
			const BMenuBar* bar = app.window->menubar;
			EXPECT_STREQ(bar->Name(), "menubar");
			EXPECT_EQ(bar->ResizingMode(), B_FOLLOW_LEFT_RIGHT | B_FOLLOW_TOP);
			EXPECT_EQ(bar->Layout(), B_ITEMS_IN_ROW);
			ASSERT_EQ(bar->CountItems(), 1);
			const BMenu* file = bar->SubmenuAt(0);
			ASSERT_NE(file, nullptr);
			EXPECT_STREQ(file->Name(), "File");
			EXPECT_EQ(file->Layout(), B_ITEMS_IN_COLUMN);
			const char* const labels[] = {"New", "Open", "Save as", "About", "Quit"};
			ASSERT_EQ(file->CountItems(), 5);
			for (int32 i = 0; i < 5; i++)
				EXPECT_STREQ(file->ItemAt(i)->Label(), labels[i]);
		});
	});
}


TEST(menu, sends_its_messages_to_the_application_and_the_work_view)
{
	journey([](kernix& app, robot&) {
		looking(app, [&] {
			const BMenu* file = app.window->menubar->SubmenuAt(0);
			const uint32 codes[] = {'fine', 'fiop', 'finw', B_ABOUT_REQUESTED, B_QUIT_REQUESTED};
			BHandler* const targets[] = {
				&app, app.window->workview, app.window->workview, &app, &app};
			for (int32 i = 0; i < 5; i++) {
				EXPECT_EQ(file->ItemAt(i)->Command(), codes[i]) << i;
				EXPECT_EQ(file->ItemAt(i)->Target(), targets[i]) << i;
			}
		});
	});
}


// As the program's other parts do, in the window's lock.
static void
mark(kernix& app, const char* menu, const char* label)
{
	looking(app, [&] { app.window->markmenu(menu, label); });
}


TEST(markmenu, marks_the_item_of_that_label)
{
	journey([](kernix& app, robot& user) {
		mark(app, "File", "Save as");
		EXPECT_TRUE(user.menu_is_marked("File", "Save as"));
		EXPECT_FALSE(user.menu_is_marked("File", "Open"));
	});
}


TEST(markmenu, leaves_other_marks_alone)
{
	journey([](kernix& app, robot& user) {
		mark(app, "File", "Save as");
		mark(app, "File", "Open");
		EXPECT_TRUE(user.menu_is_marked("File", "Save as"));
		EXPECT_TRUE(user.menu_is_marked("File", "Open"));
	});
}


TEST(markmenu, unmarks_every_item_for_the_empty_label)
{
	journey([](kernix& app, robot& user) {
		mark(app, "File", "Save as");
		mark(app, "File", "Open");
		mark(app, "File", "");
		EXPECT_FALSE(user.menu_is_marked("File", "Save as"));
		EXPECT_FALSE(user.menu_is_marked("File", "Open"));
	});
}


TEST(markmenu, leaves_menus_of_other_names_alone)
{
	journey([](kernix& app, robot& user) {
		mark(app, "file", "Open");
		EXPECT_FALSE(user.menu_is_marked("File", "Open"));
		mark(app, "File", "Open");
		mark(app, "Edit", "");
		EXPECT_TRUE(user.menu_is_marked("File", "Open"));
	});
}


TEST(markmenu, knows_no_label_but_the_whole_one)
{
	journey([](kernix& app, robot& user) {
		mark(app, "File", "Save");
		mark(app, "File", "open");
		EXPECT_FALSE(user.menu_is_marked("File", "Save as"));
		EXPECT_FALSE(user.menu_is_marked("File", "Open"));
	});
}


TEST(markmenu, marks_in_every_menu_of_that_name)
{
	journey([](kernix& app, robot&) {
		looking(app, [&] {
			BMenu* second = new BMenu("File");
			second->AddItem(new BMenuItem("Open", nullptr));
			app.window->menubar->AddItem(second);
			app.window->markmenu("File", "Open");
			EXPECT_TRUE(app.window->menubar->SubmenuAt(0)->ItemAt(1)->IsMarked());
			EXPECT_TRUE(second->ItemAt(0)->IsMarked());
		});
	});
}


TEST(zoom, of_the_box_gives_the_one_size)
{
	journey([](kernix&, robot& user) {
		user.press_zoom_box();
		EXPECT_EQ(user.window_size(), BPoint(576, 579));
	});
}


TEST(zoom, never_goes_back)
{
	journey([](kernix&, robot& user) {
		for (int i = 0; i < 3; i++) {
			user.press_zoom_box();
			EXPECT_EQ(user.window_size(), BPoint(576, 579)) << i;
		}
	});
}


TEST(zoom, ignores_its_arguments)
{
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
