// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// A window too small for its canvas.
#include "desktop/squares.h"

class scrolling : public outline_journey {
protected:
	void at_small_window();
	// Presses on an arrow of the vertical bar: one step of 5 pixels each.
	void step_down(int times);
	// Where a part of the canvas is, a corner of the first square, that has moved so far.
	QRectF kept(double across, double down);

	static constexpr QSizeF small{420, 320};
};

INSTANTIATE_TEST_SUITE_P(, scrolling, testing::ValuesIn(all_desktops), name_of);


void
scrolling::at_small_window()
{
	at_squares();
	screen().resize(window(), small);
	until("the window does not get small", [&] {
		return std::abs(window().contents.width() - small.width()) < 1
			&& std::abs(window().contents.height() - small.height()) < 1;
	});
	at_rest();
}


void
scrolling::step_down(int times)
{
	for (int i = 0; i < times; i++)
		click({small.width() - 7, small.height() - 14 - 7});
	stand_aside();
	at_rest();
}


QRectF
scrolling::kept(double across, double down)
{
	return QRectF(unit(200, 200), unit(300, 300)).translated(-across, -down);
}


TEST_P(scrolling, by_the_wheel_goes_15_pixels_a_notch_and_back)
{
	at_small_window();
	QImage before = canvas(), part = picture(kept(0, 0));
	wheel(unit(200, 200), desktop::downward, 4);
	shows(part, kept(0, 60));
	wheel(unit(200, 200), desktop::upward, 4);
	canvas_is(before);
}


TEST_P(scrolling, by_the_wheel_with_Shift_goes_sideways)
{
	at_small_window();
	QImage before = canvas(), part = picture(kept(0, 0));
	auto sideways = [&](desktop::direction way) {
		screen().key(key_symbol("Shift_L"), true);
		wheel(unit(300, 300), way, 4);
		screen().key(key_symbol("Shift_L"), false);
	};
	sideways(desktop::downward);
	shows(part, kept(60, 0));
	sideways(desktop::upward);
	canvas_is(before);
}


// Once looking after each step, once as fast as the hand can.
TEST_P(scrolling, by_a_thumb_ends_where_the_pointer_does)
{
	at_small_window();
	QPointF thumb(small.width() - 7, 53 + 40);
	auto pull = [&](double by, const std::function<void()>& look) {
		down(thumb);
		for (int i = 1; i <= 30; i++) {
			move(thumb + QPointF(0, by * i / 30));
			look();
		}
		up();
		stand_aside();
		at_rest();
		thumb += QPointF(0, by);
	};
	QImage top = canvas();
	pull(60, [&] { pause(100); });
	QImage wanted = canvas();
	ASSERT_NE(wanted, top);
	pull(-60, [&] { pause(100); });
	canvas_is(top);
	for (int i = 0; i < 3; i++) {
		pull(60, [&] { pause(2); });
		canvas_is(wanted);
		pull(-60, [&] { pause(2); });
		canvas_is(top);
	}
}


// Every selection paints all of the canvas: what scrolling has moved must be the same.
TEST_P(scrolling, by_single_steps_leaves_what_a_repaint_gives)
{
	at_small_window();
	select_first();
	step_down(19);
	QImage scrolled = canvas();
	key("Left");
	changes_from(scrolled);
	at_rest();
	key("Right");
	canvas_is(scrolled);
}
