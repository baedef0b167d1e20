// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// What a window is asked and told by those who do not hold its lock.
#include "platform/interface/stage.h"

#include <gtest/gtest.h>
#include <latch>
#include <thread>

namespace {

// Runs the work in a thread of its own while the window is held, and goes on meanwhile.
void
while_held(
	test_window& window, const std::function<void()>& work, const std::function<void()>& held)
{
	std::thread other;
	window.locked([&] {
		std::latch begun(1);
		other = std::thread([&] {
			begun.count_down();
			work();
		});
		begun.wait();
		// Long enough for whoever does not wait.
		snooze(20000);
		held();
	});
	other.join();
}

}


TEST(window_asked, for_its_views_waits_for_the_lock)
{
	with_window([](test_window& window, robot&) {
		int32 count = 0;
		const BView* first = nullptr;
		const BView* found = nullptr;
		auto* view = new test_view(BRect(0, 0, 9, 9), "view");
		auto add = [&] { window.AddChild(view); };
		auto replace = [&] {
			window.RemoveChild(view);
			delete view;
			view = new test_view(BRect(0, 0, 9, 9), "other");
			window.AddChild(view);
		};
		auto ask_count = [&] { count = window.CountChildren(); };
		auto ask_first = [&] { first = window.ChildAt(0); };
		auto ask_name = [&] { found = window.FindView("other"); };
		while_held(window, ask_count, add);
		EXPECT_EQ(count, 1);
		while_held(window, ask_first, replace);
		EXPECT_EQ(first, view);
		while_held(window, ask_name, replace);
		EXPECT_EQ(found, view);
	});
}


TEST(window_asked, after_it_has_quit_has_no_views)
{
	with_window([](test_window& window, robot& user) {
		window.AddChild(new test_view(BRect(0, 0, 9, 9), "view"));
		user.press_close_box();
		EXPECT_EQ(window.CountChildren(), 0);
		EXPECT_EQ(window.ChildAt(0), nullptr);
		EXPECT_EQ(window.FindView("view"), nullptr);
	});
}


TEST(window_asked, to_zoom_waits_for_the_lock)
{
	with_window([](test_window& window, robot&) {
		auto zoom = [&] { window.Zoom(); };
		auto not_yet = [&] { EXPECT_EQ(window.zoomed, std::vector<BRect>{}); };
		while_held(window, zoom, not_yet);
		EXPECT_EQ(window.zoomed.size(), 1U);
	});
}


TEST(window_asked, to_resize_often_tells_once)
{
	with_window([](test_window& window, robot& user) {
		window.locked([&] {
			for (int i = 0; i < 10; i++)
				window.ResizeBy(3, 2);
		});
		user.settle();
		window.locked([&] { EXPECT_EQ(window.resized, std::vector<BPoint>{BPoint(229, 119)}); });
		window.locked([&] { window.ResizeBy(1, 1); });
		user.settle();
		window.locked([&] {
			EXPECT_EQ(window.resized, (std::vector<BPoint>{BPoint(229, 119), BPoint(230, 120)}));
		});
	});
}
