// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "platform/interface/keyboard.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWidget>
#include <QWindow>


static std::string
note(const char* what, const char* bytes, int32 count)
{
	std::string text = what;
	for (int32 i = 0; i < count; i++) {
		char byte[4];
		snprintf(byte, sizeof byte, " %02x", (unsigned char)bytes[i]);
		text += byte;
	}
	return text;
}


void
key_view::KeyDown(const char* bytes, int32 numBytes)
{
	keys.push_back(note("down", bytes, numBytes));
}


void
key_view::KeyUp(const char* bytes, int32 numBytes)
{
	keys.push_back(note("up", bytes, numBytes));
}


void
send_key(QWidget& window, const stroke& key)
{
	QKeyEvent event(key.down ? QEvent::KeyPress : QEvent::KeyRelease, key.key, key.modifiers,
		key.scan_code, 0, 0, QString::fromUtf8(key.text), key.repeat);
	event.setTimestamp(key.time);
	QCoreApplication::sendEvent(window.windowHandle(), &event);
}


void
strike(robot& user, const std::vector<stroke>& strokes)
{
	user.settle();
	user.act([&](QWidget& window) {
		for (const stroke& each : strokes)
			send_key(window, each);
	});
	user.settle();
}


void
with_keyboard(const std::function<void(key_view&, test_window&, robot&)>& user)
{
	with_window([&](test_window& window, robot& hand) {
		auto& view = window.add(new key_view(BRect(0, 0, 99, 99)));
		window.locked([&] { view.MakeFocus(); });
		hand.settle();
		user(view, window, hand);
	});
}
