// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include <File.h>

#include <gtest/gtest.h>

#include "font/ttf.h"
#include "font/ttf_head.h"
#include "support/expected_save.h"
#include "support/font_file.h"
#include "support/live_handlers.h"
#include "support/opened.h"
#include "support/sfnt.h"
#include "support/temp_files.h"
#include "tables/ttf_cmap.h"

static constexpr uint32_t mebi = 1048576;

// Nothing of a refused file may stay behind: the font is not saved, and opens another file.
static testing::AssertionResult
refused(const octets& file)
{
	ttf font;
	live_handlers tables;
	if (int answer = loaded(font, file); answer != 1)
		return testing::AssertionFailure() << "load answered " << answer;
	if (tables.count() != 0)
		return testing::AssertionFailure() << tables.count() << " tables stayed";
	temp_file on_disk(hex("01 02 03"));
	BFile target(on_disk.path().c_str(), B_READ_WRITE);
	if (int answer = font.save(target); answer != 1)
		return testing::AssertionFailure() << "save answered " << answer;
	if (on_disk.contents() != hex("01 02 03"))
		return testing::AssertionFailure() << "save wrote something";
	if (int answer = loaded(font, tiny_font()); answer != 0)
		return testing::AssertionFailure() << "the next load answered " << answer;
	if (kept(font.cmap) != tiny_font().table("cmap") || font.rawtables[0] != nullptr)
		return testing::AssertionFailure() << "the next load got other tables";
	ttf another;
	loaded(another, file);
	return testing::AssertionSuccess();
}


// Opened and saved unchanged by the rules.
static testing::AssertionResult
survives(const octets& file)
{
	octets result = saved(*opened(file));
	return same(expected_save(file, modified_of(result)), result);
}


static font_file
cmap_font()
{
	return font_file().with("cmap", tiny_font().table("cmap"));
}


static font_file
with_unmodelled(int count)
{
	font_file file = cmap_font();
	for (int i = 0; i < count; i++)
		file = file.with("zz" + std::to_string(10 + i), octets(5, uint8_t(i)));
	return file;
}


TEST(refused_font, has_another_version)
{
	EXPECT_TRUE(refused(tiny_font().says_version(0x4F54544F)));
	EXPECT_TRUE(refused(tiny_font().says_version(0x74727565)));
	EXPECT_TRUE(refused(tiny_font().says_version(0x74746366)));
	EXPECT_TRUE(refused(tiny_font().says_version(0x00020000)));
	EXPECT_TRUE(refused(tiny_font().says_version(0x00000100)));
}


TEST(refused_font, is_empty)
{
	EXPECT_TRUE(refused(octets()));
}


TEST(refused_font, has_less_than_a_header)
{
	EXPECT_TRUE(refused(hex("00 01 00")));
	EXPECT_TRUE(refused(hex("00 01 00 00")));
	EXPECT_TRUE(refused(hex("00 01 00 00 00 01 00 10 00 00 00")));
}


TEST(refused_font, has_no_tables)
{
	EXPECT_TRUE(refused(hex("00010000 0000 0000 0000 0000")));
}


TEST(refused_font, has_a_directory_cut_short)
{
	EXPECT_TRUE(refused(hex("00010000 ffff 0000 0000 0000")));
	EXPECT_TRUE(refused(tiny_font().says_tables(0xFFFF)));
	EXPECT_TRUE(refused(part(cmap_font(), 0, 27)));
}


TEST(refused_font, has_no_cmap)
{
	EXPECT_TRUE(refused(tiny_font().without("cmap")));
	EXPECT_TRUE(refused(tiny_font().without("cmap").with("CMAP", "0000 0000")));
}


TEST(refused_font, has_seventeen_tables_nobody_models)
{
	EXPECT_TRUE(refused(with_unmodelled(17)));
}


TEST(refused_font, has_seventeen_tables_of_one_tag_nobody_models)
{
	font_file file = cmap_font();
	for (int i = 0; i < 17; i++)
		file = file.again("kern", "00");
	EXPECT_TRUE(refused(file));
}


TEST(refused_font, finds_its_flaw_after_many_tables)
{
	font_file file = with_unmodelled(16).with("head", tiny_font().table("head"));
	EXPECT_TRUE(refused(file.again("head", "00").says_length("head", 0xFFFFFFFF)));
}


