// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Views that ask for more input than their own, and for where the pointer is.
#include "platform/interface/stage.h"

#include <AppDefs.h>
#include <Errors.h>
#include <gtest/gtest.h>

namespace {

// A view on the left that watches and one on the right that is pressed; bare window around both.
struct pair {
	test_view& watcher;
	test_view& other;

	explicit pair(test_window& window)
		: watcher(window.add(new test_view(BRect(10, 10, 59, 59), "watcher"))),
		  other(window.add(new test_view(BRect(100, 10, 149, 59), "other")))
	{
	}
};


// Asks for pointer events until no button is held, when it is pressed.
class pressing_view : public test_view {
public:
	using test_view::test_view;

	void MouseDown(BPoint where) override
	{
		test_view::MouseDown(where);
		answer = SetMouseEventMask(B_POINTER_EVENTS);
	}

	status_t answer = B_ERROR;
};

}


TEST(event_mask, without_one_a_view_hears_nothing_of_the_others)
{
	with_window([](test_window& window, robot& user) {
		pair on(window);
		user.press(BPoint(110, 20));
		user.release(BPoint(110, 20));
		window.locked([&] { EXPECT_EQ(on.watcher.pointer, journal()); });
	});
}


TEST(event_mask, a_watching_view_hears_of_presses_and_moves_elsewhere)
{
	with_window([](test_window& window, robot& user) {
		pair on(window);
		window.locked([&] { EXPECT_EQ(on.watcher.SetEventMask(B_POINTER_EVENTS), B_OK); });
		user.move(BPoint(110, 20));
		user.press(BPoint(110, 20));
		user.move(BPoint(120, 70));
		user.release(BPoint(120, 70));
		window.locked([&] {
			EXPECT_EQ(on.watcher.pointer,
				(journal{
					"moved 100 10 outside", "down 100 10", "moved 110 60 outside", "up 110 60"}));
			EXPECT_EQ(on.other.pointer,
				(journal{"moved 10 10 entered", "down 10 10", "moved 20 60 exited"}));
		});
	});
}


TEST(event_mask, hears_of_its_own_events_once)
{
	with_window([](test_window& window, robot& user) {
		pair on(window);
		window.locked([&] { on.watcher.SetEventMask(B_POINTER_EVENTS); });
		user.move(BPoint(20, 20));
		user.press(BPoint(20, 20));
		user.release(BPoint(20, 20));
		user.move(BPoint(110, 20));
		window.locked([&] {
			EXPECT_EQ(on.watcher.pointer,
				(journal{"moved 10 10 entered", "down 10 10", "up 10 10", "moved 100 10 exited"}));
		});
	});
}


TEST(event_mask, follows_a_drag_out_of_the_window)
{
	with_window([](test_window& window, robot& user) {
		pair on(window);
		window.locked([&] { on.watcher.SetEventMask(B_POINTER_EVENTS); });
		user.press(BPoint(20, 20));
		user.move(BPoint(-30, 500));
		user.release(BPoint(-30, 500));
		window.locked([&] {
			ASSERT_FALSE(on.watcher.pointer.empty());
			EXPECT_EQ(on.watcher.pointer.back(), "up -40 490");
		});
	});
}


TEST(event_mask, goes_on_while_the_view_is_hidden)
{
	with_window([](test_window& window, robot& user) {
		pair on(window);
		window.locked([&] {
			on.watcher.SetEventMask(B_POINTER_EVENTS);
			on.watcher.Hide();
		});
		user.press(BPoint(110, 20));
		window.locked([&] { EXPECT_EQ(on.watcher.pointer, journal{"down 100 10"}); });
	});
}


TEST(event_mask, is_taken_back_by_none)
{
	with_window([](test_window& window, robot& user) {
		pair on(window);
		window.locked([&] {
			on.watcher.SetEventMask(B_POINTER_EVENTS);
			on.watcher.SetEventMask(0);
		});
		user.press(BPoint(110, 20));
		window.locked([&] { EXPECT_EQ(on.watcher.pointer, journal()); });
	});
}


TEST(event_mask, set_before_the_view_has_a_window_counts_from_then_on)
{
	with_window([](test_window& window, robot& user) {
		auto* view = new test_view(BRect(10, 10, 59, 59), "watcher");
		EXPECT_EQ(view->SetEventMask(B_POINTER_EVENTS), B_OK);
		window.AddChild(view);
		user.press(BPoint(110, 20));
		window.locked([&] { EXPECT_EQ(view->pointer, journal{"down 100 10"}); });
	});
}


TEST(event_mask, ends_when_the_view_is_detached)
{
	with_window([](test_window& window, robot& user) {
		pair on(window);
		window.locked([&] {
			on.watcher.SetEventMask(B_POINTER_EVENTS);
			window.RemoveChild(&on.watcher);
		});
		window.AddChild(&on.watcher);
		user.press(BPoint(110, 20));
		window.locked([&] { EXPECT_EQ(on.watcher.pointer, journal()); });
	});
}


TEST(event_mask, hears_of_keys_that_are_for_the_focus)
{
	with_window([](test_window& window, robot& user) {
		pair on(window);
		window.locked([&] {
			on.watcher.SetEventMask(B_KEYBOARD_EVENTS);
			on.other.MakeFocus(true);
		});
		user.type("k");
		EXPECT_EQ(window.handlers_of(B_KEY_DOWN), (journal{"other", "watcher"}));
	});
}


TEST(mouse_event_mask, lasts_until_no_button_is_held)
{
	with_window([](test_window& window, robot& user) {
		auto& view = window.add(new pressing_view(BRect(10, 10, 59, 59), "pressing"));
		user.press(BPoint(20, 20));
		user.move(BPoint(110, 20));
		user.move(BPoint(111, 20));
		user.release(BPoint(111, 20));
		user.press(BPoint(111, 20));
		window.locked([&] {
			EXPECT_EQ(view.answer, B_OK);
			EXPECT_EQ(view.pointer,
				(journal{
					"down 10 10", "moved 100 10 exited", "moved 101 10 outside", "up 101 10"}));
		});
	});
}


TEST(mouse_event_mask, is_refused_outside_of_a_press)
{
	with_window([](test_window& window, robot&) {
		pair on(window);
		window.locked([&] { EXPECT_EQ(on.watcher.SetMouseEventMask(B_POINTER_EVENTS), B_ERROR); });
	});
}


TEST(get_mouse, tells_place_and_buttons_without_taking_messages)
{
	with_window([](test_window& window, robot& user) {
		pair on(window);
		user.press(BPoint(110, 20));
		BPoint where;
		uint32 buttons = 0;
		window.locked([&] { on.other.GetMouse(&where, &buttons); });
		EXPECT_EQ(where, BPoint(10, 10));
		EXPECT_EQ(buttons, 1u);
		user.release(BPoint(112, 20));
		window.locked([&] { on.watcher.GetMouse(&where, &buttons, false); });
		EXPECT_EQ(where, BPoint(102, 10));
		EXPECT_EQ(buttons, 0u);
	});
}


TEST(get_mouse, of_a_view_without_a_window_is_nowhere)
{
	test_view view(BRect(0, 0, 9, 9));
	BPoint where(5, 5);
	uint32 buttons = 7;
	view.GetMouse(&where, &buttons);
	EXPECT_EQ(where, BPoint(0, 0));
	EXPECT_EQ(buttons, 0u);
	view.GetMouse(nullptr, nullptr);
}
