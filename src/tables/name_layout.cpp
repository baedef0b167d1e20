// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "tables/name_layout.h"

#include <map>
#include <string_view>
#include <utility>


// One text behind the other; none when one would start too far.
static std::optional<name_layout>
laid_apart(const name_records& records, uint32 from)
{
	name_layout made;
	for (const name_record& record : records) {
		if (from > last_name_place)
			return std::nullopt;
		made.places.push_back((uint16)from);
		from += (uint32)record.text.size();
	}
	made.end = from;
	return made;
}


// The same with equal texts laid once. What lies at one place is not compared again: in a hostile
// table each record may name the same 65535 bytes.
static std::optional<name_layout>
laid_once(const name_records& records, uint32 from)
{
	name_layout made;
	std::map<std::pair<const unsigned char*, size_t>, uint16> seen;
	std::map<std::string_view, uint16> laid = {{"", 0}};
	for (const name_record& record : records) {
		const std::string_view text((const char*)record.text.data(), record.text.size());
		const auto [known, unseen] = seen.try_emplace({record.text.data(), text.size()});
		if (unseen) {
			const auto [place, fresh] = laid.try_emplace(text, (uint16)from);
			if (fresh && from > last_name_place)
				return std::nullopt;
			if (fresh)
				from += (uint32)text.size();
			known->second = place->second;
		}
		made.places.push_back(known->second);
	}
	made.end = from;
	return made;
}


std::optional<name_layout>
lay_names(const name_records& records, uint32 from)
{
	std::optional<name_layout> made = laid_apart(records, from);
	return made ? made : laid_once(records, from);
}
