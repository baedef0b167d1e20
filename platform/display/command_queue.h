// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KITS_COMMAND_QUEUE_H
#define KITS_COMMAND_QUEUE_H

#include "display/display.h"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <QObject>
#include <thread>

namespace kits {

// Commands on their way to the display thread. The queue is its own, not the event loop's, so
// that it can be drained with a time budget: without one, painting starves under a flood.
class command_queue : public QObject {
public:
	void post(display::command work);
	// Carries out everything queued.
	void drain();
	bool event(QEvent* event) override;

private:
	bool _Next(display::command& work);
	// Works for one budget, then lets the event loop have its turn.
	void _Work();
	void _Wake();

	std::mutex fLock;
	std::condition_variable fShrunk;
	std::deque<display::command> fCommands;
	// Set from the first post until the queue is empty: one wake-up at a time.
	bool fWoken = false;
};

}

#endif
