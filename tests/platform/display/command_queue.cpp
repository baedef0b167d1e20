// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// How the display takes its commands.
#include "app/activity.h"
#include "display/display.h"
#include "support/robot.h"

#include <algorithm>
#include <Application.h>
#include <atomic>
#include <chrono>
#include <gtest/gtest.h>
#include <latch>
#include <QTimer>
#include <thread>
#include <vector>

using namespace kits;

namespace {

void
with_display(const std::function<void(robot&)>& user)
{
	BApplication application("application/x-vnd.test");
	run_with_user(application, user);
}


// About what a small command costs.
void
work_a_little()
{
	auto end = std::chrono::steady_clock::now() + std::chrono::microseconds(20);
	while (std::chrono::steady_clock::now() < end) {
	}
}


// Counts the turns that the display's own events have, and the commands that ran by the first and
// the last of them. Lives on the display.
class event_counter {
public:
	explicit event_counter(std::atomic<int>& commands) : fCommands(commands)
	{
		display::call([this] {
			fTimer = new QTimer;
			QObject::connect(fTimer, &QTimer::timeout, [this] {
				if (fCommands < total)
					turns += fCommands > 0;
			});
			fTimer->start(0);
		});
	}
	~event_counter()
	{
		display::call([this] { delete fTimer; });
	}

	static constexpr int total = 15000;
	// In the middle of the flood: after its first command, before its last.
	std::atomic<int> turns{0};

private:
	std::atomic<int>& fCommands;
	QTimer* fTimer = nullptr;
};

}


TEST(display, carries_out_commands_in_order)
{
	with_display([](robot&) {
		std::vector<int> done;
		for (int i = 0; i < 1000; i++)
			display::post([&, i] { done.push_back(i); });
		display::call([&] { done.push_back(1000); });
		ASSERT_EQ(done.size(), 1001u);
		EXPECT_TRUE(std::is_sorted(done.begin(), done.end()));
	});
}


TEST(display, carries_out_each_threads_commands_in_order)
{
	with_display([](robot&) {
		std::vector<int> done[3];
		std::vector<std::thread> threads;
		for (int thread = 0; thread < 3; thread++) {
			threads.emplace_back([&done, thread] {
				for (int i = 0; i < 1000; i++)
					display::post([&done, thread, i] { done[thread].push_back(i); });
			});
		}
		for (std::thread& each : threads)
			each.join();
		// Waits for what the others have posted, too.
		display::call([] {});
		for (const std::vector<int>& each : done) {
			EXPECT_EQ(each.size(), 1000u);
			EXPECT_TRUE(std::is_sorted(each.begin(), each.end()));
		}
	});
}


TEST(display, works_on_one_thread_alone)
{
	const std::thread::id main_thread = std::this_thread::get_id();
	with_display([&](robot&) {
		std::thread::id posted, called;
		bool serving = false;
		EXPECT_FALSE(display::serving_here());
		display::post([&] { posted = std::this_thread::get_id(); });
		display::call([&] {
			called = std::this_thread::get_id();
			serving = display::serving_here();
		});
		EXPECT_EQ(posted, main_thread);
		EXPECT_EQ(called, main_thread);
		EXPECT_TRUE(serving);
	});
	EXPECT_FALSE(display::serving());
}


TEST(display, called_on_its_own_thread_does_what_is_queued_first)
{
	with_display([](robot&) {
		std::vector<int> done;
		display::call([&] {
			display::post([&] { done.push_back(1); });
			display::post([&] { done.push_back(2); });
			display::call([&] { done.push_back(3); });
			done.push_back(4);
		});
		EXPECT_EQ(done, std::vector<int>({1, 2, 3, 4}));
	});
}


TEST(display, what_a_command_posts_comes_after_what_is_queued)
{
	with_display([](robot&) {
		std::vector<int> done;
		display::call([&] {
			display::post([&] {
				done.push_back(1);
				display::post([&] { done.push_back(3); });
			});
			display::post([&] { done.push_back(2); });
		});
		display::call([] {});
		display::call([] {});
		EXPECT_EQ(done, std::vector<int>({1, 2, 3}));
	});
}


TEST(display, what_is_posted_before_it_serves_is_done_when_it_does)
{
	BApplication application("application/x-vnd.test");
	std::vector<int> done;
	display::post([&] { done.push_back(1); });
	run_with_user(application, [&](robot&) { display::call([&] { done.push_back(2); }); });
	EXPECT_EQ(done, std::vector<int>({1, 2}));
}


TEST(display, draining_does_everything_that_is_queued)
{
	const BApplication application("application/x-vnd.test");
	int done = 0;
	for (int i = 0; i < 10000; i++)
		display::post([&] { done++; });
	display::drain();
	EXPECT_EQ(done, 10000);
}


TEST(display, its_own_events_go_on_under_a_flood)
{
	with_display([](robot&) {
		std::atomic<int> commands{0};
		event_counter events(commands);
		std::vector<std::thread> threads;
		for (int thread = 0; thread < 3; thread++) {
			threads.emplace_back([&] {
				for (int i = 0; i < 5000; i++) {
					display::post([&] {
						work_a_little();
						commands++;
					});
				}
			});
		}
		for (std::thread& each : threads)
			each.join();
		display::call([] {});
		EXPECT_EQ(commands, 15000);
		// 300 ms of work or more, with a turn for the events after each 6 ms.
		EXPECT_GE(events.turns, 20);
	});
}


TEST(display, its_own_events_go_on_while_commands_beget_commands)
{
	with_display([](robot& user) {
		std::atomic<int> commands{0};
		event_counter events(commands);
		std::function<void()> again = [&] {
			work_a_little();
			if (++commands < event_counter::total)
				display::post(again);
		};
		display::post(again);
		user.settle();
		EXPECT_EQ(commands, 15000);
		EXPECT_GE(events.turns, 20);
	});
}


TEST(display, lets_those_who_post_wait_when_thousands_are_queued)
{
	with_display([](robot& user) {
		user.settle();
		int64 most = 0;
		std::latch under_way(1);
		// This command and 4096 behind it.
		display::post([&] {
			under_way.count_down();
			while (activity::pending() < 4097)
				std::this_thread::yield();
		});
		under_way.wait();
		std::vector<std::thread> threads;
		for (int thread = 0; thread < 3; thread++) {
			threads.emplace_back([&] {
				for (int i = 0; i < 4000; i++)
					display::post([&] { most = std::max(most, activity::pending()); });
			});
		}
		for (std::thread& each : threads)
			each.join();
		display::call([] {});
		EXPECT_GT(most, 2000);
		EXPECT_LE(most, 4097);
	});
}


TEST(display, those_who_wait_go_on_when_it_stops)
{
	int done = 0;
	{
		BApplication application("application/x-vnd.test");
		std::thread poster;
		run_with_user(application, [&](robot& user) {
			user.settle();
			poster = std::thread([&] {
				for (int i = 0; i < 20000; i++)
					display::post([&] { done++; });
			});
		});
		poster.join();
		display::drain();
	}
	EXPECT_EQ(done, 20000);
}
