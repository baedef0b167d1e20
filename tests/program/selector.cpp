// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The strip that lists the tables.
#include "app/kernix.h"
#include "app/kernixwindow.h"
#include "app/selectview.h"
#include "program/journey.h"
#include "support/temp_files.h"

#include <gtest/gtest.h>

using tags = std::vector<std::string>;

static const rgb_color paper = {255, 204, 68, 255};
static const rgb_color black = {0, 0, 0, 255};
static const rgb_color red = {255, 0, 0, 255};


// Columns of the strip, from left, that are not all paper.
static std::vector<bool>
inked_columns(robot& user, int top, int bottom)
{
	QImage picture = user.picture();
	std::vector<bool> inked((size_t)picture.width());
	for (int x = 0; x < picture.width(); x++) {
		for (int y = top; y <= bottom; y++)
			inked[(size_t)x] = inked[(size_t)x] || picture.pixel(x, y) != qRgb(255, 204, 68);
	}
	return inked;
}


static bool
any(const std::vector<bool>& inked, int from, int to)
{
	return std::count(inked.begin() + from, inked.begin() + to + 1, true) > 0;
}


TEST(selector, is_an_empty_strip_under_the_menu_bar)
{
	journey([](kernix&, robot& user) {
		EXPECT_EQ(user.count(BRect(0, 21, 399, 52), paper), 400 * 32);
	});
}


TEST(selector, writes_each_tag_thirty_pixels_from_the_last)
{
	with_font([](kernix&, robot& user) {
		std::vector<bool> inked = inked_columns(user, 21, 52);
		EXPECT_FALSE(any(inked, 0, 9));
		for (int i = 0; i < 7; i++) {
			EXPECT_TRUE(any(inked, 10 + 30 * i, 12 + 30 * i)) << "tag " << i << " starts here";
			EXPECT_FALSE(any(inked, 38 + 30 * i, 39 + 30 * i)) << "tag " << i << " has ended";
		}
		EXPECT_FALSE(any(inked, 220, 560));
	});
}


TEST(selector, writes_the_tags_on_row_thirty)
{
	// The only one whose letters all stand on the line.
	const font_file tiny = tiny_font();
	const font_file two = font_file().with("cmap", tiny.table("cmap"));
	temp_file font(two.with("head", tiny.table("head")).ordered({"head", "cmap"}));
	journey([&](kernix&, robot& user) {
		open_file(user, font.path());
		EXPECT_GT(user.count(BRect(10, 49, 38, 49), paper), 0);
		EXPECT_LT(user.count(BRect(10, 49, 38, 49), paper), 29) << "feet of the letters";
		EXPECT_EQ(user.count(BRect(10, 51, 38, 52), paper), 58) << "nothing under them";
		EXPECT_EQ(user.count(BRect(10, 21, 38, 40), paper), 29 * 20) << "nothing far above";
	});
}


TEST(selector, writes_the_tags_in_black)
{
	with_font([](kernix&, robot& user) {
		for (int i = 0; i < 7; i++) {
			EXPECT_GT(user.count(cell_of_tag(i), black), 1) << "tag " << i;
			EXPECT_EQ(user.count(cell_of_tag(i), red), 0) << "tag " << i;
		}
	});
}


TEST(selector, writes_the_chosen_tag_in_red)
{
	with_font([](kernix&, robot& user) {
		user.click(place_of_tag(2));
		for (int i = 0; i < 7; i++) {
			EXPECT_EQ(user.count(cell_of_tag(i), red) > 1, i == 2) << "tag " << i;
			EXPECT_EQ(user.count(cell_of_tag(i), black) == 0, i == 2) << "tag " << i;
		}
	});
}


TEST(selector, writes_the_tag_chosen_before_in_black_again)
{
	with_font([](kernix&, robot& user) {
		user.click(place_of_tag(2));
		user.click(place_of_tag(4));
		EXPECT_EQ(user.count(cell_of_tag(2), red), 0);
		EXPECT_GT(user.count(cell_of_tag(4), red), 1);
	});
}


TEST(selector, forgets_the_picture_of_the_old_tags)
{
	temp_file no_font(hex("00 01 02"));
	with_font([&](kernix& app, robot& user) {
		user.click(place_of_tag(2));
		open_file(user, no_font.path());
		EXPECT_EQ(listed(app), tags());
		EXPECT_EQ(highlighted(app), "");
		// The picture is as wide as a panel.
		EXPECT_EQ(user.count(BRect(0, 21, 561, 52), paper), 562 * 32);
	});
}


TEST(selector, counts_clicks_from_row_twenty_on)
{
	with_font([](kernix& app, robot& user) {
		user.click(BPoint(20, 39));
		EXPECT_EQ(highlighted(app), "");
		user.click(BPoint(20, 40));
		EXPECT_EQ(highlighted(app), "cmap");
		user.click(BPoint(50, 52));
		EXPECT_EQ(highlighted(app), "glyf");
	});
}


