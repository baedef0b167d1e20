// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "support/real_font.h"

#include <gtest/gtest.h>

#include "support/installed_fonts.h"
#include "support/temp_files.h"


void
read_real_font(const std::string& leaf, octets& file)
{
	std::string path = installed_font(leaf);
	if (path.empty() && fonts_are_required())
		FAIL() << leaf << " is not installed";
	if (path.empty())
		GTEST_SKIP() << leaf << " is not installed";
	file = read_file(path);
}
