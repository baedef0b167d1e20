// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Keys as messages, and what of them reaches the view that has the keyboard.
#include "platform/interface/keyboard.h"

#include <gtest/gtest.h>

#include <AppDefs.h>
#include <InterfaceDefs.h>
#include <OS.h>
#include <QApplication>

namespace {

std::vector<int8>
bytes_in(const BMessage& message)
{
	std::vector<int8> bytes;
	int8 value;
	for (int32 i = 0; message.FindInt8("byte", i, &value) == B_OK; i++)
		bytes.push_back(value);
	return bytes;
}

}


TEST(keys, go_down_and_up_once_at_the_view_with_the_keyboard)
{
	with_keyboard([](key_view& view, test_window& window, robot& user) {
		auto& other = window.add(new key_view(BRect(100, 0, 199, 99)));
		user.type("a");
		window.locked([&] {
			EXPECT_EQ(view.keys, (journal{"down 61", "up 61"}));
			EXPECT_EQ(other.keys, journal());
		});
	});
}


TEST(keys, come_as_messages_with_all_their_fields)
{
	with_keyboard([](key_view&, test_window& window, robot& user) {
		bigtime_t before = system_time();
		strike(user, {{true, Qt::Key_A, "A", Qt::ShiftModifier, 0, 38}});
		BMessage down = window.last_dispatched(B_KEY_DOWN);
		EXPECT_STREQ(down.FindString("bytes"), "A");
		EXPECT_EQ(bytes_in(down), std::vector<int8>{0x41});
		EXPECT_EQ(down.FindInt32("raw_char"), 'a');
		EXPECT_EQ(down.FindInt32("key"), 38);
		EXPECT_EQ(down.FindInt32("modifiers") & 0xFF, B_SHIFT_KEY);
		EXPECT_FALSE(down.HasInt32("be:key_repeat"));
		int64 when = 0;
		EXPECT_EQ(down.FindInt64("when", &when), B_OK);
		EXPECT_GE(when, before);
		EXPECT_LE(when, system_time());
		strike(user, {{false, Qt::Key_A, "A", {}, 100, 38}});
		BMessage up = window.last_dispatched(B_KEY_UP);
		EXPECT_STREQ(up.FindString("bytes"), "A");
		EXPECT_EQ(up.FindInt32("modifiers"), 0);
		EXPECT_EQ(up.FindInt32("key"), 38);
	});
}


TEST(keys, are_utf8_with_one_byte_field_for_each_byte)
{
	with_keyboard([](key_view& view, test_window& window, robot& user) {
		user.key(Qt::Key_Eacute, "é");
		BMessage down = window.last_dispatched(B_KEY_DOWN);
		EXPECT_STREQ(down.FindString("bytes"), "\xC3\xA9");
		EXPECT_EQ(bytes_in(down), (std::vector<int8>{(int8)0xC3, (int8)0xA9}));
		user.key(Qt::Key_unknown, "あ");
		window.locked([&] {
			EXPECT_EQ(
				view.keys, (journal{"down c3 a9", "up c3 a9", "down e3 81 82", "up e3 81 82"}));
		});
	});
}


TEST(keys, that_have_no_letter_have_a_character_of_their_own)
{
	const struct {
		int key;
		const char* text;
		const char* bytes;
	} cases[] = {{Qt::Key_Backspace, "\b", "08"}, {Qt::Key_Return, "\r", "0a"},
		{Qt::Key_Enter, "\r", "0a"}, {Qt::Key_Escape, "\x1b", "1b"}, {Qt::Key_Space, " ", "20"},
		{Qt::Key_Delete, "\x7f", "7f"}, {Qt::Key_Insert, "", "05"}, {Qt::Key_Home, "", "01"},
		{Qt::Key_End, "", "04"}, {Qt::Key_PageUp, "", "0b"}, {Qt::Key_PageDown, "", "0c"},
		{Qt::Key_F1, "", "10"}, {Qt::Key_F12, "", "10"}, {Qt::Key_Left, "", "1c"},
		{Qt::Key_Right, "", "1d"}, {Qt::Key_Up, "", "1e"}, {Qt::Key_Down, "", "1f"},
		{Qt::Key_Tab, "\t", "09"}, {Qt::Key_Backtab, "", "09"}, {Qt::Key_At, "@", "40"}};
	with_keyboard([&](key_view& view, test_window& window, robot& user) {
		for (const auto& each : cases) {
			window.locked([&] { view.keys.clear(); });
			user.key(each.key, each.text);
			window.locked([&] {
				std::string bytes = each.bytes;
				EXPECT_EQ(view.keys, (journal{"down " + bytes, "up " + bytes})) << each.key;
			});
		}
	});
}


TEST(keys, with_control_have_its_character_and_the_plain_one_raw)
{
	with_keyboard([](key_view& view, test_window& window, robot& user) {
		user.key(Qt::Key_Z, "\x1a", B_CONTROL_KEY);
		window.locked([&] { EXPECT_EQ(view.keys, (journal{"down 1a", "up 1a"})); });
		BMessage down = window.last_dispatched(B_KEY_DOWN);
		EXPECT_EQ(down.FindInt32("raw_char"), 'z');
		EXPECT_EQ(down.FindInt32("modifiers") & 0xFF, B_CONTROL_KEY);
	});
}


