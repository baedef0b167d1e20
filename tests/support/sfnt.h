// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_SUPPORT_SFNT_H
#define KERNIX_SUPPORT_SFNT_H

#include <cstdint>
#include <string>
#include <vector>

#include "support/octets.h"

struct sfnt_entry {
	std::string tag;
	uint32_t sum;
	uint32_t offset;
	uint32_t length;
};

// A font file read back by the tests' own eyes: nothing of the program is used.
class sfnt {
public:
	// Throws std::out_of_range when the directory is cut short.
	explicit sfnt(const octets& file);

	const octets& file() const { return fFile; }
	// Header and directory.
	octets directory() const { return part(fFile, 0, 12 + 16 * fEntries.size()); }
	const std::vector<sfnt_entry>& entries() const { return fEntries; }
	std::vector<std::string> tags() const;
	bool has(const std::string& tag) const;
	// The first of this tag; throws std::invalid_argument when there is none.
	const sfnt_entry& entry(const std::string& tag) const;
	// As long as the directory says: what lies past the end of the file reads as zeros.
	octets table(const sfnt_entry& entry) const;
	octets table(const std::string& tag) const { return table(entry(tag)); }

private:
	octets fFile;
	std::vector<sfnt_entry> fEntries;
};

#endif
