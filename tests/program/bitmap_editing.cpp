// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Editing bitmaps pixel by pixel, and what is saved of it.
#include "program/bitmap_user.h"

#include <gtest/gtest.h>

#include "support/sfnt.h"
#include "support/temp_files.h"


// Chooses "A" at 12 pixels per em.
static void
begin(robot& user)
{
	user.choose_menu_field(strike_menu, "12");
	enter(user, chr_field, "41");
}


// The font's EBDT with these bits turned round in the octets of an image.
static octets
changed(const strikes& bitmaps, size_t image, const octets& bits)
{
	octets expected = bitmaps.ebdt();
	for (size_t i = 0; i < bits.size(); i++)
		expected.at(bitmaps.place(image) + i) ^= bits[i];
	return expected;
}


TEST(bitmap_editing, turns_the_pixel_under_the_pointer_round)
{
	at_bitmaps(font_of(two_sizes()), [](kernix& app, robot& user) {
		begin(user);
		EXPECT_EQ(pressed(app, user, 160, 185), "### .#. #.#");
		EXPECT_EQ(pressed(app, user, 160, 185), "#.# .#. #.#");
	});
}


TEST(bitmap_editing, finds_cells_up_to_their_edges)
{
	at_bitmaps(font_of(two_sizes()), [](kernix& app, robot& user) {
		begin(user);
		EXPECT_EQ(pressed(app, user, 125, 175), "..# .#. #.#");
		EXPECT_EQ(pressed(app, user, 149, 199), "#.# .#. #.#");
		EXPECT_EQ(pressed(app, user, 150, 175), "### .#. #.#");
		EXPECT_EQ(pressed(app, user, 149, 200), "### ##. #.#");
		EXPECT_EQ(pressed(app, user, 199, 249), "### ##. #..");
	});
}


TEST(bitmap_editing, ignores_presses_outside_the_image)
{
	at_bitmaps(font_of(two_sizes()), [](kernix& app, robot& user) {
		begin(user);
		for (BPoint place : {BPoint(124, 180), BPoint(130, 174), BPoint(200, 180), BPoint(130, 250),
				 BPoint(110, 110), BPoint(390, 390), BPoint(5, 5), BPoint(450, 450)})
			EXPECT_EQ(pressed(app, user, place.x, place.y), "#.# .#. #.#");
		user.click(commit_button);
		EXPECT_EQ(saved_table(user, "EBDT"), two_sizes().ebdt());
	});
}


TEST(bitmap_editing, finds_the_first_column_at_the_edge_of_the_em)
{
	strikes edge;
	edge.size(12, 12).placed(0, 12, 12).images(1, 1, 7, {{"..", ".."}});
	at_bitmaps(font_of(edge), [](kernix& app, robot& user) {
		begin(user);
		EXPECT_EQ(pressed(app, user, 99, 100), ".. ..");
		EXPECT_EQ(pressed(app, user, 100, 99), ".. ..");
		EXPECT_EQ(pressed(app, user, 100, 100), "#. ..");
	});
}


TEST(bitmap_editing, stores_and_saves_just_the_bits_that_were_edited)
{
	const strikes bitmaps = two_sizes();
	temp_folder folder;
	at_bitmaps(font_of(bitmaps), [&](kernix& app, robot& user) {
		begin(user);
		pressed(app, user, 160, 185);
		pressed(app, user, 130, 240);
		user.click(commit_button);
		EXPECT_EQ(edited(app), "### .#. ..#");
		save_file(user, folder.path(), "edited.ttf");
	});
	// Bits 1 and 6 of the image.
	sfnt saved(read_file(folder.path("edited.ttf")));
	EXPECT_TRUE(same(changed(bitmaps, 0, hex("42 00")), saved.table("EBDT")));
	EXPECT_TRUE(same(bitmaps.eblc(), saved.table("EBLC")));
	journey([&](kernix& app, robot& user) {
		open_file(user, folder.path("edited.ttf"));
		user.click(place_of_tag(0));
		begin(user);
		EXPECT_EQ(edited(app), "### .#. ..#");
		enter(user, gno_field, "2");
		EXPECT_EQ(edited(app), "#..#");
	});
}


TEST(bitmap_editing, stores_rows_of_more_than_an_octet)
{
	const strikes bitmaps = two_sizes();
	at_bitmaps(font_of(bitmaps), [&](kernix& app, robot& user) {
		user.choose_menu_field(strike_menu, "16");
		enter(user, gno_field, "1");
		// Cells of 18.75 from (118.75, 231.25).
		EXPECT_EQ(pressed(app, user, 275, 240), "######### .......##");
		EXPECT_EQ(pressed(app, user, 275, 260), "######### .......#.");
		user.click(commit_button);
		EXPECT_TRUE(same(changed(bitmaps, 2, hex("0080 0080")), saved_table(user, "EBDT")));
	});
}


