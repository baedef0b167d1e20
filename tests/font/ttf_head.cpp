// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "font/ttf_head.h"

#include <algorithm>
#include <ctime>

#include <gtest/gtest.h>

#include "support/font_file.h"
#include "support/opened.h"
#include "support/time_zone.h"

// The same moment in any zone: 1904-01-01 00:00 UTC was this long before 1970.
static constexpr int64_t to_1904_utc = 2082844800;

static octets
whole_head()
{
	return tiny_font().table("head");
}


// A right head table, but for the octets from `at` on; cut to `length`.
static octets
head_with(size_t at, std::string_view digits, size_t length = 54)
{
	octets contents = whole_head();
	octets changed = hex(digits);
	std::copy(changed.begin(), changed.end(), contents.begin() + ptrdiff_t(at));
	return part(contents, 0, length);
}


namespace {

class head_table : public ttf_head {
public:
	explicit head_table(const octets& contents)
		: ttf_head(nullptr, buffer_of(contents), contents.size())
	{
	}
	octets padded() const { return octets(data, data + (length + 3) / 4 * 4); }
};

}


TEST(head, knows_its_tag_and_keeps_its_octets)
{
	head_table head(whole_head());
	EXPECT_EQ(head.tag, 0x68656164u);
	EXPECT_EQ(kept(&head), whole_head());
}


TEST(head, bounds_are_upside_down_with_yMax_as_top)
{
	head_table head(head_with(36, "ff38 fed4 03e8 0320"));
	EXPECT_EQ(head.bounds().left, -200.0f);
	EXPECT_EQ(head.bounds().top, 800.0f);
	EXPECT_EQ(head.bounds().right, 1000.0f);
	EXPECT_EQ(head.bounds().bottom, -300.0f);
}


TEST(head, bounds_reach_the_ends_of_16_bits)
{
	head_table head(head_with(36, "8000 8000 7fff 7fff"));
	EXPECT_EQ(head.bounds().left, -32768.0f);
	EXPECT_EQ(head.bounds().top, 32767.0f);
	EXPECT_EQ(head.bounds().right, 32767.0f);
	EXPECT_EQ(head.bounds().bottom, -32768.0f);
}


TEST(head, unitsperem_is_unsigned)
{
	EXPECT_EQ(head_table(head_with(18, "0800")).unitsperem(), 2048);
	EXPECT_EQ(head_table(head_with(18, "ffff")).unitsperem(), 65535);
}


TEST(head, only_the_format_1_means_long_offsets)
{
	EXPECT_TRUE(head_table(head_with(50, "0001")).is32loca());
	EXPECT_FALSE(head_table(head_with(50, "0000")).is32loca());
	EXPECT_FALSE(head_table(head_with(50, "0002")).is32loca());
	EXPECT_FALSE(head_table(head_with(50, "0100")).is32loca());
	EXPECT_FALSE(head_table(head_with(50, "0101")).is32loca());
	EXPECT_FALSE(head_table(head_with(50, "ffff")).is32loca());
}


TEST(head_setsum, stores_the_difference_least_significant_octet_first)
{
	head_table head(whole_head());
	head.setsum(0);
	EXPECT_EQ(part(kept(&head), 8, 4), hex("ba af b0 b1"));
	head.setsum(1);
	EXPECT_EQ(part(kept(&head), 8, 4), hex("b9 af b0 b1"));
	head.setsum(0xB1B0AFBB);
	EXPECT_EQ(part(kept(&head), 8, 4), hex("ff ff ff ff"));
}


TEST(head_setsum, of_the_magic_number_itself_clears_the_field)
{
	head_table head(whole_head());
	head.setsum(0xB1B0AFBA);
	EXPECT_EQ(part(kept(&head), 8, 4), hex("00 00 00 00"));
}


TEST(head_setsum, takes_its_sum_modulo_32_bits)
{
	head_table head(whole_head());
	head.setsum(0xFFFFFFFFB1B0AFB9);
	EXPECT_EQ(part(kept(&head), 8, 4), hex("01 00 00 00"));
}


TEST(head_setsum, touches_nothing_else)
{
	head_table head(whole_head());
	head.setsum(0);
	EXPECT_EQ(kept(&head), head_with(8, "ba af b0 b1"));
}


TEST(head_setsum, needs_the_whole_field)
{
	head_table eleven(part(whole_head(), 0, 11));
	eleven.setsum(0);
	EXPECT_EQ(eleven.padded(), hex("00010000 00010000 12345600"));
	head_table twelve(part(whole_head(), 0, 12));
	twelve.setsum(0);
	EXPECT_EQ(twelve.padded(), hex("00010000 00010000 baafb0b1"));
}


// How far the local midnight that starts 1904 lies before 1970 in UTC, in seconds.
struct zone_case {
	const char* zone;
	int64_t seconds;
};

class head_dates : public testing::TestWithParam<zone_case> {};

TEST_P(head_dates, count_from_local_1904_without_daylight_saving)
{
	time_zone zone(GetParam().zone);
	head_table head(head_with(20, "0000000000000000 0000000000000000"));
	int64_t before = time(nullptr);
	head.update();
	int64_t after = time(nullptr);
	EXPECT_GE(head.u32(32), before + GetParam().seconds);
	EXPECT_LE(head.u32(32), after + GetParam().seconds);
	EXPECT_EQ(head.u32(24), head.u32(32));
}


