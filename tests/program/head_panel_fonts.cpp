// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The panel of head with fonts that come, go or are damaged.
#include "app/kernix.h"
#include "app/kernixview.h"
#include "app/kernixwindow.h"
#include "font/globals.h"
#include "font/ttf.h"
#include "font/ttf_head.h"
#include "program/panel_user.h"
#include "support/opened.h"
#include "support/temp_files.h"
#include "support/time_zone.h"

#include <gtest/gtest.h>
#include <TextControl.h>

static const BPoint tag_of_head = place_of_tag(2);
static const BPoint revision_field = in_panel(170, 460);

static constexpr const char* labels[] = {"tableVersionNumber", "fontRevision", "checkSumAdjustment",
	"magicNumber", "flags", "unitsPerEm", "created", "modified", "xMin", "yMin", "xMax", "yMax",
	"macStyle", "lowestRecPPEM", "fontDirectionHint", "indexToLocFormat", "glyphDataFormat"};


// Opens a font with so much of a right head and chooses its panel.
static void
at_short_panel(size_t length, const std::function<void(kernix&, robot&)>& work)
{
	temp_file font(tiny_font().with("head", part(tiny_font().table("head"), 0, length)));
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		user.click(tag_of_head);
		work(app, user);
	});
}


TEST(short_head_panel, shows_nothing_for_what_the_table_does_not_have)
{
	time_zone zone("UTC0");
	const char* values[] = {"00010000", "00010000", "12345678", "5f0f3cf5", "0001", "0200",
		"00000000c0000000 (2006/01/27 16:51:12)", "00000000c0000001 (2006/01/27 16:51:13)", "0000",
		"0000", "01ff", "01ff", "0000", "0006", "0001", "0001", "0000"};
	const struct {
		size_t length;
		size_t rows;
	} cases[] = {{0, 0}, {3, 0}, {4, 1}, {7, 1}, {8, 2}, {17, 4}, {27, 6}, {28, 7}, {35, 7},
		{36, 8}, {53, 16}, {54, 17}};
	for (const auto& each : cases) {
		at_short_panel(each.length, [&](kernix&, robot& user) {
			std::vector<line> lines;
			for (size_t row = 0; row < 17; row++)
				lines.push_back({labels[row], row < each.rows ? values[row] : ""});
			EXPECT_TRUE(shows(user, lines)) << each.length;
		});
	}
}


TEST(short_head_panel, does_not_lengthen_the_table)
{
	for (size_t length : {0, 3, 7}) {
		at_short_panel(length, [&](kernix& app, robot& user) {
			enter(user, revision_field, "ffffffff");
			EXPECT_EQ(user.field_text(revision_field), "ffffffff");
			looking(app,
				[&] { EXPECT_EQ(kept(curttf->head), part(tiny_font().table("head"), 0, length)); });
		});
	}
}


TEST(head_panel_fonts, shows_the_new_font_when_another_is_opened_over_it)
{
	temp_file first(tiny_font());
	octets head = tiny_font().table("head");
	put_be32(head, 4, 0xABCD);
	temp_file second(tiny_font().with("head", head));
	journey([&](kernix& app, robot& user) {
		open_file(user, first.path());
		user.click(tag_of_head);
		user.click(revision_field);
		user.type("77");
		open_file(user, second.path());
		looking(app, [&] { EXPECT_EQ(part(kept(curttf->head), 4, 4), hex("0000abcd")); });
		user.click(tag_of_head);
		EXPECT_EQ(user.field_text(revision_field), "");
		EXPECT_EQ(panels_shown(app), std::vector<std::string>{"head"});
		enter(user, revision_field, "99");
		looking(app, [&] { EXPECT_EQ(part(kept(curttf->head), 4, 4), hex("00000099")); });
	});
	EXPECT_EQ(first.contents(), tiny_font().raw());
}


TEST(head_panel_fonts, goes_with_a_font_that_is_replaced_by_none)
{
	temp_file font(tiny_font());
	temp_file no_font(hex("00 01"));
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		user.click(tag_of_head);
		user.click(revision_field);
		user.type("77");
		open_file(user, no_font.path());
		EXPECT_EQ(panels_shown(app), std::vector<std::string>());
		user.type("1");
		user.key(Qt::Key_Return, "\r");
		user.key(Qt::Key_Tab, "\t");
		EXPECT_EQ(user.field_text(revision_field), "");
	});
}


TEST(head_panel_fonts, may_be_edited_as_the_program_ends)
{
	temp_file font(tiny_font());
	journey([&](kernix&, robot& user) {
		open_file(user, font.path());
		user.click(tag_of_head);
		user.click(revision_field);
		user.type("77");
	});
	EXPECT_EQ(font.contents(), tiny_font().raw());
}


// Where files may be let go of while the panel is shown.
class drop_places : public testing::TestWithParam<BPoint> {};

TEST_P(drop_places, open_a_font_that_is_dropped_there)
{
	temp_file font(tiny_font());
	temp_file other(other_font());
	temp_file no_font(hex("4f54544f"));
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		user.click(tag_of_head);
		user.drop(GetParam(), {no_font.path(), other.path(), font.path()});
		EXPECT_EQ(listed(app), (std::vector<std::string>{"name", "cmap", "head", "prep"}));
	});
}


TEST_P(drop_places, take_nothing_but_files)
{
	temp_file font(tiny_font());
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		user.click(tag_of_head);
		user.click(revision_field);
		user.type("77");
		user.drop(GetParam(), {});
		EXPECT_EQ(panels_shown(app), std::vector<std::string>{"head"});
		EXPECT_EQ(user.field_text(revision_field), "77");
	});
}


INSTANTIATE_TEST_SUITE_P(panel, drop_places,
	testing::Values(in_panel(300, 300), in_panel(30, 25), revision_field, in_panel(60, 460)));


TEST(drop_on_the_empty_work_view, opens_the_first_file_that_is_a_font)
{
	temp_file no_font(hex("4f54544f"));
	temp_file font(other_font());
	temp_file last(tiny_font());
	journey([&](kernix& app, robot& user) {
		user.drop(BPoint(200, 200), {});
		EXPECT_EQ(listed(app), std::vector<std::string>());
		user.drop(BPoint(200, 200), {no_font.path(), font.path(), last.path()});
		EXPECT_EQ(listed(app), (std::vector<std::string>{"name", "cmap", "head", "prep"}));
	});
}
