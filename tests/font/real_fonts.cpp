// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "font/ttf.h"
#include "support/expected_save.h"
#include "support/freetype_outlines.h"
#include "support/opened.h"
#include "support/real_font.h"
#include "support/sfnt.h"
#include "support/temp_files.h"
#include "support/time_zone.h"

// Fonts from other hands: many scripts (DejaVu), tables out of file order (Liberation), a cmap of
// a quarter of a mebibyte and vertical metrics (IPA), embedded bitmaps and a `mort` table (Konatu).
class real_font : public testing::TestWithParam<const char*> {
protected:
	void SetUp() override { read_real_font(GetParam(), file); }

	octets file;
};


INSTANTIATE_TEST_SUITE_P(installed, real_font,
	testing::Values("DejaVuSans.ttf", "LiberationSans-Regular.ttf", "ipag.ttf", "Konatu.ttf"),
	[](const auto& chosen) {
		std::string name = chosen.param;
		return name.substr(0, name.find_first_of("-."));
	});


// What two saves at different times may differ in, blanked: head's adjustment and dates, and the
// checksum of head, which sums the dates.
static octets
without_dates(const octets& file)
{
	octets blank = file;
	sfnt font(file);
	size_t head = font.entry("head").offset;
	put_be32(blank, head + 8, 0);
	for (size_t at = head + 20; at < head + 36; at += 4)
		put_be32(blank, at, 0);
	for (size_t i = 0; i < font.entries().size(); i++) {
		if (font.entries()[i].tag == "head")
			put_be32(blank, 12 + 16 * i + 4, 0);
	}
	return blank;
}


TEST_P(real_font, is_saved_as_the_rules_say)
{
	octets result = saved(*opened(file));
	EXPECT_TRUE(same(expected_save(file, modified_of(result)), result));
}


TEST_P(real_font, keeps_every_table_but_head_and_maxp_octet_for_octet)
{
	sfnt before(file);
	sfnt after(saved(*opened(file)));
	ASSERT_EQ(before.tags(), after.tags());
	for (const std::string& tag : before.tags()) {
		if (tag == "head" || tag == "maxp")
			continue;
		EXPECT_TRUE(same(before.table(tag), after.table(tag))) << tag;
	}
}


TEST_P(real_font, saved_again_at_another_time_differs_only_in_heads_dates)
{
	octets first, second;
	{
		time_zone here("UTC0");
		first = saved(*opened(file));
	}
	{
		// The same moment is another local time, and so another date.
		time_zone there("JST-9");
		second = saved(*opened(first));
	}
	EXPECT_NE(modified_of(first), modified_of(second));
	EXPECT_TRUE(same(without_dates(first), without_dates(second)));
}


// Konatu has no created date.
TEST_P(real_font, keeps_its_created_date_or_is_given_the_present)
{
	octets before = part(sfnt(file).table("head"), 20, 8);
	octets head = sfnt(saved(*opened(file))).table("head");
	octets present = part(head, 28, 8);
	EXPECT_EQ(part(head, 20, 8), before == zeros(8) ? present : before);
}


TEST_P(real_font, has_the_same_outlines_for_freetype)
{
	outline_comparison seen = compare_outlines(file, saved(*opened(file)));
	EXPECT_EQ(seen.difference, "");
	EXPECT_GT(seen.glyphs, 600);
	EXPECT_GT(seen.points, 10000);
}


TEST_P(real_font, lists_its_tables_in_the_order_of_its_directory)
{
	auto font = opened(file);
	int count = 32;
	unsigned long tags[32];
	ASSERT_EQ(font->get_tables(&count, tags), 0);
	ASSERT_EQ(size_t(count), sfnt(file).entries().size());
	for (int i = 0; i < count; i++)
		EXPECT_EQ(tags[i], be32(file, 12 + 16 * size_t(i))) << "table " << i;
}


TEST_P(real_font, lists_nothing_where_it_lists_too_much)
{
	auto font = opened(file);
	int count = int(sfnt(file).entries().size()) - 1;
	unsigned long tags[32] = {};
	int given = count;
	EXPECT_EQ(font->get_tables(&count, tags), -1);
	EXPECT_EQ(count, given);
	EXPECT_EQ(tags[0], 0u);
}
