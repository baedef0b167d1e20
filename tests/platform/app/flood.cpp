// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Many threads, loopers and windows at once; for the thread sanitizer above all.
#include "platform/app/listeners.h"
#include "support/robot.h"

#include <AppDefs.h>
#include <Application.h>
#include <atomic>
#include <gtest/gtest.h>
#include <thread>
#include <View.h>
#include <Window.h>

namespace {

constexpr int32 senders = 4;
constexpr int32 messages_each = 2000;
constexpr int32 hops = 2;
constexpr int32 windows_opened = 12;


// Passes each message on to the next in the ring until it has made its hops.
class ring_looper : public BLooper {
public:
	explicit ring_looper(std::atomic<int32>& handled) : fHandled(handled) {}
	void set_next(BLooper* next) { fNext = BMessenger(next); }

	void MessageReceived(BMessage* message) override
	{
		fHandled++;
		int32 left = message->FindInt32("hops");
		if (left == 0)
			return;
		BMessage onward(message->what);
		onward.AddInt32("hops", left - 1);
		onward.AddString("text", message->FindString("text"));
		EXPECT_EQ(fNext.SendMessage(&onward), B_OK);
	}

private:
	std::atomic<int32>& fHandled;
	BMessenger fNext;
};


// Repaints at every message, and tells the application of each.
class busy_window : public BWindow {
public:
	busy_window() : BWindow(BRect(10, 10, 59, 39), "busy", B_TITLED_WINDOW, 0)
	{
		AddChild(new BView(Bounds(), "view", B_FOLLOW_ALL_SIDES, B_WILL_DRAW));
	}

	void MessageReceived(BMessage* message) override
	{
		if (message->what == 'flod') {
			ChildAt(0)->Invalidate();
			be_app_messenger.SendMessage('seen');
		} else
			BWindow::MessageReceived(message);
	}
};


// Opens windows, floods them and closes them again.
class busy_application : public BApplication {
public:
	busy_application() : BApplication("application/x-vnd.test") {}

	void MessageReceived(BMessage* message) override
	{
		switch (message->what) {
			case 'open': {
				auto* window = new busy_window;
				window->Show();
				BMessenger to(window);
				for (int i = 0; i < 50; i++)
					to.SendMessage('flod');
				to.SendMessage(B_QUIT_REQUESTED);
				opened++;
				break;
			}
			case 'seen':
				seen++;
				break;
		}
	}

	// The application's thread alone writes these.
	int32 opened = 0;
	int32 seen = 0;
};


void
send_round(const std::vector<ring_looper*>& ring, int32 sender)
{
	for (int32 i = 0; i < messages_each; i++) {
		BMessage message('ring');
		message.AddInt32("hops", hops);
		message.AddString("text", "a text that is too long to be kept inside of a string object");
		EXPECT_EQ(ring[(size_t)(sender + i) % ring.size()]->PostMessage(&message), B_OK);
	}
}


// Everybody who holds on to a window while it goes: locks it if it is still there.
void
look_at_windows(const BApplication& application)
{
	for (int32 i = 0; i < 500; i++) {
		BWindow* window = application.WindowAt(i % 3);
		if (window && window->Lock()) {
			window->ChildAt(0)->Invalidate();
			window->Unlock();
		}
	}
}


std::vector<ring_looper*>
make_ring(std::atomic<int32>& handled)
{
	std::vector<ring_looper*> ring;
	for (int i = 0; i < 3; i++)
		ring.push_back(new ring_looper(handled));
	for (size_t i = 0; i < ring.size(); i++)
		ring[i]->set_next(ring[(i + 1) % ring.size()]);
	for (ring_looper* each : ring)
		each->Run();
	return ring;
}

}


TEST(flood, every_message_of_every_thread_is_handled_while_windows_come_and_go)
{
	std::atomic<int32> handled{0};
	busy_application application;
	run_with_user(application, [&](robot& user) {
		std::vector<ring_looper*> ring = make_ring(handled);
		std::vector<std::thread> threads;
		for (int32 sender = 0; sender < senders; sender++)
			threads.emplace_back([&, sender] { send_round(ring, sender); });
		threads.emplace_back([] {
			for (int32 i = 0; i < windows_opened; i++)
				be_app_messenger.SendMessage('open');
		});
		threads.emplace_back([&] { look_at_windows(application); });
		for (std::thread& each : threads)
			each.join();
		user.settle();
		for (ring_looper* each : ring)
			finish(each);
	});
	EXPECT_EQ(handled, 24000);
	EXPECT_EQ(application.opened, 12);
	EXPECT_EQ(application.seen, 600);
}


TEST(flood, quitting_in_the_middle_of_it_is_clean)
{
	std::atomic<bool> quit{false};
	busy_application application;
	run_with_user(application, [&](robot&) {
		std::vector<std::thread> threads;
		for (int32 sender = 0; sender < 3; sender++) {
			threads.emplace_back([&] {
				while (!quit) {
					if (BWindow* window = be_app->WindowAt(0))
						window->PostMessage('flod');
					if (be_app_messenger.SendMessage('seen') != B_OK)
						return;
				}
			});
		}
		for (int32 i = 0; i < windows_opened; i++)
			be_app_messenger.SendMessage('open');
		be_app_messenger.SendMessage(B_QUIT_REQUESTED);
		for (std::thread& each : threads)
			each.join();
		quit = true;
	});
	EXPECT_LE(application.opened, 12);
	EXPECT_FALSE(application.Lock());
}
