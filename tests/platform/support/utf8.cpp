// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Texts between UTF-8 and other encodings.
#include <UTF8.h>

#include <gtest/gtest.h>
#include <string>

namespace {

using namespace std::string_literals;

struct result {
	status_t status;
	std::string text;
	int32 consumed;
};

using converter = status_t(uint32, const char*, int32*, char*, int32*, int32*, char);


result
run(converter* convert, uint32 encoding, const std::string& text, int32 room, char substitute)
{
	std::string target((size_t)room, '\xEE');
	int32 consumed = (int32)text.size();
	int32 written = room;
	int32 state = 0;
	status_t status =
		convert(encoding, text.data(), &consumed, target.data(), &written, &state, substitute);
	if (status == B_OK)
		target.resize((size_t)written);
	return {status, target, consumed};
}


result
from(uint32 encoding, const std::string& text, int32 room = 200, char substitute = B_SUBSTITUTE)
{
	return run(&convert_to_utf8, encoding, text, room, substitute);
}


result
to(uint32 encoding, const std::string& text, int32 room = 200, char substitute = B_SUBSTITUTE)
{
	return run(&convert_from_utf8, encoding, text, room, substitute);
}


// Every character below 80.
std::string
ascii()
{
	std::string text;
	for (int letter = 0; letter < 0x80; letter++)
		text += (char)letter;
	return text;
}

}


TEST(utf8, becomes_16_bits_big_endian_without_a_mark)
{
	EXPECT_EQ(to(B_UNICODE_CONVERSION, "aé語").text, "\x00\x61\x00\xE9\x8A\x9E"s);
	EXPECT_EQ(to(B_UNICODE_CONVERSION, "\xEF\xBB\xBFx").text, "\xFE\xFF\x00x"s)
		<< "a mark in the text is a character";
}


TEST(utf8, is_made_of_16_bits_big_endian)
{
	EXPECT_EQ(from(B_UNICODE_CONVERSION, "\x00\x61\x00\xE9\x8A\x9E"s).text, "aé語");
	EXPECT_EQ(from(B_UNICODE_CONVERSION, "\xFE\xFF\x00x"s).text, "\xEF\xBB\xBFx");
}


TEST(utf8, characters_beyond_16_bits_are_surrogate_pairs)
{
	EXPECT_EQ(to(B_UNICODE_CONVERSION, "\xF0\x9F\x98\x80").text, "\xD8\x3D\xDE\x00"s);
	EXPECT_EQ(from(B_UNICODE_CONVERSION, "\xD8\x3D\xDE\x00"s).text, "\xF0\x9F\x98\x80");
}


TEST(utf8, becomes_shift_jis)
{
	EXPECT_EQ(to(B_SJIS_CONVERSION, "a語ｱ").text, "a\x8C\xEA\xB1");
	EXPECT_EQ(from(B_SJIS_CONVERSION, "a\x8C\xEA\xB1").text, "a語ｱ");
}


TEST(utf8, the_bytes_of_shift_jis_below_80_are_ascii)
{
	EXPECT_EQ(to(B_SJIS_CONVERSION, "\\~").text, "\x5C\x7E");
	EXPECT_EQ(from(B_SJIS_CONVERSION, "\x5C\x7E").text, "\\~");
	EXPECT_EQ(to(B_SJIS_CONVERSION, ascii()).text, ascii());
	EXPECT_EQ(from(B_SJIS_CONVERSION, ascii()).text, ascii());
}


TEST(utf8, a_second_byte_of_shift_jis_may_be_that_of_a_backslash)
{
	EXPECT_EQ(to(B_SJIS_CONVERSION, "表").text, "\x95\x5C");
	EXPECT_EQ(from(B_SJIS_CONVERSION, "\x95\x5C").text, "表");
}


TEST(utf8, a_wave_that_people_type_has_a_place_in_shift_jis)
{
	EXPECT_EQ(to(B_SJIS_CONVERSION, "\u301C").text, "\x81\x60");
	EXPECT_EQ(to(B_SJIS_CONVERSION, "\uFF5E").text, "\x81\x60");
	EXPECT_EQ(from(B_SJIS_CONVERSION, "\x81\x60").text, "\uFF5E");
}


