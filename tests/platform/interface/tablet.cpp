// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// A pen is a pointer that tells more.
#include "platform/interface/stage.h"

#include <gtest/gtest.h>

#include <AppDefs.h>
#include <QCoreApplication>
#include <QPointingDevice>
#include <QTabletEvent>
#include <QWidget>
#include <QWindow>

namespace {

// A window at (40, 30) of a desktop of 800 x 800 with one view at (10, 10) in it.
void
with_canvas(const std::function<void(test_view&, test_window&, robot&)>& user)
{
	with_window([&](test_window& window, robot& hand) {
		auto& view = window.add(new test_view(BRect(10, 10, 199, 99)));
		hand.settle();
		user(view, window, hand);
	});
}


// What the window was told when the pen came down.
BMessage
put_down(BPoint where, robot::pen held)
{
	BMessage down;
	with_canvas([&](test_view&, test_window& window, robot& user) {
		user.pen_down(where, held);
		down = window.last_dispatched(B_MOUSE_DOWN);
	});
	return down;
}


// The pen moves held down, at a pressure in 64ths; true when it was taken.
bool
move_pen(QWidget& window, BPoint where, int pressure)
{
	// Never destroyed: Qt keeps a list of devices to the end.
	static auto* const device = new QPointingDevice("pen", 7, QInputDevice::DeviceType::Stylus,
		QPointingDevice::PointerType::Pen, QInputDevice::Capability::Pressure, 1, 2);
	QPointF local(where.x, where.y);
	QTabletEvent event(QEvent::TabletMove, device, local, window.windowHandle()->mapToGlobal(local),
		(double)pressure / 64, 0, 0, 0, 0, 0, Qt::NoModifier, Qt::NoButton, Qt::LeftButton);
	QCoreApplication::sendEvent(window.windowHandle(), &event);
	return event.isAccepted();
}

}


TEST(tablet, tells_all_a_mouse_tells)
{
	BMessage down = put_down(BPoint(60, 70), {0.5f});
	EXPECT_EQ(down.FindPoint("where"), BPoint(50, 60));
	EXPECT_EQ(down.FindPoint("be:view_where"), BPoint(50, 60));
	EXPECT_EQ(down.FindPoint("screen_where"), BPoint(100, 100));
	EXPECT_EQ(down.FindInt32("buttons"), 1);
	EXPECT_EQ(down.FindInt32("clicks"), 1);
	EXPECT_TRUE(down.HasInt32("modifiers"));
	EXPECT_TRUE(down.HasInt64("when"));
}


TEST(tablet, tells_the_pressure_and_which_end_it_is)
{
	BMessage down = put_down(BPoint(60, 70), {0.625f});
	EXPECT_TRUE(down.HasFloat("be:tablet_pressure"));
	EXPECT_EQ(down.FindFloat("be:tablet_pressure"), 0.625f);
	EXPECT_TRUE(down.HasInt32("be:tablet_eraser"));
	EXPECT_EQ(down.FindInt32("be:tablet_eraser"), 0);
	BMessage erasing = put_down(BPoint(60, 70), {.pressure = 1, .eraser = true});
	EXPECT_EQ(erasing.FindInt32("be:tablet_eraser"), 1);
	EXPECT_EQ(erasing.FindFloat("be:tablet_pressure"), 1);
}


TEST(tablet, tells_the_place_as_a_part_of_the_desktop)
{
	BMessage down = put_down(BPoint(60, 70), {0.5f});
	EXPECT_FLOAT_EQ(down.FindFloat("be:tablet_x"), 0.125f);
	EXPECT_FLOAT_EQ(down.FindFloat("be:tablet_y"), 0.125f);
	BMessage other = put_down(BPoint(160, 20), {0.5f});
	EXPECT_FLOAT_EQ(other.FindFloat("be:tablet_x"), 0.25f);
	EXPECT_FLOAT_EQ(other.FindFloat("be:tablet_y"), 0.0625f);
}


TEST(tablet, tells_the_tilt_from_minus_one_to_one)
{
	const struct {
		float degrees;
		float tilt;
	} cases[] = {{0, 0}, {60, 1}, {-60, -1}, {30, 0.5f}, {-15, -0.25f}, {75, 1}, {-90, -1}};
	for (const auto& each : cases) {
		BMessage down = put_down(
			BPoint(60, 70), {.pressure = 0.5f, .tilt_x = each.degrees, .tilt_y = -each.degrees});
		EXPECT_TRUE(down.HasFloat("be:tablet_tilt_x"));
		EXPECT_EQ(down.FindFloat("be:tablet_tilt_x"), each.tilt);
		EXPECT_EQ(down.FindFloat("be:tablet_tilt_y"), -each.tilt);
	}
}


