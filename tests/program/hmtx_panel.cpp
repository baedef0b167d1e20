// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The panel of hmtx: four fields, a button and what it stores.
#include "program/hmtx_user.h"
#include "support/opened.h"
#include "support/temp_files.h"

#include <Button.h>
#include <gtest/gtest.h>
#include <Messenger.h>
#include <Slider.h>
#include <TextControl.h>


TEST(hmtx_panel, has_these_controls)
{
	at_hmtx(five_glyphs(), [](kernix& app, robot& user) {
		looking(app, [&] {
			ttf_hmtx* panel = curttf->hmtx;
			ASSERT_EQ(panel->CountChildren(), 7);
			const struct {
				const char* name;
				const char* label;
				BRect frame;
			} controls[] = {{"st", "st_glyph", BRect(20, 450, 120, 470)},
				{"ed", "ed_glyph", BRect(140, 450, 240, 470)},
				{"width", "width", BRect(260, 450, 360, 470)},
				{"lsb", "lsb", BRect(380, 450, 480, 470)},
				{"set", "set", BRect(500, 448, 540, 470)},
				{"left", "left", BRect(20, 480, 240, 500)},
				{"right", "right", BRect(260, 480, 480, 500)}};
			for (const auto& each : controls) {
				auto* control = dynamic_cast<BControl*>(panel->FindView(each.name));
				ASSERT_NE(control, nullptr) << each.name;
				EXPECT_STREQ(control->Label(), each.label);
				EXPECT_EQ(control->Frame().left, each.frame.left) << each.name;
				EXPECT_EQ(control->Frame().top, each.frame.top) << each.name;
				EXPECT_EQ(control->Frame().right, each.frame.right) << each.name;
			}
		});
		EXPECT_EQ(metric_fields(user), "   ");
	});
}


TEST(hmtx_panel, has_sliders_over_the_em)
{
	at_hmtx(five_glyphs(), [](kernix& app, robot&) {
		looking(app, [&] {
			int32 least, most;
			slider("left")->GetLimits(&least, &most);
			EXPECT_EQ(least, -512);
			EXPECT_EQ(most, 512);
			EXPECT_EQ(slider("left")->BarColor(), (rgb_color{0, 255, 0, 255}));
			slider("right")->GetLimits(&least, &most);
			EXPECT_EQ(least, 0);
			EXPECT_EQ(most, 1024);
			EXPECT_EQ(slider("right")->BarColor(), (rgb_color{0, 255, 255, 255}));
		});
	});
}


TEST(hmtx_panel, shows_the_metrics_of_the_glyph_that_is_typed)
{
	at_hmtx(five_glyphs(), [](kernix& app, robot& user) {
		enter(user, first_glyph, "1");
		EXPECT_EQ(metric_fields(user), "0001 0001 0202 0020");
		EXPECT_EQ(stand_of(app), (std::vector<int32>{0x20, 0x202}));
		enter(user, first_glyph, "0x2");
		EXPECT_EQ(metric_fields(user), "0002 0002 0303 fff0");
		EXPECT_EQ(stand_of(app), (std::vector<int32>{-16, 0x303}));
	});
}


TEST(hmtx_panel, shows_a_glyph_behind_the_full_records_with_the_last_advance)
{
	at_hmtx(five_glyphs(), [](kernix&, robot& user) {
		enter(user, first_glyph, "4");
		EXPECT_EQ(metric_fields(user), "0004 0004 0303 0014");
		enter(user, first_glyph, "3");
		EXPECT_EQ(metric_fields(user), "0003 0003 fff6 0014");
	});
}


TEST(hmtx_panel, leaves_all_alone_for_what_is_no_glyph)
{
	at_hmtx(five_glyphs(), [](kernix& app, robot& user) {
		enter(user, first_glyph, "1");
		for (const char* text : {"5", "ffff", "10001", "ffffffff", "wide", ""}) {
			enter(user, first_glyph, text);
			EXPECT_EQ(metric_fields(user), std::string(text) + " 0001 0202 0020");
			EXPECT_EQ(stand_of(app), (std::vector<int32>{0x20, 0x202}));
		}
		EXPECT_EQ(hmtx_octets(app), hex(three_and_two));
	});
}


TEST(hmtx_panel, heeds_only_the_start_among_the_fields)
{
	at_hmtx(five_glyphs(), [](kernix& app, robot& user) {
		enter(user, first_glyph, "1");
		enter(user, last_glyph, "2");
		enter(user, width_field, "1F");
		enter(user, bearing_field, "6");
		EXPECT_EQ(metric_fields(user), "0001 2 1F 6");
		EXPECT_EQ(stand_of(app), (std::vector<int32>{0x20, 0x202}));
		EXPECT_EQ(hmtx_octets(app), hex(three_and_two));
	});
}


TEST(hmtx_panel, stores_a_range)
{
	at_hmtx(five_glyphs(), [](kernix& app, robot& user) {
		set_metrics(user, "1", "2", "1ab", "fffe");
		EXPECT_EQ(hmtx_octets(app), hex("0101 0010 01ab fffe 01ab fffe fff6 0014"));
		EXPECT_EQ(metric_fields(user), "0001 2 1ab fffe");
		EXPECT_EQ(saved_table(user, "hmtx"), hex("0101 0010 01ab fffe 01ab fffe fff6 0014"));
	});
}


TEST(hmtx_panel, stores_a_range_of_one_glyph)
{
	at_hmtx(five_glyphs(), [](kernix& app, robot& user) {
		set_metrics(user, "0", "0", "7", "8");
		EXPECT_EQ(hmtx_octets(app), hex("0007 0008 0202 0020 0303 fff0 fff6 0014"));
	});
}


