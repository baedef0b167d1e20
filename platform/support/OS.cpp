// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include <OS.h>

#include <cerrno>
#include <ctime>
#include <sched.h>
#include <unistd.h>

namespace {

constexpr int64 microseconds_per_second = 1000000;
constexpr int64 nanoseconds_per_microsecond = 1000;

}


status_t
snooze(bigtime_t microseconds)
{
	if (microseconds <= 0) {
		sched_yield();
		return B_OK;
	}
	const bigtime_t now = system_time();
	// A point in time, not a span: a signal then costs nothing but another call.
	const bigtime_t until =
		microseconds < B_INFINITE_TIMEOUT - now ? now + microseconds : B_INFINITE_TIMEOUT;
	timespec deadline = {};
	deadline.tv_sec = until / microseconds_per_second;
	deadline.tv_nsec = until % microseconds_per_second * nanoseconds_per_microsecond;
	while (clock_nanosleep(CLOCK_MONOTONIC, TIMER_ABSTIME, &deadline, nullptr) == EINTR) {
	}
	return B_OK;
}


bigtime_t
system_time()
{
	timespec now = {};
	clock_gettime(CLOCK_MONOTONIC, &now);
	// Rounded up: a sleep until a whole microsecond then never ends a part of one too early.
	return now.tv_sec * microseconds_per_second
		+ (now.tv_nsec + nanoseconds_per_microsecond - 1) / nanoseconds_per_microsecond;
}


thread_id
find_thread(const char* name)
{
	return name == nullptr ? gettid() : B_NAME_NOT_FOUND;
}
