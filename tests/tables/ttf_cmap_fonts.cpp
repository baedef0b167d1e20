// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include <string>

#include <ft2build.h>
#include FT_FREETYPE_H

#include <gtest/gtest.h>

#include "font/ttf.h"
#include "support/opened.h"
#include "support/real_font.h"
#include "support/temp_files.h"
#include "tables/ttf_cmap.h"

// A font with several maps (DejaVu), one with few codes (Liberation), one with ten thousand codes
// (IPA).
class cmap_of_a_real_font : public testing::TestWithParam<const char*> {
protected:
	void SetUp() override { read_real_font(GetParam(), file); }

	octets file;
};


INSTANTIATE_TEST_SUITE_P(installed, cmap_of_a_real_font,
	testing::Values("DejaVuSans.ttf", "LiberationSans-Regular.ttf", "ipag.ttf"),
	[](const auto& chosen) {
		std::string name = chosen.param;
		return name.substr(0, name.find_first_of("-."));
	});


// What FreeType, a reader that owes nothing to this program, makes of the Windows Unicode map; empty
// when it finds none.
static std::vector<unsigned>
glyphs_for_freetype(const octets& file)
{
	std::vector<unsigned> glyphs;
	FT_Library library;
	FT_Face face;
	FT_Init_FreeType(&library);
	if (FT_New_Memory_Face(library, file.data(), FT_Long(file.size()), 0, &face) == 0) {
		for (int i = 0; i < face->num_charmaps; i++) {
			FT_CharMap map = face->charmaps[i];
			if (map->platform_id != 3 || map->encoding_id != 1)
				continue;
			FT_Set_Charmap(face, map);
			glyphs.clear();
			for (FT_ULong code = 0; code <= 0xFFFF; code++)
				glyphs.push_back(FT_Get_Char_Index(face, code));
		}
		FT_Done_Face(face);
	}
	FT_Done_FreeType(library);
	return glyphs;
}


TEST_P(cmap_of_a_real_font, maps_every_code_as_freetype_does)
{
	std::vector<unsigned> glyphs = glyphs_for_freetype(file);
	ASSERT_EQ(glyphs.size(), 65536u);
	auto font = opened(file);
	int mapped = 0;
	for (unsigned code = 0; code <= 0xFFFF; code++) {
		ASSERT_EQ(font->cmap->get_gno((unsigned short)code), glyphs[code]) << "code " << code;
		mapped += glyphs[code] != 0;
	}
	EXPECT_GT(mapped, 600);
}


TEST_P(cmap_of_a_real_font, finds_the_lowest_code_of_every_glyph_that_has_one)
{
	auto font = opened(file);
	std::vector<unsigned> lowest(65536, 0xFFFF);
	std::vector<unsigned> glyphs = glyphs_for_freetype(file);
	for (unsigned code = 0xFFFF; code-- > 0;)
		lowest[glyphs[code]] = code;
	for (unsigned glyph = 0; glyph < 2000; glyph++)
		ASSERT_EQ(font->cmap->get_chr((unsigned short)glyph), lowest[glyph]) << "glyph " << glyph;
}
