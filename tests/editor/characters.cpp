// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "font/characters.h"

#include <gtest/gtest.h>


// The first character's code; -1 where there is none.
static int
first_of(const char* text)
{
	uint16 code = 0x1234;
	if (first_character(text, &code))
		return code;
	EXPECT_EQ(code, 0x1234) << "stored without a character";
	return -1;
}


TEST(first_character, is_read_from_one_two_or_three_octets)
{
	EXPECT_EQ(first_of("A"), 0x41);
	EXPECT_EQ(first_of("\x7F"), 0x7F);
	EXPECT_EQ(first_of("\xC3\xA9"), 0xE9);
	EXPECT_EQ(first_of("\xDF\xBF"), 0x7FF);
	EXPECT_EQ(first_of("\xE0\xA0\x80"), 0x800);
	EXPECT_EQ(first_of("\xE3\x81\x82"), 0x3042);
	EXPECT_EQ(first_of("\xE9\x80\x80"), 0x9000);
	EXPECT_EQ(first_of("\xEF\xBF\xBD"), 0xFFFD);
}


TEST(first_character, takes_no_notice_of_what_follows)
{
	EXPECT_EQ(first_of("AB"), 0x41);
	EXPECT_EQ(first_of("\xC3\xA9t\xC3\xA9"), 0xE9);
	EXPECT_EQ(first_of("A\xFF"), 0x41);
}


TEST(first_character, of_an_empty_text_there_is_none)
{
	EXPECT_EQ(first_of(""), -1);
}


TEST(first_character, beyond_16_bits_there_is_none)
{
	EXPECT_EQ(first_of("\xF0\x9F\x98\x80"), -1);
}


TEST(first_character, of_damaged_utf8_there_is_none)
{
	EXPECT_EQ(first_of("\xC3"), -1);
	EXPECT_EQ(first_of("\xC3 A"), -1);
	EXPECT_EQ(first_of("\xE3\x81"), -1);
	EXPECT_EQ(first_of("\xE3"), -1);
	EXPECT_EQ(first_of("\xA9"), -1);
	EXPECT_EQ(first_of("\xFF"), -1);
}


TEST(utf8_of, a_code_is_one_two_or_three_octets)
{
	EXPECT_EQ(utf8_of(0x41), "A");
	EXPECT_EQ(utf8_of(0x7F), "\x7F");
	EXPECT_EQ(utf8_of(0x80), "\xC2\x80");
	EXPECT_EQ(utf8_of(0xE9), "\xC3\xA9");
	EXPECT_EQ(utf8_of(0x7FF), "\xDF\xBF");
	EXPECT_EQ(utf8_of(0x800), "\xE0\xA0\x80");
	EXPECT_EQ(utf8_of(0x3042), "\xE3\x81\x82");
	EXPECT_EQ(utf8_of(0x9000), "\xE9\x80\x80");
	EXPECT_EQ(utf8_of(0xFFFD), "\xEF\xBF\xBD");
}


TEST(utf8_of, no_character_and_what_no_text_can_hold_are_empty)
{
	EXPECT_EQ(utf8_of(0xFFFF), "");
	EXPECT_EQ(utf8_of(0), "");
	EXPECT_EQ(utf8_of(0xD800), "");
	EXPECT_EQ(utf8_of(0xDFFF), "");
	EXPECT_EQ(utf8_of(0xD7FF), "\xED\x9F\xBF");
	EXPECT_EQ(utf8_of(0xE000), "\xEE\x80\x80");
}
