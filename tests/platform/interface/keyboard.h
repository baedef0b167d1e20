// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_TESTS_KEYBOARD_H
#define KITS_TESTS_KEYBOARD_H

#include "platform/interface/stage.h"

#include <QtCore/qnamespace.h>

// A view that notes its keys: "down" or "up" and the bytes in hexadecimal.
class key_view : public test_view {
public:
	explicit key_view(BRect frame) : test_view(frame, "keys") {}

	journal keys;

	void KeyDown(const char* bytes, int32 numBytes) override;
	void KeyUp(const char* bytes, int32 numBytes) override;
};

// What the display's server says of a key.
struct stroke {
	bool down;
	Qt::Key key;
	const char* text;
	Qt::KeyboardModifiers modifiers;
	// Milliseconds by the server's clock, and the number of the key.
	unsigned long time;
	uint32 scan_code;
	// The mark that the display sets on some repeats.
	bool repeat = false;
};

// For robot::act().
void send_key(QWidget& window, const stroke& key);

// All of them in one go; settles afterwards.
void strike(robot& user, const std::vector<stroke>& strokes);

// Runs a program of one window whose view has the keyboard.
void with_keyboard(const std::function<void(key_view&, test_window&, robot&)>& user);

#endif
