// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// What the palette of the outline editor sends, control by control and press by press.
#include "program/outline_stage.h"
#include "program/panel_user.h"

#include <gtest/gtest.h>
#include <TextControl.h>

static const BPoint chr_field(22, 20);
static const BPoint code_field(30, 50);
static const BPoint number_field(30, 80);


// Puts a text in place that no keyboard of the test has, and has its field send it.
static texts
sent_by_character(outline_stage& stage, const char* text)
{
	stage.sent();
	stage.locked([&] {
		stage.tools.chr_entry->SetText(text);
		stage.tools.chr_entry->Invoke();
	});
	stage.user.settle();
	return stage.sent();
}


TEST(outline_palette_messages, a_typed_character_is_sent_by_its_code)
{
	at_outlines([](outline_stage& stage) {
		EXPECT_EQ(sent_by(stage, chr_field, "A"), texts{"Vchg chr=0041"});
		EXPECT_EQ(stage.state(), "gno 0001 chr 0041 mode 0 state 0");
	});
}


TEST(outline_palette_messages, characters_of_two_and_three_octets_are_sent_by_their_codes)
{
	at_outlines([](outline_stage& stage) {
		EXPECT_EQ(sent_by_character(stage, "\xC3\xA9"), texts{"Vchg chr=00e9"});
		EXPECT_EQ(sent_by_character(stage, "\xE3\x81\x82"), texts{"Vchg chr=3042"});
		EXPECT_EQ(sent_by_character(stage, "\xE9\x80\x80"), texts{"Vchg chr=9000"});
		EXPECT_EQ(stage.state(), "gno 0004 chr 9000 mode 0 state 0");
		EXPECT_EQ(sent_by_character(stage, "a\xC3\xA9"), texts{"Vchg chr=0061"});
	});
}


TEST(outline_palette_messages, no_character_is_sent_for_an_empty_field_and_one_beyond_16_bits)
{
	at_outlines([](outline_stage& stage) {
		EXPECT_EQ(sent_by_character(stage, ""), texts());
		EXPECT_EQ(sent_by_character(stage, "\xF0\x9F\x98\x80"), texts());
	});
}


TEST(outline_palette_messages, a_code_and_a_number_are_read_as_hexadecimal)
{
	at_outlines([](outline_stage& stage) {
		EXPECT_EQ(sent_by(stage, code_field, "e9"), texts{"Vchg chr=00e9"});
		EXPECT_EQ(sent_by(stage, code_field, "9000"), texts{"Vchg chr=9000"});
		EXPECT_EQ(sent_by(stage, number_field, "0x5"), texts{"Vchg gno=0005"});
		EXPECT_EQ(sent_by(stage, number_field, "10"), texts{"Vchg gno=0010"});
		EXPECT_EQ(stage.state(), "gno 0000 chr 0000 mode 0 state 0");
	});
}


TEST(outline_palette_messages, what_is_no_number_is_sent_as_0)
{
	at_outlines([](outline_stage& stage) {
		EXPECT_EQ(sent_by(stage, code_field, "xyz"), texts{"Vchg chr=0000"});
		EXPECT_EQ(sent_by(stage, number_field, "none"), texts{"Vchg gno=0000"});
		EXPECT_EQ(sent_by(stage, number_field, ""), texts{"Vchg gno=0000"});
	});
}


TEST(outline_palette_messages, a_number_beyond_16_bits_is_sent_as_none)
{
	at_outlines([](outline_stage& stage) {
		EXPECT_EQ(sent_by(stage, number_field, "10001"), texts{"Vchg gno=ffff"});
		EXPECT_EQ(sent_by(stage, code_field, "10041"), texts{"Vchg chr=ffff"});
		EXPECT_EQ(sent_by(stage, number_field, "100000001"), texts{"Vchg gno=ffff"});
		EXPECT_EQ(sent_by(stage, code_field, "10000000000000041"), texts{"Vchg chr=ffff"});
	});
}


