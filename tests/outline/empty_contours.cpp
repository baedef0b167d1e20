// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Contours without points: kept as they are, and in nobody's way.
#include "outline/font_outlines.h"
#include "outline/glyf_fixture.h"
#include "outline/shape.h"
#include "support/opened.h"

#include <gtest/gtest.h>

// Contours of 3, 0 and 1 points.
static constexpr std::string_view hole_in_the_middle =
	"0003 0000 0000 000a 0014 0002 0002 0003 0000 37 37 37 37 01 02 03 04 05 06 07 08";


// What the contours of a record hold, as numbers of points.
static std::vector<int>
counts(const glyph& of)
{
	std::vector<int> points;
	for (int i = 0; i < of.num_shape; i++)
		points.push_back(of.shapes[i]->num);
	return points;
}


// The record is whole, holds so many points in its contours, and is written back octet by octet.
static void
expect_kept(const octets& record, const std::vector<int>& points)
{
	font_ptr font = font_of({record, triangle()});
	glyph_ptr made = decoded(*font, 0);
	EXPECT_TRUE(made->complete());
	EXPECT_EQ(counts(*made), points);
	ASSERT_EQ(font->set_glyph(0, made.get()), 0);
	EXPECT_EQ(part(kept(font->glyf), 10, record.size() - 10), part(record, 10, record.size() - 10));
	EXPECT_TRUE(same_contours(*decoded(*font, 0), *made));
	EXPECT_TRUE(decoded(*font, 0)->complete());
}


// Squares of side 5 from (0, 0) and (10, 0), an empty contour between them.
static glyph_ptr
with_an_empty_one()
{
	glyph_ptr made = std::make_unique<glyph>(0);
	made->add_shape(box(0, 0, 5, 5).release());
	made->add_shape(row(0).release());
	made->add_shape(box(10, 0, 15, 5).release());
	return made;
}


TEST(empty_contour, is_kept_wherever_it_stands)
{
	expect_kept(hex(hole_in_the_middle), {3, 0, 1});
	expect_kept(hex("0002 0001 0001 0001 0001 0000 0000 0000 37 01 01 00"), {1, 0});
	expect_kept(hex("0003 0001 0001 0001 0001 ffff ffff 0000 0000 37 01 01 00"), {0, 0, 1});
}


TEST(empty_contour, is_kept_where_there_is_no_other)
{
	expect_kept(hex("0001 7fff 7fff 8000 8000 ffff 0000"), {0});
	expect_kept(hex("0002 7fff 7fff 8000 8000 ffff ffff 0000"), {0, 0});
	expect_kept(hex("0001 7fff 7fff 8000 8000 ffff 0003 aabbcc 00"), {0});
}


TEST(empty_contour, of_a_composite_does_not_make_that_partial)
{
	font_ptr font = font_of({composite_of("0000 0001 05 00"), hex(hole_in_the_middle)});
	glyph_ptr made = decoded(*font, 0);
	EXPECT_TRUE(made->complete());
	EXPECT_EQ(counts(*made), (std::vector<int>{3, 0, 1}));
}


TEST(empty_contour, is_not_one_whose_points_are_missing)
{
	font_ptr font = font_of({hex("0002 0000 0000 0000 0000 0002 0003 0000 37 37 37 37 01 02 03 04 "
								 "05 06 07")});
	glyph_ptr made = decoded(*font, 0);
	EXPECT_FALSE(made->complete());
	EXPECT_EQ(counts(*made), (std::vector<int>{3}));
}


TEST(empty_contour, is_not_one_that_ends_before_it_starts)
{
	font_ptr font = font_of({hex("0002 0000 0000 0000 0000 0002 0001 0000 37 37 37 37 37 37")});
	EXPECT_FALSE(decoded(*font, 0)->complete());
	font = font_of({hex("0002 0000 0000 0000 0000 0000 ffff 0000 37 01 01")});
	EXPECT_FALSE(decoded(*font, 0)->complete());
}


// 65,536 points that are all there, written as repeats.
TEST(empty_contour, is_not_one_of_65536_points)
{
	octets record = hex("0001 0000 0000 0000 0000 ffff 0000");
	for (int i = 0; i < 256; i++)
		record.insert(record.end(), {0x39, 0xFF});
	font_ptr font = font_of({record});
	glyph_ptr made = decoded(*font, 0);
	EXPECT_FALSE(made->complete());
	EXPECT_EQ(counts(*made), std::vector<int>{1024});
}


