// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Frames, resizing modes, coordinates, and what is hidden.
#include "platform/interface/stage.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

struct resizing_case {
	const char* name;
	uint32 mode;
	// Where a child at (10, 20, 29, 39) is after its parent grew by 10 across and 20 down.
	BRect grown;
	// The same after it shrank by 4 and 6.
	BRect shrunk;
};

class resizing_mode : public testing::TestWithParam<resizing_case> {};

BRect
child_frame_after(uint32 mode, float dx, float dy)
{
	BView parent(BRect(0, 0, 99, 99), "parent", B_FOLLOW_NONE, 0);
	auto* child = new BView(BRect(10, 20, 29, 39), "child", mode, 0);
	parent.AddChild(child);
	parent.ResizeBy(dx, dy);
	return child->Frame();
}

}


TEST(view_geometry, bounds_start_at_the_origin_and_have_the_frames_size)
{
	BView view(BRect(10, 20, 39, 59), "view", B_FOLLOW_NONE, 0);
	EXPECT_EQ(view.Frame(), BRect(10, 20, 39, 59));
	EXPECT_EQ(view.Bounds(), BRect(0, 0, 29, 39));
}


TEST(view_geometry, a_frame_is_rounded_to_whole_pixels)
{
	BView view(BRect(0.4F, 1.6F, 9.5F, 20.2F), "view", B_FOLLOW_NONE, 0);
	EXPECT_EQ(view.Frame(), BRect(0, 2, 10, 20));
}


TEST(view_geometry, moving_keeps_the_size)
{
	BView view(BRect(10, 20, 39, 59), "view", B_FOLLOW_NONE, 0);
	view.MoveTo(1, 2);
	EXPECT_EQ(view.Frame(), BRect(1, 2, 30, 41));
	view.MoveBy(-3, 4);
	EXPECT_EQ(view.Frame(), BRect(-2, 6, 27, 45));
	view.MoveTo(BPoint(7.6F, 8.2F));
	EXPECT_EQ(view.Frame(), BRect(8, 8, 37, 47));
}


TEST(view_geometry, resizing_keeps_the_left_top)
{
	BView view(BRect(10, 20, 39, 59), "view", B_FOLLOW_NONE, 0);
	view.ResizeTo(4, 5);
	EXPECT_EQ(view.Frame(), BRect(10, 20, 14, 25));
	view.ResizeBy(2, -1);
	EXPECT_EQ(view.Frame(), BRect(10, 20, 16, 24));
}


TEST(view_geometry, places_that_are_no_numbers_are_ignored)
{
	BView view(BRect(10, 20, 39, 59), "view", B_FOLLOW_NONE, 0);
	view.MoveTo(NAN, 0);
	view.MoveBy(0, INFINITY);
	view.ResizeTo(INFINITY, 5);
	view.ResizeBy(0, NAN);
	view.ScrollTo(NAN, 0);
	view.ScrollBy(0, -INFINITY);
	EXPECT_EQ(view.Frame(), BRect(10, 20, 39, 59));
	EXPECT_EQ(view.Bounds(), BRect(0, 0, 29, 39));
}


TEST(view_geometry, scrolling_moves_the_bounds_and_not_the_frame)
{
	BView view(BRect(10, 20, 39, 59), "view", B_FOLLOW_NONE, 0);
	view.ScrollTo(5.4F, -3);
	EXPECT_EQ(view.Bounds(), BRect(5, -3, 34, 36));
	view.ScrollBy(1, 2);
	EXPECT_EQ(view.Bounds(), BRect(6, -1, 35, 38));
	EXPECT_EQ(view.Frame(), BRect(10, 20, 39, 59));
}


TEST(view_geometry, coordinates_convert_to_the_parents_with_the_scroll_position)
{
	BView view(BRect(10, 20, 39, 59), "view", B_FOLLOW_NONE, 0);
	view.ScrollTo(3, 4);
	EXPECT_EQ(view.ConvertToParent(BPoint(5, 6)), BPoint(12, 22));
	EXPECT_EQ(view.ConvertFromParent(BPoint(12, 22)), BPoint(5, 6));
}


TEST(view_geometry, coordinates_convert_to_the_screens)
{
	with_window([](test_window& window, robot&) {
		auto& outer = window.add(new BView(BRect(10, 20, 99, 89), "outer", B_FOLLOW_NONE, 0));
		window.locked([&] {
			auto* inner = new BView(BRect(1, 2, 9, 9), "inner", B_FOLLOW_NONE, 0);
			outer.AddChild(inner);
			outer.ScrollTo(0, 7);
			EXPECT_EQ(inner->ConvertToScreen(BPoint(0, 0)), BPoint(51, 45));
			EXPECT_EQ(inner->ConvertFromScreen(BPoint(51, 45)), BPoint(0, 0));
		});
	});
}


