// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "memory.h"

#include "font/ttf.h"
#include "quiet.h"
#include <File.h>
#include <filesystem>
#include <fstream>
#include <limits>
#include <sys/wait.h>
#include <unistd.h>

namespace {

const double mebi = 1 << 20;

struct growth {
	double loading;
	double saving;
};

}


// A size that the system tells of this process, in bytes; 0 when it does not.
static double
own_size(const char* name)
{
	std::ifstream status("/proc/self/status");
	std::string word;
	double kibi = 0;
	while (status >> word && word != name)
		status.ignore(std::numeric_limits<std::streamsize>::max(), '\n');
	status >> kibi;
	return kibi * 1024;
}


// Ends the process.
[[noreturn]] static void
load_and_report(const std::string& path, int pipe)
{
	double before = own_size("VmRSS:");
	BFile source(path.c_str(), B_READ_ONLY);
	BFile target("/dev/null", B_WRITE_ONLY);
	ttf font;
	growth grown = {0, 0};
	bool loaded = font.load(source) == 0;
	grown.loading = own_size("VmHWM:") - before;
	bool saved = loaded && font.save(target) == 0;
	grown.saving = own_size("VmHWM:") - before;
	bool told = saved && write(pipe, &grown, sizeof grown) == sizeof grown;
	_exit(told ? 0 : 1);
}


static bool
measure(const std::string& path, growth& grown)
{
	quiet nothing_said;
	int ends[2];
	if (pipe(ends) != 0)
		return false;
	pid_t child = fork();
	if (child == 0)
		load_and_report(path, ends[1]);
	close(ends[1]);
	bool told = read(ends[0], &grown, sizeof grown) == sizeof grown;
	close(ends[0]);
	int status;
	return child > 0 && waitpid(child, &status, 0) == child && status == 0 && told;
}


void
memory(benchmark::State& state, const std::string& font)
{
	growth grown = {0, 0};
	while (state.KeepRunning()) {
		if (!measure(font, grown))
			state.SkipWithError("cannot be loaded and saved");
	}
	double size = (double)std::filesystem::file_size(font);
	state.counters["file_MiB"] = size / mebi;
	state.counters["load_MiB"] = grown.loading / mebi;
	state.counters["save_MiB"] = grown.saving / mebi;
	state.counters["x_file"] = grown.saving / size;
	state.counters["of_limit"] = grown.saving / (1.25 * size + 12 * mebi);
}
