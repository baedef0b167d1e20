// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// A held key is one key, as far as the display's marks tell.
#include "platform/interface/form.h"
#include "platform/interface/keyboard.h"

#include <gtest/gtest.h>

#include <AppDefs.h>
#include <QWidget>

namespace {

// The A key; 38 is its number.
stroke
down(unsigned long time, bool repeat = false)
{
	return {true, Qt::Key_A, "a", {}, time, 38, repeat};
}


stroke
up(unsigned long time, bool repeat = false)
{
	return {false, Qt::Key_A, "a", {}, time, 38, repeat};
}


// Of all key messages so far "down", "up", or the number of the repeat.
journal
told(test_window& window)
{
	journal all;
	for (const BMessage& message : window.dispatched(B_KEY_DOWN)) {
		bool repeated = message.HasInt32("be:key_repeat");
		all.push_back(repeated ? std::to_string(message.FindInt32("be:key_repeat")) : "down");
	}
	for (size_t i = 0; i < window.dispatched(B_KEY_UP).size(); i++)
		all.push_back("up");
	return all;
}

}


TEST(key_repeat, is_counted)
{
	with_keyboard([](key_view& view, test_window& window, robot& user) {
		strike(user,
			{down(100), up(600, true), down(600, true), up(630, true), down(630, true), up(700)});
		EXPECT_EQ(told(window), (journal{"down", "1", "2", "up"}));
		const journal keys{"down 61", "down 61", "down 61", "up 61"};
		window.locked([&] { EXPECT_EQ(view.keys, keys); });
	});
}


TEST(key_repeat, is_counted_when_only_presses_come)
{
	with_keyboard([](key_view&, test_window& window, robot& user) {
		strike(user, {down(100), down(600, true), down(630, true), up(700)});
		EXPECT_EQ(told(window), (journal{"down", "1", "2", "up"}));
	});
}


TEST(key_repeat, begins_anew_with_the_next_press)
{
	with_keyboard([](key_view&, test_window& window, robot& user) {
		strike(user, {down(100), down(600, true), up(700)});
		strike(user, {down(1000), down(1500, true), up(1600)});
		EXPECT_EQ(told(window), (journal{"down", "1", "down", "1", "up", "up"}));
	});
}


TEST(key_repeat, is_none_when_the_key_is_pressed_again_quickly)
{
	with_keyboard([](key_view& view, test_window& window, robot& user) {
		strike(user, {down(100), up(100), down(100), up(100)});
		EXPECT_EQ(told(window), (journal{"down", "down", "up", "up"}));
		const journal keys{"down 61", "up 61", "down 61", "up 61"};
		window.locked([&] { EXPECT_EQ(view.keys, keys); });
	});
}


TEST(key_repeat, is_told_of_each_key_alone)
{
	with_keyboard([](key_view& view, test_window& window, robot& user) {
		stroke b_down = {true, Qt::Key_B, "b", {}, 600, 56};
		stroke b_up = {false, Qt::Key_B, "b", {}, 650, 56};
		strike(user, {down(100), b_down, down(600, true), b_up, up(700)});
		const journal keys{"down 61", "down 62", "down 61", "up 62", "up 61"};
		window.locked([&] { EXPECT_EQ(view.keys, keys); });
	});
}


TEST(key_repeat, lets_no_key_overtake_the_release_of_another)
{
	with_keyboard([](key_view& view, test_window& window, robot& user) {
		stroke b_down = {true, Qt::Key_B, "b", {}, 104, 56};
		stroke b_up = {false, Qt::Key_B, "b", {}, 108, 56};
		strike(user, {down(100), up(104), b_down, b_up, down(108), up(112)});
		const journal keys{"down 61", "up 61", "down 62", "up 62", "down 61", "up 61"};
		window.locked([&] { EXPECT_EQ(view.keys, keys); });
	});
}


TEST(key_repeat, lets_no_pointer_overtake_the_release_of_a_key)
{
	with_keyboard([](key_view& view, test_window& window, robot& user) {
		user.act([](QWidget& widget) {
			send_key(widget, down(100));
			send_key(widget, up(104));
			click_into(widget, BPoint(10, 10));
		});
		user.settle();
		window.locked([&] {
			EXPECT_EQ(view.received,
				(std::vector<uint32>{B_KEY_DOWN, B_KEY_UP, B_MOUSE_DOWN, B_MOUSE_UP}));
		});
	});
}


TEST(key_repeat, is_none_of_a_key_whose_release_was_missed)
{
	with_keyboard([](key_view& view, test_window& window, robot& user) {
		strike(user, {down(100), down(600), up(700)});
		const journal keys{"down 61", "up 61", "down 61", "up 61"};
		window.locked([&] { EXPECT_EQ(view.keys, keys); });
	});
}


TEST(key_repeat, tells_keys_of_one_number_unknown_apart_by_their_meaning)
{
	with_keyboard([](key_view&, test_window& window, robot& user) {
		stroke b_down = {true, Qt::Key_B, "b", {}, 100, 0};
		stroke a_down = {true, Qt::Key_A, "a", {}, 100, 0};
		strike(user, {a_down, b_down});
		EXPECT_EQ(told(window), (journal{"down", "down"}));
	});
}


TEST(key_repeat, ignores_a_release_without_a_press)
{
	with_keyboard([](key_view&, test_window& window, robot& user) {
		strike(user, {up(100), up(200, true)});
		EXPECT_EQ(told(window), journal());
	});
}


TEST(key_repeat, held_as_the_program_ends_does_no_harm)
{
	with_keyboard([](key_view&, test_window&, robot& user) {
		user.act([](QWidget& window) { send_key(window, down(100)); });
	});
	// The next program has a window of its own.
	with_keyboard([](key_view&, test_window& window, robot& user) {
		strike(user, {down(100), up(200)});
		EXPECT_EQ(told(window), (journal{"down", "up"}));
	});
}
