// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "freehand.h"
#include "glyphs.h"
#include "load_save.h"
#include "memory.h"
#include "support/installed_fonts.h"
#include <cstdio>
#include <filesystem>
#include <vector>


// The fonts named on the command line, or a small one and two large ones as far as they are here.
static std::vector<std::string>
fonts(int count, char** names)
{
	std::vector<std::string> found(names, names + count);
	if (!found.empty())
		return found;
	for (const char* name : {"DejaVuSans.ttf", "ipag.ttf", "ipam.ttf"}) {
		std::string path = installed_font(name);
		if (path.empty())
			fprintf(stderr, "%s is not installed and left out\n", name);
		else
			found.push_back(path);
	}
	return found;
}


int
main(int argc, char** argv)
{
	// As the program has it.
	setvbuf(stdout, nullptr, _IOLBF, BUFSIZ);
	benchmark::Initialize(&argc, argv);
	// Memory first: what earlier measurements freed would be used again and count for nothing.
	for (const std::string& path : fonts(argc - 1, argv + 1)) {
		std::string name = std::filesystem::path(path).filename();
		benchmark::RegisterBenchmark(("memory/" + name).c_str(), memory, path)->Iterations(1);
	}
	for (const std::string& path : fonts(argc - 1, argv + 1)) {
		std::string name = std::filesystem::path(path).filename();
		benchmark::RegisterBenchmark(("load_save/" + name).c_str(), load_and_save, path)
			->UseManualTime()
			->Unit(benchmark::kMillisecond)
			->Repetitions(7)
			->ReportAggregatesOnly();
	}
	const struct {
		const char* name;
		void (*work)(benchmark::State&, const std::string&);
		benchmark::TimeUnit unit;
	} on_glyphs[] = {{"decode", decode_glyphs, benchmark::kMillisecond},
		{"commit", commit_glyphs, benchmark::kMillisecond},
		{"recount", recount_glyphs, benchmark::kMicrosecond},
		{"lowest_character", lowest_characters, benchmark::kMillisecond}};
	for (const auto& each : on_glyphs) {
		for (const std::string& path : fonts(argc - 1, argv + 1)) {
			std::string name = std::filesystem::path(path).filename();
			benchmark::RegisterBenchmark((each.name + ("/" + name)).c_str(), each.work, path)
				->UseManualTime()
				->Unit(each.unit)
				->Repetitions(7)
				->ReportAggregatesOnly();
		}
	}
	const struct {
		int points;
		int width;
	} strokes[] = {{100, 10}, {1000, 10}, {10000, 10}, {10000, 100}};
	for (const auto& each : strokes) {
		std::string name =
			"trace/" + std::to_string(each.points) + "/" + std::to_string(each.width);
		benchmark::RegisterBenchmark(name.c_str(), trace_stroke, each.points, each.width)
			->UseManualTime()
			->Unit(benchmark::kMillisecond);
	}
	benchmark::RunSpecifiedBenchmarks();
	benchmark::Shutdown();
	return 0;
}
