// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// A user makes new fonts with the real program.
#include "support/new_font.h"
#include "app/kernix.h"
#include "app/kernixview.h"
#include "app/kernixwindow.h"
#include "font/globals.h"
#include "font/ttf.h"
#include "program/outline_user.h"
#include "program/setup_user.h"
#include "support/expected_save.h"
#include "support/sfnt.h"
#include "support/temp_files.h"

#include <filesystem>
#include <ft2build.h>
#include FT_FREETYPE_H
#include <gtest/gtest.h>
#include <Messenger.h>

using tags = std::vector<std::string>;

static const tags ten_tables = {
	"OS/2", "cmap", "glyf", "head", "hhea", "hmtx", "loca", "maxp", "name", "post"};
static const BPoint tag_of_glyf = place_of_tag(2);
static const BPoint glyph_entry = in_panel(30, 80);
static const BPoint rect_icon = in_panel(38, 144);
static const BPoint commit_button = in_panel(25, 440);


// What the program saves now.
static octets
saved_font(robot& user)
{
	temp_folder folder;
	save_file(user, folder.path(), "new.ttf");
	return read_file(folder.path("new.ttf"));
}


// Whether that is the new font of these rows of the range table.
static testing::AssertionResult
saves_font_of(robot& user, const std::vector<int>& rows)
{
	const octets file = saved_font(user);
	return same(expected_save(expected_font(rows), modified_of(file)), file);
}


TEST(making_a_font, starts_with_one_character)
{
	journey([](kernix& app, robot& user) {
		begin_font(user);
		EXPECT_TRUE(counts(user, "0001chrs."));
		EXPECT_TRUE(in_setup(app));
		EXPECT_EQ(user.window_size(), BPoint(576, 579));
	});
}


TEST(making_a_font, counts_what_is_ticked)
{
	journey([](kernix&, robot& user) {
		begin_font(user);
		user.tick("BASIC_LATIN");
		EXPECT_TRUE(counts(user, "0080chrs."));
		EXPECT_FALSE(counts(user, "0081chrs."));
		user.tick("BASIC_LATIN");
		EXPECT_TRUE(counts(user, "0001chrs."));
		user.tick("SPECIALS");
		EXPECT_TRUE(counts(user, "0012chrs."));
		user.tick("ARABIC_PRESENTATION_FORMS_B");
		EXPECT_TRUE(counts(user, "00a1chrs."));
		user.tick("SPECIALS");
		EXPECT_TRUE(counts(user, "0090chrs."));
		user.tick("ARABIC_PRESENTATION_FORMS_B");
		user.tick("CJK_UNIFIED_IDEOGRAPHS");
		user.tick("HANGUL");
		EXPECT_TRUE(counts(user, "7db1chrs."));
	});
}


TEST(making_a_font, of_nothing_is_shown_and_saved)
{
	journey([](kernix& app, robot& user) {
		new_font_of(user, {});
		EXPECT_FALSE(in_setup(app));
		EXPECT_EQ(listed(app), ten_tables);
		EXPECT_EQ(panels_shown(app), tags{});
		EXPECT_TRUE(saves_font_of(user, {}));
	});
}


TEST(making_a_font, of_basic_latin_is_shown_and_saved)
{
	journey([](kernix& app, robot& user) {
		new_font_of(user, {"BASIC_LATIN"});
		EXPECT_EQ(listed(app), ten_tables);
		EXPECT_EQ(canvas, BRect(0, 0, 511, 511));
		EXPECT_TRUE(saves_font_of(user, {0}));
	});
}


TEST(making_a_font, of_specials_and_tibetan_is_saved)
{
	journey([](kernix&, robot& user) {
		new_font_of(user, {"SPECIALS", "TIBETAN"});
		EXPECT_TRUE(saves_font_of(user, {69, 70}));
	});
}


TEST(making_a_font, of_chinese_and_korean_is_saved)
{
	journey([](kernix&, robot& user) {
		new_font_of(user, {"CJK_UNIFIED_IDEOGRAPHS", "HANGUL"});
		EXPECT_TRUE(saves_font_of(user, {59, 56}));
	});
}


TEST(making_a_font, leaves_out_what_was_ticked_and_unticked)
{
	journey([](kernix&, robot& user) {
		new_font_of(user, {"THAI", "SPECIALS", "BASIC_LATIN", "SPECIALS", "THAI"});
		EXPECT_TRUE(saves_font_of(user, {0}));
	});
}


// Whether FreeType finds one contour of four points for the code, and none for the next.
static void
check_drawn(const octets& file, FT_ULong code)
{
	FT_Library library;
	FT_Face face;
	FT_Init_FreeType(&library);
	ASSERT_EQ(FT_New_Memory_Face(library, file.data(), (FT_Long)file.size(), 0, &face), 0);
	EXPECT_EQ(FT_Load_Char(face, code, FT_LOAD_NO_SCALE), 0);
	EXPECT_EQ(face->glyph->outline.n_contours, 1);
	EXPECT_EQ(face->glyph->outline.n_points, 4);
	EXPECT_EQ(FT_Load_Char(face, code + 1, FT_LOAD_NO_SCALE), 0);
	EXPECT_EQ(face->glyph->outline.n_contours, 0);
	FT_Done_Face(face);
	FT_Done_FreeType(library);
}


