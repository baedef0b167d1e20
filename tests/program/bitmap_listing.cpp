// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The listing of EBLC.
#include "app/kernix.h"
#include "program/panel_user.h"
#include "support/strikes.h"
#include "support/temp_files.h"

#include <Bitmap.h>
#include <gtest/gtest.h>
#include <QImage>
#include <View.h>

using column = std::vector<std::string>;

static const column labels = {"version", "numSizes", "colorRef", "hori-ascender", "hori-descender",
	"hori-widthMax", "hori-caretSlopeNumerator", "hori-caretSlopeDenominator", "hori-caretOffset",
	"hori-minOriginSB", "hori-minAdvanceSB", "hori-maxBeforeBL", "hori-minAfterBL", "hori-pad1",
	"hori-pad2", "vert-ascender", "vert-descender", "vert-widthMax", "vert-caretSlopeNumerator",
	"vert-caretSlopeDenominator", "vert-caretOffset", "vert-minOriginSB", "vert-minAdvanceSB",
	"vert-maxBeforeBL", "vert-minAfterBL", "vert-pad1", "vert-pad2", "startGlyphIndex",
	"endGlyphIndex", "ppemX", "ppemY", "bitDepth", "flags"};

// Of one size each: places that are not listed, then what is.
static const std::string first_size = "00000111 00000222 00000333 12345678"
									  "01020304 05060708 090a0b0c 81828384 85868788 898a8b8c"
									  "0001 00fe 0c0d 01 02";
static const std::string second_size = "00000000 00000000 00000000 90abcdef"
									   "f1f2f3f4 f5f6f7f8 f9fafbfc e1e2e3e4 e5e6e7e8 e9eaebec"
									   "0203 fffe 1011 08 ff";

static const column first_values = {"12345678", "01", "02", "03", "04", "05", "06", "07", "08",
	"09", "0a", "0b", "0c", "81", "82", "83", "84", "85", "86", "87", "88", "89", "8a", "8b", "8c",
	"0001", "00fe", "0c", "0d", "01", "02"};
static const column second_values = {"90abcdef", "f1", "f2", "f3", "f4", "f5", "f6", "f7", "f8",
	"f9", "fa", "fb", "fc", "e1", "e2", "e3", "e4", "e5", "e6", "e7", "e8", "e9", "ea", "eb", "ec",
	"0203", "fffe", "10", "11", "08", "ff"};


static void
write(BView* view, const column& texts, float x, float baseline)
{
	for (const std::string& text : texts) {
		view->DrawString(text.c_str(), BPoint(x, baseline));
		baseline += 15;
	}
}


// Labels of the plain size would run into the values here: they are written smaller.
static bool
is_long_label(int x, int y)
{
	int row = (y - 9) / 15;
	return x < 169 && (row == 6 || row == 7 || row == 18 || row == 19);
}


// Whether the panel shows the labels, the header's two values, and these columns beside each other.
static testing::AssertionResult
lists(robot& user, const column& header, const std::vector<column>& sizes)
{
	BBitmap bitmap(BRect(0, 0, 561, 511), B_RGB32, true);
	auto* view = new BView(bitmap.Bounds(), "expected", B_FOLLOW_NONE, B_WILL_DRAW);
	bitmap.Lock();
	bitmap.AddChild(view);
	view->SetHighColor(255, 255, 255);
	view->SetLowColor(0, 0, 0);
	view->FillRect(view->Bounds(), B_SOLID_LOW);
	write(view, labels, 20, 20);
	view->FillRect(BRect(169, 0, 561, 511), B_SOLID_LOW);
	write(view, header, 170, 20);
	for (size_t i = 0; i < sizes.size(); i++)
		write(view, sizes[i], 170 + 70 * (float)i, 50);
	view->Sync();
	bitmap.Unlock();
	QImage expected(
		(const uchar*)bitmap.Bits(), 562, 512, bitmap.BytesPerRow(), QImage::Format_RGB32);
	QImage seen = user.picture().copy(0, 53, 562, 512).convertToFormat(QImage::Format_RGB32);
	for (int y = 0; y < 512; y++) {
		for (int x = 0; x < 562; x++) {
			bool same = ((expected.pixel(x, y) ^ seen.pixel(x, y)) & 0xFFFFFF) == 0;
			if (!same && !is_long_label(x, y))
				return testing::AssertionFailure() << "another pixel at " << x << ", " << y;
		}
	}
	return testing::AssertionSuccess();
}


// Opens a font with this table alone of the two, and looks at its panel.
static void
at_listing(const octets& table, const std::function<void(kernix&, robot&)>& work)
{
	temp_file font(tiny_font().with("EBLC", table));
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		user.click(place_of_tag(0));
		work(app, user);
	});
}


TEST(bitmap_listing, has_a_column_for_each_size)
{
	at_listing(hex("00020000 00000002" + first_size + second_size), [](kernix&, robot& user) {
		EXPECT_TRUE(lists(user, {"00020000", "00000002"}, {first_values, second_values}));
	});
}


TEST(bitmap_listing, writes_long_labels_up_to_the_values)
{
	at_listing(hex("00020000 00000001" + first_size), [](kernix&, robot& user) {
		// The rows of hori-caretSlopeDenominator and vert-caretSlopeDenominator.
		for (float row : {7.0f, 19.0f}) {
			float top = 53 + 9 + 15 * row;
			EXPECT_LT(user.count(BRect(140, top, 168, top + 14), {0, 0, 0, 255}), 29 * 15);
			EXPECT_EQ(user.count(BRect(169, top, 169, top + 14), {0, 0, 0, 255}), 15);
		}
	});
}


TEST(bitmap_listing, has_no_controls)
{
	at_listing(hex("00020000 00000001" + first_size), [](kernix& app, robot&) {
		BView* panel = panel_of(app, "EBLC");
		looking(app, [&] { EXPECT_EQ(panel->CountChildren(), 0); });
	});
}


TEST(bitmap_listing, of_many_sizes_ends_with_the_panel)
{
	std::string table = "00020000 00000009";
	for (int i = 0; i < 9; i++)
		table += i % 2 == 0 ? first_size : second_size;
	at_listing(hex(table), [](kernix&, robot& user) {
		EXPECT_TRUE(lists(user, {"00020000", "00000009"},
			{first_values, second_values, first_values, second_values, first_values,
				second_values}));
	});
}


TEST(bitmap_listing, shows_nothing_for_what_a_short_table_does_not_have)
{
	at_listing(part(hex("00020000 ffffffff" + first_size), 0, 8 + 17), [](kernix&, robot& user) {
		EXPECT_TRUE(lists(user, {"00020000", "ffffffff"}, {{"12345678", "01"}}));
	});
	const octets short_table = hex("00020000 0000");
	at_listing(short_table, [](kernix&, robot& user) {
		EXPECT_TRUE(lists(user, {"00020000", ""}, {})) << "a header that is cut";
	});
}


TEST(bitmap_listing, saves_the_table_as_it_was)
{
	octets table = hex("00020000 00000002" + first_size + second_size);
	at_listing(table, [&](kernix&, robot& user) { EXPECT_EQ(saved_table(user, "EBLC"), table); });
}
