// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "support/expected_save.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "support/recount.h"
#include "support/sfnt.h"

// A tag in this list has one object, however many entries name it; any other has one per entry.
static const char* const single_tags[] = {"OS/2", "cmap", "glyf", "head", "hhea", "hmtx", "loca",
	"maxp", "name", "post", "gasp", "EBDT", "EBLC"};


uint32_t
sum_of_words(const octets& table)
{
	uint32_t sum = 0;
	for (size_t i = 0; i < table.size() - table.size() % 4; i++)
		sum += uint32_t(table[i]) << (24 - 8 * (i % 4));
	return sum;
}


uint32_t
modified_of(const octets& file)
{
	sfnt font(file);
	octets head = font.has("head") ? font.table("head") : octets();
	return head.size() >= 36 ? be32(head, 32) : 0;
}


static std::vector<octets>
tables_to_write(const sfnt& font)
{
	std::vector<octets> tables;
	for (const sfnt_entry& entry : font.entries()) {
		const sfnt_entry* source = &entry;
		if (std::count(std::begin(single_tags), std::end(single_tags), entry.tag) > 0) {
			for (const sfnt_entry& other : font.entries())
				source = other.tag == entry.tag ? &other : source;
		}
		tables.push_back(font.table(*source));
	}
	return tables;
}


// The last table of a tag, which answers for all of that tag; empty where there is none.
static octets
last_table(const sfnt& font, const std::string& tag)
{
	octets found;
	for (const sfnt_entry& entry : font.entries())
		found = entry.tag == tag ? font.table(entry) : found;
	return found;
}


static octets
recounted_maxp(const sfnt& font)
{
	return recounted(last_table(font, "maxp"), last_table(font, "glyf"), last_table(font, "loca"),
		last_table(font, "head"));
}


static void
stamp(octets& head, uint32_t now)
{
	const octets date = zeros(8);
	if (head.size() >= 12)
		put_be32(head, 8, 0);
	if (head.size() >= 28 && part(head, 20, 8) == date)
		put_be32(head, 24, now);
	if (head.size() >= 36) {
		put_be32(head, 28, 0);
		put_be32(head, 32, now);
	}
}


octets
expected_save(const octets& file, uint32_t now)
{
	sfnt font(file);
	octets result = font.directory();
	size_t directory = result.size();
	size_t adjustment = 0;
	uint32_t total = 0;
	std::vector<octets> tables = tables_to_write(font);
	for (size_t i = 0; i < tables.size(); i++) {
		if (font.entries()[i].tag == "maxp")
			tables[i] = recounted_maxp(font);
		if (font.entries()[i].tag == "head") {
			stamp(tables[i], now);
			adjustment = tables[i].size() >= 12 ? result.size() + 8 : 0;
		}
		uint32_t sum = sum_of_words(tables[i]);
		put_be32(result, 16 + 16 * i, sum);
		put_be32(result, 20 + 16 * i, uint32_t(result.size()));
		put_be32(result, 24 + 16 * i, uint32_t(tables[i].size()));
		result.insert(result.end(), tables[i].begin(), tables[i].end());
		result.resize((result.size() + 3) / 4 * 4, 0);
		total += sum;
	}
	for (size_t at = 0; at < directory; at += 4)
		total += uint32_t(result[at]) << 24;
	if (adjustment > 0)
		put_le32(result, adjustment, 0xB1B0AFBA - total);
	return result;
}
