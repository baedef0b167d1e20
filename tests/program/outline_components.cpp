// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Components added and taken away by messages to the outline edit view, and what is committed.
#include "program/outline_stage.h"
#include "support/opened.h"
#include "tables/ttf_cmap.h"

#include <gtest/gtest.h>

static const char* const square = "100,411 100,211 300,211 300,411";


// The record of a glyph in the font.
static octets
record(int glyph)
{
	uint32 offset = 0;
	uint32 size = 0;
	EXPECT_TRUE(curttf->find_glyph(glyph, &offset, &size));
	return part(kept(curttf->glyf), offset, size);
}


TEST(outline_components, a_component_takes_the_place_of_the_contours)
{
	at_outlines([](outline_stage& stage) {
		stage.choose("gno", 1);
		stage.tell('drre');
		stage.heard();
		stage.add(5);
		EXPECT_EQ(
			stage.heard(), (texts{"Vchg gno=0001 chr=0041 compo=0005 empty=0", "Vchg mode=0"}));
		EXPECT_EQ(stage.components(), "0005 at 0,0");
		stage.locked([&] {
			EXPECT_EQ(cur_glyph->compo_a[0], 0x4000);
			EXPECT_EQ(cur_glyph->compo_b[0], 0);
			EXPECT_EQ(cur_glyph->compo_c[0], 0);
			EXPECT_EQ(cur_glyph->compo_d[0], 0x4000);
			EXPECT_EQ(cur_glyph->compo[0]->depth, 1);
		});
		EXPECT_EQ(stage.outline(), square);
		EXPECT_EQ(stage.selection(), "0");
	});
}


TEST(outline_components, the_eighth_is_dropped)
{
	at_outlines([](outline_stage& stage) {
		stage.choose("gno", 0);
		for (int i = 0; i < 8; i++)
			stage.add(i < 7 ? 5 : 1);
		EXPECT_EQ(stage.last_heard(),
			"Vchg gno=0000 chr=0000 compo=0005 compo=0005 compo=0005 compo=0005 compo=0005 "
			"compo=0005 "
			"compo=0005 empty=0");
		EXPECT_EQ(stage.components(),
			"0005 at 0,0; 0005 at 0,0; 0005 at 0,0; 0005 at 0,0; 0005 at 0,0; 0005 at 0,0; 0005 at "
			"0,0");
	});
}


TEST(outline_components, an_empty_glyph_may_be_one)
{
	at_outlines([](outline_stage& stage) {
		stage.choose("gno", 5);
		stage.add(0);
		EXPECT_EQ(stage.components(), "0000 at 0,0");
		EXPECT_EQ(stage.outline(), "");
	});
}


TEST(outline_components, a_glyph_that_there_is_not_changes_nothing)
{
	at_outlines([](outline_stage& stage) {
		stage.choose("gno", 5);
		stage.heard();
		for (int number : {7, 0x7FFF, 0x8000, -1})
			stage.add(number);
		stage.tell('Cadd');
		EXPECT_EQ(stage.heard(), texts());
		EXPECT_EQ(stage.outline(), square);
	});
}


// Storing it would put a reference to itself in the place of its outline.
TEST(outline_components, a_glyph_cannot_be_one_of_itself)
{
	at_outlines([](outline_stage& stage) {
		stage.choose("gno", 5);
		stage.heard();
		stage.add(5);
		EXPECT_EQ(stage.heard(), texts());
		EXPECT_EQ(stage.outline(), square);
		EXPECT_EQ(stage.components(), "");
		stage.tell('Gset');
		EXPECT_EQ(stage.outline(), square);
		EXPECT_EQ(part(record(5), 0, 2), hex("0001"));
	});
}


TEST(outline_components, a_composite_cannot_be_one_of_a_glyph_that_it_contains)
{
	at_outlines([](outline_stage& stage) {
		stage.choose("gno", 3);
		stage.add(4);
		stage.tell('Gset');
		EXPECT_EQ(stage.components(), "0001 at 0,0; 0002 at 10,-20; 0004 at 0,0");
		// Glyph 4 is within 3 now, and glyph 1 within both.
		stage.choose("gno", 4);
		stage.heard();
		stage.add(3);
		EXPECT_EQ(stage.heard(), texts());
		EXPECT_EQ(stage.components(), "0001 at 0,0");
		stage.choose("gno", 1);
		stage.heard();
		stage.add(3);
		EXPECT_EQ(stage.heard(), texts());
		EXPECT_EQ(stage.components(), "");
		// The other way round nothing is within itself.
		stage.choose("gno", 6);
		stage.tell('Gclr');
		stage.add(3);
		EXPECT_EQ(stage.components(), "0003 at 0,0");
	});
}


TEST(outline_components, a_refused_one_leaves_tool_and_selection)
{
	at_outlines([](outline_stage& stage) {
		stage.choose("gno", 2);
		stage.key('8');
		stage.add(3);
		EXPECT_EQ(stage.selection(), "-1 0");
		EXPECT_EQ(stage.state(), "gno 0002 chr 00e9 mode 0 state 1");
		stage.tell('drre');
		stage.add(2);
		EXPECT_EQ(stage.state(), "gno 0002 chr 00e9 mode 2 state 0");
	});
}


TEST(outline_components, one_is_taken_away_and_the_others_keep_their_order)
{
	at_outlines([](outline_stage& stage) {
		stage.choose("gno", 3);
		stage.add(5);
		stage.heard();
		stage.del(0);
		EXPECT_EQ(stage.heard(), texts{"Vchg gno=0003 chr=3042 compo=0002 compo=0005 empty=0"});
		EXPECT_EQ(stage.components(), "0002 at 10,-20; 0005 at 0,0");
		EXPECT_EQ(stage.outline(),
			"74,467 74,83 458,83 458,467 | 202,339 330,339 330,211 202,211 | "
			"100,411 100,211 300,211 300,411");
		stage.del(1);
		EXPECT_EQ(stage.components(), "0002 at 10,-20");
	});
}


