// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_TESTS_AGAIN_H
#define KITS_TESTS_AGAIN_H

#include <string>
#include <vector>

// How a process ended and what it wrote.
struct ended {
	// Exit status; -1 when it ended in another way.
	int status = -1;
	std::vector<std::string> output;
	std::vector<std::string> complaints;
};

// Runs one of this program's tests, which is disabled otherwise, in a process of its own: for what
// a process can do only once, or only at its end. Arguments come after the program's name; settings
// ("NAME=value") replace what the environment has. Waits for the end.
ended run_again(const std::string& test, const std::vector<std::string>& arguments = {},
	const std::vector<std::string>& settings = {});

// The rest of each line that starts with the word.
std::vector<std::string> lines_after(
	const std::string& word, const std::vector<std::string>& lines);

#endif
