// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "font/ttf_loca.h"

#include <climits>

#include <gtest/gtest.h>

#include "font/ttf.h"
#include "support/choice.h"
#include "support/font_file.h"
#include "support/opened.h"

namespace {

class loca_table : public ttf_loca {
public:
	explicit loca_table(const octets& contents)
		: ttf_loca(nullptr, buffer_of(contents), contents.size())
	{
	}
	explicit loca_table(std::string_view digits) : loca_table(hex(digits)) {}
	octets padded() const { return octets(data, data + ((size_t)length + 3) / 4 * 4); }
};

// What get_offset says of a glyph.
struct place {
	int answer;
	unsigned long offset = 0xAAAA;
	unsigned long length = 0xBBBB;
	bool operator==(const place&) const = default;
};

std::ostream&
operator<<(std::ostream& out, const place& shown)
{
	return out << shown.answer << ": " << shown.offset << " + " << shown.length;
}

}


static place
place_of(const ttf_loca& loca, bool is32, int index)
{
	place found{0};
	found.answer = loca.get_offset(is32, index, &found.offset, &found.length);
	return found;
}


// Offset and length stay as they were.
static const place nowhere{-1};


TEST(loca, knows_its_tag_and_keeps_its_octets)
{
	loca_table loca("00000000 00000000 00000020");
	EXPECT_EQ(loca.tag, 0x6C6F6361u);
	EXPECT_EQ(kept(&loca), hex("00000000 00000000 00000020"));
}


TEST(loca, of_a_new_font_has_long_offsets_of_0_one_more_than_glyphs)
{
	ttf font;
	font.chrs = choice({0x41, 0x42});
	ttf_loca loca(&font, nullptr, 0);
	EXPECT_EQ(kept(&loca), hex("00000000 00000000 00000000 00000000"));
}


TEST(loca, of_a_new_font_has_every_glyph_empty_until_it_is_encoded)
{
	ttf font;
	font.chrs = choice({0x41});
	ttf_loca loca(&font, nullptr, 0);
	EXPECT_EQ(place_of(loca, true, 0), (place{0, 0, 0}));
	EXPECT_EQ(place_of(loca, true, 1), (place{0, 0, 0}));
	loca.chg_length(true, 0, 20);
	EXPECT_EQ(place_of(loca, true, 0), (place{0, 0, 20}));
	EXPECT_EQ(place_of(loca, true, 1), (place{0, 20, 0}));
}


TEST(loca, of_a_new_font_of_65536_glyphs_has_all_of_them)
{
	ttf font;
	font.chrs = choice({});
	font.chrs->glyphs = 65536;
	ttf_loca loca(&font, nullptr, 0);
	EXPECT_EQ(loca.length, 262148u);
}


TEST(loca, of_a_new_font_without_a_choice_has_one_entry)
{
	ttf font;
	ttf_loca loca(&font, nullptr, 0);
	EXPECT_EQ(kept(&loca), hex("00000000"));
}


TEST(loca, made_anew_forgets_what_it_held)
{
	ttf font;
	font.chrs = choice({0x41});
	ttf_loca loca(&font, buffer_of(octets(50, 0xEE)), 50);
	loca.create_default();
	EXPECT_EQ(kept(&loca), zeros(12));
}


TEST(loca_get_offset, counts_octets_in_the_long_format)
{
	loca_table loca("00000000 00000005 00000020");
	EXPECT_EQ(place_of(loca, true, 0), (place{0, 0, 5}));
	EXPECT_EQ(place_of(loca, true, 1), (place{0, 5, 27}));
}


TEST(loca_get_offset, counts_words_in_the_short_format)
{
	loca_table loca("0000 0005 0020 ffff");
	EXPECT_EQ(place_of(loca, false, 0), (place{0, 0, 10}));
	EXPECT_EQ(place_of(loca, false, 1), (place{0, 10, 54}));
	EXPECT_EQ(place_of(loca, false, 2), (place{0, 64, 131006}));
}


TEST(loca_get_offset, past_the_last_entry_ends_at_the_length_of_loca_itself)
{
	loca_table loca("00000000 00000002 00000007");
	EXPECT_EQ(place_of(loca, true, 2), (place{0, 7, 5}));
}


TEST(loca_get_offset, past_the_last_short_entry_does_not_double_the_length_of_loca)
{
	octets contents = zeros(202);
	put_be16(contents, 200, 37);
	EXPECT_EQ(place_of(loca_table(contents), false, 100), (place{0, 74, 128}));
}


TEST(loca_get_offset, of_a_table_one_entry_short_ends_at_its_length)
{
	loca_table loca("00000004 00000006");
	EXPECT_EQ(place_of(loca, true, 1), (place{0, 6, 2}));
}


