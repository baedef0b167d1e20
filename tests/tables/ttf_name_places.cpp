// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Where name lays the texts of its records, which 16 bits have to tell.
#include <gtest/gtest.h>

#include "support/opened.h"
#include "tables/name_table.h"

using texts = std::vector<std::string>;


// A record of platform 1 for each text, with its language as the key. All texts are laid behind the
// records, each where it is told.
struct laid_text {
	uint16_t length;
	uint16_t place;
};

static octets
table_of(const std::vector<laid_text>& records, const std::string& storage)
{
	const size_t start = 6 + 12 * records.size();
	octets table = zeros(start);
	put_be16(table, 2, uint16_t(records.size()));
	put_be16(table, 4, uint16_t(start));
	for (size_t i = 0; i < records.size(); i++) {
		put_be16(table, 6 + 12 * i, 1);
		put_be16(table, 10 + 12 * i, uint16_t(i));
		put_be16(table, 14 + 12 * i, records[i].length);
		put_be16(table, 16 + 12 * i, records[i].place);
	}
	table.insert(table.end(), storage.begin(), storage.end());
	return table;
}


static texts
all_texts(const name_table& name)
{
	texts found;
	for (int i = 0; i < name.count(); i++)
		found.push_back(text_of(name, i, 66000));
	return found;
}


static int
place_of(const name_table& name, size_t record)
{
	return be16(kept(&name), 16 + 12 * record);
}


// 24 family names, "name 00" to "name 23", each with a licence that all share.
static octets
shared_licence()
{
	std::vector<laid_text> records;
	std::string storage(4000, 'L');
	for (int i = 0; i < 24; i++) {
		records.push_back({7, uint16_t(storage.size())});
		records.push_back({4000, 0});
		storage += "name " + std::string(1, char('0' + i / 10)) + char('0' + i % 10);
	}
	return table_of(records, storage);
}


TEST(name_places, lays_shared_texts_apart_while_the_last_one_starts_within_16_bits)
{
	name_table name(table_of({{30000, 0}, {30000, 0}, {30000, 0}}, std::string(30000, 'a')));
	name.set_field(1, 0, 3, 0, "b");
	// The fourth would start at 90000.
	EXPECT_EQ(name.length, 6u + 48 + 30001);

	name_table other(table_of({{32767, 0}, {32768, 0}, {30000, 0}}, std::string(32768, 'a')));
	other.set_field(1, 0, 0, 0, std::string(32767, 'b').c_str());
	EXPECT_EQ(other.length, 6u + 36 + 95535);
	EXPECT_EQ(place_of(other, 2), 65535);
	EXPECT_EQ(all_texts(other),
		(texts{std::string(32767, 'b'), std::string(32768, 'a'), std::string(30000, 'a')}));
}


TEST(name_places, lays_equal_texts_once_where_16_bits_would_not_do)
{
	name_table name(shared_licence());
	texts expected = all_texts(name);
	ASSERT_EQ(expected[46], "name 23");
	name.set_field(1, 0, 0, 0, "edited");
	expected[0] = "edited";
	EXPECT_TRUE(all_texts(name) == expected);
	EXPECT_EQ(name.length, 6u + 12 * 48 + 6 + 4000 + 23 * 7);
	// Again, from what was made.
	name.set_field(1, 0, 47, 0, std::string(4000, 'M').c_str());
	expected[47] = std::string(4000, 'M');
	EXPECT_TRUE(all_texts(name) == expected);
	EXPECT_EQ(name.length, 6u + 12 * 48 + 6 + 4000 + 23 * 7 + 4000);
}


