// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The panel of OS/2: three listings.
#include "app/kernix.h"
#include "font/globals.h"
#include "font/ttf.h"
#include "program/setup_user.h"
#include "support/temp_files.h"
#include "tables/ttf_os2.h"

#include <Bitmap.h>
#include <gtest/gtest.h>
#include <QImage>
#include <View.h>

static const BPoint tag_of_os2 = place_of_tag(0);

// Every field has a value of its own.
static constexpr std::string_view fields =
	"0101 0202 0303 0404 0505 0606 0707 0808 0909 0a0a 0b0b 0c0c 0d0d 0e0e 0f0f f010"
	"20 21 22 23 24 25 26 27 28 29"
	"30303030 31313131 32323232 ff333333 4b584558"
	"4141 4242 4343 4444 ff45 4646 4747 4848 51515151 f2525252";

using columns = std::vector<std::pair<BPoint, const char*>>;

// What every listing has.
static const columns labels = {{{20, 20}, "version"}, {{20, 35}, "xAvgCharWidth"},
	{{20, 50}, "usWeightClass"}, {{20, 65}, "usWidthClass"}, {{20, 80}, "fsType"},
	{{20, 95}, "ySubscriptXSize"}, {{20, 110}, "ySubscriptYSize"}, {{20, 125}, "ySubscriptXOffset"},
	{{20, 140}, "ySubscriptYOffset"}, {{20, 155}, "ySuperscriptXSize"},
	{{20, 170}, "ySuperscriptYSize"}, {{20, 185}, "ySuperscriptXOffset"},
	{{20, 200}, "ySuperscriptYOffset"}, {{20, 215}, "yStrikeoutSize"},
	{{20, 230}, "yStrikeoutPosition"}, {{20, 245}, "sFamilyClass"},
	{{20, 270}, "panose(FamilyKind)"}, {{20, 285}, "panose(SerifStyle)"},
	{{20, 300}, "panose(Weight)"}, {{20, 315}, "panose(Proportion)"},
	{{20, 330}, "panose(Contrast)"}, {{20, 345}, "panose(StrokeVariation)"},
	{{20, 360}, "panose(ArmStyle)"}, {{20, 375}, "panose(Letterform)"},
	{{20, 390}, "panose(Midline)"}, {{20, 405}, "panose(X-height)"}, {{300, 20}, "ulUnicodeRange1"},
	{{300, 35}, "ulUnicodeRange2"}, {{300, 50}, "ulUnicodeRange3"}, {{300, 65}, "ulUnicodeRange4"},
	{{300, 80}, "achVendID"}, {{300, 95}, "fsSelection"}, {{300, 110}, "usFirstCharIndex"},
	{{300, 125}, "usLastCharIndex"}, {{300, 140}, "sTypoAscender"}, {{300, 155}, "sTypoDescender"},
	{{300, 170}, "sTypoLineGap"}, {{300, 185}, "usWinAscent"}, {{300, 200}, "usWinDescent"},
	{{300, 215}, "ulCodePageRange1"}, {{300, 230}, "ulCodePageRange2"}};


static QImage
drawn(const columns& values)
{
	BRect bounds(0, 0, 561, 511);
	BBitmap bitmap(bounds, B_RGB32, true);
	auto* view = new BView(bounds, "lists", B_FOLLOW_NONE, B_WILL_DRAW);
	bitmap.Lock();
	bitmap.AddChild(view);
	view->SetHighColor(255, 255, 255);
	view->SetLowColor(0, 0, 0);
	view->FillRect(bounds, B_SOLID_LOW);
	for (const columns& each : {labels, values}) {
		for (const auto& [place, text] : each)
			view->DrawString(text, place);
	}
	view->Sync();
	bitmap.Unlock();
	auto* bits = static_cast<const uchar*>(bitmap.Bits());
	return QImage(bits, 562, 512, bitmap.BytesPerRow(), QImage::Format_RGB32).copy();
}


// Whether the panel shows just the labels and these values.
static testing::AssertionResult
lists(robot& user, const columns& values)
{
	const QImage expected = drawn(values);
	const BPoint corner = in_panel(0, 0);
	const QImage seen = user.picture().copy((int)corner.x, (int)corner.y, 562, 512);
	for (int y = 0; y < 512; y++) {
		for (int x = 0; x < 562; x++) {
			if ((expected.pixel(x, y) ^ seen.pixel(x, y)) & 0xFFFFFF)
				return testing::AssertionFailure() << "another pixel at " << x << ", " << y;
		}
	}
	return testing::AssertionSuccess();
}


static void
at_panel(const octets& os2, const std::function<void(kernix&, robot&)>& work)
{
	temp_file font(font_file().with("OS/2", os2).with("cmap", tiny_font().table("cmap")));
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		user.click(tag_of_os2);
		work(app, user);
	});
}


