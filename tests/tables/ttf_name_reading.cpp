// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Reading records of name: what is converted, what is copied, what is cut.
#include <gtest/gtest.h>

#include "tables/name_table.h"

using texts = std::vector<std::string>;

static constexpr std::string_view macintosh = "0001 0000 0000 0001";
static constexpr std::string_view japanese = "0001 0001 000b 0001";
static constexpr std::string_view windows = "0003 0001 0409 0001";


// The text of a record with these octets.
static std::string
read(std::string_view ids, std::string_view stored, long room = 256)
{
	return text_of(name_table(one_name(ids, stored)), 0, room);
}


TEST(name_reading, gives_the_keys_and_texts_in_the_order_of_the_table)
{
	name_table name("0000 0003 002a"
					"0000 0000 0000 0006 0004 0000"
					"0001 0000 0000 0002 0003 0004"
					"0003 0001 0411 0004 0002 0007"
					"0041 0042 616263 3042");
	EXPECT_EQ(name.count(), 3);
	EXPECT_EQ(listed_names(name),
		(texts{"0000-0000-0000-0006 AB", "0001-0000-0000-0002 abc", "0003-0001-0411-0004 あ"}));
}


TEST(name_reading, gives_ids_with_all_their_bits)
{
	EXPECT_EQ(listed_names(name_table(one_name("ffff fffe fffd fffc", "41"))),
		texts{"ffff-fffe-fffd-fffc A"});
}


TEST(name_reading, answers_1_and_stores_nothing_for_what_is_no_record)
{
	name_table name(one_name(macintosh, "41"));
	for (int index : {-1, 1, 2, 65535, INT32_MAX, INT32_MIN}) {
		unsigned short ids[4] = {11, 12, 13, 14};
		char text[] = "kept";
		long length = sizeof text;
		EXPECT_EQ(name.get_field(index, &ids[0], &ids[1], &ids[2], &ids[3], &length, text), 1);
		EXPECT_STREQ(text, "kept");
		EXPECT_EQ(length, 5);
		EXPECT_EQ(ids[0] + ids[1] + ids[2] + ids[3], 50);
	}
}


TEST(name_reading, answers_1_without_room_for_the_end_of_the_text)
{
	name_table name(one_name(macintosh, "41"));
	for (long room : {0L, -1L, -70000L}) {
		unsigned short id = 7;
		char text = 'k';
		EXPECT_EQ(name.get_field(0, &id, &id, &id, &id, &room, &text), 1);
		EXPECT_EQ(id, 7);
		EXPECT_EQ(text, 'k');
	}
}


TEST(name_reading, keeps_a_byte_of_the_room_for_the_end)
{
	EXPECT_EQ(read(macintosh, "6162636465", 6), "abcde");
	EXPECT_EQ(read(macintosh, "6162636465", 5), "abcd");
	EXPECT_EQ(read(macintosh, "6162636465", 1), "");
	EXPECT_EQ(read(windows, "0061 0062 0063", 4), "abc");
	EXPECT_EQ(read(windows, "0061 0062 0063", 3), "ab");
	EXPECT_EQ(read(windows, "0061 0062 0063", 1), "");
}


TEST(name_reading, cuts_a_converted_text_where_a_character_ends)
{
	EXPECT_EQ(read(windows, "3042 3044", 7), "あい");
	EXPECT_EQ(read(windows, "3042 3044", 6), "あ");
	EXPECT_EQ(read(windows, "3042 3044", 4), "あ");
	EXPECT_EQ(read(windows, "3042 3044", 3), "");
	EXPECT_EQ(read(japanese, "82a0 82a2", 6), "あ");
	EXPECT_EQ(read(windows, "d83d de00 0041", 4), "");
	EXPECT_EQ(read(windows, "d83d de00 0041", 5), "\xF0\x9F\x98\x80");
}


