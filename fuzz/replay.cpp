// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Runs a target over files and folders of files, for compilers without a fuzzer.
#include "fuzz.h"

#include "support/temp_files.h"
#include <cstdio>
#include <filesystem>


static int
replay(const std::filesystem::path& file)
{
	const octets contents = read_file(file.string());
	LLVMFuzzerTestOneInput(contents.data(), contents.size());
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
	fprintf(stderr, "%d inputs\n", inputs);
	// Nothing to replay is a mistake of whoever asked.
	return inputs > 0 ? 0 : 1;
}
