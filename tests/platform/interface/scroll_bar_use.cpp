// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Scroll bars under a user's hand.
#include <ScrollBar.h>

#include "display/display.h"
#include "platform/interface/stage.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QScrollBar>

namespace {

// A view of 100 x 100 pixels with a vertical bar from 0 to 300 beside it.
struct scrolled_view {
	test_view* view;
	BScrollBar* bar;
};

scrolled_view
add_scrolled_view(test_window& window)
{
	auto* view = new test_view(BRect(0, 0, 99, 99));
	auto* bar = new BScrollBar(BRect(100, 0, 113, 99), "bar", view, 0, 300, B_VERTICAL);
	bar->SetSteps(5, 50);
	bar->SetProportion(0.25F);
	window.AddChild(view);
	window.AddChild(bar);
	return {view, bar};
}


// Display thread only.
QScrollBar*
shown_bar()
{
	for (QWidget* widget : QApplication::allWidgets()) {
		if (auto* bar = dynamic_cast<QScrollBar*>(widget); bar && bar->isVisible())
			return bar;
	}
	return nullptr;
}


bool
bar_is_enabled(robot& user)
{
	bool enabled = false;
	user.on_display([&] { enabled = shown_bar()->isEnabled(); });
	return enabled;
}

}


TEST(scroll_bar_use, the_user_sees_range_value_and_thumb)
{
	with_window([](test_window& window, robot& user) {
		add_scrolled_view(window).bar->SetValue(40);
		EXPECT_EQ(user.scroll_bar(B_VERTICAL), (std::vector<int>{0, 300, 40, 100}));
	});
}


TEST(scroll_bar_use, the_user_sees_later_changes)
{
	with_window([](test_window& window, robot& user) {
		scrolled_view of = add_scrolled_view(window);
		window.locked([&] {
			of.bar->SetRange(10, 110);
			of.bar->SetProportion(0.5F);
			of.view->ScrollTo(0, 60);
		});
		EXPECT_EQ(user.scroll_bar(B_VERTICAL), (std::vector<int>{10, 110, 60, 100}));
	});
}


TEST(scroll_bar_use, dragging_the_thumb_scrolls_the_view)
{
	with_window([](test_window& window, robot& user) {
		scrolled_view of = add_scrolled_view(window);
		user.drag_scroll_bar(B_VERTICAL, 123);
		window.locked([&] {
			EXPECT_EQ(of.bar->Value(), 123);
			EXPECT_EQ(of.view->Bounds(), BRect(0, 123, 99, 222));
		});
	});
}


TEST(scroll_bar_use, the_wheel_over_the_view_scrolls_it)
{
	with_window([](test_window& window, robot& user) {
		scrolled_view of = add_scrolled_view(window);
		user.wheel(BPoint(50, 50), 2);
		window.locked([&] { EXPECT_EQ(of.view->Bounds().top, 30); });
		EXPECT_EQ(user.scroll_bar(B_VERTICAL)[2], 30);
		user.wheel(BPoint(50, 50), -1);
		window.locked([&] { EXPECT_EQ(of.view->Bounds().top, 15); });
	});
}


TEST(scroll_bar_use, the_wheel_over_a_child_scrolls_the_view_behind)
{
	with_window([](test_window& window, robot& user) {
		scrolled_view of = add_scrolled_view(window);
		window.locked([&] { of.view->AddChild(new test_view(BRect(10, 10, 59, 59))); });
		user.wheel(BPoint(30, 30), 1);
		window.locked([&] { EXPECT_EQ(of.view->Bounds().top, 15); });
	});
}


TEST(scroll_bar_use, a_child_moves_with_the_view_that_scrolls)
{
	with_window([](test_window& window, robot& user) {
		scrolled_view of = add_scrolled_view(window);
		auto* child = new test_view(BRect(10, 40, 19, 49));
		child->SetViewColor(red);
		window.locked([&] { of.view->AddChild(child); });
		EXPECT_EQ(user.pixel(BPoint(10, 40)), red);
		window.locked([&] { of.view->ScrollTo(0, 25); });
		EXPECT_EQ(user.pixel(BPoint(10, 15)), red);
		EXPECT_EQ(user.pixel(BPoint(10, 40)), white);
		window.locked([&] { EXPECT_EQ(child->Frame(), BRect(10, 40, 19, 49)); });
	});
}


TEST(scroll_bar_use, a_child_added_to_a_scrolled_view_appears_where_it_belongs)
{
	with_window([](test_window& window, robot& user) {
		scrolled_view of = add_scrolled_view(window);
		auto* child = new test_view(BRect(10, 40, 19, 49));
		child->SetViewColor(red);
		window.locked([&] {
			of.view->ScrollTo(0, 25);
			of.view->AddChild(child);
		});
		EXPECT_EQ(user.pixel(BPoint(10, 15)), red);
		EXPECT_EQ(user.pixel(BPoint(10, 40)), white);
	});
}


