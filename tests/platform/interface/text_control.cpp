// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// A field's text, and what of it is sent when.
#include "platform/interface/form.h"

#include <gtest/gtest.h>
#include <OS.h>

namespace {

constexpr BPoint upper(10, 10);
constexpr BPoint lower(10, 40);

}


TEST(text_control, has_half_its_width_for_the_label)
{
	BTextControl field(BRect(20, 30, 219, 50), "field", "Label", "", nullptr);
	EXPECT_EQ(field.Divider(), 99);
}


TEST(text_control, without_a_label_is_all_field)
{
	BTextControl none(BRect(20, 30, 219, 50), "field", nullptr, "", nullptr);
	EXPECT_EQ(none.Divider(), 0);
	EXPECT_STREQ(none.Label(), "");
	BTextControl empty(BRect(20, 30, 219, 50), "field", "", "", nullptr);
	EXPECT_EQ(empty.Divider(), 0);
}


TEST(text_control, keeps_the_divider_it_is_given)
{
	BTextControl field(BRect(20, 30, 219, 50), "field", "Label", "", nullptr);
	field.SetDivider(60);
	EXPECT_EQ(field.Divider(), 60);
}


TEST(text_control, starts_with_its_text)
{
	BTextControl field(BRect(0, 0, 99, 20), "field", nullptr, "hello", nullptr);
	EXPECT_STREQ(field.Text(), "hello");
}


TEST(text_control, takes_no_text_for_the_empty_one)
{
	BTextControl field(BRect(0, 0, 99, 20), "field", nullptr, nullptr, nullptr);
	EXPECT_STREQ(field.Text(), "");
	field.SetText("some");
	field.SetText(nullptr);
	EXPECT_STREQ(field.Text(), "");
}


TEST(text_control, is_as_high_as_a_line_whatever_its_frame_and_keeps_its_width)
{
	with_form([](form&, robot&) {
		BTextControl low(BRect(20, 30, 219, 31), "low", "Label", "", nullptr);
		BTextControl high(BRect(20, 30, 219, 90), "high", nullptr, "", nullptr);
		EXPECT_EQ(low.Frame(), BRect(20, 30, 219, 50));
		EXPECT_EQ(high.Frame(), BRect(20, 30, 219, 50));
	});
}


TEST(text_control, shows_the_programs_text)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field", "first");
		EXPECT_EQ(user.field_text(middle(field)), "first");
		page.locked([&] { field.SetText("second"); });
		EXPECT_EQ(user.field_text(middle(field)), "second");
	});
}


TEST(text_control, given_a_text_sends_nothing)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field", "first");
		page.locked([&] { field.SetText("second"); });
		user.click(middle(field));
		page.locked([&] { field.SetText("third"); });
		user.settle();
		EXPECT_EQ(page.senders(), journal());
	});
}


TEST(text_control, knows_what_is_being_typed_and_sends_none_of_it)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field");
		user.click(middle(field));
		user.type("abc");
		EXPECT_EQ(page.text_of(field), "abc");
		user.key(Qt::Key_Backspace, "\b");
		EXPECT_EQ(page.text_of(field), "ab");
		EXPECT_EQ(page.senders(), journal());
	});
}


TEST(text_control, sends_a_changed_text_on_return_once)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field", "old");
		user.click(middle(field));
		user.type("new");
		press_return(user);
		EXPECT_EQ(page.senders(), journal{"field"});
		EXPECT_EQ(page.text_of(field), "new");
		press_return(user);
		EXPECT_EQ(page.senders(), journal{"field"});
	});
}


TEST(text_control, sends_on_the_keypads_enter_as_well)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field");
		user.click(middle(field));
		user.type("x");
		user.key(Qt::Key_Enter, "\r");
		EXPECT_EQ(page.senders(), journal{"field"});
	});
}


TEST(text_control, sends_nothing_on_return_when_nothing_was_typed)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field", "old");
		user.click(middle(field));
		press_return(user);
		EXPECT_EQ(page.senders(), journal());
	});
}


TEST(text_control, sends_nothing_when_what_was_typed_was_taken_back)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field", "old");
		user.click(middle(field));
		user.key(Qt::Key_End);
		user.type("x");
		user.key(Qt::Key_Backspace, "\b");
		press_return(user);
		EXPECT_EQ(page.text_of(field), "old");
		EXPECT_EQ(page.senders(), journal());
	});
}


TEST(text_control, selects_all_after_return)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field");
		user.click(middle(field));
		user.type("abc");
		press_return(user);
		user.type("x");
		EXPECT_EQ(page.text_of(field), "x");
	});
}


TEST(text_control, keeps_the_keyboard_after_return)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field");
		user.click(middle(field));
		user.type("abc");
		press_return(user);
		EXPECT_EQ(page.focus(), "field");
		EXPECT_TRUE(user.has_keyboard(middle(field)));
	});
}


TEST(text_control, compares_with_the_programs_last_text)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field", "a");
		user.click(middle(field));
		user.type("b");
		page.locked([&] { field.SetText("c"); });
		press_return(user);
		EXPECT_EQ(page.senders(), journal()) << "c is the program's";
		user.type("b");
		press_return(user);
		EXPECT_EQ(page.senders(), journal{"field"});
	});
}


