// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/focus.h"

#include "display/field_peers.h"
#include "display/input.h"

#include <QFocusEvent>
#include <QWidget>


namespace {

bool quiet = false;

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


bool
kits::walk_focus(int32 looper, bool forward)
{
	BMessage message(focus_walks);
	message.AddBool("forward", forward);
	post_to(looper, message);
	return true;
}
