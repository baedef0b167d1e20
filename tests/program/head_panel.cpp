// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The panel of head: a listing with dates and one field.
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
#include <QFont>
#include <QPainter>
#include <TextControl.h>

static const BPoint tag_of_head = place_of_tag(2);
static const BPoint tag_of_hhea = place_of_tag(3);
static const BPoint revision_field = in_panel(170, 460);

// Every field has a value of its own.
static constexpr std::string_view plain = "00010203 04050607 08090a0b 0c0d0e0f"
										  "1011 0213"
										  "00000000c0000000 00000001c1000000"
										  "ff24 fe26 0128 022a 002c 002e fffe 0001 fff4";


static octets
revision(kernix& app)
{
	octets field;
	looking(app, [&] { field = part(kept(curttf->head), 4, 4); });
	return field;
}


// Opens a font with this head and chooses its panel.
static void
at_panel(std::string_view head, const std::function<void(kernix&, robot&)>& work)
{
	temp_file font(tiny_font().with("head", head));
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		user.click(tag_of_head);
		work(app, user);
	});
}


static std::vector<line>
lines_with(const char* revision, const char* created = "00000000c0000000 (2006/01/27 16:51:12)",
	const char* modified = "00000001c1000000 (2006/08/09 21:11:28)")
{
	return {
		{"tableVersionNumber", "00010203"},
		{"fontRevision", revision},
		{"checkSumAdjustment", "08090a0b"},
		{"magicNumber", "0c0d0e0f"},
		{"flags", "1011"},
		{"unitsPerEm", "0213"},
		{"created", created},
		{"modified", modified},
		{"xMin", "ff24"},
		{"yMin", "fe26"},
		{"xMax", "0128"},
		{"yMax", "022a"},
		{"macStyle", "002c"},
		{"lowestRecPPEM", "002e"},
		{"fontDirectionHint", "fffe"},
		{"indexToLocFormat", "0001"},
		{"glyphDataFormat", "fff4"},
	};
}


// The same lines, drawn by other means than the program's.
static QImage
painted(const std::vector<line>& lines, QSize size)
{
	QImage image(size, QImage::Format_RGB32);
	image.fill(Qt::black);
	QFont font("DejaVu Sans");
	font.setPixelSize(12);
	font.setHintingPreference(QFont::PreferFullHinting);
	font.setStyleStrategy(QFont::NoSubpixelAntialias);
	QPainter paint(&image);
	paint.setFont(font);
	paint.setPen(Qt::white);
	for (int row = 0; row < (int)lines.size(); row++) {
		paint.drawText(20, 20 + 15 * row, lines[(size_t)row].label);
		paint.drawText(170, 20 + 15 * row, lines[(size_t)row].value);
	}
	return image;
}


TEST(head_panel, lists_every_field)
{
	time_zone zone("UTC0");
	at_panel(plain, [](kernix&, robot& user) { EXPECT_TRUE(shows(user, lines_with("04050607"))); });
}


TEST(head_panel, writes_each_line_at_its_place)
{
	time_zone zone("UTC0");
	at_panel(plain, [](kernix&, robot& user) {
		QImage expected;
		user.on_display([&] { expected = painted(lines_with("04050607"), QSize(562, 400)); });
		EXPECT_TRUE(user.picture().copy(0, 53, 562, 400) == expected);
	});
}


TEST(head_panel, writes_dates_as_the_local_clock_showed_them)
{
	const struct {
		const char* zone;
		const char* winter;
		const char* summer;
	} cases[] = {{"UTC0", "00000000c0000000 (2006/01/27 16:51:12)",
					 "00000001c1000000 (2006/08/09 21:11:28)"},
		{"JST-9", "00000000c0000000 (2006/01/27 16:51:12)",
			"00000001c1000000 (2006/08/09 21:11:28)"},
		{"EST5EDT,M3.2.0,M11.1.0", "00000000c0000000 (2006/01/27 16:51:12)",
			"00000001c1000000 (2006/08/09 22:11:28)"}};
	for (const auto& each : cases) {
		time_zone zone(each.zone);
		at_panel(plain, [&](kernix&, robot& user) {
			EXPECT_TRUE(shows(user, lines_with("04050607", each.winter, each.summer))) << each.zone;
		});
	}
}


