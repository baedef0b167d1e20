// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_INPUT_H
#define KITS_INPUT_H

#include <Message.h>
#include <SupportDefs.h>

class QDropEvent;
class QKeyEvent;
class QMouseEvent;
class QTabletEvent;
class QWheelEvent;
class QWidget;

namespace kits {

// Turns what a widget was told into a message to its window's looper. "where" is in window
// coordinates. Display thread; never waits.
void post_pointer(int32 looper, uint32 what, const QWidget& widget, const QMouseEvent& event);
// A pen: the pointer's message with the pen's own fields.
void post_tablet(int32 looper, uint32 what, const QWidget& widget, const QTabletEvent& event);
// Files that were dropped; drop_field holds the place in window coordinates. Nothing without files.
void post_drop(int32 looper, const QWidget& window, const QDropEvent& event);
constexpr const char* drop_field = "_drop_where_";
// A key of the window that no control has taken. Repeats are counted from 1; 0 is none.
void post_key(int32 looper, bool down, const QKeyEvent& event, int32 repeat);
void post_wheel(int32 looper, const QWidget& widget, const QWheelEvent& event);
// Queues a message for a looper itself, or for one of its handlers.
void post_to(int32 looper, const BMessage& message);
void post_to(int32 looper, int32 handler, const BMessage& message);

}

#endif
