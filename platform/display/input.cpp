// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/input.h"

#include "app/message_access.h"
#include "app/port.h"
#include "app/registry.h"
#include "display/modifiers.h"
#include "display/window_widget.h"

#include <algorithm>
#include <AppDefs.h>
#include <Entry.h>
#include <InterfaceDefs.h>
#include <QApplication>
#include <QMimeData>
#include <QMouseEvent>
#include <QPointingDevice>
#include <QScreen>
#include <QUrl>
#include <QWidget>
#include <sys/stat.h>
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


void
add_place(BMessage& message, const QWidget& widget, const QPointF& local, const QPointF& screen)
{
	QPointF where = widget.mapTo(widget.window(), local);
	message.AddPoint("where", BPoint((float)where.x(), (float)where.y()));
	message.AddPoint("screen_where", BPoint((float)screen.x(), (float)screen.y()));
	message.AddInt64("when", system_time());
}


// One more press in time and in place continues the count; Qt itself stops at two.
int32
count_clicks(const QSinglePointEvent& event)
{
	static int32 clicks = 0;
	static ulong last = 0;
	static QPointF place;
	bool again = clicks > 0
		&& event.timestamp() - last <= (ulong)QApplication::doubleClickInterval()
		&& (event.globalPosition() - place).manhattanLength() <= QApplication::startDragDistance();
	clicks = again ? clicks + 1 : 1;
	last = event.timestamp();
	place = event.globalPosition();
	return clicks;
}


std::unique_ptr<BMessage>
pointer_message(uint32 what, const QWidget& widget, const QSinglePointEvent& event)
{
	auto message = std::make_unique<BMessage>(what);
	add_place(*message, widget, event.position(), event.globalPosition());
	message->AddInt32("buttons", buttons_of(event.buttons()));
	message->AddInt32("modifiers", modifiers_of(event.modifiers()));
	if (what == B_MOUSE_DOWN)
		message->AddInt32("clicks", count_clicks(event));
	return message;
}


void
remember(const QWidget& widget, const BMessage& message)
{
	auto* window = dynamic_cast<window_widget*>(widget.window());
	if (!window)
		return;
	// What BView::GetMouse() answers with.
	window->pointer().set(message.FindPoint("where"), (uint32)message.FindInt32("buttons"));
	if (message.what == B_MOUSE_DOWN)
		window->ahead().pressed();
}


void
post_pointer_message(int32 looper, const QWidget& widget, std::unique_ptr<BMessage> message)
{
	remember(widget, *message);
	std::shared_ptr<port> messages = registry::port_of(looper);
	if (!messages)
		return;
	if (message->what == B_MOUSE_MOVED)
		messages->post_move(std::move(message), looper);
	else
		messages->post(std::move(message), looper);
}


// Where the pen is on its tablet. A tablet covers the whole desktop, so that the place on the
// desktop tells it; Qt does not pass the tablet's own numbers on.
BPoint
place_on_tablet(const QTabletEvent& event)
{
	QRectF desktop = QGuiApplication::primaryScreen()->virtualGeometry();
	QPointF place = event.globalPosition() - desktop.topLeft();
	return BPoint((float)std::clamp(place.x() / desktop.width(), 0.0, 1.0),
		(float)std::clamp(place.y() / desktop.height(), 0.0, 1.0));
}


void
post_tablet(int32 looper, uint32 what, const QWidget& widget, const QTabletEvent& event)
{
	// Degrees from upright at which a pen lies as flat as its tablet can tell.
	constexpr float flat = 60;
	std::unique_ptr<BMessage> message = pointer_message(what, widget, event);
	BPoint place = place_on_tablet(event);
	message->AddFloat("be:tablet_x", place.x);
	message->AddFloat("be:tablet_y", place.y);
	message->AddFloat("be:tablet_pressure", (float)event.pressure());
	if (event.pointingDevice()->hasCapability(QInputDevice::Capability::XTilt)) {
		message->AddFloat("be:tablet_tilt_x", std::clamp((float)event.xTilt() / flat, -1.0F, 1.0F));
		message->AddFloat("be:tablet_tilt_y", std::clamp((float)event.yTilt() / flat, -1.0F, 1.0F));
	}
	bool eraser = event.pointerType() == QPointingDevice::PointerType::Eraser;
	message->AddInt32("be:tablet_eraser", eraser ? 1 : 0);
	post_pointer_message(looper, widget, std::move(message));
}


