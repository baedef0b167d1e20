// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "app/start_arguments.h"

#include <AppDefs.h>
#include <fstream>
#include <string>
#include <sys/stat.h>


BMessage
kits::refs_of_start_arguments()
{
	BMessage refs(B_REFS_RECEIVED);
	std::ifstream words("/proc/self/cmdline", std::ios::binary);
	std::string word;
	std::getline(words, word, '\0');
	while (std::getline(words, word, '\0')) {
		struct stat found;
		entry_ref ref;
		if (stat(word.c_str(), &found) == 0 && get_ref_for_path(word.c_str(), &ref) == B_OK)
			refs.AddRef("refs", &ref);
	}
	return refs;
}
