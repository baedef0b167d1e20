// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The palette of the bitmap editor: choosing glyphs and sizes.
#include "program/bitmap_user.h"

#include <Button.h>
#include <gtest/gtest.h>
#include <Menu.h>
#include <MenuField.h>
#include <MenuItem.h>
#include <TextControl.h>

using lines = std::vector<std::string>;

static const rgb_color orange = {255, 204, 68, 255};


TEST(bitmap_palette, has_these_controls)
{
	at_bitmaps(font_of(two_sizes()), [](kernix& app, robot& user) {
		looking(app, [&] {
			ebdttoolview* palette = curttf->ebdt->tools;
			EXPECT_EQ(palette->CountChildren(), 4);
			EXPECT_STREQ(palette->chr_code->Name(), "chr");
			EXPECT_STREQ(palette->chr_code->Label(), "chr.");
			EXPECT_EQ(palette->chr_code->Frame(), BRect(0, 10, 45, 30));
			EXPECT_EQ(palette->chr_code->Divider(), 15);
			EXPECT_STREQ(palette->gno_entry->Name(), "gno");
			EXPECT_STREQ(palette->gno_entry->Label(), "gno.");
			EXPECT_EQ(palette->gno_entry->Frame(), BRect(0, 40, 45, 60));
			EXPECT_EQ(palette->gno_entry->Divider(), 15);
			EXPECT_STREQ(palette->set_button->Label(), "set");
			EXPECT_EQ(palette->set_button->Frame(), BRect(5, 430, 45, 450));
			EXPECT_STREQ(palette->strike_field->Name(), "point");
			EXPECT_STREQ(palette->strike_field->Label(), "");
			EXPECT_EQ(palette->strike_field->Frame(), BRect(5, 85, 45, 105));
			EXPECT_STREQ(palette->strike_field->Menu()->Name(), "pt");
			EXPECT_TRUE(palette->strike_field->Menu()->IsRadioMode());
			EXPECT_TRUE(palette->strike_field->Menu()->IsLabelFromMarked());
			EXPECT_EQ(palette->LowColor(), (rgb_color{200, 200, 0, 255}));
			EXPECT_EQ(palette->ViewColor(), orange);
		});
		EXPECT_EQ(user.pixel(background), orange);
		EXPECT_EQ(user.pixel(in_panel(49, 511)), orange);
	});
}


TEST(bitmap_palette, has_nothing_chosen_at_first)
{
	at_bitmaps(font_of(two_sizes()), [](kernix& app, robot& user) {
		EXPECT_EQ(chosen(user), "ffff ffff");
		EXPECT_EQ(user.menu_field_text(strike_menu), "pt");
		EXPECT_EQ(edited(app), "none");
	});
}


// The caption stands over the menu: something is written there and nowhere below.
TEST(bitmap_palette, captions_the_menu)
{
	at_bitmaps(font_of(two_sizes()), [](kernix&, robot& user) {
		EXPECT_GT(user.count(BRect(5, 53 + 71, 40, 53 + 83), {0, 0, 0, 255}), 0);
		EXPECT_EQ(user.count(BRect(0, 53 + 106, 49, 53 + 429), orange), 50 * 324);
	});
}


TEST(bitmap_palette, offers_each_size_once)
{
	strikes repeated;
	repeated.size(12, 12).size(16, 16).size(12, 12, 8).size(16, 16, 8);
	at_bitmaps(font_of(repeated), [](kernix& app, robot& user) {
		EXPECT_EQ(user.menu_field_items(strike_menu), (lines{"12", "16"}));
		looking(app, [&] {
			BMenu* menu = curttf->ebdt->tools->strike_field->Menu();
			EXPECT_EQ(menu->ItemAt(0)->Message()->what, (uint32)'Msel');
			EXPECT_EQ(menu->ItemAt(0)->Message()->FindInt16("pt"), 0x0C0C);
			EXPECT_EQ(menu->ItemAt(1)->Message()->FindInt16("pt"), 0x1010);
		});
	});
}


TEST(bitmap_palette, offers_the_first_eight_sizes)
{
	strikes many;
	for (int ppem : {30, 8, 9, 10, 11, 9, 12, 13, 14, 15, 16})
		many.size(ppem, ppem);
	at_bitmaps(font_of(many), [](kernix&, robot& user) {
		EXPECT_EQ(user.menu_field_items(strike_menu),
			(lines{"30", "8", "9", "10", "11", "12", "13", "14"}));
	});
}


TEST(bitmap_palette, names_sizes_by_the_pixels_down)
{
	strikes oblong;
	oblong.size(200, 12).images(1, 1, 7, {{"##"}}).size(12, 200).size(12, 201);
	at_bitmaps(font_of(oblong), [](kernix& app, robot& user) {
		EXPECT_EQ(user.menu_field_items(strike_menu), (lines{"12", "200", "201"}));
		enter(user, gno_field, "1");
		user.choose_menu_field(strike_menu, "12");
		EXPECT_EQ(edited(app), "##");
		looking(app, [] {
			EXPECT_EQ(curttf->ebdt->edit->pt, 0xC80C);
			EXPECT_EQ(curttf->ebdt->tools->pt, 0xC80C);
		});
	});
}


