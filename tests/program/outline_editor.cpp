// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The outline editor in the whole program: it is opened, shown, scrolled, worked and saved.
#include "app/kernix.h"
#include "app/kernixwindow.h"
#include "program/outline_stage.h"
#include "program/panel_user.h"
#include "support/freetype_outlines.h"
#include "support/sfnt.h"
#include "support/temp_files.h"

#include <gtest/gtest.h>
#include <ListView.h>

static const BPoint tag_of_cmap = place_of_tag(0);
static const BPoint tag_of_glyf = place_of_tag(1);
static const BPoint chr_field = in_panel(22, 20);
static const BPoint code_field = in_panel(30, 50);
static const BPoint number_field = in_panel(30, 80);
static const BPoint list = in_panel(20, 180);
static const BPoint sub_field = in_panel(30, 270);
static const BPoint add_button = in_panel(25, 310);
static const BPoint del_button = in_panel(25, 340);
static const BPoint mode_button = in_panel(25, 410);
static const BPoint set_button = in_panel(25, 440);
static const BPoint larger = in_panel(45, 505);
static const BPoint fit = in_panel(25, 505);
// Where none of the glyphs has anything.
static const BPoint corner = in_panel(55, 5);


// Opens the font and chooses its glyf.
static void
at_editor(const font_file& contents, const std::function<void(kernix&, robot&)>& work)
{
	temp_file font(contents);
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		user.click(tag_of_glyf);
		work(app, user);
	});
}


static void
at_editor(const std::function<void(kernix&, robot&)>& work)
{
	at_editor(outlines_font(), work);
}


static std::string
fields(robot& user)
{
	return user.field_text(chr_field) + " " + user.field_text(code_field) + " "
		+ user.field_text(number_field);
}


static float
scale_of(kernix& app)
{
	float scale = 0;
	looking(app, [&] { scale = curttf->glyf->edit->getscale(); });
	return scale;
}


static octets
saved_file(robot& user)
{
	temp_folder folder;
	save_file(user, folder.path(), "saved.ttf");
	return read_file(folder.path("saved.ttf"));
}


// Presses a number key at the canvas.
static void
press_number(robot& user, int digit)
{
	user.click(corner);
	user.key(Qt::Key_0 + digit, std::to_string(digit));
}


static void
press_with_control(robot& user, int key)
{
	user.key(key, std::string(1, (char)(key - '@')), B_CONTROL_KEY);
}


TEST(outline_editor, has_the_box_of_each_font_that_is_opened_for_its_canvas)
{
	temp_file second(outlines_font(-10, -20, 300, 400));
	at_editor([&](kernix& app, robot& user) {
		looking(app, [] { EXPECT_EQ(canvas.RightBottom(), BPoint(511, 511)); });
		open_file(user, second.path());
		EXPECT_EQ(canvasok, 1);
		looking(app, [] {
			EXPECT_EQ(canvas.LeftTop(), BPoint(0, 0));
			EXPECT_EQ(canvas.RightBottom(), BPoint(310, 420));
			EXPECT_EQ(curttf->glyf->edit->gno, -1);
		});
		EXPECT_NEAR(scale_of(app), 1.2000024f, 1e-5);
	});
}


TEST(outline_editor, chooses_a_glyph_by_any_character_that_is_typed)
{
	at_editor([](kernix&, robot& user) {
		const struct {
			int key;
			const char* text;
			const char* shown;
		} expected[] = {{Qt::Key_A, "a", "a 0061 0001"},
			{Qt::Key_Eacute, "\xC3\xA9", "\xC3\xA9 00e9 0002"},
			{0, "\xE3\x81\x82", "\xE3\x81\x82 3042 0003"},
			{0, "\xE9\x80\x80", "\xE9\x80\x80 9000 0004"}};
		for (const auto& each : expected) {
			user.click(chr_field);
			user.key(Qt::Key_End);
			user.key(Qt::Key_Backspace, "\b");
			user.key(each.key, each.text);
			user.key(Qt::Key_Return, "\r");
			EXPECT_EQ(fields(user), each.shown);
		}
	});
}


TEST(outline_editor, chooses_a_glyph_by_numbers_arrows_and_the_background)
{
	at_editor([](kernix&, robot& user) {
		enter(user, code_field, "9000");
		EXPECT_EQ(fields(user), "\xE9\x80\x80 9000 0004");
		enter(user, number_field, "2");
		EXPECT_EQ(fields(user), "\xC3\xA9 00e9 0002");
		user.click(in_panel(45, 19));
		EXPECT_EQ(fields(user), "\xE3\x81\x82 3042 0003");
		user.click(in_panel(5, 19));
		user.click(in_panel(5, 19));
		EXPECT_EQ(fields(user), "A 0041 0001");
		user.click(in_panel(20, 470));
		EXPECT_EQ(fields(user), "\xC3\xA9 00e9 0002");
		enter(user, number_field, "7");
		EXPECT_EQ(fields(user), " 0000 0000");
		user.click(in_panel(5, 19));
		EXPECT_EQ(fields(user), " 0000 0000");
	});
}


