// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The panels that ask for a file.
#include "app/kernix.h"
#include "app/kernixview.h"
#include "app/kernixwindow.h"
#include "app/selectview.h"
#include "font/globals.h"
#include "program/journey.h"
#include "support/live_handlers.h"
#include "support/temp_files.h"

#include <AppDefs.h>
#include <gtest/gtest.h>
#include <Messenger.h>

using tags = std::vector<std::string>;


TEST(panels, open_comes_up_from_the_menu)
{
	journey([](kernix&, robot& user) {
		EXPECT_TRUE(user.choose_menu("File", "Open"));
		EXPECT_EQ(user.count_panels(), 1);
		EXPECT_NE(fpanel, nullptr);
	});
}


TEST(panels, save_comes_up_from_the_menu_also_without_a_font)
{
	journey([](kernix&, robot& user) {
		EXPECT_TRUE(user.choose_menu("File", "Save as"));
		EXPECT_EQ(user.count_panels(), 1);
		EXPECT_NE(fpanel, nullptr);
	});
}


TEST(panels, come_up_whatever_view_has_the_keyboard)
{
	temp_file font(tiny_font());
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		looking(app, [&] { app.window->selector->MakeFocus(); });
		user.choose_menu("File", "Open");
		EXPECT_EQ(user.count_panels(), 1);
	});
}


TEST(panels, do_not_come_up_a_second_time)
{
	journey([](kernix&, robot& user) {
		user.choose_menu("File", "Open");
		BFilePanel* first = fpanel;
		user.choose_menu("File", "Open");
		user.choose_menu("File", "Save as");
		EXPECT_EQ(user.count_panels(), 1);
		EXPECT_EQ(fpanel, first);
	});
}


TEST(panels, open_loads_the_file_that_the_user_names_and_goes)
{
	temp_file font(tiny_font());
	journey([&](kernix& app, robot& user) {
		user.choose_menu("File", "Open");
		user.answer_panel(font.path());
		EXPECT_EQ(listed(app), tiny_tags);
		EXPECT_EQ(fpanel, nullptr);
		EXPECT_EQ(user.count_panels(), 0);
	});
}


TEST(panels, are_forgotten_when_the_file_is_no_font)
{
	temp_file no_font(hex("00 01 02"));
	journey([&](kernix& app, robot& user) {
		user.choose_menu("File", "Open");
		user.answer_panel(no_font.path());
		EXPECT_EQ(listed(app), tags());
		EXPECT_EQ(fpanel, nullptr);
	});
}


TEST(panels, are_forgotten_when_the_user_closes_them)
{
	for (const char* item : {"Open", "Save as"}) {
		journey([&](kernix&, robot& user) {
			user.choose_menu("File", item);
			user.cancel_panel();
			EXPECT_EQ(fpanel, nullptr) << item;
			EXPECT_EQ(user.count_panels(), 0) << item;
		});
	}
}


TEST(panels, change_nothing_when_the_user_closes_them)
{
	temp_file font(tiny_font());
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		user.choose_menu("File", "Open");
		user.cancel_panel();
		EXPECT_EQ(listed(app), tiny_tags);
	});
}


TEST(panels, come_up_again_after_each_answer)
{
	temp_file font(tiny_font());
	temp_folder folder;
	journey([&](kernix&, robot& user) {
		user.choose_menu("File", "Open");
		user.answer_panel(font.path());
		user.choose_menu("File", "Save as");
		EXPECT_EQ(user.count_panels(), 1);
		user.answer_panel(folder.path("saved.ttf"));
		user.choose_menu("File", "Open");
		EXPECT_EQ(user.count_panels(), 1);
		user.cancel_panel();
		user.choose_menu("File", "Open");
		EXPECT_EQ(user.count_panels(), 1);
	});
}


TEST(panels, are_forgotten_by_a_save_that_saves_nothing)
{
	temp_folder folder;
	journey([&](kernix&, robot& user) {
		user.choose_menu("File", "Save as");
		user.answer_panel(folder.path("saved.ttf"));
		EXPECT_EQ(fpanel, nullptr);
		EXPECT_EQ(user.count_panels(), 0);
	});
}


TEST(panels, are_forgotten_by_messages_alone)
{
	temp_folder folder;
	for (uint32 what : std::initializer_list<uint32>{B_CANCEL, B_SAVE_REQUESTED, B_REFS_RECEIVED}) {
		journey([&](kernix&, robot& user) {
			user.choose_menu("File", "Open");
			EXPECT_NE(fpanel, nullptr);
			be_app_messenger.SendMessage(what);
			user.settle();
			EXPECT_EQ(fpanel, nullptr) << what;
		});
	}
}


TEST(panels, are_forgotten_when_the_desktop_sends_a_file)
{
	temp_file font(tiny_font());
	journey([&](kernix& app, robot& user) {
		user.choose_menu("File", "Open");
		open_file(user, font.path());
		EXPECT_EQ(listed(app), tiny_tags);
		EXPECT_EQ(fpanel, nullptr);
	});
}


TEST(panels, that_the_desktop_made_forgotten_go_when_the_next_comes)
{
	temp_file font(tiny_font());
	temp_file other(other_font());
	journey([&](kernix& app, robot& user) {
		user.choose_menu("File", "Save as");
		open_file(user, font.path());
		user.choose_menu("File", "Open");
		EXPECT_EQ(user.count_panels(), 1);
		user.answer_panel(other.path());
		EXPECT_EQ(listed(app), (tags{"name", "cmap", "head", "prep"}));
		EXPECT_EQ(user.count_panels(), 0);
	});
}


TEST(panels, that_are_forgotten_still_answer)
{
	temp_file font(tiny_font());
	temp_file other(other_font());
	journey([&](kernix& app, robot& user) {
		user.choose_menu("File", "Open");
		open_file(user, font.path());
		user.answer_panel(other.path());
		EXPECT_EQ(listed(app), (tags{"name", "cmap", "head", "prep"}));
		EXPECT_EQ(fpanel, nullptr);
	});
}


TEST(panels, come_up_from_the_messages_of_the_work_view)
{
	journey([](kernix& app, robot& user) {
		tell_view(app, user, 'finw', {});
		EXPECT_EQ(user.count_panels(), 1);
		user.cancel_panel();
		tell_view(app, user, 'fiop', {});
		EXPECT_EQ(user.count_panels(), 1);
	});
}


TEST(panels, leave_the_window_alive_while_they_are_up)
{
	temp_file font(tiny_font());
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		user.choose_menu("File", "Open");
		user.click(place_of_tag(2));
		EXPECT_EQ(highlighted(app), "head");
	});
}
