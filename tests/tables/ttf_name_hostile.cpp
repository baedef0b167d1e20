// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Naming tables that lie about what they hold.
#include <ctime>
#include <functional>
#include <random>

#include <gtest/gtest.h>

#include "support/opened.h"
#include "tables/name_table.h"

using texts = std::vector<std::string>;

static constexpr std::string_view two_names = "0000 0002 001e"
											  "0001 0000 0000 0001 0003 0000"
											  "0003 0001 0409 0001 0004 0003"
											  "616263 0041 0042";


// Reads and edits; whatever is wrong with memory on the way, the sanitizers tell.
static void
work_through(const octets& table)
{
	name_table name(table);
	listed_names(name);
	EXPECT_EQ(kept(&name), table);
	name.set_field(3, 1, 1033, 1, "new");
	name.set_field(1, 0, 0, 1, nullptr);
	name.set_field(1, 1, 11, 1, "new");
	for (const std::string& row : listed_names(name))
		EXPECT_FALSE(row.starts_with("0001-0000-0000-0001"));
}


TEST(hostile_name, may_be_cut_anywhere)
{
	octets whole = hex(two_names);
	for (size_t length = 0; length <= whole.size(); length++)
		work_through(part(whole, 0, length));
}


TEST(hostile_name, counts_only_the_records_that_are_there)
{
	EXPECT_EQ(name_table("").count(), 0);
	EXPECT_EQ(name_table("0000 ffff 00").count(), 0);
	EXPECT_EQ(name_table("0000 ffff 0006").count(), 0);
	EXPECT_EQ(name_table("0000 ffff 0006 0001 0000 0000 0001 0001 00").count(), 0);
	EXPECT_EQ(name_table("0000 ffff 0006 0001 0000 0000 0001 0001 0000").count(), 1);
	EXPECT_EQ(name_table("0000 0000 0006 0001 0000 0000 0001 0001 0000").count(), 0);
}


TEST(hostile_name, reads_a_text_as_far_as_the_table_goes)
{
	name_table name("0000 0002 001e"
					"0001 0000 0000 0001 ffff 0001"
					"0003 0001 0409 0001 ffff 0001"
					"61 62 63 64");
	EXPECT_EQ(listed_names(name), (texts{"0001-0000-0000-0001 bcd", "0003-0001-0409-0001 扣"}));
}


TEST(hostile_name, reads_nothing_of_a_text_that_lies_outside)
{
	name_table name("0000 0002 ffff"
					"0001 0000 0000 0001 ffff ffff"
					"0003 0001 0409 0001 0002 0000"
					"61 62 63 64");
	EXPECT_EQ(listed_names(name), (texts{"0001-0000-0000-0001 ", "0003-0001-0409-0001 "}));
}


TEST(hostile_name, may_have_its_texts_in_its_records)
{
	name_table name("0000 0001 0000 0001 0000 0000 0001 0006 0000");
	EXPECT_EQ(listed_names(name), texts{std::string("0001-0000-0000-0001 \0\0\0\1\0\0", 26)});
}


// Records of platform 2 with their number as their key, each with a text of that length at the place
// that is asked for; the texts are told from this place on, and the table is that long.
static octets
claiming(size_t count, size_t storage, size_t size, const std::function<size_t(size_t)>& length,
	const std::function<size_t(size_t)>& place)
{
	octets table = zeros(size);
	put_be16(table, 2, uint16_t(count));
	put_be16(table, 4, uint16_t(storage));
	for (size_t i = 0; i < count; i++) {
		put_be16(table, 6 + 12 * i, 2);
		put_be16(table, 6 + 12 * i + 6, uint16_t(i));
		put_be16(table, 6 + 12 * i + 8, uint16_t(length(i)));
		put_be16(table, 6 + 12 * i + 10, uint16_t(place(i)));
	}
	return table;
}


static std::function<size_t(size_t)>
always(size_t value)
{
	return [=](size_t) { return value; };
}


// As many records as can be told, each with the longest text that can be: four gigabytes, laid out.
static octets
longest_texts(size_t count)
{
	return claiming(count, 6, 6 + 12 * count + 65535, always(65535), always(0));
}


struct record_text {
	uint64 key;
	std::string text;
	bool operator==(const record_text&) const = default;
};

// Every record, with up to 300 bytes of its text.
static std::vector<record_text>
records_of(const ttf_name& name)
{
	std::vector<record_text> found;
	for (int i = 0; i < name.count(); i++)
		found.push_back({name.u64(6 + 12 * (uint32)i), text_of(name, i, 300)});
	return found;
}


