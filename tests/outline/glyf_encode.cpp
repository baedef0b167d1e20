// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Contours into simple records.
#include "outline/glyf_fixture.h"
#include "outline/shape.h"
#include "support/opened.h"

#include <gtest/gtest.h>


// The record of a glyph of one contour.
static octets
record_of(std::initializer_list<dot> dots)
{
	glyph g(0);
	g.add_shape(contour(dots).release());
	return encoded(g);
}


// A simple record of one point at (5, 6) with three octets of instructions.
static octets
hinted()
{
	return hex("0001 0005 0006 0005 0006 0000 0003 b00102 37 05 06");
}


TEST(glyf_encode, writes_ends_flags_x_and_y_under_a_header)
{
	glyph g(0);
	g.add_shape(contour({{0, 0}, {100, 0}, {50, 80, 1}}).release());
	g.add_shape(contour({{60, 90}, {70, 100}}).release());
	EXPECT_EQ(encoded(g),
		hex("0002 0000 0000 0064 0064 0002 0004 0000"
			"31 33 26 37 37  64 32 0a 0a  50 0a 0a"));
}


TEST(glyf_encode, steps_from_the_untruncated_point_before)
{
	EXPECT_EQ(
		record_of({{10.7f, 0}, {20.2f, 0}}), hex("0001 000a 0000 0014 0000 0001 0000 33 33 0a 09"));
}


TEST(glyf_encode, steps_down_from_the_untruncated_point_before)
{
	// 5 less 20.2 is -15.2, and so is -15; 5 less 20.9 is -15.9.
	EXPECT_EQ(record_of({{20.2f, 20.9f}, {5, 5}}),
		hex("0001 0005 0005 0014 0014 0001 0000 37 07 14 0f 14 0f"));
}


TEST(glyf_encode, steps_so_from_one_contour_to_the_next_too)
{
	glyph g(0);
	g.add_shape(contour({{10.7f, 0}}).release());
	g.add_shape(contour({{20.2f, 0}}).release());
	EXPECT_EQ(encoded(g), hex("0002 000a 0000 0014 0000 0000 0001 0000 33 33 0a 09"));
}


TEST(glyf_encode, truncates_toward_zero)
{
	EXPECT_EQ(record_of({{-10.7f, -0.9f}}), hex("0001 fff6 0000 fff6 0000 0000 0000 23 0a"));
}


TEST(glyf_encode, a_step_of_x_up_to_255_takes_one_byte)
{
	EXPECT_EQ(record_of({{255, 0}, {0, 0}}), hex("0001 0000 0000 00ff 0000 0001 0000 33 23 ff ff"));
}


TEST(glyf_encode, a_step_of_x_of_256_takes_two_both_ways)
{
	EXPECT_EQ(
		record_of({{256, 0}, {0, 0}}), hex("0001 0000 0000 0100 0000 0001 0000 21 21 0100 ff00"));
}


TEST(glyf_encode, a_step_of_y_up_to_255_takes_one_byte)
{
	EXPECT_EQ(record_of({{0, 255}, {0, 0}}), hex("0001 0000 0000 0000 00ff 0001 0000 35 15 ff ff"));
}


TEST(glyf_encode, a_step_of_y_of_256_takes_two_both_ways)
{
	EXPECT_EQ(
		record_of({{0, 256}, {0, 0}}), hex("0001 0000 0000 0000 0100 0001 0000 11 11 0100 ff00"));
}


TEST(glyf_encode, never_repeats_a_flag)
{
	EXPECT_EQ(record_of({{1, 0}, {2, 0}, {3, 0}, {4, 0}}),
		hex("0001 0001 0000 0004 0000 0003 0000 33 33 33 33 01 01 01 01"));
}


TEST(glyf_encode, fills_up_an_odd_length_with_a_zero)
{
	EXPECT_EQ(record_of({{1, 1}}), hex("0001 0001 0001 0001 0001 0000 0000 37 01 01 00"));
}


TEST(glyf_encode, writes_a_whole_header_for_an_outline_without_contours)
{
	EXPECT_EQ(encoded(glyph(0)), hex("0000 7fff 7fff 8000 8000 0000"));
}


TEST(glyf_encode, clamps_what_no_16_bits_hold)
{
	EXPECT_EQ(record_of({{40000, 0}}), hex("0001 7fff 0000 7fff 0000 0000 0000 21 7fff 00"));
}


TEST(glyf_encode, keeps_the_instructions_of_a_simple_record)
{
	glyph g(0);
	g.add_shape(contour({{1, 0}}).release());
	EXPECT_EQ(encoded(g, hinted()), hex("0001 0001 0000 0001 0000 0000 0003 b00102 33 01 00"));
}


TEST(glyf_encode, keeps_the_instructions_of_an_emptied_outline)
{
	EXPECT_EQ(encoded(glyph(0), hinted()), hex("0000 7fff 7fff 8000 8000 0003 b00102 00"));
}


