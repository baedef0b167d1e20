// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_TESTS_NAME_TABLE_H
#define KERNIX_TESTS_NAME_TABLE_H

#include <string>
#include <vector>

#include "support/octets.h"
#include "tables/ttf_name.h"

// A naming table of a font of its own, made of these octets.
class name_table : public ttf_name {
public:
	explicit name_table(const octets& contents);
	explicit name_table(std::string_view digits) : name_table(hex(digits)) {}
};

// The text that get_field gives for a record into that much room; "answer 1" when it gives none.
// Fails the test when the length it tells is not that of the text.
std::string text_of(const ttf_name& name, int index, long room = 256);

// Every record as "0001-0000-0000-0004 its text".
std::vector<std::string> listed_names(const ttf_name& name);

// A table of one record with these octets as its text.
octets one_name(std::string_view ids, std::string_view text);

#endif
