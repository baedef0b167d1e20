// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// A user opens fonts with the real program.
#include "app/kernix.h"
#include "app/kernixview.h"
#include "app/kernixwindow.h"
#include "font/globals.h"
#include "program/journey.h"
#include "support/live_handlers.h"
#include "support/temp_files.h"

#include <AppDefs.h>
#include <gtest/gtest.h>
#include <Messenger.h>
#include <ScrollBar.h>
#include <unistd.h>

using tags = std::vector<std::string>;


TEST(program, starts_with_its_title_and_an_empty_selector)
{
	journey([](kernix& app, robot& user) {
		EXPECT_EQ(user.window_title(), "kernix ver.0.02");
		EXPECT_EQ(user.window_size(), BPoint(400, 300));
		EXPECT_EQ(listed(app), tags());
		EXPECT_EQ(highlighted(app), "");
	});
}


TEST(program, starts_without_a_font_a_canvas_or_a_panel)
{
	canvas = BRect(1, 2, 3, 4);
	journey([](kernix& app, robot& user) {
		user.settle();
		looking(app, [] { EXPECT_EQ(curttf, nullptr); });
		EXPECT_EQ(shown_canvas(app), BRect(0, 0, 0, 0));
		EXPECT_EQ(fpanel, nullptr);
	});
}


TEST(opening, lists_the_tables_in_the_order_of_the_directory)
{
	temp_file font(other_font());
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		EXPECT_EQ(listed(app), (tags{"name", "cmap", "head", "prep"}));
	});
}


TEST(opening, highlights_no_tag_and_shows_no_panel)
{
	temp_file font(tiny_font());
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		EXPECT_EQ(highlighted(app), "");
		EXPECT_EQ(panels_shown(app), tags());
	});
}


TEST(opening, makes_every_panel_a_child_of_the_work_view_but_loca_and_the_unmodelled)
{
	temp_file font(tiny_font().with("prep", "b0"));
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		looking(app, [&] { EXPECT_EQ(app.window->workview->CountChildren(), 6); });
		EXPECT_NE(panel_of(app, "maxp"), nullptr);
		EXPECT_EQ(panel_of(app, "loca"), nullptr);
		EXPECT_EQ(panel_of(app, "prep"), nullptr);
	});
}


TEST(opening, gives_the_window_its_one_size)
{
	temp_file font(tiny_font());
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		EXPECT_EQ(user.window_size(), BPoint(576, 579));
		looking(app, [&] { EXPECT_EQ(app.window->Bounds(), BRect(0, 0, 575, 578)); });
	});
}


TEST(opening, grows_a_window_again_that_the_user_has_made_small)
{
	temp_file first(tiny_font());
	temp_file second(other_font());
	journey([&](kernix&, robot& user) {
		open_file(user, first.path());
		user.resize_window(450, 350);
		open_file(user, second.path());
		EXPECT_EQ(user.window_size(), BPoint(576, 579));
	});
}


TEST(opening, moves_the_design_box_to_the_origin_for_the_canvas)
{
	octets head = tiny_font().table("head");
	put_be16(head, 36, 0xFFF6); // xMin -10
	put_be16(head, 38, 0xFFEC); // yMin -20
	put_be16(head, 40, 90);
	put_be16(head, 42, 180);
	temp_file font(tiny_font().with("head", head));
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		EXPECT_EQ(shown_canvas(app), BRect(0, 0, 100, 200));
	});
}


TEST(opening, needs_no_glyf_to_come_to_its_end)
{
	temp_file font(other_font());
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		EXPECT_EQ(canvasok, 1);
		EXPECT_EQ(shown_canvas(app), BRect(0, 0, 511, 511));
	});
}


TEST(opening, takes_a_font_that_has_only_a_cmap)
{
	temp_file font(font_file().with("cmap", tiny_font().table("cmap")));
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		EXPECT_EQ(listed(app), tags{"cmap"});
	});
}


TEST(opening, from_the_desktop_takes_the_first_of_several_files)
{
	temp_file first(other_font());
	temp_file second(tiny_font());
	journey([&](kernix& app, robot& user) {
		BMessage both = refs(B_REFS_RECEIVED, {first.path(), second.path()});
		be_app_messenger.SendMessage(&both);
		user.settle();
		EXPECT_EQ(listed(app), other_tags);
	});
}


TEST(opening, from_the_desktop_without_a_file_changes_nothing)
{
	temp_file font(tiny_font());
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		be_app_messenger.SendMessage(B_REFS_RECEIVED);
		user.settle();
		EXPECT_EQ(listed(app), tiny_tags);
	});
}


TEST(opening, a_second_font_replaces_the_first)
{
	temp_file first(tiny_font());
	temp_file second(other_font());
	journey([&](kernix& app, robot& user) {
		open_file(user, first.path());
		tell_view(app, user, 'tsel', {"head"});
		open_file(user, second.path());
		EXPECT_EQ(listed(app), other_tags);
		EXPECT_EQ(highlighted(app), "");
		EXPECT_EQ(panels_shown(app), tags());
		looking(app, [&] { EXPECT_EQ(app.window->workview->CountChildren(), 3); });
	});
}


