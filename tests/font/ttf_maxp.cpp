// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "font/ttf_maxp.h"

#include <gtest/gtest.h>

#include "font/ttf.h"
#include "support/choice.h"
#include "support/font_file.h"
#include "support/opened.h"

static octets
whole_maxp()
{
	return tiny_font().table("maxp");
}


namespace {

class maxp_table : public ttf_maxp {
public:
	explicit maxp_table(const octets& contents)
		: ttf_maxp(nullptr, buffer_of(contents), contents.size())
	{
	}
};

}


TEST(maxp, knows_its_tag_and_keeps_its_octets)
{
	maxp_table maxp(whole_maxp());
	EXPECT_EQ(maxp.tag, 0x6D617870u);
	EXPECT_EQ(kept(&maxp), whole_maxp());
}


TEST(maxp, of_a_new_font_has_these_octets)
{
	ttf font;
	font.chrs = choice({0x41, 0x42, 0x43});
	ttf_maxp maxp(&font, nullptr, 0);
	EXPECT_EQ(kept(&maxp),
		hex("00010000 0004"       // version, glyphs
			"0000 0000 0000 0000" // points, contours, the same in composites
			"0001 0000 0000 0000" // zones, twilight points, storage, functions
			"0000 0000 0000"      // instructions, stack, size of instructions
			"0000 0001"));        // components, depth
}


TEST(maxp, of_a_new_font_counts_up_to_16_bits)
{
	ttf font;
	font.chrs = choice({});
	font.chrs->glyphs = 0x7DB1;
	ttf_maxp maxp(&font, nullptr, 0);
	EXPECT_EQ(maxp.numglyphs(), 0x7DB1);
}


TEST(maxp, of_a_new_font_without_a_choice_has_no_glyphs)
{
	ttf font;
	ttf_maxp maxp(&font, nullptr, 0);
	EXPECT_EQ(maxp.length, 32u);
	EXPECT_EQ(maxp.numglyphs(), 0);
}


TEST(maxp, made_anew_forgets_what_it_held)
{
	ttf font;
	font.chrs = choice({0x41});
	ttf_maxp maxp(&font, buffer_of(octets(6, 0xEE)), 6);
	maxp.create_default();
	EXPECT_EQ(maxp.length, 32u);
	EXPECT_EQ(part(kept(&maxp), 0, 16), hex("00010000 0002 0000 0000 0000 0000 0001"));
	EXPECT_EQ(part(kept(&maxp), 16, 16), hex("0000 0000 0000 0000 0000 0000 0000 0001"));
}


TEST(maxp_numglyphs, is_unsigned)
{
	octets contents = whole_maxp();
	put_be16(contents, 4, 0xFFFF);
	EXPECT_EQ(maxp_table(whole_maxp()).numglyphs(), 2);
	EXPECT_EQ(maxp_table(contents).numglyphs(), 65535);
}


TEST(maxp_numglyphs, needs_six_octets)
{
	EXPECT_EQ(maxp_table(hex("00005000 0203")).numglyphs(), 0x0203);
	EXPECT_EQ(maxp_table(hex("00005000 02")).numglyphs(), 0);
	EXPECT_EQ(maxp_table(octets()).numglyphs(), 0);
}
