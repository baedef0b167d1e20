// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Runs a target over files and folders of files, for compilers without a fuzzer. Fails when an
// input takes more than it may.
#include "fuzz.h"

#include "support/temp_files.h"
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <sys/resource.h>


// The most that this process has had in memory so far.
static long
megabytes()
{
	rusage usage = {};
	getrusage(RUSAGE_SELF, &usage);
	return usage.ru_maxrss / 1024;
}


static int
replay(const std::filesystem::path& file)
{
	const octets contents = read_file(file.string());
	// Before it is tried: it may be the last.
	fprintf(stderr, "%s\n", file.c_str());
	LLVMFuzzerTestOneInput(contents.data(), contents.size());
	if (megabytes() > most_megabytes) {
		fprintf(stderr, "this input takes %ld MB\n", megabytes());
		exit(1);
	}
	return 1;
}


int
main(int count, char** paths)
{
	int inputs = 0;
	for (int i = 1; i < count; i++) {
		if (!std::filesystem::is_directory(paths[i])) {
			inputs += replay(paths[i]);
			continue;
		}
		for (const auto& entry : std::filesystem::directory_iterator(paths[i]))
			inputs += replay(entry.path());
	}
	fprintf(stderr, "%d inputs, up to %ld MB\n", inputs, megabytes());
	// Nothing to replay is a mistake of whoever asked.
	return inputs > 0 ? 0 : 1;
}
