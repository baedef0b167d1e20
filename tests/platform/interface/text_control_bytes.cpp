// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// A field whose text holds bytes that are not UTF-8, or more text than it can show.
#include "platform/interface/form.h"

#include <gtest/gtest.h>

namespace {

constexpr BPoint upper(10, 10);
constexpr BPoint lower(10, 40);

// Mac Roman: a copyright sign, a space and a year; "été".
constexpr const char* copyright = "\xA9 2007";
constexpr const char* summer = "\x8Et\x8E";


void
press_control(robot& user, Qt::Key key)
{
	user.key(key, "", B_CONTROL_KEY);
}


// Dark pixels in the line of a field that has no label.
int
ink(robot& user, BTextControl& field)
{
	BPoint at = middle(field);
	BRect inside(at.x - 45, at.y - 6, at.x + 45, at.y + 6);
	return user.count(inside, {0, 0, 0, 255});
}

}


TEST(text_control_bytes, stay_when_the_text_beside_them_is_edited)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field", copyright);
		user.click(middle(field));
		user.key(Qt::Key_End);
		user.key(Qt::Key_Backspace, "\b");
		user.type("8");
		EXPECT_EQ(page.text_of(field), "\xA9 2008");
		user.key(Qt::Key_Home);
		user.type("x");
		EXPECT_EQ(page.text_of(field), "x\xA9 2008");
	});
}


TEST(text_control_bytes, are_no_change_on_return)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field", copyright);
		user.click(middle(field));
		press_return(user);
		EXPECT_EQ(page.text_of(field), copyright);
		EXPECT_EQ(page.senders(), journal());
	});
}


TEST(text_control_bytes, stay_beside_characters_of_every_length)
{
	with_form([](form& page, robot& user) {
		const std::string mixed = "\xFF😀\x80é\xE3\x81あ\xED\xA0\x80\xC0\x80\xF4\x90\x80\x80";
		BTextControl& field = page.field(upper, "field", mixed.c_str());
		EXPECT_EQ(user.field_text(middle(field)), mixed);
		user.click(middle(field));
		user.key(Qt::Key_End);
		user.type("x");
		EXPECT_EQ(page.text_of(field), mixed + "x");
	});
}


TEST(text_control_bytes, are_deleted_one_by_one)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field", "a\x8E\x8F\x90z");
		user.click(middle(field));
		user.key(Qt::Key_End);
		user.key(Qt::Key_Left);
		user.key(Qt::Key_Backspace, "\b");
		EXPECT_EQ(page.text_of(field), "a\x8E\x8Fz");
		user.key(Qt::Key_Backspace, "\b");
		EXPECT_EQ(page.text_of(field), "a\x8Ez");
		user.key(Qt::Key_Left);
		user.key(Qt::Key_Delete, "\x7F");
		EXPECT_EQ(page.text_of(field), "az");
	});
}


TEST(text_control_bytes, behind_a_character_of_two_halves_leave_it_whole)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field", "😀\x8E");
		user.click(middle(field));
		user.key(Qt::Key_End);
		user.key(Qt::Key_Backspace, "\b");
		EXPECT_EQ(page.text_of(field), "😀");
		user.key(Qt::Key_Backspace, "\b");
		EXPECT_EQ(page.text_of(field), "");
	});
}


TEST(text_control_bytes, come_back_when_their_deletion_is_undone)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field", summer);
		user.click(middle(field));
		user.key(Qt::Key_End);
		user.key(Qt::Key_Backspace, "\b");
		EXPECT_EQ(page.text_of(field), "\x8Et");
		press_control(user, Qt::Key_Z);
		EXPECT_EQ(page.text_of(field), summer);
	});
}


TEST(text_control_bytes, are_copied_from_field_to_field)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field", summer);
		BTextControl& other = page.field(lower, "other");
		user.click(middle(field));
		press_control(user, Qt::Key_C);
		user.click(middle(other));
		press_control(user, Qt::Key_V);
		EXPECT_EQ(page.text_of(other), summer);
	});
}


TEST(text_control_bytes, are_shown_by_a_mark)
{
	with_form([](form& page, robot& user) {
		BTextControl& bytes = page.field(upper, "field", "\x8E\x8F");
		BTextControl& marks = page.field(lower, "other", "\uFFFD\uFFFD");
		EXPECT_GT(ink(user, marks), 0);
		EXPECT_EQ(ink(user, bytes), ink(user, marks));
	});
}


TEST(text_control, shows_the_beginning_of_a_long_text)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field", ("█" + std::string(300, ' ')).c_str());
		BTextControl& other = page.field(lower, "other");
		EXPECT_GT(ink(user, field), 0);
		// Also after its end was edited.
		user.click(middle(field));
		user.key(Qt::Key_End);
		EXPECT_EQ(ink(user, field), 0);
		user.click(middle(other));
		page.locked([&] { field.SetText(("██" + std::string(300, ' ')).c_str()); });
		user.settle();
		EXPECT_GT(ink(user, field), 0);
	});
}


TEST(text_control, holds_a_text_however_long)
{
	with_form([](form& page, robot& user) {
		const std::string longest(100000, 'x');
		BTextControl& field = page.field(upper, "field", longest.c_str());
		user.click(middle(field));
		user.key(Qt::Key_End);
		user.type("y");
		EXPECT_TRUE(page.text_of(field) == longest + "y") << page.text_of(field).size();
	});
}
