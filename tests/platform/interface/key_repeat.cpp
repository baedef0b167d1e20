// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// A held key is one key, however the display's server tells of it.
#include "platform/interface/keyboard.h"

#include <algorithm>

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


TEST(key_repeat, is_counted_when_releases_and_presses_come_at_the_same_time)
{
	with_keyboard([](key_view& view, test_window& window, robot& user) {
		strike(
			user, {down(100), up(600), down(600), up(630), down(630), up(660), down(660), up(700)});
		EXPECT_EQ(told(window), (journal{"down", "1", "2", "3", "up"}));
		window.locked([&] {
			EXPECT_EQ(view.keys, (journal{"down 61", "down 61", "down 61", "down 61", "up 61"}));
		});
	});
}


TEST(key_repeat, is_counted_when_the_press_is_a_millisecond_late)
{
	with_keyboard([](key_view&, test_window& window, robot& user) {
		strike(user, {down(100), up(600), down(601), up(700)});
		EXPECT_EQ(told(window), (journal{"down", "1", "up"}));
	});
}


TEST(key_repeat, is_counted_when_the_display_marks_it)
{
	with_keyboard([](key_view&, test_window& window, robot& user) {
		strike(user,
			{down(100), up(600, true), down(600, true), up(630, true), down(630, true), up(700)});
		EXPECT_EQ(told(window), (journal{"down", "1", "2", "up"}));
	});
}


TEST(key_repeat, is_counted_when_only_presses_come)
{
	with_keyboard([](key_view&, test_window& window, robot& user) {
		strike(user, {down(100), down(600, true), down(630), up(700)});
		EXPECT_EQ(told(window), (journal{"down", "1", "2", "up"}));
	});
}


TEST(key_repeat, is_counted_when_marks_are_missing_here_and_there)
{
	with_keyboard([](key_view&, test_window& window, robot& user) {
		strike(user,
			{down(100), up(600), down(600, true), up(630, true), down(630), up(660), down(660),
				up(700)});
		EXPECT_EQ(told(window), (journal{"down", "1", "2", "3", "up"}));
	});
}


TEST(key_repeat, begins_anew_with_the_next_press)
{
	with_keyboard([](key_view&, test_window& window, robot& user) {
		strike(user, {down(100), up(600), down(600), up(700)});
		strike(user, {down(1000), up(1500), down(1500), up(1600)});
		EXPECT_EQ(told(window), (journal{"down", "1", "down", "1", "up", "up"}));
	});
}


TEST(key_repeat, is_none_when_the_key_is_pressed_again_quickly)
{
	with_keyboard([](key_view& view, test_window& window, robot& user) {
		strike(user, {down(100), up(110), down(115), up(120)});
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
		strike(user, {down(100), b_down, up(600), down(600), b_up, up(700)});
		window.locked([&] {
			EXPECT_EQ(std::count(view.keys.begin(), view.keys.end(), "down 61"), 2);
			EXPECT_EQ(std::count(view.keys.begin(), view.keys.end(), "down 62"), 1);
			EXPECT_EQ(std::count(view.keys.begin(), view.keys.end(), "up 61"), 1);
			EXPECT_EQ(std::count(view.keys.begin(), view.keys.end(), "up 62"), 1);
		});
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


TEST(key_repeat, holds_a_release_back_only_for_a_moment)
{
	with_keyboard([](key_view&, test_window& window, robot& user) {
		strike(user, {down(100), up(200)});
		EXPECT_EQ(told(window), (journal{"down", "up"}));
	});
}


TEST(key_repeat, ignores_a_release_without_a_press)
{
	with_keyboard([](key_view&, test_window& window, robot& user) {
		strike(user, {up(100), up(200, true)});
		EXPECT_EQ(told(window), journal());
	});
}


TEST(key_repeat, held_back_as_the_program_ends_does_no_harm)
{
	with_keyboard([](key_view&, test_window&, robot& user) {
		user.act([](QWidget& window) {
			send_key(window, down(100));
			send_key(window, up(200));
		});
	});
	// The next program has a keyboard of its own.
	with_keyboard([](key_view&, test_window& window, robot& user) {
		strike(user, {down(100), up(200)});
		EXPECT_EQ(told(window), (journal{"down", "up"}));
	});
}
