// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "storage/place.h"

#include <cerrno>
#include <climits>
#include <fcntl.h>

namespace kits {

namespace {

// As many as the system itself follows.
constexpr int most_links = 40;

}


int
find_place(int from, const std::string& path, place* found)
{
	place here;
	std::string rest = path;
	for (int links = 0; links <= most_links; links++) {
		const size_t slash = rest.rfind('/');
		const std::string way = slash == std::string::npos ? "." : rest.substr(0, slash + 1);
		here.leaf = slash == std::string::npos ? rest : rest.substr(slash + 1);
		const int start = here.folder ? here.folder.get() : from;
		here.folder = descriptor(openat(start, way.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
		if (!here.folder) {
			return errno;
		}
		char target[PATH_MAX];
		const ssize_t length =
			readlinkat(here.folder.get(), here.leaf.c_str(), target, sizeof(target));
		if (length >= 0) {
			rest.assign(target, static_cast<size_t>(length));
			continue;
		}
		// What is there is no link.
		if (errno == EINVAL) {
			*found = std::move(here);
			return 0;
		}
		return errno;
	}
	return ELOOP;
}

}
