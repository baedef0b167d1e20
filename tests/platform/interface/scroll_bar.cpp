// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include <AppDefs.h>
#include <ScrollBar.h>

#include "platform/interface/stage.h"

#include <cmath>
#include <gtest/gtest.h>
#include <memory>

namespace {

constexpr BRect view_frame(0, 0, 99, 99);
constexpr BRect bar_frame(100, 0, 113, 99);

// A view with both bars, each from 0 to 50 across and 0 to 80 down.
class barred {
public:
	BView view{view_frame, "view", B_FOLLOW_NONE, 0};
	BScrollBar across{BRect(0, 100, 99, 113), "across", &view, 0, 50, B_HORIZONTAL};
	BScrollBar down{bar_frame, "down", &view, 0, 80, B_VERTICAL};
};

class counting_bar : public BScrollBar {
public:
	using BScrollBar::BScrollBar;
	void ValueChanged(float newValue) override { values.push_back(newValue); }

	std::vector<float> values;
};

BMessage
wheel(float across, float down)
{
	BMessage message(B_MOUSE_WHEEL_CHANGED);
	message.AddFloat("be:wheel_delta_x", across);
	message.AddFloat("be:wheel_delta_y", down);
	return message;
}

}


TEST(scroll_bar, is_as_it_was_made)
{
	barred of;
	float min = -1;
	float max = -1;
	of.down.GetRange(&min, &max);
	EXPECT_EQ(min, 0);
	EXPECT_EQ(max, 80);
	EXPECT_EQ(of.down.Value(), 0);
	EXPECT_EQ(of.down.Proportion(), 1);
	EXPECT_EQ(of.down.Orientation(), B_VERTICAL);
	EXPECT_EQ(of.down.Target(), &of.view);
	EXPECT_EQ(of.view.ScrollBar(B_VERTICAL), &of.down);
	EXPECT_EQ(of.view.ScrollBar(B_HORIZONTAL), &of.across);
}


TEST(scroll_bar, follows_the_edge_it_stands_at)
{
	barred of;
	EXPECT_EQ(of.down.ResizingMode(), 0x1434U);
	EXPECT_EQ(of.across.ResizingMode(), 0x3234U);
}


TEST(scroll_bar, a_value_scrolls_the_target_in_its_direction)
{
	barred of;
	of.down.SetValue(30);
	EXPECT_EQ(of.view.Bounds(), BRect(0, 30, 99, 129));
	of.across.SetValue(20);
	EXPECT_EQ(of.view.Bounds(), BRect(20, 30, 119, 129));
}


TEST(scroll_bar, a_value_is_rounded_and_clamped)
{
	barred of;
	of.down.SetValue(12.6F);
	EXPECT_EQ(of.down.Value(), 13);
	of.down.SetValue(81);
	EXPECT_EQ(of.down.Value(), 80);
	of.down.SetValue(-1);
	EXPECT_EQ(of.down.Value(), 0);
}


TEST(scroll_bar, a_value_that_is_no_number_is_ignored)
{
	barred of;
	of.down.SetValue(7);
	of.down.SetValue(NAN);
	of.down.SetValue(INFINITY);
	EXPECT_EQ(of.down.Value(), 7);
}


TEST(scroll_bar, the_hook_runs_once_for_a_change_and_not_without)
{
	counting_bar bar(bar_frame, "bar", nullptr, 0, 80, B_VERTICAL);
	bar.SetValue(5);
	bar.SetValue(5);
	bar.SetValue(5.3F);
	bar.SetValue(999);
	EXPECT_EQ(bar.values, (std::vector<float>{5, 80}));
}


TEST(scroll_bar, follows_a_view_that_scrolls)
{
	barred of;
	of.view.ScrollTo(11, 22);
	EXPECT_EQ(of.across.Value(), 11);
	EXPECT_EQ(of.down.Value(), 22);
}


TEST(scroll_bar, holds_a_view_within_its_range)
{
	barred of;
	of.view.ScrollTo(1000, 1000);
	EXPECT_EQ(of.view.Bounds(), BRect(50, 80, 149, 179));
	of.view.ScrollTo(-5, -5);
	EXPECT_EQ(of.view.Bounds(), BRect(0, 0, 99, 99));
}


