// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The panels that the selector brings up, and how they are scrolled.
#include "app/kernix.h"
#include "app/kernixwindow.h"
#include "program/journey.h"
#include "support/temp_files.h"

#include <gtest/gtest.h>
#include <ScrollBar.h>

using tags = std::vector<std::string>;

static const rgb_color black = {0, 0, 0, 255};
static const rgb_color red = {255, 0, 0, 255};


TEST(selector, a_click_shows_the_panel_and_highlights_the_tag)
{
	with_font([](kernix& app, robot& user) {
		user.click(place_of_tag(6));
		EXPECT_EQ(panels_shown(app), tags{"maxp"});
		EXPECT_EQ(highlighted(app), "maxp");
	});
}


TEST(selector, shows_one_panel_at_a_time)
{
	with_font([](kernix& app, robot& user) {
		for (int i : {0, 2, 3, 4, 6, 2}) {
			user.click(place_of_tag(i));
			EXPECT_EQ(panels_shown(app), tags{tiny_tags[(size_t)i]});
		}
	});
}


TEST(selector, loca_hides_the_panel_and_is_highlighted_all_the_same)
{
	with_font([](kernix& app, robot& user) {
		user.click(place_of_tag(2));
		user.click(place_of_tag(5));
		EXPECT_EQ(panels_shown(app), tags());
		EXPECT_EQ(highlighted(app), "loca");
		EXPECT_GT(user.count(cell_of_tag(5), red), 1);
	});
}


TEST(selector, a_table_that_nobody_models_hides_the_panel_and_is_highlighted)
{
	temp_file font(other_font());
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		user.click(place_of_tag(1));
		user.click(place_of_tag(3));
		EXPECT_EQ(panels_shown(app), tags());
		EXPECT_EQ(highlighted(app), "prep");
	});
}


TEST(selector, the_work_view_is_told_by_messages)
{
	with_font([](kernix& app, robot& user) {
		tell_view(app, user, 'tsel', {"hhea"});
		EXPECT_EQ(panels_shown(app), tags{"hhea"});
		EXPECT_EQ(highlighted(app), "hhea");
	});
}


TEST(selector, a_message_without_a_table_hides_every_panel_and_keeps_the_highlight)
{
	with_font([](kernix& app, robot& user) {
		tell_view(app, user, 'tsel', {"hhea"});
		tell_view(app, user, 'tsel', {});
		EXPECT_EQ(panels_shown(app), tags());
		EXPECT_EQ(highlighted(app), "hhea");
	});
}


TEST(selector, a_tag_that_the_font_lacks_hides_every_panel_and_keeps_the_highlight)
{
	with_font([](kernix& app, robot& user) {
		tell_view(app, user, 'tsel', {"hhea"});
		tell_view(app, user, 'tsel', {"gasp"});
		EXPECT_EQ(panels_shown(app), tags());
		EXPECT_EQ(highlighted(app), "hhea");
	});
}


TEST(selector, scrolls_the_panel_that_it_shows)
{
	with_font([](kernix& app, robot& user) {
		user.click(place_of_tag(6));
		BView* panel = panel_of(app, "maxp");
		looking(app, [&] {
			EXPECT_EQ(app.window->scrolltarget, panel);
			EXPECT_EQ(app.window->scrollv->Target(), panel);
			EXPECT_EQ(app.window->scrollh->Target(), panel);
			EXPECT_EQ(app.window->canvaswidth, 562);
			EXPECT_EQ(app.window->canvasheight, 512);
		});
		EXPECT_EQ(bar(app, B_VERTICAL), "0 to 0, 1, 5 and 511");
		EXPECT_EQ(bar(app, B_HORIZONTAL), "0 to 0, 1, 5 and 561");
	});
}


TEST(selector, keeps_the_scroll_target_for_a_tag_without_a_panel)
{
	with_font([](kernix& app, robot& user) {
		user.click(place_of_tag(6));
		user.click(place_of_tag(5));
		BView* panel = panel_of(app, "maxp");
		looking(app, [&] { EXPECT_EQ(app.window->scrolltarget, panel); });
	});
}


TEST(selector, limits_the_window_to_a_panel_with_what_surrounds_it)
{
	with_font([](kernix& app, robot& user) {
		user.click(place_of_tag(6));
		EXPECT_EQ(size_limits(app), BRect(400, 300, 575, 578));
		user.resize_window(1000, 1000);
		EXPECT_EQ(user.window_size(), BPoint(576, 579));
		user.resize_window(10, 10);
		EXPECT_EQ(user.window_size(), BPoint(401, 301));
	});
}


TEST(selector, grows_the_window_again_and_scrolls_back)
{
	with_font([](kernix& app, robot& user) {
		user.click(place_of_tag(6));
		user.resize_window(401, 301);
		user.drag_scroll_bar(B_VERTICAL, 100);
		user.drag_scroll_bar(B_HORIZONTAL, 50);
		user.click(place_of_tag(6));
		EXPECT_EQ(user.window_size(), BPoint(576, 579));
		BView* panel = panel_of(app, "maxp");
		looking(app, [&] {
			EXPECT_EQ(panel->Bounds(), BRect(0, 0, 561, 511));
			EXPECT_EQ(app.window->scrollv->Value(), 0);
			EXPECT_EQ(app.window->scrollh->Value(), 0);
		});
	});
}


TEST(selector, lets_a_small_window_scroll_over_the_panel)
{
	with_font([](kernix& app, robot& user) {
		user.click(place_of_tag(6));
		user.resize_window(401, 301);
		// 387 x 234 pixels of 562 x 512 are in sight.
		EXPECT_EQ(bar(app, B_VERTICAL), "0 to 277, 0.457, 5 and 233");
		EXPECT_EQ(bar(app, B_HORIZONTAL), "0 to 174, 0.689, 5 and 386");
		user.drag_scroll_bar(B_VERTICAL, 277);
		user.drag_scroll_bar(B_HORIZONTAL, 174);
		BView* panel = panel_of(app, "maxp");
		looking(app, [&] { EXPECT_EQ(panel->Bounds(), BRect(174, 277, 560, 510)); });
	});
}


TEST(selector, covers_the_title_card_with_the_panel_and_gives_it_back)
{
	with_font([](kernix&, robot& user) {
		QImage card = user.picture().copy(0, 53, 562, 512);
		user.click(place_of_tag(6));
		EXPECT_EQ(user.pixel(BPoint(5, 500)), black);
		EXPECT_LT(user.count(BRect(0, 53, 561, 564), {50, 50, 50, 255}), 100);
		user.click(place_of_tag(5));
		EXPECT_EQ(user.picture().copy(0, 53, 562, 512), card);
	});
}
