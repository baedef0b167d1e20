// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "font/ttf.h"
#include "support/font_file.h"
#include "support/opened.h"
#include "tables/cmap_table.h"


TEST(cmap, knows_its_tag_and_keeps_its_octets)
{
	cmap_table cmap("0000 0000 11");
	EXPECT_EQ(cmap.tag, 0x636D6170u);
	EXPECT_EQ(kept(&cmap), hex("0000 0000 11"));
}


TEST(cmap, is_empty_until_it_is_read)
{
	cmap_table cmap(tiny_font().table("cmap"));
	EXPECT_EQ(mapped(cmap), "");
}


TEST(cmap, of_a_loaded_font_has_been_read)
{
	auto font = opened(tiny_font());
	EXPECT_EQ(mapped(*font->cmap), "41=1");
}


TEST(cmap, of_a_font_without_a_map_that_is_understood_is_empty)
{
	auto font = opened(tiny_font().with("cmap", "0000 0001 0001 0000 0000000c 0006"));
	EXPECT_EQ(mapped(*font->cmap), "");
}


TEST(cmap, that_nobody_edited_is_saved_as_it_was_loaded)
{
	octets table = hex("0007 0002 0000 0003 00000014 0003 0001 00000014"
					   "0004 1234 5678 0004 9abc def0 1111 0041 ffff 2222 0041 ffff"
					   "ffc0 0001 0000 0000 77");
	auto font = opened(tiny_font().with("cmap", table));
	EXPECT_EQ(mapped(*font->cmap), "41=1");
	saved(*font);
	EXPECT_EQ(kept(font->cmap), table);
}


TEST(cmap_get_tbl, counts_up_from_the_first_code_of_a_segment)
{
	cmap_table cmap(table_of("0004 0020 0000 0004 0004 0001 0000"
							 "0045 ffff 0000 0041 ffff ffc2 0001 0000 0000"));
	EXPECT_EQ(cmap.get_tbl(), 0);
	EXPECT_EQ(mapped(cmap), "41=3 42=4 43=5 44=6 45=7");
}


TEST(cmap_get_tbl, adds_differences_modulo_16_bits)
{
	EXPECT_EQ(read_from(table_of("0004 0020 0000 0004 0004 0001 0000"
								 "fff2 ffff 0000 fff0 ffff 0020 0001 0000 0000")),
		"fff0=10 fff1=11 fff2=12");
}


TEST(cmap_get_tbl, maps_code_0_too)
{
	EXPECT_EQ(read_from(table_of("0004 0020 0000 0004 0004 0001 0000"
								 "0001 ffff 0000 0000 ffff 0005 0001 0000 0000")),
		"0=5 1=6");
}


TEST(cmap_get_tbl, takes_glyphs_from_an_array_counted_from_its_own_word)
{
	EXPECT_EQ(read_from(table_of("0004 0026 0000 0004 0004 0001 0000"
								 "0043 ffff 0000 0041 ffff 0000 0001 0004 0000"
								 "0009 0003 0007")),
		"41=9 42=3 43=7");
}


TEST(cmap_get_tbl, adds_the_difference_to_glyphs_from_an_array)
{
	EXPECT_EQ(read_from(table_of("0004 0026 0000 0004 0004 0001 0000"
								 "0043 ffff 0000 0041 ffff fffe 0001 0004 0000"
								 "0009 0003 0007")),
		"41=7 42=1 43=5");
}


TEST(cmap_get_tbl, adds_the_difference_also_to_a_0_from_an_array)
{
	EXPECT_EQ(read_from(table_of("0004 0026 0000 0004 0004 0001 0000"
								 "0043 ffff 0000 0041 ffff 0010 0001 0004 0000"
								 "0009 0000 fff0")),
		"41=19 42=10");
}


TEST(cmap_get_tbl, lets_segments_share_an_array)
{
	EXPECT_EQ(read_from(table_of("0004 002c 0000 0006 0004 0001 0002"
								 "0042 0052 ffff 0000 0041 0051 ffff"
								 "0000 0000 0001 0006 0004 0000 0009 0003")),
		"41=9 42=3 51=9 52=3");
}