void
post_wheel(int32 looper, const QWidget& widget, const QWheelEvent& event)
{
	QPoint turned = event.angleDelta();
	// A wheel that turns one way only goes across with Shift.
	if (event.modifiers() & Qt::ShiftModifier && turned.x() == 0)
		turned = turned.transposed();
	// Fingers have come down on a touchpad, or have left it.
	if (turned.isNull())
		return;
	// One notch is 120 of Qt's units and one of the platform's, which counts downward.
	BMessage message(B_MOUSE_WHEEL_CHANGED);
	add_place(message, widget, event.position(), event.globalPosition());
	message.AddFloat("be:wheel_delta_x", -(float)turned.x() / 120);
	message.AddFloat("be:wheel_delta_y", -(float)turned.y() / 120);
	post_to(looper, message);
}


// Empty for what is no file of this machine. Not by way of a QString: the name of a file is bytes,
// which need not be text.
QByteArray
path_of(const QUrl& url)
{
	const QString host = url.host();
	if (!url.isLocalFile() || (!host.isEmpty() && host != "localhost"))
		return {};
	const QByteArray path =
		QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1());
	return path.contains('\0') ? QByteArray() : path;
}

}


int32
kits::modifiers_of(Qt::KeyboardModifiers held)
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
kits::post_pointer(int32 looper, uint32 what, const QWidget& widget, const QMouseEvent& event)
{
	post_pointer_message(looper, widget, pointer_message(what, widget, event));
}


bool
kits::take_pointer(int32 looper, const QWidget& widget, QEvent& event)
{
	switch (event.type()) {
		case QEvent::MouseButtonPress:
		case QEvent::MouseButtonDblClick:
			post_pointer(looper, B_MOUSE_DOWN, widget, static_cast<QMouseEvent&>(event));
			break;
		case QEvent::MouseButtonRelease:
			post_pointer(looper, B_MOUSE_UP, widget, static_cast<QMouseEvent&>(event));
			break;
		case QEvent::MouseMove:
			post_pointer(looper, B_MOUSE_MOVED, widget, static_cast<QMouseEvent&>(event));
			break;
		case QEvent::TabletPress:
			post_tablet(looper, B_MOUSE_DOWN, widget, static_cast<QTabletEvent&>(event));
			break;
		case QEvent::TabletRelease:
			post_tablet(looper, B_MOUSE_UP, widget, static_cast<QTabletEvent&>(event));
			break;
		case QEvent::TabletMove:
			post_tablet(looper, B_MOUSE_MOVED, widget, static_cast<QTabletEvent&>(event));
			break;
		case QEvent::Wheel:
			post_wheel(looper, widget, static_cast<QWheelEvent&>(event));
			break;
		default:
			return false;
	}
	event.accept();
	return true;
}


void
kits::post_drop(int32 looper, const QWidget& window, const QDropEvent& event)
{
	BMessage message(B_SIMPLE_DATA);
	for (const QUrl& url : event.mimeData()->urls()) {
		const QByteArray path = path_of(url);
		struct stat found;
		entry_ref ref;
		if (stat(path.constData(), &found) == 0 && get_ref_for_path(path.constData(), &ref) == B_OK)
			message.AddRef("refs", &ref);
	}
	if (message.IsEmpty())
		return;
	QPointF screen = window.mapToGlobal(event.position());
	message_access::mark_dropped(message, BPoint((float)screen.x(), (float)screen.y()));
	message.AddPoint(drop_field, BPoint((float)event.position().x(), (float)event.position().y()));
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
