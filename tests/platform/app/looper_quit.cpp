// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// How a looper ends.
#include "platform/app/listeners.h"

#include <AppDefs.h>
#include <Errors.h>
#include <gtest/gtest.h>
#include <thread>

namespace {

// Answers the question as it is told.
class asked_looper : public listening_looper {
public:
	asked_looper(record& heard, event& gone, bool leaves)
		: listening_looper(heard, nullptr, &gone),
		  fHeard(heard),
		  fLeaves(leaves)
	{
	}

	bool QuitRequested() override
	{
		EXPECT_TRUE(IsLocked());
		fHeard.add('ask?');
		return fLeaves;
	}

private:
	record& fHeard;
	bool fLeaves;
};

}


TEST(looper_quit, before_it_runs_it_is_only_deleted)
{
	record heard;
	event gone;
	auto* looper = new listening_looper(heard, nullptr, &gone);
	looper->PostMessage('test');
	looper->Quit();
	EXPECT_TRUE(gone.wait());
	EXPECT_EQ(heard.all(), codes());
}


TEST(looper_quit, from_another_thread_lets_what_is_queued_be_handled_first)
{
	record heard;
	event entered, leave, gone;
	auto* looper = new listening_looper(
		heard,
		[&](BMessage* message) {
			if (message->what != 'wait')
				return;
			entered.set();
			EXPECT_TRUE(leave.wait());
		},
		&gone);
	looper->PostMessage('wait');
	looper->Run();
	EXPECT_TRUE(entered.wait());
	looper->PostMessage('2nd ');
	looper->PostMessage('3rd ');
	leave.set();
	EXPECT_TRUE(looper->Lock());
	looper->Quit();
	EXPECT_TRUE(gone.wait());
	EXPECT_EQ(heard.all(), codes({'wait', '2nd ', '3rd '}));
}


TEST(looper_quit, from_another_thread_returns_when_it_is_gone)
{
	for (int round = 0; round < 50; round++) {
		record heard;
		auto* looper = new listening_looper(heard);
		const BMessenger messenger(looper);
		looper->Run();
		finish(looper);
		EXPECT_FALSE(messenger.IsValid());
	}
}


TEST(looper_quit, gives_up_every_turn_of_the_lock)
{
	record heard;
	event gone;
	auto* looper = new listening_looper(heard, nullptr, &gone);
	looper->Run();
	EXPECT_TRUE(looper->Lock());
	EXPECT_TRUE(looper->Lock());
	looper->PostMessage('test');
	looper->Quit();
	EXPECT_TRUE(gone.wait());
	EXPECT_EQ(heard.all(), codes({'test'}));
}


TEST(looper_quit, in_its_own_thread_it_goes_after_the_message_at_hand)
{
	record heard;
	event gone;
	listening_looper* looper = nullptr;
	looper = new listening_looper(
		heard,
		[&](BMessage* message) {
			looper->Quit();
			EXPECT_TRUE(looper->IsLocked());
			EXPECT_EQ(looper->CurrentMessage(), message);
			EXPECT_EQ(looper->PostMessage('more'), B_OK);
			heard.add('done');
		},
		&gone);
	const BMessenger messenger(looper);
	looper->PostMessage('quit');
	looper->PostMessage('late');
	looper->Run();
	EXPECT_TRUE(gone.wait());
	EXPECT_EQ(heard.all(), codes({'quit', 'done'}));
}


TEST(looper_quit, a_request_asks_it_and_is_granted)
{
	record heard;
	event gone;
	auto* looper = new asked_looper(heard, gone, true);
	looper->PostMessage(B_QUIT_REQUESTED);
	looper->PostMessage('late');
	looper->Run();
	EXPECT_TRUE(gone.wait());
	EXPECT_EQ(heard.all(), codes({'ask?'}));
}


TEST(looper_quit, a_request_that_is_refused_changes_nothing)
{
	record heard;
	event gone;
	auto* looper = new asked_looper(heard, gone, false);
	looper->PostMessage(B_QUIT_REQUESTED);
	looper->PostMessage('next');
	looper->Run();
	finish(looper);
	EXPECT_TRUE(gone.wait());
	EXPECT_EQ(heard.all(), codes({'ask?', 'next'}));
}


TEST(looper_quit, is_not_asked_when_the_request_is_for_one_of_its_handlers)
{
	record heard, handled;
	event gone;
	listener handler(handled);
	auto* looper = new asked_looper(heard, gone, true);
	looper->AddHandler(&handler);
	looper->PostMessage(B_QUIT_REQUESTED, &handler);
	looper->PostMessage('next');
	looper->Run();
	finish(looper);
	EXPECT_EQ(handled.all(), codes({B_QUIT_REQUESTED}));
	EXPECT_EQ(heard.all(), codes({'next'}));
}


TEST(looper_quit, without_a_word_it_agrees)
{
	record heard;
	event gone;
	auto* looper = new listening_looper(heard, nullptr, &gone);
	EXPECT_TRUE(looper->QuitRequested());
	looper->PostMessage(B_QUIT_REQUESTED);
	looper->Run();
	EXPECT_TRUE(gone.wait());
}


TEST(looper_quit, asked_for_and_demanded_at_once_it_goes_once)
{
	for (int round = 0; round < 50; round++) {
		record heard;
		event gone;
		auto* looper = new asked_looper(heard, gone, true);
		looper->Run();
		EXPECT_TRUE(looper->Lock());
		looper->PostMessage(B_QUIT_REQUESTED);
		looper->Quit();
		EXPECT_TRUE(gone.wait());
		EXPECT_EQ(heard.all(), codes({'ask?'}));
	}
}


TEST(looper_quit, two_threads_may_demand_it)
{
	for (int round = 0; round < 50; round++) {
		record heard;
		event gone;
		auto* looper = new listening_looper(heard, nullptr, &gone);
		looper->Run();
		EXPECT_TRUE(looper->Lock());
		for (int i = 0; i < 100; i++)
			looper->PostMessage('work');
		std::thread other([&] { finish(looper); });
		// The looper's own thread waits, too.
		while (waiting_for_lock(*looper) < 2)
			std::this_thread::yield();
		looper->Quit();
		other.join();
		EXPECT_TRUE(gone.wait());
		EXPECT_EQ(heard.all().size(), 100u);
	}
}


TEST(looper_quit, one_of_a_pair_may_end_the_other)
{
	record heard;
	event gone, other_gone;
	auto* other = new listening_looper(heard, nullptr, &other_gone);
	other->Run();
	listening_looper* looper = nullptr;
	looper = new listening_looper(
		heard,
		[&](BMessage*) {
			other->PostMessage('last');
			finish(other);
			looper->Quit();
		},
		&gone);
	looper->PostMessage('quit');
	looper->Run();
	EXPECT_TRUE(gone.wait());
	EXPECT_TRUE(other_gone.wait());
	EXPECT_EQ(heard.all(), codes({'quit', 'last'}));
}