TEST(head_panel, writes_the_first_and_the_last_date_there_is)
{
	time_zone zone("UTC0");
	octets head = hex(plain);
	octets dates = hex("0000000000000000 00000000ffffffff");
	std::copy(dates.begin(), dates.end(), head.begin() + 20);
	temp_file font(tiny_font().with("head", head));
	journey([&](kernix&, robot& user) {
		open_file(user, font.path());
		user.click(tag_of_head);
		EXPECT_TRUE(shows(user,
			lines_with("04050607", "0000000000000000 (1904/01/01 00:00:00)",
				"00000000ffffffff (2040/02/06 06:28:15)")));
	});
}


TEST(head_panel, is_black_but_for_its_controls)
{
	at_panel(plain, [](kernix& app, robot& user) {
		rgb_color black = {0, 0, 0, 255};
		rgb_color light = {200, 200, 220, 255};
		EXPECT_EQ(user.pixel(in_panel(0, 0)), black);
		EXPECT_EQ(user.pixel(in_panel(400, 300)), black);
		EXPECT_EQ(user.pixel(in_panel(561, 511)), black);
		EXPECT_EQ(user.pixel(in_panel(19, 460)), black);
		EXPECT_EQ(user.pixel(in_panel(201, 460)), black);
		// Around the letters of the field's label.
		EXPECT_EQ(user.pixel(in_panel(20, 451)), light);
		EXPECT_EQ(user.pixel(in_panel(138, 468)), light);
		looking(app, [&] {
			EXPECT_EQ(curttf->head->ViewColor(), black);
			EXPECT_EQ(curttf->head->ChildAt(0)->ViewColor(), light);
		});
	});
}


TEST(head_panel, stays_black_where_it_is_uncovered)
{
	at_panel(plain, [](kernix&, robot& user) {
		user.resize_window(450, 400);
		user.resize_window(576, 579);
		EXPECT_EQ(user.pixel(in_panel(550, 500)), (rgb_color{0, 0, 0, 255}));
	});
}


TEST(head_panel, has_one_field_that_starts_empty)
{
	at_panel(plain, [](kernix& app, robot& user) {
		looking(app, [&] {
			ASSERT_EQ(curttf->head->CountChildren(), 1);
			auto* field = dynamic_cast<BTextControl*>(curttf->head->ChildAt(0));
			ASSERT_NE(field, nullptr);
			EXPECT_STREQ(field->Name(), "fontrevision");
			EXPECT_STREQ(field->Label(), "fontRevision");
			EXPECT_EQ(field->Divider(), 120.0f);
			EXPECT_EQ(field->Frame(), BRect(20, 450, 200, 470));
			EXPECT_EQ(field->Message()->what, (uint32)'Vchg');
			EXPECT_EQ(field->Target(), curttf->head);
		});
		EXPECT_EQ(user.field_text(revision_field), "");
	});
}


TEST(head_panel, stores_what_is_typed_and_shows_it_with_eight_digits)
{
	time_zone zone("UTC0");
	at_panel(plain, [](kernix& app, robot& user) {
		user.click(revision_field);
		user.type("1A");
		EXPECT_EQ(revision(app), hex("04050607")) << "not yet confirmed";
		user.key(Qt::Key_Return, "\r");
		EXPECT_EQ(revision(app), hex("0000001a"));
		EXPECT_EQ(user.field_text(revision_field), "0000001a");
		EXPECT_TRUE(shows(user, lines_with("0000001a")));
	});
}


TEST(head_panel, is_reached_by_tab_from_the_strip)
{
	at_panel(plain, [](kernix& app, robot& user) {
		user.key(Qt::Key_Tab, "\t");
		EXPECT_TRUE(user.has_keyboard(revision_field));
		user.type("1A");
		user.key(Qt::Key_Return, "\r");
		EXPECT_EQ(revision(app), hex("0000001a"));
	});
}


// Whether the panel has been painted since the last call, which spoils a piece of it.
static bool
was_painted(kernix& app, robot& user)
{
	BRect piece(400, 300, 410, 310);
	rgb_color green = {0, 255, 0, 255};
	bool painted = user.pixel(in_panel(405, 305)) != green;
	looking(app, [&] {
		curttf->head->SetLowColor(green);
		curttf->head->FillRect(piece, B_SOLID_LOW);
	});
	return painted;
}


TEST(head_panel, leaves_the_font_alone_after_a_text_that_is_no_number_but_is_painted)
{
	time_zone zone("UTC0");
	at_panel(plain, [](kernix& app, robot& user) {
		was_painted(app, user);
		EXPECT_FALSE(was_painted(app, user));
		enter(user, revision_field, "zz");
		EXPECT_EQ(revision(app), hex("04050607"));
		EXPECT_EQ(user.field_text(revision_field), "zz");
		EXPECT_TRUE(shows(user, lines_with("04050607")));
		EXPECT_TRUE(was_painted(app, user));
	});
}