TEST(hmtx_panel, stores_only_bearings_behind_the_full_records)
{
	at_hmtx(five_glyphs(), [](kernix& app, robot& user) {
		set_metrics(user, "4", "4", "999", "a");
		EXPECT_EQ(hmtx_octets(app), hex("0101 0010 0202 0020 0303 fff0 fff6 000a"));
	});
}


TEST(hmtx_panel, stores_up_to_the_last_glyph_of_a_range_beyond_it)
{
	at_hmtx(five_glyphs(), [](kernix& app, robot& user) {
		set_metrics(user, "2", "ffffffff", "5", "6");
		EXPECT_EQ(hmtx_octets(app), hex("0101 0010 0202 0020 0005 0006 0005 0006"));
	});
}


TEST(hmtx_panel, stores_nothing_when_the_range_ends_before_it_starts)
{
	at_hmtx(five_glyphs(), [](kernix& app, robot& user) {
		set_metrics(user, "2", "1", "5", "6");
		EXPECT_EQ(hmtx_octets(app), hex(three_and_two));
	});
	at_hmtx(five_glyphs().with("maxp", "00005000 0040"), [](kernix& app, robot& user) {
		set_metrics(user, "20", "1f", "5", "6");
		EXPECT_EQ(hmtx_octets(app), hex(three_and_two));
	});
}


TEST(hmtx_panel, stores_nothing_for_a_start_that_is_no_glyph)
{
	at_hmtx(five_glyphs(), [](kernix& app, robot& user) {
		for (const char* start : {"5", "10000", "ffffffff"}) {
			set_metrics(user, start, "ffffffff", "5", "6");
			EXPECT_EQ(hmtx_octets(app), hex(three_and_two)) << start;
		}
	});
}


TEST(hmtx_panel, stores_nothing_for_metrics_beyond_16_bits)
{
	at_hmtx(five_glyphs(), [](kernix& app, robot& user) {
		for (const char* number : {"10000", "10005", "100000005", "80000005"}) {
			set_metrics(user, "1", "1", number, "6");
			EXPECT_EQ(hmtx_octets(app), hex(three_and_two)) << number;
			set_metrics(user, "1", "1", "5", number);
			EXPECT_EQ(hmtx_octets(app), hex(three_and_two)) << number;
		}
		set_metrics(user, "1", "1", "-1", "6");
		set_metrics(user, "1", "1", "5", "-8001");
		EXPECT_EQ(hmtx_octets(app), hex(three_and_two));
	});
}


TEST(hmtx_panel, takes_a_bearing_with_its_sign)
{
	at_hmtx(five_glyphs(), [](kernix& app, robot& user) {
		set_metrics(user, "0", "0", "5", "-5");
		set_metrics(user, "1", "1", "6", "-8000");
		EXPECT_EQ(part(hmtx_octets(app), 0, 8), hex("0005 fffb 0006 8000"));
	});
}


TEST(hmtx_panel, stores_nothing_where_a_field_is_no_number)
{
	at_hmtx(five_glyphs(), [](kernix& app, robot& user) {
		set_metrics(user, "1", "1", "wide", "6");
		EXPECT_EQ(hmtx_octets(app), hex(three_and_two));
		set_metrics(user, "1", "1", "5", "-");
		EXPECT_EQ(hmtx_octets(app), hex(three_and_two));
		set_metrics(user, "1", "last", "5", "6");
		EXPECT_EQ(hmtx_octets(app), hex(three_and_two));
		set_metrics(user, "", "1", "5", "6");
		EXPECT_EQ(hmtx_octets(app), hex(three_and_two));
	});
}


TEST(hmtx_panel, ignores_messages_that_name_no_control_or_another)
{
	at_hmtx(five_glyphs(), [](kernix& app, robot& user) {
		enter(user, first_glyph, "1");
		enter(user, width_field, "7");
		BMessenger panel(curttf->hmtx);
		for (uint32 what : {'Bhit', 'Vchg'}) {
			BMessage foreign(what);
			panel.SendMessage(&foreign);
			foreign.AddPointer("source", &app);
			panel.SendMessage(&foreign);
		}
		user.settle();
		EXPECT_EQ(hmtx_octets(app), hex(three_and_two));
		EXPECT_EQ(metric_fields(user), "0001 0001 7 0020");
	});
}


TEST(hmtx_panel, has_its_controls_once_when_it_is_attached_again)
{
	at_hmtx(five_glyphs(), [](kernix& app, robot& user) {
		looking(app, [&] {
			BView* parent = curttf->hmtx->Parent();
			parent->RemoveChild(curttf->hmtx);
			parent->AddChild(curttf->hmtx);
			EXPECT_EQ(curttf->hmtx->CountChildren(), 7);
		});
		set_metrics(user, "0", "0", "7", "8");
		EXPECT_EQ(part(hmtx_octets(app), 0, 4), hex("0007 0008"));
	});
}


TEST(hmtx_panel, of_a_font_without_maxp_chooses_and_stores_nothing)
{
	at_hmtx(tiny_font().without("maxp"), 4, [](kernix& app, robot& user) {
		set_metrics(user, "0", "0", "7", "8");
		EXPECT_EQ(metric_fields(user), "0 0 7 8");
		EXPECT_EQ(hmtx_octets(app), hex("0200 0000 0200 0000"));
	});
}


TEST(hmtx_panel, lets_a_drop_reach_the_work_view)
{
	temp_file other(other_font());
	at_hmtx(five_glyphs(), [&](kernix& app, robot& user) {
		user.drop(in_panel(450, 300), {other.path()});
		EXPECT_EQ(listed(app), (std::vector<std::string>{"name", "cmap", "head", "prep"}));
	});
}
