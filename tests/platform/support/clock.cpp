// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include <OS.h>

#include <atomic>
#include <csignal>
#include <gtest/gtest.h>
#include <pthread.h>
#include <thread>

namespace {

void
ignore_signal(int)
{
}


// Sends a signal to the calling thread every millisecond while it lives.
class disturbance {
public:
	disturbance() : fTarget(pthread_self()), fThread([this] { disturb(); }) {}
	~disturbance()
	{
		fDone = true;
		fThread.join();
	}

private:
	void disturb()
	{
		while (!fDone) {
			pthread_kill(fTarget, SIGUSR1);
			snooze(1000);
		}
	}

	pthread_t fTarget;
	std::atomic<bool> fDone = false;
	std::thread fThread;
};

}


TEST(snooze, lasts_at_least_as_long_as_asked)
{
	const bigtime_t start = system_time();
	EXPECT_EQ(snooze(20000), B_OK);
	EXPECT_GE(system_time() - start, 20000);
}


TEST(snooze, a_microsecond_is_over_soon)
{
	const bigtime_t start = system_time();
	for (int i = 0; i < 100; i++) {
		snooze(1);
	}
	EXPECT_LT(system_time() - start, 5000000);
}


TEST(snooze, nothing_and_less_return_at_once)
{
	EXPECT_EQ(snooze(0), B_OK);
	EXPECT_EQ(snooze(-1000000000000), B_OK);
}


TEST(snooze, signals_do_not_shorten_it)
{
	struct sigaction action = {};
	struct sigaction before = {};
	action.sa_handler = ignore_signal;
	sigaction(SIGUSR1, &action, &before);
	bigtime_t slept = 0;
	{
		const disturbance signals;
		const bigtime_t start = system_time();
		EXPECT_EQ(snooze(50000), B_OK);
		slept = system_time() - start;
	}
	sigaction(SIGUSR1, &before, nullptr);
	EXPECT_GE(slept, 50000);
}


TEST(system_time, never_goes_back)
{
	bigtime_t last = system_time();
	EXPECT_GT(last, 0);
	for (int i = 0; i < 10000; i++) {
		const bigtime_t now = system_time();
		ASSERT_GE(now, last);
		last = now;
	}
}


TEST(find_thread, each_thread_has_its_own_number)
{
	thread_id other = 0;
	std::thread([&other] { other = find_thread(nullptr); }).join();
	EXPECT_GT(find_thread(nullptr), 0);
	EXPECT_EQ(find_thread(nullptr), find_thread(nullptr));
	EXPECT_GT(other, 0);
	EXPECT_NE(other, find_thread(nullptr));
}


TEST(find_thread, a_name_finds_nothing)
{
	EXPECT_EQ(find_thread("worker"), B_NAME_NOT_FOUND);
}
