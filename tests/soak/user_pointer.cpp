// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// What the soak's user does with pointer, pen, keys and the window.
#include "program/journey.h"
#include "program/panel_user.h"
#include "soak/user.h"

#include <algorithm>
#include <Messenger.h>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

#include <AppDefs.h>


// Mostly within the panel, sometimes beside the window.
BPoint
soak_user::somewhere()
{
	const int right = (int)fSight.size.x;
	const int bottom = (int)fSight.size.y;
	if (fChance.one_in(8))
		return BPoint(
			(float)fChance.between(-20, right + 20), (float)fChance.between(-20, bottom + 20));
	return BPoint((float)fChance.between(50, std::max(right, 51)),
		(float)fChance.between(53, std::max(bottom, 54)));
}


int32
soak_user::some_keys()
{
	const int32 keys[] = {
		0, 0, 0, B_SHIFT_KEY, B_CONTROL_KEY, B_COMMAND_KEY, B_SHIFT_KEY | B_CONTROL_KEY};
	return fChance.any(keys);
}


int32
soak_user::some_button()
{
	const int32 buttons[] = {B_PRIMARY_MOUSE_BUTTON, B_PRIMARY_MOUSE_BUTTON, B_PRIMARY_MOUSE_BUTTON,
		B_SECONDARY_MOUSE_BUTTON, B_TERTIARY_MOUSE_BUTTON};
	return fChance.any(buttons);
}


void
soak_user::click()
{
	const BPoint place = somewhere();
	const int32 button = some_button();
	const int32 keys = some_keys();
	note("click " + text_of(place) + " button " + std::to_string(button) + " keys "
		+ std::to_string(keys));
	for (int i = fChance.one_in(4) ? 2 : 1; i > 0; i--)
		fHand.click(place, button, keys);
}


void
soak_user::drag()
{
	const BPoint from = somewhere();
	const int32 button = some_button();
	const int32 keys = some_keys();
	const int steps = fChance.below(12);
	note("drag from " + text_of(from) + " button " + std::to_string(button) + " keys "
		+ std::to_string(keys) + ", " + std::to_string(steps) + " steps");
	fHand.press(from, button, keys);
	BPoint at = from;
	for (int i = 0; i < steps; i++) {
		// Far, or along a line as hands do.
		at = fChance.one_in(5)
			? somewhere()
			: at + BPoint((float)fChance.between(-9, 9), (float)fChance.between(-9, 9));
		fHand.move(at, keys);
	}
	fHand.release(at, button, fChance.one_in(4) ? 0 : keys);
}


void
soak_user::stroke()
{
	const auto held = [this] {
		return robot::pen{(float)fChance.below(101) / 100, (float)fChance.between(-60, 60),
			(float)fChance.between(-60, 60), fChance.one_in(10)};
	};
	BPoint at = somewhere();
	const int steps = fChance.below(30);
	note("pen from " + text_of(at) + ", " + std::to_string(steps) + " steps");
	fHand.pen_down(at, held());
	for (int i = 0; i < steps; i++) {
		at =
			at + BPoint((float)fChance.between(-90, 90) / 10, (float)fChance.between(-90, 90) / 10);
		fHand.pen_move(at, held());
	}
	fHand.pen_up(at, held());
}


// The icons of the outline palette, and the arrows of both.
void
soak_user::take_tool()
{
	const BPoint places[] = {in_panel(38, 108), in_panel(38, 126), in_panel(38, 144),
		in_panel(38, 162), in_panel(38, 180), in_panel(38, 198), in_panel(5, 305),
		in_panel(45, 305), in_panel(5, 505), in_panel(45, 505), in_panel(5, 20), in_panel(44, 20)};
	const BPoint place = fChance.any(places);
	note("tool at " + text_of(place));
	for (int i = fChance.between(1, 3); i > 0; i--)
		fHand.click(place);
}


void
soak_user::turn_wheel()
{
	const BPoint place = somewhere();
	const int down = fChance.between(-9, 9);
	const int across = fChance.between(-3, 3);
	note("wheel at " + text_of(place) + ": " + std::to_string(down) + " " + std::to_string(across));
	fHand.wheel(place, (float)down, (float)across);
}


void
soak_user::scroll()
{
	const orientation posture = fChance.one_in(2) ? B_VERTICAL : B_HORIZONTAL;
	const int value = fChance.between(-10, 2000);
	note("scroll to " + std::to_string(value));
	fHand.drag_scroll_bar(posture, value);
}


