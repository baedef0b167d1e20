// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The pointer over what the display paints itself: the window hears of it as over any view.
#include "platform/interface/stage.h"

#include <AppDefs.h>
#include <Button.h>
#include <gtest/gtest.h>
#include <ListView.h>
#include <ScrollBar.h>
#include <Slider.h>
#include <TextControl.h>

namespace {

constexpr uint32 pressed = 'Prss';


// A view on the left, and a control of the test's at (100, 10) beside it.
struct beside {
	test_view& watcher;
	BView& control;

	beside(test_window& window, BView* made)
		: watcher(window.add(new test_view(BRect(10, 10, 59, 59), "watcher"))),
		  control(window.add(made))
	{
	}
};


BView*
make_button()
{
	return new BButton(BRect(100, 10, 149, 29), "control", "go", new BMessage(pressed));
}


BView*
make_slider()
{
	return new BSlider(BRect(100, 10, 189, 29), "control", "label", new BMessage(pressed), 0, 100);
}


const std::pair<const char*, std::function<BView*()>> controls[] = {
	{"button", make_button},
	{"list", [] { return new BListView(BRect(100, 10, 149, 59), "control"); }},
	{"slider", make_slider},
	{"field",
		[] { return new BTextControl(BRect(100, 10, 189, 29), "control", "a", "b", nullptr); }},
	{"scroll bar",
		[] { return new BScrollBar(BRect(100, 10, 113, 89), "bar", nullptr, 0, 300, B_VERTICAL); }},
};

}


TEST(pointer_over_controls, a_watching_view_hears_everything_once)
{
	for (const auto& [name, make] : controls) {
		with_window([&](test_window& window, robot& user) {
			beside on(window, make());
			window.locked([&] { on.watcher.SetEventMask(B_POINTER_EVENTS); });
			user.move(BPoint(105, 20));
			user.press(BPoint(105, 20));
			user.move(BPoint(106, 22));
			user.release(BPoint(106, 22));
			window.locked([&] {
				EXPECT_EQ(on.watcher.pointer,
					(journal{
						"moved 95 10 outside", "down 95 10", "moved 96 12 outside", "up 96 12"}))
					<< name;
			});
		});
	}
}


TEST(pointer_over_controls, the_view_that_was_left_is_told)
{
	for (const auto& [name, make] : controls) {
		with_window([&](test_window& window, robot& user) {
			beside on(window, make());
			user.move(BPoint(20, 20));
			user.move(BPoint(105, 20));
			user.move(BPoint(106, 20));
			user.move(BPoint(21, 20));
			window.locked([&] {
				EXPECT_EQ(on.watcher.pointer,
					(journal{"moved 10 10 entered", "moved 95 10 exited", "moved 11 10 entered"}))
					<< name;
			});
		});
	}
}


TEST(pointer_over_controls, the_pointer_is_found_there)
{
	with_window([](test_window& window, robot& user) {
		beside on(window, make_button());
		user.move(BPoint(20, 20));
		user.press(BPoint(105, 20));
		window.locked([&] {
			BPoint where;
			uint32 held = 0;
			on.watcher.GetMouse(&where, &held);
			EXPECT_EQ(where, BPoint(95, 10));
			EXPECT_EQ(held, (uint32)B_PRIMARY_MOUSE_BUTTON);
		});
		user.release(BPoint(105, 20));
	});
}


TEST(pointer_over_controls, the_control_does_its_work_all_the_same)
{
	with_window([](test_window& window, robot& user) {
		beside on(window, make_button());
		window.locked([&] { on.watcher.SetEventMask(B_POINTER_EVENTS); });
		user.click(BPoint(105, 20));
		EXPECT_EQ(window.dispatched(pressed).size(), 1U);
	});
}
