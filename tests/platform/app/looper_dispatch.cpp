// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// What a looper does with its messages.
#include "platform/app/listeners.h"

#include <atomic>
#include <Errors.h>
#include <gtest/gtest.h>
#include <thread>

namespace {

// Counts per sender; complains when a message comes out of turn or into another one's dispatch.
class turnstile : public BLooper {
public:
	explicit turnstile(std::vector<int32>& arrived) : fArrived(arrived) {}
	void MessageReceived(BMessage* message) override
	{
		EXPECT_EQ(fInside.fetch_add(1), 0);
		int32& count = fArrived.at((size_t)message->FindInt32("sender"));
		EXPECT_EQ(message->FindInt32("number"), count);
		count++;
		fInside--;
	}

private:
	std::vector<int32>& fArrived;
	std::atomic<int> fInside{0};
};


// Notes what passes through the hook before anybody receives it.
class gate : public BLooper {
public:
	explicit gate(record& seen) : fSeen(seen) {}
	void DispatchMessage(BMessage* message, BHandler* handler) override
	{
		EXPECT_TRUE(IsLocked());
		EXPECT_EQ(CurrentMessage(), message);
		fSeen.add(message->what);
		last = handler;
		if (message->what != 'stop')
			BLooper::DispatchMessage(message, handler);
	}

	BHandler* last = nullptr;

private:
	record& fSeen;
};

}


TEST(looper, dispatches_in_order_of_arrival)
{
	record heard;
	auto* looper = new listening_looper(heard);
	looper->PostMessage('1st ');
	looper->PostMessage('2nd ');
	looper->Run();
	looper->PostMessage('3rd ');
	finish(looper);
	EXPECT_EQ(heard.all(), codes({'1st ', '2nd ', '3rd '}));
}


TEST(looper, takes_one_message_at_a_time_and_each_senders_in_order)
{
	std::vector<int32> arrived(4);
	auto* looper = new turnstile(arrived);
	looper->Run();
	std::vector<std::thread> senders;
	for (int32 sender = 0; sender < 4; sender++) {
		senders.emplace_back([=] {
			for (int32 i = 0; i < 500; i++) {
				BMessage message('test');
				message.AddInt32("sender", sender);
				message.AddInt32("number", i);
				EXPECT_EQ(looper->PostMessage(&message), B_OK);
			}
		});
	}
	for (std::thread& each : senders)
		each.join();
	finish(looper);
	EXPECT_EQ(arrived, (std::vector<int32>{500, 500, 500, 500}));
}


TEST(looper, runs_in_a_thread_of_its_own)
{
	record heard;
	std::thread::id there;
	auto* looper =
		new listening_looper(heard, [&](BMessage*) { there = std::this_thread::get_id(); });
	looper->PostMessage('test');
	EXPECT_GT(looper->Run(), 0);
	finish(looper);
	EXPECT_NE(there, std::thread::id());
	EXPECT_NE(there, std::this_thread::get_id());
}


TEST(looper, has_a_number_of_its_own)
{
	record heard;
	auto* first = new listening_looper(heard);
	auto* second = new listening_looper(heard);
	EXPECT_NE(first->Thread(), second->Thread());
	EXPECT_EQ(first->Thread(), first->Run());
	finish(first);
	second->Quit();
}


TEST(looper, posts_to_itself_and_not_to_its_preferred_handler)
{
	record own, preferred;
	listener handler(preferred);
	auto* looper = new listening_looper(own);
	looper->AddHandler(&handler);
	looper->SetPreferredHandler(&handler);
	BMessage message('mesg');
	looper->PostMessage('code');
	looper->PostMessage(&message);
	looper->Run();
	finish(looper);
	EXPECT_EQ(own.all(), codes({'code', 'mesg'}));
	EXPECT_EQ(preferred.all(), codes());
}


TEST(looper, posts_to_a_handler_of_its_own_or_the_preferred_one)
{
	record first, second, own;
	listener named(first), preferred(second);
	auto* looper = new listening_looper(own);
	looper->AddHandler(&named);
	looper->AddHandler(&preferred);
	looper->SetPreferredHandler(&preferred);
	BMessage message('mesg');
	EXPECT_EQ(looper->PostMessage('code', &named), B_OK);
	EXPECT_EQ(looper->PostMessage(&message, &named), B_OK);
	EXPECT_EQ(looper->PostMessage('code', nullptr), B_OK);
	EXPECT_EQ(looper->PostMessage(&message, nullptr), B_OK);
	looper->Run();
	finish(looper);
	EXPECT_EQ(first.all(), codes({'code', 'mesg'}));
	EXPECT_EQ(second.all(), codes({'code', 'mesg'}));
	EXPECT_EQ(own.all(), codes());
}


