// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Every bitmap of every size of real fonts, with FreeType as the judge.
#include "bitmaps/bitmap_fixture.h"
#include "support/real_font.h"
#include "support/temp_files.h"

#include <gtest/gtest.h>

namespace {

struct chosen_font {
	const char* leaf;
	int sizes;
	// At least so many bitmaps with pixels.
	int bitmaps;
};

std::ostream&
operator<<(std::ostream& out, const chosen_font& font)
{
	return out << font.leaf;
}

// Fourteen sizes (Konatu), big metrics and rows of whole octets (Mona), images of one size for all
// glyphs (Misaki, Terminus), nine sizes (Terminus).
class bitmap_font : public testing::TestWithParam<chosen_font> {
protected:
	void SetUp() override
	{
		read_real_font(GetParam().leaf, file);
		if (!file.empty())
			font = opened(file);
	}

	octets file;
	std::unique_ptr<ttf> font;
};

INSTANTIATE_TEST_SUITE_P(installed, bitmap_font,
	testing::Values(chosen_font{"Konatu.ttf", 14, 1000}, chosen_font{"mona.ttf", 3, 1000},
		chosen_font{"misaki_gothic.ttf", 1, 1000}, chosen_font{"TerminusTTF-4.46.0.ttf", 9, 1000}),
	[](const auto& chosen) {
		std::string name = chosen.param.leaf;
		return name.substr(0, name.find_first_of("-._"));
	});

} // namespace

// Whether an offset of index format 1 is followed by one that is not greater. FreeType takes that for
// no bitmap; here it is one, whatever its end.
static bool
ends_at_once(const octets& eblc, int size, int glyph)
{
	size_t record = 8 + 48 * size_t(size);
	size_t array = be32(eblc, record);
	for (size_t i = 0; i < be32(eblc, record + 8); i++) {
		size_t element = array + 8 * i;
		size_t index = array + be32(eblc, element + 4);
		int first = be16(eblc, element);
		if (glyph < first || glyph > be16(eblc, element + 2) || be16(eblc, index) != 1)
			continue;
		size_t entry = index + 8 + 4 * size_t(glyph - first);
		// The last entry of all may have none behind it.
		return entry + 8 > eblc.size() || be32(eblc, entry) >= be32(eblc, entry + 4);
	}
	return false;
}


TEST_P(bitmap_font, has_the_pixels_that_freetype_finds)
{
	freetype_bitmaps other(file);
	ASSERT_EQ(other.sizes(), GetParam().sizes);
	const octets eblc = kept(font->eblc);
	int bitmaps = 0;
	for (int size = 0; size < other.sizes(); size++) {
		ASSERT_TRUE(other.choose(size));
		for (int glyph = 0; glyph < other.glyphs(); glyph++) {
			placed_picture expected;
			bool found = other.read(glyph, expected);
			int answer;
			auto ours = bitmap_of(*font, glyph, other.across(size), other.down(size), &answer);
			bool blank = expected.rows.empty() || expected.rows[0].empty();
			if (found && !blank) {
				ASSERT_EQ(answer, 0) << "size " << size << ", glyph " << glyph;
				ASSERT_EQ(content(*ours), expected) << "size " << size << ", glyph " << glyph;
				bitmaps++;
			} else if (!ends_at_once(eblc, size, glyph)) {
				ASSERT_EQ(answer, -1) << "size " << size << ", glyph " << glyph;
			}
		}
	}
	EXPECT_GE(bitmaps, GetParam().bitmaps);
}

TEST_P(bitmap_font, lists_the_sizes_that_freetype_finds)
{
	freetype_bitmaps other(file);
	octets expected;
	for (int size = 0; size < other.sizes(); size++) {
		expected.push_back(uint8_t(other.across(size)));
		expected.push_back(uint8_t(other.down(size)));
	}
	int count = 0;
	octets sizes = zeros(expected.size());
	EXPECT_EQ(font->eblc->get_sizes(&count, sizes.data()), 0);
	EXPECT_EQ(count, GetParam().sizes);
	EXPECT_EQ(sizes, expected);
}

TEST_P(bitmap_font, keeps_its_octets_when_every_bitmap_is_stored_again)
{
	octets before = kept(font->ebdt);
	for (uint16 size : font->eblc->strikes()) {
		for (uint32 glyph = 0; glyph < font->numglyphs(); glyph++) {
			auto ours = bitmap_of(*font, (int)glyph, size / 256, size % 256);
			font->set_bitmap(ours.get());
		}
	}
	EXPECT_TRUE(same(before, kept(font->ebdt)));
}
