// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Components, out of records and into them.
#include "outline/glyf_fixture.h"
#include "outline/shape.h"
#include "support/opened.h"

#include <gtest/gtest.h>


// Glyph 0 has these components, glyph 1 is the triangle, glyph 2 is empty and glyph 3 is glyph 1
// alone.
static font_ptr
font_with_composite(std::string_view components)
{
	return font_of(
		{composite_of(components), triangle(), octets(), composite_of("0000 0001 0a 14")});
}


static std::string
first_component(std::string_view components)
{
	font_ptr font = font_with_composite(components);
	glyph_ptr made = decoded(*font, 0);
	EXPECT_TRUE(made->complete());
	EXPECT_EQ(made->num_compo, 1);
	return component(*made, 0);
}


// The record of a glyph of one component, without its header.
static octets
part_of_record(
	short dx, short dy, unsigned short a, unsigned short b, unsigned short c, unsigned short d)
{
	glyph g(0);
	g.add_compo(new glyph(0x123), dx, dy, a, b, c, d);
	return part(encoded(g), 10, 100);
}


TEST(glyf_decode_composite, reads_two_words_as_offsets)
{
	EXPECT_EQ(first_component("0001 0001 00c8 fed4"), "1: 200 -300 4000 0000 0000 4000");
}


TEST(glyf_decode_composite, reads_two_signed_bytes_as_offsets)
{
	EXPECT_EQ(first_component("0000 0001 80 7f"), "1: -128 127 4000 0000 0000 4000");
}


TEST(glyf_decode_composite, takes_the_arguments_for_offsets_whatever_bit_2_says)
{
	EXPECT_EQ(first_component("0002 0001 05 06"), "1: 5 6 4000 0000 0000 4000");
	EXPECT_EQ(first_component("0000 0001 05 06"), "1: 5 6 4000 0000 0000 4000");
}


TEST(glyf_decode_composite, reads_one_scale_for_both_axes)
{
	EXPECT_EQ(first_component("0008 0001 05 06 c000"), "1: 5 6 c000 0000 0000 c000");
}


TEST(glyf_decode_composite, reads_a_scale_for_each_axis)
{
	EXPECT_EQ(first_component("0040 0001 05 06 c000 2000"), "1: 5 6 c000 0000 0000 2000");
}


TEST(glyf_decode_composite, reads_a_matrix_in_its_order)
{
	EXPECT_EQ(first_component("0080 0001 05 06 1111 2222 3333 4444"), "1: 5 6 1111 2222 3333 4444");
}


TEST(glyf_decode_composite, reads_the_smallest_matrix_that_the_flags_name)
{
	EXPECT_EQ(first_component("00c8 0001 05 06 1111 2222 3333 4444"), "1: 5 6 1111 0000 0000 1111");
	EXPECT_EQ(first_component("00c0 0001 05 06 1111 2222 3333 4444"), "1: 5 6 1111 0000 0000 2222");
}


TEST(glyf_decode_composite, reads_on_while_more_components_follow)
{
	font_ptr font = font_with_composite("0020 0001 01 02 0021 0002 0100 0200 0000 0001 03 04");
	glyph_ptr made = decoded(*font, 0);
	ASSERT_EQ(made->num_compo, 3);
	EXPECT_EQ(component(*made, 0), "1: 1 2 4000 0000 0000 4000");
	EXPECT_EQ(component(*made, 1), "2: 256 512 4000 0000 0000 4000");
	EXPECT_EQ(component(*made, 2), "1: 3 4 4000 0000 0000 4000");
	EXPECT_TRUE(made->complete());
}


TEST(glyf_decode_composite, is_any_record_of_fewer_than_0_contours)
{
	octets record = composite_of("0000 0001 05 06");
	put_be16(record, 0, 0x8000);
	font_ptr font = font_of({record, triangle()});
	EXPECT_EQ(contours(*decoded(*font, 0)), "5,6 105,6 55,86");
}


TEST(glyf_decode_composite, flattens_into_contours_with_frames)
{
	font_ptr font = font_with_composite("0020 0001 05 06 0000 0001 ff fe");
	glyph_ptr made = decoded(*font, 0);
	EXPECT_EQ(contours(*made), "5,6 105,6 55,86 | -1,-2 99,-2 49,78");
	EXPECT_EQ(made->shapes[0]->frame, BRect(5, 6, 105, 86));
	EXPECT_EQ(dots(*made->shapes[2]), "5,6 105,6 105,86 5,86");
}


