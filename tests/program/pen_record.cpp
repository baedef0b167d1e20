// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The window's pointer record, filled by the real mouse and a real pen.
#include "app/kernix.h"
#include "app/kernixview.h"
#include "app/kernixwindow.h"
#include "program/journey.h"
#include "support/desktop_kind.h"

#include <gtest/gtest.h>

namespace {

// Keeps what the window's record said when its own hook ran.
class drawing_view : public BView {
public:
	drawing_view() : BView(BRect(0, 0, 99, 99), "drawing", B_FOLLOW_NONE, B_WILL_DRAW) {}

	void MouseDown(BPoint) override { keep(); }
	void MouseUp(BPoint) override { keep(); }
	void MouseMoved(BPoint, uint32, const BMessage*) override { keep(); }

	std::vector<struct input> seen;

private:
	void keep() { seen.push_back(static_cast<kernixwindow*>(Window())->input); }
};


// Runs with the view in the work view's corner, which is at (0, 53) of the window, as the input
// handler, or with nothing recorded; gives what it has seen.
std::vector<struct input>
seen_while(const std::function<void(robot&)>& work, bool recorded = true)
{
	std::vector<struct input> seen;
	journey([&](kernix& app, robot& user) {
		auto* view = new drawing_view;
		looking(app, [&] {
			app.window->workview->AddChild(view);
			if (recorded)
				app.window->settarget(BRect(), nullptr, view, 1, 1);
		});
		user.settle();
		work(user);
		looking(app, [&] { seen = view->seen; });
	});
	return seen;
}


constexpr uint16 has_place = 0x0001;
constexpr uint16 has_tilt = 0x0002;
constexpr uint16 has_pressure = 0x0004;
constexpr uint16 has_eraser = 0x0008;
// Buttons, modifiers, when, where.
constexpr uint16 has_mouse = 0x0330;
constexpr uint16 has_transit = 0x0400;

}


TEST(pen_record, of_a_pen_that_comes_down_has_every_field_but_the_transit)
{
	auto seen = seen_while([](robot& user) {
		user.pen_down(BPoint(30.5f, 73.25f), {.pressure = 0.75f, .tilt_x = 30, .tilt_y = -15});
	});
	ASSERT_EQ(seen.size(), 1u);
	EXPECT_EQ(seen[0].flags, has_place | has_tilt | has_pressure | has_eraser | has_mouse);
	EXPECT_EQ(seen[0].where, BPoint(30.5f, 20.25f));
	EXPECT_EQ(seen[0].pressure, 0.75f);
	EXPECT_EQ(seen[0].tilt_x, 0.5f);
	EXPECT_EQ(seen[0].tilt_y, -0.25f);
	EXPECT_EQ(seen[0].eraser, 0);
	EXPECT_EQ(seen[0].buttons, 1);
	EXPECT_EQ(seen[0].modifiers, 0);
	EXPECT_GT(seen[0].when, 0);
}


TEST(pen_record, has_the_place_on_the_tablet)
{
	if (!programs_place_windows())
		GTEST_SKIP() << "the display server places the windows";
	// The window is at (100, 100) of a desktop of 800 x 800.
	auto seen = seen_while([](robot& user) { user.pen_down(BPoint(60, 100), {.pressure = 1}); });
	ASSERT_EQ(seen.size(), 1u);
	EXPECT_FLOAT_EQ(seen[0].x, 0.2f);
	EXPECT_FLOAT_EQ(seen[0].y, 0.25f);
}


TEST(pen_record, of_a_pen_that_moves_has_every_field)
{
	auto seen = seen_while([](robot& user) {
		user.pen_down(BPoint(30, 73), {.pressure = 0.5f});
		user.pen_move(BPoint(31.5f, 74.5f), {.pressure = 0.25f, .tilt_x = -60, .tilt_y = 60});
	});
	ASSERT_EQ(seen.size(), 2u);
	EXPECT_EQ(seen[1].flags, 0x073F);
	EXPECT_EQ(seen[1].where, BPoint(31.5f, 21.5f));
	EXPECT_EQ(seen[1].pressure, 0.25f);
	EXPECT_EQ(seen[1].tilt_x, -1.0f);
	EXPECT_EQ(seen[1].tilt_y, 1.0f);
	EXPECT_EQ(seen[1].buttons, 1);
}


