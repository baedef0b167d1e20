// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The application while it runs.
#include "platform/app/listeners.h"
#include "support/robot.h"

#include <AppDefs.h>
#include <Application.h>
#include <Errors.h>
#include <gtest/gtest.h>
#include <thread>
#include <Window.h>

namespace {

// Notes which of its hooks are called.
class noting_application : public BApplication {
public:
	explicit noting_application(record& heard)
		: BApplication("application/x-vnd.test"),
		  fHeard(heard)
	{
	}

	void RefsReceived(BMessage* message) override
	{
		EXPECT_TRUE(IsLocked());
		fHeard.add(message->HasRef("refs") ? 'refs' : 'none');
	}
	void AboutRequested() override { fHeard.add('abut'); }
	void ReadyToRun() override { fHeard.add('redy'); }
	bool QuitRequested() override
	{
		fHeard.add('ask?');
		return BApplication::QuitRequested();
	}
	void MessageReceived(BMessage* message) override
	{
		fHeard.add(message->what);
		BApplication::MessageReceived(message);
	}

private:
	record& fHeard;
};


BWindow*
shown_window(const char* title)
{
	auto* window = new BWindow(BRect(10, 10, 59, 39), title, B_TITLED_WINDOW, 0);
	window->Show();
	return window;
}


// Notes each sender's numbers and complains when one comes out of turn.
class counting_application : public BApplication {
public:
	counting_application() : BApplication("application/x-vnd.test") {}
	void MessageReceived(BMessage* message) override
	{
		if (message->what != 'numb')
			return;
		int32& count = arrived.at((size_t)message->FindInt32("sender"));
		EXPECT_EQ(message->FindInt32("number"), count);
		count++;
	}

	std::vector<int32> arrived = std::vector<int32>(4);
};

}


TEST(application, is_known_while_it_lives)
{
	EXPECT_EQ(be_app, nullptr);
	EXPECT_FALSE(be_app_messenger.IsValid());
	{
		record heard;
		noting_application application(heard);
		EXPECT_EQ(be_app, &application);
		EXPECT_EQ(be_app_messenger, BMessenger(&application));
		EXPECT_TRUE(be_app_messenger.IsValid());
		BLooper* looper = nullptr;
		EXPECT_EQ(be_app_messenger.Target(&looper), &application);
		EXPECT_EQ(looper, &application);
	}
	EXPECT_EQ(be_app, nullptr);
	EXPECT_FALSE(be_app_messenger.IsValid());
	EXPECT_EQ(be_app_messenger.SendMessage('test'), B_BAD_PORT_ID);
}


TEST(application, is_born_locked_and_running_frees_it)
{
	record heard;
	noting_application application(heard);
	EXPECT_TRUE(application.IsLocked());
	run_with_user(application, [&](robot&) {
		EXPECT_TRUE(application.Lock());
		application.Unlock();
	});
	EXPECT_FALSE(application.IsLocked());
}


TEST(application, running_ends_when_it_quits_and_the_object_stays)
{
	record heard;
	noting_application application(heard);
	application.PostMessage(B_QUIT_REQUESTED);
	application.Run();
	EXPECT_EQ(be_app, &application);
	EXPECT_FALSE(application.Lock());
	EXPECT_NE(application.LockWithTimeout(0), B_OK);
	EXPECT_EQ(application.PostMessage('late'), B_BAD_PORT_ID);
	EXPECT_FALSE(be_app_messenger.IsValid());
}


TEST(application, can_be_followed_by_another)
{
	for (int round = 0; round < 3; round++) {
		record heard;
		noting_application application(heard);
		run_with_user(application, [](robot& user) { user.settle(); });
		EXPECT_EQ(heard.all(), codes({'redy', 'ask?'}));
	}
}


TEST(application, gets_its_references_before_it_is_ready)
{
	record heard;
	noting_application application(heard);
	const entry_ref ref(1, 2, "name");
	BMessage refs(B_REFS_RECEIVED);
	refs.AddRef("refs", &ref);
	be_app_messenger.SendMessage(&refs);
	run_with_user(application, [](robot& user) { user.settle(); });
	EXPECT_EQ(heard.all(), codes({'refs', 'redy', 'ask?'}));
}


