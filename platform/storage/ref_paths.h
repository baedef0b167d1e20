// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_REF_PATHS_H
#define KITS_REF_PATHS_H

#include <Entry.h>

#include <string>

// Where the directories of refs are. All may be called from any thread.

// Keeps the absolute path of a directory, in place of the one kept before.
void remember_directory(dev_t device, ino_t directory, const std::string& path);

// The absolute path a ref names. The directory must still be where it was seen, else
// B_ENTRY_NOT_FOUND; the entry itself need not exist. B_BAD_VALUE for a ref without a name. On
// failure `path` stays.
status_t path_of_ref(const entry_ref& ref, std::string* path);

// The same in two parts, the absolute path of a folder and a name to be looked up from there: the
// whole may be longer than the system takes.
status_t place_of_ref(const entry_ref& ref, std::string* folder, std::string* leaf);

#endif