TEST(making_a_font, keeps_the_glyph_that_is_drawn)
{
	temp_folder folder;
	journey([&](kernix& app, robot& user) {
		new_font_of(user, {"BASIC_LATIN"});
		outline_user person(app, user);
		user.click(tag_of_glyf);
		enter(user, glyph_entry, "41");
		user.click(rect_icon);
		person.set_scale(1);
		person.drag(BPoint(100, 100), BPoint(200, 250));
		const std::string drawn = person.outline();
		EXPECT_NE(drawn, "");
		user.click(commit_button);
		user.choose_menu("File", "Save as");
		user.answer_panel(folder.path("drawn.ttf"));

		temp_file other(other_font());
		open_file(user, other.path());
		open_file(user, folder.path("drawn.ttf"));
		EXPECT_EQ(listed(app), ten_tables);
		user.click(tag_of_glyf);
		enter(user, glyph_entry, "42");
		EXPECT_EQ(person.outline(), "");
		enter(user, glyph_entry, "41");
		EXPECT_EQ(person.outline(), drawn);
	});
	const octets file = read_file(folder.path("drawn.ttf"));
	// One contour, and its box: 511 - 250 is 105 in hexadecimal, 511 - 100 is 19b.
	EXPECT_EQ(part(sfnt(file).table("glyf"), 0, 10), hex("0001 0064 0105 00c8 019b"));
	check_drawn(file, 'A');
}


TEST(making_a_font, is_given_up_when_a_file_is_opened)
{
	temp_file font(other_font());
	journey([&](kernix& app, robot& user) {
		begin_font(user);
		user.tick("HANGUL");
		open_file(user, font.path());
		EXPECT_FALSE(in_setup(app));
		EXPECT_FALSE(user.tick("HANGUL"));
		EXPECT_EQ(listed(app), (tags{"name", "cmap", "head", "prep"}));
	});
}


TEST(making_a_font, is_given_up_when_what_is_opened_is_no_font)
{
	temp_file font(hex("00"));
	temp_folder folder;
	journey([&](kernix& app, robot& user) {
		begin_font(user);
		open_file(user, font.path());
		EXPECT_FALSE(in_setup(app));
		EXPECT_EQ(listed(app), tags{});
		new_font_of(user, {"BASIC_LATIN"});
		EXPECT_TRUE(saves_font_of(user, {0}));
	});
}


TEST(making_a_font, is_not_saved_while_it_is_set_up)
{
	temp_file font(tiny_font());
	temp_folder folder;
	write_file(folder.path("old.ttf"), hex("0102"));
	journey([&](kernix& app, robot& user) {
		begin_font(user);
		save_file(user, folder.path(), "one.ttf");
		open_file(user, font.path());
		begin_font(user);
		user.tick("BASIC_LATIN");
		save_file(user, folder.path(), "two.ttf");
		save_file(user, folder.path(), "old.ttf");
		EXPECT_TRUE(in_setup(app));
		EXPECT_TRUE(counts(user, "0080chrs."));
	});
	EXPECT_FALSE(std::filesystem::exists(folder.path("one.ttf")));
	EXPECT_FALSE(std::filesystem::exists(folder.path("two.ttf")));
	EXPECT_EQ(read_file(folder.path("old.ttf")), hex("0102"));
}


TEST(making_a_font, is_made_once_however_often_it_is_asked_for)
{
	journey([](kernix& app, robot& user) {
		begin_font(user);
		user.tick("BASIC_LATIN");
		for (int i = 0; i < 3; i++)
			be_app_messenger.SendMessage(msg_confirmed);
		user.settle();
		EXPECT_EQ(listed(app), ten_tables);
		EXPECT_TRUE(saves_font_of(user, {0}));
		be_app_messenger.SendMessage(msg_confirmed);
		user.settle();
		EXPECT_TRUE(saves_font_of(user, {0}));
	});
}


TEST(making_a_font, is_not_made_without_a_choice)
{
	temp_file font(other_font());
	journey([&](kernix& app, robot& user) {
		be_app_messenger.SendMessage(msg_confirmed);
		user.settle();
		EXPECT_EQ(listed(app), tags{});
		open_file(user, font.path());
		be_app_messenger.SendMessage(msg_confirmed);
		user.settle();
		EXPECT_EQ(listed(app), (tags{"name", "cmap", "head", "prep"}));
	});
}


TEST(making_a_font, takes_the_place_of_an_open_font)
{
	temp_file font(tiny_font());
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		user.click(place_of_tag(1));
		begin_font(user);
		EXPECT_EQ(listed(app), tags{});
		EXPECT_EQ(panels_shown(app), tags{});
		EXPECT_TRUE(counts(user, "0001chrs."));
		EXPECT_EQ(user.window_size(), BPoint(576, 579));
		make_font(user);
		EXPECT_EQ(listed(app), ten_tables);
	});
}


TEST(making_a_font, begun_again_has_nothing_ticked)
{
	temp_file font(tiny_font());
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		begin_font(user);
		user.tick("BASIC_LATIN");
		begin_font(user);
		EXPECT_FALSE(user.is_ticked("BASIC_LATIN"));
		EXPECT_TRUE(counts(user, "0001chrs."));
		looking(app, [&] { EXPECT_EQ(app.window->workview->CountChildren(), 1); });
		user.tick("THAI");
		make_font(user);
		EXPECT_TRUE(saves_font_of(user, {24}));
		new_font_of(user, {"LAO"});
		EXPECT_TRUE(saves_font_of(user, {25}));
	});
}


TEST(making_a_font, can_be_left_at_any_time)
{
	journey([](kernix&, robot& user) {
		begin_font(user);
		user.tick("BASIC_LATIN");
		user.press_close_box();
	});
	journey([](kernix&, robot& user) {
		begin_font(user);
		user.choose_menu("File", "Quit");
	});
	journey([](kernix&, robot& user) {
		new_font_of(user, {"BASIC_LATIN"});
		user.choose_menu("File", "Quit");
	});
}
