// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Files are dropped on the window.
#include "app/kernix.h"
#include "app/kernixview.h"
#include "app/kernixwindow.h"
#include "font/globals.h"
#include "font/ttf.h"
#include "program/journey.h"
#include "support/temp_files.h"

#include <AppDefs.h>
#include <gtest/gtest.h>
#include <Messenger.h>

using tags = std::vector<std::string>;


TEST(drops, of_a_font_on_the_work_view_open_it)
{
	temp_file font(tiny_font());
	journey([&](kernix& app, robot& user) {
		drop(app, user, {font.path()});
		EXPECT_EQ(listed(app), tiny_tags);
	});
}


TEST(drops, replace_the_open_font_without_asking)
{
	temp_file first(tiny_font());
	temp_file second(other_font());
	journey([&](kernix& app, robot& user) {
		open_file(user, first.path());
		drop(app, user, {second.path()});
		EXPECT_EQ(listed(app), other_tags);
	});
}


TEST(drops, of_several_files_open_the_first_that_is_a_font)
{
	temp_file no_font(hex("4f54544f"));
	temp_folder folder;
	temp_file font(other_font());
	temp_file another(tiny_font());
	journey([&](kernix& app, robot& user) {
		drop(app, user, {no_font.path(), folder.path(), font.path(), another.path()});
		EXPECT_EQ(listed(app), other_tags);
	});
}


TEST(drops, of_several_files_try_none_after_the_first_font)
{
	temp_file font(other_font());
	temp_file no_font(hex("4f54544f"));
	std::string printed = printed_by([&] {
		journey([&](kernix& app, robot& user) {
			drop(app, user, {font.path(), no_font.path()});
			EXPECT_EQ(listed(app), other_tags);
		});
	});
	EXPECT_EQ(printed.find("kernix:load\n"), printed.rfind("kernix:load\n"));
}


TEST(drops, without_any_font_leave_the_program_empty)
{
	temp_file font(tiny_font());
	temp_file no_font(hex("4f54544f"));
	temp_file empty;
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		drop(app, user, {no_font.path(), empty.path()});
		EXPECT_EQ(listed(app), tags());
		looking(app, [] { EXPECT_TRUE(curttf != nullptr && curttf->empty()); });
	});
}


TEST(drops, without_files_change_nothing)
{
	temp_file font(tiny_font());
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		drop(app, user, {});
		EXPECT_EQ(listed(app), tiny_tags);
	});
}


TEST(drops, without_files_change_nothing_at_the_application_either)
{
	temp_file font(tiny_font());
	std::string printed = printed_by([&] {
		journey([&](kernix& app, robot& user) {
			open_file(user, font.path());
			be_app_messenger.SendMessage(B_SIMPLE_DATA);
			user.settle();
			EXPECT_EQ(listed(app), tiny_tags);
		});
	});
	EXPECT_EQ(printed.rfind("kernix:load\n"), 0u) << "only the font was loaded";
}


TEST(drops, of_something_else_than_files_change_nothing)
{
	temp_file font(tiny_font());
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		BMessage text(B_SIMPLE_DATA);
		text.AddString("refs", font.path().c_str());
		BMessenger(app.window->workview).SendMessage(&text);
		be_app_messenger.SendMessage(&text);
		user.settle();
		EXPECT_EQ(listed(app), tiny_tags);
	});
}


TEST(drops, on_a_panel_reach_the_work_view)
{
	temp_file first(tiny_font());
	temp_file second(other_font());
	journey([&](kernix& app, robot& user) {
		open_file(user, first.path());
		tell_view(app, user, 'tsel', {"maxp"});
		BMessage message = refs(B_SIMPLE_DATA, {second.path()});
		BMessenger(panel_of(app, "maxp")).SendMessage(&message);
		user.settle();
		EXPECT_EQ(listed(app), other_tags);
	});
}


TEST(drops, on_the_selector_do_nothing)
{
	temp_file first(tiny_font());
	temp_file second(other_font());
	journey([&](kernix& app, robot& user) {
		open_file(user, first.path());
		BMessage message = refs(B_SIMPLE_DATA, {second.path()});
		BMessenger((BHandler*)app.window->FindView("selector")).SendMessage(&message);
		user.settle();
		EXPECT_EQ(listed(app), tiny_tags);
	});
}


TEST(drops, leave_an_open_file_panel_as_it_is)
{
	temp_file font(tiny_font());
	journey([&](kernix& app, robot& user) {
		user.choose_menu("File", "Open");
		BFilePanel* panel = fpanel;
		drop(app, user, {font.path()});
		EXPECT_EQ(listed(app), tiny_tags);
		EXPECT_NE(panel, nullptr);
		EXPECT_EQ(fpanel, panel);
		EXPECT_TRUE(user.panel_is_open());
	});
}
