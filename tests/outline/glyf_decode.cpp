// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Simple records into contours.
#include "outline/glyf_fixture.h"
#include "outline/shape.h"
#include "support/opened.h"

#include <gtest/gtest.h>


// The contours of a record that is alone in its table.
static std::string
read(std::string_view record)
{
	font_ptr font = font_of({hex(record)});
	glyph_ptr made = decoded(*font, 0);
	EXPECT_TRUE(made->complete());
	return contours(*made);
}


TEST(glyf, knows_its_tag_its_name_and_its_place)
{
	ttf font;
	ttf_glyf table(&font, buffer_of(triangle()), 24);
	EXPECT_EQ(table.tag, 0x676C7966u);
	EXPECT_STREQ(table.Name(), "table");
	EXPECT_EQ(table.Frame(), BRect(0, 0, 561, 511));
}


TEST(glyf, of_a_new_font_is_empty_with_a_buffer)
{
	ttf font;
	ttf_glyf table(&font, nullptr, 0);
	EXPECT_EQ(table.length, 0u);
	EXPECT_NE(table.data, nullptr);
}


TEST(glyf_decode, reads_the_points_of_a_contour)
{
	EXPECT_EQ(contours(*decoded(*font_of({triangle()}), 0)), "0,0 100,0 50,80");
}


TEST(glyf_decode, answers_0_and_does_nothing_for_a_length_of_0)
{
	font_ptr font = font_of({triangle()});
	glyph made(0);
	EXPECT_EQ(font->glyf->decode(0, 0, &made), 0);
	EXPECT_EQ(made.num_shape, 0);
	EXPECT_TRUE(made.complete());
}


TEST(glyf_decode, reads_on_where_the_length_says_less)
{
	font_ptr font = font_of({triangle()});
	glyph made(0);
	EXPECT_EQ(font->glyf->decode(0, 1, &made), 0);
	EXPECT_EQ(contours(made), "0,0 100,0 50,80");
}


TEST(glyf_decode, starts_at_its_offset)
{
	font_ptr font = font_of({hex("dead beef"), triangle()});
	glyph made(1);
	EXPECT_EQ(font->glyf->decode(4, 22, &made), 0);
	EXPECT_EQ(contours(made), "0,0 100,0 50,80");
}


TEST(glyf_decode, does_not_look_at_the_stored_box)
{
	font_ptr font = font_of({hex("0001 7fff 8000 1234 ffff 0000 0000 37 05 06 00")});
	glyph_ptr made = decoded(*font, 0);
	EXPECT_EQ(contours(*made), "5,6");
	EXPECT_EQ(made->shapes[0]->frame, BRect(5, 6, 5, 6));
}


TEST(glyf_decode, skips_the_instructions)
{
	EXPECT_EQ(read("0001 0000 0000 0000 0000 0000 0003 b00100 37 05 06 00"), "5,6");
}


TEST(glyf_decode, repeats_a_flag_exactly_so_many_times_more)
{
	// 9 and a count of 2 are three points, the fourth is off the curve.
	EXPECT_EQ(read("0001 0000 0000 0000 0000 0003 0000 39 02 32 01 00"), "0,0 0,0 0,0 1,0*");
}


TEST(glyf_decode, repeats_a_flag_not_at_all_for_a_count_of_0)
{
	EXPECT_EQ(read("0001 0000 0000 0000 0000 0001 0000 39 00 32 01 00"), "0,0 1,0*");
}


TEST(glyf_decode, ends_a_repeat_with_the_last_point)
{
	EXPECT_EQ(read("0001 0000 0000 0000 0000 0001 0000 3b ff 05 05 00"), "5,0 10,0");
}


TEST(glyf_decode, reads_steps_of_x_in_their_four_forms)
{
	EXPECT_EQ(read("0001 0000 0000 0000 0000 0003 0000 21 23 33 31 fed4 ff fe"),
		"-300,0 -555,0 -301,0 -301,0");
}


