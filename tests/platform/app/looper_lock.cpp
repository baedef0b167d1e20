// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The lock of a looper.
#include "platform/app/listeners.h"

#include <atomic>
#include <Errors.h>
#include <gtest/gtest.h>
#include <thread>

namespace {

// Whether another thread could have the lock now.
bool
is_free(BLooper* looper)
{
	bool got = false;
	std::thread([&] {
		got = looper->LockWithTimeout(0) == B_OK;
		if (got)
			looper->Unlock();
	}).join();
	return got;
}

}


TEST(looper_lock, is_born_held_by_the_thread_that_makes_the_looper)
{
	record heard;
	auto* looper = new listening_looper(heard);
	EXPECT_TRUE(looper->IsLocked());
	EXPECT_FALSE(is_free(looper));
	looper->Unlock();
	EXPECT_FALSE(looper->IsLocked());
	EXPECT_TRUE(is_free(looper));
	EXPECT_TRUE(looper->Lock());
	looper->Quit();
}


TEST(looper_lock, running_gives_up_the_birth_lock)
{
	record heard;
	auto* looper = new listening_looper(heard);
	looper->Lock();
	looper->Run();
	EXPECT_FALSE(looper->IsLocked());
	finish(looper);
}


TEST(looper_lock, can_be_taken_again_by_its_owner)
{
	record heard;
	auto* looper = new listening_looper(heard);
	EXPECT_TRUE(looper->Lock());
	EXPECT_EQ(looper->LockWithTimeout(0), B_OK);
	looper->Unlock();
	looper->Unlock();
	EXPECT_TRUE(looper->IsLocked());
	EXPECT_FALSE(is_free(looper));
	looper->Unlock();
	EXPECT_FALSE(looper->IsLocked());
	EXPECT_TRUE(is_free(looper));
	looper->Lock();
	looper->Quit();
}


TEST(looper_lock, is_locked_only_for_its_owner)
{
	record heard;
	auto* looper = new listening_looper(heard);
	bool seen = true;
	std::thread([&] { seen = looper->IsLocked(); }).join();
	EXPECT_FALSE(seen);
	EXPECT_TRUE(looper->IsLocked());
	looper->Quit();
}


TEST(looper_lock, waits_no_longer_than_asked)
{
	record heard;
	auto* looper = new listening_looper(heard);
	status_t at_once = B_OK;
	status_t later = B_OK;
	bool held = true;
	bigtime_t waited = 0;
	std::thread([&] {
		at_once = looper->LockWithTimeout(0);
		const bigtime_t start = system_time();
		later = looper->LockWithTimeout(20000);
		waited = system_time() - start;
		held = looper->IsLocked();
	}).join();
	EXPECT_EQ(at_once, B_TIMED_OUT);
	EXPECT_EQ(later, B_TIMED_OUT);
	EXPECT_GE(waited, 20000);
	EXPECT_FALSE(held);
	looper->Quit();
}


TEST(looper_lock, is_handed_to_the_thread_that_waits)
{
	record heard;
	auto* looper = new listening_looper(heard);
	event waiting;
	bool got = false;
	std::thread other([&] {
		waiting.set();
		got = looper->LockWithTimeout(60000000) == B_OK && looper->IsLocked();
		looper->Unlock();
	});
	EXPECT_TRUE(waiting.wait());
	looper->Unlock();
	other.join();
	EXPECT_TRUE(got);
	looper->Lock();
	looper->Quit();
}


TEST(looper_lock, is_held_while_a_message_is_dispatched)
{
	record heard;
	event entered, leave;
	listening_looper* looper = nullptr;
	looper = new listening_looper(heard, [&](BMessage*) {
		EXPECT_TRUE(looper->IsLocked());
		entered.set();
		EXPECT_TRUE(leave.wait());
	});
	looper->PostMessage('test');
	looper->Run();
	EXPECT_TRUE(entered.wait());
	EXPECT_EQ(looper->LockWithTimeout(1000), B_TIMED_OUT);
	EXPECT_FALSE(looper->IsLocked());
	leave.set();
	finish(looper);
}


TEST(looper_lock, holding_it_keeps_messages_waiting)
{
	record heard;
	auto* looper = new listening_looper(heard);
	looper->Run();
	EXPECT_TRUE(looper->Lock());
	looper->PostMessage('test');
	EXPECT_EQ(heard.all(), codes());
	heard.add('free');
	looper->Unlock();
	finish(looper);
	EXPECT_EQ(heard.all(), codes({'free', 'test'}));
}


// The ones that wait must be inside of Lock() already: a looper that has gone cannot be asked.
TEST(looper_lock, whoever_waits_for_it_when_the_looper_quits_is_told)
{
	for (int round = 0; round < 20; round++) {
		record heard;
		event entered;
		std::atomic<int> refused{0};
		listening_looper* looper = nullptr;
		looper = new listening_looper(heard, [&](BMessage*) {
			entered.set();
			while (waiting_for_lock(*looper) < 3)
				std::this_thread::yield();
			looper->Quit();
		});
		looper->PostMessage('quit');
		looper->Run();
		EXPECT_TRUE(entered.wait());
		auto ask = [&] { refused += !looper->Lock(); };
		std::thread first(ask), second(ask), third(ask);
		first.join();
		second.join();
		third.join();
		EXPECT_EQ(refused, 3);
	}
}
