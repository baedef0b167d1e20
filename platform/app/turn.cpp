// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "app/looper_state.h"

#include <chrono>

using namespace kits;


bool
turn::take(bigtime_t timeout)
{
	std::unique_lock guard(fLock);
	auto is_free = [this] { return !fTaken; };
	if (timeout == B_INFINITE_TIMEOUT)
		fFreed.wait(guard, is_free);
	else if (!fFreed.wait_for(guard, std::chrono::microseconds(timeout), is_free))
		return false;
	fTaken = true;
	return true;
}


// Tells the next with the guard still held: once it is free, the next may destroy all this.
void
turn::give()
{
	std::lock_guard guard(fLock);
	fTaken = false;
	fFreed.notify_one();
}
