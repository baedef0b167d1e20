// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Index formats 1, 2, 3 with image formats 1, 2, 5, 6, 7: all fifteen pairs.
#include "bitmaps/bitmap_fixture.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <tuple>

namespace {

// Of one size, as index format 2 wants them; nine columns take an octet and one bit.
const picture ring = {"#########", "#.......#", "#########"};
const picture steps = {"##.......", "...###...", ".......##"};
const picture comb = {"#.#.#.#.#", "..#...#..", "........#"};

class pair : public testing::TestWithParam<std::tuple<int, int>> {
protected:
	pair()
		: index_format(std::get<0>(GetParam())),
		  image_format(std::get<1>(GetParam())),
		  tables(strikes().size(12, 12).images(1, index_format, image_format, {ring, steps, comb})),
		  file(tables.in(font_for_strikes())),
		  font(opened(file))
	{
		if (has_no_size()) {
			// The size has to come from the caller.
			for (int i = 0; i < 3; i++)
				sized[i] = bitmap_from(ring);
		}
	}

	// Only index format 2 holds the metrics that image format 5 lacks.
	bool has_no_size() const { return image_format == 5 && index_format != 2; }

	// The bitmap of glyph 1, 2 or 3.
	std::unique_ptr<bitmap> read(int glyph)
	{
		if (!has_no_size())
			return bitmap_of(*font, glyph);
		sized[glyph - 1]->glyph = (uint16)glyph;
		EXPECT_EQ(font->get_bitmap(sized[glyph - 1].get()), 0);
		return std::move(sized[glyph - 1]);
	}

	int index_format;
	int image_format;
	strikes tables;
	octets file;
	std::unique_ptr<ttf> font;
	std::unique_ptr<bitmap> sized[3];
};

INSTANTIATE_TEST_SUITE_P(of, pair,
	testing::Combine(testing::Values(1, 2, 3), testing::Values(1, 2, 5, 6, 7)),
	[](const auto& chosen) {
		return "index_" + std::to_string(std::get<0>(chosen.param)) + "_image_"
			+ std::to_string(std::get<1>(chosen.param));
	});

} // namespace

TEST_P(pair, gives_the_pixels_of_every_glyph)
{
	EXPECT_EQ(content(*read(1)).rows, ring);
	EXPECT_EQ(content(*read(2)).rows, steps);
	EXPECT_EQ(content(*read(3)).rows, comb);
}

TEST_P(pair, gives_metrics_where_it_has_them)
{
	placed_picture found = content(*read(2));
	EXPECT_EQ(found.x, has_no_size() ? 0 : 1);
	EXPECT_EQ(found.y, has_no_size() ? 0 : 9);
	EXPECT_EQ(found.advance, has_no_size() ? 12 : 11);
}

TEST_P(pair, gives_what_freetype_reads)
{
	freetype_bitmaps other(file);
	ASSERT_EQ(other.sizes(), 1);
	ASSERT_TRUE(other.choose(0));
	for (int glyph = 1; glyph <= 3; glyph++) {
		placed_picture expected;
		// FreeType refuses images without a size.
		ASSERT_EQ(other.read(glyph, expected), !has_no_size());
		if (!has_no_size()) {
			EXPECT_EQ(content(*bitmap_of(*font, glyph)), expected);
		}
	}
}

TEST_P(pair, without_a_size_is_undefined)
{
	int answer;
	auto found = bitmap_of(*font, 1, 12, 12, &answer);
	EXPECT_EQ(answer, has_no_size() ? -1 : 0);
	EXPECT_EQ(found->pixels == nullptr, has_no_size());
}

TEST_P(pair, stores_one_pixel_as_one_bit)
{
	octets eblc = kept(font->eblc);
	octets expected = kept(font->ebdt);
	auto edited = read(2);
	// Row 1, column 3: bit 3 of the row's own octets, or bit 12 of all.
	edited->pixels[9 + 3] = 0;
	EXPECT_EQ(font->set_bitmap(edited.get()), 0);
	bool aligned = image_format == 1 || image_format == 6;
	expected[tables.place(1) + (aligned ? 2 : 1)] ^= aligned ? 0x10 : 0x08;
	EXPECT_TRUE(same(expected, kept(font->ebdt)));
	EXPECT_TRUE(same(eblc, kept(font->eblc)));
}

TEST_P(pair, stores_any_pixels_and_reads_them_again)
{
	const picture noise = {"#..##.#.#", ".##..#.##", "##.#.#..."};
	auto edited = read(2);
	auto source = bitmap_from(noise);
	std::copy(source->pixels, source->pixels + 27, edited->pixels);
	EXPECT_EQ(font->set_bitmap(edited.get()), 0);
	EXPECT_EQ(font->get_bitmap(edited.get()), 0);
	EXPECT_EQ(content(*edited).rows, noise);
	EXPECT_EQ(content(*read(1)).rows, ring);
	EXPECT_EQ(content(*read(3)).rows, comb);
}

TEST_P(pair, stores_what_it_reads_as_it_stands)
{
	for (int glyph = 1; glyph <= 3; glyph++)
		EXPECT_EQ(font->set_bitmap(read(glyph).get()), 0);
	EXPECT_TRUE(same(tables.ebdt(), kept(font->ebdt)));
}
