// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The tables of a new font, for several choices.
#include "font/ttf_head.h"
#include "font/ttf_hhea.h"
#include "font/ttf_loca.h"
#include "font/ttf_maxp.h"
#include "outline/glyph.h"
#include "outline/ttf_glyf.h"
#include "outline/ttf_hmtx.h"
#include "support/expected_save.h"
#include "support/new_font.h"
#include "support/opened.h"
#include "support/sfnt.h"
#include "tables/ttf_cmap.h"
#include "tables/ttf_name.h"
#include "tables/ttf_os2.h"
#include "tables/ttf_post.h"

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_TRUETYPE_TABLES_H

#include <gtest/gtest.h>

using rows = std::vector<int>;

static const int latin = 0;
static const int hangul = 56;
static const int unified = 59;
static const int specials = 69;
static const int tibetan = 70;


// What differs between the font that is made and the one that should be.
static void
check_tables(const rows& chosen)
{
	std::unique_ptr<ttf> font = new_font(chosen);
	const font_file expected = expected_font(chosen);
	const struct {
		const char* tag;
		const ttf_table* table;
	} tables[] = {{"OS/2", font->os2}, {"cmap", font->cmap}, {"glyf", font->glyf},
		{"head", font->head}, {"hhea", font->hhea}, {"hmtx", font->hmtx}, {"loca", font->loca},
		{"maxp", font->maxp}, {"name", font->name}, {"post", font->post}};
	for (const auto& each : tables)
		EXPECT_TRUE(same(expected.table(each.tag), kept(each.table))) << each.tag;
}


static void
check_saved(const rows& chosen)
{
	const octets file = saved(*new_font(chosen));
	EXPECT_TRUE(same(expected_save(expected_font(chosen), modified_of(file)), file));
}


TEST(new_font, of_nothing_has_one_glyph)
{
	check_tables({});
	check_saved({});
	std::unique_ptr<ttf> font = new_font({});
	EXPECT_EQ(kept(font->cmap),
		hex("0000 0001 0003 0001 0000000c"
			"0004 0018 0000 0002 0001 ffff 0001 ffff 0000 ffff 0001 0000"));
	EXPECT_EQ(kept(font->hmtx), hex("0200 0000"));
	EXPECT_EQ(kept(font->loca), zeros(8));
}


TEST(new_font, of_basic_latin_has_128_glyphs)
{
	check_tables({latin});
	check_saved({latin});
	std::unique_ptr<ttf> font = new_font({latin});
	EXPECT_EQ(font->numglyphs(), 128u);
	EXPECT_EQ(font->cmap->get_gno('A'), 'A');
	EXPECT_EQ(part(kept(font->os2), 42, 16), hex("00000001 00000000 00000000 00000000"));
}


TEST(new_font, of_the_specials_has_feff_and_a_last_glyph_that_no_code_has)
{
	check_tables({specials});
	check_saved({specials});
	std::unique_ptr<ttf> font = new_font({specials});
	EXPECT_EQ(font->numglyphs(), 18u);
	EXPECT_EQ(font->cmap->get_gno(0xFEFF), 1);
	EXPECT_EQ(font->cmap->get_gno(0xFFF0), 2);
	EXPECT_EQ(font->cmap->get_gno(0xFFFE), 16);
	EXPECT_EQ(font->cmap->get_gno(0xFFFF), 0);
}


TEST(new_font, of_chinese_and_korean_has_32177_glyphs)
{
	check_tables({unified, hangul});
	check_saved({unified, hangul});
	std::unique_ptr<ttf> font = new_font({unified, hangul});
	EXPECT_EQ(font->numglyphs(), 32177u);
	EXPECT_EQ(font->cmap->get_gno(0x9FFF), 20992);
	EXPECT_EQ(font->cmap->get_gno(0xAC00), 20993);
	EXPECT_EQ(font->cmap->get_gno(0xD7AF), 32176);
}


TEST(new_font, of_all_blocks_has_49504_glyphs)
{
	check_tables(all_rows());
	check_saved(all_rows());
	std::unique_ptr<ttf> font = new_font(all_rows());
	EXPECT_EQ(font->numglyphs(), 49504u);
	EXPECT_EQ(font->cmap->get_gno(0xFFFE), 49502);
	EXPECT_EQ(part(kept(font->os2), 42, 16), hex("ffffffff ffffffff 0000007f 00000000"));
}


