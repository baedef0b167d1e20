// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include <iterator>
#include <string>
#include <vector>

#include <File.h>

#include <gtest/gtest.h>

#include "bitmaps/ttf_ebdt.h"
#include "bitmaps/ttf_eblc.h"
#include "font/ttf.h"
#include "font/ttf_head.h"
#include "font/ttf_hhea.h"
#include "font/ttf_loca.h"
#include "font/ttf_maxp.h"
#include "outline/ttf_glyf.h"
#include "outline/ttf_hmtx.h"
#include "support/font_file.h"
#include "support/live_handlers.h"
#include "support/opened.h"
#include "support/temp_files.h"
#include "tables/ttf_cmap.h"
#include "tables/ttf_gasp.h"
#include "tables/ttf_name.h"
#include "tables/ttf_os2.h"
#include "tables/ttf_post.h"

struct field {
	const char* tag;
	unsigned long number;
	const ttf_table* table;
};

static std::vector<field>
fields_of(const ttf& font)
{
	return {{"OS/2", 0x4F532F32, font.os2}, {"cmap", 0x636D6170, font.cmap},
		{"glyf", 0x676C7966, font.glyf}, {"head", 0x68656164, font.head},
		{"hhea", 0x68686561, font.hhea}, {"hmtx", 0x686D7478, font.hmtx},
		{"loca", 0x6C6F6361, font.loca}, {"maxp", 0x6D617870, font.maxp},
		{"name", 0x6E616D65, font.name}, {"post", 0x706F7374, font.post},
		{"gasp", 0x67617370, font.gasp}, {"EBDT", 0x45424454, font.ebdt},
		{"EBLC", 0x45424C43, font.eblc}};
}


// Every modelled table, each with contents of its own and of any length.
static font_file
full_font()
{
	return tiny_font()
		.with("OS/2", "01")
		.with("name", "0000 0000 0006 02")
		.with("post", "00030000 03")
		.with("gasp", "0000 0000 0405")
		.with("EBDT", "00020000 05")
		.with("EBLC", "00020000 00000000 06");
}


TEST(new_container, holds_nothing)
{
	ttf font;
	EXPECT_EQ(font.dir, nullptr);
	for (const field& each : fields_of(font))
		EXPECT_EQ(each.table, nullptr) << each.tag;
	EXPECT_EQ(std::size(font.rawtables), 16u);
	for (ttf_table* table : font.rawtables)
		EXPECT_EQ(table, nullptr);
}


TEST(container_load, answers_0_for_the_smallest_font)
{
	ttf font;
	EXPECT_EQ(
		loaded(font, tiny_font().ordered({"cmap", "glyf", "head", "hhea", "hmtx", "loca", "maxp"})),
		0);
}


TEST(container_load, needs_no_table_but_cmap)
{
	ttf font;
	EXPECT_EQ(loaded(font, font_file().with("cmap", tiny_font().table("cmap"))), 0);
	EXPECT_EQ(kept(font.cmap), tiny_font().table("cmap"));
	EXPECT_EQ(font.head, nullptr);
	EXPECT_EQ(font.rawtables[0], nullptr);
}


TEST(container_load, puts_every_modelled_table_in_its_field)
{
	font_file file = full_font();
	auto font = opened(file);
	for (const field& each : fields_of(*font)) {
		ASSERT_NE(each.table, nullptr) << each.tag;
		EXPECT_EQ(each.table->tag, each.number) << each.tag;
		EXPECT_EQ(each.table->owner, font.get()) << each.tag;
		EXPECT_EQ(kept(each.table), file.table(each.tag)) << each.tag;
	}
	EXPECT_EQ(font->rawtables[0], nullptr);
}


TEST(container_load, puts_other_tables_in_the_slots_in_directory_order)
{
	auto font = opened(tiny_font().again("prep", "01").again("DSIG", "02 03").again("kern", "04"));
	EXPECT_EQ(font->rawtables[0]->tag, 0x70726570u);
	EXPECT_EQ(kept(font->rawtables[0]), hex("01"));
	EXPECT_EQ(font->rawtables[1]->tag, 0x44534947u);
	EXPECT_EQ(kept(font->rawtables[1]), hex("02 03"));
	EXPECT_EQ(font->rawtables[2]->tag, 0x6B65726Eu);
	EXPECT_EQ(kept(font->rawtables[2]), hex("04"));
	EXPECT_EQ(font->rawtables[2]->owner, font.get());
	EXPECT_EQ(font->rawtables[3], nullptr);
}


TEST(container_load, a_tag_that_differs_in_case_is_another_tag)
{
	auto font = opened(tiny_font().with("HEAD", "01").with("os/2", "02").with("ebdt", "03"));
	EXPECT_EQ(kept(font->head), tiny_font().table("head"));
	EXPECT_EQ(font->os2, nullptr);
	EXPECT_EQ(font->ebdt, nullptr);
	EXPECT_EQ(kept(font->rawtables[0]), hex("01"));
}


TEST(container_load, keeps_header_and_directory_as_they_stand_in_the_file)
{
	octets file = tiny_font().says_search(0xDEAD, 0xBEEF, 0xCAFE);
	auto font = opened(file);
	EXPECT_EQ(octets(font->dir, font->dir + 124), part(file, 0, 124));
}


TEST(container_load, pads_with_zeros_whatever_follows_in_the_file)
{
	auto font = opened(tiny_font().with("kern", "01 02 03 04 05").padded_with(0xEE));
	ttf_table* kern = font->rawtables[0];
	EXPECT_EQ(octets(kern->data, kern->data + 8), hex("01 02 03 04 05 00 00 00"));
	EXPECT_EQ(octets(font->head->data + 54, font->head->data + 56), hex("00 00"));
}


