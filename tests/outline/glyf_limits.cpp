// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Records that ask for more than there is room for, or than ever ends.
#include "font/glyph_info.h"
#include "outline/font_outlines.h"
#include "outline/glyf_fixture.h"
#include "outline/shape.h"
#include "support/opened.h"

#include <gtest/gtest.h>


// A component record of that index at (0, 0), with bytes.
static octets
reference(uint16_t index, bool more = false)
{
	octets record = hex("0000 0000 00 00");
	put_be16(record, 0, more ? 0x20 : 0);
	put_be16(record, 2, index);
	return record;
}


// So many composites, each of the next one so many times; the last glyph is the given record.
static font_ptr
chain(uint16_t depth, int times, const octets& last)
{
	std::vector<octets> records;
	for (uint16_t i = 0; i < depth; i++) {
		octets record = composite_of("");
		for (int k = 0; k < times; k++) {
			octets next = reference(uint16_t(i + 1), k + 1 < times);
			record.insert(record.end(), next.begin(), next.end());
		}
		records.push_back(record);
	}
	records.push_back(last);
	return font_of(records);
}


TEST(glyf_limits, a_composite_of_itself_stops_at_the_repetition)
{
	font_ptr font = font_of({composite_of("0020 0000 00 00 0000 0001 05 06"), triangle()});
	glyph_ptr made = decoded(*font, 0);
	EXPECT_EQ(contours(*made), "5,6 105,6 55,86");
	EXPECT_EQ(made->num_compo, 1);
	EXPECT_FALSE(made->complete());
	EXPECT_EQ(info(*font, 0), (numbers{1, 2, 1, 3}));
}


TEST(glyf_limits, composites_of_each_other_stop_at_the_repetition)
{
	font_ptr font = font_of({composite_of("0000 0001 00 00"), composite_of("0000 0000 00 00")});
	glyph_ptr made = decoded(*font, 0);
	ASSERT_EQ(made->num_compo, 1);
	EXPECT_EQ(made->compo[0]->num_compo, 0);
	EXPECT_FALSE(made->complete());
	EXPECT_EQ(info(*font, 0), (numbers{2, 1, 0, 0}));
}


TEST(glyf_limits, a_component_twice_beside_itself_is_no_repetition)
{
	font_ptr font = font_of({composite_of("0020 0001 00 00 0000 0001 05 06"), triangle()});
	EXPECT_TRUE(decoded(*font, 0)->complete());
	EXPECT_EQ(info(*font, 0), (numbers{1, 2, 2, 6}));
}


TEST(glyf_limits, thirty_two_levels_are_read)
{
	font_ptr font = chain(32, 1, triangle());
	glyph_ptr made = decoded(*font, 0);
	EXPECT_TRUE(made->complete());
	EXPECT_EQ(contours(*made), "0,0 100,0 50,80");
	EXPECT_EQ(info(*font, 0), (numbers{32, 1, 1, 3}));
}


TEST(glyf_limits, thirty_three_levels_are_not)
{
	font_ptr font = chain(33, 1, triangle());
	glyph_ptr made = decoded(*font, 0);
	EXPECT_FALSE(made->complete());
	EXPECT_EQ(made->num_shape, 0);
	EXPECT_EQ(info(*font, 0), (numbers{33, 1, 0, 0}));
}


TEST(glyf_limits, a_thousand_levels_end_early)
{
	font_ptr font = chain(1000, 1, triangle());
	EXPECT_FALSE(decoded(*font, 0)->complete());
	EXPECT_EQ(info(*font, 0), (numbers{33, 1, 0, 0}));
	EXPECT_EQ(info(*font, 999), (numbers{1, 1, 1, 3}));
	EXPECT_EQ(font->glyph_infos().size(), 1001u);
}


// A walk of all of it would not end before the next year.
TEST(glyf_limits, a_doubling_tree_30_deep_is_counted_as_far_as_65536_components)
{
	font_ptr font = chain(30, 2, octets());
	EXPECT_EQ(info(*font, 0), (numbers{30, 1, 0, 0}));
	EXPECT_EQ(info(*font, 16), (numbers{14, 2, 0, 0}));
}


TEST(glyf_limits, a_doubling_tree_is_counted_whole_where_each_glyph_is_counted_once)
{
	font_ptr font = chain(30, 2, triangle());
	std::vector<glyph_info> all = font->glyph_infos();
	ASSERT_EQ(all.size(), 31u);
	EXPECT_EQ(all[0].depth, 30);
	EXPECT_EQ(all[0].components, 2);
	EXPECT_EQ(all[20].depth, 10);
	EXPECT_EQ(all[20].contours, 1024);
	EXPECT_EQ(all[20].points, 3072);
}