TEST(utf8, a_yen_sign_or_an_overline_does_not_become_another_character)
{
	EXPECT_EQ(to(B_SJIS_CONVERSION, "\u00A5\u203E").text, "\x1A\x1A");
}


TEST(utf8, what_has_no_place_becomes_one_substitute)
{
	EXPECT_EQ(to(B_SJIS_CONVERSION, "aéb").text, "a\x1A\x62");
	EXPECT_EQ(to(B_SJIS_CONVERSION, "a\xF0\x9F\x98\x80").text, "a\x1A");
	EXPECT_EQ(to(B_ISO1_CONVERSION, "語é", 200, '?').text, "?\xE9");
}


TEST(utf8, the_substitute_is_of_the_other_encoding)
{
	EXPECT_EQ(to(B_UNICODE_CONVERSION, "a\xFF").text, "\x00\x61\x00\x1A"s);
	EXPECT_EQ(from(B_UNICODE_CONVERSION, "\xDC\x00\x00\x61"s).text, "\x1A\x61");
	EXPECT_EQ(from(B_SJIS_CONVERSION, "\xFF\x61").text, "\x1A\x61");
}


TEST(utf8, malformed_bytes_do_not_take_their_neighbours_along)
{
	EXPECT_EQ(to(B_UNICODE_CONVERSION,
				  "\xE8\xAA"
				  "a")
				  .text,
		"\x00\x1A\x00\x61"s);
	EXPECT_EQ(to(B_UNICODE_CONVERSION, "\xC0\x80").text, "\x00\x1A\x00\x1A"s) << "overlong";
	EXPECT_EQ(to(B_UNICODE_CONVERSION,
				  "\xED\xA0\x80"
				  "a")
				  .text.substr(0, 2),
		"\x00\x1A"s)
		<< "a surrogate";
	EXPECT_EQ(from(B_UNICODE_CONVERSION, "\xD8\x3D\x00\x61"s).text, "\x1A\x61")
		<< "half a pair, and a letter";
	EXPECT_EQ(from(B_SJIS_CONVERSION, "\x81\x20\x61").text, "\x1A\x20\x61");
}


TEST(utf8, a_text_that_ends_within_a_character_ends_with_a_substitute)
{
	EXPECT_EQ(from(B_UNICODE_CONVERSION, "\x00\x61\x00"s).text, "a\x1A");
	EXPECT_EQ(from(B_UNICODE_CONVERSION, "\x00\x61\xD8\x3D"s).text, "a\x1A");
	EXPECT_EQ(from(B_SJIS_CONVERSION, "a\x8C").text, "a\x1A");
	EXPECT_EQ(to(B_SJIS_CONVERSION, "a\xE8\xAA").text, "a\x1A");
}


TEST(utf8, a_full_destination_cuts_between_characters)
{
	result cut = to(B_UNICODE_CONVERSION, "ab\xF0\x9F\x98\x80", 6);
	EXPECT_EQ(cut.status, B_OK);
	EXPECT_EQ(cut.text, "\x00\x61\x00\x62"s);
	EXPECT_EQ(cut.consumed, 2);
	cut = from(B_UNICODE_CONVERSION, "\x00\x61\x8A\x9E\x00\x62"s, 3);
	EXPECT_EQ(cut.text, "a");
	EXPECT_EQ(cut.consumed, 2);
	cut = to(B_SJIS_CONVERSION, "語語", 3);
	EXPECT_EQ(cut.text, "\x8C\xEA");
	EXPECT_EQ(cut.consumed, 3);
}


TEST(utf8, a_cut_text_goes_on_where_it_was_cut)
{
	std::string text = "名前 abc 表示";
	std::string parts;
	for (std::string rest = text; !rest.empty();) {
		result part = to(B_SJIS_CONVERSION, rest, 3);
		ASSERT_GT(part.consumed, 0);
		parts += from(B_SJIS_CONVERSION, part.text).text;
		rest.erase(0, (size_t)part.consumed);
	}
	EXPECT_EQ(parts, text);
}


