// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KITS_DISPLAY_H
#define KITS_DISPLAY_H

#include <functional>

// The display thread: the process's main thread once it serves. It owns every widget, waits for
// nobody and takes no looper's lock; the other threads give it commands, which it carries out in
// order.
namespace kits::display {

using command = std::function<void()>;

// Makes the connection to the display, once per process; the calling thread becomes the display
// thread. Without a display: one line on standard error and exit status 1.
void start();
// False before start(): nothing that needs fonts works then. Any thread.
bool running();
bool serving();
// True on the display thread while it serves.
bool serving_here();
// True on Wayland, where the server alone knows the windows' places and suggests their sizes. After
// start(), any thread.
bool server_places_windows();

// Queues a command. Any thread. Waits only when thousands are queued.
void post(command work);
// Carries out a command on the display and waits for it, with everything queued before it. Any
// thread; on the display thread itself at once.
void call(const command& work);

// Carries out commands and events until stop(). Display thread.
void serve();
// Ends serve() after what is queued. Any thread.
void stop();
// Carries out what is queued now. Display thread, not while serving.
void drain();

}

#endif
