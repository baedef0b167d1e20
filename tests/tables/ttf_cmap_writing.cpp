// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "font/ttf.h"
#include "support/choice.h"
#include "support/opened.h"
#include "tables/cmap_table.h"

struct mapping {
	unsigned short code;
	unsigned short glyph;
};

// The table with these codes and no others.
static octets
written(const std::vector<mapping>& map)
{
	cmap_table cmap("");
	for (const mapping& each : map)
		cmap.set_chr(each.code, each.code, each.glyph);
	EXPECT_EQ(cmap.set_tbl(), 0);
	return kept(&cmap);
}


// The table with this many codes, none beside another.
static octets
written_apart(int count)
{
	cmap_table cmap("");
	cmap.set_tbl();
	for (int i = 0; i < count; i++)
		cmap.set_chr((unsigned short)(0x100 + 2 * i), (unsigned short)(0x100 + 2 * i), 1);
	return kept(&cmap);
}


// searchRange, entrySelector, rangeShift.
static octets
search_fields(const octets& table)
{
	return part(table, 20, 6);
}


TEST(cmap_set_tbl, writes_an_empty_map_in_36_octets)
{
	EXPECT_EQ(written({}),
		hex("0000 0001 0003 0001 0000000c" // version, one subtable: Windows, Unicode, at 12
			"0004 0018 0000"               // format, length, language
			"0002 0001 ffff 0001"          // one segment, search fields
			"ffff 0000 ffff 0001 0000"));  // its end, padding, start, difference, no array
}


TEST(cmap_set_tbl, writes_one_run_as_one_segment_before_the_end)
{
	cmap_table cmap("");
	cmap.set_chr(0x41, 0x5A, 3);
	EXPECT_EQ(kept(&cmap),
		hex("0000 0001 0003 0001 0000000c"
			"0004 0020 0000 0004 0002 0000 0002"
			"005a ffff 0000 0041 ffff ffc2 0001 0000 0000"));
}


TEST(cmap_set_tbl, writes_two_runs_in_the_order_of_their_codes)
{
	EXPECT_EQ(written({{0x61, 5}, {0x42, 2}, {0x41, 1}}),
		hex("0000 0001 0003 0001 0000000c"
			"0004 0028 0000 0006 0004 0001 0002"
			"0042 0061 ffff 0000 0041 0061 ffff"
			"ffc0 ffa4 0001 0000 0000 0000"));
}


TEST(cmap_set_tbl, writes_search_fields_of_its_own_for_powers_of_two)
{
	EXPECT_EQ(search_fields(written_apart(0)), hex("0001 ffff 0001"));
	EXPECT_EQ(search_fields(written_apart(1)), hex("0002 0000 0002"));
	EXPECT_EQ(search_fields(written_apart(3)), hex("0004 0001 0004"));
	EXPECT_EQ(search_fields(written_apart(7)), hex("0008 0002 0008"));
}


TEST(cmap_set_tbl, writes_the_usual_search_fields_for_other_counts)
{
	EXPECT_EQ(search_fields(written_apart(2)), hex("0004 0001 0002"));
	EXPECT_EQ(search_fields(written_apart(4)), hex("0008 0002 0002"));
	EXPECT_EQ(search_fields(written_apart(5)), hex("0008 0002 0004"));
	EXPECT_EQ(search_fields(written_apart(8)), hex("0010 0003 0002"));
}


TEST(cmap_set_tbl, does_not_split_a_run_whose_glyphs_do_not_count_up)
{
	octets table = written({{0x41, 5}, {0x42, 9}, {0x43, 1}});
	EXPECT_EQ(table,
		hex("0000 0001 0003 0001 0000000c"
			"0004 0020 0000 0004 0002 0000 0002"
			"0043 ffff 0000 0041 ffff ffc4 0001 0000 0000"));
	EXPECT_EQ(read_from(table), "41=5 42=6 43=7");
}


TEST(cmap_set_tbl, keeps_such_a_run_in_the_map_until_it_is_read_again)
{
	cmap_table cmap("");
	cmap.set_chr(0x41, 0x41, 5);
	cmap.set_chr(0x42, 0x42, 9);
	EXPECT_EQ(mapped(cmap), "41=5 42=9");
	cmap.get_tbl();
	EXPECT_EQ(mapped(cmap), "41=5 42=6");
}


TEST(cmap_set_tbl, writes_a_run_to_the_last_code_but_one_as_one_segment)
{
	cmap_table cmap("");
	cmap.set_chr(0xFFFC, 0xFFFE, 7);
	EXPECT_EQ(kept(&cmap),
		hex("0000 0001 0003 0001 0000000c"
			"0004 0020 0000 0004 0002 0000 0002"
			"fffe ffff 0000 fffc ffff 000b 0001 0000 0000"));
}


TEST(cmap_set_tbl, drops_the_first_and_the_last_code)
{
	octets table = table_of("0004 0018 0000 0002 0001 ffff 0001 ffff 0000 0000 0002 0000");
	cmap_table cmap(table);
	cmap.get_tbl();
	EXPECT_EQ(cmap.get_gno(0), 2);
	EXPECT_EQ(cmap.get_gno(0xFFFD), 0xFFFF);
	EXPECT_EQ(cmap.get_gno(0xFFFF), 1);
	cmap.set_tbl();
	EXPECT_EQ(cmap.get_gno(0), 0);
	EXPECT_EQ(cmap.get_gno(0xFFFF), 0);
	EXPECT_EQ(part(kept(&cmap), 26, 18), hex("fffd ffff 0000 0001 ffff 0002 0001 0000 0000"));
}


