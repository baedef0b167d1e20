// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The About box.
#include "app/kernix.h"
#include "program/journey.h"
#include "support/temp_files.h"

#include <AppDefs.h>
#include <gtest/gtest.h>
#include <Messenger.h>

using labels = std::vector<std::string>;


TEST(about, names_the_program_in_its_first_line)
{
	journey([](kernix&, robot& user) {
		EXPECT_TRUE(user.choose_menu("File", "About"));
		std::string text = user.alert_text();
		EXPECT_EQ(text.substr(0, text.find('\n')), "kernix ver.0.02   2012. 1. 1");
		EXPECT_TRUE(user.press_alert("Thank you"));
	});
}


TEST(about, has_one_button_and_goes_when_it_is_pressed)
{
	journey([](kernix&, robot& user) {
		user.choose_menu("File", "About");
		EXPECT_EQ(user.alert_buttons(), labels{"Thank you"});
		EXPECT_TRUE(user.press_alert("Thank you"));
		EXPECT_EQ(user.alert_buttons(), labels());
		user.choose_menu("File", "About");
		EXPECT_EQ(user.alert_buttons(), labels{"Thank you"});
		user.press_alert("Thank you");
	});
}


TEST(about, leaves_the_open_font_as_it_is)
{
	temp_file font(tiny_font());
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		user.click(place_of_tag(2));
		user.choose_menu("File", "About");
		user.press_alert("Thank you");
		EXPECT_EQ(panels_shown(app), labels{"head"});
	});
}


TEST(about, does_not_keep_the_program_from_quitting)
{
	journey([](kernix&, robot& user) {
		user.choose_menu("File", "About");
		be_app_messenger.SendMessage(B_QUIT_REQUESTED);
		EXPECT_TRUE(user.wait_for([&] { return !user.window_is_shown(); }));
		EXPECT_EQ(user.alert_buttons(), labels());
	});
}


TEST(about, does_not_keep_the_window_from_being_closed)
{
	journey([](kernix& app, robot& user) {
		user.choose_menu("File", "About");
		BMessenger((BHandler*)nullptr, (BLooper*)app.window).SendMessage(B_QUIT_REQUESTED);
		EXPECT_TRUE(user.wait_for([&] { return !user.window_is_shown(); }));
	});
}


TEST(about, keeps_the_user_from_the_window_until_it_is_answered)
{
	temp_file font(tiny_font());
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		user.choose_menu("File", "About");
		user.click(place_of_tag(2));
		EXPECT_EQ(panels_shown(app), labels());
		user.press_alert("Thank you");
		user.click(place_of_tag(2));
		EXPECT_EQ(panels_shown(app), labels{"head"});
	});
}
