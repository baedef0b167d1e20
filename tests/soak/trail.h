// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_SOAK_TRAIL_H
#define KERNIX_SOAK_TRAIL_H

#include <string>

// What the user has done: for whoever has to find out what led to a crash, a hang or a report. Every
// action is in the log before it is begun; the last ones are printed when the process dies of what a
// sanitizer finds, and when an action does not come to its end.
namespace trail {

// Starts writing to this file and watching: an action that has not ended after so many seconds ends
// the process. Called once.
void begin(const std::string& log, int patience);
// Ends the watching.
void end();

// A session begins; the log keeps only the one under way.
void session(const std::string& name);
void note(const std::string& action);

// The last actions, on standard error.
void print();

}

#endif
