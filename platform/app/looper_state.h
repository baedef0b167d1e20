// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KITS_LOOPER_STATE_H
#define KITS_LOOPER_STATE_H

#include "app/port.h"

#include <atomic>
#include <latch>
#include <mutex>
#include <thread>

namespace kits {

// Who has it goes alone. Of a condition and not of a timed mutex, whose waiting the thread
// sanitizer cannot see.
class turn {
public:
	// False when it could not be had in that time, in microseconds.
	bool take(bigtime_t timeout);
	void give();

private:
	std::mutex fLock;
	std::condition_variable fFreed;
	bool fTaken = false;
};


struct looper_state {
	std::shared_ptr<port> messages = std::make_shared<port>();

	// The lock, whose owner may take it again. Owner is read by other threads; depth and gone only
	// with the lock held.
	turn lock;
	std::atomic<std::thread::id> owner{};
	int32 depth = 0;
	bool gone = false;
	// Threads inside of Lock(). The state outlives them.
	std::atomic<int32> waiting{0};
	// A window's: it has quit, though its object waits for the application's end.
	std::atomic<bool> retired{false};

	// The thread: made with the lock held. Several may wait for its end, one after the other.
	std::thread thread;
	std::mutex joining;
	std::atomic<bool> started{false};
	std::atomic<std::thread::id> thread_id{};
	// The thread's own; who waits for a looper that deletes itself needs something that stays.
	bool ending = false;
	bool delete_at_end = false;
	std::shared_ptr<std::latch> deleted = std::make_shared<std::latch>(1);

	BMessage* current = nullptr;
	BHandler* preferred = nullptr;
};

}

#endif