static const columns first_values = {{{170, 20}, "0101"}, {{170, 35}, "0202"}, {{170, 50}, "0303"},
	{{170, 65}, "0404"}, {{170, 80}, "0505"}, {{170, 95}, "0606"}, {{170, 110}, "0707"},
	{{170, 125}, "0808"}, {{170, 140}, "0909"}, {{170, 155}, "0a0a"}, {{170, 170}, "0b0b"},
	{{170, 185}, "0c0c"}, {{170, 200}, "0d0d"}, {{170, 215}, "0e0e"}, {{170, 230}, "0f0f"},
	{{170, 245}, "f010"}, {{170, 270}, "20"}, {{170, 285}, "21"}, {{170, 300}, "22"},
	{{170, 315}, "23"}, {{170, 330}, "24"}, {{170, 345}, "25"}, {{170, 360}, "26"},
	{{170, 375}, "27"}, {{170, 390}, "28"}, {{170, 405}, "29"}, {{450, 20}, "30303030"},
	{{450, 35}, "31313131"}, {{450, 50}, "32323232"}, {{450, 65}, "ff333333"},
	{{450, 80}, "4b584558 (KXEX)"}, {{450, 95}, "4141"}, {{450, 110}, "4242"}, {{450, 125}, "4343"},
	{{450, 140}, "4444"}, {{450, 155}, "ff45"}, {{450, 170}, "4646"}, {{450, 185}, "4747"},
	{{450, 200}, "4848"}};


static columns
with_more(columns values, const columns& more)
{
	values.insert(values.end(), more.begin(), more.end());
	return values;
}


TEST(os2_panel, lists_86_bytes)
{
	at_panel(hex(fields), [](kernix& app, robot& user) {
		EXPECT_TRUE(lists(
			user, with_more(first_values, {{{450, 215}, "51515151"}, {{450, 230}, "f2525252"}})));
		looking(app, [&] { EXPECT_EQ(curttf->os2->CountChildren(), 0); });
	});
}


TEST(os2_panel, lists_no_more_of_a_longer_table)
{
	octets longer = hex(fields);
	longer.resize(96, 0x77);
	at_panel(longer, [](kernix&, robot& user) {
		EXPECT_TRUE(lists(
			user, with_more(first_values, {{{450, 215}, "51515151"}, {{450, 230}, "f2525252"}})));
	});
}


TEST(os2_panel, of_version_0_shows_no_code_pages)
{
	at_panel(part(hex(fields), 0, 78),
		[](kernix&, robot& user) { EXPECT_TRUE(lists(user, first_values)); });
	// Half a field is none.
	at_panel(part(hex(fields), 0, 80),
		[](kernix&, robot& user) { EXPECT_TRUE(lists(user, first_values)); });
}


TEST(os2_panel, of_an_empty_table_shows_labels_alone)
{
	at_panel({}, [](kernix&, robot& user) { EXPECT_TRUE(lists(user, {})); });
	// The letters of a vendor that is cut short are not shown either.
	at_panel(part(hex(fields), 0, 61), [](kernix&, robot& user) {
		EXPECT_TRUE(lists(user, columns(first_values.begin(), first_values.begin() + 30)));
	});
}


TEST(os2_panel, of_a_new_font_names_its_vendor)
{
	journey([](kernix&, robot& user) {
		new_font_of(user, {"BASIC_LATIN", "TIBETAN"});
		user.click(tag_of_os2);
		EXPECT_TRUE(lists(user,
			{{{170, 20}, "0001"}, {{170, 35}, "0200"}, {{170, 50}, "01f4"}, {{170, 65}, "0005"},
				{{170, 80}, "0004"}, {{170, 95}, "0100"}, {{170, 110}, "0100"},
				{{170, 125}, "0000"}, {{170, 140}, "0100"}, {{170, 155}, "0100"},
				{{170, 170}, "0100"}, {{170, 185}, "0000"}, {{170, 200}, "0100"},
				{{170, 215}, "0010"}, {{170, 230}, "0100"}, {{170, 245}, "0000"},
				{{170, 270}, "02"}, {{170, 285}, "00"}, {{170, 300}, "05"}, {{170, 315}, "09"},
				{{170, 330}, "00"}, {{170, 345}, "00"}, {{170, 360}, "00"}, {{170, 375}, "00"},
				{{170, 390}, "00"}, {{170, 405}, "00"}, {{450, 20}, "00000001"},
				{{450, 35}, "00000000"}, {{450, 50}, "00000040"}, {{450, 65}, "00000000"},
				{{450, 80}, "5461726e (Tarn)"}, {{450, 95}, "0040"}, {{450, 110}, "0001"},
				{{450, 125}, "fffe"}, {{450, 140}, "0200"}, {{450, 155}, "0000"},
				{{450, 170}, "0000"}, {{450, 185}, "0200"}, {{450, 200}, "0000"},
				{{450, 215}, "ffffffff"}, {{450, 230}, "ffffffff"}}));
	});
}
