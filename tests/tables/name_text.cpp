// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Texts of name in a field, and what is stored after an edit.
#include "tables/name_text.h"

#include <gtest/gtest.h>

#include "support/octets.h"

// What a field shows of a text stored so.
static std::string
shown(name_encoding encoding, std::string_view stored)
{
	return name_for_field(encoding, hex(stored));
}


// What is stored when the field's text has become this.
static octets
edited(name_encoding encoding, std::string_view stored, const std::string& text)
{
	const std::string made = edited_name(encoding, hex(stored), text);
	return octets(made.begin(), made.end());
}


TEST(name_for_field, gives_the_whole_text)
{
	EXPECT_EQ(name_for_field(name_raw, octets(65535, 'x')), std::string(65535, 'x'));
	std::string expected;
	octets stored;
	for (int i = 0; i < 32767; i++) {
		expected += "日";
		stored.insert(stored.end(), {0x65, 0xE5});
	}
	EXPECT_EQ(name_for_field(name_unicode, stored), expected);
	// Half a Japanese byte each, three in UTF-8.
	EXPECT_EQ(name_for_field(name_shift_jis, octets(65535, 0xB1)).size(), 3u * 65535);
}


TEST(name_for_field, gives_bytes_that_are_not_utf8_as_they_are)
{
	EXPECT_EQ(shown(name_raw, "a9 32 ff"),
		"\xA9"
		"2\xFF");
}


TEST(name_for_field, gives_a_nul_as_two_bytes_that_utf8_never_has)
{
	EXPECT_EQ(shown(name_raw, "0041 0042"),
		"\xC0\x80"
		"A\xC0\x80"
		"B");
	EXPECT_EQ(shown(name_unicode, "0041 0000 0042"),
		"A\xC0\x80"
		"B");
}


TEST(edited_name, stays_as_it_is_when_nothing_was_edited)
{
	// Half pairs, an odd byte; broken Shift-JIS and a character that has two codes; any byte.
	const struct {
		name_encoding encoding;
		std::string_view stored;
	} cases[] = {{name_unicode, "d83d 0041 de00 0000 001a 00"},
		{name_shift_jis, "41 ff 93 20 fa5b 81"}, {name_raw, "00 a9 c080 e3 00"}, {name_raw, ""},
		{name_unicode, "00"}};
	for (const auto& each : cases)
		EXPECT_EQ(
			edited(each.encoding, each.stored, shown(each.encoding, each.stored)), hex(each.stored))
			<< each.stored;
}


TEST(edited_name, keeps_the_bytes_beside_an_edit)
{
	EXPECT_EQ(edited(name_raw, "a9 20 32 30 30 37", "\xA9 2008"), hex("a9 20 32 30 30 38"));
	EXPECT_EQ(edited(name_unicode, "d83d 0041 0042 de00",
				  "\x1A"
				  "Ax\x1A"),
		hex("d83d 0041 0078 de00"));
	EXPECT_EQ(edited(name_unicode, "d83d 0041",
				  "\x1A"
				  "Aé日"),
		hex("d83d 0041 00e9 65e5"));
	EXPECT_EQ(edited(name_unicode, "0041 de00", "😀A\x1A"), hex("d83d de00 0041 de00"));
	// The numero sign of another code than the one that is written for it, twice.
	EXPECT_EQ(shown(name_shift_jis, "fa59 41 8782"), "№A№");
	EXPECT_EQ(edited(name_shift_jis, "fa59 41 fa59", "№B№"), hex("fa59 42 fa59"));
}


TEST(edited_name, replaces_whole_characters)
{
	// Their first or last byte in UTF-8 is the same.
	EXPECT_EQ(edited(name_unicode, "0041 00e9 0042", "AèB"), hex("0041 00e8 0042"));
	EXPECT_EQ(edited(name_unicode, "00e9", "Щ"), hex("0429"));
	EXPECT_EQ(edited(name_unicode, "3042 3044", "いあ"), hex("3044 3042"));
	EXPECT_EQ(edited(name_unicode, "d83d de00", "😁"), hex("d83d de01"));
	EXPECT_EQ(edited(name_shift_jis, "82a0 82a2", "あ"), hex("82a0"));
	EXPECT_EQ(edited(name_shift_jis, "82a0", "ああ"), hex("82a0 82a0"));
}


TEST(edited_name, takes_a_text_that_has_nothing_of_the_old_one)
{
	EXPECT_EQ(edited(name_unicode, "d83d 0041", "xyz"), hex("0078 0079 007a"));
	EXPECT_EQ(edited(name_unicode, "", "xyz"), hex("0078 0079 007a"));
	EXPECT_EQ(edited(name_unicode, "0041 0042", ""), octets());
	EXPECT_EQ(edited(name_raw, "0041", "x"), hex("78"));
}


TEST(edited_name, gives_a_nul_back)
{
	EXPECT_EQ(edited(name_raw, "0041 0042",
				  "\xC0\x80"
				  "A\xC0\x80"
				  "C"),
		hex("0041 0043"));
	EXPECT_EQ(edited(name_unicode, "0041 0000", "x\xC0\x80"), hex("0078 0000"));
	// Copied into a new record.
	EXPECT_EQ(edited(name_raw, "",
				  "\xC0\x80"
				  "A"),
		hex("0041"));
}


TEST(edited_name, keeps_two_bytes_of_its_own_that_look_like_a_nul)
{
	EXPECT_EQ(edited(name_raw, "c080 41",
				  "\xC0\x80"
				  "B"),
		hex("c080 42"));
}


TEST(edited_name, is_what_is_typed_also_where_kept_halves_would_join_with_it)
{
	// A lead byte without its second one.
	EXPECT_EQ(edited(name_shift_jis, "41 93",
				  "A\x1A"
				  "b"),
		hex("41 1a 62"));
	// Between the halves of a pair.
	EXPECT_EQ(edited(name_unicode, "d83d 0041 de00", "\x1A\x1A"), hex("001a 001a"));
}


TEST(edited_name, is_cut_where_a_record_ends)
{
	const std::string half(32766, 'x');
	const octets before = zeros(0);
	EXPECT_EQ(edited_name(name_unicode, before, half + "yz").size(), 65534u);
	const std::string stored = stored_name(name_unicode, half);
	const name_bytes bytes((const unsigned char*)stored.data(), stored.size());
	EXPECT_EQ(edited_name(name_unicode, bytes, "abc" + half).size(), 65534u);
	EXPECT_EQ(
		edited_name(name_unicode, bytes, "abc" + half).substr(0, 4), std::string("\0a\0b", 4));
}
