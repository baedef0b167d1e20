// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Decoding and encoding single images.
#include "bitmaps/bitmap_fixture.h"

#include <gtest/gtest.h>

// EBDT alone.
struct data : lone_tables {
	explicit data(std::string_view digits) : lone_tables("", digits) {}
};

// What encoding leaves of the table, or the code when it is not 0.
static octets
encoded(const std::string& digits, const picture& rows, unsigned long offset, int format)
{
	lone_tables font("", digits);
	int answer = font.ebdt.encode(bitmap_from(rows).get(), offset, (unsigned short)format);
	if (answer != 0) {
		EXPECT_EQ(kept(&font.ebdt), hex(digits));
		return octets{uint8_t(answer)};
	}
	return kept(&font.ebdt);
}

static const octets failed_with_1 = {1};
static const octets failed_with_2 = {2};

TEST(ebdt_decode, reads_height_before_width)
{
	placed_picture found;
	EXPECT_EQ(decoded(data("00020000 0203 01fe 07 a0 40").ebdt, 4, 1, &found), 0);
	EXPECT_EQ(found, (placed_picture{{"#.#", ".#."}, 1, -2, 7}));
}

TEST(ebdt_decode, of_format_1_starts_every_row_with_an_octet)
{
	placed_picture found;
	EXPECT_EQ(decoded(data("0808 0008 08 8040201008040201").ebdt, 0, 1, &found), 0);
	EXPECT_EQ(found.rows,
		(picture{"#.......", ".#......", "..#.....", "...#....", "....#...", ".....#..", "......#.",
			".......#"}));
	EXPECT_EQ(decoded(data("0209 0008 09 7fff 0080").ebdt, 0, 1, &found), 0);
	EXPECT_EQ(found.rows, (picture{".########", "........#"}));
}

TEST(ebdt_decode, of_format_2_lets_rows_follow_each_other)
{
	placed_picture found;
	// Row 1 starts with bit 5 of the first octet.
	EXPECT_EQ(decoded(data("0305 0003 06 8c 7e").ebdt, 0, 2, &found), 0);
	EXPECT_EQ(found.rows, (picture{"#...#", "#...#", "#####"}));
}

TEST(ebdt_decode, of_format_5_keeps_the_metrics_it_is_given)
{
	lone_tables font("", "00020000 8c 7e");
	auto b = bitmap_from({".....", ".....", "....."});
	b->horiBearingX = 3;
	b->horiBearingY = -4;
	b->horiAdvance = 5;
	EXPECT_EQ(font.ebdt.decode(4, 5, b.get()), 0);
	EXPECT_EQ(content(*b), (placed_picture{{"#...#", "#...#", "#####"}, 3, -4, 5}));
}

TEST(ebdt_decode, of_format_5_without_metrics_is_undefined)
{
	lone_tables font("", "00020000 8c 7e");
	bitmap b(1, 12, 12, 1);
	EXPECT_EQ(font.ebdt.decode(4, 5, &b), 2);
	EXPECT_EQ(b.width, 0);
	EXPECT_EQ(b.height, 0);
	EXPECT_EQ(b.pixels, nullptr);
}

TEST(ebdt_decode, of_formats_6_and_7_skips_eight_octets_of_metrics)
{
	placed_picture found;
	EXPECT_EQ(decoded(data("0305 0103 06 ffffff 88 88 f8").ebdt, 0, 6, &found), 0);
	EXPECT_EQ(found, (placed_picture{{"#...#", "#...#", "#####"}, 1, 3, 6}));
	EXPECT_EQ(decoded(data("0305 0103 06 ffffff 8c 7e").ebdt, 0, 7, &found), 0);
	EXPECT_EQ(found, (placed_picture{{"#...#", "#...#", "#####"}, 1, 3, 6}));
}

TEST(ebdt_decode, of_other_formats_leaves_the_bitmap_alone)
{
	data font("0101 0001 01 00 00 00 00");
	for (int format : {0, 3, 4, 8, 9, 17, 18, 19, 0xFFFF}) {
		placed_picture found;
		EXPECT_EQ(decoded(font.ebdt, 0, format, &found), 1) << format;
		EXPECT_EQ(found.rows, picture{"#"});
	}
}

TEST(ebdt_decode, of_an_image_without_pixels_leaves_it_undefined)
{
	for (const char* image : {"0005 0003 06 ff ff", "0500 0003 06 ff ff", "0000 0000 06"}) {
		for (int format : {1, 2}) {
			placed_picture found;
			EXPECT_EQ(decoded(data(image).ebdt, 0, format, &found), 2);
			EXPECT_TRUE(found.rows.empty());
			EXPECT_EQ(found.advance, 6);
		}
	}
}

TEST(ebdt_decode, reads_up_to_the_last_octet_of_the_table_and_no_further)
{
	placed_picture found;
	EXPECT_EQ(decoded(data("0209 0002 09 ff80 ff80").ebdt, 0, 1, &found), 0);
	EXPECT_EQ(decoded(data("0209 0002 09 ff80 ff").ebdt, 0, 1, &found), 2);
	EXPECT_TRUE(found.rows.empty());
	EXPECT_EQ(decoded(data("0209 0002 09 ffffc0").ebdt, 0, 2, &found), 0);
	EXPECT_EQ(decoded(data("0209 0002 09 ffff").ebdt, 0, 2, &found), 2);
	EXPECT_EQ(decoded(data("0209 0002 09 0000 00 ffffc0").ebdt, 0, 7, &found), 0);
	EXPECT_EQ(decoded(data("0209 0002 09 0000 00 ffff").ebdt, 0, 7, &found), 2);
	EXPECT_EQ(decoded(data("0209 0002 09 0000").ebdt, 0, 7, &found), 2);
	EXPECT_EQ(decoded(data("ffff 0002 09 ffff").ebdt, 0, 1, &found), 2);
}

