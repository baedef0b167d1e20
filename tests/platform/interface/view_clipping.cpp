// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Where drawing lands, and where it cannot reach.
#include "platform/interface/stage.h"

#include <gtest/gtest.h>

namespace {

constexpr BRect everything(-100, -100, 100, 100);

}


TEST(view_clipping, drawing_starts_at_the_views_left_top)
{
	sheet page(5, 4);
	auto& view = page.add(new test_view(BRect(1, 2, 4, 3)));
	view.FillRect(BRect(0, 0, 1, 0));
	EXPECT_EQ(page.picture(),
		".....\n"
		".....\n"
		".##..\n"
		".....\n");
}


TEST(view_clipping, drawing_ends_at_the_views_edges)
{
	sheet page(5, 4);
	auto& view = page.add(new test_view(BRect(1, 1, 3, 2)));
	view.FillRect(everything);
	EXPECT_EQ(page.picture(),
		".....\n"
		".###.\n"
		".###.\n"
		".....\n");
}


TEST(view_clipping, lines_and_outlines_end_there_too)
{
	sheet page(6, 5);
	auto& view = page.add(new test_view(BRect(1, 1, 4, 3)));
	view.StrokeLine(BPoint(-9, 1), BPoint(99, 1));
	view.SetHighColor(red);
	view.StrokeRect(BRect(0, -1, 9, 9));
	EXPECT_EQ(page.picture(),
		"......\n"
		".r....\n"
		".r###.\n"
		".r....\n"
		"......\n");
}


TEST(view_clipping, a_childs_place_is_counted_from_its_parents)
{
	sheet page(6, 5);
	auto& parent = page.add(new test_view(BRect(1, 1, 5, 4)));
	auto* child = new test_view(BRect(2, 1, 3, 2));
	parent.AddChild(child);
	child->FillRect(everything);
	EXPECT_EQ(page.picture(),
		"......\n"
		"......\n"
		"...##.\n"
		"...##.\n"
		"......\n");
}


TEST(view_clipping, a_child_does_not_reach_beyond_its_parent)
{
	sheet page(6, 5);
	auto& parent = page.add(new test_view(BRect(1, 1, 3, 3)));
	auto* child = new test_view(BRect(1, -1, 9, 1));
	parent.AddChild(child);
	child->FillRect(everything);
	EXPECT_EQ(page.picture(),
		"......\n"
		"..##..\n"
		"..##..\n"
		"......\n"
		"......\n");
}


TEST(view_clipping, a_grandchild_does_not_reach_beyond_any_of_them)
{
	sheet page(6, 4);
	auto& outer = page.add(new test_view(BRect(1, 0, 3, 3)));
	auto* middle = new test_view(BRect(-1, 1, 9, 2));
	auto* inner = new test_view(BRect(-5, -5, 20, 20));
	outer.AddChild(middle);
	middle->AddChild(inner);
	inner->FillRect(everything);
	EXPECT_EQ(page.picture(),
		"......\n"
		".###..\n"
		".###..\n"
		"......\n");
}


TEST(view_clipping, a_child_wholly_outside_draws_nothing)
{
	sheet page(4, 2);
	auto& parent = page.add(new test_view(BRect(0, 0, 1, 1)));
	auto* child = new test_view(BRect(2, 0, 3, 1));
	parent.AddChild(child);
	child->FillRect(everything);
	EXPECT_EQ(page.picture(),
		"....\n"
		"....\n");
}


TEST(view_clipping, a_view_moved_draws_at_its_new_place)
{
	sheet page(4, 2);
	auto& view = page.add(new test_view(BRect(0, 0, 1, 0)));
	view.MoveTo(2, 1);
	view.FillRect(everything);
	EXPECT_EQ(page.picture(),
		"....\n"
		"..##\n");
}


TEST(view_clipping, a_scrolled_view_draws_by_its_bounds)
{
	sheet page(5, 3);
	auto& view = page.add(new test_view(BRect(1, 0, 4, 2)));
	view.ScrollTo(10, 20);
	view.FillRect(BRect(11, 21, 12, 21));
	EXPECT_EQ(page.picture(),
		".....\n"
		"..##.\n"
		".....\n");
	view.FillRect(everything);
	EXPECT_EQ(page.picture(),
		".####\n"
		".####\n"
		".####\n");
}


TEST(view_clipping, children_move_with_a_scrolled_view)
{
	sheet page(5, 3);
	BView& view = page.whole();
	auto* child = new test_view(BRect(3, 2, 4, 3));
	view.AddChild(child);
	view.ScrollTo(1, 1);
	child->FillRect(everything);
	EXPECT_EQ(page.picture(),
		".....\n"
		"..##.\n"
		"..##.\n");
}


TEST(view_clipping, a_hidden_view_draws_nothing)
{
	sheet page(2, 1);
	BView& view = page.whole();
	view.Hide();
	view.FillRect(everything);
	EXPECT_EQ(page.picture(), "..\n");
	view.Show();
	view.FillRect(BRect(0, 0, 0, 0));
	EXPECT_EQ(page.picture(), "#.\n");
}


TEST(view_clipping, a_view_in_a_hidden_one_draws_nothing)
{
	sheet page(2, 1);
	BView& parent = page.whole();
	auto* child = new test_view(BRect(0, 0, 1, 0));
	parent.AddChild(child);
	parent.Hide();
	child->FillRect(everything);
	EXPECT_EQ(page.picture(), "..\n");
}


TEST(view_clipping, a_view_draws_nothing_once_it_is_removed)
{
	sheet page(2, 1);
	test_view view(BRect(0, 0, 1, 0));
	page.add(&view);
	view.RemoveSelf();
	view.FillRect(everything);
	EXPECT_EQ(page.picture(), "..\n");
}


TEST(view_clipping, a_view_does_not_draw_over_its_children)
{
	sheet page(4, 3);
	BView& view = page.whole();
	view.AddChild(new test_view(BRect(1, 1, 2, 1)));
	view.FillRect(everything);
	EXPECT_EQ(page.picture(),
		"####\n"
		"#..#\n"
		"####\n");
}


TEST(view_clipping, a_view_does_not_draw_over_siblings_in_front)
{
	sheet page(4, 2);
	auto& behind = page.add(new test_view(BRect(0, 0, 2, 1)));
	auto& front = page.add(new test_view(BRect(2, 0, 3, 0)));
	front.SetHighColor(red);
	front.FillRect(everything);
	behind.FillRect(everything);
	EXPECT_EQ(page.picture(),
		"##rr\n"
		"###.\n");
}


TEST(view_clipping, a_view_draws_where_a_hidden_child_would_be)
{
	sheet page(3, 1);
	BView& view = page.whole();
	auto* child = new test_view(BRect(1, 0, 1, 0));
	child->Hide();
	view.AddChild(child);
	view.FillRect(everything);
	EXPECT_EQ(page.picture(), "###\n");
}
