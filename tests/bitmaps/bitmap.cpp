// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// A bitmap in a view: cells, hits, drawing.
#include "bitmaps/bitmap_fixture.h"
#include "outline/shape_fixture.h"

#include <gtest/gtest.h>
#include <View.h>

static const BRect em(100, 100, 399, 399);
static const unsigned white = 0xFFFFFF;
static const unsigned grey = 0x646464;

namespace {

// At 12 pixels per em, 25 view pixels each: the image starts one cell right and three cells down,
// at (125, 175), and ends before (200, 225).
class bitmap_in_em : public testing::Test {
protected:
	bitmap_in_em() : shown(bitmap_from({"#.#", ".#."}))
	{
		shown->horiBearingX = 1;
		shown->horiBearingY = 9;
		shown->setvrect(em);
	}

	// The pixels after a press, or "none".
	std::string pressed(float x, float y)
	{
		if (shown->create(1, BPoint(x, y)) != 0)
			return "none";
		placed_picture now = content(*shown);
		return now.rows[0] + " " + now.rows[1];
	}

	std::unique_ptr<bitmap> shown;
};

int
count(const paper& sheet, unsigned color)
{
	int found = 0;
	for (int y = 0; y < 500; y++) {
		for (int x = 0; x < 500; x++)
			found += sheet.pixel(x, y) == color;
	}
	return found;
}

} // namespace

TEST(bitmap, is_undefined_at_first)
{
	bitmap fresh(0xFFFF, 12, 13, 1);
	EXPECT_EQ(fresh.glyph, 0xFFFF);
	EXPECT_EQ(fresh.ppemX, 12);
	EXPECT_EQ(fresh.ppemY, 13);
	EXPECT_EQ(fresh.bitDepth, 1);
	EXPECT_EQ(fresh.width, 0);
	EXPECT_EQ(fresh.height, 0);
	EXPECT_EQ(fresh.horiBearingX, 0);
	EXPECT_EQ(fresh.horiBearingY, 0);
	EXPECT_EQ(fresh.horiAdvance, 12);
	EXPECT_EQ(fresh.pixels, nullptr);
	EXPECT_EQ(fresh.vrect, BRect(0, 0, 0, 0));
}

TEST_F(bitmap_in_em, turns_the_pixel_under_a_press_round)
{
	EXPECT_EQ(pressed(130, 180), "..# .#.");
	EXPECT_EQ(pressed(130, 180), "#.# .#.");
	EXPECT_EQ(pressed(160, 180), "### .#.");
	EXPECT_EQ(pressed(199, 224), "### .##");
}

TEST_F(bitmap_in_em, takes_the_first_edge_of_a_cell_for_its_own)
{
	EXPECT_EQ(pressed(125, 175), "..# .#.");
	EXPECT_EQ(pressed(149.9f, 199.9f), "#.# .#.");
	EXPECT_EQ(pressed(150, 175), "### .#.");
	EXPECT_EQ(pressed(125, 200), "### ##.");
}

TEST_F(bitmap_in_em, is_not_hit_outside)
{
	EXPECT_EQ(pressed(124, 180), "none");
	EXPECT_EQ(pressed(130, 174), "none");
	EXPECT_EQ(pressed(200, 180), "none");
	EXPECT_EQ(pressed(130, 225), "none");
	EXPECT_EQ(pressed(0, 0), "none");
	EXPECT_EQ(pressed(1e30f, 180), "none");
	EXPECT_EQ(content(*shown).rows, (picture{"#.#", ".#."}));
}

TEST_F(bitmap_in_em, is_hit_less_than_a_unit_before_its_first_cells)
{
	EXPECT_EQ(pressed(124.1f, 180), "..# .#.");
	EXPECT_EQ(pressed(130, 174.1f), "#.# .#.");
}

