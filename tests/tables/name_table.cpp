// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "tables/name_table.h"

#include <cstdio>
#include <cstring>

#include "support/opened.h"


name_table::name_table(const octets& contents)
	: ttf_name(nullptr, buffer_of(contents), contents.size())
{
}


std::string
text_of(const ttf_name& name, int index, long room)
{
	unsigned short ids[4];
	// Of exactly that size: a byte too many is the sanitizer's find.
	std::vector<char> text((size_t)room);
	long length = room;
	int answer = name.get_field(index, &ids[0], &ids[1], &ids[2], &ids[3], &length, text.data());
	if (answer != 0)
		return "answer " + std::to_string(answer);
	EXPECT_EQ(text.at((size_t)length), '\0');
	return std::string(text.data(), (size_t)length);
}


std::vector<std::string>
listed_names(const ttf_name& name)
{
	std::vector<std::string> rows;
	for (int i = 0; i < name.count(); i++) {
		unsigned short ids[4];
		char text[256];
		long length = sizeof text;
		name.get_field(i, &ids[0], &ids[1], &ids[2], &ids[3], &length, text);
		char key[24];
		snprintf(key, sizeof key, "%04x-%04x-%04x-%04x ", ids[0], ids[1], ids[2], ids[3]);
		rows.push_back(std::string(key) + std::string(text, (size_t)length));
	}
	return rows;
}


octets
one_name(std::string_view ids, std::string_view text)
{
	octets table = hex("0000 0001 0012");
	octets stored = hex(text);
	for (uint8_t each : hex(ids))
		table.push_back(each);
	table.push_back(uint8_t(stored.size() >> 8));
	table.push_back(uint8_t(stored.size()));
	table.insert(table.end(), 2, 0);
	table.insert(table.end(), stored.begin(), stored.end());
	return table;
}