TEST(loca_get_offset, finds_the_entry_after_the_last_glyph_but_none_after_that)
{
	loca_table loca("00000000 00000000 00000020");
	EXPECT_EQ(place_of(loca, true, 2).answer, 0);
	EXPECT_EQ(place_of(loca, true, 3), nowhere);
	loca_table brief("0000 0000 0010");
	EXPECT_EQ(place_of(brief, false, 2).answer, 0);
	EXPECT_EQ(place_of(brief, false, 3), nowhere);
}


TEST(loca_get_offset, takes_no_index_outside_the_table)
{
	loca_table loca("00000000 00000000 00000020");
	for (int index : {-1, -2, INT_MIN, INT_MAX, 0x40000000, 0x40000001, 1 << 30}) {
		EXPECT_EQ(place_of(loca, true, index), nowhere) << index;
		EXPECT_EQ(place_of(loca, false, index), nowhere) << index;
	}
	EXPECT_EQ(place_of(loca_table(""), true, 0), nowhere);
	EXPECT_EQ(place_of(loca_table(""), false, 0), nowhere);
}


TEST(loca_get_offset, of_a_place_that_ends_before_it_starts_is_modulo_32_bits)
{
	EXPECT_EQ(place_of(loca_table("00000008 00000007"), true, 0), (place{0, 8, 4294967295ul}));
	EXPECT_EQ(place_of(loca_table("0008 0007"), false, 0), (place{0, 16, 4294967294ul}));
}


TEST(loca_get_offset, takes_the_piece_of_an_entry_for_0)
{
	EXPECT_EQ(place_of(loca_table("00000003 112233"), true, 1), (place{0, 0, 7}));
	EXPECT_EQ(place_of(loca_table("0003 11"), false, 1), (place{0, 0, 3}));
	EXPECT_EQ(place_of(loca_table("0000 11"), false, 0), (place{0, 0, 0}));
}


TEST(loca_get_offset, changes_nothing)
{
	loca_table loca("0003 0001 ffff 0007");
	place_of(loca, false, 1);
	place_of(loca, true, 1);
	EXPECT_EQ(kept(&loca), hex("0003 0001 ffff 0007"));
}


TEST(loca_chg_length, moves_all_later_entries_by_the_growth)
{
	loca_table loca("00000000 00000008 00000010 00000020");
	EXPECT_EQ(loca.chg_length(true, 1, 11), 0);
	EXPECT_EQ(kept(&loca), hex("00000000 00000008 00000013 00000023"));
}


TEST(loca_chg_length, moves_them_back_when_the_glyph_shrinks)
{
	loca_table loca("00000000 00000008 00000010 00000020");
	EXPECT_EQ(loca.chg_length(true, 0, 0), 0);
	EXPECT_EQ(kept(&loca), hex("00000000 00000000 00000008 00000018"));
}


TEST(loca_chg_length, to_the_same_length_changes_nothing)
{
	loca_table loca("00000000 00000008 00000010");
	EXPECT_EQ(loca.chg_length(true, 0, 8), 0);
	EXPECT_EQ(kept(&loca), hex("00000000 00000008 00000010"));
}


TEST(loca_chg_length, of_3_octets_more_is_one_word_in_the_short_format)
{
	loca_table loca("0000 0004 0008 0010");
	EXPECT_EQ(loca.chg_length(false, 1, 11), 0);
	EXPECT_EQ(kept(&loca), hex("0000 0004 0009 0011"));
}


TEST(loca_chg_length, to_an_odd_length_loses_the_last_octet_in_the_short_format)
{
	loca_table loca("0000 0000 0000");
	EXPECT_EQ(loca.chg_length(false, 0, 7), 0);
	EXPECT_EQ(kept(&loca), hex("0000 0003 0003"));
	EXPECT_EQ(loca.chg_length(false, 0, 1), 0);
	EXPECT_EQ(kept(&loca), hex("0000 0000 0000"));
}


TEST(loca_chg_length, of_the_last_glyph_moves_the_end)
{
	loca_table loca("00000000 00000008 00000010");
	EXPECT_EQ(loca.chg_length(true, 1, 16), 0);
	EXPECT_EQ(kept(&loca), hex("00000000 00000008 00000018"));
}


TEST(loca_chg_length, of_the_entry_without_a_next_changes_nothing)
{
	loca_table loca("00000000 00000008 00000010");
	EXPECT_EQ(loca.chg_length(true, 2, 99), 0);
	EXPECT_EQ(kept(&loca), hex("00000000 00000008 00000010"));
	loca_table brief("0000 0004");
	EXPECT_EQ(brief.chg_length(false, 1, 99), 0);
	EXPECT_EQ(kept(&brief), hex("0000 0004"));
}