TEST(pen_record, of_the_other_end_is_the_erasers)
{
	auto seen = seen_while([](robot& user) {
		user.pen_down(BPoint(30, 73), {.pressure = 0.5f, .eraser = true});
		user.pen_up(BPoint(30, 73), {.eraser = true});
	});
	ASSERT_EQ(seen.size(), 2u);
	EXPECT_EQ(seen[0].eraser, 1);
	EXPECT_EQ(seen[0].pressure, 0.5f);
	EXPECT_EQ(seen[1].eraser, 1);
	EXPECT_EQ(seen[1].pressure, 0.0f);
	EXPECT_EQ(seen[1].buttons, 0);
}


TEST(pen_record, of_a_pen_without_tilt_keeps_the_last_tilt_with_its_bit_clear)
{
	auto seen = seen_while([](robot& user) {
		user.pen_down(BPoint(30, 73), {.pressure = 0.5f, .tilt_x = 30, .tilt_y = 15});
		user.pen_up(BPoint(30, 73), {.tilt_x = 30, .tilt_y = 15});
		user.pen_down(BPoint(40, 83), {.pressure = 1, .tilt_x = 60, .eraser = true});
	});
	ASSERT_EQ(seen.size(), 3u);
	EXPECT_EQ(seen[2].flags, has_place | has_pressure | has_eraser | has_mouse);
	EXPECT_EQ(seen[2].tilt_x, 0.5f);
	EXPECT_EQ(seen[2].tilt_y, 0.25f);
	EXPECT_EQ(seen[2].eraser, 1);
}


TEST(pen_record, of_the_mouse_after_a_pen_keeps_the_pens_values_with_their_bits_clear)
{
	auto seen = seen_while([](robot& user) {
		user.pen_down(BPoint(30, 73), {.pressure = 0.5f, .tilt_x = 30});
		user.pen_up(BPoint(30, 73), {.pressure = 0.25f, .tilt_x = 30});
		user.press(BPoint(40, 83), B_SECONDARY_MOUSE_BUTTON, B_SHIFT_KEY);
	});
	ASSERT_EQ(seen.size(), 3u);
	EXPECT_EQ(seen[2].flags, has_mouse);
	EXPECT_EQ(seen[2].where, BPoint(40, 30));
	EXPECT_EQ(seen[2].buttons, 2);
	EXPECT_EQ(seen[2].modifiers & 0xFF, 1);
	EXPECT_EQ(seen[2].pressure, 0.25f);
	EXPECT_EQ(seen[2].tilt_x, 0.5f);
}


TEST(pen_record, of_the_mouse_tells_how_it_comes_and_goes)
{
	auto seen = seen_while([](robot& user) {
		user.move(BPoint(20, 63));
		user.move(BPoint(21, 63));
		user.move(BPoint(200, 200));
	});
	ASSERT_EQ(seen.size(), 3u);
	for (const auto& each : seen)
		EXPECT_EQ(each.flags, has_mouse | has_transit);
	EXPECT_EQ(seen[0].transit, 0);
	EXPECT_EQ(seen[1].transit, 1);
	EXPECT_EQ(seen[2].transit, 2);
	EXPECT_EQ(seen[2].where, BPoint(200, 147));
}


TEST(pen_record, of_each_sample_is_later_than_the_one_before)
{
	auto seen = seen_while([](robot& user) {
		user.pen_down(BPoint(30, 73), {.pressure = 0.5f});
		for (int i = 0; i < 5; i++)
			user.pen_move(BPoint(31 + (float)i, 73), {.pressure = 0.5f});
	});
	ASSERT_EQ(seen.size(), 6u);
	for (size_t i = 1; i < seen.size(); i++)
		EXPECT_GE(seen[i].when, seen[i - 1].when);
}


TEST(pen_record, stays_empty_for_a_view_that_is_not_recorded)
{
	auto seen = seen_while(
		[](robot& user) {
			user.pen_down(BPoint(30, 73), {.pressure = 0.5f});
			user.pen_up(BPoint(30, 73), {});
			user.move(BPoint(31, 73));
		},
		false);
	ASSERT_EQ(seen.size(), 3u);
	for (const auto& each : seen) {
		EXPECT_EQ(each.flags, 0);
		EXPECT_EQ(each.pressure, 0.0f);
	}
}
