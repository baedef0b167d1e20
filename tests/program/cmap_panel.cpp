// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The panel of cmap: three fields and a button.
#include "app/kernix.h"
#include "font/globals.h"
#include "font/ttf.h"
#include "program/panel_user.h"
#include "support/opened.h"
#include "support/temp_files.h"
#include "tables/ttf_cmap.h"

#include <Button.h>
#include <gtest/gtest.h>
#include <Message.h>
#include <Messenger.h>
#include <TextControl.h>

static const BPoint tag_of_cmap = place_of_tag(0);
static const BPoint start_field = in_panel(100, 460);
static const BPoint end_field = in_panel(220, 460);
static const BPoint glyph_field = in_panel(340, 460);
static const BPoint set_button = in_panel(520, 460);

// "A" is glyph 1, "B" to "D" are 2 to 4.
static constexpr std::string_view four_letters = "0000 0001 0003 0001 0000000c"
												 "0004 0020 0000 0004 0004 0001 0000"
												 "0044 ffff 0000 0041 ffff ffc0 0001 0000 0000";


// A font of 512 glyphs, as far as maxp says.
static font_file
roomy_font()
{
	return tiny_font().with("cmap", four_letters).with("maxp", "00005000 0200");
}


// Opens the font and chooses its cmap.
static void
at_panel(const font_file& contents, const std::function<void(kernix&, robot&)>& work)
{
	temp_file font(contents);
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		user.click(tag_of_cmap);
		work(app, user);
	});
}


// The texts of the three fields.
static std::string
fields(robot& user)
{
	return user.field_text(start_field) + " " + user.field_text(end_field) + " "
		+ user.field_text(glyph_field);
}


static void
set(robot& user, const char* start, const char* end, const char* glyph)
{
	enter(user, start_field, start);
	enter(user, end_field, end);
	enter(user, glyph_field, glyph);
	user.click(set_button);
}


static octets
cmap_octets(kernix& app)
{
	octets table;
	looking(app, [&] { table = kept(curttf->cmap); });
	return table;
}


static int
glyph_of(kernix& app, unsigned short code)
{
	int glyph = -1;
	looking(app, [&] { glyph = curttf->cmap->get_gno(code); });
	return glyph;
}


struct control_case {
	const char* name;
	const char* label;
	BPoint place;
	float right;
};


TEST(cmap_panel, has_a_button_and_three_fields_that_start_empty)
{
	at_panel(tiny_font(), [](kernix& app, robot& user) {
		const control_case expected[] = {{"set", "set", BPoint(500, 448), 540},
			{"st", "start_chr.", BPoint(20, 450), 120}, {"ed", "end_chr.", BPoint(140, 450), 240},
			{"gno", "glyph_no.", BPoint(260, 450), 360}};
		looking(app, [&] {
			ASSERT_EQ(curttf->cmap->CountChildren(), 4);
			for (int32 i = 0; i < 4; i++) {
				auto* control = dynamic_cast<BControl*>(curttf->cmap->ChildAt(i));
				ASSERT_NE(control, nullptr);
				EXPECT_STREQ(control->Name(), expected[i].name);
				EXPECT_STREQ(control->Label(), expected[i].label);
				EXPECT_EQ(control->Frame().LeftTop(), expected[i].place) << i;
				EXPECT_EQ(control->Frame().right, expected[i].right) << i;
			}
		});
		EXPECT_EQ(fields(user), "  ");
	});
}


TEST(cmap_panel, takes_the_keyboard_itself)
{
	at_panel(font_file().with("cmap", four_letters),
		[](kernix& app, robot&) { looking(app, [&] { EXPECT_TRUE(curttf->cmap->IsFocus()); }); });
}


TEST(cmap_panel, is_black_but_for_its_controls)
{
	at_panel(tiny_font(), [](kernix&, robot& user) {
		BPoint from = in_panel(0, 0);
		BPoint to = in_panel(561, 440);
		EXPECT_EQ(user.count(BRect(from.x, from.y, to.x, to.y), {0, 0, 0, 255}), 562 * 441);
		EXPECT_EQ(user.pixel(in_panel(380, 480)), (rgb_color{0, 0, 0, 255}));
	});
}