TEST(ebdt_decode, takes_nothing_from_metrics_that_are_cut)
{
	placed_picture found;
	EXPECT_EQ(decoded(data("0303 0303").ebdt, 0, 1, &found), 2);
	EXPECT_EQ(found, (placed_picture{{}, 0, 0, 12}));
}

TEST(ebdt_decode, at_an_offset_outside_leaves_it_undefined)
{
	for (unsigned long offset : {14ul, 15ul, 1000ul, 0x7FFFFFFFul, 0xFFFFFFFFul}) {
		for (int format : {1, 2, 5, 6, 7}) {
			placed_picture found;
			EXPECT_EQ(
				decoded(data("0101 0001 01 80 0101 0001 01 80 80 80").ebdt, offset, format, &found),
				2)
				<< offset;
			EXPECT_TRUE(found.rows.empty());
		}
	}
}

TEST(ebdt_encode, writes_the_pixels_behind_the_metrics)
{
	const picture rows = {"#...#", "#...#", "#####"};
	EXPECT_EQ(encoded("99 0305 0003 06 0000 00 99", rows, 1, 1), hex("99 0305 0003 06 8888 f8 99"));
	EXPECT_EQ(encoded("99 0305 0003 06 0000 99", rows, 1, 2), hex("99 0305 0003 06 8c7e 99"));
	EXPECT_EQ(encoded("99 0000 99", rows, 1, 5), hex("99 8c7e 99"));
	EXPECT_EQ(encoded("99 0305 0003 06 aabbcc 0000 00 99", rows, 1, 6),
		hex("99 0305 0003 06 aabbcc 8888 f8 99"));
	EXPECT_EQ(encoded("99 0305 0003 06 aabbcc 0000 99", rows, 1, 7),
		hex("99 0305 0003 06 aabbcc 8c7e 99"));
}

TEST(ebdt_encode, clears_padding_bits_and_what_was_there)
{
	EXPECT_EQ(encoded("0209 0002 09 ffff ffff ff", {"#.......#", "........."}, 0, 1),
		hex("0209 0002 09 8080 0000 ff"));
	EXPECT_EQ(encoded("0203 0002 09 ff ff", {"..#", "#.."}, 0, 2), hex("0203 0002 09 30 ff"));
}

TEST(ebdt_encode, never_rewrites_metrics)
{
	EXPECT_EQ(encoded("ffff ffff ff 00", {"##"}, 0, 2), hex("ffff ffff ff c0"));
}

TEST(ebdt_encode, takes_every_octet_but_0_for_ink)
{
	lone_tables font("", "00 00");
	auto b = bitmap_from({"...."});
	b->pixels[1] = 2;
	b->pixels[3] = 255;
	EXPECT_EQ(font.ebdt.encode(b.get(), 0, 5), 0);
	EXPECT_EQ(kept(&font.ebdt), hex("50 00"));
}

TEST(ebdt_encode, refuses_other_formats)
{
	for (int format : {0, 3, 4, 8, 9, 17, 0xFFFF})
		EXPECT_EQ(encoded("0101 0001 01 ff ff ff ff", {"#"}, 0, format), failed_with_1) << format;
}

TEST(ebdt_encode, of_an_undefined_bitmap_changes_nothing)
{
	lone_tables font("", "ffff ffff ffff ffff ffff");
	bitmap b(1, 12, 12, 1);
	EXPECT_EQ(font.ebdt.encode(&b, 0, 1), 2);
	EXPECT_EQ(font.ebdt.encode(&b, 0, 9), 1);
	b.width = b.height = 2;
	EXPECT_EQ(font.ebdt.encode(&b, 0, 1), 2);
	auto flat = bitmap_from({"##"});
	flat->height = 0;
	EXPECT_EQ(font.ebdt.encode(flat.get(), 0, 1), 2);
	EXPECT_EQ(kept(&font.ebdt), hex("ffff ffff ffff ffff ffff"));
}

TEST(ebdt_encode, writes_up_to_the_last_octet_of_the_table_and_no_further)
{
	const picture rows = {"#########", "#########"};
	EXPECT_EQ(encoded("0209 0002 09 0000 0000", rows, 0, 1), hex("0209 0002 09 ff80 ff80"));
	EXPECT_EQ(encoded("0209 0002 09 0000 00", rows, 0, 1), failed_with_2);
	EXPECT_EQ(encoded("0209 0002 09 0000", rows, 0, 2), failed_with_2);
	EXPECT_EQ(encoded("0000 00", rows, 1, 5), failed_with_2);
	EXPECT_EQ(encoded("0209 0002 09 0000", rows, 0, 7), failed_with_2);
	for (unsigned long offset : {3ul, 4ul, 1000ul, 0x7FFFFFFFul, 0xFFFFFFFFul})
		EXPECT_EQ(encoded("0000 00", rows, offset, 5), failed_with_2) << offset;
}
