// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "font/panel.h"

#include <gtest/gtest.h>

#include "font/ttf_table.h"
#include "support/opened.h"
#include <TextControl.h>

namespace {

class any_table : public ttf_table {
public:
	explicit any_table(const octets& contents)
		: ttf_table(nullptr, 'any ', buffer_of(contents), contents.size())
	{
	}
};


// A field with this text in it.
class text_field : public BTextControl {
public:
	explicit text_field(const char* text)
		: BTextControl(BRect(0, 0, 99, 20), "field", nullptr, text, nullptr)
	{
	}
};


std::string
text_of(std::string_view digits, uint16 offset, uint8 size)
{
	return field_text(any_table(hex(digits)), {"label", offset, size});
}


// What the text says; fails the test when it is no number.
int64
number_in(const char* text)
{
	text_field field(text);
	int64 value = 0;
	EXPECT_TRUE(read_hex(&field, &value)) << text;
	return value;
}

}


TEST(panel_read_hex, takes_digits_of_either_case)
{
	EXPECT_EQ(number_in("1A"), 0x1A);
	EXPECT_EQ(number_in("1a"), 0x1A);
	EXPECT_EQ(number_in("0"), 0);
	EXPECT_EQ(number_in("ffffffff"), 0xFFFFFFFF);
	EXPECT_EQ(number_in("0000001a"), 0x1A);
}


TEST(panel_read_hex, takes_the_number_that_a_text_begins_with)
{
	EXPECT_EQ(number_in("  7"), 7);
	EXPECT_EQ(number_in("0x1f"), 0x1F);
	EXPECT_EQ(number_in("12zz"), 0x12);
	EXPECT_EQ(number_in("12 34"), 0x12);
}


TEST(panel_read_hex, takes_numbers_of_more_than_32_bits_for_what_they_are)
{
	EXPECT_EQ(number_in("100000000"), 4294967296);
	EXPECT_EQ(number_in("100000001"), 4294967297);
	EXPECT_EQ(number_in("fffffffffffffff5"), INT64_MAX);
	EXPECT_EQ(number_in("10000000000000005"), INT64_MAX);
	EXPECT_EQ(number_in("0000000000000000000000005"), 5);
}


TEST(panel_read_hex, takes_a_sign)
{
	EXPECT_EQ(number_in("-1"), -1);
	EXPECT_EQ(number_in(" -5"), -5);
	EXPECT_EQ(number_in("-0x1f"), -31);
	EXPECT_EQ(number_in("+1f"), 31);
	EXPECT_EQ(number_in("-100000001"), -4294967297);
}


TEST(panel_read_hex, refuses_what_is_no_number_and_leaves_the_value_alone)
{
	for (const char* text : {"", " ", "zz", "z1", "-", "g", "あ", "."}) {
		text_field field(text);
		int64 value = 5;
		EXPECT_FALSE(read_hex(&field, &value)) << text;
		EXPECT_EQ(value, 5) << text;
	}
}


TEST(panel_show_hex, writes_as_many_digits_as_it_is_told)
{
	text_field field("");
	show_hex(&field, 0x1A, 8);
	EXPECT_STREQ(field.Text(), "0000001a");
	show_hex(&field, 0x1A, 4);
	EXPECT_STREQ(field.Text(), "001a");
	show_hex(&field, 0x1A, 2);
	EXPECT_STREQ(field.Text(), "1a");
	show_hex(&field, 0, 4);
	EXPECT_STREQ(field.Text(), "0000");
}


TEST(panel_show_hex, never_cuts_a_number)
{
	text_field field("");
	show_hex(&field, 0x12345, 4);
	EXPECT_STREQ(field.Text(), "12345");
	show_hex(&field, 0xFFFFFFFF, 2);
	EXPECT_STREQ(field.Text(), "ffffffff");
}


TEST(panel_field_text, has_two_digits_for_each_octet)
{
	std::string_view digits = "0001 8000 0000 00ab ffff ffff";
	EXPECT_EQ(text_of(digits, 0, 2), "0001");
	EXPECT_EQ(text_of(digits, 2, 2), "8000");
	EXPECT_EQ(text_of(digits, 4, 4), "000000ab");
	EXPECT_EQ(text_of(digits, 8, 4), "ffffffff");
	EXPECT_EQ(text_of(digits, 0, 8), "00018000000000ab");
	EXPECT_EQ(text_of(digits, 4, 8), "000000abffffffff");
}


TEST(panel_field_text, is_empty_where_the_table_is_too_short)
{
	EXPECT_EQ(text_of("0102", 0, 2), "0102");
	EXPECT_EQ(text_of("01", 0, 2), "");
	EXPECT_EQ(text_of("", 0, 2), "");
	EXPECT_EQ(text_of("010203", 0, 4), "");
	EXPECT_EQ(text_of("01020304", 0, 4), "01020304");
	EXPECT_EQ(text_of("01020304", 2, 4), "");
	EXPECT_EQ(text_of("01020304 050607", 0, 8), "");
	EXPECT_EQ(text_of("0102", 0xFFFF, 8), "");
}


TEST(panel_field_text, does_not_take_padding_for_contents)
{
	EXPECT_EQ(text_of("0102 03", 2, 2), "");
}


TEST(panel_rows_fill, asks_for_rows_without_gap_or_overlap)
{
	static constexpr panel_field right[] = {{"a", 0, 4}, {"b", 4, 2}, {"c", 6, 8}};
	static constexpr panel_field gap[] = {{"a", 0, 4}, {"b", 6, 2}};
	static constexpr panel_field overlap[] = {{"a", 0, 4}, {"b", 2, 2}};
	static constexpr panel_field late[] = {{"a", 2, 2}};
	EXPECT_TRUE(rows_fill(right, 14));
	EXPECT_FALSE(rows_fill(right, 13));
	EXPECT_FALSE(rows_fill(right, 16));
	EXPECT_FALSE(rows_fill(gap, 8));
	EXPECT_FALSE(rows_fill(overlap, 4));
	EXPECT_FALSE(rows_fill(late, 4));
}
