// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// What views and windows hear of the pointer.
#include "platform/interface/stage.h"

#include <AppDefs.h>
#include <gtest/gtest.h>
#include <OS.h>
#include <QCoreApplication>
#include <QWidget>
#include <QWindow>

namespace {

// A view from (20, 10) to (119, 79) in a window whose content starts at (40, 30) on the screen.
test_view&
add_target(test_window& window)
{
	return window.add(new test_view(BRect(20, 10, 119, 79), "target"));
}

}


TEST(input, a_press_reaches_the_view_under_the_pointer)
{
	with_window([](test_window& window, robot& user) {
		test_view& view = add_target(window);
		user.press(BPoint(50, 40));
		window.locked([&] { EXPECT_EQ(view.pointer, journal{"down 30 30"}); });
		EXPECT_EQ(window.handlers_of(B_MOUSE_DOWN), journal{"target"});
	});
}


TEST(input, a_press_tells_where_and_with_what)
{
	with_window([](test_window& window, robot& user) {
		add_target(window);
		const bigtime_t before = system_time();
		user.press(BPoint(50, 45), B_SECONDARY_MOUSE_BUTTON, B_SHIFT_KEY | B_CONTROL_KEY);
		const BMessage down = window.last_dispatched(B_MOUSE_DOWN);
		EXPECT_EQ(down.FindPoint("where"), BPoint(30, 35));
		EXPECT_EQ(down.FindPoint("be:view_where"), BPoint(30, 35));
		EXPECT_EQ(down.FindPoint("screen_where"), BPoint(90, 75));
		EXPECT_EQ(down.FindInt32("buttons"), 2);
		EXPECT_EQ(down.FindInt32("modifiers"), 5);
		EXPECT_GE(down.FindInt64("when"), before);
		EXPECT_LE(down.FindInt64("when"), system_time());
		EXPECT_FALSE(down.HasInt32("be:transit"));
	});
}


TEST(input, a_release_tells_where_and_what_is_still_held)
{
	with_window([](test_window& window, robot& user) {
		add_target(window);
		user.press(BPoint(50, 45), B_PRIMARY_MOUSE_BUTTON);
		user.press(BPoint(50, 45), B_TERTIARY_MOUSE_BUTTON);
		EXPECT_EQ(window.last_dispatched(B_MOUSE_DOWN).FindInt32("buttons"), 5);
		user.release(BPoint(51, 45), B_PRIMARY_MOUSE_BUTTON, B_COMMAND_KEY);
		const BMessage up = window.last_dispatched(B_MOUSE_UP);
		EXPECT_EQ(up.FindPoint("where"), BPoint(31, 35));
		EXPECT_EQ(up.FindPoint("be:view_where"), BPoint(31, 35));
		EXPECT_EQ(up.FindPoint("screen_where"), BPoint(91, 75));
		EXPECT_EQ(up.FindInt32("buttons"), 4);
		EXPECT_EQ(up.FindInt32("modifiers"), 2);
		EXPECT_TRUE(up.HasInt64("when"));
	});
}


TEST(input, the_last_release_leaves_no_button)
{
	with_window([](test_window& window, robot& user) {
		test_view& view = add_target(window);
		user.click(BPoint(50, 45));
		const BMessage up = window.last_dispatched(B_MOUSE_UP);
		EXPECT_TRUE(up.HasInt32("buttons"));
		EXPECT_EQ(up.FindInt32("buttons"), 0);
		window.locked([&] { EXPECT_EQ(view.pointer, (journal{"down 30 35", "up 30 35"})); });
	});
}