TEST_P(resizing_mode, moves_the_edges_that_follow_when_the_parent_grows)
{
	EXPECT_EQ(child_frame_after(GetParam().mode, 10, 20), GetParam().grown);
}


TEST_P(resizing_mode, moves_the_edges_that_follow_when_the_parent_shrinks)
{
	EXPECT_EQ(child_frame_after(GetParam().mode, -4, -6), GetParam().shrunk);
}


INSTANTIATE_TEST_SUITE_P(view_geometry, resizing_mode,
	testing::Values( //
		resizing_case{"none", 0x0000, BRect(10, 20, 29, 39), BRect(10, 20, 29, 39)},
		resizing_case{"all_sides", 0x1234, BRect(10, 20, 39, 59), BRect(10, 20, 25, 33)},
		resizing_case{"left", 0x0202, BRect(10, 20, 29, 39), BRect(10, 20, 29, 39)},
		resizing_case{"right", 0x0404, BRect(20, 20, 39, 39), BRect(6, 20, 25, 39)},
		resizing_case{"left_right", 0x0204, BRect(10, 20, 39, 39), BRect(10, 20, 25, 39)},
		resizing_case{"h_center", 0x0505, BRect(15, 20, 34, 39), BRect(8, 20, 27, 39)},
		resizing_case{"top", 0x1010, BRect(10, 20, 29, 39), BRect(10, 20, 29, 39)},
		resizing_case{"bottom", 0x3030, BRect(10, 40, 29, 59), BRect(10, 14, 29, 33)},
		resizing_case{"top_bottom", 0x1030, BRect(10, 20, 29, 59), BRect(10, 20, 29, 33)},
		resizing_case{"v_center", 0x5050, BRect(10, 30, 29, 49), BRect(10, 17, 29, 36)},
		resizing_case{"left_top", 0x1212, BRect(10, 20, 29, 39), BRect(10, 20, 29, 39)},
		resizing_case{"right_bottom", 0x3434, BRect(20, 40, 39, 59), BRect(6, 14, 25, 33)},
		resizing_case{"both_centers", 0x5555, BRect(15, 30, 34, 49), BRect(8, 17, 27, 36)},
		resizing_case{"center_to_right", 0x0504, BRect(15, 20, 39, 39), BRect(8, 20, 25, 39)},
		resizing_case{"left_to_center", 0x0205, BRect(10, 20, 34, 39), BRect(10, 20, 27, 39)},
		resizing_case{"center_to_bottom", 0x5030, BRect(10, 30, 29, 59), BRect(10, 17, 29, 33)},
		resizing_case{"top_to_center", 0x1050, BRect(10, 20, 29, 49), BRect(10, 20, 29, 36)}),
	[](const auto& mode) { return std::string(mode.param.name); });


TEST(view_geometry, the_middle_is_kept_in_small_steps_as_in_one)
{
	BView parent(BRect(0, 0, 99, 99), "parent", B_FOLLOW_NONE, 0);
	auto* child = new BView(BRect(40, 40, 59, 59), "child", 0x5555, 0);
	parent.AddChild(child);
	for (int i = 0; i < 10; i++)
		parent.ResizeBy(1, 1);
	EXPECT_EQ(child->Frame(), BRect(45, 45, 64, 64));
	for (int i = 0; i < 10; i++)
		parent.ResizeBy(-1, -1);
	EXPECT_EQ(child->Frame(), BRect(40, 40, 59, 59));
}


TEST(view_geometry, a_child_keeps_the_frame_it_was_given)
{
	BView parent(BRect(0, 0, 99, 99), "parent", B_FOLLOW_NONE, 0);
	auto* child = new BView(BRect(50, 50, 299, 299), "child", B_FOLLOW_ALL, 0);
	parent.AddChild(child);
	EXPECT_EQ(child->Frame(), BRect(50, 50, 299, 299));
	parent.ResizeBy(1, 2);
	EXPECT_EQ(child->Frame(), BRect(50, 50, 300, 301));
}


