// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The panel of name: a list, five fields and three buttons.
#include "app/kernix.h"
#include "font/globals.h"
#include "font/ttf.h"
#include "program/name_user.h"
#include "support/installed_fonts.h"
#include "support/opened.h"
#include "support/temp_files.h"
#include "tables/ttf_name.h"

#include <algorithm>
#include <Control.h>
#include <gtest/gtest.h>
#include <ListView.h>
#include <Message.h>
#include <Messenger.h>

using texts = std::vector<std::string>;

static constexpr std::string_view three_names = "0000 0003 002a"
												"0001 0000 0000 0001 0001 0000"
												"0001 0001 000b 0004 0004 0001"
												"0003 0001 0409 0001 0004 0005"
												"61 93fa967b 0063 00e9";

static const texts three_rows = {
	"0001-0000-0000-0001 a", "0001-0001-000b-0004 日本", "0003-0001-0409-0001 cé"};


static void
at_panel(const std::function<void(kernix&, robot&)>& work)
{
	at_names(hex(three_names), work);
}


TEST(name_panel, has_a_list_three_buttons_and_five_fields)
{
	at_panel([](kernix& app, robot& user) {
		const struct {
			const char* name;
			const char* label;
			BRect frame;
		} expected[] = {{"add", "add", BRect(20, 410, 70, 430)},
			{"del", "del", BRect(100, 410, 150, 430)}, {"set", "set", BRect(500, 448, 540, 470)},
			{"pid", "plathomeID", BRect(20, 450, 120, 470)},
			{"eid", "encodingID", BRect(140, 450, 240, 470)},
			{"lid", "languageID", BRect(260, 450, 360, 470)},
			{"nid", "nameID", BRect(380, 450, 480, 470)},
			{"data", "DATA", BRect(20, 480, 540, 500)}};
		looking(app, [&] {
			for (const auto& each : expected) {
				auto* control = dynamic_cast<BControl*>(curttf->name->FindView(each.name));
				ASSERT_NE(control, nullptr) << each.name;
				EXPECT_STREQ(control->Label(), each.label);
				EXPECT_EQ(control->Frame().LeftTop(), each.frame.LeftTop()) << each.name;
				EXPECT_EQ(control->Frame().right, each.frame.right) << each.name;
			}
			auto* names = dynamic_cast<BListView*>(curttf->name->FindView("name-list"));
			ASSERT_NE(names, nullptr);
			EXPECT_EQ(names->Frame(), BRect(20, 20, 540, 380));
			EXPECT_EQ(curttf->name->CountChildren(), 9);
			EXPECT_TRUE(curttf->name->IsFocus());
		});
		EXPECT_EQ(fields(user), "--- ");
	});
}


TEST(name_panel, lists_all_records)
{
	at_panel([](kernix&, robot& user) {
		EXPECT_EQ(user.list_rows(list), three_rows);
		EXPECT_EQ(user.selected_rows(list), std::vector<int>{});
	});
}


TEST(name_panel, shows_the_record_that_is_selected)
{
	at_panel([](kernix& app, robot& user) {
		user.choose_row(list, 1);
		EXPECT_EQ(fields(user), "0001-0001-000b-0004 日本");
		user.choose_row(list, 2);
		EXPECT_EQ(fields(user), "0003-0001-0409-0001 cé");
		EXPECT_EQ(name_octets(app), hex(three_names));
	});
}


TEST(name_panel, empties_the_fields_for_a_new_record)
{
	at_panel([](kernix&, robot& user) {
		user.choose_row(list, 0);
		user.click(add_button);
		EXPECT_EQ(fields(user), "--- ");
		EXPECT_EQ(user.selected_rows(list), std::vector<int>{});
		enter(user, name_field, "5");
		user.click(add_button);
		EXPECT_EQ(fields(user), "--- ");
	});
}


TEST(name_panel, adds_a_record_at_its_place)
{
	at_panel([](kernix&, robot& user) {
		user.click(add_button);
		put_ids(user, "1", "0", "0", "6");
		put_text(user, data_field, "new");
		user.click(set_button);
		EXPECT_EQ(user.list_rows(list),
			(texts{three_rows[0], "0001-0000-0000-0006 new", three_rows[1], three_rows[2]}));
		EXPECT_EQ(saved_table(user, "name"),
			hex("0000 0004 0036"
				"0001 0000 0000 0001 0001 0000"
				"0001 0000 0000 0006 0003 0001"
				"0001 0001 000b 0004 0004 0004"
				"0003 0001 0409 0001 0004 0008"
				"61 6e6577 93fa967b 0063 00e9"));
	});
}


TEST(name_panel, replaces_the_text_of_a_record)
{
	at_panel([](kernix& app, robot& user) {
		user.choose_row(list, 2);
		put_text(user, data_field, "other");
		user.click(set_button);
		EXPECT_EQ(user.list_rows(list),
			(texts{three_rows[0], three_rows[1], "0003-0001-0409-0001 other"}));
		EXPECT_EQ(part(name_octets(app), 42, 99), hex("61 93fa967b 006f 0074 0068 0065 0072"));
	});
}


