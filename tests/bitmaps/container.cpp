// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Bitmaps through the container.
#include "bitmaps/bitmap_fixture.h"
#include "bitmaps/ebdteditview.h"
#include "bitmaps/ebdttoolview.h"

#include <gtest/gtest.h>
#include <MenuField.h>

static const picture cross = {"#.#", ".#.", "#.#"};

TEST(container_bitmaps, are_read_and_stored_by_glyph_and_size)
{
	strikes tables;
	tables.size(12, 12).images(1, 1, 1, {cross}).size(16, 16).images(1, 3, 7, {{"####"}});
	auto font = opened(tables.in(font_for_strikes()));
	auto b = bitmap_of(*font, 1, 16, 16);
	EXPECT_EQ(content(*b).rows, picture{"####"});
	b->pixels[0] = 0;
	EXPECT_EQ(font->set_bitmap(b.get()), 0);
	EXPECT_EQ(content(*bitmap_of(*font, 1, 16, 16)).rows, picture{".###"});
	EXPECT_EQ(content(*bitmap_of(*font, 1, 12, 12)).rows, cross);
}

TEST(container_bitmaps, of_fonts_without_one_of_the_tables_are_none)
{
	font_file whole = strikes().size(12, 12).images(1, 2, 5, {cross}).in(font_for_strikes());
	for (const char* missing : {"EBLC", "EBDT"}) {
		auto font = opened(whole.without(missing));
		int answer = 0;
		auto b = bitmap_of(*font, 1, 12, 12, &answer);
		EXPECT_EQ(answer, -1) << missing;
		EXPECT_EQ(b->pixels, nullptr);
		EXPECT_EQ(font->set_bitmap(bitmap_from(cross).get()), -1);
	}
	EXPECT_EQ(ttf().get_bitmap(bitmap_from(cross).get()), -1);
	EXPECT_EQ(ttf().set_bitmap(bitmap_from(cross).get()), -1);
}

TEST(container_bitmaps, that_are_not_there_are_neither_read_nor_stored)
{
	strikes tables;
	tables.size(12, 12).images(1, 1, 1, {cross});
	auto font = opened(tables.in(font_for_strikes()));
	auto b = bitmap_from(cross);
	b->glyph = 2;
	EXPECT_EQ(font->get_bitmap(b.get()), -1);
	EXPECT_EQ(font->set_bitmap(b.get()), -1);
	EXPECT_EQ(kept(font->ebdt), tables.ebdt());
	EXPECT_EQ(content(*b).rows, cross);
}

TEST(container_bitmaps, are_stored_with_the_size_of_their_pixels)
{
	// The index sub-table tells 3 x 3 pixels.
	strikes tables;
	tables.size(12, 12).images(1, 2, 5, {cross});
	auto font = opened(tables.in(font_for_strikes()));
	auto b = bitmap_from({"##"});
	EXPECT_EQ(font->set_bitmap(b.get()), 0);
	EXPECT_EQ(b->width, 2);
	EXPECT_EQ(b->height, 1);
	EXPECT_EQ(kept(font->ebdt), hex("00020000 c080"));
}

TEST(container_bitmaps, of_an_image_format_not_known_never_part_pixels_and_size)
{
	strikes tables;
	tables.size(12, 12).images(1, 2, 5, {cross});
	octets eblc = tables.eblc();
	// The image format of the one sub-table.
	put_be16(eblc, 8 + 48 + 8 + 2, 9);
	auto font = opened(tables.in(font_for_strikes()).with("EBLC", eblc));
	auto b = bitmap_from({"#"});
	EXPECT_EQ(font->get_bitmap(b.get()), -1);
	EXPECT_EQ(b->width, 3);
	EXPECT_EQ(b->pixels, nullptr);
	auto alike = bitmap_from(cross);
	EXPECT_EQ(font->get_bitmap(alike.get()), -1);
	EXPECT_EQ(content(*alike).rows, cross);
	EXPECT_EQ(font->set_bitmap(alike.get()), -1);
}

TEST(ebdt, has_the_palette_and_the_edit_view_side_by_side)
{
	lone_tables font("", "");
	ASSERT_EQ(font.ebdt.CountChildren(), 2);
	EXPECT_EQ(font.ebdt.ChildAt(0), font.ebdt.tools);
	EXPECT_EQ(font.ebdt.ChildAt(1), font.ebdt.edit);
	EXPECT_EQ(font.ebdt.tools->Frame(), BRect(0, 0, 49, 511));
	EXPECT_EQ(font.ebdt.edit->Frame(), BRect(50, 0, 561, 511));
	EXPECT_STREQ(font.ebdt.tools->Name(), "tools");
	EXPECT_STREQ(font.ebdt.edit->Name(), "canvas");
	EXPECT_EQ(font.ebdt.tools->ResizingMode(), (uint32)B_FOLLOW_TOP_BOTTOM);
	EXPECT_EQ(font.ebdt.edit->ResizingMode(), (uint32)B_FOLLOW_ALL_SIDES);
}

TEST(ebdt, has_nothing_chosen_at_first)
{
	lone_tables font("", "");
	EXPECT_EQ(font.ebdt.edit->gno, -1);
	EXPECT_EQ(font.ebdt.edit->chr, -1);
	EXPECT_EQ(font.ebdt.edit->pt, 0);
	EXPECT_EQ(font.ebdt.edit->cur_bitmap, nullptr);
	EXPECT_EQ(font.ebdt.edit->guide_glyph, nullptr);
	EXPECT_EQ(font.ebdt.tools->gno, -1);
	EXPECT_EQ(font.ebdt.tools->chr, -1);
	EXPECT_EQ(font.ebdt.tools->pt, 0);
	EXPECT_EQ(font.ebdt.tools->strike_field, nullptr);
}

TEST(container_views, of_bitmaps_get_their_menu_each_time_they_are_attached)
{
	auto font = opened(strikes().size(12, 12).in(font_for_strikes()));
	BView parent(BRect(0, 0, 575, 578), "parent", B_FOLLOW_NONE, 0);
	font->set_view(&parent);
	font->reset_view(&parent);
	font->set_view(&parent);
	ASSERT_NE(font->ebdt->tools->strike_field, nullptr);
	EXPECT_EQ(font->ebdt->tools->CountChildren(), 1);
	font->reset_view(&parent);
}
