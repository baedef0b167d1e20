// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Which glyphs are within which, as the records name them.
#include "font/ttf_loca.h"
#include "outline/glyf_fixture.h"

#include <gtest/gtest.h>


TEST(glyf_contains, itself_whatever_it_is)
{
	font_ptr font = font_of({octets(), triangle(), composite_of("0000 0001 00 00")});
	for (uint16 index : {0, 1, 2, 3, 0xFFFF})
		EXPECT_TRUE(font->glyf->contains(index, index)) << index;
}


TEST(glyf_contains, its_components_and_theirs)
{
	font_ptr font = font_of({composite_of("0020 0003 00 00 0000 0001 00 00"),
		composite_of("0000 0002 00 00"), triangle(), triangle(), triangle()});
	for (uint16 inner : {1, 2, 3})
		EXPECT_TRUE(font->glyf->contains(0, inner)) << inner;
	EXPECT_FALSE(font->glyf->contains(0, 4));
	EXPECT_FALSE(font->glyf->contains(1, 0));
	EXPECT_FALSE(font->glyf->contains(2, 0));
}


// Deeper than decoding goes.
TEST(glyf_contains, components_at_any_depth)
{
	std::vector<octets> records;
	for (uint16_t i = 1; i <= 1000; i++) {
		octets record = composite_of("0000 0000 00 00");
		put_be16(record, 12, i);
		records.push_back(record);
	}
	records.push_back(triangle());
	font_ptr font = font_of(records);
	EXPECT_TRUE(font->glyf->contains(0, 1000));
	EXPECT_FALSE(font->glyf->contains(1000, 0));
}


// More than a glyph keeps.
TEST(glyf_contains, components_beyond_the_seventh)
{
	octets record = composite_of("");
	for (uint16_t i = 1; i <= 9; i++) {
		octets next = hex("0020 0001 00 00");
		put_be16(next, 0, i < 9 ? 0x20 : 0);
		put_be16(next, 2, i);
		record.insert(record.end(), next.begin(), next.end());
	}
	std::vector<octets> records(10, triangle());
	records[0] = record;
	font_ptr font = font_of(records);
	EXPECT_TRUE(font->glyf->contains(0, 9));
}


TEST(glyf_contains, what_a_number_without_a_glyph_names)
{
	font_ptr font = font_of({composite_of("0000 ffff 00 00")});
	EXPECT_TRUE(font->glyf->contains(0, 0xFFFF));
	EXPECT_FALSE(font->glyf->contains(0xFFFF, 0));
}


TEST(glyf_contains, ends_where_glyphs_go_round_in_circles)
{
	font_ptr font =
		font_of({composite_of("0000 0001 00 00"), composite_of("0000 0000 00 00"), triangle()});
	EXPECT_FALSE(font->glyf->contains(0, 2));
	EXPECT_TRUE(font->glyf->contains(1, 0));
}


TEST(glyf_contains, is_not_looked_for_beside_the_table)
{
	font_ptr font = font_of({hex("ffff"), composite_of("0020 0002 00 00 0000"), triangle()});
	EXPECT_FALSE(font->glyf->contains(0, 2) && font->glyf->contains(0, 1));
	EXPECT_TRUE(font->glyf->contains(1, 2));
}


// All glyphs are one list of components that grows with the file; in doubt the answer is yes.
TEST(glyf_contains, is_assumed_where_there_are_too_many_records_to_look_at)
{
	octets glyf = composite_of("");
	for (uint32_t i = 0; i < 60000; i++) {
		const size_t at = glyf.size();
		glyf.resize(at + 6);
		put_be16(glyf, at, 0x20);
		put_be16(glyf, at + 2, uint16_t(i));
	}
	octets loca = zeros(4 * 60002);
	for (uint32_t i = 0; i < 60002; i++)
		put_be32(loca, 4 * i, i % 2 * 6);
	font_ptr font = font_with(glyf, loca, 60001);
	EXPECT_TRUE(font->glyf->contains(0, 60000));
}
