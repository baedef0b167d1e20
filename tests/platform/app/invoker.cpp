// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "platform/app/listeners.h"

#include <Errors.h>
#include <gtest/gtest.h>
#include <Invoker.h>

namespace {

// Tells when it is deleted.
class model : public BMessage {
public:
	model(uint32 code, int& deleted) : BMessage(code), fDeleted(deleted) {}
	~model() override { fDeleted++; }

private:
	int& fDeleted;
};

}


TEST(invoker, owns_its_model_message)
{
	int deleted = 0;
	{
		BInvoker invoker(new model('1st ', deleted));
		EXPECT_EQ(invoker.Command(), (uint32)'1st ');
		auto* second = new model('2nd ', deleted);
		EXPECT_EQ(invoker.SetMessage(second), B_OK);
		EXPECT_EQ(deleted, 1);
		EXPECT_EQ(invoker.Message(), second);
		EXPECT_EQ(invoker.Command(), (uint32)'2nd ');
	}
	EXPECT_EQ(deleted, 2);
}


TEST(invoker, may_be_given_the_message_that_it_has)
{
	int deleted = 0;
	auto* message = new model('test', deleted);
	BInvoker invoker(message);
	EXPECT_EQ(invoker.SetMessage(message), B_OK);
	EXPECT_EQ(deleted, 0);
	EXPECT_EQ(invoker.Command(), (uint32)'test');
}


TEST(invoker, without_a_message_has_nothing_to_send)
{
	record heard;
	auto* looper = new listening_looper(heard);
	BInvoker invoker;
	EXPECT_EQ(invoker.Message(), nullptr);
	EXPECT_EQ(invoker.Command(), 0u);
	invoker.SetTarget(looper);
	EXPECT_EQ(invoker.Invoke(), B_BAD_VALUE);
	invoker.SetMessage(new BMessage('test'));
	invoker.SetMessage(nullptr);
	EXPECT_EQ(invoker.Invoke(), B_BAD_VALUE);
	looper->Run();
	finish(looper);
	EXPECT_EQ(heard.all(), codes());
}


TEST(invoker, without_a_target_sends_nothing)
{
	BInvoker invoker(new BMessage('test'));
	EXPECT_EQ(invoker.Target(), nullptr);
	EXPECT_FALSE(invoker.Messenger().IsValid());
	EXPECT_EQ(invoker.Invoke(), B_BAD_PORT_ID);
}


TEST(invoker, sends_a_copy_of_its_model_message)
{
	record heard;
	int32 sum = 0;
	auto* looper = new listening_looper(heard, [&](BMessage* m) { sum += m->FindInt32("n"); });
	auto* message = new BMessage('test');
	message->AddInt32("n", 5);
	BInvoker invoker(message);
	EXPECT_EQ(invoker.SetTarget(looper), B_OK);
	EXPECT_EQ(invoker.Invoke(), B_OK);
	EXPECT_EQ(invoker.Invoke(), B_OK);
	invoker.SetMessage(nullptr);
	looper->Run();
	finish(looper);
	EXPECT_EQ(heard.all(), codes({'test', 'test'}));
	EXPECT_EQ(sum, 10);
}


TEST(invoker, sends_the_argument_in_place_of_its_model)
{
	record heard;
	auto* looper = new listening_looper(heard);
	BInvoker invoker(new BMessage('modl'));
	invoker.SetTarget(looper);
	BMessage other('othr');
	EXPECT_EQ(invoker.Invoke(&other), B_OK);
	EXPECT_EQ(invoker.Command(), (uint32)'modl');
	looper->Run();
	finish(looper);
	EXPECT_EQ(heard.all(), codes({'othr'}));
}


TEST(invoker, aims_as_a_messenger_does)
{
	record heard;
	listener handler(heard), free(heard);
	auto* looper = new listening_looper(heard);
	auto* other = new listening_looper(heard);
	looper->AddHandler(&handler);
	BInvoker invoker;
	BLooper* home = nullptr;
	EXPECT_EQ(invoker.SetTarget(&handler), B_OK);
	EXPECT_EQ(invoker.Target(&home), &handler);
	EXPECT_EQ(home, looper);
	EXPECT_EQ(invoker.Messenger(), BMessenger(&handler));
	EXPECT_EQ(invoker.SetTarget(&handler, other), B_MISMATCHED_VALUES);
	EXPECT_EQ(invoker.Target(), nullptr);
	EXPECT_EQ(invoker.SetTarget(&free), B_MISMATCHED_VALUES);
	EXPECT_EQ(invoker.SetTarget(BMessenger(other)), B_OK);
	EXPECT_EQ(invoker.Target(), other);
	looper->RemoveHandler(&handler);
	looper->Quit();
	other->Quit();
}


TEST(invoker, a_looper_alone_means_the_handler_preferred_at_delivery)
{
	record early, late, own;
	listener before(early), after(late);
	auto* looper = new listening_looper(own);
	looper->AddHandler(&before);
	looper->AddHandler(&after);
	looper->SetPreferredHandler(&before);
	BInvoker invoker(new BMessage('open'));
	EXPECT_EQ(invoker.SetTarget(nullptr, looper), B_OK);
	EXPECT_EQ(invoker.Invoke(), B_OK);
	looper->SetPreferredHandler(&after);
	looper->Run();
	finish(looper);
	EXPECT_EQ(early.all(), codes());
	EXPECT_EQ(late.all(), codes({'open'}));
}