TEST(looper, does_not_post_to_the_handlers_of_others)
{
	record heard;
	listener stranger(heard), free(heard);
	auto* looper = new listening_looper(heard);
	auto* other = new listening_looper(heard);
	other->AddHandler(&stranger);
	EXPECT_LT(looper->PostMessage('test', &stranger), 0);
	EXPECT_LT(looper->PostMessage('test', &free), 0);
	EXPECT_LT(looper->PostMessage('test', other), 0);
	looper->Run();
	other->Run();
	finish(looper);
	finish(other);
	EXPECT_EQ(heard.all(), codes());
}


TEST(looper, a_posted_message_carries_its_return_address)
{
	record heard, answers;
	listener asker(answers);
	auto* looper = new listening_looper(heard, [](BMessage* m) { m->SendReply('answ'); });
	auto* home = new listening_looper(heard);
	home->AddHandler(&asker);
	BMessage message('mesg');
	looper->PostMessage('code', looper, &asker);
	looper->PostMessage(&message, looper, &asker);
	looper->Run();
	finish(looper);
	home->Run();
	finish(home);
	EXPECT_EQ(answers.all(), codes({'answ', 'answ'}));
}


TEST(looper, every_message_passes_its_dispatch_hook)
{
	record seen, heard;
	listener handler(heard);
	auto* looper = new gate(seen);
	looper->AddHandler(&handler);
	looper->PostMessage('pass', &handler);
	looper->PostMessage('stop', &handler);
	looper->PostMessage('self');
	looper->Run();
	EXPECT_TRUE(looper->Lock());
	looper->Quit();
	EXPECT_EQ(seen.all(), codes({'pass', 'stop', 'self'}));
	EXPECT_EQ(heard.all(), codes({'pass'}));
}


TEST(looper, knows_the_message_at_hand)
{
	record heard;
	listening_looper* looper = nullptr;
	looper = new listening_looper(heard, [&](BMessage* message) {
		EXPECT_EQ(looper->CurrentMessage(), message);
		EXPECT_EQ(looper->CurrentMessage()->what, (uint32)'test');
	});
	EXPECT_EQ(looper->CurrentMessage(), nullptr);
	looper->PostMessage('test');
	looper->Run();
	// The lock is free again only between two messages.
	while (heard.all().empty())
		std::this_thread::yield();
	EXPECT_TRUE(looper->Lock());
	EXPECT_EQ(looper->CurrentMessage(), nullptr);
	looper->Quit();
	EXPECT_EQ(heard.all(), codes({'test'}));
}


TEST(looper, prefers_only_a_handler_of_its_own)
{
	record heard;
	listener own(heard), stranger(heard), free(heard);
	auto* looper = new listening_looper(heard);
	auto* other = new listening_looper(heard);
	looper->AddHandler(&own);
	other->AddHandler(&stranger);
	EXPECT_EQ(looper->PreferredHandler(), nullptr);
	looper->SetPreferredHandler(&own);
	EXPECT_EQ(looper->PreferredHandler(), &own);
	looper->SetPreferredHandler(&stranger);
	EXPECT_EQ(looper->PreferredHandler(), nullptr);
	looper->SetPreferredHandler(&own);
	looper->SetPreferredHandler(&free);
	EXPECT_EQ(looper->PreferredHandler(), nullptr);
	looper->SetPreferredHandler(&own);
	looper->SetPreferredHandler(nullptr);
	EXPECT_EQ(looper->PreferredHandler(), nullptr);
	looper->SetPreferredHandler(looper);
	EXPECT_EQ(looper->PreferredHandler(), looper);
	looper->Quit();
	other->Quit();
}


TEST(looper, a_handler_that_leaves_is_no_longer_preferred)
{
	record heard;
	listener leaving(heard), staying(heard);
	auto* looper = new listening_looper(heard);
	looper->AddHandler(&leaving);
	looper->AddHandler(&staying);
	looper->SetPreferredHandler(&leaving);
	looper->RemoveHandler(&leaving);
	EXPECT_EQ(looper->PreferredHandler(), nullptr);
	looper->SetPreferredHandler(&staying);
	looper->AddHandler(&leaving);
	looper->RemoveHandler(&leaving);
	EXPECT_EQ(looper->PreferredHandler(), &staying);
	auto* dying = new listener(heard);
	looper->AddHandler(dying);
	looper->SetPreferredHandler(dying);
	delete dying;
	EXPECT_EQ(looper->PreferredHandler(), nullptr);
	looper->Quit();
}


TEST(looper, a_handler_that_removes_itself_gets_nothing_more)
{
	record heard;
	listening_looper* looper = nullptr;
	listener handler(heard, [&](BMessage*) { looper->RemoveHandler(&handler); });
	looper = new listening_looper(heard);
	looper->AddHandler(&handler);
	looper->PostMessage('once', &handler);
	looper->PostMessage('gone', &handler);
	looper->PostMessage('self');
	looper->Run();
	finish(looper);
	EXPECT_EQ(heard.all(), codes({'once', 'self'}));
	EXPECT_EQ(handler.Looper(), nullptr);
}