TEST(loca_chg_length, stops_at_an_entry_of_all_ones)
{
	loca_table loca("00000000 00000008 ffffffff 00000010");
	EXPECT_EQ(loca.chg_length(true, 0, 9), 0);
	EXPECT_EQ(kept(&loca), hex("00000000 00000009 ffffffff 00000010"));
	loca_table brief("0000 0004 ffff 0010");
	EXPECT_EQ(brief.chg_length(false, 0, 10), 0);
	EXPECT_EQ(kept(&brief), hex("0000 0005 ffff 0010"));
}


TEST(loca_chg_length, stops_at_once_when_the_next_entry_is_all_ones)
{
	loca_table loca("00000000 ffffffff 00000010");
	EXPECT_EQ(loca.chg_length(true, 0, 9), 0);
	EXPECT_EQ(kept(&loca), hex("00000000 ffffffff 00000010"));
}


TEST(loca_chg_length, is_not_stopped_by_the_glyphs_own_entry)
{
	loca_table loca("ffffffff 00000007 00000010");
	EXPECT_EQ(loca.chg_length(true, 0, 9), 0);
	EXPECT_EQ(kept(&loca), hex("ffffffff 00000008 00000011"));
}


TEST(loca_chg_length, is_not_stopped_by_an_entry_that_becomes_all_ones)
{
	loca_table loca("00000000 fffffffe 00000010");
	EXPECT_EQ(loca.chg_length(true, 0, 0xFFFFFFFF), 0);
	EXPECT_EQ(kept(&loca), hex("00000000 ffffffff 00000011"));
	loca_table brief("0000 fffe 0010");
	EXPECT_EQ(brief.chg_length(false, 0, 131070), 0);
	EXPECT_EQ(kept(&brief), hex("0000 ffff 0011"));
}


TEST(loca_chg_length, takes_only_all_ones_of_its_own_format_for_a_stop)
{
	loca_table loca("00000000 0000ffff 00000010");
	EXPECT_EQ(loca.chg_length(true, 0, 0x10000), 0);
	EXPECT_EQ(kept(&loca), hex("00000000 00010000 00000011"));
}


TEST(loca_chg_length, is_modulo_the_range_of_an_entry)
{
	loca_table loca("00000000 00000001 fffffff0");
	EXPECT_EQ(loca.chg_length(true, 0, 0x21), 0);
	EXPECT_EQ(kept(&loca), hex("00000000 00000021 00000010"));
	loca_table brief("0000 0001 fff0");
	EXPECT_EQ(brief.chg_length(false, 0, 0x42), 0);
	EXPECT_EQ(kept(&brief), hex("0000 0021 0010"));
}


TEST(loca_chg_length, takes_no_index_outside_the_table)
{
	loca_table loca("00000000 00000008 00000010");
	for (int index : {-1, INT_MIN, INT_MAX, 3, 0x40000000, 0x40000001}) {
		EXPECT_EQ(loca.chg_length(true, index, 99), -1) << index;
		EXPECT_EQ(kept(&loca), hex("00000000 00000008 00000010")) << index;
	}
	EXPECT_EQ(loca.chg_length(false, 6, 99), -1);
	EXPECT_EQ(kept(&loca), hex("00000000 00000008 00000010"));
}


TEST(loca_chg_length, leaves_a_piece_of_an_entry_and_the_padding_alone)
{
	loca_table loca("00000000 00000008 001122");
	EXPECT_EQ(loca.chg_length(true, 0, 9), 0);
	EXPECT_EQ(loca.padded(), hex("00000000 00000009 00112200"));
	loca_table brief("0000 0004 0008 77");
	EXPECT_EQ(brief.chg_length(false, 0, 10), 0);
	EXPECT_EQ(brief.padded(), hex("0000 0005 0009 7700"));
	// Only a piece follows: it counts as 0.
	loca_table piece("00000005 0011");
	EXPECT_EQ(piece.chg_length(true, 0, 9), 0);
	EXPECT_EQ(piece.padded(), hex("00000005 00110000"));
}


TEST(loca_chg_length, of_any_index_never_writes_past_the_end)
{
	for (size_t length = 0; length <= 13; length++) {
		for (int index = -1; index <= 14; index++) {
			loca_table loca(octets(length, 0x11));
			loca.chg_length(index % 2 == 0, index, 12345);
			loca.chg_length(index % 2 != 0, index, 54321);
			octets padding = part(loca.padded(), length, 3);
			EXPECT_EQ(padding, zeros(padding.size())) << length << " octets, glyph " << index;
		}
	}
}
