// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "font/ttf_hhea.h"

#include <gtest/gtest.h>

#include "font/ttf.h"
#include "support/choice.h"
#include "support/font_file.h"
#include "support/opened.h"

static octets
whole_hhea()
{
	return tiny_font().table("hhea");
}


namespace {

class hhea_table : public ttf_hhea {
public:
	explicit hhea_table(const octets& contents)
		: ttf_hhea(nullptr, buffer_of(contents), contents.size())
	{
	}
};

}


TEST(hhea, knows_its_tag_and_keeps_its_octets)
{
	hhea_table hhea(whole_hhea());
	EXPECT_EQ(hhea.tag, 0x68686561u);
	EXPECT_EQ(kept(&hhea), whole_hhea());
}


TEST(hhea, of_a_new_font_has_these_octets)
{
	ttf font;
	font.chrs = choice({0x41, 0x42});
	ttf_hhea hhea(&font, nullptr, 0);
	EXPECT_EQ(kept(&hhea),
		hex("00010000"                 // version
			"0200 0000 0000"           // ascender, descender, gap
			"0200 0000 0000 0200"      // widest advance, bearings, extent
			"0001 0000"                // caret slope
			"0000 0000 0000 0000 0000" // reserved
			"0000 0003"));             // format, number of metrics
}


TEST(hhea, of_a_new_font_has_a_metric_for_every_glyph)
{
	ttf font;
	font.chrs = choice({});
	font.chrs->glyphs = 0xFFFE;
	ttf_hhea hhea(&font, nullptr, 0);
	EXPECT_EQ(hhea.numhmtx(), 0xFFFE);
}


TEST(hhea, of_a_new_font_without_a_choice_has_no_metrics)
{
	ttf font;
	ttf_hhea hhea(&font, nullptr, 0);
	EXPECT_EQ(hhea.length, 36u);
	EXPECT_EQ(hhea.numhmtx(), 0);
}


TEST(hhea, made_anew_forgets_what_it_held)
{
	ttf font;
	font.chrs = choice({0x41});
	ttf_hhea hhea(&font, buffer_of(octets(50, 0xEE)), 50);
	hhea.create_default();
	EXPECT_EQ(hhea.length, 36u);
	EXPECT_EQ(part(kept(&hhea), 0, 6), hex("00010000 0200"));
	EXPECT_EQ(part(kept(&hhea), 20, 16), hex("0000 0000 0000 0000 0000 0000 0000 0002"));
}


TEST(hhea_numhmtx, is_the_last_field_unsigned)
{
	octets contents = whole_hhea();
	put_be16(contents, 34, 0xFFFE);
	EXPECT_EQ(hhea_table(whole_hhea()).numhmtx(), 2);
	EXPECT_EQ(hhea_table(contents).numhmtx(), 65534);
}


TEST(hhea_numhmtx, is_0_for_a_table_too_short_to_tell)
{
	octets contents(36, 0x11);
	EXPECT_EQ(hhea_table(part(contents, 0, 35)).numhmtx(), 0);
	EXPECT_EQ(hhea_table(octets()).numhmtx(), 0);
	EXPECT_EQ(hhea_table(contents).numhmtx(), 0x1111);
}


TEST(hhea, is_the_same_after_a_save)
{
	octets strange = hex("00020000 0001 0002 0003 0004 0005 0006 0007 0008 0009 000a 000b 000c"
						 "000d 000e 000f 0010");
	auto font = opened(tiny_font().with("hhea", strange));
	saved(*font);
	EXPECT_EQ(kept(font->hhea), strange);
}
