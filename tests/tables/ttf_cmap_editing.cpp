// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "font/ttf.h"
#include "support/font_file.h"
#include "support/opened.h"
#include "support/sfnt.h"
#include "tables/cmap_table.h"


TEST(cmap_set_chr, gives_a_range_glyphs_that_count_up)
{
	cmap_table cmap("");
	EXPECT_EQ(cmap.set_chr(0x41, 0x5A, 3), 0);
	EXPECT_EQ(cmap.get_gno(0x40), 0);
	EXPECT_EQ(cmap.get_gno(0x41), 3);
	EXPECT_EQ(cmap.get_gno(0x42), 4);
	EXPECT_EQ(cmap.get_gno(0x5A), 28);
	EXPECT_EQ(cmap.get_gno(0x5B), 0);
}


TEST(cmap_set_chr, takes_the_glyphs_of_a_range_away_with_FFFF)
{
	cmap_table cmap("");
	cmap.set_chr(0x41, 0x5A, 3);
	EXPECT_EQ(cmap.set_chr(0x42, 0x59, 0xFFFF), 0);
	EXPECT_EQ(mapped(cmap), "41=3 5a=1c");
	cmap.set_chr(0x41, 0x5A, 0xFFFF);
	EXPECT_EQ(mapped(cmap), "");
	EXPECT_EQ(cmap.length, 36u);
}


TEST(cmap_set_chr, sets_a_range_of_one_code)
{
	cmap_table cmap("");
	cmap.set_chr(0x8000, 0x8000, 0x9000);
	EXPECT_EQ(mapped(cmap), "8000=9000");
}


TEST(cmap_set_chr, with_glyph_0_takes_only_the_first_code_out)
{
	cmap_table cmap("");
	cmap.set_chr(0x41, 0x43, 0);
	EXPECT_EQ(mapped(cmap), "42=1 43=2");
}


TEST(cmap_set_chr, rewrites_the_octets_each_time)
{
	cmap_table cmap("");
	cmap.set_chr(0x41, 0x41, 1);
	EXPECT_EQ(kept(&cmap),
		hex("0000 0001 0003 0001 0000000c"
			"0004 0020 0000 0004 0002 0000 0002"
			"0041 ffff 0000 0041 ffff ffc0 0001 0000 0000"));
	cmap.set_chr(0x41, 0x41, 2);
	EXPECT_EQ(part(kept(&cmap), 36, 2), hex("ffc1"));
}


TEST(cmap_set_chr, of_a_range_that_ends_before_it_starts_only_rewrites_the_octets)
{
	// With a language and search fields that this program does not write.
	cmap_table cmap("0000 0001 0003 0001 0000000c"
					"0004 0020 0009 0004 0004 0001 0000"
					"0041 ffff 0000 0041 ffff ffc0 0001 0000 0000");
	cmap.get_tbl();
	EXPECT_EQ(cmap.set_chr(0x50, 0x4F, 7), 0);
	EXPECT_EQ(mapped(cmap), "41=1");
	EXPECT_EQ(kept(&cmap),
		hex("0000 0001 0003 0001 0000000c"
			"0004 0020 0000 0004 0002 0000 0002"
			"0041 ffff 0000 0041 ffff ffc0 0001 0000 0000"));
	EXPECT_EQ(cmap.set_chr(0xFFFF, 0, 0xFFFF), 0);
	EXPECT_EQ(mapped(cmap), "41=1");
}


TEST(cmap_set_chr, of_a_range_to_the_last_code_comes_to_an_end)
{
	cmap_table cmap("");
	cmap.set_chr(0xFFFD, 0xFFFF, 7);
	EXPECT_EQ(mapped(cmap), "fffd=7 fffe=8");
	cmap.set_chr(0xFFFE, 0xFFFF, 0xFFFF);
	EXPECT_EQ(mapped(cmap), "fffd=7");
}


TEST(cmap_set_chr, of_all_codes_leaves_the_first_and_the_last_out)
{
	cmap_table cmap("");
	cmap.set_chr(0, 0xFFFF, 5);
	EXPECT_EQ(cmap.get_gno(0), 0);
	EXPECT_EQ(cmap.get_gno(1), 6);
	EXPECT_EQ(cmap.get_gno(0xFFFE), 3);
	EXPECT_EQ(cmap.get_gno(0xFFFF), 0);
	cmap.set_chr(0, 0xFFFF, 0xFFFF);
	EXPECT_EQ(mapped(cmap), "");
}


TEST(cmap_set_chr, lets_glyph_numbers_wrap)
{
	cmap_table cmap("");
	cmap.set_chr(0x41, 0x44, 0xFFFE);
	EXPECT_EQ(mapped(cmap), "41=fffe 42=ffff 44=1");
}


TEST(cmap_set_chr, edits_only_what_was_read)
{
	auto font = opened(tiny_font());
	font->cmap->set_chr(0x61, 0x61, 1);
	EXPECT_EQ(sfnt(saved(*font)).table("cmap"),
		hex("0000 0001 0003 0001 0000000c"
			"0004 0028 0000 0006 0004 0001 0002"
			"0041 0061 ffff 0000 0041 0061 ffff"
			"ffc0 ffa0 0001 0000 0000 0000"));
}


TEST(cmap_get_chr, is_the_lowest_code_of_a_glyph)
{
	cmap_table cmap("");
	cmap.set_chr(0x61, 0x63, 4);
	cmap.set_chr(0x41, 0x42, 5);
	cmap.set_chr(0xFFFE, 0xFFFE, 6);
	EXPECT_EQ(cmap.get_chr(4), 0x61);
	EXPECT_EQ(cmap.get_chr(5), 0x41);
	EXPECT_EQ(cmap.get_chr(6), 0x42);
}


TEST(cmap_get_chr, is_FFFF_for_a_glyph_of_no_code)
{
	cmap_table cmap("");
	cmap.set_chr(0x41, 0x41, 5);
	EXPECT_EQ(cmap.get_chr(4), 0xFFFF);
	EXPECT_EQ(cmap.get_chr(0xFFFF), 0xFFFF);
}


TEST(cmap_get_chr, of_glyph_0_is_code_0)
{
	cmap_table cmap("");
	EXPECT_EQ(cmap.get_chr(0), 0);
	cmap.set_chr(1, 0xFFFE, 1);
	EXPECT_EQ(cmap.get_chr(0), 0);
}


TEST(cmap_get_chr, of_glyph_0_is_the_lowest_code_without_a_glyph_where_code_0_has_one)
{
	cmap_table cmap(table_of("0004 0020 0000 0004 0004 0001 0000"
							 "0003 ffff 0000 0000 ffff 0001 0001 0000 0000"));
	cmap.get_tbl();
	EXPECT_EQ(cmap.get_chr(1), 0);
	EXPECT_EQ(cmap.get_chr(0), 4);
}


TEST(cmap_get_chr, looks_up_to_the_last_code_but_one)
{
	cmap_table cmap(table_of("0004 0018 0000 0002 0001 ffff 0001 ffff 0000 fffe 0009 0000"));
	cmap.get_tbl();
	EXPECT_EQ(cmap.get_chr(7), 0xFFFE);
	EXPECT_EQ(cmap.get_gno(0xFFFF), 8);
	EXPECT_EQ(cmap.get_chr(8), 0xFFFF);
	EXPECT_EQ(cmap.get_chr(9), 0xFFFF);
}
