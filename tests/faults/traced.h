// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_TESTS_TRACED_H
#define KERNIX_TESTS_TRACED_H

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

// As it was made, with the system's number for it.
struct system_call {
	long number;
	std::array<unsigned long, 6> arguments;
};

// "openat"; "call 999" for one that nobody has named here yet.
std::string name_of(const system_call& call);

// "ENOSPC".
std::string name_of_error(int error);

// What happens to one system call of a process.
enum class trouble {
	NONE,
	REFUSED,     // it fails and does nothing
	ANSWER_LOST, // it does all and is said to have failed, as by a server that is far away
	HALVED,      // it moves half of the bytes it was told to
	OVERTAKEN,   // just before it another program does something
	KILLED_BEFORE,
	KILLED_AFTER,
};

struct fault {
	size_t call = 0; // counted from 0
	trouble kind = trouble::NONE;
	int error = 0; // of the system
	std::function<void()> meanwhile = nullptr;
};

// The error number with which a call always fails where the process runs, 0 for none.
using rules = std::function<int(const system_call&)>;

struct ended_run {
	bool killed = false;            // or aborted
	int answer = 0;                 // of the work
	int left_open = 0;              // descriptors
	std::vector<system_call> calls; // up to the one with the fault
};

// False where this system does not let a process trace its child, or is of a kind that is not known
// here.
bool can_trace();

// Runs `prepare` and `work` in a process of its own, and `work` under the rules and with the fault. Calls
// for memory are left alone and not counted. Throws std::runtime_error when the process cannot be traced.
ended_run run_traced(const std::function<void()>& prepare, const std::function<int()>& work,
	const rules& always, const fault& once);

#endif
