// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The panel of hhea, which is read-only.
#include "app/kernix.h"
#include "program/panel_user.h"
#include "support/temp_files.h"

#include <gtest/gtest.h>
#include <View.h>

static const BPoint tag_of_hhea = place_of_tag(3);


TEST(hhea_panel, lists_every_field)
{
	temp_file font(tiny_font().with("hhea",
		"00010000 0320 ff38 005a 0400 ff9c fffe 03f7 0001 0002"
		"1111 2222 3333 4444 5555 0006 abcd"));
	journey([&](kernix&, robot& user) {
		open_file(user, font.path());
		user.click(tag_of_hhea);
		EXPECT_TRUE(shows(user,
			{
				{"tableVersionNumber", "00010000"},
				{"Ascender", "0320"},
				{"Descender", "ff38"},
				{"LineGap", "005a"},
				{"advanceWidthMax", "0400"},
				{"minLeftSideBearing", "ff9c"},
				{"minRightSideBearing", "fffe"},
				{"xMaxExtent", "03f7"},
				{"caretSlopeRise", "0001"},
				{"caretSlopeRun", "0002"},
				{"reserved", "1111"},
				{"reserved", "2222"},
				{"reserved", "3333"},
				{"reserved", "4444"},
				{"reserved", "5555"},
				{"metricDataFormat", "0006"},
				{"numberOfHMetrics", "abcd"},
			}));
	});
}


TEST(hhea_panel, shows_nothing_for_what_a_short_table_does_not_have)
{
	temp_file font(tiny_font().with("hhea", "00010000 0320 ff38 00"));
	journey([&](kernix&, robot& user) {
		open_file(user, font.path());
		user.click(tag_of_hhea);
		EXPECT_TRUE(shows(user,
			{
				{"tableVersionNumber", "00010000"},
				{"Ascender", "0320"},
				{"Descender", "ff38"},
				{"LineGap", ""},
				{"advanceWidthMax", ""},
				{"minLeftSideBearing", ""},
				{"minRightSideBearing", ""},
				{"xMaxExtent", ""},
				{"caretSlopeRise", ""},
				{"caretSlopeRun", ""},
				{"reserved", ""},
				{"reserved", ""},
				{"reserved", ""},
				{"reserved", ""},
				{"reserved", ""},
				{"metricDataFormat", ""},
				{"numberOfHMetrics", ""},
			}));
	});
}


TEST(hhea_panel, has_nothing_to_edit)
{
	temp_file font(tiny_font());
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		user.click(tag_of_hhea);
		BView* panel = panel_of(app, "hhea");
		looking(app, [&] { EXPECT_EQ(panel->CountChildren(), 0); });
		EXPECT_EQ(saved_table(user, "hhea"), tiny_font().table("hhea"));
	});
}
