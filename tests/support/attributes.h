// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_SUPPORT_ATTRIBUTES_H
#define KERNIX_SUPPORT_ATTRIBUTES_H

#include <string>

class temp_folder;

// Temporary folders often lie in memory, where not every system keeps attributes. Leaves a file
// named "probe".
bool keeps_attributes(const temp_folder& folder);

// The value of a file's extended attribute; "none" where there is none.
std::string attribute_of(const std::string& path, const char* name);

#endif