TEST(tablet, that_cannot_tell_the_tilt_does_not)
{
	// The robot's eraser is of that kind.
	BMessage down = put_down(BPoint(60, 70), {.pressure = 0.5f, .tilt_x = 30, .eraser = true});
	EXPECT_FALSE(down.HasFloat("be:tablet_tilt_x"));
	EXPECT_FALSE(down.HasFloat("be:tablet_tilt_y"));
	EXPECT_TRUE(down.HasFloat("be:tablet_pressure"));
}


TEST(tablet, keeps_the_fractions_of_a_place)
{
	with_canvas([](test_view&, test_window& window, robot& user) {
		user.pen_down(BPoint(60.5f, 70.25f), {0.5f});
		user.pen_move(BPoint(61.75f, 70.5f), {0.5f});
		EXPECT_EQ(
			window.last_dispatched(B_MOUSE_DOWN).FindPoint("be:view_where"), BPoint(50.5f, 60.25f));
		BMessage moved = window.last_dispatched(B_MOUSE_MOVED);
		EXPECT_EQ(moved.FindPoint("be:view_where"), BPoint(51.75f, 60.5f));
		EXPECT_EQ(moved.FindPoint("where"), BPoint(61.75f, 70.5f)) << "in the window";
	});
}


TEST(tablet, tells_of_a_stroke_from_its_first_to_its_last_point_once)
{
	with_canvas([](test_view& view, test_window& window, robot& user) {
		user.pen_move(BPoint(20, 20), {});
		user.pen_down(BPoint(30, 30), {0.25f});
		user.pen_move(BPoint(40, 40), {0.5f});
		user.pen_move(BPoint(50, 50), {0.75f});
		user.pen_up(BPoint(60, 60), {});
		window.locked([&] {
			EXPECT_EQ(view.pointer,
				(journal{"moved 10 10 entered", "down 20 20", "moved 30 30 inside",
					"moved 40 40 inside", "up 50 50"}));
		});
		std::vector<BMessage> moves = window.dispatched(B_MOUSE_MOVED);
		ASSERT_EQ(moves.size(), 3u);
		EXPECT_EQ(moves[0].FindFloat("be:tablet_pressure"), 0);
		EXPECT_EQ(moves[0].FindInt32("buttons"), 0);
		EXPECT_EQ(moves[1].FindFloat("be:tablet_pressure"), 0.5f);
		EXPECT_EQ(moves[1].FindInt32("buttons"), 1);
		EXPECT_EQ(moves[2].FindFloat("be:tablet_pressure"), 0.75f);
		BMessage up = window.last_dispatched(B_MOUSE_UP);
		EXPECT_EQ(up.FindFloat("be:tablet_pressure"), 0);
		EXPECT_EQ(up.FindInt32("buttons"), 0);
	});
}


TEST(tablet, keeps_every_point_of_a_stroke)
{
	with_canvas([](test_view&, test_window& window, robot& user) {
		user.pen_down(BPoint(20, 20), {0.5f});
		window.locked([&] {
			for (int i = 0; i < 40; i++)
				user.act([&](QWidget& widget) { move_pen(widget, BPoint(20, 20 + (float)i), i); });
		});
		user.settle();
		std::vector<BMessage> moves = window.dispatched(B_MOUSE_MOVED);
		ASSERT_EQ(moves.size(), 40u);
		for (int i = 0; i < 40; i++)
			EXPECT_EQ(moves[(size_t)i].FindFloat("be:tablet_pressure"), (float)i / 64);
	});
}


TEST(tablet, is_taken_so_that_no_mouse_is_made_of_it)
{
	with_canvas([](test_view&, test_window& window, robot& user) {
		user.act([](QWidget& widget) { EXPECT_TRUE(move_pen(widget, BPoint(30, 30), 32)); });
		user.settle();
		EXPECT_EQ(window.dispatched(B_MOUSE_MOVED).size(), 1u);
	});
}


TEST(tablet, fields_are_missing_when_the_mouse_is_used)
{
	with_canvas([](test_view&, test_window& window, robot& user) {
		user.pen_down(BPoint(30, 30), {0.5f});
		user.pen_up(BPoint(30, 30), {});
		user.click(BPoint(40, 40));
		BMessage down = window.last_dispatched(B_MOUSE_DOWN);
		EXPECT_EQ(down.FindPoint("be:view_where"), BPoint(30, 30));
		for (const char* field : {"be:tablet_x", "be:tablet_y", "be:tablet_pressure",
				 "be:tablet_tilt_x", "be:tablet_tilt_y"})
			EXPECT_FALSE(down.HasFloat(field)) << field;
		EXPECT_FALSE(down.HasInt32("be:tablet_eraser"));
	});
}
