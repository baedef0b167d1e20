// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/focus.h"

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
kits::focus_leaves_quietly()
{
	return quiet;
}