TEST(application, turns_its_own_messages_into_hooks)
{
	record heard;
	noting_application application(heard);
	run_with_user(application, [](robot& user) {
		user.settle();
		be_app_messenger.SendMessage(B_ABOUT_REQUESTED);
		be_app_messenger.SendMessage(B_REFS_RECEIVED);
		be_app_messenger.SendMessage('else');
	});
	EXPECT_EQ(heard.all(), codes({'redy', 'abut', 'none', 'else', 'ask?'}));
}


TEST(application, a_handlers_messages_call_no_hook)
{
	record heard, handled;
	listener handler(handled);
	noting_application application(heard);
	application.AddHandler(&handler);
	application.PostMessage(B_ABOUT_REQUESTED, &handler);
	application.PostMessage(B_REFS_RECEIVED, &handler);
	run_with_user(application, [](robot& user) { user.settle(); });
	EXPECT_EQ(handled.all(), codes({B_ABOUT_REQUESTED, B_REFS_RECEIVED}));
	EXPECT_EQ(heard.all(), codes({'redy', 'ask?'}));
	application.RemoveHandler(&handler);
}


TEST(application, counts_the_windows_that_have_not_quit)
{
	record heard;
	noting_application application(heard);
	EXPECT_EQ(application.CountWindows(), 0);
	BWindow* first = shown_window("first");
	BWindow* second = shown_window("second");
	EXPECT_EQ(application.CountWindows(), 2);
	run_with_user(application, [&](robot& user) {
		EXPECT_EQ(application.WindowAt(0), first);
		EXPECT_EQ(application.WindowAt(1), second);
		EXPECT_EQ(application.WindowAt(2), nullptr);
		EXPECT_EQ(application.WindowAt(-1), nullptr);
		first->PostMessage(B_QUIT_REQUESTED);
		user.settle();
		EXPECT_EQ(application.CountWindows(), 1);
		EXPECT_EQ(application.WindowAt(0), second);
	});
	EXPECT_EQ(application.CountWindows(), 0);
}


TEST(application, a_window_that_has_quit_can_be_asked_and_answers_no)
{
	record heard;
	noting_application application(heard);
	BWindow* window = shown_window("window");
	run_with_user(application, [&](robot& user) {
		const BMessenger messenger(window);
		EXPECT_TRUE(messenger.IsValid());
		window->PostMessage(B_QUIT_REQUESTED);
		user.settle();
		EXPECT_FALSE(window->Lock());
		EXPECT_NE(window->LockWithTimeout(0), B_OK);
		EXPECT_FALSE(window->IsLocked());
		EXPECT_EQ(window->PostMessage('late'), B_BAD_PORT_ID);
		EXPECT_FALSE(messenger.IsValid());
		EXPECT_EQ(messenger.SendMessage('late'), B_BAD_PORT_ID);
		EXPECT_FALSE(user.window_is_shown());
	});
}


TEST(application, whoever_waits_for_a_window_that_quits_is_told)
{
	record heard;
	noting_application application(heard);
	BWindow* window = shown_window("window");
	run_with_user(application, [&](robot& user) {
		EXPECT_TRUE(window->Lock());
		std::thread other([&] {
			// Either it has its turn before the end, or it is told.
			if (window->Lock())
				window->Unlock();
		});
		window->PostMessage(B_QUIT_REQUESTED);
		while (waiting_for_lock(*window) < 2)
			std::this_thread::yield();
		window->Quit();
		other.join();
		user.settle();
		EXPECT_FALSE(window->Lock());
	});
}


TEST(application, hears_each_of_many_threads_in_order)
{
	counting_application application;
	run_with_user(application, [&](robot&) {
		std::vector<std::thread> senders;
		for (int32 sender = 0; sender < 4; sender++) {
			senders.emplace_back([=] {
				for (int32 i = 0; i < 500; i++) {
					BMessage message('numb');
					message.AddInt32("sender", sender);
					message.AddInt32("number", i);
					EXPECT_EQ(be_app_messenger.SendMessage(&message), B_OK);
				}
			});
		}
		for (std::thread& each : senders)
			each.join();
	});
	EXPECT_EQ(application.arrived, (std::vector<int32>{500, 500, 500, 500}));
}
