// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include <ctime>

#include <File.h>

#include <gtest/gtest.h>

#include "font/ttf.h"
#include "font/ttf_head.h"
#include "support/expected_save.h"
#include "support/font_file.h"
#include "support/freetype_outlines.h"
#include "support/opened.h"
#include "support/sfnt.h"
#include "support/temp_files.h"
#include "support/time_zone.h"

// With a head that ends before the dates: what is saved does not depend on the clock.
static font_file
dateless_font()
{
	return font_file()
		.with("cmap", tiny_font().table("cmap"))
		.with("head", "00010000 00000000 12345678")
		.with("kern", "01 02 03 04 05")
		.says_search(0xDEAD, 0xBEEF, 0xCAFE);
}


static const char* const dateless_saved =
	"00010000 0003 dead beef cafe"
	"636d6170 000c0074 0000003c 0000002c" // cmap: sum, offset, length
	"68656164 00010000 00000068 0000000c" // head: summed with a cleared adjustment
	"6b65726e 01020304 00000074 00000005" // kern: the fifth octet is not summed
	"00000001 00030001 0000000c 00040020 00000004 00040001"
	"00000041 ffff0000 0041ffff ffc00001 00000000"
	"00010000 00000000 42aca1bb" // b1b0afba - f60f0378, turned round
	"01020304 05000000";


TEST(container_save, writes_exactly_this)
{
	EXPECT_TRUE(same(hex(dateless_saved), saved(*opened(dateless_font()))));
}


TEST(container_save, agrees_with_the_tests_own_computation)
{
	EXPECT_TRUE(same(hex(dateless_saved), expected_save(dateless_font(), 0)));
}


TEST(container_save, writes_the_same_file_twice)
{
	auto font = opened(dateless_font());
	octets first = saved(*font);
	EXPECT_TRUE(same(first, saved(*font)));
}


TEST(container_save, keeps_the_order_of_a_directory_out_of_order)
{
	font_file file = tiny_font().ordered({"maxp", "cmap", "loca", "head", "hhea", "glyf", "hmtx"});
	octets result = saved(*opened(file));
	EXPECT_EQ(sfnt(result).tags(),
		(std::vector<std::string>{"maxp", "cmap", "loca", "head", "hhea", "glyf", "hmtx"}));
	EXPECT_EQ(sfnt(result).entry("maxp").offset, 124u);
	EXPECT_EQ(sfnt(result).entry("cmap").offset, 156u);
	EXPECT_TRUE(same(expected_save(file, modified_of(result)), result));
}


TEST(container_save, leaves_wrong_search_fields_wrong)
{
	octets result = saved(*opened(tiny_font().says_search(0x1234, 0x5678, 0x9ABC)));
	EXPECT_EQ(part(result, 0, 12), hex("00010000 0007 1234 5678 9abc"));
}


TEST(container_save, pads_an_odd_table_and_states_its_true_length)
{
	octets result = saved(*opened(tiny_font().padded_with(0xEE)));
	EXPECT_EQ(sfnt(result).entry("head").offset, 200u);
	EXPECT_EQ(sfnt(result).entry("head").length, 54u);
	EXPECT_EQ(part(result, 252, 4), hex("00 00 00 00"));
	EXPECT_EQ(sfnt(result).entry("hhea").offset, 256u);
}


TEST(container_save, sums_only_the_first_52_octets_of_head)
{
	octets head = tiny_font().table("head");
	put_be16(head, 52, 0xFFFF);
	octets result = saved(*opened(tiny_font().with("head", head)));
	octets summed = part(sfnt(result).table("head"), 0, 52);
	put_be32(summed, 8, 0);
	EXPECT_EQ(sfnt(result).entry("head").sum, sum_of_words(summed));
	EXPECT_EQ(part(sfnt(result).table("head"), 52, 2), hex("ffff"));
}


TEST(container_save, stores_the_adjustment_least_significant_octet_first)
{
	octets result = saved(*opened(dateless_font()));
	EXPECT_EQ(le32(sfnt(result).table("head"), 8), 0xB1B0AFBA - 0xF60F0378);
}


TEST(container_save, clears_the_old_adjustment_before_summing)
{
	font_file other = dateless_font().with("head", "00010000 00000000 ffffffff");
	EXPECT_TRUE(same(hex(dateless_saved), saved(*opened(other))));
}


TEST(container_save, drops_gaps_and_what_stood_between_tables)
{
	font_file gaps = dateless_font().gap_before("cmap", "ee ee ee").gap_before("kern", "ee");
	EXPECT_TRUE(same(hex(dateless_saved), saved(*opened(gaps.padded_with(0xEE)))));
}


TEST(container_save, a_tag_nobody_models_survives_in_its_place)
{
	font_file file = tiny_font().with("DSIG", "00 00 00 01 00 00 00").with("kern", "00 01 02");
	sfnt result(saved(*opened(file)));
	EXPECT_EQ(result.tags(),
		(std::vector<std::string>{
			"DSIG", "cmap", "glyf", "head", "hhea", "hmtx", "kern", "loca", "maxp"}));
	EXPECT_EQ(result.table("DSIG"), hex("00 00 00 01 00 00 00"));
	EXPECT_EQ(result.table("kern"), hex("00 01 02"));
}


