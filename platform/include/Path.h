// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_PATH_H
#define KITS_PATH_H

#include <SupportDefs.h>

#include <string>

class BEntry;
struct entry_ref;

// The absolute path of an entry.
class BPath {
public:
	BPath() = default;
	explicit BPath(const char* path);
	explicit BPath(const entry_ref* ref);
	explicit BPath(const BEntry* entry);

	status_t InitCheck() const;

	// The directory of the entry must exist, the entry itself need not.
	status_t SetTo(const char* path);
	status_t SetTo(const entry_ref* ref);
	status_t SetTo(const BEntry* entry);
	void Unset();

	// Both NULL when there is no path; they live until the object is changed or goes.
	const char* Path() const;
	const char* Leaf() const;

private:
	std::string fPath;
	status_t fStatus = B_NO_INIT;
};

#endif
