// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "app/start_arguments.h"

#include <algorithm>
#include <AppDefs.h>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <string>
#include <sys/stat.h>


// In one line, whatever the word holds.
static void
complain(std::string word, int reason)
{
	auto breaks_lines = [](char each) { return (unsigned char)each < ' ' || each == 0x7F; };
	std::replace_if(word.begin(), word.end(), breaks_lines, '?');
	fprintf(stderr, "%s: cannot open \"%s\": %s\n", program_invocation_short_name, word.c_str(),
		strerror(reason));
}


BMessage
kits::refs_of_start_arguments()
{
	// Whatever runs here in turn, the words were given once.
	static bool complained = false;
	BMessage refs(B_REFS_RECEIVED);
	std::ifstream words("/proc/self/cmdline", std::ios::binary);
	std::string word;
	std::getline(words, word, '\0');
	while (std::getline(words, word, '\0')) {
		struct stat found;
		entry_ref ref;
		const bool there = stat(word.c_str(), &found) == 0;
		if (there && get_ref_for_path(word.c_str(), &ref) == B_OK)
			refs.AddRef("refs", &ref);
		else if (!there && !complained)
			complain(word, errno);
	}
	complained = true;
	return refs;
}
