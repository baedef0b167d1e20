// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// A message as a value: copied, assigned, emptied.
#include <Errors.h>
#include <Message.h>

#include <gtest/gtest.h>


namespace {

BMessage
filled()
{
	const entry_ref ref(1, 2, "name");
	BMessage inner('innr');
	inner.AddInt32("number", 5);
	BMessage message('test');
	message.AddInt32("number", 1);
	message.AddInt32("number", 2);
	message.AddString("text", "a text that is too long to be kept inside of a string object");
	message.AddRef("ref", &ref);
	message.AddMessage("inner", &inner);
	return message;
}

}


TEST(message, starts_with_its_code_and_no_field)
{
	EXPECT_EQ(BMessage().what, 0u);
	EXPECT_TRUE(BMessage().IsEmpty());
	BMessage message('init');
	EXPECT_EQ(message.what, 0x696E6974u);
	message.what = 'finw';
	EXPECT_EQ(message.what, 0x66696E77u);
}


TEST(message, a_copy_has_everything_and_shares_nothing)
{
	BMessage original = filled();
	BMessage copy(original);
	original.AddInt32("number", 3);
	original.RemoveName("text");
	original.RemoveName("inner");
	original.what = 'othr';
	EXPECT_EQ(copy.what, (uint32)'test');
	EXPECT_EQ(copy.FindInt32("number", 1), 2);
	EXPECT_FALSE(copy.HasInt32("number", 2));
	EXPECT_STREQ(
		copy.FindString("text"), "a text that is too long to be kept inside of a string object");
	entry_ref ref;
	EXPECT_EQ(copy.FindRef("ref", &ref), B_OK);
	EXPECT_EQ(ref, entry_ref(1, 2, "name"));
	BMessage inner;
	EXPECT_EQ(copy.FindMessage("inner", &inner), B_OK);
	EXPECT_EQ(inner.FindInt32("number"), 5);
}


TEST(message, changing_a_copy_leaves_the_original)
{
	const BMessage original = filled();
	BMessage copy(original);
	copy.MakeEmpty();
	EXPECT_TRUE(copy.IsEmpty());
	EXPECT_EQ(original.FindInt32("number", 1), 2);
	EXPECT_TRUE(original.HasMessage("inner"));
}


TEST(message, assignment_replaces_everything)
{
	BMessage message('old!');
	message.AddInt64("old", 1);
	message.AddString("number", "of another type");
	message = filled();
	EXPECT_EQ(message.what, (uint32)'test');
	EXPECT_FALSE(message.HasInt64("old"));
	EXPECT_EQ(message.FindInt32("number", 1), 2);
}


TEST(message, may_be_assigned_to_itself)
{
	BMessage message = filled();
	const BMessage& same = message;
	message = same;
	EXPECT_EQ(message.FindInt32("number", 1), 2);
	EXPECT_TRUE(message.HasString("text"));
}


TEST(message, outlives_the_one_it_was_copied_from)
{
	auto* original = new BMessage(filled());
	BMessage copy;
	copy = *original;
	delete original;
	EXPECT_STREQ(
		copy.FindString("text"), "a text that is too long to be kept inside of a string object");
	EXPECT_TRUE(copy.HasRef("ref"));
}


TEST(message, a_field_that_is_removed_may_come_again_with_another_type)
{
	BMessage message = filled();
	EXPECT_EQ(message.AddString("number", "three"), B_BAD_TYPE);
	EXPECT_EQ(message.RemoveName("number"), B_OK);
	EXPECT_FALSE(message.HasInt32("number"));
	EXPECT_EQ(message.AddString("number", "three"), B_OK);
	EXPECT_STREQ(message.FindString("number"), "three");
	EXPECT_TRUE(message.HasString("text"));
	EXPECT_TRUE(message.HasRef("ref"));
}


TEST(message, a_value_is_replaced_by_removing_its_name_and_adding_it_anew)
{
	BMessage message = filled();
	message.RemoveName("number");
	message.AddInt32("number", 9);
	int32 count = 0;
	EXPECT_EQ(message.GetInfo("number", nullptr, &count), B_OK);
	EXPECT_EQ(count, 1);
	EXPECT_EQ(message.FindInt32("number"), 9);
}


TEST(message, removing_what_is_not_there_changes_nothing)
{
	BMessage message = filled();
	EXPECT_EQ(message.RemoveName("nothing"), B_NAME_NOT_FOUND);
	EXPECT_EQ(message.RemoveName(nullptr), B_NAME_NOT_FOUND);
	EXPECT_EQ(message.FindInt32("number", 1), 2);
}


TEST(message, emptying_keeps_the_code)
{
	BMessage message = filled();
	EXPECT_FALSE(message.IsEmpty());
	EXPECT_EQ(message.MakeEmpty(), B_OK);
	EXPECT_TRUE(message.IsEmpty());
	EXPECT_EQ(message.what, (uint32)'test');
	EXPECT_FALSE(message.HasInt32("number"));
}


TEST(message, removing_the_last_field_empties_it)
{
	BMessage message;
	message.AddBool("flag", true);
	message.RemoveName("flag");
	EXPECT_TRUE(message.IsEmpty());
}


TEST(message, names_differ_by_every_letter)
{
	BMessage message;
	message.AddInt32("Name", 1);
	message.AddInt32("name", 2);
	message.AddInt32("", 3);
	EXPECT_EQ(message.FindInt32("Name"), 1);
	EXPECT_EQ(message.FindInt32("name"), 2);
	EXPECT_EQ(message.FindInt32(""), 3);
	EXPECT_EQ(message.FindInt32("NAME"), 0);
}


TEST(message, that_nobody_sent_has_nobody_to_answer)
{
	BMessage message('test');
	BMessage answer('answ');
	EXPECT_FALSE(message.WasDropped());
	EXPECT_FALSE(message.ReturnAddress().IsValid());
	EXPECT_EQ(message.SendReply('answ'), B_BAD_PORT_ID);
	EXPECT_EQ(message.SendReply(&answer), B_BAD_PORT_ID);
}
