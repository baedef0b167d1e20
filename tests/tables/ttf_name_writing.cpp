// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Adding, replacing and deleting records of name.
#include <gtest/gtest.h>

#include "support/opened.h"
#include "tables/name_table.h"

using texts = std::vector<std::string>;

// The octets of the table that setting this record alone makes.
static octets
only(unsigned short platform, unsigned short encoding, unsigned short language, const char* text)
{
	name_table name("0000 0000 0006");
	name.set_field(platform, encoding, language, 1, text);
	return kept(&name);
}


TEST(name_writing, makes_a_table_of_one_record)
{
	EXPECT_EQ(only(1, 0, 0, "abc"), hex("0000 0001 0012 0001 0000 0000 0001 0003 0000 616263"));
}


TEST(name_writing, pads_the_buffer_with_zeros_and_not_the_length)
{
	name_table name("0000 0000 0006");
	name.set_field(1, 0, 0, 1, "abc");
	EXPECT_EQ(name.length, 21u);
	EXPECT_EQ(octets(name.data + 21, name.data + 24), hex("00 00 00"));
}


TEST(name_writing, stores_utf16_for_windows_and_unicode)
{
	EXPECT_EQ(only(3, 1, 0x411, "Aé日\xF0\x9F\x98\x80"),
		hex("0000 0001 0012 0003 0001 0411 0001 000a 0000 0041 00e9 65e5 d83d de00"));
	EXPECT_EQ(only(0, 0, 0, "é"), hex("0000 0001 0012 0000 0000 0000 0001 0002 0000 00e9"));
}


TEST(name_writing, stores_shift_jis_for_macintosh_japanese)
{
	EXPECT_EQ(only(1, 1, 11, "日本語ソ ｱ\\~"),
		hex("0000 0001 0012 0001 0001 000b 0001 000c 0000 93fa 967b 8cea 835c 20 b1 5c 7e"));
}


TEST(name_writing, copies_the_bytes_for_all_other_keys)
{
	EXPECT_EQ(only(1, 1, 10, "日"), hex("0000 0001 0012 0001 0001 000a 0001 0003 0000 e697a5"));
	EXPECT_EQ(only(1, 0, 11, "日"), hex("0000 0001 0012 0001 0000 000b 0001 0003 0000 e697a5"));
	EXPECT_EQ(only(0, 3, 0, "\xFF"), hex("0000 0001 0012 0000 0003 0000 0001 0001 0000 ff"));
	EXPECT_EQ(only(3, 0, 0, "A"), hex("0000 0001 0012 0003 0000 0000 0001 0001 0000 41"));
}


TEST(name_writing, puts_the_substitute_for_what_the_encoding_has_not)
{
	EXPECT_EQ(
		only(1, 1, 11, "aЖ€b"), hex("0000 0001 0012 0001 0001 000b 0001 0005 0000 61 8447 1a 62"));
	EXPECT_EQ(only(3, 1, 0,
				  "a\xFF"
				  "b"),
		hex("0000 0001 0012 0003 0001 0000 0001 0006 0000 0061 001a 0062"));
	// Half of a pair is no UTF-8: three bytes that are none.
	EXPECT_EQ(only(3, 1, 0, "\xED\xA0\x80"),
		hex("0000 0001 0012 0003 0001 0000 0001 0006 0000 001a 001a 001a"));
}


TEST(name_writing, keeps_a_record_with_an_empty_text)
{
	for (unsigned short platform : {1, 3}) {
		name_table name("0000 0000 0006");
		name.set_field(platform, 1, 11, 1, "");
		EXPECT_EQ(name.count(), 1);
		EXPECT_EQ(name.length, 18u);
		EXPECT_EQ(text_of(name, 0), "");
		name.set_field(platform, 1, 11, 1, "text");
		name.set_field(platform, 1, 11, 1, "");
		EXPECT_EQ(name.count(), 1);
		EXPECT_EQ(name.length, 18u);
	}
}