TEST(utf8, without_room_nothing_is_written_or_consumed)
{
	result none = to(B_UNICODE_CONVERSION, "a", 0);
	EXPECT_EQ(none.status, B_OK);
	EXPECT_EQ(none.text, "");
	EXPECT_EQ(none.consumed, 0);
}


TEST(utf8, an_empty_text_is_empty)
{
	for (converter* convert : {&convert_to_utf8, &convert_from_utf8}) {
		int32 consumed = 0;
		int32 written = 20;
		EXPECT_EQ(
			convert(B_SJIS_CONVERSION, nullptr, &consumed, nullptr, &written, nullptr, 0), B_OK);
		EXPECT_EQ(written, 0);
		EXPECT_EQ(consumed, 0);
	}
}


TEST(utf8, writes_and_needs_no_nul)
{
	result found = from(B_ISO1_CONVERSION, "a\0b"s);
	EXPECT_EQ(found.text, "a\0b"s);
	char target[3] = {'x', 'x', 'x'};
	int32 consumed = 2;
	int32 written = 3;
	convert_from_utf8(B_ISO1_CONVERSION, "ab", &consumed, target, &written, nullptr);
	EXPECT_EQ(written, 2);
	EXPECT_EQ(target[2], 'x');
}


TEST(utf8, an_unknown_encoding_is_an_error_and_changes_nothing)
{
	for (uint32 encoding : {16u, 1000u, 0xFFFFFFFFu, (uint32)B_JIS_CONVERSION}) {
		for (const result& found : {from(encoding, "abc", 3), to(encoding, "abc", 3)}) {
			EXPECT_EQ(found.status, B_ERROR);
			EXPECT_EQ(found.consumed, 3);
			EXPECT_EQ(found.text, "\xEE\xEE\xEE");
		}
	}
}


TEST(utf8, a_missing_text_is_a_bad_value)
{
	int32 length = 3;
	char target[3];
	EXPECT_EQ(convert_to_utf8(B_ISO1_CONVERSION, nullptr, &length, target, &length, nullptr),
		B_BAD_VALUE);
	EXPECT_EQ(
		convert_to_utf8(B_ISO1_CONVERSION, "abc", nullptr, target, &length, nullptr), B_BAD_VALUE);
	EXPECT_EQ(convert_from_utf8(B_ISO1_CONVERSION, "abc", &length, target, nullptr, nullptr),
		B_BAD_VALUE);
	EXPECT_EQ(length, 3);
}


TEST(utf8, negative_lengths_are_none)
{
	int32 consumed = -5;
	int32 written = -5;
	char target[1];
	EXPECT_EQ(
		convert_to_utf8(B_ISO1_CONVERSION, "abc", &consumed, target, &written, nullptr), B_OK);
	EXPECT_EQ(consumed, 0);
	EXPECT_EQ(written, 0);
}


TEST(utf8, the_other_encodings_are_there)
{
	EXPECT_EQ(to(B_ISO1_CONVERSION, "é").text, "\xE9");
	EXPECT_EQ(to(B_ISO2_CONVERSION, "ł").text, "\xB3");
	EXPECT_EQ(to(B_ISO3_CONVERSION, "ħ").text, "\xB1");
	EXPECT_EQ(to(B_ISO4_CONVERSION, "ŋ").text, "\xBF");
	EXPECT_EQ(to(B_ISO5_CONVERSION, "ж").text, "\xD6");
	EXPECT_EQ(to(B_ISO6_CONVERSION, "ب").text, "\xC8");
	EXPECT_EQ(to(B_ISO7_CONVERSION, "λ").text, "\xEB");
	EXPECT_EQ(to(B_ISO8_CONVERSION, "א").text, "\xE0");
	EXPECT_EQ(to(B_ISO9_CONVERSION, "ğ").text, "\xF0");
	EXPECT_EQ(to(B_ISO10_CONVERSION, "þ").text, "\xFE");
	EXPECT_EQ(to(B_MAC_ROMAN_CONVERSION, "é").text, "\x8E");
	EXPECT_EQ(to(B_EUC_CONVERSION, "語").text, "\xB8\xEC");
	EXPECT_EQ(to(B_MS_WINDOWS_CONVERSION, "€").text, "\x80");
}
