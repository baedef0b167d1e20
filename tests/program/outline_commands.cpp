// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// What the outline edit view does at each of its messages, and what it tells the palette then.
#include "draw/obj_rect.h"
#include "program/journey.h"
#include "program/outline_stage.h"
#include "support/opened.h"

#include <cmath>
#include <gtest/gtest.h>
#include <Messenger.h>


static const char* const triangle = "0,511 511,511 255,0";
static const char* const square = "100,411 100,211 300,211 300,411";


// Starts an object of the tool in use and a band, as if the pointer had.
static void
begin_something(outline_stage& stage)
{
	stage.locked([&] {
		cur_object = new obj_rect;
		stage.edit.edit_state = glyfeditview::in_progress;
		stage.edit.band_active = 1;
	});
}


static testing::AssertionResult
nothing_is_in_progress(outline_stage& stage)
{
	bool idle = false;
	stage.locked([&] {
		idle = cur_object == nullptr && stage.edit.band_active == 0 && stage.edit.edit_state == 0;
	});
	return idle ? testing::AssertionSuccess() : testing::AssertionFailure();
}


TEST(outline_commands, init_resets_everything_and_tells_the_palette)
{
	at_outlines([](outline_stage& stage) {
		stage.choose("gno", 5);
		stage.tell('drel');
		begin_something(stage);
		stage.heard();
		canvasok = 0;
		BMessage init('init');
		init.AddRect("bounds", BRect(0, 0, 511, 511));
		stage.tell(init);
		EXPECT_EQ(stage.heard(),
			(texts{"Vchg scale=1", "Vchg scale=1.000003",
				"Vchg gno=ffff chr=ffff empty=1 scale=1.000003 mode=0"}));
		EXPECT_EQ(canvasok, 1);
		EXPECT_EQ(stage.outline(), "");
		EXPECT_TRUE(nothing_is_in_progress(stage));
	});
}


TEST(outline_commands, init_makes_its_rectangle_the_canvas)
{
	at_outlines([](outline_stage& stage) {
		BMessage init('init');
		init.AddRect("bounds", BRect(0, 0, 300, 200));
		stage.tell(init);
		EXPECT_EQ(canvas.RightBottom(), BPoint(300, 200));
		EXPECT_EQ(canvas.LeftTop(), BPoint(0, 0));
	});
}


TEST(outline_commands, a_glyph_is_chosen_by_its_number)
{
	at_outlines([](outline_stage& stage) {
		stage.heard();
		stage.choose("gno", 1);
		EXPECT_EQ(stage.heard(), texts{"Vchg gno=0001 chr=0041 empty=0"});
		EXPECT_EQ(stage.outline(), triangle);
		EXPECT_EQ(stage.state(), "gno 0001 chr 0041 mode 0 state 0");
	});
}


TEST(outline_commands, a_glyph_that_no_character_stands_for_has_none)
{
	at_outlines([](outline_stage& stage) {
		stage.choose("gno", 5);
		EXPECT_EQ(stage.last_heard(), "Vchg gno=0005 chr=ffff empty=0");
		EXPECT_EQ(stage.outline(), square);
	});
}


TEST(outline_commands, a_number_beyond_the_last_glyph_chooses_glyph_0)
{
	at_outlines([](outline_stage& stage) {
		for (int number : {7, 0x7FFF, 0x8000, -1}) {
			stage.choose("gno", 5);
			stage.choose("gno", number);
			EXPECT_EQ(stage.last_heard(), "Vchg gno=0000 chr=0000 empty=1") << number;
		}
	});
}


TEST(outline_commands, a_glyph_is_chosen_by_its_character)
{
	at_outlines([](outline_stage& stage) {
		const struct {
			int code;
			const char* told;
		} expected[] = {{0x61, "Vchg gno=0001 chr=0061 empty=0"},
			{0xE9, "Vchg gno=0002 chr=00e9 empty=0"},
			{0x3042, "Vchg gno=0003 chr=3042 compo=0001 compo=0002 empty=0"},
			{0x9000, "Vchg gno=0004 chr=9000 compo=0001 empty=0"},
			{0x42, "Vchg gno=0000 chr=0042 empty=1"}, {-1, "Vchg gno=0000 chr=ffff empty=1"}};
		for (const auto& each : expected) {
			stage.heard();
			stage.choose("chr", each.code);
			EXPECT_EQ(stage.heard().at(0), each.told);
		}
	});
}


