// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/focus.h"

#include "display/field_peers.h"
#include "display/input.h"

#include <QFocusEvent>
#include <QVariant>
#include <QWidget>


namespace {

bool quiet = false;

constexpr const char* serial_property = "focus_serial";

}


void
kits::leave_quietly(const QWidget& widget)
{
	QWidget* focus = widget.window()->focusWidget();
	if (!focus || (focus != &widget && !widget.isAncestorOf(focus)))
		return;
	quiet = true;
	focus->clearFocus();
	quiet = false;
}


bool
kits::focus_moves(const QFocusEvent& event)
{
	if (quiet)
		return false;
	switch (event.reason()) {
		case Qt::ActiveWindowFocusReason:
		case Qt::PopupFocusReason:
		case Qt::MenuBarFocusReason:
			return false;
		default:
			return true;
	}
}


void
kits::report_focus(const QWidget& widget, const QFocusEvent& event, report_address report)
{
	if (!focus_moves(event))
		return;
	BMessage message(event.gotFocus() ? focus_gained : focus_lost);
	message.AddInt32("serial", widget.window()->property(serial_property).toInt());
	post_to(report.looper, report.handler, message);
}


void
kits::set_focus_serial(QWidget& window, int32 serial)
{
	window.setProperty(serial_property, serial);
}


bool
kits::walk_focus(int32 looper, bool forward)
{
	BMessage message(focus_walks);
	message.AddBool("forward", forward);
	post_to(looper, message);
	return true;
}
