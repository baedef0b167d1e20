// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_OS_H
#define KITS_OS_H

#include <SupportDefs.h>

// Wait for ever.
#define B_INFINITE_TIMEOUT (0x7FFFFFFFFFFFFFFFLL)

#define B_NORMAL_PRIORITY 10
#define B_DISPLAY_PRIORITY 15

// Sleeps at least so many microseconds, whatever signals arrive, and returns B_OK. Zero or less
// only gives up the processor.
status_t snooze(bigtime_t microseconds);

// Microseconds since the system was started. Never goes back; the clock of every "when" field.
bigtime_t system_time(void);

// With NULL the calling thread, always positive. Threads carry no names here: any other argument
// answers B_NAME_NOT_FOUND.
thread_id find_thread(const char* name);

#endif