TEST(outline_commands, a_character_may_stand_for_a_glyph_that_there_is_not)
{
	at_outlines([](outline_stage& stage) {
		stage.choose("chr", 0xF000);
		EXPECT_EQ(stage.last_heard(), "Vchg gno=0300 chr=f000 empty=1");
		stage.tell('Gset');
		EXPECT_EQ(stage.last_heard(), "Vchg gno=0300 chr=f000 empty=1");
	});
}


TEST(outline_commands, a_character_prevails_over_a_number)
{
	at_outlines([](outline_stage& stage) {
		BMessage both('Vchg');
		both.AddInt16("gno", 5);
		both.AddInt16("chr", 0x41);
		stage.heard();
		stage.tell(both);
		EXPECT_EQ(stage.heard(), texts{"Vchg gno=0001 chr=0041 empty=0"});
	});
}


TEST(outline_commands, all_fields_of_a_choice_are_optional)
{
	at_outlines([](outline_stage& stage) {
		stage.choose("gno", 5);
		stage.heard();
		stage.tell('Vchg');
		EXPECT_EQ(stage.heard(), texts());
		BMessage size('Vchg');
		size.AddInt8("psize", 35);
		stage.tell(size);
		EXPECT_EQ(stage.heard(), texts());
		stage.locked([&] { EXPECT_EQ(stage.edit.psize, 35); });
		BMessage scale('Vchg');
		scale.AddFloat("scale", 0.5f);
		stage.tell(scale);
		EXPECT_EQ(stage.heard(), texts{"Vchg scale=0.5"});
		BMessage wrong('Vchg');
		wrong.AddInt32("gno", 1);
		stage.tell(wrong);
		EXPECT_EQ(stage.state(), "gno 0005 chr ffff mode 0 state 0");
	});
}


TEST(outline_commands, a_scale_that_is_no_positive_number_is_left_alone)
{
	at_outlines([](outline_stage& stage) {
		stage.choose("gno", 5);
		stage.heard();
		for (float scale : {NAN, INFINITY, -0.5f}) {
			BMessage choice('Vchg');
			choice.AddFloat("scale", scale);
			stage.tell(choice);
		}
		EXPECT_EQ(stage.heard(), texts());
	});
}


TEST(outline_commands, nothing_is_chosen_while_no_font_is_open)
{
	at_outlines([](outline_stage& stage) {
		stage.choose("gno", 5);
		BMessage choice('Vchg');
		choice.AddInt16("gno", 1);
		choice.AddInt8("psize", 10);
		choice.AddFloat("scale", 0.5f);
		stage.locked([&] {
			ttf* font = curttf;
			curttf = nullptr;
			stage.edit.MessageReceived(&choice);
			curttf = font;
			EXPECT_EQ(stage.edit.psize, 0);
		});
		EXPECT_EQ(stage.state(), "gno 0005 chr ffff mode 0 state 0");
	});
}


TEST(outline_commands, another_glyph_drops_what_was_edited_and_begun)
{
	at_outlines([](outline_stage& stage) {
		stage.choose("gno", 5);
		stage.key('8');
		stage.key(0x7F);
		EXPECT_EQ(stage.outline(), "");
		begin_something(stage);
		stage.choose("gno", 1);
		EXPECT_TRUE(nothing_is_in_progress(stage));
		stage.choose("gno", 5);
		EXPECT_EQ(stage.outline(), square);
		EXPECT_EQ(stage.selection(), "0");
	});
}


TEST(outline_commands, a_composite_glyph_takes_the_pointer)
{
	at_outlines([](outline_stage& stage) {
		stage.tell('drre');
		begin_something(stage);
		stage.heard();
		stage.choose("gno", 3);
		EXPECT_EQ(stage.heard(),
			(texts{"Vchg gno=0003 chr=3042 compo=0001 compo=0002 empty=0", "Vchg mode=0"}));
		EXPECT_TRUE(nothing_is_in_progress(stage));
		EXPECT_EQ(stage.components(), "0001 at 0,0; 0002 at 10,-20");
		EXPECT_EQ(stage.selection(), "0 0");
	});
}


TEST(outline_commands, each_tool_has_its_code)
{
	at_outlines([](outline_stage& stage) {
		const struct {
			uint32 code;
			const char* told;
		} expected[] = {{'drfr', "Vchg mode=1"}, {'drre', "Vchg mode=2"}, {'drel', "Vchg mode=3"},
			{'drpo', "Vchg mode=4"}, {'drro', "Vchg mode=5"}, {'drpi', "Vchg mode=0"}};
		stage.choose("gno", 5);
		stage.heard();
		for (const auto& each : expected) {
			stage.key('8');
			begin_something(stage);
			stage.tell(each.code);
			EXPECT_EQ(stage.heard(), texts{each.told});
			EXPECT_TRUE(nothing_is_in_progress(stage)) << each.told;
			EXPECT_EQ(stage.selection(), "0") << each.told;
		}
	});
}