TEST(cmap_panel, shows_the_glyph_of_the_start_code_that_is_typed)
{
	at_panel(roomy_font(), [](kernix&, robot& user) {
		enter(user, start_field, "43");
		EXPECT_EQ(fields(user), "0043 0000 0003");
		enter(user, start_field, "60");
		EXPECT_EQ(fields(user), "0060 0000 0000");
	});
}


TEST(cmap_panel, does_not_take_the_end_code_from_the_start_code)
{
	at_panel(roomy_font(), [](kernix&, robot& user) {
		enter(user, end_field, "7E");
		enter(user, start_field, "41");
		EXPECT_EQ(fields(user), "0041 007e 0001");
	});
}


TEST(cmap_panel, makes_four_small_digits_of_every_number)
{
	at_panel(roomy_font(), [](kernix&, robot& user) {
		enter(user, glyph_field, "0xAB");
		EXPECT_EQ(fields(user), "0000 0000 00ab");
		enter(user, end_field, "7 e");
		EXPECT_EQ(fields(user), "0000 0007 00ab");
	});
}


TEST(cmap_panel, shows_the_glyph_only_when_the_start_code_changes)
{
	at_panel(roomy_font(), [](kernix&, robot& user) {
		enter(user, start_field, "41");
		enter(user, glyph_field, "9");
		enter(user, end_field, "42");
		EXPECT_EQ(fields(user), "0041 0042 0009");
	});
}


TEST(cmap_panel, takes_what_is_no_number_for_0)
{
	at_panel(roomy_font(), [](kernix&, robot& user) {
		enter(user, start_field, "41");
		enter(user, start_field, "letters");
		EXPECT_EQ(fields(user), "0000 0000 0000");
	});
}


TEST(cmap_panel, shows_a_code_beyond_16_bits_as_it_is_and_no_glyph)
{
	at_panel(roomy_font(), [](kernix&, robot& user) {
		enter(user, start_field, "10042");
		EXPECT_EQ(fields(user), "10042 0000 0000");
		enter(user, start_field, "100000042");
		EXPECT_EQ(fields(user), "ffffffff 0000 0000");
	});
}


TEST(cmap_panel, sets_a_range_and_the_saved_table_has_it)
{
	at_panel(roomy_font(), [](kernix& app, robot& user) {
		set(user, "61", "63", "10");
		EXPECT_EQ(glyph_of(app, 0x62), 0x11);
		EXPECT_EQ(saved_table(user, "cmap"),
			hex("0000 0001 0003 0001 0000000c"
				"0004 0028 0000 0006 0004 0001 0002"
				"0044 0063 ffff 0000 0041 0061 ffff"
				"ffc0 ffaf 0001 0000 0000 0000"));
		enter(user, start_field, "63");
		EXPECT_EQ(fields(user), "0063 0063 0012");
	});
}


TEST(cmap_panel, takes_the_glyphs_of_a_range_away_with_ffff)
{
	at_panel(roomy_font(), [](kernix&, robot& user) {
		set(user, "41", "44", "ffff");
		EXPECT_EQ(saved_table(user, "cmap"),
			hex("0000 0001 0003 0001 0000000c"
				"0004 0018 0000 0002 0001 ffff 0001 ffff 0000 ffff 0001 0000"));
		enter(user, start_field, "42");
		EXPECT_EQ(fields(user), "0042 0044 0000");
	});
}


TEST(cmap_panel, saves_a_table_that_nobody_set_as_it_was_loaded)
{
	font_file font = roomy_font().with("cmap", std::string(four_letters) + "abcdef");
	at_panel(font, [&](kernix&, robot& user) {
		enter(user, start_field, "41");
		enter(user, end_field, "42");
		EXPECT_EQ(saved_table(user, "cmap"), font.table("cmap"));
	});
}


TEST(cmap_panel, sets_a_range_of_one_code)
{
	at_panel(roomy_font(), [](kernix& app, robot& user) {
		set(user, "42", "42", "1ff");
		EXPECT_EQ(glyph_of(app, 0x42), 0x1FF);
		EXPECT_EQ(glyph_of(app, 0x43), 3);
	});
}


TEST(cmap_panel, sets_nothing_when_the_range_ends_before_it_starts)
{
	at_panel(roomy_font(), [](kernix& app, robot& user) {
		set(user, "43", "42", "9");
		EXPECT_EQ(cmap_octets(app), hex(four_letters));
		EXPECT_EQ(fields(user), "0043 0042 0009");
	});
}


