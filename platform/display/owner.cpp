// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/owner.h"

#include "display/window_widget.h"

#include <QApplication>
#include <QWindow>

using namespace kits;


// The window that has the keyboard, or else one that is shown.
static const window_widget*
window_in_use()
{
	if (auto* active = dynamic_cast<const window_widget*>(QApplication::activeWindow()))
		return active;
	for (const QWidget* widget : QApplication::topLevelWidgets()) {
		auto* window = dynamic_cast<const window_widget*>(widget);
		if (window && window->isVisible())
			return window;
	}
	return nullptr;
}


void
kits::tie_to_window(QWidget& dialog)
{
	const window_widget* window = window_in_use();
	if (!window)
		return;
	// Makes the dialog known to the display, which is told of the tie when it is shown.
	dialog.winId();
	dialog.windowHandle()->setTransientParent(window->windowHandle());
}
