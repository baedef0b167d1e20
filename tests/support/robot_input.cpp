// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The user's hand on the pointer, the pen and the keys.
#include "support/robot.h"

#include <cctype>
#include <cmath>
#include <InterfaceDefs.h>
#include <QApplication>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPointingDevice>
#include <QTabletEvent>
#include <QUrl>
#include <QWidget>
#include <QWindow>


namespace {

Qt::MouseButtons
to_qt_buttons(int32 buttons)
{
	Qt::MouseButtons held = Qt::NoButton;
	if (buttons & B_PRIMARY_MOUSE_BUTTON)
		held |= Qt::LeftButton;
	if (buttons & B_SECONDARY_MOUSE_BUTTON)
		held |= Qt::RightButton;
	if (buttons & B_TERTIARY_MOUSE_BUTTON)
		held |= Qt::MiddleButton;
	return held;
}


Qt::KeyboardModifiers
to_qt_modifiers(int32 modifiers)
{
	Qt::KeyboardModifiers held = Qt::NoModifier;
	if (modifiers & B_SHIFT_KEY)
		held |= Qt::ShiftModifier;
	if (modifiers & B_CONTROL_KEY)
		held |= Qt::ControlModifier;
	if (modifiers & B_COMMAND_KEY)
		held |= Qt::AltModifier;
	return held;
}


// A user works in the active window. The display server's answer arrives before this returns.
void
activate(QWidget* window)
{
	if (QApplication::activeWindow() != nullptr)
		return;
	window->activateWindow();
	QGuiApplication::sync();
}

}


void
robot::_Pointer(int type, BPoint where, int32 button, int32 modifiers)
{
	settle();
	_Act([&] {
		QWidget* window = _Window();
		if (!window)
			return;
		activate(window);
		QPointF local(where.x, where.y);
		QMouseEvent event((QEvent::Type)type, local, local,
			window->windowHandle()->mapToGlobal(local), (Qt::MouseButton)(int)to_qt_buttons(button),
			to_qt_buttons(fHeld), to_qt_modifiers(modifiers));
		QCoreApplication::sendEvent(window->windowHandle(), &event);
	});
	settle();
}


void
robot::press(BPoint where, int32 button, int32 modifiers)
{
	fHeld |= button;
	_Pointer(QEvent::MouseButtonPress, where, button, modifiers);
}


void
robot::move(BPoint where, int32 modifiers)
{
	_Pointer(QEvent::MouseMove, where, 0, modifiers);
}


void
robot::release(BPoint where, int32 button, int32 modifiers)
{
	fHeld &= ~button;
	_Pointer(QEvent::MouseButtonRelease, where, button, modifiers);
}


void
robot::click(BPoint where, int32 button, int32 modifiers)
{
	press(where, button, modifiers);
	release(where, button, modifiers);
}


void
robot::wheel(BPoint where, float down, float across)
{
	settle();
	_Act([&] {
		QWidget* window = _Window();
		if (!window)
			return;
		QPointF local(where.x, where.y);
		QWheelEvent event(local, window->mapToGlobal(local), QPoint(),
			QPoint(-(int)std::lround(across * 120), -(int)std::lround(down * 120)), Qt::NoButton,
			Qt::NoModifier, Qt::NoScrollPhase, false);
		QCoreApplication::sendEvent(window->windowHandle(), &event);
	});
	settle();
}


void
robot::_Pen(int type, BPoint where, const pen& held)
{
	// Never destroyed: Qt keeps a list of devices to the end.
	static auto* const stylus = new QPointingDevice("stylus", 1, QInputDevice::DeviceType::Stylus,
		QPointingDevice::PointerType::Pen,
		QInputDevice::Capability::Position | QInputDevice::Capability::Pressure
			| QInputDevice::Capability::XTilt | QInputDevice::Capability::YTilt,
		1, 2);
	static auto* const rubber = new QPointingDevice("rubber", 2, QInputDevice::DeviceType::Stylus,
		QPointingDevice::PointerType::Eraser,
		QInputDevice::Capability::Position | QInputDevice::Capability::Pressure, 1, 2);
	settle();
	_Act([&] {
		QWidget* window = _Window();
		if (!window)
			return;
		QPointF local(where.x, where.y);
		bool moving = type == QEvent::TabletMove;
		QTabletEvent event((QEvent::Type)type, held.eraser ? rubber : stylus, local,
			window->windowHandle()->mapToGlobal(local), held.pressure, held.tilt_x, held.tilt_y, 0,
			0, 0, Qt::NoModifier, moving ? Qt::NoButton : Qt::LeftButton, to_qt_buttons(fHeld));
		QCoreApplication::sendEvent(window->windowHandle(), &event);
	});
	settle();
}


void
robot::pen_down(BPoint where, pen held)
{
	fHeld |= B_PRIMARY_MOUSE_BUTTON;
	_Pen(QEvent::TabletPress, where, held);
}


void
robot::pen_move(BPoint where, pen held)
{
	_Pen(QEvent::TabletMove, where, held);
}


void
robot::pen_up(BPoint where, pen held)
{
	fHeld &= ~B_PRIMARY_MOUSE_BUTTON;
	_Pen(QEvent::TabletRelease, where, held);
}


void
robot::drop(BPoint where, const std::vector<std::string>& paths)
{
	settle();
	_Act([&] {
		QWidget* window = _Window();
		if (!window)
			return;
		QMimeData data;
		QList<QUrl> urls;
		for (const std::string& path : paths)
			urls.append(QUrl::fromEncoded(
				"file://" + QByteArray::fromStdString(path).toPercentEncoding("/")));
		if (urls.isEmpty())
			data.setText("no files");
		else
			data.setUrls(urls);
		QPoint place((int)where.x, (int)where.y);
		QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
		QCoreApplication::sendEvent(window->windowHandle(), &enter);
		if (!enter.isAccepted())
			return;
		QDropEvent drop(QPointF(place), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
		QCoreApplication::sendEvent(window->windowHandle(), &drop);
	});
	settle();
}


void
robot::_Key(bool down, int key, const std::string& text, int32 modifiers)
{
	settle();
	bool repeat = down && !fKeysDown.insert(key).second;
	if (!down)
		fKeysDown.erase(key);
	_Act([&] {
		QWidget* window = _Window();
		if (!window)
			return;
		activate(window);
		QKeyEvent event(down ? QEvent::KeyPress : QEvent::KeyRelease, key,
			to_qt_modifiers(modifiers), QString::fromStdString(text), repeat);
		QCoreApplication::sendEvent(window->windowHandle(), &event);
	});
	settle();
}


void
robot::key_down(int key, const std::string& text, int32 modifiers)
{
	_Key(true, key, text, modifiers);
}


void
robot::key_up(int key, const std::string& text, int32 modifiers)
{
	_Key(false, key, text, modifiers);
}


void
robot::key(int which, const std::string& text, int32 modifiers)
{
	key_down(which, text, modifiers);
	key_up(which, text, modifiers);
}


void
robot::type(const std::string& text)
{
	for (char letter : text)
		key(toupper((unsigned char)letter), std::string(1, letter));
}
