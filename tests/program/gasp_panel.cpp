// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The panel of gasp: a list, a field, two boxes and three buttons.
#include "app/kernix.h"
#include "font/globals.h"
#include "font/ttf.h"
#include "program/panel_user.h"
#include "support/opened.h"
#include "support/temp_files.h"
#include "tables/ttf_gasp.h"

#include <Control.h>
#include <gtest/gtest.h>
#include <ListView.h>
#include <Message.h>
#include <Messenger.h>

using texts = std::vector<std::string>;

static const BPoint tag_of_gasp = place_of_tag(1);
static const BPoint list = in_panel(150, 150);
static const BPoint add_button = in_panel(45, 420);
static const BPoint del_button = in_panel(125, 420);
static const BPoint set_button = in_panel(520, 460);
static const BPoint size_field = in_panel(100, 460);

static constexpr std::string_view four_ranges = "0001 0004 0008 0000 0010 0001 0020 0002 ffff 0003";


// Opens a font with this table and chooses its panel.
static void
at_panel(std::string_view gasp, const std::function<void(kernix&, robot&)>& work)
{
	temp_file font(font_file().with("cmap", tiny_font().table("cmap")).with("gasp", gasp));
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		user.click(tag_of_gasp);
		work(app, user);
	});
}


static octets
gasp_octets(kernix& app)
{
	octets table;
	looking(app, [&] { table = kept(curttf->gasp); });
	return table;
}


// The field, and the boxes that are ticked.
static std::string
inputs(robot& user)
{
	return user.field_text(size_field) + (user.is_ticked("grid-fitting") ? " grid" : "")
		+ (user.is_ticked("grayscale-rendering") ? " gray" : "");
}


TEST(gasp_panel, has_a_list_three_buttons_a_field_and_two_boxes)
{
	at_panel(four_ranges, [](kernix& app, robot& user) {
		const struct {
			const char* name;
			const char* label;
			BPoint place;
			float right;
		} expected[] = {{"add", "add", BPoint(20, 410), 70}, {"del", "del", BPoint(100, 410), 150},
			{"set", "set", BPoint(500, 448), 540}, {"pt", "max-pt", BPoint(20, 450), 120},
			{"gridfit", "grid-fitting", BPoint(140, 450), 260},
			{"grayscale", "grayscale-rendering", BPoint(280, 450), 400}};
		looking(app, [&] {
			for (const auto& each : expected) {
				auto* control = dynamic_cast<BControl*>(curttf->gasp->FindView(each.name));
				ASSERT_NE(control, nullptr) << each.name;
				EXPECT_STREQ(control->Label(), each.label);
				EXPECT_EQ(control->Frame().LeftTop(), each.place) << each.name;
				EXPECT_EQ(control->Frame().right, each.right) << each.name;
			}
			auto* ranges = dynamic_cast<BListView*>(curttf->gasp->FindView("gasp-list"));
			ASSERT_NE(ranges, nullptr);
			EXPECT_EQ(ranges->Frame(), BRect(20, 20, 280, 200));
			EXPECT_EQ(curttf->gasp->CountChildren(), 7);
			EXPECT_TRUE(curttf->gasp->IsFocus());
		});
		EXPECT_EQ(inputs(user), "");
	});
}


TEST(gasp_panel, lists_all_ranges)
{
	at_panel(four_ranges, [](kernix&, robot& user) {
		EXPECT_EQ(user.list_rows(list),
			(texts{"- 0008 : none", "- 0010 : Use gridfitting", "- 0020 : Use grayscale rendering",
				"- ffff : Use gridfitting & grayscale rendering"}));
	});
}


TEST(gasp_panel, lists_a_behavior_without_a_name_as_its_number)
{
	at_panel("0000 0003 0008 0004 0010 0103 ffff ffff", [](kernix&, robot& user) {
		EXPECT_EQ(user.list_rows(list), (texts{"- 0008 : 0004", "- 0010 : 0103", "- ffff : ffff"}));
		user.choose_row(list, 1);
		EXPECT_EQ(inputs(user), "0010 grid gray");
		user.choose_row(list, 0);
		EXPECT_EQ(inputs(user), "0008");
	});
}


TEST(gasp_panel, shows_the_range_that_is_selected)
{
	at_panel(four_ranges, [](kernix&, robot& user) {
		const texts expected = {"0008", "0010 grid", "0020 gray", "ffff grid gray"};
		for (int row : {3, 0, 1, 2}) {
			user.choose_row(list, row);
			EXPECT_EQ(inputs(user), expected[(size_t)row]);
		}
	});
}


TEST(gasp_panel, clears_the_inputs_for_a_new_range)
{
	at_panel(four_ranges, [](kernix&, robot& user) {
		user.choose_row(list, 3);
		user.click(add_button);
		EXPECT_EQ(inputs(user), "");
		EXPECT_EQ(user.selected_rows(list), std::vector<int>{});
		enter(user, size_field, "9");
		user.tick("grid-fitting");
		user.click(add_button);
		EXPECT_EQ(inputs(user), "");
	});
}


TEST(gasp_panel, adds_ranges_in_order)
{
	at_panel("0000 0000", [](kernix&, robot& user) {
		enter(user, size_field, "8");
		user.tick("grid-fitting");
		user.click(set_button);
		enter(user, size_field, "FFFF");
		user.tick("grid-fitting");
		user.tick("grayscale-rendering");
		user.click(set_button);
		enter(user, size_field, "0x10");
		user.tick("grid-fitting");
		user.click(set_button);
		EXPECT_EQ(user.list_rows(list),
			(texts{"- 0008 : Use gridfitting", "- 0010 : Use gridfitting & grayscale rendering",
				"- ffff : Use grayscale rendering"}));
		EXPECT_EQ(saved_table(user, "gasp"), hex("0000 0003 0008 0001 0010 0003 ffff 0002"));
	});
}


