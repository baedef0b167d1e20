// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "support/desktop_kind.h"

#include <cstdlib>
#include <string_view>


bool
programs_place_windows()
{
	const char* platform = getenv("QT_QPA_PLATFORM");
	return platform == nullptr || std::string_view(platform) != "wayland";
}
