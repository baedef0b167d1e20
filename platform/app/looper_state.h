// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KITS_LOOPER_STATE_H
#define KITS_LOOPER_STATE_H

#include "app/port.h"

#include <atomic>
#include <mutex>
#include <thread>

namespace kits {

struct looper_state {
	std::shared_ptr<port> messages = std::make_shared<port>();

	// The lock. Owner is read by other threads; depth and gone only with the lock held.
	std::recursive_timed_mutex lock;
	std::atomic<std::thread::id> owner{};
	int32 depth = 0;
	bool gone = false;
	// A window's: it has quit, though its object waits for the application's end.
	std::atomic<bool> retired{false};

	// The thread: made and joined with the lock held once. Ending is the looper's own thread's.
	std::thread thread;
	std::atomic<bool> started{false};
	std::atomic<std::thread::id> thread_id{};
	bool ending = false;
	bool delete_at_end = false;

	BMessage* current = nullptr;
	BHandler* preferred = nullptr;
};

}

#endif