TEST(refused_font, has_a_table_a_mebibyte_longer_than_the_file)
{
	font_file file = cmap_font().with("kern", "00 00 00 00");
	auto size = uint32_t(file.raw().size());
	EXPECT_TRUE(refused(file.says_length("kern", size + mebi + 1)));
	EXPECT_TRUE(refused(file.says_length("kern", 0x80000000)));
	EXPECT_TRUE(refused(file.says_length("kern", 0xFFFFFFFC)));
	EXPECT_TRUE(refused(file.says_length("kern", 0xFFFFFFFF)));
}


TEST(refused_font, has_tables_that_are_together_too_long)
{
	font_file file = cmap_font().with("aaaa", "00").with("bbbb", "00");
	auto size = uint32_t(file.raw().size());
	file = file.says_length("aaaa", size + mebi);
	EXPECT_TRUE(refused(file.says_length("bbbb", 31 * size - 44 + 1)));
}


TEST(refused_font, would_be_saved_with_one_long_table_many_times)
{
	font_file file = tiny_font();
	for (int i = 0; i < 200; i++)
		file = file.again("post", "");
	auto size = uint32_t(file.raw().size());
	EXPECT_TRUE(refused(file.says_length("post", size + mebi)));
}


TEST(refused_font, has_a_cmap_too_long)
{
	EXPECT_TRUE(refused(tiny_font().says_length("cmap", 0xFFFFFFFF)));
}


TEST(refused_font, is_a_file_that_is_not_open)
{
	BFile nowhere("/nonexistent/font.ttf", B_READ_ONLY);
	ttf font;
	EXPECT_EQ(font.load(nowhere), 1);
}


TEST(hostile_font, may_have_sixteen_tables_nobody_models)
{
	auto font = opened(with_unmodelled(16));
	EXPECT_EQ(kept(font->rawtables[15]), hex("0f 0f 0f 0f 0f"));
	EXPECT_TRUE(survives(with_unmodelled(16)));
}


TEST(hostile_font, may_have_a_table_just_a_mebibyte_longer_than_the_file)
{
	font_file file = cmap_font().with("kern", "01 02 03 04");
	auto size = uint32_t(file.raw().size());
	auto font = opened(file.says_length("kern", size + mebi));
	EXPECT_EQ(font->rawtables[0]->length, size + mebi);
	EXPECT_EQ(part(kept(font->rawtables[0]), 0, 5), hex("01 02 03 04 00"));
}


TEST(hostile_font, may_have_tables_that_are_together_just_not_too_long)
{
	font_file file = cmap_font().with("aaaa", "00").with("bbbb", "00");
	auto size = uint32_t(file.raw().size());
	file = file.says_length("aaaa", size + mebi).says_length("bbbb", 31 * size - 44);
	EXPECT_TRUE(survives(file));
}


TEST(hostile_font, may_end_with_its_directory)
{
	auto font = opened(part(cmap_font(), 0, 28));
	EXPECT_EQ(kept(font->cmap), zeros(44));
}


TEST(hostile_font, keeps_what_could_be_read_of_a_table_that_runs_past_the_end)
{
	font_file file = tiny_font().with("zzzz", "01 02 03 04").says_length("zzzz", 10);
	EXPECT_EQ(kept(opened(file)->rawtables[0]), hex("01 02 03 04 00 00 00 00 00 00"));
	EXPECT_TRUE(survives(file));
}


TEST(hostile_font, keeps_zeros_of_a_table_that_starts_past_the_end)
{
	font_file file = tiny_font().with("kern", "01 02 03 04 05");
	auto size = uint32_t(file.raw().size());
	for (uint32_t offset : {size, size + 1, 0x7FFFFFFFu, 0x80000000u, 0xFFFFFFFFu}) {
		EXPECT_EQ(kept(opened(file.says_offset("kern", offset))->rawtables[0]), zeros(5));
		EXPECT_TRUE(survives(file.says_offset("kern", offset)));
	}
}


TEST(hostile_font, may_have_every_offset_past_the_end)
{
	font_file file = tiny_font();
	for (const std::string& tag : sfnt(file).tags())
		file = file.says_offset(tag, 0xFFFFFFFF);
	EXPECT_TRUE(survives(file));
}


