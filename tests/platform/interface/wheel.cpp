// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Wheels and touchpads, coarse and fine.
#include "platform/interface/stage.h"

#include <AppDefs.h>
#include <gtest/gtest.h>
#include <QCoreApplication>
#include <QWheelEvent>
#include <QWidget>
#include <QWindow>
#include <ScrollBar.h>

namespace {

// A view of 100 x 80 pixels with bars from 0 to 300, small steps of 5: 15 pixels a notch.
struct scrolled_view {
	test_view& view;
	BScrollBar& down;
	BScrollBar& across;

	explicit scrolled_view(test_window& window)
		: view(window.add(new test_view(BRect(0, 0, 99, 79)))),
		  down(window.add(
			  new BScrollBar(BRect(100, 0, 113, 79), "down", &view, 0, 300, B_VERTICAL))),
		  across(window.add(
			  new BScrollBar(BRect(0, 80, 99, 93), "across", &view, 0, 300, B_HORIZONTAL)))
	{
		for (BScrollBar* bar : {&down, &across}) {
			bar->SetSteps(5, 50);
			bar->SetValue(100);
		}
	}
};

constexpr BPoint over_view(50, 40);


BPoint
place(test_window& window, scrolled_view& of)
{
	BPoint where;
	window.locked([&] { where = of.view.Bounds().LeftTop(); });
	return where;
}


// In the display's units, 120 a notch, upward and to the left.
void
turn(robot& user, QPoint units, Qt::ScrollPhase phase, Qt::KeyboardModifiers modifiers)
{
	user.act([&](QWidget& window) {
		QPointF local(over_view.x, over_view.y);
		QWheelEvent event(local, window.mapToGlobal(local), units / 8, units, Qt::NoButton,
			modifiers, phase, false);
		QCoreApplication::sendEvent(window.windowHandle(), &event);
	});
	user.settle();
}


// Fingers on a touchpad.
void
swipe(robot& user, QPoint units, Qt::ScrollPhase phase)
{
	turn(user, units, phase, Qt::NoModifier);
}

}


TEST(wheel, small_turns_add_up_to_what_a_large_one_does)
{
	for (int units : {1, 3, 4, 12, 20, 40}) {
		for (float way : {1.0F, -1.0F}) {
			with_window([&](test_window& window, robot& user) {
				scrolled_view of(window);
				for (int turned = 0; turned < 240; turned += units)
					user.wheel(over_view, way * (float)units / 120);
				EXPECT_EQ(place(window, of), BPoint(100, 100 + way * 30)) << units << " units";
			});
		}
	}
}


TEST(wheel, small_turns_to_and_fro_end_where_they_began)
{
	with_window([](test_window& window, robot& user) {
		scrolled_view of(window);
		for (float way : {1.0F, -1.0F, -1.0F, 1.0F}) {
			for (int i = 0; i < 37; i++)
				user.wheel(over_view, way / 40);
		}
		EXPECT_EQ(place(window, of), BPoint(100, 100));
	});
}


TEST(wheel, the_parts_of_both_ways_are_kept_apart)
{
	with_window([](test_window& window, robot& user) {
		scrolled_view of(window);
		for (int i = 0; i < 40; i++) {
			user.wheel(over_view, 1.0F / 40, 0);
			user.wheel(over_view, 0, -1.0F / 40);
		}
		EXPECT_EQ(place(window, of), BPoint(85, 115));
	});
}


TEST(wheel, what_was_turned_beyond_the_end_is_not_made_up_for)
{
	with_window([](test_window& window, robot& user) {
		scrolled_view of(window);
		window.locked([&] { of.view.ScrollTo(100, 295); });
		user.wheel(over_view, 20);
		EXPECT_EQ(place(window, of), BPoint(100, 300));
		user.wheel(over_view, -1);
		EXPECT_EQ(place(window, of), BPoint(100, 285));
	});
}


TEST(wheel, a_part_does_not_outlive_what_the_program_does)
{
	with_window([](test_window& window, robot& user) {
		scrolled_view of(window);
		user.wheel(over_view, 0.02F);
		window.locked([&] { of.view.ScrollTo(100, 200); });
		user.wheel(over_view, 0.02F);
		EXPECT_EQ(place(window, of), BPoint(100, 200));
	});
}


TEST(wheel, goes_across_where_it_turns_that_way)
{
	with_window([](test_window& window, robot& user) {
		scrolled_view of(window);
		user.wheel(over_view, 0, 2);
		EXPECT_EQ(place(window, of), BPoint(130, 100));
	});
}


TEST(wheel, goes_across_with_the_shift_key)
{
	with_window([](test_window& window, robot& user) {
		scrolled_view of(window);
		turn(user, QPoint(0, -240), Qt::NoScrollPhase, Qt::ShiftModifier);
		EXPECT_EQ(place(window, of), BPoint(130, 100));
		turn(user, QPoint(0, 120), Qt::NoScrollPhase, Qt::ShiftModifier);
		EXPECT_EQ(place(window, of), BPoint(115, 100));
	});
}


TEST(wheel, over_a_bar_scrolls_along_it)
{
	with_window([](test_window& window, robot& user) {
		scrolled_view of(window);
		for (int i = 0; i < 40; i++)
			user.wheel(BPoint(107, 40), 1.0F / 40);
		EXPECT_EQ(place(window, of), BPoint(100, 115));
		user.wheel(BPoint(50, 87), -1);
		EXPECT_EQ(place(window, of), BPoint(85, 115));
	});
}


TEST(wheel, a_swipe_ends_where_its_movements_add_up_to)
{
	with_window([](test_window& window, robot& user) {
		scrolled_view of(window);
		swipe(user, QPoint(), Qt::ScrollBegin);
		int down = 0;
		int across = 0;
		// Fast at first, then ever slower on its own.
		for (int speed = 31; speed > 0; speed -= 2) {
			bool held = speed > 15;
			swipe(user, QPoint(speed / 3, -speed), held ? Qt::ScrollUpdate : Qt::ScrollMomentum);
			down += speed;
			across -= speed / 3;
		}
		swipe(user, QPoint(), Qt::ScrollEnd);
		ASSERT_EQ(down, 256);
		ASSERT_EQ(across, -80);
		EXPECT_EQ(place(window, of), BPoint(90, 132));
	});
}


TEST(wheel, fingers_that_only_rest_on_a_touchpad_are_no_turn)
{
	with_window([](test_window& window, robot& user) {
		const scrolled_view of(window);
		swipe(user, QPoint(), Qt::ScrollBegin);
		swipe(user, QPoint(), Qt::ScrollEnd);
		EXPECT_EQ(window.dispatched(B_MOUSE_WHEEL_CHANGED).size(), 0U);
	});
}
