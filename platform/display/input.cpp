// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/input.h"

#include "app/port.h"
#include "app/registry.h"

#include <AppDefs.h>
#include <InterfaceDefs.h>
#include <QApplication>
#include <QMouseEvent>
#include <QWidget>
#include <View.h>

using namespace kits;


namespace {

int32
buttons_of(Qt::MouseButtons held)
{
	int32 buttons = 0;
	if (held & Qt::LeftButton)
		buttons |= B_PRIMARY_MOUSE_BUTTON;
	if (held & Qt::RightButton)
		buttons |= B_SECONDARY_MOUSE_BUTTON;
	if (held & Qt::MiddleButton)
		buttons |= B_TERTIARY_MOUSE_BUTTON;
	return buttons;
}


int32
modifiers_of(Qt::KeyboardModifiers held)
{
	int32 modifiers = 0;
	if (held & Qt::ShiftModifier)
		modifiers |= B_SHIFT_KEY;
	if (held & Qt::ControlModifier)
		modifiers |= B_CONTROL_KEY;
	if (held & (Qt::AltModifier | Qt::MetaModifier))
		modifiers |= B_COMMAND_KEY;
	return modifiers;
}


void
add_place(BMessage& message, const QWidget& widget, const QPointF& local, const QPointF& screen)
{
	QPointF where = widget.mapTo(widget.window(), local);
	message.AddPoint("where", BPoint((float)where.x(), (float)where.y()));
	message.AddPoint("screen_where", BPoint((float)screen.x(), (float)screen.y()));
	message.AddInt64("when", system_time());
}


// Qt counts single and double presses only; the platform counts on.
int32
count_clicks(const QMouseEvent& event)
{
	static int32 clicks = 0;
	static ulong last = 0;
	static QPointF place;
	bool again = event.timestamp() - last <= (ulong)QApplication::doubleClickInterval()
		&& (event.globalPosition() - place).manhattanLength() <= QApplication::startDragDistance();
	clicks = again ? clicks + 1 : 1;
	last = event.timestamp();
	place = event.globalPosition();
	return clicks;
}

}


void
kits::post_pointer(int32 looper, uint32 what, const QWidget& widget, const QMouseEvent& event)
{
	auto message = std::make_unique<BMessage>(what);
	add_place(*message, widget, event.position(), event.globalPosition());
	message->AddInt32("buttons", buttons_of(event.buttons()));
	message->AddInt32("modifiers", modifiers_of(event.modifiers()));
	if (what == B_MOUSE_DOWN)
		message->AddInt32("clicks", count_clicks(event));
	std::shared_ptr<port> messages = registry::port_of(looper);
	if (!messages)
		return;
	if (what == B_MOUSE_MOVED)
		messages->post_move(std::move(message), looper);
	else
		messages->post(std::move(message), looper);
}


void
kits::post_wheel(int32 looper, const QWidget& widget, const QWheelEvent& event)
{
	// One notch is 120 of Qt's units and one of the platform's, which counts downward.
	BMessage message(B_MOUSE_WHEEL_CHANGED);
	add_place(message, widget, event.position(), event.globalPosition());
	message.AddFloat("be:wheel_delta_x", -(float)event.angleDelta().x() / 120);
	message.AddFloat("be:wheel_delta_y", -(float)event.angleDelta().y() / 120);
	post_to(looper, message);
}


void
kits::post_to(int32 looper, const BMessage& message)
{
	post_to(looper, looper, message);
}


void
kits::post_to(int32 looper, int32 handler, const BMessage& message)
{
	if (std::shared_ptr<port> messages = registry::port_of(looper))
		messages->post(std::make_unique<BMessage>(message), handler);
}
