// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_DESKTOP_PROGRAM_H
#define KERNIX_DESKTOP_PROGRAM_H

#include "desktop/support/child.h"

#include <memory>
#include <vector>

// The built program while it runs.
class program {
public:
	// Its two outputs go to files in `folder`.
	program(const std::vector<std::string>& arguments, const std::string& folder);

	bool has_ended() { return fProcess.status().has_value(); }
	// Waits for its end.
	int status();
	// What it has said on standard output, and on standard error. What Qt says there of its own
	// dealings with the server depends on how fast that answers, and is left out.
	std::string said() const;
	std::string complaints() const;
	// The tags of the tables of the font that was loaded last, in the order of its directory.
	std::vector<std::string> tags() const;

	// Stands for work that takes long: all the program's threads stop but the one that serves the
	// display, until this object goes. False where the system does not allow that.
	class busy {
	public:
		explicit busy(program& whose);
		~busy();
		busy(const busy&) = delete;
		busy& operator=(const busy&) = delete;

		bool is_possible() const { return !fThreads.empty(); }

	private:
		std::vector<pid_t> fThreads;
	};

private:
	std::string fSaid, fComplaints;
	child fProcess;
};

#endif
