// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include <OS.h>

#include <cerrno>
#include <ctime>
#include <sched.h>
#include <unistd.h>

namespace {

constexpr int64 kMicrosecondsPerSecond = 1000000;
constexpr int64 kNanosecondsPerMicrosecond = 1000;

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
	deadline.tv_sec = until / kMicrosecondsPerSecond;
	deadline.tv_nsec = until % kMicrosecondsPerSecond * kNanosecondsPerMicrosecond;
	while (clock_nanosleep(CLOCK_MONOTONIC, TIMER_ABSTIME, &deadline, nullptr) == EINTR) {
	}
	return B_OK;
}


bigtime_t
system_time(void)
{
	timespec now = {};
	clock_gettime(CLOCK_MONOTONIC, &now);
	// Rounded up: a sleep until a whole microsecond then never ends a part of one too early.
	return now.tv_sec * kMicrosecondsPerSecond
		+ (now.tv_nsec + kNanosecondsPerMicrosecond - 1) / kNanosecondsPerMicrosecond;
}


thread_id
find_thread(const char* name)
{
	return name == nullptr ? gettid() : B_NAME_NOT_FOUND;
}
