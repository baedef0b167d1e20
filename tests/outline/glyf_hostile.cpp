// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Records that are damaged or made to harm.
#include "font/ttf_loca.h"
#include "outline/glyf_fixture.h"
#include "outline/shape.h"
#include "support/opened.h"

#include <gtest/gtest.h>

// The contours of a record that is not all there, alone in its table.
static std::string
read_damaged(const octets& record)
{
	font_ptr font = font_of({record});
	glyph_ptr made = decoded(*font, 0);
	EXPECT_FALSE(made->complete());
	return contours(*made);
}


TEST(glyf_hostile, a_record_shorter_than_its_header_gives_nothing)
{
	for (size_t length = 1; length < 10; length++) {
		EXPECT_EQ(read_damaged(part(triangle(), 0, length)), "") << length;
		EXPECT_EQ(read_damaged(part(composite_of(""), 0, length)), "") << length;
	}
}


TEST(glyf_hostile, a_simple_record_cut_anywhere_never_reads_beside_the_table)
{
	for (size_t length = 10; length < 20; length++)
		read_damaged(part(triangle(), 0, length));
}


TEST(glyf_hostile, a_record_cut_in_its_y_keeps_the_points_before)
{
	EXPECT_EQ(read_damaged(hex("0001 0000 0000 0000 0000 0002 0000 37 37 37 01 01 01 0a 0a")),
		"1,10 2,20");
}


TEST(glyf_hostile, more_contours_than_bytes_give_those_that_are_there)
{
	EXPECT_EQ(read_damaged(hex("7fff 0000 0000 0000 0000")), "");
	EXPECT_EQ(read_damaged(hex("7fff 0000 0000 0000 0000 0000 0001 0002")), "");
	font_ptr font = font_of({hex("7fff 0000 0000 0000 0000 0000 0001")});
	EXPECT_EQ(info(*font, 0), (numbers{0, 0, 0x7FFF, 0}));
}


TEST(glyf_hostile, more_instructions_than_bytes_leave_no_points)
{
	EXPECT_EQ(
		read_damaged(hex("0001 0000 0000 0000 0000 0002 ffff 37 37 37 01 01 01 0a 0a 0a")), "");
}


TEST(glyf_hostile, more_points_than_bytes_give_those_that_are_there)
{
	EXPECT_EQ(read_damaged(hex("0001 0000 0000 0000 0000 ffff 0000 31 31")), "");
}


TEST(glyf_hostile, a_repeat_without_its_count_is_no_flag)
{
	EXPECT_EQ(read_damaged(hex("0001 0000 0000 0000 0000 0001 0000 31 39")), "");
}


TEST(glyf_hostile, ends_that_go_down_leave_no_contour_out_of_order)
{
	EXPECT_EQ(read_damaged(hex("0002 0000 0000 0000 0000 0002 0000 0000 37 01 01")), "1,1");
	EXPECT_EQ(read_damaged(hex("0003 0000 0000 0000 0000 0001 0000 0002 0000 37 37 37"
							   "01 01 01 01 01 01")),
		"1,1 2,2 | 2,2 3,3");
}


TEST(glyf_hostile, a_composite_cut_in_a_component_keeps_those_before)
{
	octets whole = composite_of("00a1 0001 0005 0006 4000 0000 0000 4000 0081 0001 0007 0008 4000"
								"0000 0000 4000");
	ASSERT_EQ(whole.size(), 42u);
	for (size_t length = 26; length < 42; length++) {
		octets glyf = triangle();
		octets cut = part(whole, 0, length);
		glyf.resize(24);
		glyf.insert(glyf.end(), cut.begin(), cut.end());
		// Glyph 0 runs to the end of the table, glyph 1 is the triangle at its start.
		font_ptr font = font_with(glyf, hex("00000018 00000000 00000018"), 2);
		glyph_ptr made = decoded(*font, 0);
		EXPECT_EQ(contours(*made), "5,6 105,6 55,86") << length;
		EXPECT_FALSE(made->complete());
		EXPECT_EQ(info(*font, 0), (numbers{1, 1, 1, 3}));
	}
}