TEST(bitmap_palette, of_a_font_without_sizes_has_an_empty_menu)
{
	for (const font_file& font : {font_of(strikes()), font_of(two_sizes()).without("EBLC")}) {
		at_bitmaps(font, [](kernix& app, robot& user) {
			EXPECT_EQ(user.menu_field_items(strike_menu), lines{});
			EXPECT_EQ(user.menu_field_text(strike_menu), "pt");
			enter(user, gno_field, "1");
			EXPECT_EQ(chosen(user), "0041 0001");
			EXPECT_EQ(edited(app), "none");
		});
	}
}


TEST(bitmap_palette, chooses_a_size)
{
	at_bitmaps(font_of(two_sizes()), [](kernix& app, robot& user) {
		enter(user, gno_field, "1");
		EXPECT_EQ(edited(app), "none");
		ASSERT_TRUE(user.choose_menu_field(strike_menu, "12"));
		EXPECT_EQ(user.menu_field_text(strike_menu), "12");
		EXPECT_EQ(edited(app), "#.# .#. #.#");
		ASSERT_TRUE(user.choose_menu_field(strike_menu, "16"));
		EXPECT_EQ(user.menu_field_text(strike_menu), "16");
		EXPECT_EQ(edited(app), "########. .......##");
		EXPECT_EQ(chosen(user), "0041 0001");
	});
}


TEST(bitmap_palette, chooses_the_size_before_the_glyph_as_well)
{
	at_bitmaps(font_of(two_sizes()), [](kernix& app, robot& user) {
		ASSERT_TRUE(user.choose_menu_field(strike_menu, "12"));
		EXPECT_EQ(chosen(user), "ffff ffff");
		EXPECT_EQ(edited(app), "none");
		enter(user, gno_field, "2");
		EXPECT_EQ(edited(app), "#..#");
	});
}


TEST(bitmap_palette, chooses_a_glyph_by_its_character)
{
	at_bitmaps(font_of(two_sizes()), [](kernix&, robot& user) {
		enter(user, chr_field, "41");
		EXPECT_EQ(chosen(user), "0041 0001");
		enter(user, chr_field, "42");
		EXPECT_EQ(chosen(user), "0042 0000");
		enter(user, chr_field, "letter");
		EXPECT_EQ(chosen(user), "0000 0000");
		enter(user, chr_field, "8041");
		EXPECT_EQ(chosen(user), "8041 0000");
	});
}


TEST(bitmap_palette, chooses_a_glyph_by_its_number)
{
	at_bitmaps(font_of(two_sizes()), [](kernix&, robot& user) {
		enter(user, gno_field, "1");
		EXPECT_EQ(chosen(user), "0041 0001");
		enter(user, gno_field, "4");
		EXPECT_EQ(chosen(user), "ffff 0004");
	});
}


TEST(bitmap_palette, chooses_glyph_0_for_numbers_that_are_none)
{
	at_bitmaps(font_of(two_sizes()), [](kernix&, robot& user) {
		for (const char* number : {"5", "8000", "ffff", "10001", "100000001"}) {
			enter(user, gno_field, "1");
			enter(user, gno_field, number);
			EXPECT_EQ(user.field_text(gno_field), "0000") << number;
		}
	});
}


TEST(bitmap_palette, steps_through_the_glyphs_on_its_background)
{
	at_bitmaps(font_of(two_sizes()), [](kernix&, robot& user) {
		lines seen;
		for (int i = 0; i < 6; i++) {
			user.click(background);
			seen.push_back(user.field_text(gno_field));
		}
		EXPECT_EQ(seen, (lines{"0000", "0001", "0002", "0003", "0004", "0000"}));
	});
}


TEST(bitmap_palette, ignores_messages_that_name_no_control_or_another)
{
	at_bitmaps(font_of(two_sizes()), [](kernix& app, robot& user) {
		user.choose_menu_field(strike_menu, "12");
		enter(user, gno_field, "1");
		EXPECT_EQ(pressed(app, user, 130, 180), "..# .#. #.#");
		for (uint32 what : {'Tchg', 'Bhit'}) {
			BMessage foreign(what);
			tell_palette(user, foreign);
			foreign.AddPointer("source", &app);
			tell_palette(user, foreign);
		}
		tell_palette(user, BMessage('Msel'));
		EXPECT_EQ(edited(app), "..# .#. #.#");
		EXPECT_EQ(saved_table(user, "EBDT"), two_sizes().ebdt());
	});
}


TEST(bitmap_palette, keeps_what_a_message_does_not_tell)
{
	at_bitmaps(font_of(two_sizes()), [](kernix&, robot& user) {
		BMessage news('Vchg');
		news.AddInt16("gno", 3);
		tell_palette(user, news);
		EXPECT_EQ(chosen(user), "ffff 0003");
		BMessage more('Vchg');
		more.AddInt16("chr", 0x1234);
		tell_palette(user, more);
		EXPECT_EQ(chosen(user), "1234 0003");
		user.click(background);
		EXPECT_EQ(user.field_text(gno_field), "0004");
	});
}


TEST(bitmap_palette, has_its_controls_once_when_it_is_attached_again)
{
	at_bitmaps(font_of(two_sizes()), [](kernix& app, robot& user) {
		looking(app, [&] {
			BView* parent = curttf->ebdt->Parent();
			curttf->reset_view(parent);
			curttf->set_view(parent);
			EXPECT_EQ(curttf->ebdt->tools->CountChildren(), 4);
		});
		user.click(place_of_tag(0));
		EXPECT_EQ(user.menu_field_items(strike_menu), (lines{"12", "16"}));
	});
}
