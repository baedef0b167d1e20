// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Updates of views and windows that are hidden, and of those that are shown again.
#include "platform/interface/patch.h"

#include <gtest/gtest.h>


TEST(view_updates, a_hidden_view_is_not_asked_to_draw_until_it_is_shown)
{
	with_window([](test_window& window, robot& user) {
		test_view& view = add_patch(window, red);
		user.settle();
		window.locked([&] {
			view.Hide();
			view.draws.clear();
			view.Invalidate();
		});
		EXPECT_NE(user.pixel(BPoint(0, 0)), red);
		window.locked([&] {
			EXPECT_EQ(view.draws, std::vector<BRect>{});
			view.Show();
		});
		EXPECT_EQ(user.pixel(BPoint(0, 0)), red);
		window.locked([&] { EXPECT_EQ(view.draws, std::vector<BRect>{patch}); });
	});
}


TEST(view_updates, a_view_in_a_hidden_one_is_drawn_when_that_is_shown)
{
	with_window([](test_window& window, robot& user) {
		test_view& parent = add_patch(window);
		auto* child = new test_view(BRect(0, 0, 1, 1));
		window.locked([&] {
			parent.Hide();
			parent.AddChild(child);
		});
		user.settle();
		window.locked([&] {
			EXPECT_EQ(child->draws, std::vector<BRect>{});
			parent.Show();
		});
		user.settle();
		window.locked([&] { EXPECT_EQ(child->draws, std::vector<BRect>{BRect(0, 0, 1, 1)}); });
	});
}


TEST(view_updates, drawing_in_a_hidden_view_is_lost)
{
	with_window([](test_window& window, robot& user) {
		test_view& view = add_patch(window);
		user.settle();
		window.locked([&] {
			view.Hide();
			view.FillRect(patch);
			view.Show();
		});
		EXPECT_EQ(user.pixel(BPoint(0, 0)), white);
	});
}


TEST(view_updates, nothing_is_drawn_for_a_window_that_is_not_shown)
{
	with_window([](test_window& window, robot& user) {
		test_view& view = add_patch(window);
		user.settle();
		window.Hide();
		window.locked([&] {
			view.draws.clear();
			view.Invalidate();
		});
		user.settle();
		window.locked([&] { EXPECT_EQ(view.draws, std::vector<BRect>{}); });
		window.Show();
		user.settle();
		window.locked([&] { EXPECT_EQ(view.draws, std::vector<BRect>{patch}); });
	});
}
