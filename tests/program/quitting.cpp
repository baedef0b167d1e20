// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The program ends, whatever it is doing. A test that comes to its end has seen it end.
#include "app/activity.h"
#include "app/kernix.h"
#include "app/kernixview.h"
#include "app/kernixwindow.h"
#include "font/globals.h"
#include "program/journey.h"
#include "support/expected_save.h"
#include "support/live_handlers.h"
#include "support/temp_files.h"

#include <AppDefs.h>
#include <gtest/gtest.h>
#include <Messenger.h>


// Whether the window can be worked with no more.
static bool
has_gone(kernix& app)
{
	if (!app.window->Lock())
		return true;
	app.window->Unlock();
	return false;
}


TEST(quitting, by_the_menu_ends_the_program)
{
	journey([](kernix& app, robot& user) {
		EXPECT_TRUE(user.choose_menu("File", "Quit"));
		EXPECT_TRUE(has_gone(app));
		EXPECT_FALSE(user.window_is_shown());
	});
}


TEST(quitting, by_the_close_box_ends_the_program)
{
	journey([](kernix& app, robot& user) {
		user.press_close_box();
		EXPECT_TRUE(has_gone(app));
		EXPECT_FALSE(user.window_is_shown());
	});
}


TEST(quitting, with_a_font_on_display_ends_the_program)
{
	temp_file font(tiny_font());
	for (bool by_menu : {true, false}) {
		live_handlers alive;
		journey([&](kernix& app, robot& user) {
			open_file(user, font.path());
			user.click(place_of_tag(2));
			by_menu ? (void)user.choose_menu("File", "Quit") : user.press_close_box();
			EXPECT_TRUE(has_gone(app));
		});
		EXPECT_EQ(alive.count(), 0);
	}
}


TEST(quitting, lets_go_of_the_work_view_with_the_panels_in_it)
{
	temp_file font(tiny_font());
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		user.press_close_box();
		EXPECT_EQ(app.window->workview->Window(), nullptr);
		EXPECT_EQ(app.window->workview->CountChildren(), 6);
	});
}


TEST(quitting, leaves_the_font_for_the_end_of_the_process)
{
	temp_file font(tiny_font());
	with_application<kernix>([&](kernix&, robot& user) {
		open_file(user, font.path());
		user.press_close_box();
	});
	EXPECT_NE(curttf, nullptr);
	journey([](kernix&, robot&) {});
}


TEST(quitting, with_a_file_panel_open_ends_the_program)
{
	for (const char* item : {"Open", "Save as"}) {
		for (bool by_menu : {true, false}) {
			journey([&](kernix& app, robot& user) {
				user.choose_menu("File", item);
				EXPECT_TRUE(user.panel_is_open());
				by_menu ? (void)user.choose_menu("File", "Quit") : user.press_close_box();
				EXPECT_TRUE(has_gone(app)) << item;
			});
			EXPECT_EQ(fpanel, nullptr) << item;
		}
	}
}


TEST(quitting, with_the_question_of_a_save_panel_open_ends_the_program)
{
	temp_file font(tiny_font());
	temp_file old(hex("00 01 02"));
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		user.choose_menu("File", "Save as");
		user.answer_panel(old.path());
		BMessenger(app.window).SendMessage(B_QUIT_REQUESTED);
		EXPECT_TRUE(user.wait_for([&] { return has_gone(app); }));
	});
	EXPECT_EQ(old.contents(), hex("00 01 02"));
}


TEST(quitting, at_once_ends_the_program)
{
	for (int i = 0; i < 20; i++) {
		journey([](kernix&, robot&) { be_app_messenger.SendMessage(B_QUIT_REQUESTED); });
		journey([](kernix& app, robot&) { BMessenger(app.window).SendMessage(B_QUIT_REQUESTED); });
	}
}