static constexpr std::string_view three_names = "0000 0003 002a"
												"0001 0000 0000 0001 0001 0000"
												"0001 0000 0000 0004 0002 0001"
												"0003 0001 0409 0001 0004 0003"
												"61 6262 0063 0064";


TEST(name_writing, puts_the_smallest_key_first)
{
	name_table name(three_names);
	name.set_field(0, 3, 0, 9, "new");
	EXPECT_EQ(kept(&name),
		hex("0000 0004 0036"
			"0000 0003 0000 0009 0003 0000"
			"0001 0000 0000 0001 0001 0003"
			"0001 0000 0000 0004 0002 0004"
			"0003 0001 0409 0001 0004 0006"
			"6e6577 61 6262 0063 0064"));
}


TEST(name_writing, puts_a_key_between_two_others)
{
	name_table name(three_names);
	name.set_field(1, 0, 0, 2, "new");
	EXPECT_EQ(kept(&name),
		hex("0000 0004 0036"
			"0001 0000 0000 0001 0001 0000"
			"0001 0000 0000 0002 0003 0001"
			"0001 0000 0000 0004 0002 0004"
			"0003 0001 0409 0001 0004 0006"
			"61 6e6577 6262 0063 0064"));
}


TEST(name_writing, puts_the_largest_key_last)
{
	name_table name(three_names);
	name.set_field(3, 1, 0x409, 2, "e");
	EXPECT_EQ(kept(&name),
		hex("0000 0004 0036"
			"0001 0000 0000 0001 0001 0000"
			"0001 0000 0000 0004 0002 0001"
			"0003 0001 0409 0001 0004 0003"
			"0003 0001 0409 0002 0002 0007"
			"61 6262 0063 0064 0065"));
}


TEST(name_writing, compares_keys_as_unsigned_numbers_of_64_bits)
{
	name_table name("0000 0000 0006");
	name.set_field(0x8000, 0, 0, 0, "e");
	name.set_field(0, 0x8000, 0, 0, "c");
	name.set_field(0, 1, 0, 0, "b");
	name.set_field(0, 0, 0xFFFF, 0xFFFF, "a");
	name.set_field(0x7FFF, 0xFFFF, 0xFFFF, 0xFFFF, "d");
	EXPECT_EQ(listed_names(name),
		(texts{"0000-0000-ffff-ffff a", "0000-0001-0000-0000 b", "0000-8000-0000-0000 c",
			"7fff-ffff-ffff-ffff d", "8000-0000-0000-0000 e"}));
}


TEST(name_writing, replaces_a_text_in_its_place)
{
	name_table name(three_names);
	name.set_field(1, 0, 0, 4, "longer");
	EXPECT_EQ(kept(&name),
		hex("0000 0003 002a"
			"0001 0000 0000 0001 0001 0000"
			"0001 0000 0000 0004 0006 0001"
			"0003 0001 0409 0001 0004 0007"
			"61 6c6f6e676572 0063 0064"));
}


TEST(name_writing, deletes_a_record)
{
	name_table name(three_names);
	name.set_field(1, 0, 0, 1, nullptr);
	EXPECT_EQ(kept(&name),
		hex("0000 0002 001e"
			"0001 0000 0000 0004 0002 0000"
			"0003 0001 0409 0001 0004 0002"
			"6262 0063 0064"));
	name.set_field(3, 1, 0x409, 1, nullptr);
	EXPECT_EQ(kept(&name), hex("0000 0001 0012 0001 0000 0000 0004 0002 0000 6262"));
}


TEST(name_writing, leaves_six_bytes_when_the_only_record_is_deleted)
{
	name_table name("0000 0001 0012 0001 0000 0000 0004 0002 0000 6262");
	name.set_field(1, 0, 0, 4, nullptr);
	EXPECT_EQ(kept(&name), hex("0000 0000 0006"));
	EXPECT_EQ(octets(name.data + 6, name.data + 8), hex("00 00"));
}