TEST(scroll_bar, holds_only_its_own_direction)
{
	BView view(view_frame, "view", B_FOLLOW_NONE, 0);
	BScrollBar down(bar_frame, "down", &view, 0, 80, B_VERTICAL);
	view.ScrollTo(-300, 300);
	EXPECT_EQ(view.Bounds(), BRect(-300, 80, -201, 179));
}


TEST(scroll_bar, a_range_is_rounded)
{
	barred of;
	of.down.SetRange(0.6F, 40.4F);
	float min = -1;
	float max = -1;
	of.down.GetRange(&min, &max);
	EXPECT_EQ(min, 1);
	EXPECT_EQ(max, 40);
}


TEST(scroll_bar, a_range_the_wrong_way_round_is_nothing)
{
	barred of;
	of.down.SetValue(30);
	of.down.SetRange(60, 20);
	float min = -1;
	float max = -1;
	of.down.GetRange(&min, &max);
	EXPECT_EQ(min, 0);
	EXPECT_EQ(max, 0);
	EXPECT_EQ(of.down.Value(), 0);
	EXPECT_EQ(of.view.Bounds().top, 0);
}


TEST(scroll_bar, a_range_that_is_no_number_is_nothing)
{
	barred of;
	of.down.SetRange(NAN, 20);
	float min = -1;
	float max = -1;
	of.down.GetRange(&min, &max);
	EXPECT_EQ(min, 0);
	EXPECT_EQ(max, 0);
}


TEST(scroll_bar, a_smaller_range_takes_value_and_view_along)
{
	barred of;
	of.down.SetValue(70);
	of.down.SetRange(0, 40);
	EXPECT_EQ(of.down.Value(), 40);
	EXPECT_EQ(of.view.Bounds().top, 40);
	of.down.SetRange(45, 60);
	EXPECT_EQ(of.view.Bounds().top, 45);
}


TEST(scroll_bar, a_larger_range_moves_nothing)
{
	barred of;
	of.down.SetValue(70);
	of.down.SetRange(0, 400);
	EXPECT_EQ(of.down.Value(), 70);
	EXPECT_EQ(of.view.Bounds().top, 70);
}


TEST(scroll_bar, the_proportion_stays_between_0_and_1)
{
	barred of;
	of.down.SetProportion(0.25F);
	EXPECT_EQ(of.down.Proportion(), 0.25F);
	of.down.SetProportion(-0.1F);
	EXPECT_EQ(of.down.Proportion(), 0);
	of.down.SetProportion(1.1F);
	EXPECT_EQ(of.down.Proportion(), 1);
	of.down.SetProportion(NAN);
	EXPECT_EQ(of.down.Proportion(), 0);
}


TEST(scroll_bar, forgets_a_target_that_is_destroyed)
{
	auto view = std::make_unique<BView>(view_frame, "view", B_FOLLOW_NONE, 0);
	BScrollBar bar(bar_frame, "bar", view.get(), 0, 80, B_VERTICAL);
	view.reset();
	EXPECT_EQ(bar.Target(), nullptr);
	bar.SetValue(10);
	EXPECT_EQ(bar.Value(), 10);
}


TEST(scroll_bar, is_forgotten_by_its_target_when_it_is_destroyed)
{
	BView view(view_frame, "view", B_FOLLOW_NONE, 0);
	{
		BScrollBar bar(bar_frame, "bar", &view, 0, 80, B_VERTICAL);
	}
	EXPECT_EQ(view.ScrollBar(B_VERTICAL), nullptr);
	view.ScrollTo(0, 500);
	EXPECT_EQ(view.Bounds().top, 500);
}


TEST(scroll_bar, another_target_takes_it_away_and_scrolls_neither)
{
	barred of;
	BView other(view_frame, "other", B_FOLLOW_NONE, 0);
	of.down.SetValue(30);
	other.ScrollTo(0, 9);
	of.down.SetTarget(&other);
	EXPECT_EQ(of.view.ScrollBar(B_VERTICAL), nullptr);
	EXPECT_EQ(other.ScrollBar(B_VERTICAL), &of.down);
	EXPECT_EQ(of.view.Bounds().top, 30);
	EXPECT_EQ(other.Bounds().top, 9);
	EXPECT_EQ(of.down.Value(), 30);
}