TEST(cmap_get_tbl, finds_words_outside_the_table_to_be_0)
{
	EXPECT_EQ(read_from(table_of("0004 0022 0000 0004 0004 0001 0000"
								 "0043 ffff 0000 0041 ffff 0000 0001 0004 0000 0009")),
		"41=9");
	EXPECT_EQ(read_from(table_of("0004 0022 0000 0004 0004 0001 0000"
								 "0043 ffff 0000 0041 ffff 0010 0001 ffff 0000 0009")),
		"41=10 42=10 43=10");
}


TEST(cmap_get_tbl, ignores_length_language_and_search_fields)
{
	EXPECT_EQ(read_from(table_of("0004 0000 ffff 0004 ffff ffff ffff"
								 "0041 ffff ffff 0041 ffff ffc0 0001 0000 0000")),
		"41=1");
}


TEST(cmap_get_tbl, answers_minus_1_without_a_subtable_of_Windows_for_Unicode)
{
	for (const char* record :
		{"0003 0000", "0000 0001", "0001 0003", "0003 000a", "0000 0003", "0300 0100"}) {
		octets table = tiny_font().table("cmap");
		octets changed = hex(record);
		std::copy(changed.begin(), changed.end(), table.begin() + 4);
		EXPECT_EQ(read_from(table), "answer -1") << record;
	}
	EXPECT_EQ(read_from(hex("0000 0000 0003 0001 0000000c")), "answer -1");
	EXPECT_EQ(read_from(octets()), "answer -1");
}


TEST(cmap_get_tbl, answers_minus_1_for_a_subtable_at_0)
{
	EXPECT_EQ(read_from(hex("0004 0001 0003 0001 00000000")), "answer -1");
}


TEST(cmap_get_tbl, answers_1_for_another_format)
{
	EXPECT_EQ(read_from(table_of("0006 0010 0000 0041 0001 0001")), "answer 1");
	EXPECT_EQ(read_from(table_of("0400 0018 0000")), "answer 1");
	EXPECT_EQ(read_from(table_of("")), "answer 1");
}


TEST(cmap_get_tbl, answers_1_for_a_subtable_outside_the_table)
{
	for (const char* place :
		{"0000002b", "0000002c", "0000002d", "0000002e", "0000ffff", "7fffffff", "fffffffe"}) {
		octets table = tiny_font().table("cmap");
		octets changed = hex(place);
		std::copy(changed.begin(), changed.end(), table.begin() + 8);
		EXPECT_EQ(read_from(table), "answer 1") << place;
	}
}


TEST(cmap_get_tbl, reads_the_last_of_several_subtables)
{
	EXPECT_EQ(read_from(hex("0000 0003"
							"0003 0001 0000001c"
							"0003 0001 0000003c"
							"0003 000a 0000001c"
							"0004 0020 0000 0004 0004 0001 0000"
							"0041 ffff 0000 0041 ffff ffc0 0001 0000 0000"
							"0004 0020 0000 0004 0004 0001 0000"
							"0042 ffff 0000 0042 ffff ffc7 0001 0000 0000")),
		"42=9");
}


TEST(cmap_get_tbl, lets_the_last_subtable_decide_also_when_it_has_another_format)
{
	EXPECT_EQ(read_from(hex("0000 0002 0003 0001 00000014 0003 0001 00000034"
							"0004 0020 0000 0004 0004 0001 0000"
							"0041 ffff 0000 0041 ffff ffc0 0001 0000 0000"
							"0006 000c 0000 0041 0001 0001")),
		"answer 1");
}


TEST(cmap_get_tbl, lets_the_last_subtable_decide_also_when_it_is_at_0)
{
	EXPECT_EQ(read_from(hex("0000 0002 0003 0001 00000014 0003 0001 00000000"
							"0004 0020 0000 0004 0004 0001 0000"
							"0041 ffff 0000 0041 ffff ffc0 0001 0000 0000")),
		"answer -1");
}