TEST(name_writing, deletes_nothing_under_another_key)
{
	name_table name(three_names);
	name.set_field(1, 0, 0, 2, nullptr);
	EXPECT_EQ(kept(&name), hex(three_names));
}


TEST(name_writing, writes_format_0_and_drops_what_is_behind_the_records)
{
	name_table name(
		"0001 0001 001c 0001 0000 0000 0001 0001 0001 0001 0002 0000 ffff ffff 6162 6364");
	name.set_field(1, 0, 0, 2, "c");
	EXPECT_EQ(kept(&name),
		hex("0000 0002 001e"
			"0001 0000 0000 0001 0001 0000 0001 0000 0000 0002 0001 0001"
			"62 63"));
}


TEST(name_writing, gives_texts_that_shared_their_bytes_bytes_of_their_own)
{
	name_table name("0000 0002 001e"
					"0001 0000 0000 0001 0003 0000 0001 0000 0000 0002 0002 0001"
					"616263");
	name.set_field(1, 0, 0, 3, "d");
	EXPECT_EQ(part(kept(&name), 42, 99), hex("616263 6263 64"));
	EXPECT_EQ(listed_names(name),
		(texts{"0001-0000-0000-0001 abc", "0001-0000-0000-0002 bc", "0001-0000-0000-0003 d"}));
}


TEST(name_writing, leaves_the_bytes_of_other_records_alone)
{
	// Half a pair, an odd byte, broken Shift-JIS, Roman: nothing that a conversion would keep.
	name_table name("0000 0003 002a"
					"0001 0000 0000 0001 0002 0000"
					"0001 0001 000b 0001 0002 0002"
					"0003 0001 0409 0001 0005 0004"
					"a9ff ff93 d83d 0041 00");
	name.set_field(1, 0, 0, 0, "x");
	EXPECT_EQ(part(kept(&name), 54, 99), hex("78 a9ff ff93 d83d 0041 00"));
}


static constexpr std::string_view disordered = "0000 0004 0036"
											   "0003 0001 0409 0001 0002 0000"
											   "0001 0000 0000 0004 0001 0002"
											   "0001 0000 0000 0001 0001 0003"
											   "0001 0000 0000 0004 0001 0004"
											   "0061 62 63 64";


TEST(name_writing, loses_nothing_of_a_table_out_of_order)
{
	// No key is smaller: the new record goes first.
	name_table name(disordered);
	name.set_field(1, 0, 0, 1, "new");
	EXPECT_EQ(listed_names(name),
		(texts{"0001-0000-0000-0001 new", "0003-0001-0409-0001 a", "0001-0000-0000-0004 b",
			"0001-0000-0000-0004 d"}));
}


TEST(name_writing, deletes_from_a_table_out_of_order)
{
	name_table name(disordered);
	name.set_field(3, 1, 0x409, 1, nullptr);
	EXPECT_EQ(listed_names(name),
		(texts{"0001-0000-0000-0004 b", "0001-0000-0000-0001 c", "0001-0000-0000-0004 d"}));
}


TEST(name_writing, makes_one_of_several_records_of_a_key)
{
	name_table name(disordered);
	name.set_field(1, 0, 0, 4, "new");
	EXPECT_EQ(listed_names(name),
		(texts{"0003-0001-0409-0001 a", "0001-0000-0000-0001 c", "0001-0000-0000-0004 new"}));
}


TEST(name_writing, deletes_the_first_of_several_records_of_a_key)
{
	name_table name(disordered);
	name.set_field(1, 0, 0, 4, nullptr);
	EXPECT_EQ(listed_names(name),
		(texts{"0003-0001-0409-0001 a", "0001-0000-0000-0001 c", "0001-0000-0000-0004 d"}));
	name.set_field(1, 0, 0, 4, nullptr);
	EXPECT_EQ(listed_names(name), (texts{"0003-0001-0409-0001 a", "0001-0000-0000-0001 c"}));
}


