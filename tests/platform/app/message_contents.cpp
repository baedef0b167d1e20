// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Texts, references, pointers, messages in messages, and what is known about a field.
#include <Errors.h>
#include <Message.h>

#include <gtest/gtest.h>
#include <Looper.h>
#include <string>


TEST(message_text, is_the_messages_own_copy)
{
	std::string given(300, 'a');
	BMessage message;
	EXPECT_EQ(message.AddString("text", given.c_str()), B_OK);
	const char* found = nullptr;
	EXPECT_EQ(message.FindString("text", &found), B_OK);
	given.assign(300, 'b');
	EXPECT_EQ(std::string(found), std::string(300, 'a'));
}


TEST(message_text, stays_where_it_is_while_the_message_is_only_looked_at)
{
	BMessage message;
	message.AddString("text", "Grüße");
	message.AddString("text", "");
	message.AddInt32("number", 5);
	const char* first = message.FindString("text");
	const char* second = message.FindString("text", 1);
	const BMessage copy(message);
	BMessage nested;
	nested.AddMessage("message", &message);
	EXPECT_EQ(message.FindInt32("number"), 5);
	EXPECT_EQ(message.FindString("text"), first);
	EXPECT_STREQ(first, "Grüße");
	EXPECT_STREQ(second, "");
}


TEST(message_text, survives_the_changes_of_a_copy)
{
	BMessage message;
	message.AddString("text", "kept");
	const char* kept = message.FindString("text");
	{
		BMessage copy(message);
		copy.AddString("text", "more");
		copy.RemoveName("text");
	}
	EXPECT_STREQ(kept, "kept");
}


TEST(message_text, is_found_by_index_or_null)
{
	BMessage message;
	message.AddString("text", "first");
	message.AddString("text", "second");
	const char* found = nullptr;
	EXPECT_EQ(message.FindString("text", 1, &found), B_OK);
	EXPECT_STREQ(found, "second");
	EXPECT_EQ(message.FindString("text", 2, &found), B_BAD_INDEX);
	EXPECT_EQ(found, nullptr);
	EXPECT_EQ(message.FindString("text", 2), nullptr);
	EXPECT_EQ(message.FindString("other"), nullptr);
	message.AddInt8("byte", 65);
	found = "before";
	EXPECT_EQ(message.FindString("byte", &found), B_BAD_TYPE);
	EXPECT_EQ(found, nullptr);
}


TEST(message_pointer, is_only_an_address)
{
	int thing = 5;
	BMessage message;
	EXPECT_EQ(message.AddPointer("thing", &thing), B_OK);
	EXPECT_EQ(message.AddPointer("thing", nullptr), B_OK);
	void* found = nullptr;
	EXPECT_EQ(message.FindPointer("thing", &found), B_OK);
	EXPECT_EQ(found, &thing);
	EXPECT_EQ(message.FindPointer("thing", 1, &found), B_OK);
	EXPECT_EQ(found, nullptr);
	found = &thing;
	EXPECT_EQ(message.FindPointer("thing", 2, &found), B_BAD_INDEX);
	EXPECT_EQ(found, nullptr);
	found = &thing;
	EXPECT_EQ(message.FindPointer("other", &found), B_NAME_NOT_FOUND);
	EXPECT_EQ(found, nullptr);
}


TEST(message_ref, is_the_messages_own_copy)
{
	entry_ref given(3, 4, "first.ttf");
	BMessage message;
	EXPECT_EQ(message.AddRef("refs", &given), B_OK);
	given.set_name("second.ttf");
	EXPECT_EQ(message.AddRef("refs", &given), B_OK);
	entry_ref found;
	EXPECT_EQ(message.FindRef("refs", &found), B_OK);
	EXPECT_EQ(found, entry_ref(3, 4, "first.ttf"));
	EXPECT_EQ(message.FindRef("refs", 1, &found), B_OK);
	EXPECT_EQ(found, entry_ref(3, 4, "second.ttf"));
	EXPECT_TRUE(message.HasRef("refs", 1));
	EXPECT_FALSE(message.HasRef("refs", 2));
}


TEST(message_ref, is_empty_when_it_is_not_found)
{
	const BMessage message;
	entry_ref found(3, 4, "name");
	EXPECT_EQ(message.FindRef("refs", &found), B_NAME_NOT_FOUND);
	EXPECT_EQ(found.device, (dev_t)-1);
	EXPECT_EQ(found.name, nullptr);
}


TEST(message_in_a_message, is_a_copy_with_all_its_fields)
{
	BMessage inner('innr');
	inner.AddInt32("number", 5);
	BMessage middle('midl');
	EXPECT_EQ(middle.AddMessage("inner", &inner), B_OK);
	BMessage outer('outr');
	EXPECT_EQ(outer.AddMessage("middle", &middle), B_OK);
	inner.AddInt32("number", 6);
	middle.MakeEmpty();
	BMessage found;
	EXPECT_EQ(outer.FindMessage("middle", &found), B_OK);
	EXPECT_EQ(found.what, (uint32)'midl');
	BMessage innermost;
	EXPECT_EQ(found.FindMessage("inner", &innermost), B_OK);
	EXPECT_EQ(innermost.what, (uint32)'innr');
	EXPECT_EQ(innermost.FindInt32("number"), 5);
	EXPECT_FALSE(innermost.HasInt32("number", 1));
}