INSTANTIATE_TEST_SUITE_P(zones, head_dates,
	testing::Values(zone_case{"UTC0", 2082844800}, zone_case{"JST-9", 2082877200},
		zone_case{"IST-5:30", 2082864600}, zone_case{"EST5EDT,M3.2.0,M11.1.0", 2082826800},
		// Summer there: with daylight saving the year would start an hour earlier.
		zone_case{"AEST-10AEDT,M10.1.0,M4.1.0/3", 2082880800}));


TEST(head_update, counts_from_the_epoch_of_the_zone_it_was_made_in)
{
	time_zone made("UTC0");
	head_table head(whole_head());
	time_zone moved("JST-9");
	int64_t before = time(nullptr);
	head.update();
	EXPECT_GE(head.u32(32), before + to_1904_utc);
	EXPECT_LE(head.u32(32), time(nullptr) + to_1904_utc);
}


TEST(head_update, stamps_a_created_date_of_eight_zeros)
{
	time_zone zone("UTC0");
	head_table head(head_with(20, "00000000 00000000"));
	int64_t before = time(nullptr);
	head.update();
	EXPECT_EQ(head.u32(20), 0u);
	EXPECT_GE(head.u32(24), before + to_1904_utc);
	EXPECT_LE(head.u32(24), time(nullptr) + to_1904_utc);
}


TEST(head_update, keeps_a_created_date)
{
	head_table head(head_with(20, "00000000 c0000000"));
	head.update();
	EXPECT_EQ(part(kept(&head), 20, 8), hex("00000000 c0000000"));
}


TEST(head_update, keeps_a_created_date_with_only_its_upper_half_set)
{
	head_table head(head_with(20, "00000001 00000000"));
	head.update();
	EXPECT_EQ(part(kept(&head), 20, 8), hex("00000001 00000000"));
	head_table highest(head_with(20, "80000000 00000000"));
	highest.update();
	EXPECT_EQ(part(kept(&highest), 20, 8), hex("80000000 00000000"));
}


TEST(head_update, keeps_a_created_date_with_only_its_last_octet_set)
{
	head_table head(head_with(20, "00000000 00000001"));
	head.update();
	EXPECT_EQ(part(kept(&head), 20, 8), hex("00000000 00000001"));
}


TEST(head_update, does_not_change_the_created_date_it_stamped)
{
	time_zone before("UTC0");
	head_table first(head_with(20, "00000000 00000000"));
	first.update();
	octets stamped = kept(&first);
	time_zone later("JST-9");
	head_table second(stamped);
	second.update();
	EXPECT_EQ(part(kept(&second), 20, 8), part(stamped, 20, 8));
	EXPECT_NE(part(kept(&second), 28, 8), part(stamped, 28, 8));
}


TEST(head_update, writes_the_upper_half_of_the_modified_date_as_0)
{
	head_table head(head_with(28, "ffffffff ffffffff"));
	head.update();
	EXPECT_EQ(head.u32(28), 0u);
	EXPECT_NE(head.u32(32), 0xFFFFFFFFu);
}


TEST(head_update, touches_nothing_but_the_dates)
{
	head_table head(head_with(20, "00000000 00000000"));
	head.update();
	EXPECT_EQ(part(kept(&head), 0, 20), part(whole_head(), 0, 20));
	EXPECT_EQ(part(kept(&head), 36, 18), part(whole_head(), 36, 18));
}


TEST(short_head, of_27_octets_is_not_stamped)
{
	octets contents = head_with(20, "00000000 00000000", 27);
	head_table head(contents);
	head.update();
	EXPECT_EQ(kept(&head), contents);
	EXPECT_EQ(head.padded().back(), 0);
}


TEST(short_head, of_28_octets_gets_its_created_date)
{
	time_zone zone("UTC0");
	head_table head(head_with(20, "00000000 00000000", 28));
	int64_t before = time(nullptr);
	head.update();
	EXPECT_GE(head.u32(24), before + to_1904_utc);
}


TEST(short_head, of_35_octets_keeps_its_piece_of_a_modified_date)
{
	octets contents = head_with(28, "11223344 556677", 35);
	head_table head(contents);
	head.update();
	EXPECT_EQ(kept(&head), contents);
	EXPECT_EQ(head.padded().back(), 0);
}


TEST(short_head, of_36_octets_gets_its_modified_date)
{
	time_zone zone("UTC0");
	head_table head(head_with(28, "11223344 55667788", 36));
	int64_t before = time(nullptr);
	head.update();
	EXPECT_EQ(head.u32(28), 0u);
	EXPECT_GE(head.u32(32), before + to_1904_utc);
}


TEST(short_head, of_any_length_is_never_written_past_its_end)
{
	for (size_t length = 0; length <= 54; length++) {
		head_table head(head_with(20, "00000000 00000000", length));
		head.update();
		head.setsum(0x12345678);
		octets padding = part(head.padded(), length, 3);
		EXPECT_EQ(head.length, length);
		EXPECT_EQ(padding, zeros(padding.size())) << "length " << length;
	}
}


TEST(short_head, answers_0_for_what_lies_past_its_end)
{
	head_table head(part(whole_head(), 0, 19));
	EXPECT_EQ(head.unitsperem(), 0);
	EXPECT_FALSE(head.is32loca());
	EXPECT_EQ(head.bounds().left, 0.0f);
	EXPECT_EQ(head.bounds().top, 0.0f);
	EXPECT_EQ(head.bounds().right, 0.0f);
	EXPECT_EQ(head.bounds().bottom, 0.0f);
}


TEST(short_head, of_51_octets_has_short_offsets)
{
	EXPECT_FALSE(head_table(part(whole_head(), 0, 51)).is32loca());
	EXPECT_TRUE(head_table(part(whole_head(), 0, 52)).is32loca());
}
