// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "desktop/support/child.h"

#include "desktop/support/until.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>


// Between fork and exec only calls that are safe there.
[[noreturn]] static void
become(char* const* arguments, const char* output, const char* errors)
{
	prctl(PR_SET_PDEATHSIG, SIGTERM);
	int out = open(output, O_WRONLY | O_CREAT | O_APPEND, 0600);
	int complaints = open(errors, O_WRONLY | O_CREAT | O_APPEND, 0600);
	int nothing = open("/dev/null", O_RDONLY);
	dup2(nothing, 0);
	dup2(out, 1);
	dup2(complaints, 2);
	close_range(3, ~0u, 0);
	execvp(arguments[0], arguments);
	_exit(127);
}


child::child(
	const std::vector<std::string>& command, const std::string& output, const std::string& errors)
{
	std::vector<char*> arguments;
	for (const std::string& each : command)
		arguments.push_back(const_cast<char*>(each.c_str()));
	arguments.push_back(nullptr);
	fProcess = fork();
	if (fProcess == 0)
		become(arguments.data(), output.c_str(), errors.c_str());
	if (fProcess < 0)
		throw journey_failed("no process for " + command[0] + ": " + strerror(errno));
}


child::~child()
{
	if (status())
		return;
	kill(fProcess, SIGTERM);
	if (!comes_within(5'000, [&] { return status().has_value(); })) {
		kill(fProcess, SIGKILL);
		waitpid(fProcess, nullptr, 0);
	}
}


std::optional<int>
child::status()
{
	int ended = 0;
	if (!fStatus && waitpid(fProcess, &ended, WNOHANG) == fProcess)
		fStatus = WIFEXITED(ended) ? WEXITSTATUS(ended) : 128 + WTERMSIG(ended);
	return fStatus;
}


std::string
text_of(const std::string& path)
{
	std::ifstream file(path);
	return {std::istreambuf_iterator<char>(file), {}};
}
