// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "platform/app/listeners.h"

#include <Errors.h>
#include <gtest/gtest.h>
#include <Messenger.h>
#include <thread>
#include <View.h>


TEST(messenger, of_nobody_is_invalid_and_sends_nothing)
{
	const BMessenger nobody;
	BMessage message('test');
	auto* somebody = new BLooper;
	BLooper* looper = somebody;
	EXPECT_FALSE(nobody.IsValid());
	EXPECT_EQ(nobody.SendMessage('test'), B_BAD_PORT_ID);
	EXPECT_EQ(nobody.SendMessage(&message), B_BAD_PORT_ID);
	EXPECT_EQ(nobody.Target(&looper), nullptr);
	EXPECT_EQ(looper, nullptr);
	status_t status = B_OK;
	EXPECT_FALSE(BMessenger(nullptr, nullptr, &status).IsValid());
	EXPECT_EQ(status, B_BAD_VALUE);
	somebody->Quit();
}


TEST(messenger, a_handler_without_a_looper_cannot_be_reached)
{
	const BHandler handler;
	const BView view(BRect(0, 0, 9, 9), "view", 0, 0);
	status_t status = B_OK;
	const BMessenger to_handler(&handler, nullptr, &status);
	EXPECT_EQ(status, B_MISMATCHED_VALUES);
	EXPECT_FALSE(to_handler.IsValid());
	const BMessenger to_view(&view, nullptr, &status);
	EXPECT_EQ(status, B_MISMATCHED_VALUES);
	EXPECT_FALSE(to_view.IsValid());
}


TEST(messenger, a_handler_and_a_looper_must_belong_together)
{
	record heard;
	listener handler(heard);
	auto* home = new listening_looper(heard);
	auto* other = new listening_looper(heard);
	home->AddHandler(&handler);
	status_t status = B_ERROR;
	EXPECT_TRUE(BMessenger(&handler, home, &status).IsValid());
	EXPECT_EQ(status, B_OK);
	EXPECT_FALSE(BMessenger(&handler, other, &status).IsValid());
	EXPECT_EQ(status, B_MISMATCHED_VALUES);
	EXPECT_FALSE(BMessenger(home, other, &status).IsValid());
	EXPECT_EQ(status, B_MISMATCHED_VALUES);
	home->RemoveHandler(&handler);
	home->Quit();
	other->Quit();
}


TEST(messenger, can_be_aimed_anew)
{
	record heard;
	const BHandler stranger;
	auto* looper = new listening_looper(heard);
	BMessenger messenger;
	EXPECT_EQ(messenger.SetTo(looper), B_OK);
	EXPECT_TRUE(messenger.IsValid());
	EXPECT_EQ(messenger.SetTo(&stranger), B_MISMATCHED_VALUES);
	EXPECT_FALSE(messenger.IsValid());
	EXPECT_EQ(messenger.SetTo(nullptr, looper), B_OK);
	EXPECT_TRUE(messenger.IsValid());
	looper->Quit();
}


TEST(messenger, knows_its_target)
{
	record heard;
	listener handler(heard);
	auto* looper = new listening_looper(heard);
	looper->AddHandler(&handler);
	BLooper* home = nullptr;
	EXPECT_EQ(BMessenger(&handler).Target(&home), &handler);
	EXPECT_EQ(home, looper);
	home = nullptr;
	EXPECT_EQ(BMessenger(looper).Target(&home), looper);
	EXPECT_EQ(home, looper);
	home = nullptr;
	EXPECT_EQ(BMessenger(nullptr, looper).Target(&home), nullptr);
	EXPECT_EQ(home, looper);
	EXPECT_EQ(BMessenger(&handler).Target(nullptr), &handler);
	looper->RemoveHandler(&handler);
	looper->Quit();
}


TEST(messenger, is_equal_to_one_with_the_same_target)
{
	record heard;
	listener handler(heard);
	auto* looper = new listening_looper(heard);
	looper->AddHandler(&handler);
	const BMessenger to_handler(&handler);
	const BMessenger copy = to_handler;
	EXPECT_EQ(copy, BMessenger(&handler, looper));
	EXPECT_NE(copy, BMessenger(looper));
	EXPECT_NE(BMessenger(looper), BMessenger(nullptr, looper));
	EXPECT_EQ(BMessenger(), BMessenger());
	EXPECT_NE(BMessenger(), copy);
	looper->RemoveHandler(&handler);
	looper->Quit();
}


TEST(messenger, sends_a_copy)
{
	record heard;
	int32 arrived = 0;
	auto* looper = new listening_looper(heard, [&](BMessage* m) { arrived = m->FindInt32("n"); });
	BMessage message('test');
	message.AddInt32("n", 5);
	EXPECT_EQ(BMessenger(looper).SendMessage(&message), B_OK);
	message.what = 'late';
	message.MakeEmpty();
	looper->Run();
	finish(looper);
	EXPECT_EQ(heard.all(), codes({'test'}));
	EXPECT_EQ(arrived, 5);
}


TEST(messenger, refuses_to_send_nothing)
{
	record heard;
	auto* looper = new listening_looper(heard);
	EXPECT_EQ(BMessenger(looper).SendMessage((BMessage*)nullptr), B_BAD_VALUE);
	looper->Run();
	finish(looper);
	EXPECT_EQ(heard.all(), codes());
}