TEST(outline_editor, sends_what_was_typed_when_the_keyboard_goes_elsewhere)
{
	at_editor([](kernix&, robot& user) {
		enter(user, number_field, "5");
		user.click(code_field);
		user.key(Qt::Key_End);
		for (int i = 0; i < 4; i++)
			user.key(Qt::Key_Backspace, "\b");
		user.type("e9");
		EXPECT_EQ(user.field_text(number_field), "0005");
		user.click(corner);
		EXPECT_EQ(fields(user), "\xC3\xA9 00e9 0002");
		EXPECT_FALSE(user.has_keyboard(code_field));
	});
}


TEST(outline_editor, scrolls_as_far_as_the_canvas_at_its_scale)
{
	at_editor([](kernix& app, robot& user) {
		EXPECT_EQ(bar(app, B_HORIZONTAL), "0 to 0, 1, 5 and 511");
		looking(app, [] { curttf->glyf->edit->chgscale(2); });
		user.settle();
		EXPECT_EQ(bar(app, B_HORIZONTAL), "0 to 511, 0.5, 5 and 511");
		EXPECT_EQ(bar(app, B_VERTICAL), "0 to 511, 0.5, 5 and 511");
		user.click(fit);
		EXPECT_EQ(bar(app, B_VERTICAL), "0 to 0, 1, 5 and 511");
	});
}


TEST(outline_editor, leaves_the_scroll_bars_alone_while_it_is_hidden)
{
	at_editor([](kernix& app, robot& user) {
		user.click(tag_of_cmap);
		looking(app, [] { curttf->glyf->edit->chgscale(2); });
		user.settle();
		EXPECT_EQ(bar(app, B_VERTICAL), "0 to 0, 1, 5 and 511");
		user.click(tag_of_glyf);
		EXPECT_EQ(bar(app, B_VERTICAL), "0 to 511, 0.5, 5 and 511");
	});
}


TEST(outline_editor, scrolls_nothing_when_the_canvas_has_no_width)
{
	at_editor(outlines_font(0, 0, -1, 511), [](kernix& app, robot& user) {
		looking(app, [] { curttf->glyf->edit->chgscale(2); });
		user.settle();
		EXPECT_EQ(bar(app, B_HORIZONTAL), "0 to 0, 1, 5 and 511");
		EXPECT_EQ(bar(app, B_VERTICAL), "0 to 0, 1, 5 and 511");
	});
}


TEST(outline_editor, shows_another_part_of_the_canvas_when_it_is_scrolled)
{
	at_editor([](kernix& app, robot& user) {
		enter(user, number_field, "5");
		looking(app, [] { curttf->glyf->edit->chgscale(2); });
		user.settle();
		// The square's left side, at 200.
		EXPECT_EQ(user.pixel(in_panel(250, 500)), (rgb_color{255, 255, 255, 255}));
		user.drag_scroll_bar(B_HORIZONTAL, 100);
		EXPECT_EQ(user.pixel(in_panel(150, 500)), (rgb_color{255, 255, 255, 255}));
		EXPECT_EQ(user.pixel(in_panel(250, 500)), (rgb_color{0, 0, 0, 255}));
		EXPECT_EQ(user.pixel(in_panel(549, 500)), (rgb_color{0, 0, 0, 255}));
	});
}


TEST(outline_editor, keeps_its_scale_when_it_is_chosen_again)
{
	at_editor([](kernix& app, robot& user) {
		for (int i = 0; i < 3; i++)
			user.click(larger);
		const float chosen = scale_of(app);
		EXPECT_NEAR(chosen, 1.15f, 1e-5);
		const std::string bars = bar(app, B_VERTICAL);
		EXPECT_EQ(bars, "0 to 76, 0.87, 5 and 511");
		user.click(tag_of_glyf);
		EXPECT_EQ(scale_of(app), chosen);
		EXPECT_EQ(bar(app, B_VERTICAL), bars);
		user.click(tag_of_cmap);
		EXPECT_EQ(panels_shown(app), texts{"cmap"});
		user.click(tag_of_glyf);
		EXPECT_EQ(panels_shown(app), texts{"glyf"});
		EXPECT_EQ(scale_of(app), chosen);
		EXPECT_EQ(bar(app, B_VERTICAL), bars);
		looking(app, [&] {
			EXPECT_EQ(app.window->inputhandler, curttf->glyf->edit);
			EXPECT_EQ(app.window->scrolltarget, curttf->glyf->edit);
		});
	});
}


