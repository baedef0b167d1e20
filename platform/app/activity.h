// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KITS_ACTIVITY_H
#define KITS_ACTIVITY_H

#include <SupportDefs.h>

// Counts what is under way in all threads: a message or display command from the moment it is
// queued until it has been handled, its repainting included. Whoever drives the program from
// outside waits for zero. Any thread.
namespace kits::activity {

void begin();
void end();

// What is under way now.
int64 pending();
// How many things have ever begun; unchanged means that nothing happened in between.
int64 generation();

}

#endif
