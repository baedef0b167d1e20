// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "tables/ttf_os2.h"

#include <gtest/gtest.h>

#include "font/ttf.h"
#include "support/opened.h"

// The table of a new font for which these rows of the range table were chosen.
static octets
made_for(const std::vector<int>& rows)
{
	ttf font;
	font.chrs = new chrs_record();
	for (int row : rows)
		font.chrs->ranges[row] = 1;
	ttf_os2 os2(&font, nullptr, 0);
	return kept(&os2);
}


static octets
ranges(const octets& table)
{
	return part(table, 42, 16);
}


TEST(os2, of_a_new_font_is_of_version_1)
{
	EXPECT_EQ(made_for({}),
		hex("0001 0200 01f4 0005 0004"
			"0100 0100 0000 0100 0100 0100 0000 0100 0010 0100 0000"
			"02 00 05 09 00 00 00 00 00 00"
			"00000000 00000000 00000000 00000000 5461726e"
			"0040 0001 fffe 0200 0000 0000 0200 0000 ffffffff ffffffff"));
}


TEST(os2, has_a_bit_for_each_chosen_block)
{
	EXPECT_EQ(ranges(made_for({0})), hex("00000001 00000000 00000000 00000000"));
	EXPECT_EQ(ranges(made_for({31, 32})), hex("80000000 00000001 00000000 00000000"));
	EXPECT_EQ(ranges(made_for({63, 64})), hex("00000000 80000000 00000001 00000000"));
	EXPECT_EQ(ranges(made_for({70})), hex("00000000 00000000 00000040 00000000"));
}


TEST(os2, has_no_bits_beyond_the_71_blocks)
{
	std::vector<int> all(128);
	for (int i = 0; i < 128; i++)
		all[(size_t)i] = i;
	EXPECT_EQ(ranges(made_for(all)), hex("ffffffff ffffffff 0000007f 00000000"));
}


TEST(os2, takes_any_flag_but_0_for_chosen)
{
	ttf font;
	font.chrs = new chrs_record();
	font.chrs->ranges[1] = 255;
	ttf_os2 os2(&font, nullptr, 0);
	EXPECT_EQ(os2.u32(42), 2u);
}


TEST(os2, pads_its_86_bytes_with_zeros)
{
	ttf font;
	ttf_os2 os2(&font, nullptr, 0);
	EXPECT_EQ(os2.length, 86u);
	EXPECT_EQ(octets(os2.data + 86, os2.data + 88), hex("00 00"));
	EXPECT_EQ(os2.tag, 0x4F532F32u);
}


TEST(os2, keeps_the_bytes_it_is_made_of)
{
	octets contents = hex("0003 ffff 00");
	ttf_os2 os2(nullptr, buffer_of(contents), contents.size());
	EXPECT_EQ(kept(&os2), contents);
}
