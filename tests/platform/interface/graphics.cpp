// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include <GraphicsDefs.h>

#include <cstring>
#include <gtest/gtest.h>


TEST(graphics, solid_patterns_are_all_of_one_colour)
{
	EXPECT_EQ(memcmp(B_SOLID_HIGH.data, "\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF", 8), 0);
	EXPECT_EQ(memcmp(B_SOLID_LOW.data, "\0\0\0\0\0\0\0\0", 8), 0);
}


TEST(graphics, mixed_colours_are_a_checkerboard_that_starts_high)
{
	EXPECT_EQ(memcmp(B_MIXED_COLORS.data, "\xAA\x55\xAA\x55\xAA\x55\xAA\x55", 8), 0);
}


TEST(graphics, the_transparent_colour_is_the_agreed_one)
{
	const uint8 expected[4] = {0x77, 0x74, 0x77, 0x00};
	EXPECT_EQ(memcmp(&B_TRANSPARENT_COLOR, expected, 4), 0);
}


TEST(graphics, a_colour_is_given_as_red_green_blue_alpha)
{
	const rgb_color colour = {1, 2, 3, 4};
	EXPECT_EQ(colour.red, 1);
	EXPECT_EQ(colour.green, 2);
	EXPECT_EQ(colour.blue, 3);
	EXPECT_EQ(colour.alpha, 4);
}