TEST(container_load, finds_tables_behind_gaps_and_at_odd_offsets)
{
	font_file file = tiny_font().gap_before("head", "ee ee ee").gap_before("maxp", "ee");
	auto font = opened(file);
	EXPECT_EQ(kept(font->head), file.table("head"));
	EXPECT_EQ(kept(font->maxp), file.table("maxp"));
}


TEST(container_load, takes_tables_that_share_their_octets)
{
	font_file file = tiny_font().with("kern", "").with("prep", "");
	file = file.says_offset("kern", 0).says_length("kern", 4);
	auto font = opened(file.says_offset("prep", 2).says_length("prep", 4));
	EXPECT_EQ(kept(font->rawtables[0]), hex("00 01 00 00"));
	EXPECT_EQ(kept(font->rawtables[1]), hex("00 00 00 09"));
}


TEST(container_load, an_empty_table_is_kept_empty)
{
	auto font = opened(tiny_font().with("glyf", "").with("kern", "").with("post", ""));
	EXPECT_EQ(font->glyf->length, 0u);
	EXPECT_EQ(font->post->length, 0u);
	EXPECT_EQ(font->rawtables[0]->length, 0u);
}


TEST(container_load, starts_at_the_front_wherever_the_file_stands)
{
	temp_file on_disk(tiny_font());
	BFile source(on_disk.path().c_str(), B_READ_ONLY);
	source.Seek(7, SEEK_SET);
	ttf font;
	EXPECT_EQ(font.load(source), 0);
	EXPECT_EQ(kept(font.maxp), tiny_font().table("maxp"));
}


TEST(container_load, says_what_it_reads)
{
	font_file file = font_file().with("cmap", tiny_font().table("cmap")).again("OS/2", "00");
	octets raw = file.again("cvt ", "00");
	ttf font;
	testing::internal::CaptureStdout();
	loaded(font, raw);
	EXPECT_EQ(testing::internal::GetCapturedStdout(),
		"ttf:load\nname=[cmap]\nname=[OS/2]\nname=[cvt ]\n");
}


TEST(container, destroys_every_table_with_itself)
{
	live_handlers tables;
	auto font = opened(full_font().with("kern", "00").with("prep", "00"));
	// The outline and the bitmap table have two views each.
	EXPECT_EQ(tables.count(), 19);
	font.reset();
	EXPECT_EQ(tables.count(), 0);
}


TEST(container_bounds, are_those_of_head)
{
	octets head = tiny_font().table("head");
	put_be16(head, 36, 0xFF9C);
	put_be16(head, 38, 0xFF38);
	put_be16(head, 40, 1000);
	put_be16(head, 42, 900);
	BRect bounds = opened(tiny_font().with("head", head))->bounds();
	EXPECT_EQ(bounds.left, -100.0f);
	EXPECT_EQ(bounds.top, 900.0f);
	EXPECT_EQ(bounds.right, 1000.0f);
	EXPECT_EQ(bounds.bottom, -200.0f);
}


TEST(container_tables, are_listed_in_directory_order)
{
	const font_file two = font_file().again("maxp", "00").again("kern", "00");
	auto font = opened(two.again("cmap", "0000 0000").again("kern", "00"));
	int count = 32;
	unsigned long tags[32] = {};
	EXPECT_EQ(font->get_tables(&count, tags), 0);
	EXPECT_EQ(count, 4);
	EXPECT_EQ(tags[0], 0x6D617870u);
	EXPECT_EQ(tags[1], 0x6B65726Eu);
	EXPECT_EQ(tags[2], 0x636D6170u);
	EXPECT_EQ(tags[3], 0x6B65726Eu);
	EXPECT_EQ(tags[4], 0u);
}


TEST(container_tables, need_exactly_as_many_places)
{
	auto font = opened(tiny_font());
	int count = 7;
	unsigned long tags[7] = {};
	EXPECT_EQ(font->get_tables(&count, tags), 0);
	EXPECT_EQ(count, 7);
	EXPECT_EQ(tags[6], 0x6D617870u);
}


TEST(container_tables, one_place_too_few_changes_nothing)
{
	auto font = opened(tiny_font());
	int count = 6;
	unsigned long tags[6] = {1, 2, 3, 4, 5, 6};
	EXPECT_EQ(font->get_tables(&count, tags), -1);
	EXPECT_EQ(count, 6);
	EXPECT_EQ(
		std::vector<unsigned long>(tags, tags + 6), (std::vector<unsigned long>{1, 2, 3, 4, 5, 6}));
}


TEST(container_tables, beyond_32_do_not_fit_the_selectors_places)
{
	font_file file = tiny_font();
	for (int i = 0; i < 26; i++)
		file = file.again("head", "00");
	auto font = opened(file);
	int count = 32;
	unsigned long tags[32] = {};
	EXPECT_EQ(font->get_tables(&count, tags), -1);
	EXPECT_EQ(count, 32);
	EXPECT_EQ(tags[0], 0u);
}


TEST(container_tables, fill_the_selectors_32_places)
{
	font_file file = tiny_font();
	for (int i = 0; i < 25; i++)
		file = file.again("head", "00");
	int count = 32;
	unsigned long tags[32] = {};
	EXPECT_EQ(opened(file)->get_tables(&count, tags), 0);
	EXPECT_EQ(count, 32);
	EXPECT_EQ(tags[31], 0x68656164u);
}