TEST(outline_palette_messages, each_icon_sends_its_tool_from_edge_to_edge)
{
	at_outlines([](outline_stage& stage) {
		EXPECT_EQ(sent_by(stage, 31, 100), texts{"drpi"});
		EXPECT_EQ(sent_by(stage, 45, 116), texts{"drpi"});
		EXPECT_EQ(sent_by(stage, 31, 118), texts{"drfr"});
		EXPECT_EQ(sent_by(stage, 38, 134), texts{"drfr"});
		EXPECT_EQ(sent_by(stage, 38, 144), texts{"drre"});
		EXPECT_EQ(sent_by(stage, 38, 162), texts{"drel"});
		EXPECT_EQ(sent_by(stage, 38, 180), texts{"drpo"});
		EXPECT_EQ(sent_by(stage, 38, 190), texts{"drro"});
		EXPECT_EQ(sent_by(stage, 38, 206), texts{"drro"});
		EXPECT_EQ(stage.state(), "gno ffff chr ffff mode 5 state 0");
	});
}


TEST(outline_palette_messages, a_press_beside_the_icons_steps_to_the_next_glyph)
{
	at_outlines([](outline_stage& stage) {
		EXPECT_EQ(sent_by(stage, 30, 108), texts{"Vchg gno=0000"});
		EXPECT_EQ(sent_by(stage, 46, 108), texts{"Vchg gno=0001"});
		EXPECT_EQ(sent_by(stage, 38, 117), texts{"Vchg gno=0002"});
		EXPECT_EQ(sent_by(stage, 38, 207), texts{"Vchg gno=0003"});
	});
}


TEST(outline_palette_messages, a_press_on_the_background_steps_to_the_next_glyph)
{
	at_outlines([](outline_stage& stage) {
		EXPECT_EQ(sent_by(stage, 20, 250), texts{"Vchg gno=0000"});
		EXPECT_EQ(sent_by(stage, 2, 2), texts{"Vchg gno=0001"});
		EXPECT_EQ(sent_by(stage, 5, 10), texts{"Vchg gno=0002"});
		EXPECT_EQ(sent_by(stage, 2, 30), texts{"Vchg gno=0003"});
		EXPECT_EQ(sent_by(stage, 48, 300), texts{"Vchg gno=0004"});
		EXPECT_EQ(sent_by(stage, 48, 310), texts{"Vchg gno=0005"});
		EXPECT_EQ(sent_by(stage, 20, 500), texts{"Vchg gno=0006"});
		EXPECT_EQ(sent_by(stage, 20, 470), texts{"Vchg gno=0007"});
		EXPECT_EQ(stage.state(), "gno 0000 chr 0000 mode 0 state 0");
	});
}


TEST(outline_palette_messages, the_glyph_arrows_step_back_and_forth)
{
	at_outlines([](outline_stage& stage) {
		stage.choose("gno", 4);
		EXPECT_EQ(sent_by(stage, 5, 19), texts{"Vchg gno=0003"});
		EXPECT_EQ(sent_by(stage, 9, 11), texts{"Vchg gno=0002"});
		EXPECT_EQ(sent_by(stage, 41, 29), texts{"Vchg gno=0003"});
		EXPECT_EQ(sent_by(stage, 49, 19), texts{"Vchg gno=0004"});
		EXPECT_EQ(sent_by(stage, 38, 19), texts{"Vchg gno=0004"});
		EXPECT_EQ(sent_by(stage, 40, 19), texts{"Vchg gno=0004"});
	});
}


TEST(outline_palette_messages, a_step_left_of_glyph_0_shows_glyph_0)
{
	at_outlines([](outline_stage& stage) {
		stage.choose("gno", 0);
		EXPECT_EQ(sent_by(stage, 5, 19), texts{"Vchg gno=ffff"});
		EXPECT_EQ(stage.user.field_text(number_field), "0000");
		EXPECT_EQ(sent_by(stage, 45, 19), texts{"Vchg gno=0001"});
	});
}


