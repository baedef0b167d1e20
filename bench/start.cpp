// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// bench_start: from starting a process to its first painted window, the program beside a bare
// window of Qt; from asking for a font to its painted tags; and the memory taken then. The processes
// run in turns; what is shown are medians.

#include "support/installed_fonts.h"
#include <algorithm>
#include <chrono>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace fs = std::filesystem;

namespace {

const int rounds = 20;
const double mebi = 1 << 20;

// What processes of one kind said, by the first word of the line; times from their start.
using answers = std::map<std::string, std::vector<double>>;

}


static double
now()
{
	return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch())
		.count();
}


static double
median(std::vector<double> values)
{
	if (values.empty())
		return 0;
	auto middle = values.begin() + (ptrdiff_t)values.size() / 2;
	std::nth_element(values.begin(), middle, values.end());
	return *middle;
}


// Runs a neighbour of this program and takes down what it says.
static void
run(const std::string& name, answers& said)
{
	static const fs::path folder = fs::read_symlink("/proc/self/exe").parent_path();
	std::string program = folder / name;
	char* arguments[] = {program.data(), nullptr};
	int ends[2];
	if (pipe(ends) != 0)
		exit(1);
	posix_spawn_file_actions_t wiring;
	posix_spawn_file_actions_init(&wiring);
	posix_spawn_file_actions_adddup2(&wiring, ends[1], STDOUT_FILENO);
	posix_spawn_file_actions_addclose(&wiring, ends[0]);
	pid_t child = 0;
	double start = now();
	int failed = posix_spawn(&child, program.c_str(), &wiring, nullptr, arguments, environ);
	posix_spawn_file_actions_destroy(&wiring);
	close(ends[1]);
	FILE* lines = fdopen(ends[0], "r");
	char line[LINE_MAX];
	while (failed == 0 && fgets(line, sizeof line, lines) != nullptr) {
		char word[16];
		double value;
		if (sscanf(line, "%15s %lf", word, &value) == 2)
			said[word].push_back(std::string(word) == "resident" ? value : value - start);
	}
	fclose(lines);
	int status = 0;
	if (failed != 0 || waitpid(child, &status, 0) != child || status != 0) {
		fprintf(stderr, "%s failed\n", name.c_str());
		exit(1);
	}
}


static void
show(const char* what, const std::string& font, double value, const char* unit, double allowed)
{
	printf("%-28s %-16s %8.1f %-4s", what, font.c_str(), value, unit);
	if (allowed > 0)
		printf(" %6.2f of the %.1f %s allowed", value / allowed, allowed, unit);
	printf("\n");
}


static void
show_font(const std::string& path, const answers& said, double bare)
{
	std::string name = fs::path(path).filename();
	std::vector<double> taken = said.at("opened");
	for (size_t i = 0; i < taken.size(); i++)
		taken[i] -= said.at("asked")[i];
	show("open to painted", name, median(taken) * 1e3, "ms", 0);
	show("resident after opening", name, median(said.at("resident")) / mebi, "MiB",
		bare + 1.3 * (double)fs::file_size(path) / mebi + 15);
}


int
main()
{
	std::vector<std::string> fonts;
	for (const char* name : {"DejaVuSans.ttf", "ipag.ttf"}) {
		if (!installed_font(name).empty())
			fonts.push_back(installed_font(name));
	}
	answers bare, program;
	std::vector<answers> opening(fonts.size());
	answers unmeasured;
	run("bench_bare", unmeasured);
	run("bench_program", unmeasured);
	for (int i = 0; i < rounds; i++) {
		unsetenv("BENCH_FONT");
		run("bench_bare", bare);
		run("bench_program", program);
		for (size_t k = 0; k < fonts.size(); k++) {
			setenv("BENCH_FONT", fonts[k].c_str(), 1);
			run("bench_program", opening[k]);
		}
	}
	double bare_paint = median(bare["painted"]) * 1e3;
	double bare_size = median(bare["resident"]) / mebi;
	show("start to painted, bare Qt", "", bare_paint, "ms", 0);
	show("start to painted", "", median(program["painted"]) * 1e3, "ms", 2 * bare_paint);
	show("resident, bare Qt", "", bare_size, "MiB", 0);
	show("resident", "", median(program["resident"]) / mebi, "MiB", 0);
	for (size_t k = 0; k < fonts.size(); k++)
		show_font(fonts[k], opening[k], bare_size);
	return 0;
}
