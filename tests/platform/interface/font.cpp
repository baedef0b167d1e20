// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Text styles, and text in a view. Text needs a display, so there is an application around it.
#include "platform/interface/stage.h"

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <Font.h>
#include <gtest/gtest.h>

namespace {

void
with_display(const std::function<void()>& work)
{
	with_application<plain_application>([&](plain_application&, robot&) { work(); });
}


uint32
pixel(const sheet& page, int x, int y)
{
	uint32 found;
	memcpy(&found, (char*)page.bitmap.Bits() + y * page.bitmap.BytesPerRow() + 4 * x, 4);
	return found & 0xFFFFFF;
}


// How many pixels from (left, top) to (right, bottom) are not white.
int
count_inked(const sheet& page, int left, int top, int right, int bottom)
{
	int inked = 0;
	for (int y = top; y <= bottom; y++) {
		for (int x = left; x <= right; x++)
			inked += pixel(page, x, y) != 0xFFFFFF;
	}
	return inked;
}

}


TEST(font, is_the_plain_one_of_12_pixels_at_first)
{
	const BFont font;
	EXPECT_EQ(font.Size(), 12);
	EXPECT_EQ(font.Face(), B_REGULAR_FACE);
}


TEST(font, the_screen_fonts_are_there_without_an_application)
{
	EXPECT_EQ(be_plain_font->Size(), 12);
	EXPECT_EQ(be_plain_font->Face(), B_REGULAR_FACE);
	EXPECT_EQ(be_bold_font->Face(), B_BOLD_FACE);
}


TEST(font, copies_are_independent)
{
	BFont font(be_plain_font);
	font.SetSize(10);
	BFont copy(font);
	copy.SetSize(30);
	EXPECT_EQ(be_plain_font->Size(), 12);
	EXPECT_EQ(font.Size(), 10);
	EXPECT_EQ(copy.Size(), 30);
}


TEST(font, copied_from_none_is_the_plain_one)
{
	const BFont font((const BFont*)nullptr);
	EXPECT_EQ(font.Size(), 12);
}


TEST(font, sizes_that_make_no_sense_are_ignored)
{
	BFont font;
	font.SetSize(10);
	font.SetSize(0);
	font.SetSize(-3);
	font.SetSize(NAN);
	font.SetSize(INFINITY);
	EXPECT_EQ(font.Size(), 10);
}


TEST(font, text_has_no_width_without_a_display)
{
	GTEST_FLAG_SET(death_test_style, "threadsafe");
	EXPECT_EXIT(
		exit(be_plain_font->StringWidth("wide") == 0 ? 7 : 1), testing::ExitedWithCode(7), "");
}


TEST(font, text_is_not_drawn_without_a_display)
{
	GTEST_FLAG_SET(death_test_style, "threadsafe");
	EXPECT_EXIT(
		{
			sheet page(40, 20);
			BView& view = page.whole();
			view.DrawString("text", BPoint(2, 15));
			exit(count_inked(page, 0, 0, 39, 19) + (int)view.PenLocation().x);
		},
		testing::ExitedWithCode(2), "");
}


TEST(font, widths_are_those_of_the_screen_font)
{
	with_display([] {
		const BFont font;
		EXPECT_EQ(font.StringWidth(""), 0);
		EXPECT_EQ(font.StringWidth(nullptr), 0);
		EXPECT_EQ(font.StringWidth("i"), 3);
		EXPECT_EQ(font.StringWidth("m"), 12);
		EXPECT_EQ(font.StringWidth("mim"), 27);
		EXPECT_EQ(font.StringWidth("\xC3\xA9"), font.StringWidth("e"));
	});
}


TEST(font, the_height_is_that_of_the_screen_font)
{
	with_display([] {
		font_height height = {0, 0, 0};
		BFont().GetHeight(&height);
		EXPECT_EQ(height.ascent, 12);
		EXPECT_EQ(height.descent, 3);
	});
}


TEST(font, larger_and_bolder_is_wider)
{
	with_display([] {
		BFont large;
		large.SetSize(24);
		EXPECT_GT(large.StringWidth("width"), 1.8F * be_plain_font->StringWidth("width"));
		EXPECT_GT(be_bold_font->StringWidth("width"), be_plain_font->StringWidth("width"));
	});
}


TEST(view_font, starts_plain_and_is_set_whole)
{
	BView view(BRect(0, 0, 9, 9), "view", B_FOLLOW_NONE, 0);
	BFont font(be_bold_font);
	font.SetSize(20);
	view.SetFont(&font);
	BFont found;
	view.GetFont(&found);
	EXPECT_EQ(found.Size(), 20);
	EXPECT_EQ(found.Face(), B_BOLD_FACE);
}


TEST(view_font, is_set_in_part_by_a_mask)
{
	BView view(BRect(0, 0, 9, 9), "view", B_FOLLOW_NONE, 0);
	BFont font(be_bold_font);
	font.SetSize(20);
	view.SetFont(&font, B_FONT_SIZE);
	BFont found;
	view.GetFont(&found);
	EXPECT_EQ(found.Size(), 20);
	EXPECT_EQ(found.Face(), B_REGULAR_FACE);
	font.SetSize(30);
	view.SetFont(&font, B_FONT_FACE);
	view.GetFont(&found);
	EXPECT_EQ(found.Size(), 20);
	EXPECT_EQ(found.Face(), B_BOLD_FACE);
}