TEST(outline_palette_messages, the_size_steps_by_five_up_to_100)
{
	at_outlines([](outline_stage& stage) {
		texts all;
		for (int i = 0; i < 21; i++) {
			texts next = sent_by(stage, 45, 305);
			all.insert(all.end(), next.begin(), next.end());
		}
		ASSERT_EQ(all.size(), 21u);
		EXPECT_EQ(all[0], "Vchg psize=5");
		EXPECT_EQ(all[18], "Vchg psize=95");
		EXPECT_EQ(all[19], "Vchg psize=100");
		EXPECT_EQ(all[20], "Vchg psize=100");
		stage.locked([&] { EXPECT_EQ(stage.edit.psize, 100); });
	});
}


TEST(outline_palette_messages, the_size_steps_down_to_0_left_of_the_middle)
{
	at_outlines([](outline_stage& stage) {
		EXPECT_EQ(sent_by(stage, 25, 301), texts{"Vchg psize=5"});
		EXPECT_EQ(sent_by(stage, 25, 309), texts{"Vchg psize=10"});
		EXPECT_EQ(sent_by(stage, 24, 305), texts{"Vchg psize=5"});
		EXPECT_EQ(sent_by(stage, 5, 305), texts{"Vchg psize=0"});
		EXPECT_EQ(sent_by(stage, 5, 305), texts{"Vchg psize=0"});
		stage.locked([&] { stage.tools.psize = 98; });
		EXPECT_EQ(sent_by(stage, 45, 305), texts{"Vchg psize=100"});
		stage.locked([&] { stage.tools.psize = 3; });
		EXPECT_EQ(sent_by(stage, 5, 305), texts{"Vchg psize=0"});
	});
}


static void
scale_to(outline_stage& stage, float scale)
{
	BMessage message('Vchg');
	message.AddFloat("scale", scale);
	stage.tell(message);
}


TEST(outline_palette_messages, the_scale_arrows_step_by_a_twentieth)
{
	at_outlines([](outline_stage& stage) {
		scale_to(stage, 1);
		EXPECT_EQ(sent_by(stage, 45, 505), texts{"Vchg scale=1.05"});
		EXPECT_EQ(sent_by(stage, 41, 511), texts{"Vchg scale=1.1"});
		scale_to(stage, 0.5f);
		EXPECT_EQ(sent_by(stage, 9, 501), texts{"Vchg scale=0.45"});
	});
}


TEST(outline_palette_messages, the_scale_stays_between_a_tenth_and_two)
{
	at_outlines([](outline_stage& stage) {
		scale_to(stage, 0.1f);
		EXPECT_EQ(sent_by(stage, 5, 505), texts{"Vchg scale=0.1"});
		scale_to(stage, 0.05f);
		EXPECT_EQ(sent_by(stage, 5, 505), texts{"Vchg scale=0.05"});
		scale_to(stage, 2);
		EXPECT_EQ(sent_by(stage, 45, 505), texts{"Vchg scale=2"});
		scale_to(stage, 4);
		EXPECT_EQ(sent_by(stage, 45, 505), texts{"Vchg scale=4"});
		EXPECT_EQ(sent_by(stage, 5, 505), texts{"Vchg scale=3.95"});
	});
}


TEST(outline_palette_messages, the_middle_of_the_scale_row_fits)
{
	at_outlines(outlines_font(0, 0, 2048, 1000), [](outline_stage& stage) {
		for (float x : {10.0f, 25.0f, 40.0f}) {
			scale_to(stage, 1);
			EXPECT_EQ(sent_by(stage, x, 505), texts{"Vchg scale=0"}) << x;
			EXPECT_NEAR(stage.edit.getscale(), 0.2000027f, 1e-7) << x;
			stage.locked([&] { EXPECT_NEAR(stage.tools.scale, 0.2000027f, 1e-7) << x; });
		}
	});
}