TEST(selector, ignores_clicks_above_row_twenty_in_any_column)
{
	with_font([](kernix& app, robot& user) {
		for (float x : {0.0f, 5.0f, 15.0f, 45.0f, 200.0f, 500.0f})
			user.click(BPoint(x, 30));
		EXPECT_EQ(highlighted(app), "");
		EXPECT_EQ(panels_shown(app), tags());
	});
}


TEST(selector, gives_the_margin_to_the_first_tag)
{
	for (float x : {0.0f, 9.0f, 10.0f, 39.0f}) {
		with_font([&](kernix& app, robot& user) {
			user.click(BPoint(x, 45));
			EXPECT_EQ(highlighted(app), "cmap") << x;
		});
	}
}


TEST(selector, gives_each_tag_thirty_columns)
{
	with_font([](kernix& app, robot& user) {
		user.click(BPoint(40, 45));
		EXPECT_EQ(highlighted(app), "glyf");
		user.click(BPoint(69, 45));
		EXPECT_EQ(highlighted(app), "glyf");
		user.click(BPoint(70, 45));
		EXPECT_EQ(highlighted(app), "head");
		user.click(BPoint(219, 45));
		EXPECT_EQ(highlighted(app), "maxp");
	});
}


TEST(selector, ignores_clicks_right_of_the_last_tag)
{
	with_font([](kernix& app, robot& user) {
		user.click(BPoint(70, 45));
		user.click(BPoint(220, 45));
		user.click(BPoint(560, 45));
		EXPECT_EQ(highlighted(app), "head");
		EXPECT_EQ(panels_shown(app), tags{"head"});
	});
}


TEST(selector, ignores_clicks_while_it_lists_nothing)
{
	journey([](kernix& app, robot& user) {
		user.click(BPoint(5, 45));
		user.click(BPoint(20, 45));
		EXPECT_EQ(highlighted(app), "");
	});
}


TEST(selector, highlighting_alone_shows_no_panel)
{
	with_font([](kernix& app, robot& user) {
		tell_selector(app, user, 'tsel', {"hmtx"});
		EXPECT_EQ(highlighted(app), "hmtx");
		EXPECT_GT(user.count(cell_of_tag(4), red), 1);
		EXPECT_EQ(panels_shown(app), tags());
	});
}


TEST(selector, highlights_nothing_new_for_an_unlisted_or_a_missing_tag)
{
	with_font([](kernix& app, robot& user) {
		tell_selector(app, user, 'tsel', {"hmtx"});
		tell_selector(app, user, 'tsel', {"gasp"});
		EXPECT_EQ(highlighted(app), "hmtx");
		tell_selector(app, user, 'tsel', {});
		EXPECT_EQ(highlighted(app), "hmtx");
	});
}


TEST(selector, lists_and_shows_what_it_is_told)
{
	journey([](kernix& app, robot& user) {
		tell_selector(app, user, 'tset', {"abcd", "EFGH"});
		EXPECT_EQ(listed(app), (tags{"abcd", "EFGH"}));
		EXPECT_GT(user.count(cell_of_tag(1), black), 1);
	});
}


TEST(selector, a_new_list_takes_the_highlight_away)
{
	with_font([](kernix& app, robot& user) {
		user.click(place_of_tag(1));
		tell_selector(app, user, 'tset', {"abcd", "EFGH"});
		EXPECT_EQ(highlighted(app), "");
		EXPECT_EQ(user.count(cell_of_tag(1), red), 0);
	});
}


TEST(selector, an_empty_list_clears_it)
{
	with_font([](kernix& app, robot& user) {
		tell_selector(app, user, 'tset', {});
		EXPECT_EQ(listed(app), tags());
		EXPECT_EQ(user.count(BRect(0, 21, 561, 52), paper), 562 * 32);
	});
}


TEST(selector, keeps_thirty_two_of_more_tags)
{
	tags many(40, "many");
	many[31] = "last";
	many[32] = "lost";
	journey([&](kernix& app, robot& user) {
		tell_selector(app, user, 'tset', many);
		EXPECT_EQ(listed(app), tags(many.begin(), many.begin() + 32));
	});
}


TEST(selector, highlights_the_first_of_two_equal_tags)
{
	journey([](kernix& app, robot& user) {
		tell_selector(app, user, 'tset', {"abcd", "same", "same"});
		tell_selector(app, user, 'tsel', {"same"});
		looking(app, [&] { EXPECT_EQ(app.window->selector->selected, 1); });
	});
}


TEST(selector, survives_bytes_that_are_no_letters)
{
	journey([](kernix& app, robot& user) {
		tell_selector(app, user, 'tset', {std::string("\0\xff\x80\n", 4), "abcd"});
		EXPECT_EQ(listed(app).size(), 2u);
		EXPECT_GT(user.count(cell_of_tag(1), black), 1);
	});
}