TEST(messenger, never_calls_the_target_directly_even_in_its_own_thread)
{
	record heard;
	auto* looper = new listening_looper(heard);
	listener second(heard);
	listener first(heard, [&](BMessage*) {
		EXPECT_EQ(BMessenger(&second).SendMessage('scnd'), B_OK);
		EXPECT_EQ(BMessenger(looper).SendMessage('loop'), B_OK);
		EXPECT_EQ(looper->PostMessage('post'), B_OK);
		heard.add('done');
	});
	looper->AddHandler(&first);
	looper->AddHandler(&second);
	BMessenger(&first).SendMessage('frst');
	looper->Run();
	// Told to quit only when the first message is under way, so that its own come before.
	while (heard.all().size() < 5)
		std::this_thread::yield();
	finish(looper);
	EXPECT_EQ(heard.all(), codes({'frst', 'done', 'scnd', 'loop', 'post'}));
}


TEST(messenger, to_a_looper_alone_means_the_handler_preferred_at_the_time_of_dispatch)
{
	record early, late, own;
	listener before(early), after(late);
	auto* looper = new listening_looper(own);
	looper->AddHandler(&before);
	looper->AddHandler(&after);
	looper->SetPreferredHandler(&before);
	BMessenger(nullptr, looper).SendMessage('test');
	looper->SetPreferredHandler(&after);
	looper->Run();
	finish(looper);
	EXPECT_EQ(early.all(), codes());
	EXPECT_EQ(late.all(), codes({'test'}));
	EXPECT_EQ(own.all(), codes());
}


TEST(messenger, without_a_preferred_handler_the_looper_gets_it_itself)
{
	record heard;
	auto* looper = new listening_looper(heard);
	BMessenger(nullptr, looper).SendMessage('test');
	looper->Run();
	finish(looper);
	EXPECT_EQ(heard.all(), codes({'test'}));
}


TEST(messenger, a_target_destroyed_before_the_dispatch_gets_nothing)
{
	record heard;
	auto* looper = new listening_looper(heard);
	auto* handler = new listener(heard);
	looper->AddHandler(handler);
	const BMessenger messenger(handler);
	EXPECT_EQ(messenger.SendMessage('gone'), B_OK);
	EXPECT_EQ(BMessenger(looper).SendMessage('here'), B_OK);
	delete handler;
	// A new one in the same place is somebody else.
	auto* successor = new listener(heard);
	looper->AddHandler(successor);
	looper->Run();
	finish(looper);
	delete successor;
	EXPECT_EQ(heard.all(), codes({'here'}));
}


TEST(messenger, a_target_that_left_its_looper_before_the_dispatch_gets_nothing)
{
	record heard, moved;
	auto* looper = new listening_looper(heard);
	auto* other = new listening_looper(heard);
	listener handler(moved);
	looper->AddHandler(&handler);
	BMessenger(&handler).SendMessage('gone');
	looper->RemoveHandler(&handler);
	other->AddHandler(&handler);
	looper->Run();
	other->Run();
	finish(looper);
	EXPECT_TRUE(other->Lock());
	other->RemoveHandler(&handler);
	other->Quit();
	EXPECT_EQ(moved.all(), codes());
	EXPECT_EQ(heard.all(), codes());
}


TEST(messenger, tells_when_the_target_has_gone)
{
	record heard;
	auto* looper = new listening_looper(heard);
	auto* handler = new listener(heard);
	looper->AddHandler(handler);
	const BMessenger to_handler(handler);
	const BMessenger to_looper(looper);
	const BMessenger to_preferred(nullptr, looper);
	delete handler;
	EXPECT_FALSE(to_handler.IsValid());
	EXPECT_EQ(to_handler.SendMessage('test'), B_BAD_HANDLER);
	EXPECT_TRUE(to_looper.IsValid());
	looper->Quit();
	BLooper* home = looper;
	EXPECT_FALSE(to_looper.IsValid());
	EXPECT_FALSE(to_preferred.IsValid());
	EXPECT_EQ(to_looper.SendMessage('test'), B_BAD_PORT_ID);
	EXPECT_EQ(to_preferred.SendMessage('test'), B_BAD_PORT_ID);
	EXPECT_EQ(to_looper.Target(&home), nullptr);
	EXPECT_EQ(home, nullptr);
}


TEST(messenger, an_answer_goes_where_the_sender_said)
{
	record asked, answered, elsewhere;
	auto* answerer = new listening_looper(asked, [](BMessage* message) {
		EXPECT_TRUE(message->ReturnAddress().IsValid());
		EXPECT_EQ(message->SendReply('answ'), B_OK);
		BMessage second('more');
		EXPECT_EQ(message->SendReply(&second), B_OK);
	});
	auto* asker = new listening_looper(elsewhere);
	listener handler(answered);
	asker->AddHandler(&handler);
	BMessage question('ques');
	EXPECT_EQ(BMessenger(answerer).SendMessage(&question, &handler), B_OK);
	EXPECT_EQ(BMessenger(answerer).SendMessage('ques', asker), B_OK);
	EXPECT_EQ(BMessenger(answerer).SendMessage(&question, BMessenger(asker)), B_OK);
	EXPECT_FALSE(question.ReturnAddress().IsValid());
	answerer->Run();
	finish(answerer);
	asker->Run();
	EXPECT_TRUE(asker->Lock());
	asker->Quit();
	EXPECT_EQ(answered.all(), codes({'answ', 'more'}));
	EXPECT_EQ(elsewhere.all(), codes({'answ', 'more', 'answ', 'more'}));
}
