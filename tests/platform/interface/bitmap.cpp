// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Pixels in memory, and drawing them. No application object anywhere.
#include "platform/interface/stage.h"

#include <cmath>
#include <cstring>
#include <Errors.h>
#include <gtest/gtest.h>
#include <thread>

namespace {

// 2 x 2 pixels: red and green above blue and black.
class four_colours : public BBitmap {
public:
	four_colours() : BBitmap(BRect(0, 0, 1, 1), B_RGB32)
	{
		const uint32 pixels[] = {0xFFFF0000, 0xFF00FF00, 0xFF0000FF, 0xFF000000};
		memcpy(Bits(), pixels, sizeof pixels);
	}
};

}


TEST(bitmap, has_the_pixels_of_its_bounds_edges_included)
{
	BBitmap bitmap(BRect(0, 0, 9, 4), B_RGB32);
	EXPECT_TRUE(bitmap.IsValid());
	EXPECT_EQ(bitmap.InitCheck(), B_OK);
	EXPECT_EQ(bitmap.BytesPerRow(), 40);
	EXPECT_EQ(bitmap.BitsLength(), 200);
	EXPECT_EQ(bitmap.Bounds(), BRect(0, 0, 9, 4));
	EXPECT_EQ(bitmap.ColorSpace(), B_RGB32);
}


TEST(bitmap, bounds_need_not_start_at_the_origin)
{
	BBitmap bitmap(BRect(10, 20, 12, 21), B_RGBA32);
	EXPECT_EQ(bitmap.BytesPerRow(), 12);
	EXPECT_EQ(bitmap.BitsLength(), 24);
	EXPECT_EQ(bitmap.Bounds(), BRect(10, 20, 12, 21));
	EXPECT_EQ(bitmap.ColorSpace(), B_RGBA32);
}


TEST(bitmap, starts_with_all_bits_zero)
{
	BBitmap bitmap(BRect(0, 0, 1, 0), B_RGB32);
	EXPECT_EQ(memcmp(bitmap.Bits(), "\0\0\0\0\0\0\0\0", 8), 0);
}


TEST(bitmap, invalid_bounds_make_it_invalid)
{
	BBitmap bitmap(BRect(), B_RGB32, true);
	EXPECT_FALSE(bitmap.IsValid());
	EXPECT_NE(bitmap.InitCheck(), B_OK);
	EXPECT_EQ(bitmap.Bits(), nullptr);
	EXPECT_EQ(bitmap.BitsLength(), 0);
	EXPECT_EQ(bitmap.BytesPerRow(), 0);
}


TEST(bitmap, other_colour_spaces_make_it_invalid)
{
	EXPECT_FALSE(BBitmap(BRect(0, 0, 9, 9), B_CMAP8).IsValid());
	EXPECT_FALSE(BBitmap(BRect(0, 0, 9, 9), B_GRAY1).IsValid());
}


TEST(bitmap, sizes_beyond_all_memory_make_it_invalid)
{
	EXPECT_FALSE(BBitmap(BRect(0, 0, 1e6F, 1e6F), B_RGB32).IsValid());
	EXPECT_FALSE(BBitmap(BRect(0, 0, INFINITY, 0), B_RGB32).IsValid());
	EXPECT_FALSE(BBitmap(BRect(0, 0, NAN, 9), B_RGB32).IsValid());
}


TEST(bitmap, an_invalid_one_takes_no_views)
{
	BBitmap bitmap(BRect(), B_RGB32, true);
	BView view(BRect(0, 0, 9, 9), "view", B_FOLLOW_NONE, 0);
	EXPECT_FALSE(bitmap.Lock());
	bitmap.AddChild(&view);
	EXPECT_EQ(bitmap.CountChildren(), 0);
	EXPECT_EQ(view.Window(), nullptr);
}


TEST(bitmap, takes_no_views_unless_asked_to)
{
	BBitmap bitmap(BRect(0, 0, 9, 9), B_RGB32);
	BView view(BRect(0, 0, 9, 9), "view", B_FOLLOW_NONE, 0);
	EXPECT_FALSE(bitmap.Lock());
	EXPECT_FALSE(bitmap.IsLocked());
	bitmap.AddChild(&view);
	EXPECT_EQ(view.Window(), nullptr);
	EXPECT_EQ(bitmap.ChildAt(0), nullptr);
	EXPECT_EQ(bitmap.FindView("view"), nullptr);
	EXPECT_FALSE(bitmap.RemoveChild(&view));
}


TEST(bitmap, a_pixel_is_blue_green_red_and_one_byte_more)
{
	sheet page(2, 1);
	BView& view = page.whole();
	view.SetHighColor(1, 2, 3);
	view.FillRect(BRect(1, 0, 1, 0));
	EXPECT_EQ(memcmp((char*)page.bitmap.Bits() + 4, "\x03\x02\x01", 3), 0);
}


TEST(bitmap, attaching_a_view_erases_nothing)
{
	sheet page(2, 2);
	memset(page.bitmap.Bits(), 0, 16);
	BView& view = page.whole();
	view.Invalidate();
	view.Sync();
	EXPECT_EQ(page.picture(),
		"##\n"
		"##\n");
}