TEST(keys, of_digits_and_signs_with_control_have_their_plain_character)
{
	// As the X server has them: it makes control characters of these keys too.
	const struct {
		Qt::Key key;
		const char* text;
		const char* bytes;
	} cases[] = {{Qt::Key_3, "\x1b", "33"}, {Qt::Key_4, "\x1c", "34"}, {Qt::Key_5, "\x1d", "35"},
		{Qt::Key_6, "\x1e", "36"}, {Qt::Key_7, "\x1f", "37"}, {Qt::Key_8, "\x7f", "38"},
		{Qt::Key_9, "9", "39"}, {Qt::Key_Backslash, "\x1c", "5c"},
		{Qt::Key_BracketRight, "\x1d", "5d"}, {Qt::Key_AsciiCircum, "\x1e", "5e"},
		{Qt::Key_Slash, "\x1f", "2f"}, {Qt::Key_Underscore, "\x1f", "5f"}};
	with_keyboard([&](key_view& view, test_window& window, robot& user) {
		for (const auto& each : cases) {
			for (auto pad : {Qt::NoModifier, Qt::KeypadModifier}) {
				window.locked([&] { view.keys.clear(); });
				strike(user, {{true, each.key, each.text, Qt::ControlModifier | pad, 0, 20}});
				strike(user, {{false, each.key, each.text, Qt::ControlModifier | pad, 100, 20}});
				const std::string bytes = each.bytes;
				const journal heard{"down " + bytes, "up " + bytes};
				window.locked([&] { EXPECT_EQ(view.keys, heard); });
			}
		}
	});
}


TEST(keys, of_the_keypad_are_digits_or_arrows_as_num_lock_has_it)
{
	with_keyboard([](key_view& view, test_window& window, robot& user) {
		strike(user, {{true, Qt::Key_4, "4", Qt::KeypadModifier, 0, 83}});
		strike(user, {{false, Qt::Key_4, "4", Qt::KeypadModifier, 100, 83}});
		strike(user, {{true, Qt::Key_Left, "", Qt::KeypadModifier, 200, 83}});
		window.locked([&] { EXPECT_EQ(view.keys, (journal{"down 34", "up 34", "down 1c"})); });
	});
}


TEST(keys, that_only_modify_are_unmapped_and_reach_no_hook)
{
	with_keyboard([](key_view& view, test_window& window, robot& user) {
		for (int key : {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt, Qt::Key_Meta, Qt::Key_AltGr})
			user.key(key);
		EXPECT_EQ(window.dispatched(B_UNMAPPED_KEY_DOWN).size(), 5u);
		EXPECT_EQ(window.dispatched(B_UNMAPPED_KEY_UP).size(), 5u);
		EXPECT_EQ(window.dispatched(B_KEY_DOWN).size(), 0u);
		EXPECT_EQ(window.dispatched(B_KEY_UP).size(), 0u);
		window.locked([&] { EXPECT_EQ(view.keys, journal()); });
		EXPECT_FALSE(window.last_dispatched(B_UNMAPPED_KEY_DOWN).HasString("bytes"));
	});
}


TEST(keys, without_a_view_that_has_the_keyboard_come_to_the_window_alone)
{
	with_keyboard([](key_view& view, test_window& window, robot& user) {
		window.locked([&] { view.MakeFocus(false); });
		user.type("a");
		EXPECT_EQ(window.dispatched(B_KEY_DOWN).size(), 1u);
		window.locked([&] { EXPECT_EQ(view.keys, journal()); });
	});
}


TEST(keys, follow_the_focus)
{
	with_keyboard([](key_view& view, test_window& window, robot& user) {
		auto& other = window.add(new key_view(BRect(100, 0, 199, 99)));
		user.type("a");
		window.locked([&] { other.MakeFocus(); });
		user.type("b");
		window.locked([&] {
			EXPECT_EQ(view.keys, (journal{"down 61", "up 61"}));
			EXPECT_EQ(other.keys, (journal{"down 62", "up 62"}));
		});
	});
}


TEST(keys, reach_a_view_that_is_hidden)
{
	with_keyboard([](key_view& view, test_window& window, robot& user) {
		window.locked([&] { view.Hide(); });
		user.type("a");
		window.locked([&] { EXPECT_EQ(view.keys, (journal{"down 61", "up 61"})); });
	});
}


TEST(keys, sent_as_messages_call_the_hooks_too)
{
	with_keyboard([](key_view& view, test_window& window, robot& user) {
		BMessage down(B_KEY_DOWN);
		down.AddString("bytes", "xy");
		window.PostMessage(&down, &view);
		window.PostMessage(B_KEY_UP, &view);
		user.settle();
		window.locked([&] { EXPECT_EQ(view.keys, journal{"down 78 79"}) << "no bytes, no key"; });
	});
}
