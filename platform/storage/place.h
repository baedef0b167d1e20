// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_PLACE_H
#define KITS_PLACE_H

#include "storage/descriptor.h"

#include <string>

namespace kits {

// A name in a folder. The folder stays the same one when it is moved.
struct place {
	descriptor folder; // as a place only (O_PATH)
	std::string leaf;
};

// Finds the place that `path` leads to, from the folder of the descriptor `from` if it is relative.
// Links are followed. The place is taken apart name by name, so it may be longer than a path can be.
// Nothing need be there under the last name. Returns 0 or the system's error number; `found` is
// changed only on success.
int find_place(int from, const std::string& path, place* found);

}

#endif