TEST(container_save, writes_an_empty_table_as_an_entry_of_no_length)
{
	sfnt result(saved(*opened(tiny_font().with("kern", ""))));
	EXPECT_EQ(result.entry("kern").length, 0u);
	EXPECT_EQ(result.entry("kern").sum, 0u);
	EXPECT_EQ(result.entry("kern").offset, result.entry("loca").offset);
}


TEST(container_save, agrees_with_the_computation_for_a_whole_font)
{
	font_file file = tiny_font().with("kern", "ff fe fd").with("name", "0000 0000 0006 00");
	octets result = saved(*opened(file));
	EXPECT_TRUE(same(expected_save(file, modified_of(result)), result));
}


TEST(container_save, rewrites_the_directory_in_memory_too)
{
	auto font = opened(dateless_font());
	octets result = saved(*font);
	EXPECT_EQ(octets(font->dir, font->dir + 60), part(result, 0, 60));
}


TEST(container_save, writes_what_was_changed_in_memory)
{
	auto font = opened(dateless_font());
	font->rawtables[0]->put32(0, 0x01020305);
	octets result = saved(*font);
	EXPECT_EQ(sfnt(result).table("kern"), hex("01 02 03 05 05"));
	EXPECT_EQ(sfnt(result).entry("kern").sum, 0x01020305u);
	EXPECT_EQ(le32(sfnt(result).table("head"), 8), 0xB1B0AFBA - 0xF60F0379);
}


TEST(container_save, stamps_the_present_as_the_modified_date)
{
	time_zone zone("UTC0");
	int64_t before = time(nullptr);
	octets head = sfnt(saved(*opened(tiny_font()))).table("head");
	EXPECT_EQ(be32(head, 28), 0u);
	EXPECT_GE(be32(head, 32), before + 2082844800);
	EXPECT_LE(be32(head, 32), time(nullptr) + 2082844800);
}


TEST(container_save, keeps_a_created_date)
{
	octets head = sfnt(saved(*opened(tiny_font()))).table("head");
	EXPECT_EQ(part(head, 20, 8), hex("00000000 c0000000"));
}


TEST(container_save, stamps_a_created_date_of_0)
{
	octets undated = tiny_font().table("head");
	put_be32(undated, 24, 0);
	octets head = sfnt(saved(*opened(tiny_font().with("head", undated)))).table("head");
	EXPECT_EQ(part(head, 20, 8), part(head, 28, 8));
	EXPECT_NE(be32(head, 24), 0u);
}


TEST(container_save, starts_at_the_front_wherever_the_file_stands)
{
	temp_file on_disk;
	BFile target(on_disk.path().c_str(), B_READ_WRITE);
	target.Seek(1000, SEEK_SET);
	opened(dateless_font())->save(target);
	target.Unset();
	EXPECT_TRUE(same(hex(dateless_saved), on_disk.contents()));
}


TEST(container_save, does_not_examine_whether_writing_worked)
{
	BFile closed;
	EXPECT_EQ(opened(tiny_font())->save(closed), 0);
	temp_file on_disk(hex("01 02 03"));
	BFile read_only(on_disk.path().c_str(), B_READ_ONLY);
	EXPECT_EQ(opened(tiny_font())->save(read_only), 0);
	EXPECT_EQ(on_disk.contents(), hex("01 02 03"));
}


TEST(container_save, of_a_container_never_loaded_answers_1_and_writes_nothing)
{
	temp_file on_disk(hex("01 02 03"));
	BFile target(on_disk.path().c_str(), B_READ_WRITE);
	ttf font;
	EXPECT_EQ(font.save(target), 1);
	EXPECT_EQ(on_disk.contents(), hex("01 02 03"));
}


TEST(container_save, says_what_it_writes)
{
	auto font = opened(dateless_font());
	testing::internal::CaptureStdout();
	saved(*font);
	EXPECT_EQ(testing::internal::GetCapturedStdout(),
		"ttf:save\nname=[cmap]\nname=[head]\nname=[kern]\n");
}


TEST(container_save, leaves_a_font_that_freetype_reads_alike)
{
	octets file = tiny_font();
	outline_comparison seen = compare_outlines(file, saved(*opened(file)));
	EXPECT_EQ(seen.difference, "");
	EXPECT_EQ(seen.glyphs, 2);
	EXPECT_EQ(seen.points, 3);
}


TEST(freetype_judge, sees_a_moved_point)
{
	octets moved = tiny_font().table("glyf");
	put_be16(moved, 19, 0x01FE);
	outline_comparison seen = compare_outlines(tiny_font(), tiny_font().with("glyf", moved));
	EXPECT_EQ(seen.difference, "another outline of glyph 1");
}


TEST(freetype_judge, sees_a_file_that_does_not_open)
{
	EXPECT_EQ(
		compare_outlines(tiny_font(), hex("00 01")).difference, "the second file does not open");
}