TEST(bitmap, its_views_are_never_asked_to_draw)
{
	sheet page(9, 9);
	auto& view = page.add(new test_view(BRect(0, 0, 8, 8)));
	view.Invalidate();
	page.bitmap.Unlock();
	page.bitmap.Lock();
	EXPECT_EQ(view.draws, std::vector<BRect>{});
}


TEST(bitmap, views_come_and_go)
{
	sheet page(9, 9);
	BView view(BRect(0, 0, 8, 8), "view", B_FOLLOW_NONE, 0);
	page.add(&view);
	EXPECT_EQ(page.bitmap.CountChildren(), 1);
	EXPECT_EQ(page.bitmap.ChildAt(0), &view);
	EXPECT_EQ(page.bitmap.FindView("view"), &view);
	EXPECT_TRUE(page.bitmap.RemoveChild(&view));
	EXPECT_FALSE(page.bitmap.RemoveChild(&view));
	EXPECT_EQ(page.bitmap.CountChildren(), 0);
}


TEST(bitmap, what_a_view_drew_stays_when_the_view_has_gone)
{
	sheet page(2, 1);
	BView view(BRect(0, 0, 0, 0), "view", B_FOLLOW_NONE, 0);
	page.add(&view);
	view.FillRect(BRect(0, 0, 9, 9));
	view.RemoveSelf();
	EXPECT_EQ(page.picture(), "#.\n");
}


TEST(bitmap, deletes_the_views_that_are_left)
{
	bool told = false;
	{
		sheet page(9, 9);
		page.add(new test_view(BRect(0, 0, 8, 8))).on_detached = [&] { told = true; };
	}
	EXPECT_TRUE(told);
}


TEST(bitmap, is_locked_for_one_thread)
{
	BBitmap bitmap(BRect(0, 0, 9, 9), B_RGB32, true);
	EXPECT_FALSE(bitmap.IsLocked());
	EXPECT_TRUE(bitmap.Lock());
	EXPECT_TRUE(bitmap.IsLocked());
	bool elsewhere = true;
	std::thread([&] { elsewhere = bitmap.IsLocked(); }).join();
	EXPECT_FALSE(elsewhere);
	bitmap.Unlock();
	EXPECT_FALSE(bitmap.IsLocked());
}


TEST(draw_bitmap, puts_the_left_top_at_the_place)
{
	sheet page(5, 4);
	page.whole().DrawBitmap(std::make_unique<four_colours>().get(), BPoint(2, 1));
	EXPECT_EQ(page.picture(),
		".....\n"
		"..rg.\n"
		"..b#.\n"
		".....\n");
}


TEST(draw_bitmap, without_a_place_goes_to_the_pen_and_leaves_it)
{
	sheet page(4, 3);
	BView& view = page.whole();
	four_colours bitmap;
	view.MovePenTo(1, 1);
	view.DrawBitmap(&bitmap);
	EXPECT_EQ(page.picture(),
		"....\n"
		".rg.\n"
		".b#.\n");
	EXPECT_EQ(view.PenLocation(), BPoint(1, 1));
}


TEST(draw_bitmap, is_cut_at_the_edges)
{
	sheet page(3, 2);
	BView& view = page.whole();
	four_colours bitmap;
	view.DrawBitmap(&bitmap, BPoint(-1, -1));
	view.DrawBitmap(&bitmap, BPoint(2, 1));
	EXPECT_EQ(page.picture(),
		"#..\n"
		"..r\n");
}


TEST(draw_bitmap, truncates_the_place)
{
	sheet page(3, 2);
	four_colours bitmap;
	page.whole().DrawBitmap(&bitmap, BPoint(1.9F, 0.5F));
	EXPECT_EQ(page.picture(),
		".rg\n"
		".b#\n");
}


TEST(draw_bitmap, of_no_bitmap_or_an_invalid_one_draws_nothing)
{
	sheet page(2, 1);
	BView& view = page.whole();
	BBitmap invalid(BRect(), B_RGB32);
	view.DrawBitmap(nullptr);
	view.DrawBitmap(nullptr, BPoint(0, 0));
	view.DrawBitmap(&invalid, BPoint(0, 0));
	EXPECT_EQ(page.picture(), "..\n");
}


TEST(draw_bitmap, at_a_place_that_is_no_number_draws_nothing)
{
	sheet page(2, 1);
	four_colours bitmap;
	page.whole().DrawBitmap(&bitmap, BPoint(NAN, 0));
	page.whole().DrawBitmap(&bitmap, BPoint(0, INFINITY));
	EXPECT_EQ(page.picture(), "..\n");
}


TEST(draw_bitmap, takes_what_views_have_drawn_into_it)
{
	sheet stamp(2, 2);
	stamp.whole().StrokeLine(BPoint(0, 0), BPoint(1, 1));
	sheet page(4, 2);
	page.whole().DrawBitmap(&stamp.bitmap, BPoint(1, 0));
	EXPECT_EQ(page.picture(),
		".#..\n"
		"..#.\n");
}