TEST(input, a_move_tells_the_place_in_the_window_and_in_the_view)
{
	with_window([](test_window& window, robot& user) {
		add_target(window);
		user.move(BPoint(50, 45), B_SHIFT_KEY);
		const BMessage moved = window.last_dispatched(B_MOUSE_MOVED);
		EXPECT_EQ(moved.FindPoint("where"), BPoint(50, 45));
		EXPECT_EQ(moved.FindPoint("be:view_where"), BPoint(30, 35));
		EXPECT_EQ(moved.FindPoint("screen_where"), BPoint(90, 75));
		EXPECT_EQ(moved.FindInt32("modifiers"), 1);
		EXPECT_TRUE(moved.HasInt32("buttons"));
		EXPECT_EQ(moved.FindInt32("buttons"), 0);
		EXPECT_TRUE(moved.HasInt64("when"));
		EXPECT_FALSE(moved.HasInt32("clicks"));
	});
}


TEST(input, a_move_with_a_button_held_tells_which)
{
	with_window([](test_window& window, robot& user) {
		add_target(window);
		user.press(BPoint(50, 45));
		user.move(BPoint(52, 45));
		EXPECT_EQ(window.last_dispatched(B_MOUSE_MOVED).FindInt32("buttons"), 1);
	});
}


TEST(input, moves_enter_stay_inside_and_exit)
{
	with_window([](test_window& window, robot& user) {
		test_view& view = add_target(window);
		user.move(BPoint(20, 10));
		user.move(BPoint(119, 79));
		user.move(BPoint(120, 79));
		user.move(BPoint(150, 79));
		window.locked([&] {
			EXPECT_EQ(view.pointer,
				(journal{"moved 0 0 entered", "moved 99 69 inside", "moved 100 69 exited"}));
		});
		EXPECT_EQ(window.last_dispatched(B_MOUSE_MOVED).FindInt32("be:transit"), 2);
	});
}


TEST(input, a_move_from_view_to_view_exits_one_before_it_enters_the_other)
{
	with_window([](test_window& window, robot& user) {
		test_view& outer = add_target(window);
		auto* inner = new test_view(BRect(10, 10, 19, 19), "inner");
		window.locked([&] { outer.AddChild(inner); });
		user.move(BPoint(25, 15));
		user.move(BPoint(32, 23));
		user.move(BPoint(25, 15));
		window.locked([&] {
			EXPECT_EQ(inner->pointer, (journal{"moved 2 3 entered", "moved -5 -5 exited"}));
			EXPECT_EQ(outer.pointer,
				(journal{"moved 5 5 entered", "moved 12 13 exited", "moved 5 5 entered"}));
		});
		EXPECT_EQ(window.handlers_of(B_MOUSE_MOVED),
			(journal{"target", "target", "inner", "inner", "target"}));
	});
}


TEST(input, leaving_the_window_exits_the_view)
{
	with_window([](test_window& window, robot& user) {
		test_view& view = add_target(window);
		user.move(BPoint(50, 45));
		user.act([](QWidget& widget) {
			QEvent leave(QEvent::Leave);
			QCoreApplication::sendEvent(widget.windowHandle(), &leave);
		});
		user.settle();
		window.locked([&] {
			ASSERT_EQ(view.pointer.size(), 2U);
			EXPECT_TRUE(view.pointer.back().ends_with("exited"));
		});
	});
}


TEST(input, a_view_that_went_away_hears_no_exit)
{
	with_window([](test_window& window, robot& user) {
		test_view view(BRect(20, 10, 119, 79), "target");
		window.AddChild(&view);
		user.move(BPoint(50, 45));
		window.RemoveChild(&view);
		user.move(BPoint(51, 45));
		EXPECT_EQ(view.pointer, journal{"moved 30 35 entered"});
	});
}


TEST(input, a_scrolled_view_hears_its_own_coordinates)
{
	with_window([](test_window& window, robot& user) {
		test_view& view = add_target(window);
		window.locked([&] { view.ScrollTo(100, 200); });
		user.press(BPoint(50, 45));
		const BMessage down = window.last_dispatched(B_MOUSE_DOWN);
		EXPECT_EQ(down.FindPoint("be:view_where"), BPoint(130, 235));
		EXPECT_EQ(down.FindPoint("where"), BPoint(130, 235));
		user.move(BPoint(51, 45));
		const BMessage moved = window.last_dispatched(B_MOUSE_MOVED);
		EXPECT_EQ(moved.FindPoint("be:view_where"), BPoint(131, 235));
		EXPECT_EQ(moved.FindPoint("where"), BPoint(51, 45));
	});
}