TEST(glyf_encode, keeps_no_instructions_of_a_composite_record)
{
	octets old = composite_of("0100 0000 00 00 0003 b00102 00");
	EXPECT_EQ(encoded(glyph(0), old), hex("0000 7fff 7fff 8000 8000 0000"));
}


TEST(glyf_encode, keeps_what_the_table_has_of_instructions_that_run_past_it)
{
	octets old = hex("0001 0005 0006 0005 0006 0000 ffff b00102");
	EXPECT_EQ(encoded(glyph(0), old), hex("0000 7fff 7fff 8000 8000 0003 b00102 00"));
}


TEST(glyf_encode, takes_no_instructions_from_the_neighbour_of_an_empty_record)
{
	font_ptr font = font_of({octets(), hinted()});
	unsigned long offset = 0;
	unsigned long size = 0;
	glyph g(0);
	font->glyf->encode(&g, &offset, &size);
	EXPECT_EQ(size, 12u);
	EXPECT_EQ(part(kept(font->glyf), 0, 12), hex("0000 7fff 7fff 8000 8000 0000"));
	EXPECT_TRUE(same(hinted(), part(kept(font->glyf), 12, 100)));
}


TEST(glyf_encode, leaves_the_bytes_before_and_behind)
{
	font_ptr font = font_of({hex("1111 2222"), triangle(), hex("3333 44")});
	unsigned long offset = 4;
	unsigned long size = triangle().size();
	glyph g(1);
	EXPECT_EQ(font->glyf->encode(&g, &offset, &size), 0);
	EXPECT_EQ(offset, 4u);
	EXPECT_EQ(size, 12u);
	EXPECT_EQ(kept(font->glyf), hex("1111 2222 0000 7fff 7fff 8000 8000 0000 3333 44"));
	// The length is exact, the buffer a multiple of 4.
	EXPECT_EQ(font->glyf->length, 19u);
	EXPECT_EQ(font->glyf->data[19], 0);
}


TEST(glyf_encode, changes_nothing_at_a_place_outside_the_table)
{
	font_ptr font = font_of({triangle()});
	const unsigned long places[][2] = {{25, 0}, {24, 1}, {0, 25}, {4, 0xFFFFFFFF}};
	for (auto [offset, size] : places) {
		unsigned long at = offset;
		unsigned long length = size;
		glyph g(0);
		EXPECT_EQ(font->glyf->encode(&g, &at, &length), 0);
		EXPECT_EQ(length, size);
		EXPECT_TRUE(same(triangle(), kept(font->glyf)));
	}
}


TEST(glyf_encode, writes_records_beyond_4096_bytes)
{
	// 2048 points, up and down by 1000: flags, a word of x each, no y.
	glyph g(0);
	for (int c = 0; c < 2; c++) {
		shape_ptr wide = row(1024);
		for (int i = 0; i < 1024; i++)
			wide->set(i, BPoint(i % 2 ? 1000.0f : 0, 0), 0);
		g.add_shape(wide.release());
	}
	octets record = encoded(g);
	// The first point takes no byte of x; every other one takes two.
	ASSERT_EQ(record.size(), 16u + 2048 + 2 * 2047);
	EXPECT_EQ(part(record, 0, 16), hex("0002 0000 0000 03e8 0000 03ff 07ff 0000"));
	EXPECT_EQ(part(record, record.size() - 4, 4), hex("fc18 03e8"));
	font_ptr font = font_of({record});
	EXPECT_EQ(contours(*decoded(*font, 0)), contours(g));
}


TEST(ttf_set_glyph, moves_the_places_of_the_glyphs_behind)
{
	font_ptr font = font_of({triangle(), hinted(), triangle()});
	ASSERT_EQ(hinted().size(), 20u);
	glyph g(1);
	g.add_shape(contour({{1, 0}, {2, 0}}).release());
	EXPECT_EQ(font->set_glyph(1, &g), 0);
	EXPECT_EQ(contours(*decoded(*font, 0)), "0,0 100,0 50,80");
	EXPECT_EQ(contours(*decoded(*font, 1)), "1,0 2,0");
	EXPECT_EQ(contours(*decoded(*font, 2)), "0,0 100,0 50,80");
}


TEST(ttf_set_glyph, gives_an_empty_glyph_a_record)
{
	font_ptr font = font_of({octets(), octets(), triangle()});
	glyph g(1);
	g.add_shape(contour({{1, 0}, {2, 0}}).release());
	EXPECT_EQ(font->set_glyph(1, &g), 0);
	EXPECT_EQ(contours(*decoded(*font, 0)), "");
	EXPECT_EQ(contours(*decoded(*font, 1)), "1,0 2,0");
	EXPECT_EQ(contours(*decoded(*font, 2)), "0,0 100,0 50,80");
}


TEST(ttf_set_glyph, answers_minus_1_for_an_index_that_is_no_glyphs)
{
	font_ptr font = font_of({triangle()});
	for (int index : {1, 65535, 65536, -1}) {
		glyph g(0);
		EXPECT_EQ(font->set_glyph(index, &g), -1) << index;
		EXPECT_TRUE(same(triangle(), kept(font->glyf)));
	}
}
