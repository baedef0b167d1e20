// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Copying and pasting between glyphs.
#include "outline/shape_fixture.h"

#include <gtest/gtest.h>

namespace {

class glyph_clipboard : public testing::Test {
protected:
	void SetUp() override { prepare_clipboard(); }
	void TearDown() override { prepare_clipboard(); }
};


std::string
printed(glyph& by, void (glyph::*operation)())
{
	testing::internal::CaptureStdout();
	(by.*operation)();
	return testing::internal::GetCapturedStdout();
}

}


TEST_F(glyph_clipboard, is_empty_when_prepared)
{
	EXPECT_EQ(cnt_cp, 0);
	EXPECT_NE(sh_cp, nullptr);
}


TEST_F(glyph_clipboard, is_emptied_when_prepared_again)
{
	glyph_ptr made = squares(1);
	select(*made, {-1});
	made->copy();
	prepare_clipboard();
	EXPECT_EQ(cnt_cp, 0);
}


TEST_F(glyph_clipboard, takes_unselected_copies_of_contours_selected_as_a_whole_in_order)
{
	glyph_ptr made = squares(4);
	select(*made, {-1, 0, 2, -1});
	made->copy();
	ASSERT_EQ(cnt_cp, 2);
	EXPECT_EQ(dots(*sh_cp[0]), "0,0 5,0 5,5 0,5");
	EXPECT_EQ(dots(*sh_cp[1]), "30,0 35,0 35,5 30,5");
	EXPECT_EQ(sh_cp[0]->sel, 0);
	EXPECT_EQ(sh_cp[1]->sel, 0);
	EXPECT_EQ(selection(*made), "-1 0 2 -1");
}


TEST_F(glyph_clipboard, holds_only_what_was_copied_last)
{
	glyph_ptr made = squares(3);
	select(*made, {-1, -1, 0});
	made->copy();
	select(*made, {0, 0, -1});
	made->copy();
	ASSERT_EQ(cnt_cp, 1);
	EXPECT_EQ(sh_cp[0]->frame, BRect(20, 0, 25, 5));
}


TEST_F(glyph_clipboard, is_empty_after_copying_mere_point_selections)
{
	glyph_ptr made = squares(2);
	select(*made, {-1, -1});
	made->copy();
	select(*made, {1, 3});
	made->copy();
	EXPECT_EQ(cnt_cp, 0);
}


TEST_F(glyph_clipboard, takes_the_own_contours_of_a_composite_and_no_frames)
{
	glyph_ptr parts = composite(2);
	select(*parts, {0, -1, -1, -1});
	parts->copy();
	ASSERT_EQ(cnt_cp, 1);
	EXPECT_EQ(sh_cp[0]->frame, BRect(10, 0, 15, 5));
}


TEST_F(glyph_clipboard, pastes_unselected_copies_behind_the_contours)
{
	glyph_ptr made = squares(3);
	select(*made, {0, -1, -1});
	made->copy();
	made->paste();
	EXPECT_EQ(order(*made), "0 1 2 1 2");
	EXPECT_EQ(selection(*made), "0 -1 -1 0 0");
}


TEST_F(glyph_clipboard, pastes_unselected_whatever_the_clipboard_says)
{
	glyph_ptr made = squares(1);
	select(*made, {-1});
	made->copy();
	sh_cp[0]->sel = 2;
	made->paste();
	EXPECT_EQ(selection(*made), "-1 0");
}


TEST_F(glyph_clipboard, outlives_the_glyph_and_serves_every_other_again_and_again)
{
	glyph_ptr made = squares(2);
	select(*made, {0, -1});
	made->copy();
	made.reset();
	glyph other(2);
	other.paste();
	other.paste();
	EXPECT_EQ(order(other), "1 1");
	EXPECT_NE(other.shapes[0], other.shapes[1]);
	EXPECT_EQ(cnt_cp, 1);
}


TEST_F(glyph_clipboard, pastes_before_the_frames_of_a_composite)
{
	glyph_ptr made = squares(1);
	select(*made, {-1});
	made->copy();
	glyph_ptr parts = composite(2);
	shape* frame = parts->shapes[2];
	parts->paste();
	EXPECT_EQ(order(*parts), "0 1 0");
	EXPECT_EQ(parts->shapes[3], frame);
}


TEST_F(glyph_clipboard, tells_of_copying_and_pasting_also_when_there_is_nothing)
{
	glyph none(1);
	EXPECT_EQ(printed(none, &glyph::copy), "copy\n");
	EXPECT_EQ(printed(none, &glyph::paste), "paste\n");
	EXPECT_EQ(none.num_shape, 0);
}