TEST(text_control, rewritten_by_the_program_when_it_sends_counts_as_unchanged)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field", "0000");
		BTextControl& other = page.field(lower, "other");
		page.on_sent = [&](BMessage&) { field.SetText("001a"); };
		user.click(middle(field));
		user.type("1A");
		press_return(user);
		EXPECT_EQ(user.field_text(middle(field)), "001a");
		press_return(user);
		user.click(middle(other));
		EXPECT_EQ(page.senders(), journal{"field"});
		EXPECT_EQ(page.text_of(field), "001a");
	});
}


TEST(text_control, rewritten_by_the_program_with_the_keyboard_is_selected)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field");
		page.on_sent = [&](BMessage&) { field.SetText("001a"); };
		user.click(middle(field));
		user.type("1A");
		press_return(user);
		user.type("7");
		EXPECT_EQ(page.text_of(field), "7");
	});
}


TEST(text_control, shows_and_takes_letters_of_every_length)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field", "né あ");
		EXPECT_EQ(user.field_text(middle(field)), "né あ");
		user.click(middle(field));
		user.key(Qt::Key_Eacute, "é");
		EXPECT_EQ(page.text_of(field), "é");
		user.key(Qt::Key_unknown, "あ");
		user.key(Qt::Key_unknown, "😀");
		EXPECT_EQ(page.text_of(field), "éあ😀");
		user.key(Qt::Key_Backspace, "\b");
		user.key(Qt::Key_Backspace, "\b");
		EXPECT_EQ(page.text_of(field), "é");
	});
}


TEST(text_control, sends_the_fields_of_an_invocation)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field");
		user.click(middle(field));
		user.type("x");
		bigtime_t before = system_time();
		press_return(user);
		BMessage sent = page.messages().at(0);
		int64 when = 0;
		EXPECT_EQ(sent.FindInt64("when", &when), B_OK);
		EXPECT_GE(when, before);
		EXPECT_LE(when, system_time());
		void* source = nullptr;
		EXPECT_EQ(sent.FindPointer("source", &source), B_OK);
		EXPECT_EQ(source, (void*)&field);
		EXPECT_TRUE(sent.HasInt32("be:value"));
		EXPECT_EQ(sent.FindInt32("be:value"), 0);
		BMessenger sender;
		EXPECT_EQ(sent.FindMessenger("be:sender", &sender), B_OK);
		EXPECT_EQ(sender, BMessenger(&field));
	});
}


TEST(text_control, that_is_disabled_takes_no_keyboard_and_no_text)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field", "old");
		page.locked([&] { field.SetEnabled(false); });
		user.click(middle(field));
		user.type("x");
		EXPECT_EQ(page.focus(), "");
		EXPECT_EQ(page.text_of(field), "old");
	});
}


TEST(text_control, enabled_again_takes_text_again)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field", "old");
		page.locked([&] { field.SetEnabled(false); });
		page.locked([&] { field.SetEnabled(true); });
		user.click(middle(field));
		user.type("x");
		EXPECT_EQ(page.text_of(field), "x");
	});
}


TEST(text_control, switched_off_while_it_is_edited_gives_up_the_keyboard_and_confirms)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field");
		user.click(middle(field));
		user.type("x");
		page.locked([&] { field.SetEnabled(false); });
		user.settle();
		EXPECT_EQ(page.focus(), "");
		EXPECT_EQ(page.senders(), journal{"field"});
	});
}


TEST(text_control, copies_cuts_and_pastes_by_the_command_key)
{
	for (Qt::KeyboardModifier command : {Qt::AltModifier, Qt::MetaModifier, Qt::ControlModifier}) {
		with_form([&](form& page, robot& user) {
			BTextControl& field = page.field(upper, "field", "word");
			BTextControl& other = page.field(lower, "other");
			auto press = [&](Qt::Key key, const char* text) {
				user.act([&](QWidget& window) { press_key(window, key, text, command); });
				user.settle();
			};
			user.click(middle(field));
			press(Qt::Key_C, "c");
			EXPECT_EQ(page.text_of(field), "word") << command;
			press(Qt::Key_X, "x");
			EXPECT_EQ(page.text_of(field), "") << command;
			user.click(middle(other));
			press(Qt::Key_V, "v");
			press(Qt::Key_V, "v");
			EXPECT_EQ(page.text_of(other), "wordword") << command;
			press(Qt::Key_A, "a");
			press(Qt::Key_X, "x");
			EXPECT_EQ(page.text_of(other), "") << command;
		});
	}
}


TEST(text_control, takes_no_letters_with_the_command_key)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field", "word");
		user.click(middle(field));
		for (Qt::KeyboardModifiers held : {Qt::KeyboardModifiers(Qt::AltModifier),
				 Qt::KeyboardModifiers(Qt::MetaModifier), Qt::AltModifier | Qt::ShiftModifier}) {
			user.act([&](QWidget& window) { press_key(window, Qt::Key_K, "k", held); });
			user.settle();
		}
		EXPECT_EQ(page.text_of(field), "word");
	});
}