TEST(gasp_panel, gives_a_range_that_is_there_another_behavior)
{
	at_panel(four_ranges, [](kernix& app, robot& user) {
		user.choose_row(list, 1);
		user.tick("grid-fitting");
		user.click(set_button);
		EXPECT_EQ(gasp_octets(app), hex("0001 0004 0008 0000 0010 0000 0020 0002 ffff 0003"));
		EXPECT_EQ(user.list_rows(list)[1], "- 0010 : none");
	});
}


TEST(gasp_panel, adds_another_range_when_the_size_of_the_selected_one_is_changed)
{
	at_panel(four_ranges, [](kernix& app, robot& user) {
		user.choose_row(list, 1);
		enter(user, size_field, "11");
		user.click(set_button);
		EXPECT_EQ(
			gasp_octets(app), hex("0000 0005 0008 0000 0010 0001 0011 0001 0020 0002 ffff 0003"));
	});
}


TEST(gasp_panel, takes_the_low_16_bits_of_a_size)
{
	at_panel(four_ranges, [](kernix& app, robot& user) {
		enter(user, size_field, "10008");
		user.tick("grayscale-rendering");
		user.click(set_button);
		EXPECT_EQ(gasp_octets(app), hex("0001 0004 0008 0002 0010 0001 0020 0002 ffff 0003"));
	});
}


TEST(gasp_panel, sets_nothing_for_size_0_and_what_is_no_number)
{
	at_panel(four_ranges, [](kernix& app, robot& user) {
		for (const char* text : {"0", "", "tall", "10000"}) {
			enter(user, size_field, text);
			user.click(set_button);
			EXPECT_EQ(gasp_octets(app), hex(four_ranges)) << text;
		}
	});
}


TEST(gasp_panel, deletes_a_range_of_size_0_when_it_is_set)
{
	at_panel("0000 0002 0000 0001 0010 0002", [](kernix& app, robot& user) {
		enter(user, size_field, "0");
		user.click(set_button);
		EXPECT_EQ(gasp_octets(app), hex("0000 0001 0010 0002"));
	});
}


TEST(gasp_panel, deletes_the_selected_range)
{
	at_panel(four_ranges, [](kernix& app, robot& user) {
		user.choose_row(list, 1);
		user.click(del_button);
		EXPECT_EQ(gasp_octets(app), hex("0000 0003 0008 0000 0020 0002 ffff 0003"));
		EXPECT_EQ(inputs(user), "");
		user.click(del_button);
		EXPECT_EQ(user.list_rows(list).size(), 3u);
		for (int i = 0; i < 3; i++) {
			user.choose_row(list, 0);
			user.click(del_button);
		}
		EXPECT_EQ(user.list_rows(list), texts{});
		EXPECT_EQ(gasp_octets(app), hex("0000 0000"));
	});
}


TEST(gasp_panel, changes_nothing_when_a_box_is_ticked)
{
	at_panel(four_ranges, [](kernix& app, robot& user) {
		user.choose_row(list, 0);
		user.tick("grid-fitting");
		user.tick("grayscale-rendering");
		EXPECT_EQ(inputs(user), "0008 grid gray");
		EXPECT_EQ(gasp_octets(app), hex(four_ranges));
	});
}


TEST(gasp_panel, ignores_messages_that_name_no_control_or_another)
{
	at_panel(four_ranges, [](kernix& app, robot& user) {
		user.choose_row(list, 0);
		BMessenger panel(curttf->gasp);
		BMessage foreign('Bhit');
		panel.SendMessage(&foreign);
		foreign.AddPointer("source", &app);
		panel.SendMessage(&foreign);
		panel.SendMessage('Fsel');
		panel.SendMessage('Vchg');
		user.settle();
		EXPECT_EQ(gasp_octets(app), hex(four_ranges));
		EXPECT_EQ(inputs(user), "0008");
		BMessage far('Fsel');
		far.AddInt32("index", 4);
		panel.SendMessage(&far);
		user.settle();
		EXPECT_EQ(inputs(user), "");
	});
}


TEST(gasp_panel, has_its_controls_once_when_it_is_attached_again)
{
	at_panel(four_ranges, [](kernix& app, robot& user) {
		looking(app, [&] {
			BView* parent = curttf->gasp->Parent();
			parent->RemoveChild(curttf->gasp);
			parent->AddChild(curttf->gasp);
			EXPECT_EQ(curttf->gasp->CountChildren(), 7);
		});
		EXPECT_EQ(user.list_rows(list).size(), 4u);
	});
}


TEST(gasp_panel, of_a_short_table_lists_what_is_there)
{
	at_panel("0000 ffff 0008 0001 0010", [](kernix& app, robot& user) {
		EXPECT_EQ(user.list_rows(list), texts{"- 0008 : Use gridfitting"});
		enter(user, size_field, "9");
		user.click(set_button);
		EXPECT_EQ(gasp_octets(app), hex("0000 0002 0008 0001 0009 0000"));
	});
}


TEST(gasp_panel, lets_a_drop_reach_the_work_view)
{
	temp_file other(other_font());
	at_panel(four_ranges, [&](kernix& app, robot& user) {
		user.drop(in_panel(400, 200), {other.path()});
		EXPECT_EQ(listed(app), (texts{"name", "cmap", "head", "prep"}));
	});
}
