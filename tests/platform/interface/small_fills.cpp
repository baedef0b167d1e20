// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Fills of a few pixels are painted in a way of their own; they look like all others.
#include <Bitmap.h>
#include <cstring>
#include <gtest/gtest.h>
#include <vector>
#include <View.h>

namespace {

// Pixels with a view over a part of them: the fills reach over its edges.
class sheet {
public:
	sheet() : fBitmap(BRect(0, 0, 79, 79), B_RGB32, true)
	{
		memset(fBitmap.Bits(), 0x35, (size_t)fBitmap.BitsLength());
		fBitmap.Lock();
		fView = new BView(BRect(8, 8, 63, 63), "part", B_FOLLOW_NONE, B_WILL_DRAW);
		fBitmap.AddChild(fView);
		fView->SetHighColor(200, 100, 50);
		fView->SetLowColor(200, 100, 50);
	}
	~sheet() { fBitmap.Unlock(); }

	BView& view() { return *fView; }
	std::vector<uint8> pixels()
	{
		fView->Sync();
		auto* bits = static_cast<uint8*>(fBitmap.Bits());
		return {bits, bits + fBitmap.BitsLength()};
	}

private:
	BBitmap fBitmap;
	BView* fView;
};


using filling = void (*)(BView&, BRect, pattern);


// All sizes that count as small, and some beyond, within the view and over its corners. Both colours
// are the same, so that both patterns paint the same; only one of them is painted the short way.
void
expect_alike(filling fill)
{
	for (float side = 0; side < 36; side += 1) {
		for (BPoint at : {BPoint(10, 12), BPoint(-3, -2), BPoint(50, 40), BPoint(3.75f, 60)}) {
			BRect place(at.x, at.y, at.x + side, at.y + side * 0.75f);
			sheet quick, slow;
			fill(quick.view(), place, B_SOLID_HIGH);
			fill(slow.view(), place, B_SOLID_LOW);
			EXPECT_TRUE(quick.pixels() == slow.pixels()) << side << " at " << at.x;
		}
	}
}

}


TEST(small_fills, of_rectangles_paint_what_large_ones_paint)
{
	expect_alike([](BView& view, BRect place, pattern p) { view.FillRect(place, p); });
}


TEST(small_fills, of_ellipses_paint_what_large_ones_paint)
{
	expect_alike([](BView& view, BRect place, pattern p) { view.FillEllipse(place, p); });
}


TEST(small_fills, invert_every_pixel_that_a_copy_would_paint)
{
	sheet inverted, copied;
	inverted.view().SetDrawingMode(B_OP_INVERT);
	for (sheet* each : {&inverted, &copied})
		each->view().FillEllipse(BRect(10, 10, 16, 14));
	std::vector<uint8> before = sheet().pixels();
	std::vector<uint8> ones = inverted.pixels();
	std::vector<uint8> others = copied.pixels();
	int count = 0;
	for (size_t i = 0; i < ones.size(); i += 4) {
		bool painted = memcmp(&others[i], &before[i], 3) != 0;
		EXPECT_EQ(ones[i], painted ? 0xCA : 0x35);
		EXPECT_EQ(ones[i + 2], painted ? 0xCA : 0x35);
		count += painted;
	}
	EXPECT_GE(count, 20);
	EXPECT_LE(count, 35);
}


TEST(small_fills, inverted_twice_leave_nothing)
{
	sheet twice;
	twice.view().SetDrawingMode(B_OP_INVERT);
	twice.view().SetScale(1.25f);
	for (int i = 0; i < 2; i++) {
		twice.view().FillEllipse(BRect(10.3f, 10.6f, 14.3f, 14.6f));
		twice.view().FillRect(BRect(12.3f, 11.6f, 16.3f, 15.6f));
	}
	std::vector<uint8> before = sheet().pixels();
	std::vector<uint8> after = twice.pixels();
	for (size_t i = 0; i < after.size(); i++) {
		if (i % 4 != 3) {
			ASSERT_EQ(after[i], before[i]) << i;
		}
	}
}
