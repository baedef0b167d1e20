// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Single, double and further clicks: presses at times of the test's own.
#include "platform/interface/stage.h"

#include <AppDefs.h>
#include <gtest/gtest.h>
#include <QCoreApplication>
#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

namespace {

// Counts of clicks that a window hears of. Each hand starts long after the one before.
class clicking_hand {
public:
	clicking_hand(test_window& window, robot& user) : fWindow(window), fUser(user)
	{
		static ulong start = 0;
		start += 1000000;
		fStart = start;
		window.AddChild(new test_view(BRect(0, 0, 199, 99)));
	}

	// The "clicks" of a press so many milliseconds after the start. The desktop reports the second
	// of two quick presses as a double click.
	int32 press(ulong time, BPoint where = BPoint(50, 50), bool doubled = false)
	{
		_Send(doubled ? QEvent::MouseButtonDblClick : QEvent::MouseButtonPress, where, time);
		_Send(QEvent::MouseButtonRelease, where, time + 1);
		return fWindow.last_dispatched(B_MOUSE_DOWN).FindInt32("clicks");
	}

private:
	void _Send(QEvent::Type type, BPoint where, ulong time)
	{
		bool down = type != QEvent::MouseButtonRelease;
		fUser.act([&](QWidget& window) {
			QPointF place(where.x, where.y);
			QMouseEvent event(type, place, place, window.mapToGlobal(place), Qt::LeftButton,
				down ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
			event.setTimestamp(fStart + time);
			QCoreApplication::sendEvent(window.windowHandle(), &event);
		});
		fUser.settle();
	}

	test_window& fWindow;
	robot& fUser;
	ulong fStart;
};

}


TEST(clicks, a_press_by_itself_is_the_first)
{
	with_window([](test_window& window, robot& user) {
		clicking_hand hand(window, user);
		EXPECT_EQ(hand.press(0), 1);
	});
}


TEST(clicks, quick_presses_count_on)
{
	with_window([](test_window& window, robot& user) {
		clicking_hand hand(window, user);
		EXPECT_EQ(hand.press(0), 1);
		EXPECT_EQ(hand.press(200), 2);
		EXPECT_EQ(hand.press(400), 3);
		EXPECT_EQ(hand.press(600), 4);
	});
}


TEST(clicks, a_double_click_of_the_desktop_is_one_press_more)
{
	with_window([](test_window& window, robot& user) {
		clicking_hand hand(window, user);
		EXPECT_EQ(hand.press(0), 1);
		EXPECT_EQ(hand.press(200, BPoint(50, 50), true), 2);
		EXPECT_EQ(hand.press(400), 3);
		EXPECT_EQ(window.dispatched(B_MOUSE_DOWN).size(), 3U);
	});
}


TEST(clicks, a_slow_press_starts_again)
{
	with_window([](test_window& window, robot& user) {
		clicking_hand hand(window, user);
		EXPECT_EQ(hand.press(0), 1);
		EXPECT_EQ(hand.press(5000), 1);
		EXPECT_EQ(hand.press(5200), 2);
	});
}


TEST(clicks, a_press_elsewhere_starts_again)
{
	with_window([](test_window& window, robot& user) {
		clicking_hand hand(window, user);
		EXPECT_EQ(hand.press(0), 1);
		EXPECT_EQ(hand.press(100, BPoint(150, 50)), 1);
		EXPECT_EQ(hand.press(200, BPoint(151, 50)), 2);
	});
}