TEST(glyf_decode, reads_steps_of_y_in_their_four_forms)
{
	EXPECT_EQ(read("0001 0000 0000 0000 0000 0003 0000 11 15 35 31 fed4 ff fe"),
		"0,-300 0,-555 0,-301 0,-301");
}


TEST(glyf_decode, reads_all_x_before_the_first_y)
{
	EXPECT_EQ(read("0001 0000 0000 0000 0000 0001 0000 37 37 01 02 0a 14"), "1,10 3,30");
}


TEST(glyf_decode, takes_no_notice_of_the_two_spare_bits_of_a_flag)
{
	EXPECT_EQ(read("0001 0000 0000 0000 0000 0000 0000 f7 05 06 00"), "5,6");
}


TEST(glyf_decode, marks_a_first_point_off_the_curve_with_1)
{
	font_ptr font = font_of({hex("0001 0000 0000 0000 0000 0001 0000 36 37 05 01 06 01 00")});
	glyph_ptr made = decoded(*font, 0);
	ASSERT_EQ(made->num_shape, 1);
	EXPECT_EQ(made->shapes[0]->onoff[0], 1);
	EXPECT_EQ(made->shapes[0]->onoff[1], 0);
}


TEST(glyf_decode, sums_on_from_one_contour_to_the_next)
{
	EXPECT_EQ(read("0002 0000 0000 0000 0000 0000 0002 0000 37 37 37 05 05 05 01 01 01"),
		"5,1 | 10,2 15,3");
}


TEST(glyf_decode, sums_beyond_16_bits)
{
	EXPECT_EQ(read("0001 0000 0000 0000 0000 0001 0000 21 21 7fff 7fff"), "32767,0 65534,0");
}


TEST(glyf_decode, finds_the_frame_of_each_contour)
{
	font_ptr font = font_of({triangle()});
	glyph_ptr made = decoded(*font, 0);
	EXPECT_EQ(made->shapes[0]->frame, BRect(0, 0, 100, 80));
	EXPECT_EQ(made->shapes[0]->num, 3);
	EXPECT_EQ(made->shapes[0]->sel, 0);
}


TEST(glyf_decode, appends_to_the_contours_that_are_there)
{
	font_ptr font = font_of({triangle()});
	glyph_ptr made = squares(1);
	EXPECT_EQ(font->get_glyph(0, made.get()), 0);
	EXPECT_EQ(made->num_shape, 2);
	EXPECT_EQ(dots(*made->shapes[0]), "0,0 5,0 5,5 0,5");
	EXPECT_EQ(dots(*made->shapes[1]), "0,0 100,0 50,80");
}


TEST(glyf_decode, of_a_record_without_contours_adds_none)
{
	EXPECT_EQ(read("0000 0000 0000 0000 0000 0000"), "");
}


TEST(ttf_get_glyph, leaves_the_glyph_untouched_for_an_empty_record)
{
	font_ptr font = font_of({octets(), triangle()});
	glyph_ptr made = squares(1);
	EXPECT_EQ(font->get_glyph(0, made.get()), 0);
	EXPECT_EQ(contours(*made), "0,0 5,0 5,5 0,5");
}


TEST(ttf_get_glyph, answers_minus_1_for_an_index_that_is_no_glyphs)
{
	font_ptr font = font_of({triangle()});
	glyph made(0);
	for (int index : {1, 65535, 65536, -1}) {
		EXPECT_EQ(font->get_glyph(index, &made), -1) << index;
		EXPECT_EQ(made.num_shape, 0);
	}
}


TEST(ttf_get_glyph, answers_minus_1_for_a_glyph_without_a_place)
{
	font_ptr font = font_with(triangle(), hex("00000000 00000016"), 3);
	glyph made(2);
	EXPECT_EQ(font->get_glyph(2, &made), -1);
	EXPECT_EQ(made.num_shape, 0);
}
