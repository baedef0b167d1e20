// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_TESTS_STORED_H
#define KITS_TESTS_STORED_H

#include <sys/types.h>

#include <string>
#include <vector>

// Files as text, written and read without the kits. Both throw when the file cannot be had.
void store(const std::string& path, const std::string& text);
std::string stored(const std::string& path);

// What lies in a folder, hidden or not, in the order of the names.
std::vector<std::string> names_in(const std::string& folder);

// Makes a folder below an existing one.
void make_folder(const std::string& path);

// While it lives, the process has no more rights than a plain user: the administrator would be
// stopped by no permission bits.
class plain_user {
public:
	plain_user();
	~plain_user();
	plain_user(const plain_user&) = delete;
	plain_user& operator=(const plain_user&) = delete;

	// False where the rights could not be given up.
	bool plain() const;

private:
	uid_t fBefore;
};

#endif