TEST(glyf_decode_composite, counts_the_depth_upward)
{
	font_ptr font = font_with_composite("0000 0003 01 02");
	glyph_ptr made = decoded(*font, 0);
	EXPECT_EQ(made->depth, 0);
	ASSERT_EQ(made->num_compo, 1);
	EXPECT_EQ(made->compo[0]->depth, 1);
	ASSERT_EQ(made->compo[0]->num_compo, 1);
	EXPECT_EQ(made->compo[0]->compo[0]->depth, 2);
	EXPECT_EQ(contours(*made), "11,22 111,22 61,102");
}


TEST(glyf_decode_composite, keeps_an_empty_component)
{
	font_ptr font = font_with_composite("0000 0002 05 06");
	glyph_ptr made = decoded(*font, 0);
	ASSERT_EQ(made->num_compo, 1);
	EXPECT_EQ(made->compo[0]->gid, 2);
	EXPECT_EQ(made->num_shape, 0);
	EXPECT_TRUE(made->complete());
}


TEST(glyf_decode_composite, drops_an_index_that_is_no_glyphs)
{
	for (const char* index :
		{"0020 0004 01 02 0000 0001 05 06", "0020 ffff 01 02 0000 0001 05 06"}) {
		font_ptr font = font_with_composite(index);
		glyph_ptr made = decoded(*font, 0);
		ASSERT_EQ(made->num_compo, 1);
		EXPECT_EQ(component(*made, 0), "1: 5 6 4000 0000 0000 4000");
		EXPECT_FALSE(made->complete());
	}
}


TEST(glyf_decode_composite, drops_a_component_without_a_place)
{
	font_ptr font = font_with(composite_of("0000 0002 01 02"), hex("00000000 0000000e"), 3);
	glyph_ptr made = decoded(*font, 0);
	EXPECT_EQ(made->num_compo, 0);
	EXPECT_FALSE(made->complete());
}


TEST(glyf_decode_composite, drops_the_eighth_component)
{
	std::string eight;
	for (int i = 0; i < 7; i++)
		eight += "0020 0001 01 02 ";
	font_ptr font = font_with_composite(eight + "0000 0003 01 02");
	glyph_ptr made = decoded(*font, 0);
	ASSERT_EQ(made->num_compo, 7);
	EXPECT_EQ(made->compo[6]->gid, 1);
	EXPECT_EQ(made->num_shape, 7);
	EXPECT_FALSE(made->complete());
}


TEST(glyf_decode_composite, keeps_seven_components_whole)
{
	std::string seven;
	for (int i = 0; i < 6; i++)
		seven += "0020 0001 01 02 ";
	font_ptr font = font_with_composite(seven + "0000 0003 01 02");
	glyph_ptr made = decoded(*font, 0);
	ASSERT_EQ(made->num_compo, 7);
	EXPECT_EQ(made->compo[6]->gid, 3);
	EXPECT_TRUE(made->complete());
}


TEST(glyf_decode_composite, passes_over_instructions)
{
	EXPECT_EQ(first_component("0100 0001 05 06 0003 b00102 00"), "1: 5 6 4000 0000 0000 4000");
	EXPECT_EQ(first_component("0100 0001 05 06 ffff"), "1: 5 6 4000 0000 0000 4000");
}


TEST(glyf_encode_composite, writes_the_box_of_the_contours_and_minus_1)
{
	font_ptr font = font_with_composite("0020 0001 05 06 0000 0001 0a 14");
	EXPECT_EQ(encoded(*decoded(*font, 0)),
		hex("ffff 0005 0006 006e 0064 0020 0001 05 06 0000 0001 0a 14"));
}


// The box starts from a right and a bottom above 0, which nothing negative lowers.
TEST(glyf_encode_composite, writes_no_right_and_top_below_0)
{
	font_ptr font = font_with_composite("0001 0001 fed4 fe0c");
	EXPECT_EQ(part(encoded(*decoded(*font, 0)), 0, 10), hex("ffff fed4 fe0c 0000 0000"));
}


TEST(glyf_encode_composite, clamps_its_box)
{
	glyph g(0);
	glyph_ptr wide = std::make_unique<glyph>(1);
	wide->add_shape(contour({{-40000.5f, -32768}, {40000.5f, 32767}, {7.9f, -7.9f}}).release());
	add_part(g, std::move(wide));
	g.create_composhape();
	EXPECT_EQ(part(encoded(g), 0, 10), hex("ffff 8000 8000 7fff 7fff"));
}


TEST(glyf_encode_composite, truncates_its_box_toward_zero)
{
	glyph g(0);
	glyph_ptr some = std::make_unique<glyph>(1);
	some->add_shape(contour({{-10.7f, -0.9f}, {20.9f, 0.9f}}).release());
	add_part(g, std::move(some));
	g.create_composhape();
	EXPECT_EQ(part(encoded(g), 0, 10), hex("ffff fff6 0000 0014 0000"));
}