TEST(new_font, of_the_last_row_has_its_bit_in_the_third_word)
{
	check_tables({tibetan});
	EXPECT_EQ(new_font({tibetan})->os2->u32(50), 0x40u);
}


TEST(new_font, lists_ten_tables_in_ascending_order)
{
	std::unique_ptr<ttf> font = new_font({latin});
	EXPECT_EQ(octets(font->dir, font->dir + 172),
		hex("00010000 000a 0080 0003 0020"
			"4f532f32 00000000 00000000 00000000  636d6170 00000000 00000000 00000000"
			"676c7966 00000000 00000000 00000000  68656164 00000000 00000000 00000000"
			"68686561 00000000 00000000 00000000  686d7478 00000000 00000000 00000000"
			"6c6f6361 00000000 00000000 00000000  6d617870 00000000 00000000 00000000"
			"6e616d65 00000000 00000000 00000000  706f7374 00000000 00000000 00000000"));
	for (const ttf_table* none : font->rawtables)
		EXPECT_EQ(none, nullptr);
	EXPECT_EQ(font->chrs, nullptr);
}


TEST(new_font, says_which_tables_it_makes)
{
	testing::internal::CaptureStdout();
	new_font({});
	EXPECT_EQ(testing::internal::GetCapturedStdout(),
		"name=[OS/2]\nname=[cmap]\nname=[glyf]\nname=[head]\nname=[hhea]\n"
		"name=[hmtx]\nname=[loca]\nname=[maxp]\nname=[name]\nname=[post]\n");
}


TEST(new_font, takes_the_number_of_its_glyphs_from_the_second_count)
{
	ttf font;
	font.chrs = new chrs_record();
	font.chrs->codes[0] = font.chrs->codes[0x41] = 1;
	font.chrs->count = 2;
	font.chrs->glyphs = 5;
	EXPECT_EQ(font.init(), 0);
	EXPECT_EQ(font.numglyphs(), 5u);
	EXPECT_EQ(font.hhea->numhmtx(), 5);
	EXPECT_EQ(font.hmtx->length, 20u);
	EXPECT_EQ(font.loca->length, 24u);
	EXPECT_EQ(font.cmap->get_gno(0x41), 1);
}


TEST(new_font, starts_with_empty_glyphs)
{
	std::unique_ptr<ttf> font = new_font({latin});
	uint32 offset = 7;
	uint32 size = 7;
	EXPECT_TRUE(font->find_glyph(127, &offset, &size));
	EXPECT_EQ(offset, 0u);
	EXPECT_EQ(size, 0u);
	EXPECT_FALSE(font->find_glyph(128, &offset, &size));
	EXPECT_EQ(font->glyf->length, 0u);
	EXPECT_NE(font->glyf->data, nullptr);
	EXPECT_EQ(font->bounds(), BRect(0, 511, 511, 0));
}


TEST(new_font, has_a_component_depth_of_1_until_it_is_saved)
{
	std::unique_ptr<ttf> font = new_font({latin});
	EXPECT_EQ(be16(kept(font->maxp), 30), 1);
	const octets file = saved(*font);
	EXPECT_EQ(be16(kept(font->maxp), 30), 0);
	EXPECT_EQ(be16(sfnt(file).table("maxp"), 30), 0);
}


TEST(new_font, starts_its_tables_at_172)
{
	const sfnt file(saved(*new_font({latin})));
	EXPECT_EQ(part(file.file(), 0, 12), hex("00010000 000a 0080 0003 0020"));
	std::string places;
	for (const sfnt_entry& entry : file.entries())
		places += entry.tag + " " + std::to_string(entry.offset) + " "
			+ std::to_string(entry.length) + ", ";
	EXPECT_EQ(places,
		"OS/2 172 86, cmap 260 44, glyf 304 0, head 304 54, hhea 360 36, "
		"hmtx 396 512, loca 908 516, maxp 1424 32, name 1456 360, post 1816 32, ");
	EXPECT_EQ(file.file().size(), 1848u);
}