TEST(view_font, no_font_changes_nothing)
{
	BView view(BRect(0, 0, 9, 9), "view", B_FOLLOW_NONE, 0);
	view.SetFontSize(15);
	view.SetFont(nullptr);
	BFont found;
	view.GetFont(&found);
	EXPECT_EQ(found.Size(), 15);
}


TEST(view_font, measures_text_by_the_views_font)
{
	with_display([] {
		BView view(BRect(0, 0, 9, 9), "view", B_FOLLOW_NONE, 0);
		EXPECT_EQ(view.StringWidth("mim"), 27);
		view.SetFontSize(24);
		EXPECT_GT(view.StringWidth("mim"), 48);
	});
}


TEST(draw_string, paints_within_reach_of_the_baseline)
{
	with_display([] {
		sheet page(80, 40);
		page.whole().DrawString("mim", BPoint(20, 25));
		EXPECT_GT(count_inked(page, 20, 13, 47, 25), 40);
		EXPECT_EQ(count_inked(page, 0, 0, 79, 39), count_inked(page, 20, 13, 47, 25));
	});
}


TEST(draw_string, paints_in_the_high_colour)
{
	with_display([] {
		sheet page(60, 30);
		BView& view = page.whole();
		view.SetHighColor(red);
		view.DrawString("lll", BPoint(5, 20));
		int dense = 0;
		for (int y = 0; y < 30; y++) {
			for (int x = 0; x < 60; x++) {
				uint32 found = pixel(page, x, y);
				dense += (found & 0xFF) < 0x40;
				// Edges are mixed of the high colour and the white behind.
				EXPECT_EQ(found >> 16, 0xFFU);
				EXPECT_EQ(found >> 8 & 0xFF, found & 0xFF);
			}
		}
		EXPECT_GT(dense, 20);
	});
}


TEST(draw_string, leaves_the_pen_at_the_end_of_the_text)
{
	with_display([] {
		sheet page(80, 40);
		BView& view = page.whole();
		view.DrawString("mim", BPoint(20, 25));
		EXPECT_EQ(view.PenLocation(), BPoint(47, 25));
	});
}


TEST(draw_string, goes_on_where_the_pen_is)
{
	with_display([] {
		sheet whole(80, 40);
		whole.whole().DrawString("mm", BPoint(20, 25));
		sheet parts(80, 40);
		BView& view = parts.whole();
		view.MovePenTo(20, 25);
		view.DrawString("m");
		view.DrawString("m");
		EXPECT_EQ(view.PenLocation(), BPoint(44, 25));
		EXPECT_EQ(parts.picture(), whole.picture());
	});
}


TEST(draw_string, takes_as_many_bytes_as_it_is_told)
{
	with_display([] {
		sheet part(80, 40);
		BView& view = part.whole();
		view.DrawString("mim", 1, BPoint(20, 25));
		EXPECT_EQ(view.PenLocation(), BPoint(32, 25));
		EXPECT_EQ(count_inked(part, 33, 0, 79, 39), 0);
	});
}


TEST(draw_string, of_nothing_draws_nothing_and_leaves_the_pen)
{
	with_display([] {
		sheet page(20, 20);
		BView& view = page.whole();
		view.MovePenTo(1, 2);
		view.DrawString(nullptr);
		view.DrawString(nullptr, BPoint(5, 15));
		view.DrawString("mm", 0, BPoint(5, 15));
		view.DrawString("mm", -4, BPoint(5, 15));
		EXPECT_EQ(view.PenLocation(), BPoint(1, 2));
		EXPECT_EQ(count_inked(page, 0, 0, 19, 19), 0);
	});
}


TEST(draw_string, at_a_place_that_is_no_number_draws_nothing)
{
	with_display([] {
		sheet page(20, 20);
		BView& view = page.whole();
		view.DrawString("mm", BPoint(NAN, 15));
		view.DrawString("mm", BPoint(2, INFINITY));
		EXPECT_EQ(view.PenLocation(), BPoint(0, 0));
		EXPECT_EQ(count_inked(page, 0, 0, 19, 19), 0);
	});
}


TEST(draw_string, ends_at_the_views_edges)
{
	with_display([] {
		sheet page(60, 30);
		auto& view = page.add(new test_view(BRect(10, 10, 19, 29)));
		view.DrawString("mmmm", BPoint(-3, 10));
		EXPECT_GT(count_inked(page, 10, 10, 19, 29), 10);
		EXPECT_EQ(count_inked(page, 0, 0, 59, 29), count_inked(page, 10, 10, 19, 29));
	});
}


TEST(draw_string, of_what_is_not_utf_8_does_no_harm)
{
	with_display([] {
		sheet page(60, 30);
		BView& view = page.whole();
		view.DrawString("\xFF\xFE\xC3", BPoint(5, 20));
		EXPECT_GE(view.PenLocation().x, 5);
	});
}
