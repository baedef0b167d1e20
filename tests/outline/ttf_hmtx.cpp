// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "outline/ttf_hmtx.h"

#include "font/ttf.h"
#include "font/ttf_hhea.h"
#include "support/choice.h"
#include "support/font_file.h"
#include "support/opened.h"

#include <gtest/gtest.h>
#include <memory>


// A font of so many glyphs, of which the first ones have full records.
static std::unique_ptr<ttf>
font_with(const octets& hmtx, uint16_t records, uint16_t glyphs)
{
	octets hhea = tiny_font().table("hhea");
	octets maxp = tiny_font().table("maxp");
	put_be16(hhea, 34, records);
	put_be16(maxp, 4, glyphs);
	return opened(tiny_font().with("hmtx", hmtx).with("hhea", hhea).with("maxp", maxp));
}


// Three records and two bearings.
static octets
three_and_two()
{
	return hex("0101 ff01 0202 0a02 0303 0a03 fff6 0014");
}


// What get_mtx gives: its answer, the advance, the bearing.
static std::vector<int>
metrics(const ttf& font, unsigned short gid)
{
	unsigned short advance = 77;
	short lsb = 78;
	int answer = font.hmtx->get_mtx(gid, &advance, &lsb);
	return {answer, advance, lsb};
}

using answer = std::vector<int>;


TEST(hmtx, knows_its_tag_its_name_its_place_and_keeps_its_octets)
{
	ttf_hmtx table(nullptr, buffer_of(three_and_two()), 16);
	EXPECT_EQ(table.tag, 0x686D7478u);
	EXPECT_STREQ(table.Name(), "table");
	EXPECT_EQ(table.Frame(), BRect(0, 0, 561, 511));
	EXPECT_EQ(kept(&table), three_and_two());
}


TEST(hmtx, of_a_new_font_has_a_record_of_512_and_0_for_each_glyph)
{
	ttf font;
	font.chrs = choice({0x41, 0x42});
	ttf_hmtx table(&font, nullptr, 0);
	EXPECT_EQ(kept(&table), hex("0200 0000 0200 0000 0200 0000"));
}


TEST(hmtx, reads_full_records)
{
	auto font = font_with(three_and_two(), 3, 5);
	EXPECT_EQ(metrics(*font, 0), (answer{0, 0x101, -255}));
	EXPECT_EQ(metrics(*font, 2), (answer{0, 0x303, 0xA03}));
}


TEST(hmtx, reads_a_trailing_bearing_with_the_advance_of_the_last_record)
{
	// Word 7.
	auto font = font_with(three_and_two(), 3, 5);
	EXPECT_EQ(metrics(*font, 4), (answer{0, 0x303, 20}));
}


TEST(hmtx, reads_the_glyph_at_the_boundary_as_a_record)
{
	// Words 6 and 7.
	auto font = font_with(three_and_two(), 3, 5);
	EXPECT_EQ(metrics(*font, 3), (answer{0, 0xFFF6, 20}));
}


TEST(hmtx, reads_advances_beyond_15_bits)
{
	auto font = font_with(hex("ffff 8000"), 1, 1);
	EXPECT_EQ(metrics(*font, 0), (answer{0, 0xFFFF, -32768}));
}


TEST(hmtx, answers_1_and_stores_nothing_for_what_is_no_glyph)
{
	auto font = font_with(three_and_two(), 3, 5);
	EXPECT_EQ(metrics(*font, 5), (answer{1, 77, 78}));
	EXPECT_EQ(metrics(*font, 0xFFFF), (answer{1, 77, 78}));
}


TEST(hmtx, writes_both_fields_of_a_full_record)
{
	auto font = font_with(three_and_two(), 3, 5);
	EXPECT_EQ(font->hmtx->set_mtx(1, 0x1234, -2), 0);
	EXPECT_EQ(kept(font->hmtx), hex("0101 ff01 1234 fffe 0303 0a03 fff6 0014"));
}


