// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "tables/ttf_gasp.h"

#include <string>

#include <gtest/gtest.h>

#include "support/opened.h"

// A gasp of a font of its own, made of these octets.
class gasp_table : public ttf_gasp {
public:
	explicit gasp_table(const octets& contents)
		: ttf_gasp(nullptr, buffer_of(contents), contents.size())
	{
	}
	explicit gasp_table(std::string_view digits) : gasp_table(hex(digits)) {}
};

static constexpr std::string_view three_ranges = "0000 0003 0008 0002 0010 0001 ffff 0003";


TEST(gasp, tells_its_ranges)
{
	gasp_table gasp(three_ranges);
	EXPECT_EQ(gasp.count(), 3);
	unsigned short size;
	unsigned short behavior;
	EXPECT_EQ(gasp.get_field(0, &size, &behavior), 0);
	EXPECT_EQ(size, 8);
	EXPECT_EQ(behavior, 2);
	EXPECT_EQ(gasp.get_field(2, &size, &behavior), 0);
	EXPECT_EQ(size, 0xFFFF);
	EXPECT_EQ(behavior, 3);
}


TEST(gasp, answers_1_and_stores_nothing_for_what_is_no_range)
{
	gasp_table gasp(three_ranges);
	for (int index : {-1, 3, 65535, INT32_MAX, INT32_MIN}) {
		unsigned short size = 11;
		unsigned short behavior = 12;
		EXPECT_EQ(gasp.get_field(index, &size, &behavior), 1);
		EXPECT_EQ(size, 11);
		EXPECT_EQ(behavior, 12);
	}
}


TEST(gasp, has_no_default_content)
{
	ttf_gasp gasp(nullptr, nullptr, 0);
	EXPECT_EQ(gasp.data, nullptr);
	EXPECT_EQ(gasp.count(), 0);
}


TEST(gasp, takes_three_sizes_in_order)
{
	gasp_table gasp("0000 0000");
	EXPECT_EQ(gasp.set_field(-1, 0x0008, 1), 0);
	EXPECT_EQ(gasp.set_field(-1, 0x0010, 3), 0);
	EXPECT_EQ(gasp.set_field(-1, 0xFFFF, 2), 0);
	EXPECT_EQ(kept(&gasp), hex("0000 0003 0008 0001 0010 0003 ffff 0002"));
}


TEST(gasp, puts_a_new_size_before_the_first_larger_one)
{
	gasp_table gasp(three_ranges);
	EXPECT_EQ(gasp.set_field(-1, 9, 0), 0);
	EXPECT_EQ(kept(&gasp), hex("0000 0004 0008 0002 0009 0000 0010 0001 ffff 0003"));
	EXPECT_EQ(gasp.set_field(-1, 1, 3), 0);
	EXPECT_EQ(kept(&gasp), hex("0000 0005 0001 0003 0008 0002 0009 0000 0010 0001 ffff 0003"));
}


TEST(gasp, puts_the_largest_size_last)
{
	gasp_table gasp("0000 0001 0008 0002");
	EXPECT_EQ(gasp.set_field(-1, 9, 1), 0);
	EXPECT_EQ(kept(&gasp), hex("0000 0002 0008 0002 0009 0001"));
}


TEST(gasp, gives_a_size_that_is_there_another_behavior_and_keeps_its_version)
{
	gasp_table gasp("0001 0003 0008 0002 0010 0001 ffff 0003 abcd");
	EXPECT_EQ(gasp.set_field(-1, 0x10, 0x102), 0);
	EXPECT_EQ(kept(&gasp), hex("0001 0003 0008 0002 0010 0102 ffff 0003 abcd"));
}


TEST(gasp, replaces_a_range_by_number_in_its_place_whatever_the_order)
{
	gasp_table gasp("0001 0003 0008 0002 0010 0001 ffff 0003");
	EXPECT_EQ(gasp.set_field(0, 0x20, 1), 0);
	EXPECT_EQ(kept(&gasp), hex("0001 0003 0020 0001 0010 0001 ffff 0003"));
	EXPECT_EQ(gasp.set_field(2, 1, 0), 0);
	EXPECT_EQ(kept(&gasp), hex("0001 0003 0020 0001 0010 0001 0001 0000"));
}


TEST(gasp, deletes_a_range_by_number_with_size_0)
{
	gasp_table gasp("0001 0003 0008 0002 0010 0001 ffff 0003");
	EXPECT_EQ(gasp.set_field(1, 0, 7), 0);
	EXPECT_EQ(kept(&gasp), hex("0000 0002 0008 0002 ffff 0003"));
	EXPECT_EQ(gasp.set_field(1, 0, 0), 0);
	EXPECT_EQ(gasp.set_field(0, 0, 0), 0);
	EXPECT_EQ(kept(&gasp), hex("0000 0000"));
}


