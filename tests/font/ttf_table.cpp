// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "font/ttf_table.h"

#include <InterfaceDefs.h>

#include <string_view>

#include <gtest/gtest.h>

#include "support/opened.h"

namespace {

// A generic table of tag "kern" with these contents, belonging to no font.
class raw_table : public ttf_table {
public:
	explicit raw_table(std::string_view digits) : raw_table(hex(digits)) {}
	explicit raw_table(const octets& contents)
		: ttf_table(nullptr, 0x6B65726E, buffer_of(contents), contents.size())
	{
	}
	octets padded() const { return octets(data, data + (length + 3) / 4 * 4); }
};

}


TEST(table, keeps_what_it_is_made_from)
{
	raw_table table("01 02 03 04 05");
	EXPECT_EQ(table.owner, nullptr);
	EXPECT_EQ(table.tag, 0x6B65726Eu);
	EXPECT_EQ(table.length, 5u);
	EXPECT_EQ(kept(&table), hex("01 02 03 04 05"));
}


TEST(table, is_a_view_named_table_that_follows_all_sides)
{
	raw_table table("00");
	EXPECT_STREQ(table.Name(), "table");
	EXPECT_EQ(table.Frame(), BRect(0, 0, 561, 511));
	EXPECT_EQ(table.ResizingMode(), uint32(B_FOLLOW_ALL_SIDES));
	EXPECT_EQ(table.Flags(), uint32(B_WILL_DRAW));
}


TEST(table, reads_big_endian)
{
	raw_table table("fe dc ba 98 76 54 32 10");
	EXPECT_EQ(table.u8(0), 0xFE);
	EXPECT_EQ(table.u16(0), 0xFEDC);
	EXPECT_EQ(table.s16(0), -292);
	EXPECT_EQ(table.u32(0), 0xFEDCBA98u);
	EXPECT_EQ(table.u64(0), 0xFEDCBA9876543210u);
}


TEST(table, reads_at_odd_places)
{
	raw_table table("00 01 02 03 04 05 06 07 08");
	EXPECT_EQ(table.u16(1), 0x0102);
	EXPECT_EQ(table.u32(3), 0x03040506u);
	EXPECT_EQ(table.u64(1), 0x0102030405060708u);
}


TEST(table, reads_up_to_its_last_octet)
{
	raw_table table("00 00 00 00 00 00 00 00 00 01 02 03 04 05 06 07 08");
	EXPECT_EQ(table.u8(16), 0x08);
	EXPECT_EQ(table.u16(15), 0x0708);
	EXPECT_EQ(table.u32(13), 0x05060708u);
	EXPECT_EQ(table.u64(9), 0x0102030405060708u);
}


TEST(table, reads_0_where_a_number_does_not_fit_whole)
{
	raw_table table("01 02 03 04 05 06 07 08 09");
	EXPECT_EQ(table.u8(9), 0);
	EXPECT_EQ(table.u16(8), 0);
	EXPECT_EQ(table.s16(8), 0);
	EXPECT_EQ(table.u32(6), 0u);
	EXPECT_EQ(table.u64(2), 0u);
}


TEST(table, reads_0_far_beyond_its_end)
{
	raw_table table("ff ff ff ff ff ff ff ff");
	for (unsigned long far : {0x7FFFFFFFul, 0x80000000ul, 0xFFFFFFFCul, 0xFFFFFFFFul}) {
		EXPECT_EQ(table.u8(far), 0) << far;
		EXPECT_EQ(table.u16(far), 0) << far;
		EXPECT_EQ(table.s16(far), 0) << far;
		EXPECT_EQ(table.u32(far), 0u) << far;
		EXPECT_EQ(table.u64(far), 0u) << far;
	}
}


TEST(table, an_empty_table_reads_0)
{
	raw_table table("");
	EXPECT_EQ(table.u8(0), 0);
	EXPECT_EQ(table.u64(0), 0u);
	EXPECT_EQ(table.sumB32(), 0u);
}


