// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "desktop/support/program.h"

#include "desktop/support/until.h"

#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <sys/ptrace.h>
#include <sys/wait.h>


static std::vector<std::string>
command(const std::vector<std::string>& arguments)
{
	const char* another = getenv("KERNIX_PROGRAM");
	std::vector<std::string> all = {another == nullptr ? KERNIX_PROGRAM : another};
	all.insert(all.end(), arguments.begin(), arguments.end());
	return all;
}


program::program(const std::vector<std::string>& arguments, const std::string& folder)
	: fSaid(folder + "/said"),
	  fComplaints(folder + "/complaints"),
	  fProcess(command(arguments), fSaid, fComplaints)
{
}


int
program::status()
{
	until("the program does not end", [&] { return has_ended(); });
	return *fProcess.status();
}


std::string
program::said() const
{
	return text_of(fSaid);
}


std::string
program::complaints() const
{
	std::string kept;
	std::istringstream lines(text_of(fComplaints));
	for (std::string line; std::getline(lines, line);) {
		if (!line.starts_with("qt.qpa."))
			kept += line + "\n";
	}
	return kept;
}


std::vector<std::string>
program::tags() const
{
	std::vector<std::string> all;
	bool loading = false;
	std::istringstream lines(said());
	for (std::string line; std::getline(lines, line);) {
		if (line == "kernix:load")
			all.clear();
		if (line.starts_with("kernix:"))
			loading = line == "kernix:load";
		if (loading && line.starts_with("name=["))
			all.push_back(line.substr(6, 4));
	}
	return all;
}


// Threads have the name of the process unless somebody else made them.
program::busy::busy(program& whose)
{
	pid_t process = whose.fProcess.id();
	std::string threads = "/proc/" + std::to_string(process) + "/task";
	std::string name = text_of("/proc/" + std::to_string(process) + "/comm");
	for (const auto& each : std::filesystem::directory_iterator(threads)) {
		pid_t thread = std::stoi(each.path().filename());
		if (thread == process || text_of(each.path() / "comm") != name)
			continue;
		if (ptrace(PTRACE_SEIZE, thread, nullptr, nullptr) != 0)
			continue;
		fThreads.push_back(thread);
		ptrace(PTRACE_INTERRUPT, thread, nullptr, nullptr);
		waitpid(thread, nullptr, __WALL);
	}
}


program::busy::~busy()
{
	for (pid_t each : fThreads)
		ptrace(PTRACE_DETACH, each, nullptr, nullptr);
}
