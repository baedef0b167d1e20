// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_FOCUS_H
#define KITS_FOCUS_H

class QWidget;

namespace kits {

// Takes the display's keyboard focus from the widget and all in it, without a word to the kit: the
// widget is about to be hidden or to go, which moves no focus there. Display thread.
void leave_quietly(const QWidget& widget);

// True while that happens.
bool focus_leaves_quietly();

}

#endif
