// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "tables/ttf_post.h"

#include <gtest/gtest.h>

#include "support/opened.h"


TEST(post, of_a_new_font_is_of_format_3_and_slanted_by_20_degrees)
{
	ttf_post post(nullptr, nullptr, 0);
	EXPECT_EQ(kept(&post),
		hex("00030000 00140000 0000 0014"
			"00000000 00000000 00000000 00000000 00000000"));
	EXPECT_EQ(post.tag, 0x706F7374u);
}


TEST(post, can_be_made_anew)
{
	octets contents = hex("00020000 ffffffff ffff");
	ttf_post post(nullptr, buffer_of(contents), contents.size());
	EXPECT_EQ(post.create_default(), 0);
	EXPECT_EQ(kept(&post),
		hex("00030000 00140000 0000 0014"
			"00000000 00000000 00000000 00000000 00000000"));
}


TEST(post, keeps_the_bytes_it_is_made_of)
{
	octets contents = hex("00020000 ffffffff ffff");
	ttf_post post(nullptr, buffer_of(contents), contents.size());
	EXPECT_EQ(kept(&post), contents);
}