TEST(message_in_a_message, what_is_found_is_the_finders_own)
{
	BMessage inner('innr');
	inner.AddInt32("number", 5);
	BMessage outer;
	outer.AddMessage("inner", &inner);
	BMessage found;
	EXPECT_EQ(outer.FindMessage("inner", &found), B_OK);
	found.AddInt32("number", 6);
	BMessage again;
	EXPECT_EQ(outer.FindMessage("inner", &again), B_OK);
	EXPECT_FALSE(again.HasInt32("number", 1));
}


TEST(message_in_a_message, is_found_by_index_or_empty)
{
	BMessage outer;
	BMessage inner('one!');
	outer.AddMessage("inner", &inner);
	inner.what = 'two!';
	outer.AddMessage("inner", &inner);
	BMessage found;
	EXPECT_EQ(outer.FindMessage("inner", 1, &found), B_OK);
	EXPECT_EQ(found.what, (uint32)'two!');
	EXPECT_TRUE(outer.HasMessage("inner", 1));
	EXPECT_FALSE(outer.HasMessage("inner", 2));
	found.AddInt32("number", 5);
	EXPECT_EQ(outer.FindMessage("inner", 2, &found), B_BAD_INDEX);
	EXPECT_EQ(found.what, 0u);
	EXPECT_TRUE(found.IsEmpty());
	EXPECT_EQ(outer.FindMessage("other", &found), B_NAME_NOT_FOUND);
}


TEST(message_in_a_message, may_be_the_message_itself)
{
	BMessage message('self');
	message.AddString("text", "a text that is too long to be kept inside of a string object");
	EXPECT_EQ(message.AddMessage("copy", &message), B_OK);
	BMessage found;
	EXPECT_EQ(message.FindMessage("copy", &found), B_OK);
	EXPECT_FALSE(found.HasMessage("copy"));
	EXPECT_TRUE(found.HasString("text"));
}


TEST(message_in_a_message, may_take_the_place_of_the_one_that_holds_it)
{
	BMessage inner('innr');
	inner.AddString("text", "a text that is too long to be kept inside of a string object");
	BMessage message('outr');
	message.AddMessage("inner", &inner);
	inner.MakeEmpty();
	EXPECT_EQ(message.FindMessage("inner", &message), B_OK);
	EXPECT_EQ(message.what, (uint32)'innr');
	EXPECT_FALSE(message.HasMessage("inner"));
	EXPECT_STREQ(
		message.FindString("text"), "a text that is too long to be kept inside of a string object");
}


TEST(message_messenger, comes_back_equal)
{
	auto* looper = new BLooper("looper");
	BMessage message;
	EXPECT_EQ(message.AddMessenger("to", BMessenger(looper)), B_OK);
	EXPECT_EQ(message.AddMessenger("to", BMessenger(nullptr, looper)), B_OK);
	BMessenger found;
	EXPECT_EQ(message.FindMessenger("to", &found), B_OK);
	EXPECT_EQ(found, BMessenger(looper));
	EXPECT_EQ(message.FindMessenger("to", 1, &found), B_OK);
	EXPECT_EQ(found, BMessenger(nullptr, looper));
	EXPECT_EQ(message.FindMessenger("to", 2, &found), B_BAD_INDEX);
	EXPECT_FALSE(found.IsValid());
	type_code type = 0;
	EXPECT_EQ(message.GetInfo("to", &type), B_OK);
	EXPECT_EQ(type, (type_code)'MSNG');
	looper->Quit();
}


TEST(message_contents, nothing_is_not_a_text_a_ref_or_a_message)
{
	BMessage message;
	EXPECT_EQ(message.AddString("field", nullptr), B_BAD_VALUE);
	EXPECT_EQ(message.AddRef("field", nullptr), B_BAD_VALUE);
	EXPECT_EQ(message.AddMessage("field", nullptr), B_BAD_VALUE);
	EXPECT_TRUE(message.IsEmpty());
}


TEST(message_info, gives_type_and_number_of_values)
{
	const entry_ref ref(1, 2, "name");
	const BMessage inner;
	BMessage message;
	message.AddRef("refs", &ref);
	message.AddRef("refs", &ref);
	message.AddString("text", "");
	message.AddPointer("pointer", nullptr);
	message.AddMessage("message", &inner);
	type_code type = 0;
	int32 count = 7;
	EXPECT_EQ(message.GetInfo("refs", &type, &count), B_OK);
	EXPECT_EQ(type, (type_code)'RREF');
	EXPECT_EQ(count, 2);
	EXPECT_EQ(message.GetInfo("text", &type, &count), B_OK);
	EXPECT_EQ(type, (type_code)'CSTR');
	EXPECT_EQ(count, 1);
	EXPECT_EQ(message.GetInfo("pointer", &type), B_OK);
	EXPECT_EQ(type, (type_code)'PNTR');
	EXPECT_EQ(message.GetInfo("message", &type), B_OK);
	EXPECT_EQ(type, (type_code)'MSGG');
}


TEST(message_info, of_a_missing_field_counts_nothing)
{
	BMessage message;
	message.AddInt32("here", 1);
	type_code type = 0;
	int32 count = 7;
	EXPECT_EQ(message.GetInfo("gone", &type, &count), B_NAME_NOT_FOUND);
	EXPECT_EQ(count, 0);
	EXPECT_EQ(message.GetInfo(nullptr, nullptr, &count), B_NAME_NOT_FOUND);
	EXPECT_EQ(message.GetInfo("here", nullptr, nullptr), B_OK);
}
