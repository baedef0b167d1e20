// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_TESTS_CMAP_TABLE_H
#define KERNIX_TESTS_CMAP_TABLE_H

#include <string>

#include "support/octets.h"
#include "tables/ttf_cmap.h"

// A character map of a font of its own, made of these octets and not read yet.
class cmap_table : public ttf_cmap {
public:
	explicit cmap_table(const octets& contents);
	explicit cmap_table(std::string_view digits) : cmap_table(hex(digits)) {}
};

// The codes that have glyphs, as hexadecimal lines like "41=1 42=2"; of a long list the start and
// the number.
std::string mapped(const ttf_cmap& cmap);

// The same for the map that get_tbl makes of these octets; with its answer unless that is 0:
// "answer -1".
std::string read_from(const octets& table);

// A table of one (3, 1) subtable with these octets, of format 4 by its first word or of none.
octets table_of(std::string_view subtable);

#endif