TEST(opening, the_same_file_twice_reads_it_again)
{
	temp_folder folder;
	write_file(folder.path("a.ttf"), tiny_font());
	journey([&](kernix& app, robot& user) {
		open_file(user, folder.path("a.ttf"));
		write_file(folder.path("a.ttf"), other_font());
		open_file(user, folder.path("a.ttf"));
		EXPECT_EQ(listed(app), other_tags);
	});
}


TEST(opening, clears_the_scroll_bars_for_the_empty_work_view)
{
	temp_file first(tiny_font());
	temp_file second(other_font());
	journey([&](kernix& app, robot& user) {
		open_file(user, first.path());
		tell_view(app, user, 'tsel', {"head"});
		open_file(user, second.path());
		looking(app, [&] {
			EXPECT_EQ(app.window->scrolltarget, app.window->workview);
			EXPECT_EQ(app.window->scrollv->Target(), app.window->workview);
			EXPECT_EQ(app.window->scrollh->Target(), app.window->workview);
			EXPECT_EQ(app.window->canvaswidth, 562);
			EXPECT_EQ(app.window->canvasheight, 513);
		});
		EXPECT_EQ(bar(app, B_VERTICAL), "0 to 0, 1, 5 and 512");
		EXPECT_EQ(bar(app, B_HORIZONTAL), "0 to 0, 1, 5 and 561");
		EXPECT_EQ(size_limits(app), BRect(400, 300, 575, 578));
	});
}


TEST(opening, leaves_no_view_of_either_font_behind)
{
	temp_file first(tiny_font());
	temp_file second(other_font());
	live_handlers alive;
	journey([&](kernix&, robot& user) {
		open_file(user, first.path());
		open_file(user, second.path());
	});
	EXPECT_EQ(alive.count(), 0);
}


TEST(opening, clear_takes_the_font_away_and_leaves_none)
{
	temp_file font(tiny_font());
	live_handlers alive;
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		app.clear();
		user.settle();
		EXPECT_EQ(listed(app), tags());
		looking(app, [&] {
			EXPECT_EQ(curttf, nullptr);
			EXPECT_EQ(app.window->workview->CountChildren(), 0);
		});
	});
	EXPECT_EQ(alive.count(), 0);
}


TEST(opening, a_link_opens_what_it_leads_to)
{
	temp_file font(tiny_font());
	temp_folder folder;
	ASSERT_EQ(symlink(font.path().c_str(), folder.path("link").c_str()), 0);
	journey([&](kernix& app, robot& user) {
		open_file(user, folder.path("link"));
		EXPECT_EQ(listed(app), tiny_tags);
	});
}


TEST(opening, by_a_drop_takes_a_file_whose_name_is_not_UTF_8)
{
	temp_folder folder;
	write_file(folder.path("caf\xE9.ttf"), tiny_font());
	journey([&](kernix& app, robot& user) {
		user.drop(BPoint(200, 200), {folder.path("caf\xE9.ttf")});
		EXPECT_EQ(listed(app), tiny_tags);
	});
}


TEST(opening, by_a_drop_of_what_has_gone_keeps_the_open_font)
{
	temp_folder folder;
	temp_file font(tiny_font());
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		user.drop(BPoint(200, 200), {folder.path("gone.ttf")});
		EXPECT_EQ(listed(app), tiny_tags);
	});
}


TEST(opening, lists_all_of_thirty_two_tables)
{
	font_file many = tiny_font();
	for (int i = 0; i < 25; i++)
		many = many.again("head", "00");
	temp_file font(many);
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		tags found = listed(app);
		ASSERT_EQ(found.size(), 32u);
		EXPECT_EQ(found[0], "cmap");
		EXPECT_EQ(found[31], "head");
	});
}


TEST(opening, prints_its_steps_and_the_tables_in_their_order)
{
	temp_file font(other_font());
	std::string printed =
		printed_by([&] { journey([&](kernix&, robot& user) { open_file(user, font.path()); }); });
	EXPECT_EQ(printed,
		"kernix:load\n"
		"ttf:load\n"
		"name=[name]\n"
		"name=[cmap]\n"
		"name=[head]\n"
		"name=[prep]\n");
}


// Bytes of the heap in use: the sanitizers' count.
extern "C" size_t __sanitizer_get_current_allocated_bytes() __attribute__((weak));


TEST(opening, a_hundred_fonts_in_a_row_leaves_memory_where_it_was)
{
	if (__sanitizer_get_current_allocated_bytes == nullptr)
		GTEST_SKIP() << "only the sanitizers count";
	temp_file font(tiny_font().with("prep", zeros(200'000)));
	temp_file no_font(hex("00 01 02"));
	size_t after_ten = 0;
	size_t at_the_end = 0;
	journey([&](kernix& app, robot& user) {
		for (int i = 0; i < 100; i++) {
			open_file(user, font.path());
			tell_view(app, user, 'tsel', {"head"});
			open_file(user, i % 2 ? font.path() : no_font.path());
			if (i == 9)
				after_ten = __sanitizer_get_current_allocated_bytes();
		}
		at_the_end = __sanitizer_get_current_allocated_bytes();
	});
	// 90 views of a few hundred bytes would already be more.
	EXPECT_LT((double)at_the_end - (double)after_ten, 20'000.0);
}
