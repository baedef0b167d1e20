// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_INPUT_H
#define KITS_INPUT_H

#include <Message.h>
#include <SupportDefs.h>

class QDropEvent;
class QEvent;
class QKeyEvent;
class QMouseEvent;
class QWidget;

namespace kits {

// Turns what a widget was told into a message to its window's looper. "where" is in window
// coordinates. Display thread; never waits.
void post_pointer(int32 looper, uint32 what, const QWidget& widget, const QMouseEvent& event);
// Posts what a pointer, a pen or a wheel did to the widget; false for any other event. What is
// posted is taken: ignored it would climb to the parent widget and count there again, and a pen
// would come back as a mouse. A pen's message is the pointer's with the pen's own fields.
bool take_pointer(int32 looper, const QWidget& widget, QEvent& event);
// Files that were dropped; drop_field holds the place in window coordinates. Nothing without files.
void post_drop(int32 looper, const QWidget& window, const QDropEvent& event);
constexpr const char* drop_field = "_drop_where_";
// A key of the window that no control has taken. Repeats are counted from 1; 0 is none.
void post_key(int32 looper, bool down, const QKeyEvent& event, int32 repeat);
// Queues a message for a looper itself, or for one of its handlers.
void post_to(int32 looper, const BMessage& message);
void post_to(int32 looper, int32 handler, const BMessage& message);

}

#endif