TEST(scroll_bar, the_old_target_is_no_longer_scrolled)
{
	barred of;
	BView other(view_frame, "other", B_FOLLOW_NONE, 0);
	of.down.SetTarget(&other);
	of.down.SetValue(40);
	EXPECT_EQ(of.view.Bounds().top, 0);
	EXPECT_EQ(other.Bounds().top, 40);
}


TEST(scroll_bar, the_same_target_again_changes_nothing)
{
	barred of;
	of.down.SetTarget(&of.view);
	EXPECT_EQ(of.down.Target(), &of.view);
	EXPECT_EQ(of.view.ScrollBar(B_VERTICAL), &of.down);
}


TEST(scroll_bar, a_second_bar_of_one_direction_replaces_the_first)
{
	barred of;
	BScrollBar second(bar_frame, "second", &of.view, 0, 10, B_VERTICAL);
	EXPECT_EQ(of.down.Target(), nullptr);
	EXPECT_EQ(of.view.ScrollBar(B_VERTICAL), &second);
	EXPECT_EQ(of.view.ScrollBar(B_HORIZONTAL), &of.across);
}


TEST(scroll_bar, can_have_no_target)
{
	barred of;
	of.down.SetTarget((BView*)nullptr);
	EXPECT_EQ(of.down.Target(), nullptr);
	EXPECT_EQ(of.view.ScrollBar(B_VERTICAL), nullptr);
}


TEST(scroll_bar, a_target_can_be_named)
{
	sheet page(114, 100);
	BView& view = page.whole();
	auto& bar = page.add(new BScrollBar(bar_frame, "bar", nullptr, 0, 80, B_VERTICAL));
	bar.SetTarget("whole");
	EXPECT_EQ(bar.Target(), &view);
	bar.SetTarget("nobody");
	EXPECT_EQ(bar.Target(), nullptr);
}


TEST(scroll_bar, keeps_its_steps)
{
	barred of;
	of.down.SetSteps(4, 40);
	float small = 0;
	float large = 0;
	of.down.GetSteps(&small, &large);
	EXPECT_EQ(small, 4);
	EXPECT_EQ(large, 40);
}


TEST(scroll_bar, a_notch_of_the_wheel_is_three_small_steps)
{
	barred of;
	of.down.SetSteps(4, 40);
	of.across.SetSteps(2, 40);
	BMessage down = wheel(0, 1);
	of.view.MessageReceived(&down);
	EXPECT_EQ(of.view.Bounds().LeftTop(), BPoint(0, 12));
	BMessage across = wheel(2, -0.5F);
	of.view.MessageReceived(&across);
	EXPECT_EQ(of.view.Bounds().LeftTop(), BPoint(12, 6));
}


TEST(scroll_bar, the_wheel_stops_at_the_end_of_the_range)
{
	barred of;
	BMessage far_down = wheel(0, 1000);
	of.view.MessageReceived(&far_down);
	EXPECT_EQ(of.view.Bounds().top, 80);
}


TEST(scroll_bar, the_wheel_over_a_view_without_a_bar_scrolls_its_parent)
{
	sheet page(100, 100);
	BView& view = page.whole();
	BScrollBar bar(bar_frame, "bar", &view, 0, 80, B_VERTICAL);
	auto* child = new BView(BRect(0, 0, 9, 9), "child", B_FOLLOW_NONE, 0);
	view.AddChild(child);
	BMessage down = wheel(0, 1);
	child->MessageReceived(&down);
	EXPECT_EQ(view.Bounds().top, 3);
	EXPECT_EQ(child->Bounds().top, 0);
}


TEST(scroll_bar, the_wheel_without_any_bar_scrolls_nothing)
{
	sheet page(100, 100);
	BView& view = page.whole();
	BMessage down = wheel(0, 1);
	view.MessageReceived(&down);
	EXPECT_EQ(view.Bounds().LeftTop(), BPoint(0, 0));
}