// The handles are new ones, so that "8" selects the first and does not order what is selected.
TEST(outline_components, nothing_is_selected_after_one_was_added_or_taken_away)
{
	at_outlines([](outline_stage& stage) {
		stage.choose("gno", 3);
		stage.key('8');
		EXPECT_EQ(stage.selection(), "-1 0");
		stage.add(5);
		EXPECT_EQ(stage.selection(), "0 0 0");
		EXPECT_EQ(stage.state(), "gno 0003 chr 3042 mode 0 state 0");
		stage.key('8');
		EXPECT_EQ(stage.selection(), "-1 0 0");
		stage.del(1);
		EXPECT_EQ(stage.selection(), "0 0");
		stage.key('2');
		EXPECT_EQ(stage.selection(), "0 -1");
	});
}


TEST(outline_components, the_last_leaves_an_empty_glyph)
{
	at_outlines([](outline_stage& stage) {
		stage.choose("gno", 4);
		stage.del(0);
		EXPECT_EQ(stage.last_heard(), "Vchg gno=0004 chr=9000 empty=1");
		EXPECT_EQ(stage.outline(), "");
	});
}


TEST(outline_components, a_number_that_none_has_takes_none_away)
{
	at_outlines([](outline_stage& stage) {
		stage.choose("gno", 3);
		stage.heard();
		stage.del(2);
		stage.del(-1);
		EXPECT_EQ(stage.components(), "0001 at 0,0; 0002 at 10,-20");
		EXPECT_EQ(stage.heard().size(), 2u);
		stage.tell('Cdel');
		EXPECT_EQ(stage.heard(), texts());
	});
}


TEST(outline_components, deleting_at_a_simple_glyph_empties_it)
{
	at_outlines([](outline_stage& stage) {
		stage.choose("gno", 5);
		stage.del(0);
		EXPECT_EQ(stage.last_heard(), "Vchg gno=0005 chr=ffff empty=1");
		EXPECT_EQ(stage.outline(), "");
	});
}


TEST(outline_components, setting_writes_them_and_shows_what_was_written)
{
	at_outlines([](outline_stage& stage) {
		stage.choose("gno", 4);
		stage.add(5);
		stage.heard();
		stage.tell('Gset');
		EXPECT_EQ(stage.heard(), texts{"Vchg gno=0004 chr=9000 compo=0001 compo=0005 empty=0"});
		EXPECT_EQ(stage.components(), "0001 at 0,0; 0005 at 0,0");
		EXPECT_EQ(stage.outline(), "0,511 511,511 255,0 | 100,411 100,211 300,211 300,411");
		octets written = record(4);
		EXPECT_EQ(part(written, 0, 2), hex("ffff"));
		EXPECT_EQ(stage.selection(), "0 0");
	});
}


TEST(outline_components, setting_an_emptied_glyph_leaves_a_record_without_contours)
{
	at_outlines([](outline_stage& stage) {
		octets next = record(6);
		stage.choose("gno", 5);
		stage.tell('Gclr');
		stage.tell('Gset');
		EXPECT_EQ(part(record(5), 0, 2), hex("0000"));
		EXPECT_EQ(stage.outline(), "");
		EXPECT_EQ(record(6), next);
		EXPECT_EQ(stage.last_heard(), "Vchg gno=0005 chr=ffff empty=1");
	});
}


TEST(outline_components, setting_drops_the_selection_and_what_was_begun)
{
	at_outlines([](outline_stage& stage) {
		stage.choose("gno", 2);
		stage.key('8');
		stage.heard();
		stage.tell('Gset');
		EXPECT_EQ(stage.heard(), texts{"Vchg gno=0002 chr=00e9 empty=0"});
		EXPECT_EQ(stage.selection(), "0 0");
		EXPECT_EQ(stage.state(), "gno 0002 chr 00e9 mode 0 state 0");
		EXPECT_EQ(stage.outline(), "64,447 64,63 448,63 448,447 | 192,319 320,319 320,191 192,191");
	});
}


TEST(outline_components, a_glyph_that_could_not_be_shown_whole_is_not_written)
{
	at_outlines([](outline_stage& stage) {
		octets before = kept(curttf->glyf);
		stage.choose("gno", 6);
		EXPECT_EQ(stage.components(),
			"0005 at 0,0; 0005 at 1,0; 0005 at 2,0; 0005 at 3,0; 0005 at 4,0; 0005 at 5,0; "
			"0005 at 6,0");
		stage.heard();
		stage.tell('Gset');
		EXPECT_EQ(stage.heard(), texts());
		EXPECT_EQ(kept(curttf->glyf), before);
		stage.tell('Gclr');
		stage.tell('Gset');
		EXPECT_EQ(part(record(6), 0, 2), hex("0000"));
	});
}


TEST(outline_components, a_contour_without_points_does_not_keep_a_glyph_from_being_set)
{
	at_outlines([](outline_stage& stage) {
		stage.choose("gno", 5);
		stage.locked([] { cur_glyph->add_shape(new shape(0)); });
		for (int i = 0; i < 2; i++) {
			stage.tell('Gset');
			octets written = record(5);
			EXPECT_EQ(part(written, 0, 2), hex("0002"));
			EXPECT_EQ(part(written, 10, 4), hex("0003 0003"));
			EXPECT_EQ(stage.outline(), std::string(square) + " |");
		}
	});
}
