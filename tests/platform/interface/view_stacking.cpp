// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Views over views: which one is seen, and which one the pointer meets.
#include "platform/interface/stage.h"

#include <gtest/gtest.h>

namespace {

test_view*
coloured(BRect frame, rgb_color colour, const char* name = "view")
{
	auto* view = new test_view(frame, name);
	view->SetViewColor(colour);
	return view;
}

}


TEST(view_stacking, the_last_child_is_in_front)
{
	with_window([](test_window& window, robot& user) {
		window.add(coloured(BRect(0, 0, 3, 1), red));
		window.add(coloured(BRect(2, 0, 5, 1), blue));
		EXPECT_EQ(picture(user, BRect(0, 0, 5, 1)),
			"rrbbbb\n"
			"rrbbbb\n");
	});
}


TEST(view_stacking, a_view_added_before_another_lies_behind_it)
{
	with_window([](test_window& window, robot& user) {
		BView& front = window.add(coloured(BRect(0, 0, 3, 1), red));
		user.settle();
		window.AddChild(coloured(BRect(2, 0, 5, 1), blue), &front);
		EXPECT_EQ(picture(user, BRect(0, 0, 5, 1)),
			"rrrrbb\n"
			"rrrrbb\n");
	});
}


TEST(view_stacking, the_order_before_attaching_counts_too)
{
	with_window([](test_window& window, robot& user) {
		test_view* parent = coloured(BRect(0, 0, 5, 1), white);
		test_view* front = coloured(BRect(0, 0, 3, 1), red);
		parent->AddChild(front);
		parent->AddChild(coloured(BRect(2, 0, 5, 1), blue), front);
		window.AddChild(parent);
		EXPECT_EQ(picture(user, BRect(0, 0, 5, 1)),
			"rrrrbb\n"
			"rrrrbb\n");
	});
}


TEST(view_stacking, drawing_does_not_reach_over_what_is_in_front)
{
	with_window([](test_window& window, robot& user) {
		auto& behind = window.add(coloured(BRect(0, 0, 5, 2), white));
		window.locked([&] { behind.AddChild(coloured(BRect(1, 1, 2, 1), green)); });
		window.add(coloured(BRect(4, 0, 5, 1), red));
		user.settle();
		window.locked([&] { behind.FillRect(behind.Bounds()); });
		EXPECT_EQ(picture(user, BRect(0, 0, 5, 2)),
			"####rr\n"
			"#gg#rr\n"
			"######\n");
	});
}


TEST(view_stacking, a_child_is_seen_only_within_its_parent)
{
	with_window([](test_window& window, robot& user) {
		window.add(coloured(BRect(0, 0, 99, 99), white));
		test_view* parent = coloured(BRect(1, 0, 3, 1), red);
		parent->AddChild(coloured(BRect(2, 1, 9, 9), blue));
		window.AddChild(parent);
		EXPECT_EQ(picture(user, BRect(0, 0, 5, 2)),
			".rrr..\n"
			".rrb..\n"
			"......\n");
	});
}


TEST(view_stacking, what_lay_behind_a_removed_view_is_as_it_was_drawn)
{
	with_window([](test_window& window, robot& user) {
		auto& behind = window.add(coloured(BRect(0, 0, 5, 0), white));
		user.settle();
		auto* front = coloured(BRect(1, 0, 3, 0), red);
		window.locked([&] {
			behind.FillRect(BRect(2, 0, 4, 0));
			behind.AddChild(front);
		});
		EXPECT_EQ(picture(user, BRect(0, 0, 5, 0)), ".rrr#.\n");
		window.locked([&] {
			front->RemoveSelf();
			delete front;
		});
		EXPECT_EQ(picture(user, BRect(0, 0, 5, 0)), "..###.\n");
	});
}


TEST(view_stacking, a_view_that_comes_back_is_in_front_and_drawn_anew)
{
	with_window([](test_window& window, robot& user) {
		auto& first = window.add(coloured(BRect(0, 0, 3, 0), red));
		window.add(coloured(BRect(2, 0, 5, 0), blue));
		user.settle();
		window.locked([&] {
			first.RemoveSelf();
			first.draws.clear();
		});
		window.AddChild(&first);
		EXPECT_EQ(picture(user, BRect(0, 0, 5, 0)), "rrrrbb\n");
		window.locked([&] { EXPECT_EQ(first.draws, std::vector<BRect>{BRect(0, 0, 3, 0)}); });
	});
}


TEST(view_stacking, children_appear_with_their_parent)
{
	with_window([](test_window& window, robot& user) {
		auto& parent = window.add(coloured(BRect(0, 0, 5, 0), white));
		window.locked([&] {
			parent.AddChild(coloured(BRect(1, 0, 2, 0), red));
			parent.Hide();
		});
		user.settle();
		window.locked([&] { parent.Show(); });
		EXPECT_EQ(picture(user, BRect(0, 0, 5, 0)), ".rr...\n");
	});
}


TEST(view_stacking, a_press_meets_the_frontmost_view)
{
	with_window([](test_window& window, robot& user) {
		auto& behind = window.add(coloured(BRect(0, 0, 49, 49), red));
		auto& front = window.add(coloured(BRect(20, 20, 69, 69), blue));
		user.press(BPoint(30, 30));
		window.locked([&] {
			EXPECT_EQ(front.pointer, journal{"down 10 10"});
			EXPECT_EQ(behind.pointer, journal{});
		});
	});
}


TEST(view_stacking, a_press_meets_the_innermost_view)
{
	with_window([](test_window& window, robot& user) {
		auto& parent = window.add(coloured(BRect(10, 10, 99, 89), red));
		auto* child = coloured(BRect(20, 20, 59, 59), green);
		auto* grandchild = coloured(BRect(5, 6, 9, 9), blue);
		window.locked([&] {
			child->AddChild(grandchild);
			parent.AddChild(child);
		});
		user.press(BPoint(36, 38));
		window.locked([&] {
			EXPECT_EQ(grandchild->pointer, journal{"down 1 2"});
			EXPECT_EQ(child->pointer, journal{});
			EXPECT_EQ(parent.pointer, journal{});
		});
	});
}


TEST(view_stacking, a_press_goes_through_a_hidden_view)
{
	with_window([](test_window& window, robot& user) {
		auto& behind = window.add(coloured(BRect(0, 0, 49, 49), red));
		auto& front = window.add(coloured(BRect(0, 0, 49, 49), blue));
		window.locked([&] { front.Hide(); });
		user.press(BPoint(30, 31));
		window.locked([&] {
			EXPECT_EQ(front.pointer, journal{});
			EXPECT_EQ(behind.pointer, journal{"down 30 31"});
		});
	});
}


TEST(view_stacking, a_press_where_a_child_lies_outside_its_parent_is_not_the_childs)
{
	with_window([](test_window& window, robot& user) {
		auto& background = window.add(coloured(BRect(0, 0, 199, 99), white));
		auto* parent = coloured(BRect(0, 0, 49, 49), red);
		auto* child = coloured(BRect(40, 40, 89, 89), blue);
		parent->AddChild(child);
		window.AddChild(parent);
		user.press(BPoint(60, 60));
		window.locked([&] {
			EXPECT_EQ(child->pointer, journal{});
			EXPECT_EQ(background.pointer, journal{"down 60 60"});
		});
	});
}
