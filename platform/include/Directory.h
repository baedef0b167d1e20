// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_DIRECTORY_H
#define KITS_DIRECTORY_H

#include <EntryList.h>
#include <Node.h>

class BFile;

// A directory in which files can be made.
class BDirectory : public BNode, public BEntryList {
public:
	BDirectory() = default;
	explicit BDirectory(const entry_ref* ref); // of the directory itself
	explicit BDirectory(const char* path);

	// Close what was open. B_NOT_A_DIRECTORY for anything else.
	status_t SetTo(const entry_ref* ref);
	status_t SetTo(const char* path);

	// Makes a file and opens `file` on it for reading and writing. `name` may lead through folders
	// below this one, which must exist. A file that is already there is emptied, or with
	// `failIfExists` left alone and B_FILE_EXISTS returned. On failure `file` is not open. `file`
	// may be NULL: the file is only made.
	status_t CreateFile(const char* name, BFile* file, bool failIfExists = false);
};

#endif
