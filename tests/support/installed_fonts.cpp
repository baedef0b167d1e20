// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "support/installed_fonts.h"

#include <cstdlib>
#include <filesystem>


std::string
installed_font(const std::string& leaf)
{
	namespace fs = std::filesystem;
	std::error_code ignored;
	auto options = fs::directory_options::skip_permission_denied;
	for (const auto& entry :
		fs::recursive_directory_iterator("/usr/share/fonts", options, ignored)) {
		if (entry.path().filename() == leaf && entry.is_regular_file(ignored))
			return entry.path().string();
	}
	return std::string();
}


bool
fonts_are_required()
{
	return std::getenv("CI") != nullptr;
}
