// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "tables/cmap_table.h"

#include <cstdio>

#include "support/opened.h"


cmap_table::cmap_table(const octets& contents)
	: ttf_cmap(nullptr, buffer_of(contents), contents.size())
{
}


std::string
mapped(const ttf_cmap& cmap)
{
	std::string text;
	int count = 0;
	for (unsigned code = 0; code <= 0xFFFF; code++) {
		unsigned glyph = cmap.get_gno((unsigned short)code);
		if (glyph == 0)
			continue;
		char pair[20];
		snprintf(pair, sizeof pair, "%s%x=%x", count > 0 ? " " : "", code, glyph);
		if (count++ < 20)
			text += pair;
	}
	return count <= 20 ? text : text + " of " + std::to_string(count);
}


std::string
read_from(const octets& table)
{
	cmap_table cmap(table);
	int answer = cmap.get_tbl();
	std::string text = answer == 0 ? "" : "answer " + std::to_string(answer);
	return text + mapped(cmap);
}


octets
table_of(std::string_view subtable)
{
	octets table = hex("0000 0001 0003 0001 0000000c");
	octets rest = hex(subtable);
	table.insert(table.end(), rest.begin(), rest.end());
	return table;
}
