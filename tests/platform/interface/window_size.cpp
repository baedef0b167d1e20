// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The sizes of windows: who may set them, and who is told.
#include "platform/interface/stage.h"

#include <cmath>
#include <gtest/gtest.h>
#include <QWidget>

namespace {

std::vector<float>
limits_of(test_window& window)
{
	std::vector<float> found(4, -1);
	window.GetSizeLimits(&found[0], &found[1], &found[2], &found[3]);
	return found;
}

}


TEST(window_size, set_by_the_program_is_seen_by_the_user)
{
	with_window([](test_window& window, robot& user) {
		window.ResizeTo(149, 79);
		EXPECT_EQ(window.Frame(), BRect(40, 30, 189, 109));
		EXPECT_EQ(window.Bounds(), BRect(0, 0, 149, 79));
		EXPECT_EQ(user.window_size(), BPoint(150, 80));
		window.ResizeBy(10, -20);
		EXPECT_EQ(window.Bounds(), BRect(0, 0, 159, 59));
		EXPECT_EQ(user.window_size(), BPoint(160, 60));
	});
}


TEST(window_size, is_rounded_to_whole_pixels)
{
	with_window([](test_window& window, robot&) {
		window.ResizeTo(149.4F, 78.6F);
		EXPECT_EQ(window.Bounds(), BRect(0, 0, 149, 79));
	});
}


TEST(window_size, that_is_no_number_is_ignored)
{
	with_window([](test_window& window, robot&) {
		window.ResizeTo(NAN, 50);
		window.ResizeTo(50, INFINITY);
		window.MoveTo(NAN, 50);
		EXPECT_EQ(window.Frame(), BRect(40, 30, 239, 129));
	});
}


TEST(window_size, children_have_followed_when_the_call_returns)
{
	with_window([](test_window& window, robot&) {
		auto& view = window.add(new test_view(BRect(10, 10, 189, 89), "view", B_FOLLOW_ALL));
		window.locked([&] {
			window.ResizeTo(299, 149);
			EXPECT_EQ(view.Frame(), BRect(10, 10, 289, 139));
		});
	});
}


TEST(window_size, the_hook_is_told_later)
{
	with_window([](test_window& window, robot& user) {
		window.locked([&] {
			window.ResizeTo(149, 79);
			EXPECT_EQ(window.resized, std::vector<BPoint>{});
		});
		user.settle();
		window.locked([&] { EXPECT_EQ(window.resized, std::vector<BPoint>{BPoint(149, 79)}); });
	});
}


TEST(window_size, the_hook_hears_of_the_last_of_several_at_least)
{
	with_window([](test_window& window, robot& user) {
		window.locked([&] {
			window.ResizeTo(149, 79);
			window.ResizeTo(99, 69);
			window.ResizeTo(119, 59);
		});
		user.settle();
		window.locked([&] {
			ASSERT_FALSE(window.resized.empty());
			EXPECT_EQ(window.resized.back(), BPoint(119, 59));
			EXPECT_LE(window.resized.size(), 3U);
		});
		EXPECT_EQ(user.window_size(), BPoint(120, 60));
	});
}


TEST(window_size, the_same_again_tells_nobody)
{
	with_window([](test_window& window, robot& user) {
		window.ResizeTo(199, 99);
		user.settle();
		window.locked([&] { EXPECT_EQ(window.resized, std::vector<BPoint>{}); });
	});
}


TEST(window_size, set_by_the_user_reaches_window_and_children)
{
	with_window([](test_window& window, robot& user) {
		auto& view = window.add(new test_view(BRect(10, 10, 189, 89), "view", B_FOLLOW_ALL));
		user.resize_window(260, 130);
		window.locked([&] {
			EXPECT_EQ(window.Bounds(), BRect(0, 0, 259, 129));
			EXPECT_EQ(window.resized, std::vector<BPoint>{BPoint(259, 129)});
			EXPECT_EQ(view.Frame(), BRect(10, 10, 249, 119));
		});
	});
}