TEST(quitting, by_the_close_box_and_the_menu_at_once_ends_the_program)
{
	temp_file font(tiny_font());
	for (int i = 0; i < 40; i++) {
		journey([&](kernix& app, robot& user) {
			open_file(user, font.path());
			BMessenger menu = be_app_messenger;
			BMessenger box(app.window);
			std::thread other([=] { menu.SendMessage(B_QUIT_REQUESTED); });
			for (int k = 0; k < i % 3; k++)
				box.SendMessage(B_QUIT_REQUESTED);
			other.join();
		});
	}
}


// Waits until so many messages and commands have begun, or everything has come to rest.
static void
wait_for_moment(int64 first, int64 moment)
{
	using namespace kits;
	while (activity::generation() < first + moment && activity::pending() > 0)
		std::this_thread::yield();
}


TEST(quitting, while_fonts_are_loading_ends_the_program)
{
	temp_file font(tiny_font().with("prep", zeros(100'000)));
	temp_file other(other_font());
	for (int64 moment = 0; moment < 60; moment += 2) {
		for (bool by_menu : {true, false}) {
			live_handlers alive;
			journey([&](kernix& app, robot& user) {
				user.settle();
				BMessenger target = by_menu ? be_app_messenger : BMessenger(app.window);
				BMessage message = refs(B_SIMPLE_DATA, {font.path()});
				BMessage next = refs(B_REFS_RECEIVED, {other.path()});
				int64 first = kits::activity::generation();
				be_app_messenger.SendMessage(&message);
				be_app_messenger.SendMessage(&next);
				BMessenger(app.window->workview).SendMessage(&message);
				wait_for_moment(first, moment);
				target.SendMessage(B_QUIT_REQUESTED);
			});
			EXPECT_EQ(alive.count(), 0) << "moment " << moment;
		}
	}
}


TEST(quitting, while_a_font_is_being_saved_ends_the_program)
{
	temp_file font(tiny_font().with("prep", zeros(100'000)));
	temp_folder folder;
	for (int64 moment = 0; moment < 20; moment++) {
		journey([&](kernix& app, robot& user) {
			open_file(user, font.path());
			BMessage message = save_answer(folder.path(), "saved.ttf");
			int64 first = kits::activity::generation();
			be_app_messenger.SendMessage(&message);
			wait_for_moment(first, moment);
			BMessenger(app.window).SendMessage(B_QUIT_REQUESTED);
		});
	}
}


TEST(quitting, right_after_a_save_was_confirmed_leaves_the_font_saved)
{
	temp_file font(tiny_font());
	temp_folder folder;
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		// The application is busy while the save and the end of the window come.
		app.Lock();
		BMessage message = save_answer(folder.path(), "saved.ttf");
		be_app_messenger.SendMessage(&message);
		BMessenger(app.window).SendMessage(B_QUIT_REQUESTED);
		while (!has_gone(app))
			std::this_thread::yield();
		app.Unlock();
	});
	octets saved = read_file(folder.path("saved.ttf"));
	EXPECT_TRUE(same(expected_save(tiny_font(), modified_of(saved)), saved));
}


TEST(quitting, makes_a_file_that_comes_too_late_do_nothing)
{
	temp_file font(tiny_font());
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		user.press_close_box();
		const ttf* before = curttf;
		entry_ref ref;
		refs(B_REFS_RECEIVED, {font.path()}).FindRef("refs", &ref);
		EXPECT_TRUE(app.load(ref));
		EXPECT_EQ(curttf, before);
		app.clear();
		EXPECT_EQ(curttf, before);
	});
}


TEST(quitting, may_be_asked_of_a_window_twice)
{
	journey([](kernix& app, robot& user) {
		looking(app, [&] {
			EXPECT_TRUE(app.window->QuitRequested());
			EXPECT_TRUE(app.window->QuitRequested());
		});
		EXPECT_TRUE(user.wait_for([&] { return has_gone(app); }));
	});
}


TEST(quitting, lets_the_program_be_run_again)
{
	temp_file font(tiny_font());
	for (int i = 0; i < 3; i++) {
		journey([&](kernix& app, robot& user) {
			open_file(user, font.path());
			EXPECT_EQ(listed(app).size(), 7u);
			user.press_close_box();
		});
	}
}