TEST(input, a_child_of_a_scrolled_view_is_met_where_it_is_seen)
{
	with_window([](test_window& window, robot& user) {
		test_view& outer = add_target(window);
		auto* inner = new test_view(BRect(10, 40, 29, 59), "inner");
		window.locked([&] {
			outer.AddChild(inner);
			outer.ScrollTo(0, 30);
		});
		user.press(BPoint(35, 22));
		window.locked([&] { EXPECT_EQ(inner->pointer, journal{"down 5 2"}); });
	});
}


TEST(input, the_window_has_seen_a_message_before_the_hook_runs)
{
	with_window([](test_window& window, robot& user) {
		test_view& view = add_target(window);
		size_t seen = 0;
		window.locked([&] {
			view.on_message = [&](BMessage&) { seen = window.dispatched(B_MOUSE_DOWN).size(); };
		});
		user.press(BPoint(50, 45));
		window.locked([&] { EXPECT_EQ(seen, 1U); });
	});
}


TEST(input, the_message_at_hand_is_the_one_that_is_dispatched)
{
	with_window([](test_window& window, robot& user) {
		test_view& view = add_target(window);
		BPoint where;
		window.locked([&] {
			view.on_message = [&](BMessage&) {
				where = window.CurrentMessage()->FindPoint("be:view_where");
			};
		});
		user.press(BPoint(50, 45));
		window.locked([&] { EXPECT_EQ(where, BPoint(30, 35)); });
	});
}


TEST(input, a_press_where_no_view_is_is_nobodys)
{
	with_window([](test_window& window, robot& user) {
		test_view& view = add_target(window);
		user.click(BPoint(5, 5));
		window.locked([&] { EXPECT_EQ(view.pointer, journal{}); });
		EXPECT_EQ(window.dispatched(B_MOUSE_DOWN).size(), 0U);
	});
}


TEST(input, a_view_that_is_moved_is_met_at_its_new_place)
{
	with_window([](test_window& window, robot& user) {
		test_view& view = add_target(window);
		window.locked([&] { view.MoveTo(100, 20); });
		user.press(BPoint(150, 60));
		user.release(BPoint(50, 60));
		window.locked([&] { EXPECT_EQ(view.pointer, journal{"down 50 40"}); });
	});
}


TEST(input, a_release_elsewhere_is_for_the_view_there)
{
	with_window([](test_window& window, robot& user) {
		test_view& view = add_target(window);
		auto& other = window.add(new test_view(BRect(130, 10, 199, 79), "other"));
		user.press(BPoint(50, 45));
		user.move(BPoint(140, 45));
		user.release(BPoint(140, 45));
		window.locked([&] {
			EXPECT_EQ(view.pointer, (journal{"down 30 35", "moved 120 35 exited"}));
			EXPECT_EQ(other.pointer, (journal{"moved 10 35 entered", "up 10 35"}));
		});
	});
}


TEST(input, a_hook_that_deletes_the_view_entered_is_survived)
{
	with_window([](test_window& window, robot& user) {
		test_view& left = add_target(window);
		auto& entered = window.add(new test_view(BRect(130, 10, 199, 79), "entered"));
		user.move(BPoint(50, 45));
		BView* doomed = &entered;
		window.locked([&] {
			left.on_message = [&](BMessage&) {
				if (doomed)
					doomed->RemoveSelf();
				delete doomed;
				doomed = nullptr;
			};
		});
		user.move(BPoint(140, 45));
		window.locked([&] { EXPECT_EQ(window.CountChildren(), 1); });
	});
}
