// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The limits in maxp that are counted anew before every save.
#include "font/ttf_head.h"
#include "font/ttf_loca.h"
#include "font/ttf_maxp.h"
#include "outline/glyf_fixture.h"
#include "support/font_file.h"
#include "support/opened.h"
#include "support/recount.h"
#include "support/sfnt.h"

#include <gtest/gtest.h>

// Before any count: limits far too high, and values that are not counted.
static constexpr std::string_view high = "00010000 0000 7001 7002 7003 7004"
										 "0005 0006 0007 0008 0009 000a 000b 700c 700d";


static octets
with_glyphs(std::string_view maxp, size_t glyphs)
{
	octets table = hex(maxp);
	put_be16(table, 4, uint16_t(glyphs));
	return table;
}


// What update() makes of maxp for these records.
static octets
counted(const std::vector<octets>& records, const octets& maxp)
{
	font_ptr font = font_of(records);
	delete[] font->maxp->data;
	font->maxp->data = buffer_of(maxp);
	font->maxp->length = uint32_t(maxp.size());
	font->maxp->update();
	return kept(font->maxp);
}


// The six limits of it: points, contours, the same in composites, components, depth.
static octets
limits(const std::vector<octets>& records)
{
	octets table = counted(records, with_glyphs(high, records.size()));
	octets six = part(table, 6, 8);
	octets last = part(table, 28, 4);
	six.insert(six.end(), last.begin(), last.end());
	return six;
}


// A simple record of one point in each but the last contour, as far as statistics look at it.
static octets
simple(uint16_t contours, uint16_t points)
{
	octets record = zeros(10 + 2 * size_t(contours) + 2);
	put_be16(record, 0, contours);
	for (uint16_t i = 0; i < contours; i++)
		put_be16(record, 10 + 2 * size_t(i), i);
	put_be16(record, 8 + 2 * size_t(contours), uint16_t(points - 1));
	return record;
}


TEST(maxp_update, finds_the_most_points_and_the_most_contours_of_simple_glyphs)
{
	EXPECT_EQ(limits({simple(2, 90), octets(), simple(5, 7), simple(1, 3)}),
		hex("005a 0005 0000 0000 0000 0000"));
}


TEST(maxp_update, sets_the_limits_of_composites_to_0_where_all_glyphs_are_simple)
{
	EXPECT_EQ(limits({triangle()}), hex("0003 0001 0000 0000 0000 0000"));
}


TEST(maxp_update, finds_the_most_of_everything_of_composites)
{
	octets three = composite_of("0020 0000 00 00 0020 0000 00 00 0000 0000 00 00");
	octets big = composite_of("0000 0001 00 00");
	octets deep = composite_of("0000 0004 00 00");
	EXPECT_EQ(
		limits({simple(1, 3), simple(9, 100), three, big, composite_of("0000 0000 00 00"), deep}),
		hex("0064 0009 0064 0009 0003 0002"));
}


TEST(maxp_update, counts_composites_apart_from_simple_glyphs)
{
	octets twice = composite_of("0020 0000 00 00 0000 0000 00 00");
	EXPECT_EQ(limits({simple(4, 50), twice}), hex("0032 0004 0064 0008 0002 0001"));
}


TEST(maxp_update, begins_from_0_each_time)
{
	font_ptr font = font_of({triangle(), simple(3, 20)});
	font->maxp->update();
	EXPECT_EQ(part(kept(font->maxp), 6, 4), hex("0014 0003"));
	ASSERT_EQ(font->set_glyph(1, decoded(*font, 0).get()), 0);
	font->maxp->update();
	EXPECT_EQ(part(kept(font->maxp), 6, 4), hex("0003 0001"));
}


TEST(maxp_update, keeps_all_limits_at_0_without_glyphs)
{
	EXPECT_EQ(limits({}), zeros(12));
}


TEST(maxp_update, counts_only_as_many_glyphs_as_there_are)
{
	octets table = counted({triangle(), simple(3, 20)}, with_glyphs(high, 1));
	EXPECT_EQ(part(table, 6, 4), hex("0003 0001"));
}


TEST(maxp_update, leaves_the_other_fields_alone)
{
	EXPECT_EQ(counted({triangle()}, with_glyphs(high, 1)),
		hex("00010000 0001 0003 0001 0000 0000"
			"0005 0006 0007 0008 0009 000a 000b 0000 0000"));
}


TEST(maxp_update, takes_the_points_of_a_record_without_contours_from_its_top)
{
	EXPECT_EQ(limits({hex("0000 0000 0000 0000 0123 0000")}), hex("0124 0000 0000 0000 0000 0000"));
}


TEST(maxp_update, of_a_table_of_6_octets_writes_nothing)
{
	EXPECT_EQ(counted({triangle()}, hex("00005000 0001")), hex("00005000 0001"));
}


TEST(maxp_update, of_any_length_writes_only_whole_fields_inside)
{
	octets whole = with_glyphs(high, 1);
	octets after = counted({triangle()}, whole);
	for (size_t length = 6; length <= whole.size(); length++) {
		octets table = counted({triangle()}, part(whole, 0, length));
		octets expected = part(after, 0, length / 2 * 2);
		if (length % 2 != 0)
			expected.push_back(whole[length - 1]);
		EXPECT_EQ(table, expected) << length;
	}
}


TEST(maxp_update, without_glyf_or_loca_or_head_finds_nothing)
{
	for (const char* tag : {"glyf", "loca", "head"}) {
		font_ptr font = opened(tiny_font().without(tag));
		font->maxp->update();
		EXPECT_EQ(part(kept(font->maxp), 6, 8), zeros(8)) << tag;
	}
}


TEST(maxp_update, goes_before_every_save)
{
	font_ptr font = opened(tiny_font().with("maxp", with_glyphs(high, 2)));
	octets maxp = sfnt(saved(*font)).table("maxp");
	EXPECT_EQ(part(maxp, 6, 8), hex("0003 0001 0000 0000"));
	EXPECT_EQ(part(maxp, 28, 4), zeros(4));
}


TEST(maxp_update, lets_the_depth_of_1_of_a_new_font_become_0)
{
	octets new_maxp = hex("00010000 0001 0000 0000 0000 0000"
						  "0001 0000 0000 0000 0000 0000 0000 0000 0001");
	EXPECT_EQ(part(counted({octets()}, new_maxp), 28, 4), hex("0000 0000"));
}


// Loops, empty components and what is cut, by a count that shares no code.
TEST(maxp_update, agrees_with_an_independent_count_of_damaged_glyphs)
{
	std::vector<octets> records = {composite_of("0020 0001 00 00 0000 0000 00 00"),
		composite_of("0020 0002 00 00 0000 0001 00 00"), simple(3, 30), octets(),
		composite_of("0020 0003 00 00 0028 0002 00 00 0011 0000 00ff 00 00"),
		composite_of("0020 0001 00 00 00a1 0002 0000")};
	font_ptr font = font_of(records);
	octets before = kept(font->maxp);
	font->maxp->update();
	EXPECT_EQ(
		kept(font->maxp), recounted(before, kept(font->glyf), kept(font->loca), kept(font->head)));
}