TEST(outline_commands, a_drawing_tool_is_refused_for_a_composite)
{
	at_outlines([](outline_stage& stage) {
		stage.choose("gno", 3);
		stage.heard();
		for (uint32 code : {'drfr', 'drre', 'drel', 'drpo', 'drro'})
			stage.tell(code);
		EXPECT_EQ(stage.heard(), texts());
		EXPECT_EQ(stage.state(), "gno 0003 chr 3042 mode 0 state 0");
		stage.tell('drpi');
		EXPECT_EQ(stage.heard(), texts{"Vchg mode=0"});
	});
}


TEST(outline_commands, clearing_empties_the_outline_and_not_the_font)
{
	at_outlines([](outline_stage& stage) {
		octets before = kept(curttf->glyf);
		stage.choose("gno", 3);
		begin_something(stage);
		stage.heard();
		stage.tell('Gclr');
		EXPECT_EQ(stage.heard(), texts{"Vchg gno=0003 chr=3042 empty=1"});
		EXPECT_TRUE(nothing_is_in_progress(stage));
		EXPECT_EQ(stage.components(), "");
		EXPECT_EQ(kept(curttf->glyf), before);
		stage.choose("gno", 3);
		EXPECT_EQ(stage.components(), "0001 at 0,0; 0002 at 10,-20");
	});
}


TEST(outline_commands, without_a_glyph_nothing_is_committed_cleared_or_composed)
{
	at_outlines([](outline_stage& stage) {
		stage.heard();
		stage.tell('Gclr');
		stage.tell('Gset');
		stage.add(5);
		stage.del(0);
		EXPECT_EQ(stage.heard(), texts());
		EXPECT_EQ(stage.components(), "");
	});
}


TEST(outline_commands, copying_takes_the_selected_contours)
{
	at_outlines([](outline_stage& stage) {
		stage.choose("gno", 2);
		stage.key('8');
		EXPECT_EQ(stage.selection(), "-1 0");
		EXPECT_EQ(printed_by([&] { stage.tell('COPY'); }), "copy\n");
		stage.choose("gno", 5);
		EXPECT_EQ(printed_by([&] { stage.tell('PSTE'); }), "paste\n");
		EXPECT_EQ(stage.outline(), "100,411 100,211 300,211 300,411 | 64,447 64,63 448,63 448,447");
		EXPECT_EQ(stage.selection(), "0 0");
	});
}


TEST(outline_commands, nothing_is_copied_without_a_selection_with_a_tool_and_of_nothing)
{
	at_outlines([](outline_stage& stage) {
		stage.choose("gno", 5);
		EXPECT_EQ(printed_by([&] { stage.tell('COPY'); }), "");
		stage.key('8');
		stage.locked([&] { stage.edit.tool_mode = glyfeditview::rect_tool; });
		EXPECT_EQ(printed_by([&] { stage.tell('COPY'); }), "");
		stage.locked([&] { stage.edit.tool_mode = glyfeditview::pointer_tool; });
		stage.choose("gno", 0);
		stage.locked([&] { stage.edit.edit_state = glyfeditview::selecting; });
		EXPECT_EQ(printed_by([&] { stage.tell('COPY'); }), "");
		EXPECT_EQ(cnt_cp, 0);
	});
}


TEST(outline_commands, nothing_is_pasted_into_an_empty_glyph_and_with_a_tool)
{
	at_outlines([](outline_stage& stage) {
		stage.choose("gno", 5);
		stage.key('8');
		stage.tell('COPY');
		stage.choose("gno", 0);
		EXPECT_EQ(printed_by([&] { stage.tell('PSTE'); }), "");
		EXPECT_EQ(stage.outline(), "");
		stage.choose("gno", 1);
		stage.tell('drre');
		EXPECT_EQ(printed_by([&] { stage.tell('PSTE'); }), "");
		EXPECT_EQ(stage.outline(), triangle);
	});
}


TEST(outline_commands, a_message_that_is_none_of_its_own_changes_nothing)
{
	at_outlines([](outline_stage& stage) {
		stage.choose("gno", 5);
		stage.heard();
		stage.tell('none');
		stage.tell('edrd');
		EXPECT_EQ(stage.heard(), texts());
		EXPECT_EQ(stage.outline(), square);
	});
}