void
soak_user::resize()
{
	if (fChance.one_in(3)) {
		note("zoom box");
		return fHand.press_zoom_box();
	}
	const BPoint size((float)fChance.between(1, 1200), (float)fChance.between(1, 900));
	note("resize to " + text_of(size));
	fHand.resize_window(size.x, size.y);
}


void
soak_user::type_keys()
{
	static const struct {
		int key;
		const char* text;
	} keys[] = {{Qt::Key_Left, ""}, {Qt::Key_Right, ""}, {Qt::Key_Up, ""}, {Qt::Key_Down, ""},
		{Qt::Key_Delete, "\x7f"}, {Qt::Key_Backspace, "\b"}, {Qt::Key_Tab, "\t"},
		{Qt::Key_Backtab, ""}, {Qt::Key_Return, "\r"}, {Qt::Key_Enter, "\r"},
		{Qt::Key_Escape, "\x1b"}, {Qt::Key_Home, ""}, {Qt::Key_End, ""}, {Qt::Key_PageUp, ""},
		{Qt::Key_PageDown, ""}, {Qt::Key_Insert, ""}, {Qt::Key_Space, " "}, {Qt::Key_F1, ""},
		{Qt::Key_F10, ""}, {Qt::Key_Menu, ""}, {Qt::Key_A, "a"}, {Qt::Key_1, "1"},
		{Qt::Key_Shift, ""}, {Qt::Key_Control, ""}, {Qt::Key_Alt, ""},
		{Qt::Key_unknown, "\xC3\xB6"}};
	for (int i = fChance.between(1, 6); i > 0; i--) {
		const auto& [key, text] = fChance.any(keys);
		const int32 held = some_keys();
		note("key " + std::to_string(key) + " keys " + std::to_string(held));
		fHand.key_down(key, text, held);
		// One that is held repeats, or is let go of somewhere else.
		if (!fChance.one_in(10))
			fHand.key_up(key, text, held);
	}
}


void
soak_user::edit_shortcut()
{
	static const struct {
		int key;
		const char* text;
	} shortcuts[] = {{Qt::Key_C, "\x03"}, {Qt::Key_V, "\x16"}, {Qt::Key_V, "\x16"},
		{Qt::Key_X, "\x18"}, {Qt::Key_A, "\x01"}, {Qt::Key_Z, "\x1a"}, {Qt::Key_Y, "\x19"}};
	const auto& [key, text] = fChance.any(shortcuts);
	const int32 held = fChance.one_in(3) ? B_COMMAND_KEY : B_CONTROL_KEY;
	note(std::string("shortcut ") + (char)key + " keys " + std::to_string(held));
	fHand.key(key, text, held);
}


static void
send_pointer(QWidget& window, QEvent::Type type, BPoint where, bool held)
{
	const QPointF place(where.x, where.y);
	const bool moves = type == QEvent::MouseMove;
	QMouseEvent event(type, place, place, window.windowHandle()->mapToGlobal(place),
		moves ? Qt::NoButton : Qt::LeftButton, held ? Qt::LeftButton : Qt::NoButton,
		Qt::NoModifier);
	QCoreApplication::sendEvent(window.windowHandle(), &event);
}


static void
send_key(QWidget& window, int key, const char* text)
{
	for (auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
		QKeyEvent event(type, key, Qt::NoModifier, text);
		QCoreApplication::sendEvent(window.windowHandle(), &event);
	}
}


// Input that does not wait for the program, and what comes from the desktop in between.
void
soak_user::hurry()
{
	const int bursts = fChance.between(1, 6);
	note("hurry, " + std::to_string(bursts) + " bursts");
	for (int i = 0; i < bursts; i++) {
		std::vector<BPoint> places = {
			fChance.one_in(3) ? place_of_tag(fChance.below(10)) : somewhere()};
		for (int k = fChance.below(20); k > 0; k--)
			places.push_back(somewhere());
		const int key = fChance.below(4);
		fHand.act([&](QWidget& window) {
			send_pointer(window, QEvent::MouseButtonPress, places[0], true);
			for (const BPoint& place : places)
				send_pointer(window, QEvent::MouseMove, place, true);
			send_pointer(window, QEvent::MouseButtonRelease, places.back(), false);
			const int keys[] = {Qt::Key_1, Qt::Key_Return, Qt::Key_Tab, Qt::Key_Delete};
			const char* const texts[] = {"1", "\r", "\t", "\x7f"};
			send_key(window, keys[key], texts[key]);
		});
		if (fChance.one_in(3)) {
			BMessage message = fChance.one_in(3)
				? save_answer(fFolder, "hurry.ttf")
				: refs(B_REFS_RECEIVED, {put(fShelf.good(fChance))});
			be_app_messenger.SendMessage(&message);
		}
	}
}