TEST(scroll_bar_use, a_bar_without_a_way_to_go_is_disabled)
{
	with_window([](test_window& window, robot& user) {
		scrolled_view of = add_scrolled_view(window);
		EXPECT_TRUE(bar_is_enabled(user));
		window.locked([&] { of.bar->SetRange(7, 7); });
		EXPECT_FALSE(bar_is_enabled(user));
	});
}


TEST(scroll_bar_use, a_click_beside_the_thumb_goes_a_large_step)
{
	with_window([](test_window& window, robot& user) {
		scrolled_view of = add_scrolled_view(window);
		// Below the thumb, above the lower arrow.
		user.click(BPoint(107, 80));
		window.locked([&] { EXPECT_EQ(of.view->Bounds().top, 50); });
	});
}


TEST(scroll_bar_use, a_click_on_an_arrow_goes_a_small_step)
{
	with_window([](test_window& window, robot& user) {
		scrolled_view of = add_scrolled_view(window);
		user.click(BPoint(107, 95));
		window.locked([&] { EXPECT_EQ(of.view->Bounds().top, 5); });
	});
}


TEST(scroll_bar_use, a_bar_grows_with_its_window)
{
	with_window([](test_window& window, robot&) {
		scrolled_view of = add_scrolled_view(window);
		window.ResizeBy(30, 40);
		window.locked([&] { EXPECT_EQ(of.bar->Frame(), BRect(130, 0, 143, 139)); });
	});
}


TEST(scroll_bar_use, the_secondary_button_brings_no_menu)
{
	with_window([](test_window& window, robot& user) {
		add_scrolled_view(window);
		user.click(BPoint(106, 50), B_SECONDARY_MOUSE_BUTTON);
		bool open = true;
		user.on_display([&] { open = QApplication::activePopupWidget() != nullptr; });
		EXPECT_FALSE(open);
		EXPECT_EQ(user.scroll_bar(B_VERTICAL), (std::vector<int>{0, 300, 0, 100}));
	});
}


TEST(scroll_bar_use, the_thumb_stays_under_a_hand_that_is_ahead_of_the_view)
{
	with_window([](test_window& window, robot& user) {
		scrolled_view of = add_scrolled_view(window);
		user.settle();
		std::vector<int> thumb;
		window.locked([&] {
			of.view->on_draw = [&](BRect) {
				kits::display::call([&] { thumb.push_back(shown_bar()->value()); });
			};
			for (int value : {10, 20, 30})
				user.act([&](QWidget&) { shown_bar()->setSliderPosition(value); });
		});
		user.settle();
		window.locked([&] {
			EXPECT_EQ(thumb, (std::vector<int>{30, 30, 30}));
			EXPECT_EQ(of.view->Bounds().top, 30);
		});
	});
}


TEST(scroll_bar_use, steps_count_while_the_view_is_slow)
{
	with_window([](test_window& window, robot& user) {
		scrolled_view of = add_scrolled_view(window);
		user.settle();
		auto step = [] { shown_bar()->triggerAction(QAbstractSlider::SliderSingleStepAdd); };
		window.locked([&] {
			int more = 5;
			of.view->on_draw = [&, more](BRect) mutable {
				if (more-- > 0)
					kits::display::call(step);
			};
			for (int i = 0; i < 5; i++)
				user.act([&](QWidget&) { step(); });
		});
		user.settle();
		EXPECT_EQ(user.scroll_bar(B_VERTICAL), (std::vector<int>{0, 300, 50, 100}));
		window.locked([&] { EXPECT_EQ(of.view->Bounds().top, 50); });
	});
}


TEST(scroll_bar_use, a_range_that_shrinks_and_grows_under_the_hand_leaves_thumb_and_view_together)
{
	with_window([](test_window& window, robot& user) {
		scrolled_view of = add_scrolled_view(window);
		user.settle();
		window.locked([&] {
			user.act([&](QWidget&) { shown_bar()->setSliderPosition(280); });
			of.bar->SetRange(0, 100);
			of.bar->SetRange(0, 300);
		});
		user.settle();
		const int thumb = user.scroll_bar(B_VERTICAL)[2];
		EXPECT_EQ(thumb, 100);
		window.locked([&] { EXPECT_EQ(of.view->Bounds().top, thumb); });
	});
}


TEST(scroll_bar_use, the_program_moves_the_thumb_after_the_user_has)
{
	with_window([](test_window& window, robot& user) {
		scrolled_view of = add_scrolled_view(window);
		user.drag_scroll_bar(B_VERTICAL, 123);
		window.locked([&] { of.view->ScrollTo(0, 7); });
		EXPECT_EQ(user.scroll_bar(B_VERTICAL)[2], 7);
	});
}
