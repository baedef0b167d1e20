// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include <chrono>
#include <random>

#include <gtest/gtest.h>

#include "support/font_file.h"
#include "support/opened.h"
#include "tables/cmap_table.h"

// Reads and rewrites the table; whatever is wrong with memory on the way, the sanitizers tell.
static void
work_through(const octets& table)
{
	cmap_table cmap(table);
	cmap.get_tbl();
	EXPECT_EQ(kept(&cmap), table);
	cmap.get_chr(1);
	cmap.set_tbl();
	EXPECT_EQ(cmap.get_tbl(), 0);
}


TEST(hostile_cmap, may_be_cut_anywhere)
{
	octets whole = tiny_font().table("cmap");
	for (size_t length = 0; length <= whole.size(); length++)
		work_through(part(whole, 0, length));
}


TEST(hostile_cmap, may_be_cut_in_its_array)
{
	octets whole = table_of("0004 0026 0000 0004 0004 0001 0000"
							"0043 ffff 0000 0041 ffff 0000 0001 0004 0000 0009 0003 0007");
	for (size_t length = 0; length <= whole.size(); length++)
		work_through(part(whole, 0, length));
	EXPECT_EQ(read_from(part(whole, 0, whole.size() - 1)), "41=9 42=3");
}


TEST(hostile_cmap, may_claim_records_that_it_does_not_have)
{
	octets table = tiny_font().table("cmap");
	put_be16(table, 2, 0xFFFF);
	EXPECT_EQ(read_from(table), "41=1");
}


TEST(hostile_cmap, may_claim_segments_that_it_does_not_have)
{
	// Of 32767 segments only the first two ends are there; the starts are 0, like all words outside.
	EXPECT_EQ(read_from(table_of("0004 0000 0000 ffff 0000 0000 0000 0003 0002")), "1=1 2=2 3=3");
}


// As many segments as can be said, every one over all codes: two milliards of words, were they all
// looked at.
static octets
all_codes_again_and_again()
{
	octets table = table_of("0004 0000 0000 fffe 0000 0000 0000");
	table.resize(28 + 4 * 65534, 0);
	for (size_t i = 0; i < 32767; i++) {
		put_be16(table, 26 + 2 * i, 0xFFFF);
		put_be16(table, 28 + 65534 + 2 * i, uint16_t(i % 2));
		put_be16(table, 28 + 2 * 65534 + 2 * i, uint16_t(i));
	}
	return table;
}


TEST(hostile_cmap, may_map_all_codes_32767_times_in_no_time)
{
	cmap_table cmap(all_codes_again_and_again());
	auto start = std::chrono::steady_clock::now();
	EXPECT_EQ(cmap.get_tbl(), 0);
	EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
	EXPECT_EQ(cmap.get_gno(0), 0x7FFE);
	EXPECT_EQ(cmap.get_gno(1), 0x7FFF);
	EXPECT_EQ(cmap.get_gno(0xFFFF), 0x7FFD);
}


TEST(hostile_cmap, may_hold_anything)
{
	std::mt19937 random(1);
	for (int round = 0; round < 300; round++) {
		octets table(random() % 200);
		for (uint8_t& value : table)
			value = uint8_t(random());
		if (table.size() >= 22) {
			octets begin = hex("0000 0001 0003 0001 0000000c 0004");
			std::copy(begin.begin(), begin.end(), table.begin());
			put_be16(table, 18, uint16_t(random() % 64));
		}
		work_through(table);
	}
}