TEST(table, writes_big_endian)
{
	raw_table table("00 00 00 00 00 00 00 00 00 00 00 00 00 00 00");
	table.put16(0, 0x0102);
	table.put32(3, 0x03040506);
	table.put64(7, 0x0708090A0B0C0D0E);
	EXPECT_EQ(kept(&table), hex("0102 00 03040506 0708090a0b0c0d0e"));
}


TEST(table, does_not_write_a_number_that_does_not_fit_whole)
{
	raw_table table("01 02 03 04 05 06 07 08 09");
	table.put16(8, 0xEEEE);
	table.put32(6, 0xEEEEEEEE);
	table.put64(2, 0xEEEEEEEEEEEEEEEE);
	EXPECT_EQ(table.padded(), hex("01 02 03 04 05 06 07 08 09 00 00 00"));
}


TEST(table, does_not_write_far_beyond_its_end)
{
	raw_table table("01 02 03 04 05 06 07 08");
	for (unsigned long far : {8ul, 0x7FFFFFFFul, 0x80000000ul, 0xFFFFFFFCul, 0xFFFFFFFFul}) {
		table.put16(far, 0xEEEE);
		table.put32(far, 0xEEEEEEEE);
		table.put64(far, 0xEEEEEEEEEEEEEEEE);
	}
	EXPECT_EQ(kept(&table), hex("01 02 03 04 05 06 07 08"));
}


TEST(table_sum, is_that_of_its_big_endian_words)
{
	EXPECT_EQ(raw_table("01 02 03 04 10 20 30 40").sumB32(), 0x11223344u);
}


TEST(table_sum, leaves_the_last_1_to_3_octets_out)
{
	EXPECT_EQ(raw_table("00 00 00 07 ff").sumB32(), 7u);
	EXPECT_EQ(raw_table("00 00 00 07 ff ff").sumB32(), 7u);
	EXPECT_EQ(raw_table("00 00 00 07 ff ff ff").sumB32(), 7u);
	EXPECT_EQ(raw_table("00 00 00 07 ff ff ff ff").sumB32(), 6u);
}


TEST(table_sum, of_less_than_a_word_is_0)
{
	EXPECT_EQ(raw_table("ff ff ff").sumB32(), 0u);
}


TEST(table_sum, wraps_at_32_bits)
{
	EXPECT_EQ(raw_table("ff ff ff ff 00 00 00 03").sumB32(), 2u);
	EXPECT_EQ(raw_table("80 00 00 00 80 00 00 00").sumB32(), 0u);
}


TEST(table_sum, of_a_long_table_takes_every_word)
{
	octets contents = zeros(1 << 20);
	for (size_t at = 3; at < contents.size(); at += 4)
		contents[at] = 1;
	EXPECT_EQ(raw_table(contents).sumB32(), 262144u);
}


TEST(table_sum, of_any_number_of_full_words_wraps_rightly)
{
	EXPECT_EQ(raw_table(octets(4 * 256, 0xFF)).sumB32(), 0xFFFFFF00u);
	EXPECT_EQ(raw_table(octets(4 * 257, 0xFF)).sumB32(), 0xFFFFFEFFu);
	EXPECT_EQ(raw_table(octets(4 * 65537, 0xFF)).sumB32(), 0xFFFEFFFFu);
}


TEST(table_show, undoes_any_number_of_hides)
{
	raw_table table("00");
	table.Hide();
	table.Hide();
	table.Hide();
	table.show(true);
	EXPECT_FALSE(table.IsHidden());
	table.show(false);
	EXPECT_TRUE(table.IsHidden());
}


TEST(table_show, said_twice_is_undone_by_one_word)
{
	raw_table table("00");
	table.show(false);
	table.show(false);
	table.show(true);
	EXPECT_FALSE(table.IsHidden());
	table.show(true);
	table.show(false);
	EXPECT_TRUE(table.IsHidden());
}


TEST(table_show, ends_in_a_parent_that_is_hidden)
{
	BView parent(BRect(0, 0, 99, 99), "parent", B_FOLLOW_NONE, 0);
	raw_table table("00");
	parent.AddChild(&table);
	parent.Hide();
	table.show(false);
	table.show(true);
	EXPECT_TRUE(table.IsHidden());
	parent.Show();
	EXPECT_FALSE(table.IsHidden());
	parent.RemoveChild(&table);
}