TEST(gasp, writes_version_0_when_the_number_of_ranges_changes)
{
	gasp_table gasp("0001 0001 0008 0002 abcd");
	EXPECT_EQ(gasp.set_field(-1, 7, 1), 0);
	EXPECT_EQ(kept(&gasp), hex("0000 0002 0007 0001 0008 0002"));
}


TEST(gasp, answers_1_for_a_number_that_is_no_range)
{
	gasp_table gasp(three_ranges);
	for (int index : {3, 4, 65535, INT32_MAX}) {
		EXPECT_EQ(gasp.set_field(index, 5, 1), 1);
		EXPECT_EQ(gasp.set_field(index, 0, 1), 1);
	}
	EXPECT_EQ(kept(&gasp), hex(three_ranges));
	EXPECT_EQ(gasp_table("0000 0000").set_field(0, 5, 1), 1);
}


TEST(gasp, answers_2_for_size_0_that_is_not_there)
{
	gasp_table gasp(three_ranges);
	for (int index : {-1, -2, INT32_MIN})
		EXPECT_EQ(gasp.set_field(index, 0, 3), 2);
	EXPECT_EQ(kept(&gasp), hex(three_ranges));
	EXPECT_EQ(gasp_table("0000 0000").set_field(-1, 0, 3), 2);
}


TEST(gasp, deletes_the_range_of_size_0_that_is_there)
{
	gasp_table gasp("0000 0002 0000 0002 0010 0001");
	EXPECT_EQ(gasp.set_field(-1, 0, 3), 0);
	EXPECT_EQ(kept(&gasp), hex("0000 0001 0010 0001"));
}


TEST(gasp, looks_no_further_than_the_first_range_that_is_not_smaller)
{
	gasp_table gasp("0000 0003 0020 0001 0008 0002 0010 0003");
	EXPECT_EQ(gasp.set_field(-1, 8, 3), 0);
	EXPECT_EQ(kept(&gasp), hex("0000 0004 0008 0003 0020 0001 0008 0002 0010 0003"));
	// 0 is never below 0: only a first range of that size is found.
	gasp_table other("0000 0002 0010 0001 0000 0002");
	EXPECT_EQ(other.set_field(-1, 0, 3), 2);
}


TEST(gasp, heeds_the_first_of_two_ranges_of_a_size)
{
	gasp_table gasp("0000 0002 0008 0001 0008 0002");
	EXPECT_EQ(gasp.set_field(-1, 8, 3), 0);
	EXPECT_EQ(kept(&gasp), hex("0000 0002 0008 0003 0008 0002"));
}


TEST(hostile_gasp, counts_only_the_ranges_that_are_there)
{
	EXPECT_EQ(gasp_table("").count(), 0);
	EXPECT_EQ(gasp_table("0000 ffff").count(), 0);
	EXPECT_EQ(gasp_table("0000 00").count(), 0);
	EXPECT_EQ(gasp_table("0000 ffff 0008 0001 0010 00").count(), 1);
	EXPECT_EQ(gasp_table("0000 0000 0008 0001").count(), 0);
}


TEST(hostile_gasp, may_be_cut_anywhere)
{
	octets whole = hex(three_ranges);
	for (size_t length = 0; length <= whole.size(); length++) {
		gasp_table gasp(part(whole, 0, length));
		const int count = gasp.count();
		EXPECT_EQ(gasp.set_field(-1, 9, 1), 0);
		EXPECT_EQ(gasp.count(), count + 1);
		EXPECT_EQ(gasp.set_field(count, 0, 0), 0);
		EXPECT_EQ(gasp.set_field(-1, 8, 1), 0);
		EXPECT_EQ(gasp.length, 4u + 4u * (uint32)gasp.count());
	}
}


TEST(hostile_gasp, takes_no_more_ranges_than_it_can_count)
{
	octets table = zeros(4 + 4 * 65535);
	put_be16(table, 2, 65535);
	for (size_t i = 0; i < 65535; i++)
		put_be16(table, 4 + 4 * i, 8);
	gasp_table gasp(table);
	EXPECT_EQ(gasp.count(), 65535);
	EXPECT_EQ(gasp.set_field(-1, 9, 1), 2);
	EXPECT_TRUE(same(table, kept(&gasp)));
	EXPECT_EQ(gasp.set_field(65534, 0, 0), 0);
	EXPECT_EQ(gasp.set_field(-1, 9, 1), 0);
	EXPECT_EQ(gasp.count(), 65535);
}
