// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "support/sfnt.h"

#include <algorithm>
#include <stdexcept>


sfnt::sfnt(const octets& file) : fFile(file)
{
	size_t count = be16(file, 4);
	for (size_t i = 0; i < count; i++) {
		size_t at = 12 + 16 * i;
		octets tag = part(file, at, 4);
		fEntries.push_back({std::string(tag.begin(), tag.end()), be32(file, at + 4),
			be32(file, at + 8), be32(file, at + 12)});
	}
}


std::vector<std::string>
sfnt::tags() const
{
	std::vector<std::string> result;
	for (const sfnt_entry& each : fEntries)
		result.push_back(each.tag);
	return result;
}


bool
sfnt::has(const std::string& tag) const
{
	auto is_it = [&](const sfnt_entry& each) { return each.tag == tag; };
	return std::any_of(fEntries.begin(), fEntries.end(), is_it);
}


const sfnt_entry&
sfnt::entry(const std::string& tag) const
{
	for (const sfnt_entry& each : fEntries) {
		if (each.tag == tag)
			return each;
	}
	throw std::invalid_argument("sfnt: no table " + tag);
}


octets
sfnt::table(const sfnt_entry& entry) const
{
	octets contents = part(fFile, entry.offset, entry.length);
	contents.resize(entry.length, 0);
	return contents;
}
