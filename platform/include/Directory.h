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
	// below this one, which must exist. On failure `file` is not open. `file` may be NULL: the file
	// is only made.
	//
	// With `failIfExists` a file that is already there is left alone and B_FILE_EXISTS returned. Else
	// `file` is a new, empty one in its stead. The old one keeps its contents until `file` is closed,
	// for good when a write failed (see BFile) or the process ends before; then the new one replaces
	// it all at once. What is not closed yet is seen through `file` only. The new file has the old
	// one's owner, group, permission bits and access list, and its extended attributes as far as the
	// file system takes them. A link stays and the file it leads to is replaced, but other names of the
	// old file (hard links) keep the old contents. Nothing is forced to the disk: what a failure of the
	// machine leaves is not told.
	//
	// Where the new file cannot have all those rights or cannot replace the old one, closing writes the
	// new contents into the old file. Where that fails too, they stay in the folder under a name that
	// starts with ".new-". What is no regular file is just opened. When there is no space to begin with
	// the call fails and the old file stays.
	//
	// A file under a new name is written where it is: what a failed write leaves of it stays.
	status_t CreateFile(const char* name, BFile* file, bool failIfExists = false);
};

#endif
