// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_TESTS_ERRORS_H
#define KERNIX_TESTS_ERRORS_H

#include "faults/traced.h"

#include <vector>

// The errors that a call can answer with: those of disks, of file systems on other machines and in
// user processes, and of security modules. Not those of a wrong argument. All of them for a call that
// is not known here; none for one that cannot fail.
std::vector<int> errors_of(const system_call& call);

// Whether it changes something that is not the process's own, so that its answer can get lost.
bool changes_the_disk(const system_call& call);

// Whether it can move fewer bytes than it was told to.
bool moves_bytes(const system_call& call);

#endif