// Deletes a record, replaces one and adds one. Each time either nothing changes or that alone does,
// and the table does not grow to more than 32 times the one that was loaded and a mebibyte.
static void
edit(const octets& table)
{
	name_table name(table);
	const struct {
		unsigned short id;
		const char* text;
	} edits[] = {{1, nullptr}, {2, "new"}, {0xFFFF, "last"}, {2, nullptr}};
	for (const auto& each : edits) {
		const octets old = kept(&name);
		std::vector<record_text> expected = records_of(name);
		std::erase_if(expected,
			[&](const record_text& record) { return record.key == (uint64(2) << 48 | each.id); });
		name.set_field(2, 0, 0, each.id, each.text);
		std::vector<record_text> found = records_of(name);
		if (same(old, kept(&name)))
			continue;
		EXPECT_LT(name.length, 32 * table.size() + 1048576);
		std::erase_if(found,
			[&](const record_text& record) { return record.key == (uint64(2) << 48 | each.id); });
		EXPECT_TRUE(found == expected) << each.id;
	}
}


TEST(hostile_name, is_edited_or_left_alone_at_once)
{
	const clock_t start = clock();
	edit(longest_texts(65535));
	edit(longest_texts(5460));
	edit(longest_texts(10000));
	// The same bytes at as many places.
	edit(claiming(5460, 65526, 65526 + 131070, always(65535), [](size_t i) { return 12 * i; }));
	edit(claiming(
		10000, 65535, 65535 + 131070, always(65535), [](size_t i) { return 55000 + i % 10535; }));
	edit(claiming(
		65535, 6, 6 + 12 * 65535, always(65535), [](size_t i) { return 12 * (i % 5461); }));
	// Two lengths, which differ in their last byte only; all lengths.
	edit(claiming(
		5460, 65526, 65526 + 131070, [](size_t i) { return 65535 - i % 2; },
		[](size_t i) { return i; }));
	edit(claiming(
		5460, 65526, 65526 + 131070, [](size_t i) { return i; },
		[](size_t i) { return 65535 - i; }));
	// Nothing but records.
	edit(claiming(65535, 6, 6 + 12 * 65535, always(0), always(65535)));
	EXPECT_LT(double(clock() - start) / CLOCKS_PER_SEC, 30);
}


TEST(hostile_name, with_one_text_for_all_records_keeps_its_size)
{
	name_table name(claiming(5460, 65526, 65526 + 65535, always(65535), always(0)));
	name.set_field(2, 0, 0, 7, "new");
	EXPECT_EQ(text_of(name, 7), "new");
	EXPECT_TRUE(text_of(name, 8, 70000) == std::string(65535, '\0'));
	EXPECT_EQ(name.length, 6u + 12 * 5460 + 65535 + 3);
}


TEST(hostile_name, of_more_records_than_16_bits_have_places_for_is_not_edited)
{
	// Their texts lie among the records, and behind these 16 bits tell no place.
	const octets table = longest_texts(65535);
	name_table name(table);
	EXPECT_EQ(name.count(), 65535);
	name.set_field(2, 0, 0, 7, nullptr);
	name.set_field(2, 0, 0, 7, "new");
	name.set_field(3, 1, 0, 7, "new");
	EXPECT_TRUE(same(table, kept(&name)));
}


TEST(hostile_name, of_any_number_of_records_without_texts_can_be_shortened)
{
	name_table name(claiming(65535, 6, 6 + 12 * 65535, always(0), always(65535)));
	name.set_field(2, 0, 0, 7, nullptr);
	EXPECT_EQ(name.count(), 65534);
	EXPECT_EQ(name.length, 6u + 12 * 65534);
	name.set_field(2, 0, 0, 7, "new");
	EXPECT_EQ(name.count(), 65534);
}


TEST(hostile_name, takes_as_many_records_as_16_bits_have_places_for)
{
	octets table = zeros(6 + 12 * 5460);
	put_be16(table, 2, 5460);
	put_be16(table, 4, 65526);
	for (size_t i = 0; i < 5460; i++) {
		put_be16(table, 6 + 12 * i, 2);
		put_be16(table, 6 + 12 * i + 6, uint16_t(i));
	}
	name_table name(table);
	name.set_field(2, 0, 0, 5460, "one too many");
	EXPECT_TRUE(same(table, kept(&name)));
	name.set_field(2, 0, 0, 5459, "in the place of another");
	EXPECT_EQ(name.count(), 5460);
	EXPECT_EQ(text_of(name, 5459), "in the place of another");
	name.set_field(2, 0, 0, 0, nullptr);
	EXPECT_EQ(name.count(), 5459);
	EXPECT_EQ(text_of(name, 5458), "in the place of another");
}


TEST(hostile_name, may_be_any_octets)
{
	std::mt19937 random(6);
	for (int i = 0; i < 2000; i++) {
		octets table(random() % 80);
		for (uint8_t& each : table)
			each = uint8_t(random() % 4 ? random() % 4 : random());
		name_table name(table);
		listed_names(name);
		name.set_field(3, 1, 0, uint16_t(random()), "new");
		name.set_field(0, 0, 0, 0, nullptr);
		listed_names(name);
	}
}
