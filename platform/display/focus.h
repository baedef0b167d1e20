// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_FOCUS_H
#define KITS_FOCUS_H

#include "display/control_peers.h"

#include <SupportDefs.h>

class QFocusEvent;
class QWidget;

namespace kits {

// Takes the display's keyboard focus from the widget and all in it, without a word to the kit: the
// widget is about to be hidden or to go, which moves no focus there. Display thread.
void leave_quietly(const QWidget& widget);

// False for what is no move of the keyboard as far as the kit knows: a window losing activation, a
// menu opening, a widget that leaves quietly.
bool focus_moves(const QFocusEvent& event);

// Tells the kit's view that the widget has got the display's keyboard or has lost it, unless that is
// no move of it; with the serial of the program's change of focus that the widget's window has made
// last. What was reported before the program moved the keyboard again is out of date.
void report_focus(const QWidget& widget, const QFocusEvent& event, report_address report);
void set_focus_serial(QWidget& window, int32 serial);

// Asks the window who is next in the walk through its controls: the kit decides, not the toolkit.
// True, so that the toolkit does nothing.
bool walk_focus(int32 looper, bool forward);

}

#endif
