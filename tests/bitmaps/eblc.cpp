// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Finding bitmaps: sizes, index sub-tables, offsets.
#include "bitmaps/bitmap_fixture.h"

#include <gtest/gtest.h>

// A size record: where its array starts, how many elements it has, pixels per em and depth.
static std::string
record(const std::string& array, const std::string& count, const std::string& size)
{
	return array + "00000000" + count + "00000000" + std::string(48, '0') + "0000 0000" + size
		+ "01";
}

// One size of 12 pixels per em; its array follows at 56, the first sub-table of one element at 64.
static std::string
one_size(const std::string& behind, const std::string& count = "00000001")
{
	return "00020000 00000001" + record("00000038", count, "0c0c01") + behind;
}

TEST(eblc, of_index_format_1_has_an_offset_of_four_octets_for_each_glyph)
{
	lone_tables font(one_size("0005 0007 00000008"
							  "0001 0007 00000004 00000000 00010010 fffffffe"));
	EXPECT_EQ(looked_up(font.eblc, 5), "0 4 7");
	EXPECT_EQ(looked_up(font.eblc, 6), "0 10014 7");
	// Modulo 2^32.
	EXPECT_EQ(looked_up(font.eblc, 7), "0 2 7");
}

TEST(eblc, of_index_format_3_has_an_offset_of_two_octets_without_a_sign)
{
	lone_tables font(one_size("0005 0007 00000008"
							  "0003 0002 00000004 0000 8000 ffff"));
	EXPECT_EQ(looked_up(font.eblc, 5), "0 4 2");
	EXPECT_EQ(looked_up(font.eblc, 6), "0 8004 2");
	EXPECT_EQ(looked_up(font.eblc, 7), "0 10003 2");
}

TEST(eblc, of_index_format_2_has_images_of_one_size_and_their_metrics)
{
	lone_tables font(one_size("0005 0007 00000008"
							  "0002 0005 00000004 00000012 0809 fef7 0c aabbcc"));
	bitmap b(7, 12, 12, 1);
	EXPECT_EQ(looked_up(font.eblc, b), "0 28 5");
	EXPECT_EQ(b.height, 8);
	EXPECT_EQ(b.width, 9);
	EXPECT_EQ(b.horiBearingX, -2);
	EXPECT_EQ(b.horiBearingY, -9);
	EXPECT_EQ(b.horiAdvance, 12);
}

TEST(eblc, of_other_index_formats_gives_2_and_the_image_format)
{
	for (const char* format : {"0000", "0004", "0005", "ffff"}) {
		lone_tables font(
			one_size("0005 0005 00000008" + std::string(format) + "0007 00000004 00000000"));
		EXPECT_EQ(looked_up(font.eblc, 5), "2 0 7") << format;
	}
}

TEST(eblc, gives_any_image_format)
{
	lone_tables font(one_size("0005 0005 00000008 0001 0009 00000004 00000000"));
	EXPECT_EQ(looked_up(font.eblc, 5), "0 4 9");
}

TEST(eblc, has_nothing_at_offset_0)
{
	lone_tables font(one_size("0005 0006 00000008 0001 0001 00000000 00000000 00000001"));
	EXPECT_EQ(looked_up(font.eblc, 5), "1 0 1");
	EXPECT_EQ(looked_up(font.eblc, 6), "0 1 1");
}

TEST(eblc, lacks_other_sizes_and_glyphs)
{
	lone_tables font(one_size("0005 0006 00000008 0001 0001 00000004 00000000 00000001"));
	EXPECT_EQ(looked_up(font.eblc, 4), "1 0 ffff");
	EXPECT_EQ(looked_up(font.eblc, 7), "1 0 ffff");
	EXPECT_EQ(looked_up(font.eblc, 5, 12, 13), "1 0 ffff");
	EXPECT_EQ(looked_up(font.eblc, 5, 13, 12), "1 0 ffff");
	EXPECT_EQ(looked_up(font.eblc, 5, 0, 0), "1 0 ffff");
}

TEST(eblc, takes_the_first_sub_table_that_covers_the_glyph)
{
	lone_tables font(one_size("0001 0002 00000018 0002 0004 00000024 0003 0003 00000018"
							  "0001 0001 00000010 00000000"
							  "0003 0002 00000020 0000 0003 0005 0000",
		"00000003"));
	EXPECT_EQ(looked_up(font.eblc, 1), "0 10 1");
	// The second entry of the first sub-table is what follows it.
	EXPECT_EQ(looked_up(font.eblc, 2), "0 30012 1");
	EXPECT_EQ(looked_up(font.eblc, 3), "0 23 2");
	EXPECT_EQ(looked_up(font.eblc, 4), "0 25 2");
}

TEST(eblc, takes_the_first_of_two_sizes_alike_even_when_it_lacks_the_glyph)
{
	strikes tables;
	tables.size(12, 12, 1).images(1, 1, 7, {{"#"}}).size(12, 12, 8).images(2, 1, 7, {{"##"}});
	auto font = opened(tables.in(font_for_strikes()));
	EXPECT_EQ(content(*bitmap_of(*font, 1)).rows, picture{"#"});
	EXPECT_EQ(looked_up(*font->eblc, 2), "1 0 ffff");
}

TEST(eblc, lists_each_size_once_in_their_order)
{
	lone_tables font("00020000 00000005" + record("00000000", "00000000", "100f01")
		+ record("00000000", "00000000", "0c0c01") + record("00000000", "00000000", "100f08")
		+ record("00000000", "00000000", "0c0d01") + record("00000000", "00000000", "0c0c01"));
	int count = -1;
	octets sizes = zeros(10);
	EXPECT_EQ(font.eblc.get_sizes(&count, sizes.data()), 0);
	EXPECT_EQ(count, 3);
	EXPECT_EQ(sizes, hex("100f 0c0c 0c0d 0000 0000"));
}

