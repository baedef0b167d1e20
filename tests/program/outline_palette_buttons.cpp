// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// What the buttons of the outline editor's palette send, and what becomes of its controls then.
#include "program/outline_stage.h"
#include "program/panel_user.h"

#include <Button.h>
#include <gtest/gtest.h>
#include <ListView.h>
#include <Messenger.h>

static const BPoint list(20, 180);
static const BPoint sub_field(30, 270);
static const BPoint add_button(25, 310);
static const BPoint del_button(25, 340);
static const BPoint mode_button(25, 410);
static const BPoint set_button(25, 440);


static std::string
label(outline_stage& stage)
{
	std::string text;
	stage.locked([&] { text = stage.tools.mode_button->Label(); });
	return text;
}


TEST(outline_palette_buttons, the_set_button_commits)
{
	at_outlines([](outline_stage& stage) {
		EXPECT_EQ(sent_by(stage, set_button.x, set_button.y), texts{"Gset"});
	});
}


TEST(outline_palette_buttons, the_button_of_a_glyph_with_contours_clears_it)
{
	at_outlines([](outline_stage& stage) {
		stage.choose("gno", 5);
		EXPECT_EQ(label(stage), "clr");
		EXPECT_EQ(sent_by(stage, mode_button.x, mode_button.y), texts{"Gclr"});
		EXPECT_EQ(label(stage), "compo");
		EXPECT_EQ(stage.outline(), "");
	});
}


TEST(outline_palette_buttons, the_button_of_a_composite_clears_it_and_shows_the_tools)
{
	at_outlines([](outline_stage& stage) {
		stage.choose("gno", 3);
		EXPECT_EQ(label(stage), "clr");
		EXPECT_EQ(sent_by(stage, mode_button.x, mode_button.y), texts{"Gclr"});
		EXPECT_EQ(label(stage), "compo");
		EXPECT_EQ(stage.user.list_rows(list), texts());
		stage.locked([&] { EXPECT_TRUE(stage.tools.compo_list->IsHidden()); });
	});
}


TEST(outline_palette_buttons, the_button_of_an_empty_glyph_goes_to_components_and_back)
{
	at_outlines([](outline_stage& stage) {
		stage.choose("gno", 0);
		stage.tell('drel');
		EXPECT_EQ(label(stage), "compo");
		EXPECT_EQ(sent_by(stage, mode_button.x, mode_button.y), texts{"drpi"});
		EXPECT_EQ(label(stage), "simple");
		EXPECT_EQ(stage.state(), "gno 0000 chr 0000 mode 0 state 0");
		EXPECT_EQ(stage.user.field_text(sub_field), "0000");
		stage.locked([&] { EXPECT_FALSE(stage.tools.compo_list->IsHidden()); });
		EXPECT_EQ(sent_by(stage, mode_button.x, mode_button.y), texts{"drpi"});
		EXPECT_EQ(label(stage), "compo");
		stage.locked([&] { EXPECT_TRUE(stage.tools.compo_list->IsHidden()); });
	});
}


// An empty glyph with the controls for components.
static void
at_components(const std::function<void(outline_stage&)>& work)
{
	at_outlines([&](outline_stage& stage) {
		stage.choose("gno", 0);
		stage.user.click(mode_button);
		work(stage);
	});
}


TEST(outline_palette_buttons, add_sends_the_number_that_was_typed)
{
	at_components([](outline_stage& stage) {
		EXPECT_EQ(sent_by(stage, sub_field, "5"), texts());
		EXPECT_EQ(sent_by(stage, add_button.x, add_button.y), texts{"Cadd sub=0005"});
		EXPECT_EQ(stage.user.list_rows(list), texts{"0005"});
		EXPECT_EQ(label(stage), "clr");
		EXPECT_EQ(stage.components(), "0005 at 0,0");
	});
}


TEST(outline_palette_buttons, add_sends_none_for_what_is_no_number)
{
	at_components([](outline_stage& stage) {
		for (const char* text : {"no", "", "10001", "100000001"}) {
			enter(stage.user, sub_field, text);
			EXPECT_EQ(sent_by(stage, add_button.x, add_button.y), texts{"Cadd sub=ffff"}) << text;
		}
		EXPECT_EQ(stage.components(), "");
		EXPECT_EQ(label(stage), "simple");
	});
}


TEST(outline_palette_buttons, del_sends_the_row_that_is_selected)
{
	at_outlines([](outline_stage& stage) {
		stage.choose("gno", 3);
		EXPECT_EQ(sent_by(stage, del_button.x, del_button.y), texts());
		ASSERT_TRUE(stage.user.choose_row(list, 1));
		EXPECT_EQ(sent_by(stage, del_button.x, del_button.y), texts{"Cdel no=1"});
		EXPECT_EQ(stage.user.list_rows(list), texts{"0001"});
		EXPECT_EQ(stage.components(), "0001 at 0,0");
	});
}


TEST(outline_palette_buttons, del_of_the_last_component_leaves_an_empty_simple_glyph)
{
	at_outlines([](outline_stage& stage) {
		stage.choose("gno", 4);
		ASSERT_TRUE(stage.user.choose_row(list, 0));
		EXPECT_EQ(sent_by(stage, del_button.x, del_button.y), texts{"Cdel no=0"});
		EXPECT_EQ(label(stage), "compo");
		stage.locked([&] { EXPECT_TRUE(stage.tools.compo_list->IsHidden()); });
	});
}


TEST(outline_palette_buttons, a_message_that_names_no_control_or_another_is_ignored)
{
	at_outlines([](outline_stage& stage) {
		BMessenger palette(&stage.tools);
		for (uint32 code : {'Tchg', 'Bhit'}) {
			palette.SendMessage(code);
			BMessage foreign(code);
			foreign.AddPointer("source", &stage.edit);
			palette.SendMessage(&foreign);
			BMessage wrong(code);
			wrong.AddInt32("source", 1);
			palette.SendMessage(&wrong);
		}
		stage.user.settle();
		EXPECT_EQ(stage.sent(), texts());
	});
}
