// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Statistics and boxes of records.
#include "outline/glyf_fixture.h"
#include "support/opened.h"

#include <gtest/gtest.h>

static numbers
rect(ttf& font, unsigned short index)
{
	short box[4] = {99, 99, 99, 99};
	EXPECT_EQ(font.glyf->get_rect(index, box, box + 1, box + 2, box + 3), 0);
	return {(uint16_t)box[0], (uint16_t)box[1], (uint16_t)box[2], (uint16_t)box[3]};
}


// Glyph 0 is empty; 1 and 2 have 2 and 3 contours, the last points 7 and 16.
static font_ptr
font_of_simple_and(std::vector<octets> more)
{
	std::vector<octets> records = {octets(), hex("0002 0001 0002 0003 0004 0003 0007 0000"),
		hex("0003 ffff 8000 7fff 0000 0003 0007 0010 0000")};
	records.insert(records.end(), more.begin(), more.end());
	return font_of(records);
}


TEST(glyf_get_info, of_an_empty_glyph_is_all_0)
{
	EXPECT_EQ(info(*font_of_simple_and({}), 0), (numbers{0, 0, 0, 0}));
}


TEST(glyf_get_info, of_a_simple_glyph_counts_contours_and_points)
{
	EXPECT_EQ(info(*font_of_simple_and({}), 1), (numbers{0, 0, 2, 8}));
	EXPECT_EQ(info(*font_of_simple_and({}), 2), (numbers{0, 0, 3, 17}));
}


TEST(glyf_get_info, of_a_record_without_contours_counts_one_point_more_than_its_top)
{
	font_ptr font =
		font_of({hex("0000 0000 0000 0000 0123 0000"), hex("0000 0000 0000 0000 ffff")});
	EXPECT_EQ(info(*font, 0), (numbers{0, 0, 0, 0x124}));
	EXPECT_EQ(info(*font, 1), (numbers{0, 0, 0, 0}));
}


TEST(glyf_get_info, of_a_composite_sums_its_components)
{
	font_ptr font = font_of_simple_and({composite_of("0020 0001 00 00 0000 0002 00 00")});
	EXPECT_EQ(info(*font, 3), (numbers{1, 2, 5, 25}));
}


TEST(glyf_get_info, counts_the_components_of_the_own_level_and_the_deepest_depth)
{
	font_ptr font = font_of_simple_and({composite_of("0020 0001 00 00 0000 0002 00 00"),
		composite_of("0020 0003 00 00 0020 0001 00 00 0000 0001 00 00")});
	EXPECT_EQ(info(*font, 4), (numbers{2, 3, 9, 41}));
}


TEST(glyf_get_info, passes_over_arguments_and_matrices_of_every_size)
{
	font_ptr font = font_of_simple_and({composite_of("0020 0001 00 00 0021 0001 0000 0000"
													 "0028 0001 00 00 0020"
													 "0060 0001 00 00 0020 0020"
													 "00a0 0001 00 00 0020 0020 0020 0020"
													 "00e9 0001 0000 0000 0020"
													 "0000 0002 00 00")});
	EXPECT_EQ(info(*font, 3), (numbers{1, 7, 15, 65}));
}


TEST(glyf_get_info, counts_more_than_seven_components)
{
	std::string many;
	for (int i = 0; i < 9; i++)
		many += "0020 0001 00 00 ";
	font_ptr font = font_of_simple_and({composite_of(many + "0000 0002 00 00")});
	EXPECT_EQ(info(*font, 3), (numbers{1, 10, 21, 89}));
}


TEST(glyf_get_info, counts_components_that_are_empty_or_no_glyphs)
{
	font_ptr font = font_of_simple_and({composite_of("0020 0000 00 00 0000 ffff 00 00")});
	EXPECT_EQ(info(*font, 3), (numbers{1, 2, 0, 0}));
}


TEST(glyf_get_info, of_an_index_that_is_no_glyphs_is_all_0)
{
	EXPECT_EQ(info(*font_of_simple_and({}), 3), (numbers{0, 0, 0, 0}));
	EXPECT_EQ(info(*font_of_simple_and({}), 0xFFFF), (numbers{0, 0, 0, 0}));
}


TEST(glyf_get_info, sums_in_16_bits)
{
	// Twice 40000 points.
	font_ptr font = font_of({hex("0001 0000 0000 0000 0000 9c3f 0000"),
		composite_of("0020 0000 00 00 0000 0000 00 00")});
	EXPECT_EQ(info(*font, 0), (numbers{0, 0, 1, 40000}));
	EXPECT_EQ(info(*font, 1), (numbers{1, 2, 2, 14464}));
}


TEST(glyf_get_rect, gives_the_box_as_it_is_stored)
{
	EXPECT_EQ(rect(*font_of_simple_and({}), 1), (numbers{1, 2, 3, 4}));
	EXPECT_EQ(rect(*font_of_simple_and({}), 2), (numbers{0xFFFF, 0x8000, 0x7FFF, 0}));
}


TEST(glyf_get_rect, of_a_composite_gives_its_own_box)
{
	font_ptr font = font_of_simple_and({hex("ffff 0009 0008 0007 0006 0000 0001 00 00")});
	EXPECT_EQ(rect(*font, 3), (numbers{9, 8, 7, 6}));
}


TEST(glyf_get_rect, of_an_empty_glyph_is_inside_out)
{
	EXPECT_EQ(rect(*font_of_simple_and({}), 0), (numbers{0x7FFF, 0x7FFF, 0x8000, 0x8000}));
}


TEST(glyf_get_rect, of_an_index_that_is_no_glyphs_is_that_of_an_empty_one)
{
	EXPECT_EQ(rect(*font_of_simple_and({}), 3), (numbers{0x7FFF, 0x7FFF, 0x8000, 0x8000}));
}
