// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "platform/storage/stored.h"

#include "support/temp_files.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr uid_t nobody = 65534;

}


void
store(const std::string& path, const std::string& text)
{
	write_file(path, octets(text.begin(), text.end()));
}


std::string
stored(const std::string& path)
{
	const octets contents = read_file(path);
	return std::string(contents.begin(), contents.end());
}


std::vector<std::string>
names_in(const std::string& folder)
{
	std::vector<std::string> names;
	for (const auto& entry : std::filesystem::directory_iterator(folder)) {
		names.push_back(entry.path().filename().string());
	}
	std::sort(names.begin(), names.end());
	return names;
}


void
make_folder(const std::string& path)
{
	if (mkdir(path.c_str(), 0755) != 0) {
		throw std::runtime_error("cannot make " + path);
	}
}


plain_user::plain_user() : fBefore(geteuid())
{
	// Whether it worked, plain() tells.
	[[maybe_unused]] const bool given_up = fBefore != 0 || seteuid(nobody) == 0;
}


plain_user::~plain_user()
{
	if (geteuid() != fBefore && seteuid(fBefore) != 0) {
		abort();
	}
}


bool
plain_user::plain() const
{
	return geteuid() != 0;
}
