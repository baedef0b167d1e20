// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "font/ttf.h"
#include "support/choice.h"
#include "support/font_file.h"
#include "support/opened.h"


TEST(new_font_choice, is_not_there_at_first)
{
	ttf font;
	EXPECT_EQ(font.chrs, nullptr);
	EXPECT_EQ(font.newglyphs(), 0u);
}


TEST(new_font_choice, has_the_size_of_its_four_fields)
{
	EXPECT_EQ(sizeof(chrs_record), 65672u);
	EXPECT_EQ(offsetof(chrs_record, codes), 128u);
	EXPECT_EQ(offsetof(chrs_record, count), 65664u);
	EXPECT_EQ(offsetof(chrs_record, glyphs), 65668u);
}


TEST(new_font_choice, tells_the_number_of_glyphs_by_its_second_count)
{
	ttf font;
	font.chrs = choice({0x41, 0x42});
	font.chrs->count = 77;
	EXPECT_EQ(font.newglyphs(), 3u);
}


TEST(new_font_choice, is_not_made_by_a_load)
{
	EXPECT_EQ(opened(tiny_font())->chrs, nullptr);
}


TEST(new_font_choice, goes_with_a_load_that_fails)
{
	ttf font;
	font.chrs = choice({0x41});
	EXPECT_EQ(loaded(font, octets()), 1);
	EXPECT_EQ(font.chrs, nullptr);
}