TEST(name_reading, copies_what_is_not_converted_cut_anywhere)
{
	EXPECT_EQ(read(macintosh, "a9 e38182 ff"), "\xA9\xE3\x81\x82\xFF");
	EXPECT_EQ(read(macintosh, "a9 e38182 ff", 4), "\xA9\xE3\x81");
	EXPECT_EQ(read(macintosh, "41 00 42"), std::string("A\0B", 3));
}


TEST(name_reading, converts_utf16_for_three_kinds_of_keys_only)
{
	for (std::string_view ids : {"0000 0000 0000 0001", "0003 0001 0000 0001",
			 "0003 0001 ffff 0001", "0003 0001 0409 ffff"})
		EXPECT_EQ(read(ids, "0041 00e9"), "Aé") << ids;
	for (std::string_view ids :
		{"0000 0001 0000 0001", "0000 0003 0000 0001", "0000 0000 0001 0001", "0003 0000 0409 0001",
			"0003 000a 0409 0001", "0002 0001 0000 0001", "0001 0000 000b 0001",
			"0001 0001 0000 0001", "0001 0001 000c 0001", "0001 0002 000b 0001"})
		EXPECT_EQ(read(ids, "0041 00e9"), std::string("\0A\0\xE9", 4)) << ids;
}


TEST(name_reading, converts_shift_jis_for_macintosh_japanese)
{
	EXPECT_EQ(read(japanese, "93fa 967b 8cea"), "日本語");
	EXPECT_EQ(read(japanese, "b1 b2 41 8140"), "ｱｲA\u3000");
	// Its half of ASCII is ASCII, whatever other tables have there.
	EXPECT_EQ(read(japanese, "5c 7e 1a 1c 7f"), "\\~\x1A\x1C\x7F");
}


TEST(name_reading, reads_a_character_whose_second_byte_looks_like_ascii)
{
	EXPECT_EQ(read(japanese, "955c 8e9e 835c"), "表時ソ");
}


TEST(name_reading, puts_a_substitute_for_each_half_of_a_pair)
{
	EXPECT_EQ(read(windows, "0041 d83d 0042"),
		"A\x1A"
		"B");
	EXPECT_EQ(read(windows, "de00 0042"),
		"\x1A"
		"B");
	EXPECT_EQ(read(windows, "0041 d83d"), "A\x1A");
	EXPECT_EQ(read(windows, "de00 d83d"), "\x1A\x1A");
}


TEST(name_reading, puts_a_substitute_for_broken_shift_jis)
{
	EXPECT_EQ(read(japanese, "41 93"), "A\x1A");
	EXPECT_EQ(read(japanese, "41 ff 42"),
		"A\x1A"
		"B");
}


TEST(name_reading, drops_an_odd_last_byte_of_utf16)
{
	EXPECT_EQ(read(windows, "0041 0042 00"), "AB");
	EXPECT_EQ(read(windows, "41"), "");
	EXPECT_EQ(read("0000 0000 0000 0001", "0041 d8"), "A");
}


TEST(name_reading, gives_an_empty_text_for_a_length_of_0)
{
	for (std::string_view ids : {macintosh, japanese, windows})
		EXPECT_EQ(read(ids, ""), "");
}


TEST(name_reading, follows_places_out_of_order_shared_and_overlapping)
{
	name_table name("0000 0003 002c"
					"0001 0000 0000 0001 0002 0003"
					"0001 0000 0000 0002 0003 0000"
					"0001 0000 0000 0003 0005 0000"
					"ffff 6162636465");
	EXPECT_EQ(listed_names(name),
		(texts{"0001-0000-0000-0001 de", "0001-0000-0000-0002 abc", "0001-0000-0000-0003 abcde"}));
}


TEST(name_reading, minds_no_format)
{
	name_table name("0001 0001 0014 0001 0000 0000 0001 0001 0000 0000 41");
	EXPECT_EQ(listed_names(name), texts{"0001-0000-0000-0001 A"});
}
