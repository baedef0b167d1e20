// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "storage/ref_paths.h"

#include <map>
#include <mutex>
#include <sys/stat.h>
#include <utility>

namespace {

struct seen_directories {
	std::mutex lock;
	std::map<std::pair<dev_t, ino_t>, std::string> paths;
};


seen_directories&
seen()
{
	// Never destroyed: threads may still open files while the process ends.
	static seen_directories& directories = *new seen_directories;
	return directories;
}


std::string
seen_path(dev_t device, ino_t directory)
{
	seen_directories& directories = seen();
	const std::lock_guard guard(directories.lock);
	const auto found = directories.paths.find({device, directory});
	return found == directories.paths.end() ? std::string() : found->second;
}

}


void
remember_directory(dev_t device, ino_t directory, const std::string& path)
{
	seen_directories& directories = seen();
	const std::lock_guard guard(directories.lock);
	directories.paths[{device, directory}] = path;
}


status_t
place_of_ref(const entry_ref& ref, std::string* folder, std::string* leaf)
{
	if (ref.name == nullptr || ref.name[0] == '\0') {
		return B_BAD_VALUE;
	}
	std::string seen = ref.name[0] == '/' ? "/" : seen_path(ref.device, ref.directory);
	struct stat st = {};
	if (ref.name[0] != '/'
		&& (seen.empty() || stat(seen.c_str(), &st) != 0 || st.st_dev != ref.device
			|| st.st_ino != ref.directory)) {
		return B_ENTRY_NOT_FOUND;
	}
	*folder = std::move(seen);
	*leaf = ref.name;
	return B_OK;
}


status_t
path_of_ref(const entry_ref& ref, std::string* path)
{
	std::string folder;
	std::string leaf;
	const status_t status = place_of_ref(ref, &folder, &leaf);
	if (status != B_OK) {
		return status;
	}
	if (leaf[0] == '/') {
		*path = leaf;
	} else if (leaf == ".") {
		*path = folder;
	} else {
		*path = folder == "/" ? folder + leaf : folder + "/" + leaf;
	}
	return B_OK;
}