// One contour of so many points, (1, 0) (2, 0) and on.
static octets
long_record(uint16_t points)
{
	octets record = hex("0001 0000 0000 0000 0000 0000 0000");
	put_be16(record, 10, uint16_t(points - 1));
	record.resize(14 + points, 0x33);
	record.resize(14 + 2 * size_t(points), 1);
	return record;
}


TEST(glyf_limits, contours_of_1024_points_are_whole)
{
	font_ptr font = font_of({long_record(1024)});
	glyph_ptr made = decoded(*font, 0);
	EXPECT_TRUE(made->complete());
	ASSERT_EQ(made->num_shape, 1);
	EXPECT_EQ(made->shapes[0]->num, 1024);
}


TEST(glyf_limits, contours_of_1025_points_lose_the_last)
{
	font_ptr font = font_of({long_record(1025)});
	glyph_ptr made = decoded(*font, 0);
	EXPECT_FALSE(made->complete());
	ASSERT_EQ(made->num_shape, 1);
	EXPECT_EQ(made->shapes[0]->num, 1024);
	EXPECT_EQ(made->shapes[0]->pts[1023], BPoint(1024, 0));
	EXPECT_EQ(info(*font, 0), (numbers{0, 0, 1, 1025}));
}


TEST(glyf_limits, a_contour_behind_one_too_long_has_its_own_points)
{
	octets record = long_record(1026);
	record.insert(record.begin() + 10, {0x04, 0x00});
	put_be16(record, 0, 2);
	font_ptr font = font_of({record});
	glyph_ptr made = decoded(*font, 0);
	EXPECT_FALSE(made->complete());
	ASSERT_EQ(made->num_shape, 2);
	EXPECT_EQ(dots(*made->shapes[1]), "1026,0");
}


// So many contours of one point.
static octets
many_contours(uint16_t count)
{
	octets record = hex("0000 0000 0000 0000 0000");
	put_be16(record, 0, count);
	record.resize(10 + 2 * size_t(count) + 2);
	for (uint16_t i = 0; i < count; i++)
		put_be16(record, 10 + 2 * size_t(i), i);
	record.resize(record.size() + count, 0x33);
	record.resize(record.size() + count, 1);
	return record;
}


TEST(glyf_limits, all_of_512_contours_are_read)
{
	font_ptr font = font_of({many_contours(512)});
	glyph_ptr made = decoded(*font, 0);
	EXPECT_TRUE(made->complete());
	EXPECT_EQ(made->num_shape, 512);
	EXPECT_EQ(encoded(*made).size(), 2060u);
}


TEST(glyf_limits, contours_beyond_512_are_left_out)
{
	font_ptr font = font_of({many_contours(2000)});
	glyph_ptr made = decoded(*font, 0);
	EXPECT_FALSE(made->complete());
	ASSERT_EQ(made->num_shape, 512);
	EXPECT_EQ(dots(*made->shapes[511]), "512,0");
	EXPECT_EQ(info(*font, 0), (numbers{0, 0, 2000, 2000}));
}


TEST(glyf_limits, flattened_contours_leave_room_for_the_frames)
{
	font_ptr font = font_of({composite_of("0020 0001 00 00 0000 0001 00 00"), many_contours(300)});
	glyph_ptr made = decoded(*font, 0);
	EXPECT_EQ(made->num_compo, 2);
	EXPECT_EQ(made->num_shape, 510);
	EXPECT_FALSE(made->complete());
}


TEST(glyf_limits, a_component_that_is_not_all_there_makes_the_whole_partial)
{
	font_ptr font = font_of(
		{composite_of("0000 0001 00 00"), composite_of("0000 0002 00 00"), long_record(1025)});
	EXPECT_FALSE(decoded(*font, 0)->complete());
}


TEST(glyf_limits, a_glyph_is_whole_again_without_the_component_that_is_not_all_there)
{
	font_ptr font =
		font_of({composite_of("0020 0001 00 00 0000 0002 00 00"), long_record(1025), triangle()});
	glyph_ptr made = decoded(*font, 0);
	EXPECT_FALSE(made->complete());
	made->del_compo(0);
	EXPECT_TRUE(made->complete());
}


TEST(glyf_limits, a_record_of_many_kibibytes_is_written_whole)
{
	glyph g(0);
	for (int i = 0; i < 5; i++) {
		shape_ptr long_one = row(1024);
		for (int k = 0; k < 1024; k++)
			long_one->pts[k] = BPoint(k % 2 ? 300 : -300, k % 3 ? 400 : -400);
		g.add_shape(long_one.release());
	}
	font_ptr font = font_of({triangle(), octets(), triangle()});
	ASSERT_EQ(font->set_glyph(1, &g), 0);
	EXPECT_GT(font->glyf->length, 16384u);
	EXPECT_TRUE(same_contours(*decoded(*font, 1), g));
	EXPECT_EQ(contours(*decoded(*font, 0)), "0,0 100,0 50,80");
	EXPECT_EQ(contours(*decoded(*font, 2)), "0,0 100,0 50,80");
}