TEST(window_size, what_the_user_uncovers_is_drawn)
{
	with_window([](test_window& window, robot& user) {
		auto* view = new test_view(BRect(0, 0, 199, 99), "view", B_FOLLOW_ALL);
		view->SetViewColor(blue);
		window.AddChild(view);
		user.resize_window(260, 130);
		EXPECT_EQ(user.pixel(BPoint(259, 129)), blue);
		EXPECT_EQ(user.count(BRect(0, 0, 259, 129), blue), 33800);
	});
}


TEST(window_size, the_programs_wins_over_what_the_user_did_before)
{
	with_window([](test_window& window, robot& user) {
		window.locked([&] {
			user.act([](QWidget& widget) { widget.resize(260, 130); });
			window.ResizeTo(149, 79);
		});
		user.settle();
		EXPECT_EQ(window.Bounds(), BRect(0, 0, 149, 79));
		EXPECT_EQ(user.window_size(), BPoint(150, 80));
	});
}


TEST(window_size, has_no_limits_worth_the_name_at_first)
{
	with_window([](test_window& window, robot&) {
		EXPECT_EQ(limits_of(window), (std::vector<float>{0, 32767, 0, 32767}));
	});
}


TEST(window_size, the_program_is_held_within_the_limits)
{
	with_window([](test_window& window, robot& user) {
		window.SetSizeLimits(100, 300, 50, 150);
		EXPECT_EQ(limits_of(window), (std::vector<float>{100, 300, 50, 150}));
		window.ResizeTo(20, 500);
		EXPECT_EQ(window.Bounds(), BRect(0, 0, 100, 150));
		window.ResizeTo(500, 20);
		EXPECT_EQ(window.Bounds(), BRect(0, 0, 300, 50));
		EXPECT_EQ(user.window_size(), BPoint(301, 51));
	});
}


TEST(window_size, the_user_is_held_within_the_limits)
{
	with_window([](test_window& window, robot& user) {
		window.SetSizeLimits(100, 300, 50, 150);
		user.resize_window(20, 500);
		EXPECT_EQ(user.window_size(), BPoint(101, 151));
		EXPECT_EQ(window.Bounds(), BRect(0, 0, 100, 150));
	});
}


TEST(window_size, a_window_outside_new_limits_is_brought_inside)
{
	with_window([](test_window& window, robot& user) {
		auto& view = window.add(new test_view(BRect(0, 0, 199, 99), "view", B_FOLLOW_ALL));
		window.SetSizeLimits(250, 300, 50, 80);
		EXPECT_EQ(window.Bounds(), BRect(0, 0, 250, 80));
		EXPECT_EQ(view.Frame(), BRect(0, 0, 250, 80));
		EXPECT_EQ(user.window_size(), BPoint(251, 81));
		window.locked([&] { EXPECT_EQ(window.resized.back(), BPoint(250, 80)); });
	});
}


TEST(window_size, a_window_inside_new_limits_stays)
{
	with_window([](test_window& window, robot& user) {
		window.SetSizeLimits(199, 199, 50, 99);
		user.settle();
		EXPECT_EQ(window.Bounds(), BRect(0, 0, 199, 99));
		window.locked([&] { EXPECT_EQ(window.resized, std::vector<BPoint>{}); });
	});
}


TEST(window_size, limits_the_wrong_way_round_are_ignored)
{
	with_window([](test_window& window, robot&) {
		window.SetSizeLimits(100, 300, 50, 150);
		window.SetSizeLimits(200, 100, 0, 9);
		window.SetSizeLimits(0, 9, 200, 100);
		window.SetSizeLimits(NAN, 9, 0, 9);
		EXPECT_EQ(limits_of(window), (std::vector<float>{100, 300, 50, 150}));
		EXPECT_EQ(window.Bounds(), BRect(0, 0, 199, 99));
	});
}


TEST(window_size, limits_of_one_size_fix_it)
{
	with_window([](test_window& window, robot& user) {
		window.SetSizeLimits(120, 120, 60, 60);
		user.resize_window(300, 300);
		EXPECT_EQ(user.window_size(), BPoint(121, 61));
		EXPECT_EQ(window.Bounds(), BRect(0, 0, 120, 60));
	});
}
