// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/x_keyboard.h"

#include <QAbstractNativeEventFilter>
#include <QGuiApplication>

// These name macros like the toolkit's own words; nothing of it may come after them.
#include <X11/XKBlib.h>
#include <xcb/xcb.h>

using namespace kits;


namespace {

::Display*
server()
{
	auto* application = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
	return application ? application->display() : nullptr;
}


class grab_watch : public QAbstractNativeEventFilter {
public:
	explicit grab_watch(void (*over)()) : fOver(over) {}

	bool nativeEventFilter(const QByteArray&, void* message, qintptr*) override
	{
		auto* event = static_cast<xcb_focus_in_event_t*>(message);
		if ((event->response_type & 0x7F) == XCB_FOCUS_IN && event->mode == XCB_NOTIFY_MODE_UNGRAB)
			fOver();
		return false;
	}

private:
	void (*const fOver)();
};

}


bool
x_keyboard::tells_releases()
{
	Bool granted = False;
	return server() && XkbSetDetectableAutoRepeat(server(), True, &granted) && granted;
}


bool
x_keyboard::is_down(uint32 code)
{
	char keys[32];
	XQueryKeymap(server(), keys);
	return code < 256 && keys[code / 8] >> (code % 8) & 1;
}


void
x_keyboard::watch_grabs(void (*over)())
{
	if (server())
		qGuiApp->installNativeEventFilter(new grab_watch(over));
}