TEST(name_places, lays_equal_texts_once_wherever_they_came_from)
{
	// The two are equal and lie apart, and so is the one that is new; the fourth is empty.
	const std::string text(30000, 'a');
	name_table name(
		table_of({{30000, 0}, {30000, 30000}, {5, 60000}, {0, 7}}, text + text + "bcdef"));
	name.set_field(1, 0, 4, 0, text.c_str());
	EXPECT_EQ(all_texts(name), (texts{text, text, "bcdef", "", text}));
	EXPECT_EQ(name.length, 6u + 60 + 90005) << "as they start within 16 bits";
	name.set_field(1, 0, 5, 0, text.c_str());
	EXPECT_EQ(all_texts(name), (texts{text, text, "bcdef", "", text, text}));
	EXPECT_EQ(name.length, 6u + 72 + 30005);
	EXPECT_EQ(place_of(name, 4), 0);
}


TEST(name_places, changes_nothing_where_16_bits_cannot_tell_a_place)
{
	const std::string longest(65535, 'x');
	name_table name("0000 0000 0006");
	name.set_field(1, 0, 0, 1, longest.c_str());
	name.set_field(1, 0, 0, 2, "ab");
	EXPECT_EQ(place_of(name, 1), 65535);
	const octets table = kept(&name);
	name.set_field(1, 0, 0, 3, "c");
	EXPECT_TRUE(same(table, kept(&name)));
	// Before the others all are told; so is one that is there already, and an empty one.
	name.set_field(1, 0, 0, 3, "ab");
	name.set_field(1, 0, 0, 4, "");
	EXPECT_EQ(all_texts(name), (texts{longest, "ab", "ab", ""}));
	name.set_field(1, 0, 0, 0, "c");
	EXPECT_EQ(name.count(), 4);
	name.set_field(1, 0, 0, 1, "shorter");
	name.set_field(1, 0, 0, 0, "c");
	EXPECT_EQ(all_texts(name), (texts{"c", "shorter", "ab", "ab", ""}));
}


TEST(name_places, keep_texts_that_are_all_different)
{
	// Each a letter shorter than the one before, of the same letters: laid apart they are too long.
	std::vector<laid_text> records;
	for (int i = 0; i < 40; i++)
		records.push_back({uint16_t(4000 - i), 0});
	const octets table = table_of(records, std::string(4000, 'a'));
	name_table name(table);
	name.set_field(1, 0, 0, 0, "edited");
	EXPECT_TRUE(same(table, kept(&name)));
}


// As many records as that, each of one letter behind them, as the places allow.
static octets
many(size_t count)
{
	octets table = zeros(6 + 12 * count);
	put_be16(table, 2, uint16_t(count));
	put_be16(table, 4, 65535);
	for (size_t i = 0; i < count; i++) {
		put_be16(table, 6 + 12 * i, 1);
		put_be16(table, 10 + 12 * i, uint16_t(i));
		put_be16(table, 14 + 12 * i, 1);
		put_be16(table, 16 + 12 * i, uint16_t(6 + 12 * count - 65535 + i % 26));
	}
	for (int i = 0; i < 26; i++)
		table.push_back(uint8_t('a' + i));
	return table;
}


TEST(name_places, tell_the_texts_behind_more_than_5460_records)
{
	for (size_t count : {5461, 6000, 10000}) {
		name_table name(many(count));
		texts expected = all_texts(name);
		ASSERT_EQ(expected[count - 1], std::string(1, char('a' + (count - 1) % 26)));
		name.set_field(1, 0, 1, 0, nullptr);
		expected.erase(expected.begin() + 1);
		EXPECT_TRUE(all_texts(name) == expected) << count;
		name.set_field(1, 0, 9, 0, "other");
		expected[8] = "other";
		EXPECT_TRUE(all_texts(name) == expected) << count;
		EXPECT_EQ(be16(kept(&name), 4), count == 5461 ? 65526 : 65535);
	}
}


TEST(name_places, take_no_record_more_than_5460)
{
	name_table name(many(6000));
	name.set_field(1, 0, 6000, 0, "new");
	EXPECT_EQ(name.count(), 6000);
	name.set_field(1, 0, 0, 0, nullptr);
	name.set_field(1, 0, 6000, 0, "new");
	EXPECT_EQ(name.count(), 5999);
}