TEST(glyf_hostile, offsets_beyond_the_table_give_nothing)
{
	for (const char* loca : {"00000018 00000020", "00000019 00000020", "fffffff8 ffffffff",
			 "00000016 ffffffff", "00000020 00000000"}) {
		font_ptr font = font_with(triangle(), hex(loca), 1);
		glyph_ptr made = decoded(*font, 0);
		EXPECT_EQ(made->num_shape, 0) << loca;
		EXPECT_FALSE(made->complete()) << loca;
		unsigned short depth, components, contours, points;
		EXPECT_EQ(font->glyf->get_info(0, &depth, &components, &contours, &points), 0);
		short box[4];
		EXPECT_EQ(font->glyf->get_rect(0, box, box + 1, box + 2, box + 3), 0);
		glyph g(0);
		EXPECT_EQ(font->set_glyph(0, &g), -1) << loca;
		EXPECT_EQ(kept(font->glyf), triangle());
		EXPECT_EQ(kept(font->loca), hex(loca));
	}
}


TEST(glyf_hostile, a_place_that_ends_before_it_starts_is_read_but_not_written)
{
	// Glyph 0 stands at 2 and ends at 0.
	octets glyf = hex("0000 0001 0000 0000 0000 0000 0000 0000 37 05 06");
	font_ptr font = font_with(glyf, hex("00000002 00000000 00000013"), 2);
	EXPECT_EQ(contours(*decoded(*font, 0)), "5,6");
	glyph g(0);
	EXPECT_EQ(font->set_glyph(0, &g), -1);
	EXPECT_TRUE(same(glyf, kept(font->glyf)));
	EXPECT_EQ(kept(font->loca), hex("00000002 00000000 00000013"));
}


TEST(glyf_hostile, with_a_loca_one_entry_short_the_last_glyph_ends_at_its_length)
{
	// Two glyphs and two entries: 8 bytes of loca, and the last glyph starts at 24.
	octets glyf = triangle();
	glyf.resize(24);
	octets second = triangle();
	glyf.insert(glyf.end(), second.begin(), second.end());
	font_ptr font = font_with(glyf, hex("00000000 00000018"), 2);
	EXPECT_EQ(contours(*decoded(*font, 1)), "0,0 100,0 50,80");
	EXPECT_EQ(info(*font, 1), (numbers{0, 0, 1, 3}));
	glyph g(1);
	EXPECT_EQ(font->set_glyph(1, &g), -1);
	EXPECT_EQ(kept(font->glyf), glyf);
}


TEST(glyf_hostile, a_last_glyph_that_starts_at_the_length_of_loca_is_empty)
{
	font_ptr font = font_with(triangle(), hex("00000000 00000008"), 2);
	glyph_ptr made = decoded(*font, 1);
	EXPECT_EQ(made->num_shape, 0);
	EXPECT_TRUE(made->complete());
	EXPECT_EQ(info(*font, 1), (numbers{0, 0, 0, 0}));
}


TEST(glyf_hostile, without_loca_or_without_glyf_there_is_nothing_to_read_or_to_write)
{
	font_ptr font = font_with(triangle(), octets(), 1);
	glyph g(0);
	EXPECT_EQ(font->get_glyph(0, &g), -1);
	EXPECT_EQ(font->set_glyph(0, &g), -1);
	EXPECT_EQ(info(*font, 0), (numbers{0, 0, 0, 0}));
	font = font_with(octets(), hex("00000000 00000018"), 1);
	EXPECT_EQ(font->get_glyph(0, &g), 0);
	EXPECT_FALSE(g.complete());
	EXPECT_EQ(font->set_glyph(0, &g), -1);
}