TEST(cmap_get_tbl, answers_0_for_an_empty_subtable)
{
	EXPECT_EQ(
		read_from(table_of("0004 0018 0000 0002 0001 ffff 0001 ffff 0000 ffff 0001 0000")), "");
}


TEST(cmap_get_tbl, answers_0_for_a_subtable_of_no_segments)
{
	EXPECT_EQ(read_from(table_of("0004 0010 0000 0000 0000 0000 0000 0041 0000 0041")), "");
	EXPECT_EQ(read_from(table_of("0004 0010 0000 0001 0000 0000 0000 0041 0000 0041")), "");
}


TEST(cmap_get_tbl, stops_at_the_first_segment_that_starts_at_the_last_code)
{
	EXPECT_EQ(read_from(table_of("0004 0028 0000 0006 0004 0001 0002"
								 "0041 ffff 0043 0000 0041 ffff 0043"
								 "ffc0 0009 0001 0000 0000 0000")),
		"41=1");
}


TEST(cmap_get_tbl, reads_as_many_segments_as_it_says_and_needs_no_end)
{
	// The third segment lies in all four arrays, but behind the count.
	EXPECT_EQ(read_from(table_of("0004 0020 0000 0004 0004 0001 0000"
								 "0041 0043 0000 0041 0043 ffc0 ffc0 0000 0000"
								 "0045 0000 0045 ffc0 0000")),
		"41=1 43=3");
}


TEST(cmap_get_tbl, halves_an_odd_size_of_its_arrays_downward)
{
	// Three octets each: the arrays stand at odd places and hold one segment.
	EXPECT_EQ(read_from(table_of("0004 0020 0000 0003 0004 0001 0000"
								 "0041 00 0000 0041 00 ffc0 00 0000 00")),
		"41=1");
}


TEST(cmap_get_tbl, applies_a_segment_to_the_last_code_up_to_that)
{
	EXPECT_EQ(read_from(table_of("0004 0018 0000 0002 0001 ffff 0001 ffff 0000 fffd 0006 0000")),
		"fffd=3 fffe=4 ffff=5");
}


TEST(cmap_get_tbl, goes_on_after_a_segment_to_the_last_code)
{
	EXPECT_EQ(read_from(table_of("0004 0020 0000 0004 0004 0001 0000"
								 "ffff 0041 0000 fffe 0041 0003 ffc0 0000 0000")),
		"41=1 fffe=1 ffff=2");
}


TEST(cmap_get_tbl, takes_nothing_from_a_segment_that_ends_before_it_starts)
{
	EXPECT_EQ(read_from(table_of("0004 0028 0000 0006 0004 0001 0002"
								 "0040 0045 ffff 0000 0042 0045 ffff"
								 "0000 ffc0 0001 0000 0000 0000")),
		"45=5");
}


TEST(cmap_get_tbl, lets_the_last_of_overlapping_segments_decide)
{
	EXPECT_EQ(read_from(table_of("0004 0030 0000 0008 0008 0002 0000"
								 "0045 0042 0043 ffff 0000 0041 0041 0043 ffff"
								 "0000 0010 0000 0001 0000 0000 0002 0000"
								 "0000")),
		"41=51 42=52 44=44 45=45");
}


TEST(cmap_get_tbl, forgets_what_it_read_before)
{
	cmap_table cmap(tiny_font().table("cmap"));
	cmap.get_tbl();
	cmap.put16(2, 0);
	EXPECT_EQ(cmap.get_tbl(), -1);
	EXPECT_EQ(mapped(cmap), "");
}


TEST(cmap_get_tbl, leaves_the_octets_alone)
{
	octets table = table_of("0004 0020 0000 0004 0004 0001 0000"
							"ffff 0041 0000 0000 0041 0003 ffc0 0000 0000");
	cmap_table cmap(table);
	cmap.get_tbl();
	EXPECT_EQ(kept(&cmap), table);
}
