// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// How the application ends, and its windows with it.
#include "platform/app/listeners.h"
#include "support/robot.h"

#include <AppDefs.h>
#include <Application.h>
#include <atomic>
#include <gtest/gtest.h>
#include <thread>
#include <Window.h>

namespace {

// Notes when it is asked, and agrees or not.
class asked_window : public BWindow {
public:
	asked_window(record& heard, uint32 code, bool willing = true)
		: BWindow(BRect(10, 10, 59, 39), "asked", B_TITLED_WINDOW, 0),
		  agrees(willing),
		  fHeard(heard),
		  fCode(code)
	{
	}
	~asked_window() override { fHeard.add('dead'); }

	bool QuitRequested() override
	{
		EXPECT_TRUE(IsLocked());
		fHeard.add(fCode);
		asker = std::this_thread::get_id();
		return agrees;
	}

	std::atomic<bool> agrees;
	std::atomic<std::thread::id> asker{};

private:
	record& fHeard;
	uint32 fCode;
};


// Knows its thread.
class quitting_application : public BApplication {
public:
	quitting_application() : BApplication("application/x-vnd.test") {}
	void ReadyToRun() override
	{
		thread = std::this_thread::get_id();
		if (on_ready)
			on_ready();
	}

	std::atomic<std::thread::id> thread{};
	std::function<void()> on_ready;
};

}


TEST(application_quit, asks_the_windows_in_order_and_deletes_them_at_its_own_end)
{
	record heard;
	{
		quitting_application application;
		(new asked_window(heard, '1st '))->Show();
		(new asked_window(heard, '2nd '))->Show();
		run_with_user(application, [](robot& user) { user.settle(); });
		EXPECT_EQ(heard.all(), codes({'1st ', '2nd '}));
	}
	EXPECT_EQ(heard.all(), codes({'1st ', '2nd ', 'dead', 'dead'}));
}


TEST(application_quit, stops_at_the_first_window_that_refuses)
{
	record heard;
	quitting_application application;
	(new asked_window(heard, '1st '))->Show();
	auto* refusing = new asked_window(heard, '2nd ', false);
	refusing->Show();
	auto* last = new asked_window(heard, '3rd ');
	last->Show();
	run_with_user(application, [&](robot& user) {
		be_app_messenger.SendMessage(B_QUIT_REQUESTED);
		user.settle();
		EXPECT_EQ(heard.all(), codes({'1st ', '2nd '}));
		EXPECT_EQ(application.CountWindows(), 2);
		EXPECT_EQ(application.WindowAt(0), refusing);
		EXPECT_EQ(application.WindowAt(1), last);
		EXPECT_TRUE(refusing->Lock());
		refusing->Unlock();
		refusing->agrees = true;
	});
	EXPECT_EQ(heard.all(), codes({'1st ', '2nd ', '2nd ', '3rd '}));
}


TEST(application_quit, a_window_is_asked_in_the_thread_of_whoever_asks)
{
	record heard;
	quitting_application application;
	auto* window = new asked_window(heard, 'ask?', false);
	window->Show();
	std::thread::id user_thread;
	run_with_user(application, [&](robot& user) {
		user_thread = std::this_thread::get_id();
		user.settle();
		be_app_messenger.SendMessage(B_QUIT_REQUESTED);
		user.settle();
		EXPECT_EQ(window->asker.load(), application.thread.load());
		user.press_close_box();
		EXPECT_NE(window->asker.load(), application.thread.load());
		EXPECT_NE(window->asker.load(), user_thread);
		window->agrees = true;
	});
	EXPECT_EQ(heard.all(), codes({'ask?', 'ask?', 'ask?'}));
}


TEST(application_quit, the_messages_a_window_has_are_handled_first)
{
	record heard;
	quitting_application application;
	auto* window = new asked_window(heard, 'ask?');
	listener handler(heard);
	window->AddHandler(&handler);
	window->Show();
	run_with_user(application, [&](robot& user) {
		user.settle();
		EXPECT_TRUE(window->Lock());
		window->PostMessage('1st ', &handler);
		window->PostMessage('2nd ', &handler);
		window->Quit();
		EXPECT_FALSE(window->Lock());
		EXPECT_EQ(heard.all(), codes({'1st ', '2nd '}));
	});
	window->RemoveHandler(&handler);
}


TEST(application_quit, in_any_thread_ends_it_without_asking_but_takes_the_windows_along)
{
	record heard;
	{
		quitting_application application;
		auto* window = new asked_window(heard, 'ask?', false);
		window->Show();
		run_with_user(application, [&](robot&) { application.Quit(); });
		EXPECT_FALSE(window->Lock());
	}
	EXPECT_EQ(heard.all(), codes({'dead'}));
}


TEST(application_quit, in_its_own_thread_ends_it_after_the_message_at_hand)
{
	record heard;
	quitting_application application;
	listener handler(heard, [&](BMessage*) {
		application.Quit();
		heard.add('done');
	});
	application.AddHandler(&handler);
	application.PostMessage('quit', &handler);
	application.PostMessage('late', &handler);
	application.Run();
	EXPECT_EQ(heard.all(), codes({'quit', 'done'}));
	application.RemoveHandler(&handler);
}


TEST(application_quit, before_it_runs_makes_the_run_short)
{
	record heard;
	quitting_application application;
	(new asked_window(heard, 'ask?'))->Show();
	application.Quit();
	application.Run();
	EXPECT_EQ(heard.all(), codes());
	EXPECT_EQ(application.CountWindows(), 0);
}


TEST(application_quit, is_not_held_up_by_a_window_that_was_never_shown)
{
	record heard;
	{
		quitting_application application;
		new asked_window(heard, 'main');
		application.on_ready = [&] { new asked_window(heard, 'loop'); };
		run_with_user(application, [](robot& user) { user.settle(); });
	}
	EXPECT_EQ(heard.all(), codes({'main', 'loop', 'dead', 'dead'}));
}


TEST(application_quit, without_having_run_deletes_the_windows)
{
	record heard;
	{
		const quitting_application application;
		(new asked_window(heard, 'ask?'))->Show();
		new asked_window(heard, 'ask?');
	}
	EXPECT_EQ(heard.all(), codes({'dead', 'dead'}));
}


TEST(application_quit, windows_opened_while_it_starts_run_like_any_other)
{
	for (int round = 0; round < 20; round++) {
		record heard;
		quitting_application application;
		(new asked_window(heard, '1st '))->Show();
		application.on_ready = [&] { (new asked_window(heard, '2nd '))->Show(); };
		run_with_user(application, [&](robot& user) {
			user.settle();
			EXPECT_EQ(application.CountWindows(), 2);
		});
		EXPECT_EQ(heard.all(), codes({'1st ', '2nd '}));
	}
}


TEST(application_quit, a_window_and_the_application_may_be_told_at_once)
{
	for (int round = 0; round < 20; round++) {
		record heard;
		quitting_application application;
		auto* window = new asked_window(heard, 'ask?');
		window->Show();
		run_with_user(application, [&](robot&) { window->PostMessage(B_QUIT_REQUESTED); });
		EXPECT_FALSE(window->Lock());
		EXPECT_GE(heard.all().size(), 1u);
		EXPECT_LE(heard.all().size(), 2u);
	}
}