TEST(head_panel, confirms_a_changed_text_with_tab_once)
{
	at_panel(plain, [](kernix& app, robot& user) {
		user.click(revision_field);
		user.type("1A");
		was_painted(app, user);
		user.key(Qt::Key_Tab, "\t");
		EXPECT_EQ(revision(app), hex("0000001a"));
		EXPECT_EQ(user.field_text(revision_field), "0000001a");
		EXPECT_TRUE(was_painted(app, user));
		user.key(Qt::Key_Tab, "\t");
		EXPECT_FALSE(was_painted(app, user)) << "the number that the panel wrote is no change";
	});
}


TEST(head_panel, confirms_a_changed_text_when_the_keyboard_goes_elsewhere_once)
{
	at_panel(plain, [](kernix& app, robot& user) {
		user.click(revision_field);
		user.type("1A");
		looking(app, [&] { curttf->head->MakeFocus(); });
		user.settle();
		EXPECT_EQ(revision(app), hex("0000001a"));
		EXPECT_EQ(user.field_text(revision_field), "0000001a");
		was_painted(app, user);
		user.click(revision_field);
		looking(app, [&] { curttf->head->MakeFocus(); });
		user.settle();
		EXPECT_FALSE(was_painted(app, user));
	});
}


TEST(head_panel, confirms_no_text_that_is_unchanged)
{
	at_panel(plain, [](kernix& app, robot& user) {
		was_painted(app, user);
		user.click(revision_field);
		user.key(Qt::Key_Return, "\r");
		looking(app, [&] { curttf->head->MakeFocus(); });
		user.settle();
		user.key(Qt::Key_Tab, "\t");
		user.key(Qt::Key_Tab, "\t");
		EXPECT_FALSE(was_painted(app, user));
		EXPECT_EQ(revision(app), hex("04050607"));
	});
}


TEST(head_panel, keeps_what_is_being_typed_while_another_panel_is_shown)
{
	at_panel(plain, [](kernix& app, robot& user) {
		user.click(revision_field);
		user.type("1A");
		user.click(tag_of_hhea);
		EXPECT_EQ(panels_shown(app), std::vector<std::string>{"hhea"});
		EXPECT_EQ(revision(app), hex("04050607"));
		user.click(tag_of_head);
		EXPECT_EQ(user.field_text(revision_field), "1A");
		user.key(Qt::Key_Return, "\r");
		EXPECT_EQ(revision(app), hex("0000001a"));
	});
}


TEST(head_panel, changes_one_field_of_the_saved_table)
{
	at_panel(plain, [](kernix&, robot& user) {
		enter(user, revision_field, "89abcdef");
		octets saved = saved_table(user, "head");
		EXPECT_EQ(saved.size(), 54u);
		EXPECT_EQ(part(saved, 0, 8), hex("00010203 89abcdef"));
		EXPECT_EQ(part(saved, 12, 16), hex("0c0d0e0f 10110213 00000000 c0000000"));
		EXPECT_EQ(part(saved, 36, 18), hex("ff24 fe26 0128 022a 002c 002e fffe 0001 fff4"));
	});
}


TEST(head_panel, lists_the_dates_and_the_adjustment_of_the_save_when_it_is_painted_again)
{
	time_zone zone("UTC0");
	at_panel(plain, [](kernix& app, robot& user) {
		octets saved = saved_table(user, "head");
		EXPECT_NE(part(saved, 8, 4), hex("08090a0b"));
		looking(app, [&] { EXPECT_EQ(kept(curttf->head), saved); });
		EXPECT_TRUE(shows(user, lines_with("04050607"))) << "not before";
		enter(user, revision_field, "4050607");
		EXPECT_FALSE(shows(user, lines_with("04050607")));
	});
}


TEST(head_panel, has_its_field_once_when_it_is_attached_again)
{
	at_panel(plain, [](kernix& app, robot& user) {
		enter(user, revision_field, "ab");
		looking(app, [&] {
			BView* parent = curttf->head->Parent();
			parent->RemoveChild(curttf->head);
			parent->AddChild(curttf->head);
			EXPECT_EQ(curttf->head->CountChildren(), 1);
		});
		EXPECT_EQ(user.field_text(revision_field), "000000ab");
		EXPECT_EQ(user.pixel(in_panel(20, 451)), (rgb_color{200, 200, 220, 255}));
		enter(user, revision_field, "cd");
		EXPECT_EQ(revision(app), hex("000000cd"));
	});
}
