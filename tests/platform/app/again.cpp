// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "platform/app/again.h"

#include "support/temp_files.h"

#include <algorithm>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <spawn.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace {

std::vector<std::string>
lines_of(const std::string& path)
{
	std::vector<std::string> lines;
	std::ifstream file(path);
	for (std::string line; std::getline(file, line);)
		lines.push_back(line);
	return lines;
}


std::vector<char*>
pointers(std::vector<std::string>& words)
{
	std::vector<char*> made;
	for (std::string& word : words)
		made.push_back(word.data());
	made.push_back(nullptr);
	return made;
}


std::vector<std::string>
environment_with(const std::vector<std::string>& settings)
{
	std::vector<std::string> all = settings;
	for (char** each = environ; *each; each++) {
		const std::string name(*each, strcspn(*each, "=") + 1);
		bool replaced = std::any_of(settings.begin(), settings.end(),
			[&](const std::string& setting) { return setting.starts_with(name); });
		if (!replaced)
			all.emplace_back(*each);
		// What the leak checker has to say of itself would stand among the complaints.
		if (name == "LSAN_OPTIONS=")
			all.back() += ":print_suppressions=0";
	}
	return all;
}


int
run(std::vector<std::string> words, std::vector<std::string> environment, const std::string& out,
	const std::string& err)
{
	posix_spawn_file_actions_t files;
	posix_spawn_file_actions_init(&files);
	constexpr int how = O_WRONLY | O_CREAT | O_TRUNC;
	posix_spawn_file_actions_addopen(&files, STDOUT_FILENO, out.c_str(), how, 0600);
	posix_spawn_file_actions_addopen(&files, STDERR_FILENO, err.c_str(), how, 0600);
	pid_t child = 0;
	int failed = posix_spawn(&child, "/proc/self/exe", &files, nullptr, pointers(words).data(),
		pointers(environment).data());
	posix_spawn_file_actions_destroy(&files);
	if (failed)
		throw std::runtime_error("the test program could not be started again");
	int status = 0;
	waitpid(child, &status, 0);
	return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}


ended
run_again(const std::string& test, const std::vector<std::string>& arguments,
	const std::vector<std::string>& settings)
{
	const temp_folder folder;
	std::vector<std::string> words = {
		"kits_tests", "--gtest_filter=" + test, "--gtest_also_run_disabled_tests"};
	words.insert(words.end(), arguments.begin(), arguments.end());
	ended result;
	result.status = run(words, environment_with(settings), folder.path("out"), folder.path("err"));
	result.output = lines_of(folder.path("out"));
	result.complaints = lines_of(folder.path("err"));
	return result;
}


std::vector<std::string>
lines_after(const std::string& word, const std::vector<std::string>& lines)
{
	std::vector<std::string> found;
	for (const std::string& line : lines) {
		if (line.starts_with(word + " "))
			found.push_back(line.substr(word.size() + 1));
	}
	return found;
}
