// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "platform/app/listeners.h"

#include <gtest/gtest.h>
#include <string>


TEST(handler, keeps_a_copy_of_its_name)
{
	std::string name = "first";
	BHandler handler(name.c_str());
	name = "other";
	EXPECT_STREQ(handler.Name(), "first");
	handler.SetName("second");
	EXPECT_STREQ(handler.Name(), "second");
}


TEST(handler, belongs_to_no_looper_at_first)
{
	const BHandler handler;
	EXPECT_EQ(handler.Looper(), nullptr);
	EXPECT_EQ(handler.NextHandler(), nullptr);
}


TEST(handler, what_it_does_not_know_climbs_to_the_next)
{
	record heard;
	listener first(heard), second(heard), third(heard);
	first.pass_on();
	first.SetNextHandler(&second);
	second.SetNextHandler(&third);
	EXPECT_EQ(first.NextHandler(), &second);
	BMessage message('fiop');
	first.MessageReceived(&message);
	// The second knew it, so the third never heard of it.
	EXPECT_EQ(heard.all(), codes({'fiop', 'fiop'}));
}


TEST(handler, at_the_end_of_the_chain_a_message_is_dropped)
{
	record heard;
	listener first(heard), last(heard);
	first.pass_on();
	last.pass_on();
	first.SetNextHandler(&last);
	BMessage message('what');
	first.MessageReceived(&message);
	EXPECT_EQ(heard.all(), codes({'what', 'what'}));
	BHandler().MessageReceived(&message);
}


TEST(handler, a_whole_chain_is_climbed_in_order_to_the_looper)
{
	record child, parent, top;
	listener inner(child), outer(parent);
	inner.pass_on();
	outer.pass_on();
	auto* looper = new listening_looper(top);
	looper->AddHandler(&inner);
	looper->AddHandler(&outer);
	inner.SetNextHandler(&outer);
	EXPECT_EQ(outer.NextHandler(), looper);
	looper->PostMessage('fiop', &inner);
	looper->PostMessage('tsel', &outer);
	looper->Run();
	finish(looper);
	EXPECT_EQ(child.all(), codes({'fiop'}));
	EXPECT_EQ(parent.all(), codes({'fiop', 'tsel'}));
	EXPECT_EQ(top.all(), codes({'fiop', 'tsel'}));
}


TEST(handler, joins_and_leaves_a_looper)
{
	record heard;
	listener handler(heard);
	auto* looper = new listening_looper(heard);
	looper->AddHandler(&handler);
	EXPECT_EQ(handler.Looper(), looper);
	EXPECT_EQ(handler.NextHandler(), looper);
	EXPECT_TRUE(looper->RemoveHandler(&handler));
	EXPECT_EQ(handler.Looper(), nullptr);
	EXPECT_EQ(handler.NextHandler(), nullptr);
	EXPECT_FALSE(looper->RemoveHandler(&handler));
	looper->Quit();
}


TEST(handler, belongs_to_one_looper_at_a_time)
{
	record heard;
	listener handler(heard);
	auto* home = new listening_looper(heard);
	auto* other = new listening_looper(heard);
	home->AddHandler(&handler);
	other->AddHandler(&handler);
	EXPECT_EQ(handler.Looper(), home);
	EXPECT_FALSE(other->RemoveHandler(&handler));
	EXPECT_EQ(handler.Looper(), home);
	home->RemoveHandler(&handler);
	other->AddHandler(&handler);
	EXPECT_EQ(handler.Looper(), other);
	other->RemoveHandler(&handler);
	home->Quit();
	other->Quit();
}


TEST(handler, is_set_free_when_its_looper_goes)
{
	record heard;
	listener waiting(heard), running(heard);
	auto* looper = new listening_looper(heard);
	looper->AddHandler(&waiting);
	looper->Quit();
	EXPECT_EQ(waiting.Looper(), nullptr);
	EXPECT_EQ(waiting.NextHandler(), nullptr);
	looper = new listening_looper(heard);
	looper->AddHandler(&running);
	looper->Run();
	finish(looper);
	EXPECT_EQ(running.Looper(), nullptr);
	EXPECT_FALSE(BMessenger(&running).IsValid());
}


TEST(handler, a_looper_cannot_be_taken_from_itself_or_nobody)
{
	record heard;
	auto* looper = new listening_looper(heard);
	EXPECT_EQ(looper->Looper(), looper);
	EXPECT_FALSE(looper->RemoveHandler(looper));
	EXPECT_FALSE(looper->RemoveHandler(nullptr));
	looper->AddHandler(nullptr);
	looper->AddHandler(looper);
	EXPECT_EQ(looper->Looper(), looper);
	EXPECT_EQ(looper->NextHandler(), nullptr);
	looper->Quit();
}
