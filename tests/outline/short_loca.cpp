// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Glyphs stored in a font whose loca has 16-bit entries, up to the end of what these reach and beyond.
#include "font/ttf_head.h"
#include "font/ttf_loca.h"
#include "outline/font_outlines.h"
#include "outline/glyf_fixture.h"
#include "outline/shape.h"
#include "support/font_file.h"
#include "support/opened.h"
#include "support/real_font.h"

#include <gtest/gtest.h>

namespace {

// Short offsets; so many glyphs, of which every tenth is empty and each other one a square of its
// own size, between bytes that belong to none. The last glyph begins at `last`.
font_file
short_font(int glyphs, uint32_t last)
{
	octets glyf;
	octets loca = zeros(2 * size_t(glyphs) + 2);
	for (int i = 0; i < glyphs; i++) {
		if (i == glyphs - 1)
			glyf.resize(last);
		put_be16(loca, 2 * size_t(i), uint16_t(glyf.size() / 2));
		if (i % 10 == 0)
			continue;
		glyph square(0);
		square.add_shape(box(0, 0, float(i), float(2 * i)).release());
		const octets record = encoded(square);
		glyf.insert(glyf.end(), record.begin(), record.end());
	}
	put_be16(loca, 2 * size_t(glyphs), uint16_t(glyf.size() / 2));
	octets maxp = tiny_font().table("maxp");
	put_be16(maxp, 4, uint16_t(glyphs));
	octets head = tiny_font().table("head");
	put_be16(head, 50, 0);
	octets hmtx;
	for (int i = 0; i < 2; i++)
		hmtx.insert(hmtx.end(), {2, 0, 0, 0});
	hmtx.resize(hmtx.size() + 2 * size_t(glyphs));
	return tiny_font()
		.with("glyf", glyf)
		.with("loca", loca)
		.with("maxp", maxp)
		.with("head", head)
		.with("hmtx", hmtx);
}


// A hundred glyphs, the last of which, of 22 bytes, ends at this place.
font_file
full_font(uint32_t end)
{
	return short_font(100, end - 22);
}


uint32_t
end_of(const ttf& font)
{
	return font.glyf->length;
}


// Makes a glyph longer by a contour of 1000 points.
void
lengthen(ttf& font, int index)
{
	glyph_ptr outline = decoded(font, index);
	shape_ptr wave = row(1000);
	for (int i = 0; i < wave->num; i++)
		wave->pts[i] = BPoint(float(300 * (i % 2)), float(i));
	wave->ctrlp2form();
	outline->add_shape(wave.release());
	ASSERT_EQ(font.set_glyph(index, outline.get()), 0);
	ASSERT_TRUE(same_contours(*decoded(font, index), *outline));
}


// FreeType and the program find every glyph as it was but for the stored ones, so many from the
// first one on, and those that have them as components. Of the stored ones the two see the same.
void
expect_others_unchanged(const octets& before, ttf& font, uint16_t first_stored, uint16_t count = 1)
{
	const auto stored_in = [&](size_t glyph) {
		bool found = false;
		for (uint16_t i = 0; i < count; i++)
			found = found || font.glyf->contains(uint16_t(glyph), uint16_t(first_stored + i));
		return found;
	};
	const octets after = saved(font);
	own_eyes old(before);
	own_eyes fresh(after);
	judge first(before);
	judge second(after);
	font_ptr original = opened(before);
	for (size_t i = 0; i < old.glyphs; i++) {
		if (stored_in(i))
			continue;
		ASSERT_TRUE(same_contours(*decoded(*original, int(i)), *decoded(font, int(i)))) << i;
		const FT_Outline* was = first.outline(i);
		const FT_Outline* is = second.outline(i);
		ASSERT_EQ(was == nullptr, is == nullptr) << "glyph " << i;
		ASSERT_TRUE(was == nullptr || agree(*was, old.shift(i), *is, fresh.shift(i))) << i;
	}
	for (uint16_t i = first_stored; i < first_stored + count; i++) {
		const FT_Outline* outline = second.outline(i);
		ASSERT_NE(outline, nullptr);
		ASSERT_TRUE(agree(*outline, fresh.shift(i), *decoded(font, i))) << "glyph " << i;
	}
}


class short_font_file : public testing::TestWithParam<const char*> {
protected:
	void SetUp() override { read_real_font(GetParam(), file); }