TEST(view_geometry, a_change_from_before_a_child_was_added_does_not_count)
{
	BView parent(BRect(0, 0, 99, 99), "parent", B_FOLLOW_NONE, 0);
	parent.ResizeTo(199, 199);
	auto* child = new BView(BRect(0, 0, 99, 99), "child", B_FOLLOW_ALL, 0);
	parent.AddChild(child);
	EXPECT_EQ(child->Frame(), BRect(0, 0, 99, 99));
}


TEST(view_geometry, children_of_a_child_that_is_resized_follow_in_turn)
{
	BView parent(BRect(0, 0, 99, 99), "parent", B_FOLLOW_NONE, 0);
	auto* child = new BView(BRect(10, 10, 89, 89), "child", B_FOLLOW_LEFT_RIGHT, 0);
	auto* grandchild = new BView(BRect(60, 60, 69, 69), "grandchild", 0x3434, 0);
	parent.AddChild(child);
	child->AddChild(grandchild);
	parent.ResizeBy(5, 7);
	EXPECT_EQ(child->Frame(), BRect(10, 10, 94, 89));
	EXPECT_EQ(grandchild->Frame(), BRect(65, 60, 74, 69));
}


TEST(view_geometry, children_stay_when_their_parent_only_moves)
{
	BView parent(BRect(0, 0, 99, 99), "parent", B_FOLLOW_NONE, 0);
	auto* child = new BView(BRect(10, 10, 19, 19), "child", 0x3434, 0);
	parent.AddChild(child);
	parent.MoveTo(50, 60);
	EXPECT_EQ(child->Frame(), BRect(10, 10, 19, 19));
}


TEST(view_geometry, a_child_squeezed_to_nothing_comes_back)
{
	BView parent(BRect(0, 0, 99, 99), "parent", B_FOLLOW_NONE, 0);
	auto* child = new BView(BRect(80, 80, 89, 89), "child", B_FOLLOW_ALL, 0);
	parent.AddChild(child);
	parent.ResizeTo(4, 4);
	EXPECT_FALSE(child->Frame().IsValid());
	parent.ResizeTo(99, 99);
	EXPECT_EQ(child->Frame(), BRect(80, 80, 89, 89));
}


TEST(view_geometry, hiding_is_counted)
{
	BView view(BRect(0, 0, 9, 9), "view", B_FOLLOW_NONE, 0);
	view.Hide();
	view.Hide();
	view.Show();
	EXPECT_TRUE(view.IsHidden());
	view.Show();
	EXPECT_FALSE(view.IsHidden());
}


TEST(view_geometry, showing_more_often_than_hiding_is_counted_too)
{
	BView view(BRect(0, 0, 9, 9), "view", B_FOLLOW_NONE, 0);
	view.Show();
	view.Hide();
	EXPECT_FALSE(view.IsHidden());
	view.Hide();
	EXPECT_TRUE(view.IsHidden());
}


TEST(view_geometry, a_view_in_a_hidden_one_is_hidden_but_not_by_itself)
{
	BView parent(BRect(0, 0, 9, 9), "parent", B_FOLLOW_NONE, 0);
	auto* child = new BView(BRect(0, 0, 9, 9), "child", B_FOLLOW_NONE, 0);
	parent.AddChild(child);
	parent.Hide();
	EXPECT_TRUE(child->IsHidden());
	EXPECT_FALSE(child->IsHidden(child));
	EXPECT_TRUE(child->IsHidden(&parent));
	child->Hide();
	EXPECT_TRUE(child->IsHidden(child));
}


TEST(view_geometry, a_look_that_stops_below_a_hidden_view_does_not_see_it)
{
	BView outer(BRect(0, 0, 9, 9), "outer", B_FOLLOW_NONE, 0);
	auto* middle = new BView(BRect(0, 0, 9, 9), "middle", B_FOLLOW_NONE, 0);
	auto* inner = new BView(BRect(0, 0, 9, 9), "inner", B_FOLLOW_NONE, 0);
	outer.AddChild(middle);
	middle->AddChild(inner);
	outer.Hide();
	EXPECT_FALSE(inner->IsHidden(middle));
	EXPECT_TRUE(inner->IsHidden(&outer));
}


TEST(view_geometry, a_view_in_a_window_not_shown_is_hidden_but_not_by_itself)
{
	with_window([](test_window& window, robot&) {
		auto& view = window.add(new BView(BRect(0, 0, 9, 9), "view", B_FOLLOW_NONE, 0));
		EXPECT_FALSE(view.IsHidden());
		window.Hide();
		EXPECT_TRUE(view.IsHidden());
		EXPECT_FALSE(view.IsHidden(&view));
		window.Show();
	});
}