TEST_F(bitmap_in_em, is_turned_round_whatever_the_value)
{
	EXPECT_EQ(shown->create(0, BPoint(130, 180)), 0);
	EXPECT_EQ(shown->create(255, BPoint(160, 180)), 0);
	EXPECT_EQ(content(*shown).rows, (picture{".##", ".#."}));
}

TEST_F(bitmap_in_em, with_bearings_below_0_starts_outside_the_em)
{
	shown->horiBearingX = -2;
	shown->horiBearingY = -1;
	EXPECT_EQ(pressed(50, 425), "..# .#.");
	EXPECT_EQ(pressed(49, 425), "none");
	EXPECT_EQ(pressed(50, 424), "none");
}

TEST_F(bitmap_in_em, has_cells_as_wide_as_high_only_when_its_sizes_agree)
{
	shown->ppemX = 10;
	shown->ppemY = 20;
	// Cells of 30 x 15 from (130, 265).
	EXPECT_EQ(pressed(130, 265), "..# .#.");
	EXPECT_EQ(pressed(219, 294), "..# .##");
	EXPECT_EQ(pressed(220, 294), "none");
	EXPECT_EQ(pressed(219, 295), "none");
}

TEST_F(bitmap_in_em, has_cells_of_fractions_of_a_unit)
{
	shown->ppemX = shown->ppemY = 16;
	// From (118.75, 231.25), 18.75 each: the second column starts at 137.5.
	EXPECT_EQ(pressed(118, 240), "..# .#.");
	EXPECT_EQ(pressed(117.7f, 240), "none");
	EXPECT_EQ(pressed(137, 240), "#.# .#.");
	EXPECT_EQ(pressed(138, 240), "### .#.");
}

TEST_F(bitmap_in_em, without_pixels_or_cells_is_not_hit)
{
	bitmap undefined(1, 12, 12, 1);
	undefined.setvrect(em);
	undefined.width = undefined.height = 12;
	EXPECT_EQ(undefined.create(1, BPoint(110, 395)), 1);
	shown->ppemX = 0;
	EXPECT_EQ(pressed(130, 180), "none");
	shown->ppemX = 12;
	shown->ppemY = 0;
	EXPECT_EQ(pressed(130, 180), "none");
}

TEST_F(bitmap_in_em, in_a_rectangle_turned_round_is_not_hit_outside)
{
	shown->setvrect(BRect(399, 399, 100, 100));
	for (float place : {0.0f, 200.0f, 350.0f, 374.0f, 500.0f})
		pressed(place, place);
	shown->setvrect(BRect(100, 100, 99, 99));
	pressed(110, 110);
	EXPECT_EQ(content(*shown).rows.size(), 2u);
}

TEST_F(bitmap_in_em, is_drawn_as_white_cells_in_a_grey_box)
{
	paper sheet(500, 500);
	shown->draw(&sheet.view);
	sheet.view.Sync();
	// Cells fill 25 x 25 pixels, of which the box covers what lies on its edge.
	EXPECT_EQ(count(sheet, white), 24 * 24 + 24 * 24 + 25 * 24);
	EXPECT_EQ(count(sheet, grey), 2 * 75 + 2 * 48);
	EXPECT_EQ(sheet.pixel(125, 175), grey);
	EXPECT_EQ(sheet.pixel(199, 224), grey);
	EXPECT_EQ(sheet.pixel(126, 176), white);
	EXPECT_EQ(sheet.pixel(149, 199), white);
	EXPECT_EQ(sheet.pixel(150, 199), 0u);
	EXPECT_EQ(sheet.pixel(150, 200), white);
	EXPECT_EQ(sheet.pixel(174, 223), white);
	EXPECT_EQ(sheet.pixel(175, 199), white);
}

TEST_F(bitmap_in_em, of_no_pixels_per_em_is_not_drawn)
{
	shown->ppemY = 0;
	paper sheet(500, 500);
	shown->draw(&sheet.view);
	sheet.view.Sync();
	EXPECT_EQ(count(sheet, 0), 500 * 500);
}