TEST(hmtx, writes_only_the_bearing_behind_the_full_records)
{
	auto font = font_with(three_and_two(), 3, 5);
	EXPECT_EQ(font->hmtx->set_mtx(4, 999, 10), 0);
	EXPECT_EQ(kept(font->hmtx), hex("0101 ff01 0202 0a02 0303 0a03 fff6 000a"));
}


TEST(hmtx, writes_the_glyph_at_the_boundary_as_a_record)
{
	auto font = font_with(three_and_two(), 3, 5);
	EXPECT_EQ(font->hmtx->set_mtx(3, 999, 10), 0);
	EXPECT_EQ(kept(font->hmtx), hex("0101 ff01 0202 0a02 0303 0a03 03e7 000a"));
}


TEST(hmtx, writes_nothing_and_answers_1_for_what_is_no_glyph)
{
	auto font = font_with(three_and_two(), 3, 5);
	EXPECT_EQ(font->hmtx->set_mtx(5, 999, 10), 1);
	EXPECT_EQ(font->hmtx->set_mtx(0xFFFF, 999, 10), 1);
	EXPECT_EQ(kept(font->hmtx), three_and_two());
}


TEST(hmtx, reads_the_number_of_records_at_every_call)
{
	auto font = font_with(three_and_two(), 3, 5);
	font->hhea->data[35] = 1;
	EXPECT_EQ(metrics(*font, 2), (answer{0, 0x101, 0xA02}));
}


// The record at the boundary starts with the last bearing and ends outside.
TEST(hmtx, stays_inside_where_the_boundary_record_does_not)
{
	auto font = font_with(part(three_and_two(), 0, 14), 3, 4);
	EXPECT_EQ(metrics(*font, 3), (answer{0, 0xFFF6, 0}));
	EXPECT_EQ(font->hmtx->set_mtx(3, 999, 10), 0);
	EXPECT_EQ(kept(font->hmtx), hex("0101 ff01 0202 0a02 0303 0a03 03e7"));
}


TEST(hmtx, reads_0_outside_of_a_short_table_and_writes_nothing_there)
{
	auto font = font_with(hex("0101 ff01 02"), 3, 9);
	EXPECT_EQ(metrics(*font, 1), (answer{0, 0, 0}));
	EXPECT_EQ(metrics(*font, 8), (answer{0, 0, 0}));
	for (unsigned short gid = 1; gid < 9; gid++)
		EXPECT_EQ(font->hmtx->set_mtx(gid, 999, 10), 0);
	EXPECT_EQ(kept(font->hmtx), hex("0101 ff01 02"));
}


TEST(hmtx, without_any_full_record_has_no_advance_behind_the_boundary)
{
	auto font = font_with(hex("0005 0006 0007"), 0, 3);
	EXPECT_EQ(metrics(*font, 0), (answer{0, 5, 6}));
	EXPECT_EQ(metrics(*font, 2), (answer{0, 0, 7}));
}


TEST(hmtx, stays_inside_with_the_greatest_numbers)
{
	auto font = font_with(three_and_two(), 0xFFFF, 0xFFFF);
	EXPECT_EQ(metrics(*font, 0xFFFE), (answer{0, 0, 0}));
	EXPECT_EQ(font->hmtx->set_mtx(0xFFFE, 1, 1), 0);
	EXPECT_EQ(kept(font->hmtx), three_and_two());
}


TEST(hmtx, of_a_font_without_maxp_has_no_glyphs)
{
	auto font = opened(tiny_font().without("maxp"));
	EXPECT_EQ(metrics(*font, 0), (answer{1, 77, 78}));
	EXPECT_EQ(font->hmtx->set_mtx(0, 1, 1), 1);
}


TEST(hmtx, of_a_font_without_hhea_has_no_full_records)
{
	auto font = opened(tiny_font().without("hhea"));
	EXPECT_EQ(metrics(*font, 0), (answer{0, 0x200, 0}));
	EXPECT_EQ(metrics(*font, 1), (answer{0, 0, 0}));
}