TEST(name_panel, keeps_a_record_whose_text_is_emptied)
{
	at_panel([](kernix& app, robot& user) {
		user.choose_row(list, 0);
		put_text(user, data_field, "");
		user.click(set_button);
		EXPECT_EQ(
			user.list_rows(list), (texts{"0001-0000-0000-0001 ", three_rows[1], three_rows[2]}));
		EXPECT_EQ(part(name_octets(app), 14, 4), hex("0000 0000"));
	});
}


TEST(name_panel, deletes_the_selected_record)
{
	at_panel([](kernix& app, robot& user) {
		user.choose_row(list, 1);
		user.click(del_button);
		EXPECT_EQ(user.list_rows(list), (texts{three_rows[0], three_rows[2]}));
		EXPECT_EQ(fields(user), "--- ");
		user.click(del_button);
		EXPECT_EQ(user.list_rows(list), (texts{three_rows[0], three_rows[2]}));
		user.choose_row(list, 0);
		user.click(del_button);
		user.choose_row(list, 0);
		user.click(del_button);
		EXPECT_EQ(user.list_rows(list), texts{});
		EXPECT_EQ(name_octets(app), hex("0000 0000 0006"));
	});
}


TEST(name_panel, deletes_what_the_list_says_whatever_the_fields_do)
{
	at_panel([](kernix&, robot& user) {
		user.choose_row(list, 0);
		put_ids(user, "3", "1", "409", "1");
		user.click(del_button);
		EXPECT_EQ(user.list_rows(list), (texts{three_rows[1], three_rows[2]}));
	});
}


TEST(name_panel, sets_nothing_unless_all_four_ids_are_numbers)
{
	at_panel([](kernix& app, robot& user) {
		for (BPoint field : {platform_field, encoding_field, language_field, name_field}) {
			for (const char* text : {"", "x", "-"}) {
				put_ids(user, "1", "0", "0", "1");
				put_text(user, data_field, "new");
				enter(user, field, text);
				user.click(set_button);
				EXPECT_EQ(name_octets(app), hex(three_names)) << text;
			}
		}
		EXPECT_EQ(user.list_rows(list), three_rows);
	});
}


TEST(name_panel, takes_the_number_that_an_id_begins_with)
{
	at_panel([](kernix&, robot& user) {
		put_ids(user, "0x0001", " 0", "00000000000", "1z");
		put_text(user, data_field, "new");
		user.click(set_button);
		EXPECT_EQ(
			user.list_rows(list), (texts{"0001-0000-0000-0001 new", three_rows[1], three_rows[2]}));
	});
}


TEST(name_panel, sets_nothing_for_an_id_beyond_16_bits)
{
	at_panel([](kernix& app, robot& user) {
		for (BPoint field : {platform_field, encoding_field, language_field, name_field}) {
			for (const char* id : {"10001", "ffff0000", "100000001", "-1"}) {
				put_ids(user, "1", "0", "0", "1");
				put_text(user, data_field, "new");
				enter(user, field, id);
				user.click(set_button);
				EXPECT_EQ(name_octets(app), hex(three_names)) << id;
			}
		}
	});
}


TEST(name_panel, ignores_selections_that_are_none)
{
	at_panel([](kernix& app, robot& user) {
		user.choose_row(list, 0);
		BMessenger panel(curttf->name);
		panel.SendMessage('Nsel');
		user.settle();
		EXPECT_EQ(fields(user), "0001-0000-0000-0001 a");
		BMessage far('Nsel');
		far.AddInt32("index", 3);
		panel.SendMessage(&far);
		user.settle();
		EXPECT_EQ(fields(user), "--- ");
		EXPECT_EQ(name_octets(app), hex(three_names));
	});
}


TEST(name_panel, has_its_controls_once_when_it_is_attached_again)
{
	at_panel([](kernix& app, robot& user) {
		looking(app, [&] {
			BView* parent = curttf->name->Parent();
			parent->RemoveChild(curttf->name);
			parent->AddChild(curttf->name);
			EXPECT_EQ(curttf->name->CountChildren(), 9);
		});
		EXPECT_EQ(user.list_rows(list), three_rows);
	});
}


TEST(name_panel, lets_a_drop_reach_the_work_view)
{
	temp_file other(other_font());
	at_panel([&](kernix& app, robot& user) {
		user.drop(list, {other.path()});
		EXPECT_EQ(listed(app), (texts{"name", "cmap", "head", "prep"}));
	});
}


TEST(name_panel, shows_the_names_of_a_japanese_font)
{
	const std::string path = installed_font("ipag.ttf");
	if (path.empty() && !fonts_are_required())
		GTEST_SKIP() << "no ipag.ttf";
	ASSERT_NE(path, "");
	journey([&](kernix& app, robot& user) {
		open_file(user, path);
		const texts tags = listed(app);
		user.click(place_of_tag(int(std::find(tags.begin(), tags.end(), "name") - tags.begin())));
		const texts rows = user.list_rows(list);
		ASSERT_EQ(rows.size(), 36u);
		EXPECT_EQ(rows[10], "0001-0001-000b-0001 IPAGothic");
		EXPECT_EQ(rows[28], "0003-0001-0411-0001 IPAゴシック");
		user.choose_row(list, 28);
		EXPECT_EQ(fields(user), "0003-0001-0411-0001 IPAゴシック");
	});
}
