// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "support/attributes.h"

#include "support/temp_files.h"

#include <sys/xattr.h>


bool
keeps_attributes(const temp_folder& folder)
{
	write_file(folder.path("probe"), {});
	return setxattr(folder.path("probe").c_str(), "user.probe", "x", 1, 0) == 0;
}


std::string
attribute_of(const std::string& path, const char* name)
{
	char value[1000] = {};
	ssize_t length = getxattr(path.c_str(), name, value, sizeof value);
	return length < 0 ? "none" : std::string(value, (size_t)length);
}