	octets file;
};

INSTANTIATE_TEST_SUITE_P(installed, short_font_file,
	testing::Values("LiberationSerif-Regular.ttf", "TerminusTTF-4.46.0.ttf"),
	[](const auto& chosen) {
		std::string name = chosen.param;
		return name.substr(0, name.find('-'));
	});

}


TEST(short_loca, stays_short_while_all_places_fit)
{
	const octets file = full_font(131070 - 4000);
	font_ptr font = opened(file);
	lengthen(*font, 5);
	EXPECT_FALSE(font->head->is32loca());
	EXPECT_EQ(font->loca->length, 202u);
	expect_others_unchanged(file, *font, 5);
}


TEST(short_loca, becomes_long_before_a_place_passes_its_last)
{
	const octets file = full_font(131070 - 3000);
	font_ptr font = opened(file);
	lengthen(*font, 5);
	EXPECT_TRUE(font->head->is32loca());
	EXPECT_EQ(font->loca->length, 404u);
	EXPECT_GT(end_of(*font), 131070u);
	expect_others_unchanged(file, *font, 5);
}


TEST(short_loca, goes_on_growing_when_it_is_long)
{
	const octets file = full_font(120000);
	font_ptr font = opened(file);
	for (int i = 0; i < 20; i++)
		lengthen(*font, 7);
	EXPECT_GT(end_of(*font), 180000u);
	expect_others_unchanged(file, *font, 7);
}


// 22 bytes become 24: the last place moves from 131068 to 131070, which is FFFF.
TEST(short_loca, reaches_its_last_place_and_leaves_it_again)
{
	const octets file = full_font(131068);
	font_ptr font = opened(file);
	glyph_ptr outline = decoded(*font, 1);
	glyph_ptr longer = std::make_unique<glyph>(1);
	longer->add_shape(box(0, 0, 300, 300).release());
	ASSERT_EQ(font->set_glyph(1, longer.get()), 0);
	ASSERT_EQ(end_of(*font), 131070u);
	EXPECT_FALSE(font->head->is32loca());
	expect_others_unchanged(file, *font, 1);
	ASSERT_EQ(font->set_glyph(1, outline.get()), 0);
	EXPECT_EQ(end_of(*font), 131068u);
	expect_others_unchanged(file, *font, 1);
	uint32 place = 0;
	uint32 size = 0;
	ASSERT_TRUE(font->find_glyph(99, &place, &size));
	EXPECT_EQ(place + size, 131068u);
}


TEST(short_loca, stays_short_where_only_the_last_glyph_grows_and_none_is_behind_it)
{
	octets loca = full_font(131000).table("loca");
	loca.resize(loca.size() - 2);
	font_ptr font = opened(full_font(131000).with("loca", loca));
	EXPECT_EQ(font->loca->length, 200u);
	glyph_ptr outline = decoded(*font, 98);
	ASSERT_EQ(font->set_glyph(98, outline.get()), 0);
	EXPECT_EQ(font->loca->length, 200u);
}


// The entries behind the end of the last glyph are nobody's place.
TEST(short_loca, does_not_become_long_for_entries_behind_the_last_glyph)
{
	octets loca = full_font(4000).table("loca");
	loca.resize(loca.size() + 4, 0xF0);
	font_ptr font = opened(full_font(4000).with("loca", loca));
	for (int i = 0; i < 3; i++)
		lengthen(*font, 5);
	EXPECT_FALSE(font->head->is32loca());
}


