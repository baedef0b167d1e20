// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_DESKTOP_CHILD_H
#define KERNIX_DESKTOP_CHILD_H

#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

// A process that a journey starts; it never outlives the journey.
class child {
public:
	// Standard output and standard error go to these files; both may be the same.
	child(const std::vector<std::string>& command, const std::string& output,
		const std::string& errors);
	// Ends it, politely at first.
	~child();
	child(const child&) = delete;
	child& operator=(const child&) = delete;

	pid_t id() const { return fProcess; }
	// Nothing while it runs; then its exit status, or 128 and the signal that ended it.
	std::optional<int> status();

private:
	pid_t fProcess;
	std::optional<int> fStatus;
};

// The whole file; empty where there is none.
std::string text_of(const std::string& path);

#endif