TEST(bitmap_editing, is_lost_when_another_glyph_or_size_is_chosen)
{
	at_bitmaps(font_of(two_sizes()), [](kernix& app, robot& user) {
		begin(user);
		pressed(app, user, 160, 185);
		enter(user, gno_field, "2");
		enter(user, gno_field, "1");
		EXPECT_EQ(edited(app), "#.# .#. #.#");
		pressed(app, user, 160, 185);
		user.choose_menu_field(strike_menu, "16");
		user.choose_menu_field(strike_menu, "12");
		EXPECT_EQ(edited(app), "#.# .#. #.#");
		EXPECT_EQ(saved_table(user, "EBDT"), two_sizes().ebdt());
	});
}


TEST(bitmap_editing, of_a_glyph_without_a_bitmap_does_nothing)
{
	at_bitmaps(font_of(two_sizes()), [](kernix& app, robot& user) {
		begin(user);
		enter(user, gno_field, "3");
		EXPECT_EQ(pressed(app, user, 130, 180), "none");
		user.click(commit_button);
		EXPECT_EQ(chosen(user), "ffff 0003");
		EXPECT_EQ(saved_table(user, "EBDT"), two_sizes().ebdt());
	});
}


TEST(bitmap_editing, before_anything_is_chosen_does_nothing)
{
	at_bitmaps(font_of(two_sizes()), [](kernix& app, robot& user) {
		EXPECT_EQ(pressed(app, user, 130, 180), "none");
		user.click(commit_button);
		user.choose_menu_field(strike_menu, "12");
		user.click(commit_button);
		EXPECT_EQ(chosen(user), "ffff ffff");
		EXPECT_EQ(saved_table(user, "EBDT"), two_sizes().ebdt());
	});
}


TEST(bitmap_editing, of_a_font_without_places_or_damaged_data_does_nothing)
{
	font_file whole = font_of(two_sizes());
	for (const font_file& font :
		{whole.without("EBLC"), whole.with("EBDT", "00020000"), whole.with("EBLC", "00020000")}) {
		at_bitmaps(font, [&](kernix& app, robot& user) {
			BMessage size('Vchg');
			size.AddInt16("pt", 0x0C0C);
			tell_editor(user, size);
			enter(user, gno_field, "1");
			EXPECT_EQ(pressed(app, user, 130, 180), "none");
			user.click(commit_button);
			EXPECT_EQ(saved_table(user, "EBDT"), font.table("EBDT"));
		});
	}
}


TEST(bitmap_editing, of_a_size_of_no_pixels_does_nothing)
{
	strikes flat;
	flat.size(0, 12).images(1, 1, 7, {{"##"}}).size(12, 0).images(1, 1, 7, {{"##"}});
	at_bitmaps(font_of(flat), [&](kernix& app, robot& user) {
		enter(user, gno_field, "1");
		for (const char* size : {"12", "0"}) {
			ASSERT_TRUE(user.choose_menu_field(strike_menu, size));
			EXPECT_EQ(pressed(app, user, 130, 180), "##");
			EXPECT_EQ(pressed(app, user, 100, 399), "##");
		}
	});
}


TEST(bitmap_editing, chooses_nothing_for_a_message_without_fields)
{
	at_bitmaps(font_of(two_sizes()), [](kernix& app, robot& user) {
		begin(user);
		pressed(app, user, 160, 185);
		tell_editor(user, BMessage('Vchg'));
		EXPECT_EQ(edited(app), "### .#. #.#");
	});
}


TEST(bitmap_editing, chooses_glyph_and_size_of_one_message)
{
	at_bitmaps(font_of(two_sizes()), [](kernix& app, robot& user) {
		BMessage all('Vchg');
		all.AddInt16("gno", 2);
		all.AddInt16("pt", 0x0C0C);
		tell_editor(user, all);
		EXPECT_EQ(edited(app), "#..#");
		EXPECT_EQ(chosen(user), "ffff 0002");
		// The character counts where both are told.
		all.AddInt16("chr", 0x41);
		tell_editor(user, all);
		EXPECT_EQ(chosen(user), "0041 0001");
	});
}


TEST(bitmap_editing, of_a_font_without_bitmap_data_is_not_offered)
{
	temp_file font(font_of(two_sizes()).without("EBDT"));
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		EXPECT_EQ(panel_of(app, "EBDT"), nullptr);
		user.click(place_of_tag(0));
		EXPECT_EQ(panels_shown(app), std::vector<std::string>{"EBLC"});
		EXPECT_EQ(saved_table(user, "EBLC"), two_sizes().eblc());
	});
}