TEST(cmap_set_tbl, starts_a_run_at_code_1)
{
	EXPECT_EQ(part(written({{1, 9}}), 26, 18), hex("0001 ffff 0000 0001 ffff 0008 0001 0000 0000"));
}


TEST(cmap_set_tbl, leaves_only_the_one_subtable)
{
	cmap_table cmap("0007 0002 0000 0003 00000014 0003 0001 00000014"
					"0004 0020 5678 0004 0004 0001 0000 0041 ffff 2222 0041 ffff"
					"ffc0 0001 0000 0000");
	cmap.get_tbl();
	EXPECT_EQ(cmap.set_tbl(), 0);
	EXPECT_EQ(kept(&cmap),
		hex("0000 0001 0003 0001 0000000c"
			"0004 0020 0000 0004 0002 0000 0002"
			"0041 ffff 0000 0041 ffff ffc0 0001 0000 0000"));
}


static octets
written_for(const std::vector<uint16_t>& codes)
{
	ttf font;
	font.chrs = choice(codes);
	ttf_cmap cmap(&font, nullptr, 0);
	return kept(&cmap);
}


TEST(cmap_set_tbl, stores_a_length_beyond_16_bits_modulo_65536)
{
	std::vector<uint16_t> codes;
	for (int i = 0; i < 8189; i++)
		codes.push_back(uint16_t(1 + 2 * i));
	EXPECT_EQ(part(written_for(codes), 14, 2), hex("0000"));
	codes.push_back(0x8000);
	EXPECT_EQ(part(written_for(codes), 14, 2), hex("0008"));
}


TEST(cmap_set_tbl, of_every_second_code_has_32768_segments_and_a_count_that_wraps)
{
	std::vector<uint16_t> codes;
	for (unsigned code = 1; code < 0xFFFF; code += 2)
		codes.push_back(uint16_t(code));
	octets table = written_for(codes);
	EXPECT_EQ(table.size(), 262172u);
	EXPECT_EQ(part(table, 12, 14), hex("0004 0010 0000 0000 8000 000e 8000"));
	// The last segments of the three arrays, and that before.
	EXPECT_EQ(part(table, 65558, 6), hex("fffd ffff 0000"));
	EXPECT_EQ(part(table, 131096, 4), hex("fffd ffff"));
	EXPECT_EQ(part(table, 196632, 4), hex("8002 0001"));
	EXPECT_EQ(part(table, 262168, 4), hex("0000 0000"));
}


TEST(cmap_default, gives_the_chosen_codes_glyphs_from_1_on_in_their_order)
{
	ttf font;
	font.chrs = choice({0x61, 0x41, 0x42, 0xFEFF});
	ttf_cmap cmap(&font, nullptr, 0);
	EXPECT_EQ(mapped(cmap), "41=1 42=2 61=3 feff=4");
	EXPECT_EQ(kept(&cmap),
		hex("0000 0001 0003 0001 0000000c"
			"0004 0030 0000 0008 0004 0001 0004"
			"0042 0061 feff ffff 0000 0041 0061 feff ffff"
			"ffc0 ffa2 0105 0001 0000 0000 0000 0000"));
}


TEST(cmap_default, answers_0_and_reads_back_the_same)
{
	ttf font;
	font.chrs = choice({0x20, 0x21, 0x7E, 0x8000, 0xFFFE});
	ttf_cmap cmap(&font, nullptr, 0);
	EXPECT_EQ(cmap.create_default(), 0);
	EXPECT_EQ(cmap.get_tbl(), 0);
	EXPECT_EQ(mapped(cmap), "20=1 21=2 7e=3 8000=4 fffe=5");
}


TEST(cmap_default, takes_any_value_but_0_for_a_chosen_code)
{
	ttf font;
	font.chrs = choice({});
	font.chrs->codes[0x41] = 0x80;
	font.chrs->codes[0x43] = 0xFF;
	ttf_cmap cmap(&font, nullptr, 0);
	EXPECT_EQ(mapped(cmap), "41=1 43=2");
}


TEST(cmap_default, gives_code_0_no_glyph)
{
	EXPECT_EQ(read_from(written_for({})), "");
	EXPECT_EQ(written_for({}).size(), 36u);
}


TEST(cmap_default, gives_the_last_code_no_glyph)
{
	EXPECT_EQ(read_from(written_for({0xFFFE, 0xFFFF})), "fffe=1");
}


TEST(cmap_default, of_every_code_maps_each_to_its_own_number)
{
	std::vector<uint16_t> codes;
	for (unsigned code = 1; code <= 0xFFFF; code++)
		codes.push_back(uint16_t(code));
	EXPECT_EQ(
		part(written_for(codes), 26, 18), hex("fffe ffff 0000 0001 ffff 0000 0001 0000 0000"));
}


TEST(cmap_default, without_a_choice_is_empty)
{
	ttf font;
	ttf_cmap cmap(&font, nullptr, 0);
	EXPECT_EQ(mapped(cmap), "");
	EXPECT_EQ(cmap.length, 36u);
}


TEST(cmap_default, forgets_what_was_mapped)
{
	ttf font;
	font.chrs = choice({0x41});
	octets before = table_of("0004 0018 0000 0002 0001 ffff 0001 0060 0000 0050 0000 0000");
	ttf_cmap cmap(&font, buffer_of(before), before.size());
	cmap.get_tbl();
	cmap.create_default();
	EXPECT_EQ(mapped(cmap), "41=1");
}
