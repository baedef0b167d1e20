// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_TABLES_NAME_LAYOUT_H
#define KERNIX_TABLES_NAME_LAYOUT_H

#include "tables/name_text.h"
#include <optional>
#include <vector>

// Where the texts of name are laid.

// A record's key, and its text in bytes that somebody else keeps.
struct name_record {
	uint64 key;
	name_bytes text;
};

struct name_records : std::vector<name_record> {};

// The last place where a text can start: a record tells it in 16 bits. Places count from the one that
// the table's header tells.
constexpr uint32 last_name_place = 0xFFFF;

struct name_layout {
	std::vector<uint16> places; // of each record's text
	uint32 end = 0;             // behind the last text
};

// Lays the texts one behind the other, from this place on. Where not all could start so, equal ones
// are laid once; none where even that does not do.
std::optional<name_layout> lay_names(const name_records& records, uint32 from);

#endif