TEST(outline_editor, shows_the_glyph_again_after_another_panel)
{
	at_editor([](kernix&, robot& user) {
		enter(user, number_field, "3");
		QImage before = user.picture();
		user.click(tag_of_cmap);
		user.click(tag_of_glyf);
		EXPECT_EQ(user.picture(), before);
	});
}


TEST(outline_editor, saves_what_was_pasted_and_set)
{
	at_editor([](kernix&, robot& user) {
		enter(user, number_field, "2");
		press_number(user, 2);
		press_with_control(user, 'C');
		enter(user, number_field, "5");
		user.click(corner);
		press_with_control(user, 'V');
		user.click(set_button);
		octets file = saved_file(user);
		// Glyph 5 with the inner square of glyph 2 behind its own.
		octets glyf = outlines_font().table("glyf");
		octets record = hex("0002 0064 0064 0140 0140 0003 0007 0000 01 01 01 01 01 01 01 01"
							"0064 0000 00c8 0000 ff94 0080 0000 ff80 "
							"0064 00c8 0000 ff38 005c 0000 0080 0000");
		glyf.erase(glyf.begin() + 0x88, glyf.begin() + 0xAC);
		glyf.insert(glyf.begin() + 0x88, record.begin(), record.end());
		font_file expected =
			outlines_font()
				.with("glyf", glyf)
				.with("loca",
					"00000000 00000000 00000020 00000058 00000074 00000088 000000c0 0000010c");
		outline_comparison found = compare_outlines(expected, file);
		EXPECT_EQ(found.difference, "");
		EXPECT_EQ(found.glyphs, 7);
		EXPECT_GE(found.points, 3 + 8 + 11 + 3 + 8);
	});
}


TEST(outline_editor, saves_the_font_as_it_was_when_nothing_was_set)
{
	at_editor([](kernix&, robot& user) {
		enter(user, number_field, "5");
		press_number(user, 8);
		user.key(Qt::Key_Delete, "\x7F");
		enter(user, number_field, "1");
		user.click(mode_button);
		octets file = saved_file(user);
		EXPECT_EQ(compare_outlines(outlines_font(), file).difference, "");
		EXPECT_EQ(saved_table(user, "glyf"), outlines_font().table("glyf"));
	});
}


TEST(outline_editor, saves_a_composite_that_was_made_of_an_empty_glyph)
{
	at_editor([](kernix&, robot& user) {
		enter(user, number_field, "0");
		user.click(mode_button);
		enter(user, sub_field, "5");
		user.click(add_button);
		enter(user, sub_field, "1");
		user.click(add_button);
		EXPECT_EQ(user.list_rows(list), (texts{"0005", "0001"}));
		ASSERT_TRUE(user.choose_row(list, 0));
		user.click(del_button);
		EXPECT_EQ(user.list_rows(list), texts{"0001"});
		user.click(set_button);
		temp_folder folder;
		save_file(user, folder.path(), "saved.ttf");
		octets glyf = sfnt(read_file(folder.path("saved.ttf"))).table("glyf");
		EXPECT_EQ(part(glyf, 0, 16), hex("ffff 0000 0000 01ff 01ff 0000 0001 00 00"));
		EXPECT_TRUE(same(outlines_font().table("glyf"), part(glyf, 16, glyf.size() - 16)));
		open_file(user, folder.path("saved.ttf"));
		user.click(tag_of_glyf);
		enter(user, number_field, "0");
		EXPECT_EQ(user.list_rows(list), texts{"0001"});
	});
}


TEST(outline_editor, reaches_glyph_40000)
{
	octets loca = zeros(4 * 40002);
	put_be32(loca, 4 * 40001, 0x20);
	font_file font = outlines_font()
						 .with("glyf", part(outlines_font().table("glyf"), 0, 32))
						 .with("loca", loca)
						 .with("maxp",
							 "00010000 9c41 0008 0002 0018 0008 0002 0000 0000 0000 0000 0000 0000 "
							 "0008 0001");
	at_editor(font, [](kernix& app, robot& user) {
		enter(user, number_field, "9c40");
		EXPECT_EQ(fields(user), " ffff 9c40");
		looking(app, [] { EXPECT_EQ(cur_glyph->num_shape, 1); });
		user.click(in_panel(5, 19));
		EXPECT_EQ(fields(user), " ffff 9c3f");
		user.click(in_panel(45, 19));
		user.click(set_button);
		EXPECT_EQ(fields(user), " ffff 9c40");
		looking(app, [] { EXPECT_EQ(cur_glyph->num_shape, 1); });
		user.click(in_panel(45, 19));
		EXPECT_EQ(fields(user), " 0000 0000");
	});
}
