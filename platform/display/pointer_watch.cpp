// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/pointer_watch.h"

#include "display/input.h"
#include "display/view_widget.h"
#include "display/window_widget.h"

#include <AppDefs.h>
#include <QMouseEvent>

using namespace kits;


namespace {

// 0 for what the pointer does not do.
uint32
code_of(const QEvent& event)
{
	switch (event.type()) {
		case QEvent::MouseButtonPress:
		case QEvent::MouseButtonDblClick:
			return B_MOUSE_DOWN;
		case QEvent::MouseButtonRelease:
			return B_MOUSE_UP;
		case QEvent::MouseMove:
			return B_MOUSE_MOVED;
		default:
			return 0;
	}
}

}


bool
pointer_watch::eventFilter(QObject* watched, QEvent* event)
{
	uint32 what = code_of(*event);
	if (!what || !watched->isWidgetType())
		return false;
	auto* widget = static_cast<QWidget*>(watched);
	auto* window = dynamic_cast<window_widget*>(widget->window());
	// These two post what they are told themselves.
	bool posts = widget == window || dynamic_cast<view_widget*>(widget);
	auto& pointer = static_cast<QMouseEvent&>(*event);
	if (window && !posts && _IsNew(pointer))
		post_pointer(window->looper(), what, *widget, pointer);
	return false;
}


// False for an event that a part of a control did not want and that its parent gets now.
bool
pointer_watch::_IsNew(const QMouseEvent& event)
{
	bool known = fType == event.type() && fTime == event.timestamp()
		&& fPlace == event.globalPosition() && fHeld == event.buttons();
	fType = event.type();
	fTime = event.timestamp();
	fPlace = event.globalPosition();
	fHeld = event.buttons();
	return !known;
}