TEST(eblc, lists_more_than_eight_sizes)
{
	strikes tables;
	for (int ppem = 8; ppem < 18; ppem++)
		tables.size(ppem, ppem);
	auto font = opened(tables.in(font_for_strikes()));
	int count = -1;
	octets sizes = zeros(20);
	EXPECT_EQ(font->eblc->get_sizes(&count, sizes.data()), 0);
	EXPECT_EQ(count, 10);
	EXPECT_EQ(sizes, hex("0808 0909 0a0a 0b0b 0c0c 0d0d 0e0e 0f0f 1010 1111"));
}

TEST(eblc, of_no_sizes_lists_none)
{
	for (const char* table : {"", "0002", "00020000 00000000", "00020000 0000"}) {
		lone_tables font(table);
		int count = -1;
		EXPECT_EQ(font.eblc.get_sizes(&count, nullptr), 0);
		EXPECT_EQ(count, 0);
		EXPECT_EQ(looked_up(font.eblc, 1, 0, 0), "1 0 ffff");
	}
}

TEST(eblc_hostile, counts_only_sizes_that_are_there)
{
	lone_tables font(
		"00020000 ffffffff" + record("00000000", "00000000", "0c0c01") + std::string(94, '1'));
	int count = -1;
	octets sizes = zeros(2);
	EXPECT_EQ(font.eblc.get_sizes(&count, sizes.data()), 0);
	EXPECT_EQ(count, 1);
	EXPECT_EQ(looked_up(font.eblc, 1, 0x11, 0x11), "1 0 ffff");
}

TEST(eblc_hostile, ends_with_the_table_whatever_the_number_of_sub_tables)
{
	lone_tables font(one_size("0005 0005 00000008 0001 0001 00000004 00000000", "ffffffff"));
	EXPECT_EQ(looked_up(font.eblc, 5), "0 4 1");
	EXPECT_EQ(looked_up(font.eblc, 0x7000), "1 0 ffff");
}

TEST(eblc_hostile, has_no_bitmaps_in_arrays_and_sub_tables_outside)
{
	for (const char* array : {"00000058", "00000057", "7fffffff", "ffffffff", "fffffff8"}) {
		lone_tables font("00020000 00000001" + record(array, "00000001", "0c0c01")
			+ "0005 0005 00000008 0001 0001 00000004 00000000");
		EXPECT_EQ(looked_up(font.eblc, 5), "1 0 ffff") << array;
	}
	for (const char* index : {"00000011", "00000020", "7fffffff", "ffffffc7"}) {
		lone_tables font(
			one_size("0005 0005" + std::string(index) + "0001 0001 00000004 00000000"));
		EXPECT_EQ(looked_up(font.eblc, 5), "1 0 ffff") << index;
	}
}

TEST(eblc_hostile, adds_offsets_modulo_2_to_the_32)
{
	// The sub-table stands in front of its array.
	lone_tables font("00020000 00000001" + record("00000044", "00000001", "0c0c01")
		+ "0001 0001 00000004 00000000 0005 0005 fffffff4");
	EXPECT_EQ(looked_up(font.eblc, 5), "0 4 1");
}

TEST(eblc_hostile, has_no_entries_outside)
{
	lone_tables four(one_size("0000 ffff 00000008 0001 0001 00000004 00000000 00000001 00"));
	EXPECT_EQ(looked_up(four.eblc, 1), "0 5 1");
	EXPECT_EQ(looked_up(four.eblc, 2), "1 0 1");
	EXPECT_EQ(looked_up(four.eblc, 0xFFFF), "1 0 1");
	lone_tables two(one_size("0000 ffff 00000008 0003 0001 00000004 0000 0001 00"));
	EXPECT_EQ(looked_up(two.eblc, 1), "0 5 1");
	EXPECT_EQ(looked_up(two.eblc, 2), "1 0 1");
	EXPECT_EQ(looked_up(two.eblc, 0xFFFF), "1 0 1");
}

TEST(eblc_hostile, takes_no_metrics_from_outside)
{
	lone_tables font(one_size("0005 0005 00000008 0002 0005 00000004 00000012 0809 0109 0c aabb"));
	bitmap b(5, 12, 12, 1);
	EXPECT_EQ(looked_up(font.eblc, b), "1 0 5");
	EXPECT_EQ(b.width, 0);
	EXPECT_EQ(b.horiAdvance, 12);
}

TEST(eblc_hostile, stays_inside_wherever_the_tables_are_cut)
{
	const picture square = {"##", "##"};
	for (int format = 1; format <= 3; format++) {
		strikes tables;
		tables.size(12, 12).images(1, format, 1, {square, square, square});
		tables.size(16, 16).images(1, format, 7, {square, square});
		for (size_t cut = 0; cut <= tables.eblc().size() + tables.ebdt().size(); cut++) {
			size_t places = std::min(cut, tables.eblc().size());
			const octets eblc = part(tables.eblc(), 0, places);
			const octets ebdt = part(tables.ebdt(), 0, cut - places);
			auto font = opened(font_for_strikes().with("EBLC", eblc).with("EBDT", ebdt));
			for (int glyph = 0; glyph < 5; glyph++) {
				for (int size : {0, 12, 16}) {
					int answer = 0;
					auto b = bitmap_of(*font, glyph, size, size, &answer);
					EXPECT_EQ(answer == 0, b->pixels != nullptr);
					EXPECT_EQ(font->set_bitmap(b.get()), answer);
				}
			}
		}
	}
}