TEST(glyf_encode_composite, without_any_outline_has_its_left_and_bottom_at_32767)
{
	font_ptr font = font_with_composite("0000 0002 05 06");
	EXPECT_EQ(encoded(*decoded(*font, 0)), hex("ffff 7fff 7fff 0000 0000 0000 0002 05 06"));
}


TEST(glyf_encode_composite, writes_offsets_of_a_byte_as_bytes)
{
	EXPECT_EQ(part_of_record(-128, 127, 0x4000, 0, 0, 0x4000), hex("0000 0123 80 7f"));
	EXPECT_EQ(part_of_record(127, -128, 0x4000, 0, 0, 0x4000), hex("0000 0123 7f 80"));
}


TEST(glyf_encode_composite, writes_both_offsets_as_words_when_one_needs_it)
{
	EXPECT_EQ(part_of_record(200, 0, 0x4000, 0, 0, 0x4000), hex("0001 0123 00c8 0000"));
	EXPECT_EQ(part_of_record(0, 128, 0x4000, 0, 0, 0x4000), hex("0001 0123 0000 0080"));
	EXPECT_EQ(part_of_record(-129, 0, 0x4000, 0, 0, 0x4000), hex("0001 0123 ff7f 0000"));
	EXPECT_EQ(part_of_record(0, -129, 0x4000, 0, 0, 0x4000), hex("0001 0123 0000 ff7f"));
}


TEST(glyf_encode_composite, writes_the_shortest_matrix)
{
	EXPECT_EQ(part_of_record(1, 2, 0x4000, 0, 0, 0x4000), hex("0000 0123 01 02"));
	EXPECT_EQ(part_of_record(1, 2, 0x2000, 0, 0, 0x2000), hex("0008 0123 01 02 2000"));
	EXPECT_EQ(part_of_record(1, 2, 0x4000, 0, 0, 0xC000), hex("0040 0123 01 02 4000 c000"));
	EXPECT_EQ(
		part_of_record(1, 2, 0x4000, 1, 0, 0x4000), hex("0080 0123 01 02 4000 0001 0000 4000"));
	EXPECT_EQ(part_of_record(1, 2, 0x2000, 0, 0xFFFF, 0x1000),
		hex("0080 0123 01 02 2000 0000 ffff 1000"));
}


TEST(glyf_encode_composite, says_that_more_follow_but_for_the_last)
{
	glyph g(0);
	g.add_compo(new glyph(7), 1, 2, 0x4000, 0, 0, 0x4000);
	g.add_compo(new glyph(8), 1, 200, 0x2000, 0, 0, 0x2000);
	g.add_compo(new glyph(9), 3, 4, 0x4000, 0, 0, 0x4000);
	EXPECT_EQ(
		part(encoded(g), 10, 100), hex("0020 0007 01 02 0029 0008 0001 00c8 2000 0000 0009 03 04"));
}


TEST(glyf_encode_composite, writes_no_other_flag_of_the_old_record)
{
	// Offsets rounded to the grid, instructions, the component's own metrics, and bit 2.
	font_ptr font = font_with_composite("0306 0001 05 06 0002 b001");
	EXPECT_EQ(font->set_glyph(0, decoded(*font, 0).get()), 0);
	EXPECT_EQ(part(kept(font->glyf), 0, 16), hex("ffff 0005 0006 0069 0056 0000 0001 05 06"));
	EXPECT_EQ(contours(*decoded(*font, 1)), "0,0 100,0 50,80");
}


TEST(glyf_encode_composite, carries_no_instructions_over_from_a_simple_record)
{
	glyph g(0);
	g.add_compo(new glyph(7), 1, 2, 0x4000, 0, 0, 0x4000);
	octets old = hex("0001 0005 0006 0005 0006 0000 0003 b00102 37 05 06");
	EXPECT_EQ(part(encoded(g, old), 10, 100), hex("0000 0007 01 02"));
}


TEST(glyf_encode_composite, is_read_back_the_same)
{
	font_ptr font = font_with_composite(
		"0021 0001 00c8 fed4 0060 0003 05 06 c000 4000 0080 0001 01 02 0000 4000 c000 0000");
	glyph_ptr before = decoded(*font, 0);
	ASSERT_EQ(font->set_glyph(0, before.get()), 0);
	glyph_ptr after = decoded(*font, 0);
	ASSERT_EQ(after->num_compo, 3);
	for (int k = 0; k < 3; k++)
		EXPECT_EQ(component(*after, k), component(*before, k));
	EXPECT_EQ(
		contours(*after), "200,-300 300,-300 250,-220 | -5,26 -105,26 -55,106 | 1,2 1,-98 81,-48");
}
