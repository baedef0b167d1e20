// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
// A key of the display as a message of the platform.
#include "display/input.h"
#include "display/modifiers.h"

#include <AppDefs.h>
#include <InterfaceDefs.h>
#include <QKeyEvent>
#include <QString>

using namespace kits;


namespace {

// Keys that have a character of their own on the platform; 0 for all others.
char
control_character(int key)
{
	switch (key) {
		case Qt::Key_Backspace:
			return B_BACKSPACE;
		case Qt::Key_Tab:
		case Qt::Key_Backtab:
			return B_TAB;
		case Qt::Key_Return:
		case Qt::Key_Enter:
			return B_ENTER;
		case Qt::Key_Escape:
			return B_ESCAPE;
		case Qt::Key_Delete:
			return B_DELETE;
		case Qt::Key_Insert:
			return B_INSERT;
		case Qt::Key_Home:
			return B_HOME;
		case Qt::Key_End:
			return B_END;
		case Qt::Key_PageUp:
			return B_PAGE_UP;
		case Qt::Key_PageDown:
			return B_PAGE_DOWN;
		case Qt::Key_Left:
			return B_LEFT_ARROW;
		case Qt::Key_Right:
			return B_RIGHT_ARROW;
		case Qt::Key_Up:
			return B_UP_ARROW;
		case Qt::Key_Down:
			return B_DOWN_ARROW;
		default:
			return key >= Qt::Key_F1 && key <= Qt::Key_F35 ? B_FUNCTION_KEY : 0;
	}
}


// With Control the display's server makes control characters of digits and signs as well, some of
// which are Delete and the arrows on the platform. Those keys keep their own character.
bool
is_disguised(const QKeyEvent& event)
{
	const QString text = event.text();
	return text.size() == 1 && text[0].category() == QChar::Other_Control
		&& event.key() >= Qt::Key_Space && event.key() < 0x10000
		&& !QChar::isLetter((char32_t)event.key());
}


QByteArray
bytes_of(const QKeyEvent& event)
{
	if (char control = control_character(event.key()))
		return QByteArray(1, control);
	QString text = event.text();
	if (is_disguised(event))
		text = QChar((char16_t)event.key());
	return text.toUtf8();
}


// The character without modifiers.
int32
raw_character(const QKeyEvent& event)
{
	if (char control = control_character(event.key()))
		return control;
	if (event.key() > 0 && event.key() < 0x110000)
		return (int32)QChar::toLower((char32_t)event.key());
	return 0;
}

}


void
kits::post_key(int32 looper, bool down, const QKeyEvent& event, int32 repeat)
{
	QByteArray bytes = bytes_of(event);
	int32 raw = raw_character(event);
	// Bare Shift and the like; a Control combination without a character still is a key.
	bool mapped = !bytes.isEmpty() || raw != 0;
	BMessage message(
		mapped ? (down ? B_KEY_DOWN : B_KEY_UP) : (down ? B_UNMAPPED_KEY_DOWN : B_UNMAPPED_KEY_UP));
	message.AddInt64("when", system_time());
	message.AddInt32("key", (int32)event.nativeScanCode());
	message.AddInt32("modifiers", modifiers_of(event.modifiers()));
	if (mapped) {
		message.AddString("bytes", bytes.constData());
		for (char byte : bytes)
			message.AddInt8("byte", byte);
		message.AddInt32("raw_char", raw);
	}
	if (repeat > 0)
		message.AddInt32("be:key_repeat", repeat);
	post_to(looper, message);
}