// An entry of all ones outside of glyf is no place: it and those behind it do not move.
TEST(short_loca, keeps_entries_that_are_no_place)
{
	font_file built = full_font(131070 - 3000);
	octets loca = built.table("loca");
	for (size_t at = 2 * 95; at < loca.size(); at += 2)
		put_be16(loca, at, 0xFFFF);
	font_ptr font = opened(built.with("loca", loca));
	octets before = kept(font->loca);
	lengthen(*font, 5);
	EXPECT_FALSE(font->head->is32loca());
	EXPECT_EQ(part(kept(font->loca), 190, 12), hex("ffff ffff ffff ffff ffff ffff"));
	// A place near the end in front of them: the others become long, these stay none.
	loca = before;
	put_be16(loca, 2 * 94, 0xFF00);
	font = opened(built.with("loca", loca));
	lengthen(*font, 5);
	EXPECT_TRUE(font->head->is32loca());
	EXPECT_EQ(part(kept(font->loca), 380, 8), hex("ffffffff ffffffff"));
}


TEST(short_loca, with_a_piece_of_an_entry_becomes_long_too)
{
	font_file built = full_font(131070 - 3000);
	octets loca = built.table("loca");
	loca.push_back(0x12);
	font_ptr font = opened(built.with("loca", loca));
	lengthen(*font, 5);
	// What was a piece moved with the entries behind the glyph, of which it is none.
	EXPECT_EQ(font->loca->length, 408u);
	EXPECT_LT(be32(kept(font->loca), 404), 131072u);
}


TEST(short_loca, that_head_cannot_call_long_refuses_the_glyph_and_changes_nothing)
{
	font_file built = full_font(131070 - 3000);
	for (size_t length : {50u, 51u}) {
		font_ptr font = opened(built.with("head", part(built.table("head"), 0, length)));
		const octets glyf = kept(font->glyf);
		const octets loca = kept(font->loca);
		const octets head = kept(font->head);
		glyph_ptr outline = decoded(*font, 5);
		for (int i = 0; i < 2; i++) {
			shape_ptr wave = row(1000);
			outline->add_shape(wave.release());
		}
		EXPECT_EQ(font->set_glyph(5, outline.get()), -1);
		EXPECT_EQ(kept(font->glyf), glyf);
		EXPECT_EQ(kept(font->loca), loca);
		EXPECT_EQ(kept(font->head), head);
		// What fits is stored all the same.
		EXPECT_EQ(font->set_glyph(5, decoded(*font, 6).get()), 0);
	}
}


TEST(short_loca, of_any_content_can_be_made_long)
{
	font_file built = full_font(131070 - 300);
	const octets sound = built.table("loca");
	unsigned seed = 1;
	for (int turn = 0; turn < 60; turn++) {
		octets loca = sound;
		for (int i = 0; i < 1 + turn % 20; i++) {
			seed = seed * 1664525 + 1013904223;
			loca[(seed >> 8) % loca.size()] = uint8_t(seed >> 24);
		}
		loca.resize(loca.size() - size_t(turn % 7));
		font_ptr font = opened(built.with("loca", loca));
		for (int index = 0; index < 100; index += 19) {
			glyph_ptr outline = decoded(*font, 11);
			outline->add_shape(row(100).release());
			font->set_glyph(index, outline.get());
		}
		const octets file = saved(*font);
		font_ptr again = opened(file);
		for (int i = 0; i < 100; i++) {
			glyph seen(0);
			again->get_glyph(i, &seen);
		}
	}
}


TEST_P(short_font_file, keeps_all_other_outlines_for_freetype_far_beyond_the_limit)
{
	font_ptr font = opened(file);
	if (font->head->is32loca())
		GTEST_SKIP() << "this release of the font has a long loca";
	for (int i = 0; i < 40; i++)
		lengthen(*font, 36 + i % 4);
	EXPECT_GT(end_of(*font), 200000u);
	EXPECT_TRUE(font->head->is32loca());
	EXPECT_EQ(font->loca->length, 4 * font->numglyphs() + 4);
	expect_others_unchanged(file, *font, 36, 4);
}