TEST(hostile_font, answers_for_two_heads_with_the_later)
{
	font_file file = tiny_font().again("head", "00010000 00020000 deadbeef 5f0f3cf5 0001 0800");
	auto font = opened(file);
	EXPECT_EQ(font->head->length, 20u);
	EXPECT_EQ(font->head->unitsperem(), 2048);
	EXPECT_TRUE(survives(file));
}


TEST(hostile_font, destroys_the_earlier_of_two_objects)
{
	font_file file = tiny_font();
	for (const std::string& tag : sfnt(file).tags())
		file = file.again(tag, "00 00 00 00");
	for (const char* tag : {"OS/2", "name", "post", "gasp", "EBDT", "EBLC"})
		file = file.again(tag, "00").again(tag, "00");
	live_handlers tables;
	auto font = opened(file);
	// The outline and the bitmap table have two views each.
	EXPECT_EQ(tables.count(), 17);
}


TEST(hostile_font, gives_only_the_last_of_two_heads_the_adjustment)
{
	font_file file = tiny_font().again("head", "00010000 00020000 deadbeef");
	sfnt result(saved(*opened(file)));
	EXPECT_EQ(result.table(result.entries().at(2)), hex("00010000 00020000 00000000"));
	EXPECT_NE(be32(result.table(result.entries().at(7)), 8), 0u);
}


TEST(hostile_font, answers_for_two_cmaps_with_the_later)
{
	font_file file = tiny_font().again("cmap", "0000 0000 aa");
	EXPECT_EQ(kept(opened(file)->cmap), hex("0000 0000 aa"));
	EXPECT_TRUE(survives(file));
}


TEST(hostile_font, keeps_both_of_two_tables_of_one_tag_nobody_models)
{
	font_file file = tiny_font().again("kern", "01").again("prep", "02").again("kern", "03 04");
	EXPECT_TRUE(survives(file));
	sfnt result(saved(*opened(file)));
	EXPECT_EQ(result.table(result.entries().at(7)), hex("01"));
	EXPECT_EQ(result.table(result.entries().at(8)), hex("02"));
	EXPECT_EQ(result.table(result.entries().at(9)), hex("03 04"));
}


TEST(hostile_font, may_name_one_table_a_thousand_times)
{
	font_file file = tiny_font();
	for (int i = 0; i < 1000; i++)
		file = file.again("post", "00 03 00 00 00");
	EXPECT_TRUE(survives(file));
}


TEST(hostile_font, may_lack_any_table_but_cmap)
{
	for (const char* tag : {"glyf", "head", "hhea", "hmtx", "loca", "maxp"})
		EXPECT_TRUE(survives(tiny_font().without(tag))) << tag;
	EXPECT_TRUE(survives(cmap_font()));
}


TEST(hostile_font, may_have_any_table_cut_to_any_length)
{
	for (const char* tag : {"cmap", "glyf", "head", "hhea", "hmtx", "loca", "maxp"}) {
		octets whole = tiny_font().table(tag);
		for (size_t length = 0; length < whole.size(); length++)
			ASSERT_TRUE(survives(tiny_font().with(tag, part(whole, 0, length))))
				<< tag << " of " << length << " octets";
	}
}


TEST(hostile_font, may_have_a_head_of_six_octets)
{
	font_file file = tiny_font().with("head", "00 01 00 00 00 02");
	EXPECT_EQ(sfnt(saved(*opened(file))).table("head"), hex("00 01 00 00 00 02"));
	EXPECT_EQ(opened(file)->head->unitsperem(), 0);
}


TEST(hostile_font, may_have_a_tag_of_any_octets)
{
	std::string tag("%n\0\xFF", 4);
	font_file file = tiny_font().again(tag, "01 02");
	testing::internal::CaptureStdout();
	auto font = opened(file);
	std::string said = testing::internal::GetCapturedStdout();
	EXPECT_EQ(said.substr(said.size() - 12), "name=[" + tag + "]\n");
	EXPECT_EQ(font->rawtables[0]->tag, 0x256E00FFu);
	EXPECT_TRUE(survives(file));
}


TEST(hostile_font, without_head_has_the_box_of_a_new_font)
{
	BRect bounds = opened(tiny_font().without("head"))->bounds();
	EXPECT_EQ(bounds.left, 0.0f);
	EXPECT_EQ(bounds.top, 511.0f);
	EXPECT_EQ(bounds.right, 511.0f);
	EXPECT_EQ(bounds.bottom, 0.0f);
}