TEST(empty_contour, is_not_hit_by_a_rectangle_anywhere)
{
	glyph_ptr made = with_an_empty_one();
	EXPECT_TRUE(made->sel_check(BRect(-100, -100, 100, 100)));
	EXPECT_EQ(selection(*made), "-1 0 -1");
	made->sel_none();
	EXPECT_TRUE(made->sel_check(BRect(0, 0, 2, 2)));
	EXPECT_EQ(selection(*made), "-1 0 0");
	made->sel_none();
	EXPECT_FALSE(made->sel_check(BRect(-3, -3, -1, -1)));
}


TEST(empty_contour, is_not_hit_by_a_point_even_when_keys_selected_it)
{
	glyph_ptr made = with_an_empty_one();
	select(*made, {0, -1, 0});
	for (BPoint at : {BPoint(0, 0), BPoint(-1, -1), BPoint(-0.5F, -0.5F)})
		EXPECT_EQ(made->sel_check(at, 4), 0) << at;
	EXPECT_EQ(selection(*made), "0 -1 0");
}


TEST(empty_contour, is_edited_like_any_other)
{
	glyph_ptr made = with_an_empty_one();
	select(*made, {0, -1, 0});
	made->move_sel(BPoint(3, 3));
	made->rev_sel();
	made->tgl_sel();
	made->copy_sel(BPoint(1, 1));
	EXPECT_EQ(counts(*made), (std::vector<int>{4, 0, 4, 0}));
	EXPECT_EQ(selection(*made), "0 0 0 -1");
	made->sel_to_bot();
	EXPECT_EQ(counts(*made), (std::vector<int>{0, 4, 0, 4}));
	made->del_sel();
	EXPECT_EQ(counts(*made), (std::vector<int>{4, 0, 4}));
	EXPECT_EQ(contours(*made), "0,0 5,0 5,5 0,5 |  | 10,0 15,0 15,5 10,5");
}


TEST(empty_contour, has_no_point_to_insert_at_or_to_delete)
{
	shape_ptr none = row(0);
	none->sel = 1;
	none->armed = 1;
	none->inspoint(BPoint(1, 1));
	EXPECT_EQ(none->num, 0);
	none->move(BPoint(1, 1));
	none->tglpoint();
	EXPECT_EQ(none->num, 0);
	EXPECT_FALSE(none->delpoint());
	EXPECT_EQ(none->num, 0);
}


TEST(empty_contour, goes_over_the_clipboard)
{
	prepare_clipboard();
	glyph_ptr made = with_an_empty_one();
	select(*made, {-1, -1, 0});
	made->copy();
	made->paste();
	EXPECT_EQ(counts(*made), (std::vector<int>{4, 0, 4, 4, 0}));
	prepare_clipboard();
}


TEST(empty_contour, counts_for_no_box)
{
	glyph made(0);
	made.add_shape(box(20, 30, 40, 50).release());
	made.add_shape(row(0).release());
	EXPECT_EQ(made.bounds(), BRect(20, 30, 40, 50));
	made.trans(BRect(0, 0, 9, 9), BRect(0, 0, 19, 19));
	EXPECT_EQ(made.bounds(), BRect(40, 60, 80, 100));
	octets record = encoded(made);
	EXPECT_EQ(part(record, 0, 10), hex("0002 0028 003c 0050 0064"));
}


TEST(empty_contour, of_a_component_counts_for_no_box_of_the_composite)
{
	glyph made(0);
	glyph_ptr part_of_it = std::make_unique<glyph>(1);
	part_of_it->add_shape(row(0).release());
	part_of_it->add_shape(box(20, 30, 40, 50).release());
	add_part(made, std::move(part_of_it));
	made.create_composhape();
	EXPECT_EQ(part(encoded(made), 0, 10), hex("ffff 0014 001e 0028 0032"));
}


TEST(empty_contour, leaves_no_trace_when_it_is_drawn)
{
	paper sheet(20, 20);
	const std::string blank = sheet.picture();
	shape_ptr none = row(0);
	none->sel = -1;
	none->draw(&sheet.view, 0);
	none->drawframe(&sheet.view, 3);
	EXPECT_EQ(sheet.picture(), blank);
}


TEST(empty_contour, may_stand_in_every_slot)
{
	octets record = zeros(10 + 2 * 600 + 2);
	put_be16(record, 0, 600);
	for (size_t i = 0; i < 600; i++)
		put_be16(record, 10 + 2 * i, 0xFFFF);
	font_ptr font = font_of({record});
	glyph_ptr made = decoded(*font, 0);
	EXPECT_FALSE(made->complete());
	EXPECT_EQ(made->num_shape, 512);
	put_be16(record, 0, 512);
	record.resize(10 + 2 * 512);
	record.resize(record.size() + 2);
	EXPECT_TRUE(decoded(*font_of({record}), 0)->complete());
}
