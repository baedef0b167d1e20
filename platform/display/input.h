// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_INPUT_H
#define KITS_INPUT_H

#include <Message.h>
#include <SupportDefs.h>

class QMouseEvent;
class QWheelEvent;
class QWidget;

namespace kits {

// Turns what a widget was told into a message to its window's looper. "where" is in window
// coordinates. Display thread; never waits.
void post_pointer(int32 looper, uint32 what, const QWidget& widget, const QMouseEvent& event);
void post_wheel(int32 looper, const QWidget& widget, const QWheelEvent& event);
// Queues a message for a looper itself, or for one of its handlers.
void post_to(int32 looper, const BMessage& message);
void post_to(int32 looper, int32 handler, const BMessage& message);

}

#endif