TEST(cmap_panel, sets_nothing_for_codes_beyond_16_bits)
{
	at_panel(roomy_font(), [](kernix& app, robot& user) {
		const struct {
			const char* start;
			const char* end;
		} ranges[] = {{"1f600", "1f600"}, {"41", "10000"}, {"41", "10005"}, {"41", "80000041"},
			{"41", "100000042"}, {"ffffffff", "41"}, {"80000041", "42"}, {"-1", "-1"},
			{"100000041", "100000042"}};
		for (const auto& range : ranges) {
			for (const char* glyph : {"9", "ffff"}) {
				set(user, range.start, range.end, glyph);
				EXPECT_EQ(cmap_octets(app), hex(four_letters)) << range.start << ".." << range.end;
			}
		}
	});
}


TEST(cmap_panel, sets_no_glyph_that_the_font_does_not_have)
{
	at_panel(roomy_font(), [](kernix& app, robot& user) {
		for (const char* glyph : {"200", "fffe", "10009", "1ffff", "ffffffff", "100000009", "-1"}) {
			set(user, "61", "61", glyph);
			EXPECT_EQ(cmap_octets(app), hex(four_letters)) << glyph;
		}
	});
}


TEST(cmap_panel, checks_only_the_first_glyph_of_a_range)
{
	at_panel(roomy_font(), [](kernix& app, robot& user) {
		set(user, "61", "63", "1ff");
		EXPECT_EQ(glyph_of(app, 0x61), 0x1FF);
		EXPECT_EQ(glyph_of(app, 0x63), 0x201);
	});
}


TEST(cmap_panel, sets_a_range_up_to_the_last_code)
{
	at_panel(roomy_font(), [](kernix& app, robot& user) {
		set(user, "fff0", "ffff", "9");
		EXPECT_EQ(glyph_of(app, 0xFFFE), 0x17);
		EXPECT_EQ(glyph_of(app, 0xFFFF), 0);
	});
}


TEST(cmap_panel, of_a_font_without_maxp_only_takes_glyphs_away)
{
	font_file font = tiny_font().with("cmap", four_letters).without("maxp");
	at_panel(font, [](kernix& app, robot& user) {
		set(user, "61", "61", "0");
		EXPECT_EQ(cmap_octets(app), hex(four_letters));
		set(user, "41", "41", "ffff");
		EXPECT_EQ(glyph_of(app, 0x41), 0);
		EXPECT_EQ(glyph_of(app, 0x42), 2);
	});
}


TEST(cmap_panel, ignores_messages_that_name_no_control_or_another)
{
	at_panel(roomy_font(), [](kernix& app, robot& user) {
		enter(user, start_field, "41");
		enter(user, end_field, "41");
		enter(user, glyph_field, "9");
		BMessenger panel(curttf->cmap);
		panel.SendMessage('Bhit');
		BMessage foreign('Bhit');
		foreign.AddPointer("source", &app);
		panel.SendMessage(&foreign);
		user.settle();
		EXPECT_EQ(cmap_octets(app), hex(four_letters));
		looking(app, [&] {
			auto* field = dynamic_cast<BTextControl*>(curttf->cmap->FindView("ed"));
			field->SetText("7E");
		});
		panel.SendMessage('Vchg');
		user.settle();
		EXPECT_EQ(fields(user), "0041 7E 0009");
	});
}


TEST(cmap_panel, has_its_controls_once_when_it_is_attached_again)
{
	at_panel(roomy_font(), [](kernix& app, robot& user) {
		looking(app, [&] {
			BView* parent = curttf->cmap->Parent();
			parent->RemoveChild(curttf->cmap);
			parent->AddChild(curttf->cmap);
			EXPECT_EQ(curttf->cmap->CountChildren(), 4);
		});
		set(user, "61", "61", "7");
		EXPECT_EQ(glyph_of(app, 0x61), 7);
	});
}


TEST(cmap_panel, lets_a_drop_reach_the_work_view)
{
	temp_file other(other_font());
	at_panel(roomy_font(), [&](kernix& app, robot& user) {
		user.drop(in_panel(300, 300), {other.path()});
		EXPECT_EQ(listed(app), (std::vector<std::string>{"name", "cmap", "head", "prep"}));
	});
}