TEST(new_font, keeps_the_date_of_its_first_save)
{
	std::unique_ptr<ttf> font = new_font({});
	EXPECT_EQ(part(kept(font->head), 20, 16), zeros(16));
	const octets head = sfnt(saved(*font)).table("head");
	EXPECT_EQ(part(head, 20, 8), part(head, 28, 8));
	EXPECT_GT(be32(head, 24), 0u);
	EXPECT_EQ(part(sfnt(saved(*font)).table("head"), 20, 8), part(head, 20, 8));
}


TEST(new_font, loads_as_it_was_saved)
{
	const octets file = saved(*new_font({latin, specials}));
	std::unique_ptr<ttf> font = opened(file);
	EXPECT_EQ(font->numglyphs(), 145u);
	EXPECT_EQ(font->cmap->get_gno(0x7F), 0x7F);
	EXPECT_EQ(font->cmap->get_gno(0xFEFF), 0x80);
	const octets again = saved(*font);
	EXPECT_TRUE(same(expected_save(file, modified_of(again)), again));
}


// The font as FreeType sees it.
class new_face : public testing::Test {
protected:
	void open(const rows& chosen)
	{
		fFile = saved(*new_font(chosen));
		ASSERT_EQ(FT_Init_FreeType(&fLibrary), 0);
		ASSERT_EQ(FT_New_Memory_Face(fLibrary, fFile.data(), (FT_Long)fFile.size(), 0, &fFace), 0);
		ASSERT_EQ(FT_Select_Charmap(fFace, FT_ENCODING_UNICODE), 0);
	}
	~new_face() override
	{
		FT_Done_Face(fFace);
		FT_Done_FreeType(fLibrary);
	}

	octets fFile;
	FT_Library fLibrary = nullptr;
	FT_Face fFace = nullptr;
};


TEST_F(new_face, of_nothing_opens)
{
	open({});
	EXPECT_EQ(fFace->num_glyphs, 1);
	EXPECT_EQ(FT_Get_Char_Index(fFace, 'A'), 0u);
}


TEST_F(new_face, of_basic_latin_maps_127_characters)
{
	open({latin});
	EXPECT_EQ(fFace->num_glyphs, 128);
	EXPECT_EQ(fFace->units_per_EM, 512);
	EXPECT_STREQ(fFace->family_name, "noname");
	EXPECT_STREQ(fFace->style_name, "Regular");
	for (FT_ULong code = 1; code < 128; code++)
		EXPECT_EQ(FT_Get_Char_Index(fFace, code), code);
	EXPECT_EQ(FT_Load_Glyph(fFace, 65, FT_LOAD_NO_SCALE), 0);
	EXPECT_EQ(fFace->glyph->metrics.horiAdvance, 512);
	EXPECT_EQ(fFace->glyph->outline.n_contours, 0);
}


TEST_F(new_face, of_all_blocks_maps_all_characters_in_order)
{
	open(all_rows());
	EXPECT_EQ(fFace->num_glyphs, 49504);
	FT_UInt glyph = 0;
	FT_UInt expected = 1;
	FT_ULong code = FT_Get_First_Char(fFace, &glyph);
	for (; glyph != 0; code = FT_Get_Next_Char(fFace, code, &glyph), expected++)
		ASSERT_EQ(glyph, expected) << code;
	EXPECT_EQ(expected, 49503u);
	EXPECT_EQ(FT_Get_Char_Index(fFace, 0x0530), 1280u);
}


TEST_F(new_face, has_the_os2_and_post_tables_of_the_font)
{
	open({latin, tibetan});
	auto* os2 = static_cast<const TT_OS2*>(FT_Get_Sfnt_Table(fFace, FT_SFNT_OS2));
	ASSERT_NE(os2, nullptr);
	EXPECT_EQ(os2->ulUnicodeRange1, 1u);
	EXPECT_EQ(os2->ulUnicodeRange3, 0x40u);
	EXPECT_EQ(os2->usWeightClass, 500);
	auto* post = static_cast<const TT_Postscript*>(FT_Get_Sfnt_Table(fFace, FT_SFNT_POST));
	ASSERT_NE(post, nullptr);
	EXPECT_EQ(post->italicAngle, 20 << 16);
	EXPECT_EQ(post->underlineThickness, 20);
}