TEST(name_writing, stores_300_characters_whole)
{
	const std::string longer(300, 'x');
	name_table name("0000 0000 0006");
	name.set_field(3, 1, 0x409, 1, longer.c_str());
	EXPECT_EQ(name.length, 18u + 600);
	EXPECT_EQ(text_of(name, 0, 1000), longer);
	EXPECT_EQ(text_of(name, 0), std::string(255, 'x'));
}


TEST(name_writing, cuts_a_text_at_what_16_bits_can_tell)
{
	const std::string longest(70000, 'x');
	name_table name("0000 0000 0006");
	name.set_field(1, 0, 0, 1, longest.c_str());
	EXPECT_EQ(text_of(name, 0, 80000), std::string(65535, 'x'));
	name.set_field(1, 0, 0, 1, nullptr);
	name.set_field(3, 1, 0, 1, longest.c_str());
	EXPECT_EQ(be16(kept(&name), 14), 65534);
	EXPECT_EQ(text_of(name, 0, 80000), std::string(32767, 'x'));
}


// What a raw text becomes that starts with so many letters x.
static std::string
cut(size_t letters, const std::string& text)
{
	name_table name("0000 0000 0006");
	name.set_field(1, 0, 0, 1, (std::string(letters, 'x') + text).c_str());
	return text_of(name, 0, 80000).substr(letters);
}


TEST(name_writing, cuts_a_text_where_a_character_ends)
{
	EXPECT_EQ(cut(65534, "é"), "");
	EXPECT_EQ(cut(65533, "é"), "é");
	EXPECT_EQ(cut(65533, "ééé"), "é");
	EXPECT_EQ(cut(65533, "日本"), "");
	EXPECT_EQ(cut(65532, "日本"), "日");
	EXPECT_EQ(cut(65532, "😀"), "");
	EXPECT_EQ(cut(65531, "😀a"), "😀");
	// Bytes that are not UTF-8 are one each.
	EXPECT_EQ(cut(65533, "\x8E\x8F\x90\x91\x92"), "\x8E\x8F");
	EXPECT_EQ(cut(65531, "\x8E\x8F\x90\x91\x92\x93"), "\x8E\x8F\x90\x91");
	EXPECT_EQ(cut(65534, "\xFF\x80\x80"), "\xFF");
}


TEST(name_writing, cuts_a_converted_text_where_a_character_ends)
{
	name_table name("0000 0000 0006");
	name.set_field(3, 1, 0, 1, (std::string(32766, 'x') + "😀").c_str());
	EXPECT_EQ(be16(kept(&name), 14), 65532);
	name.set_field(1, 1, 11, 1, (std::string(65533, 'x') + "日").c_str());
	EXPECT_EQ(be16(kept(&name), 14), 65533);
}


TEST(name_writing, starts_a_new_font_with_fourteen_records)
{
	ttf_name name(nullptr, nullptr, 0);
	EXPECT_EQ(listed_names(name),
		(texts{"0001-0000-0000-0000 (c)unknown", "0001-0000-0000-0001 noname",
			"0001-0000-0000-0002 Regular", "0001-0000-0000-0003 unknown",
			"0001-0000-0000-0004 noname-regular", "0001-0000-0000-0005 -.--",
			"0001-0000-0000-0006 noname-regular", "0003-0001-0409-0000 (c)unknown",
			"0003-0001-0409-0001 noname", "0003-0001-0409-0002 Regular",
			"0003-0001-0409-0003 unknown", "0003-0001-0409-0004 noname-regular",
			"0003-0001-0409-0005 -.--", "0003-0001-0409-0006 noname-regular"}));
	EXPECT_EQ(name.length, 360u);
	EXPECT_EQ(name.create_default(), 0);
	EXPECT_EQ(name.count(), 14);
}
