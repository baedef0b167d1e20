// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The outline edit view's scale, and what it paints in which colours.
#include "draw/obj_rect.h"
#include "program/outline_stage.h"

#include <gtest/gtest.h>
#include <QImage>

static const rgb_color black = {0, 0, 0, 255};
static const rgb_color white = {255, 255, 255, 255};
static const rgb_color bluish = {100, 100, 255, 255};
static const rgb_color grey = {50, 50, 50, 255};


static void
scale_to(outline_stage& stage, float scale)
{
	BMessage message('Vchg');
	message.AddFloat("scale", scale);
	stage.tell(message);
}


// What fitting a box of this size tells the palette.
static std::string
fitted(int xmin, int ymin, int xmax, int ymax)
{
	std::string told;
	at_outlines(outlines_font(xmin, ymin, xmax, ymax), [&](outline_stage& stage) {
		stage.heard();
		scale_to(stage, 0);
		told = stage.last_heard();
		EXPECT_EQ(stage.edit.Frame().LeftTop(), BPoint(50, 0));
	});
	return told;
}


// A colour of the edit view at a place of its own.
static rgb_color
pixel(outline_stage& stage, float x, float y)
{
	return stage.user.pixel(BPoint(x + 50, y));
}


static QImage
picture(outline_stage& stage)
{
	return stage.user.picture().copy(50, 0, 512, 512);
}


TEST(outline_display, small_fonts_are_shown_at_four_pixels_a_unit_at_most)
{
	EXPECT_EQ(fitted(0, 0, 100, 50), "Vchg scale=4");
	EXPECT_EQ(fitted(0, 0, 128, 128), "Vchg scale=4");
	EXPECT_EQ(fitted(0, 0, 129, 1), "Vchg scale=3.95");
}


TEST(outline_display, the_larger_side_spans_512_pixels_at_most)
{
	EXPECT_EQ(fitted(0, 0, 2048, 1000), "Vchg scale=0.2000027");
	EXPECT_EQ(fitted(0, -512, 1000, 1536), "Vchg scale=0.2000027");
	EXPECT_EQ(fitted(0, 0, 1024, 1024), "Vchg scale=0.4500027");
	EXPECT_EQ(fitted(-4096, 0, 4096, 10), "Vchg scale=0.05000269");
}


TEST(outline_display, very_large_fonts_are_fitted_exactly)
{
	EXPECT_EQ(fitted(0, 0, 10239, 0), "Vchg scale=0.05000269");
	EXPECT_EQ(fitted(0, 0, 10240, 0), "Vchg scale=0.05");
	EXPECT_EQ(fitted(-10240, 0, 10240, 0), "Vchg scale=0.025");
	EXPECT_EQ(fitted(-32768, 0, 32767, 0), "Vchg scale=0.007812619");
}


TEST(outline_display, a_font_without_a_size_is_shown_at_four)
{
	EXPECT_EQ(fitted(0, 0, 0, 0), "Vchg scale=4");
	EXPECT_EQ(fitted(100, 100, 0, 0), "Vchg scale=4");
}


TEST(outline_display, the_canvas_is_black_and_what_is_around_it_grey)
{
	at_outlines([](outline_stage& stage) {
		scale_to(stage, 0.5f);
		EXPECT_EQ(stage.user.count(BRect(50, 0, 305, 255), black), 256 * 256);
		EXPECT_EQ(stage.user.count(BRect(306, 0, 561, 511), grey), 256 * 512);
		EXPECT_EQ(stage.user.count(BRect(50, 256, 305, 511), grey), 256 * 256);
	});
}


TEST(outline_display, contours_are_white_or_blue_by_their_direction)
{
	at_outlines([](outline_stage& stage) {
		scale_to(stage, 1);
		stage.choose("gno", 2);
		EXPECT_EQ(pixel(stage, 64, 255), white);
		EXPECT_EQ(pixel(stage, 448, 255), white);
		EXPECT_EQ(pixel(stage, 255, 63), white);
		EXPECT_EQ(pixel(stage, 255, 447), white);
		EXPECT_EQ(pixel(stage, 192, 255), bluish);
		EXPECT_EQ(pixel(stage, 320, 255), bluish);
		EXPECT_EQ(pixel(stage, 255, 191), bluish);
		EXPECT_EQ(pixel(stage, 255, 319), bluish);
		BRect all(50, 0, 561, 511);
		EXPECT_EQ(stage.user.count(all, white), 4 * 384);
		EXPECT_EQ(stage.user.count(all, bluish), 4 * 128);
		EXPECT_EQ(stage.user.count(all, black), 512 * 512 - 4 * 384 - 4 * 128);
	});
}


TEST(outline_display, lines_are_one_pixel_wide_at_every_scale)
{
	at_outlines([](outline_stage& stage) {
		for (float scale : {0.25f, 0.5f, 2.0f}) {
			scale_to(stage, scale);
			stage.choose("gno", 5);
			int y = (int)(240 * scale);
			int found = 0;
			QImage image = picture(stage);
			for (int x = 0; x < 300 * scale - 2; x++)
				found += image.pixel(x, y) == 0xFFFFFFFF;
			EXPECT_EQ(found, 1) << scale;
		}
	});
}


TEST(outline_display, a_contour_above_lies_over_one_below)
{
	at_outlines([](outline_stage& stage) {
		scale_to(stage, 1);
		stage.choose("gno", 1);
		stage.key('8');
		stage.tell('COPY');
		stage.choose("gno", 2);
		stage.tell('PSTE');
		// The triangle's steep sides hide two pixels of the square's upper side and two of each
		// upright one.
		EXPECT_EQ(stage.user.count(BRect(50, 0, 561, 511), white), 4 * 384 - 6);
	});
}


TEST(outline_display, a_selected_contour_has_handles_of_two_pixels_around_its_points)
{
	at_outlines([](outline_stage& stage) {
		for (float scale : {1.0f, 0.5f}) {
			scale_to(stage, scale);
			stage.choose("gno", 5);
			stage.key('8');
			const float x = 300 * scale, y = 211 * scale;
			// The contour's own pixels are inverted too.
			EXPECT_EQ(pixel(stage, x + 1, y - 1), white) << scale;
			EXPECT_EQ(pixel(stage, x - 2, y - 2), white) << scale;
			EXPECT_EQ(pixel(stage, x + 2, y + 1), white) << scale;
			EXPECT_EQ(pixel(stage, x + 4, y - 1), black) << scale;
			EXPECT_EQ(pixel(stage, x - 1, y - 4), black) << scale;
		}
	});
}


TEST(outline_display, redrawing_the_overlays_again_takes_them_away)
{
	at_outlines([](outline_stage& stage) {
		scale_to(stage, 1);
		stage.choose("gno", 2);
		QImage plain = picture(stage);
		stage.key('8');
		QImage selected = picture(stage);
		EXPECT_NE(plain, selected);
		stage.locked([&] { stage.edit.redraw(2); });
		EXPECT_EQ(picture(stage), plain);
		stage.locked([&] { stage.edit.redraw(2); });
		EXPECT_EQ(picture(stage), selected);
		stage.locked([&] { stage.edit.redraw(1); });
		EXPECT_EQ(picture(stage), selected);
		stage.locked([&] { stage.edit.redraw(4); });
		EXPECT_EQ(picture(stage), selected);
	});
}


TEST(outline_display, a_band_and_an_object_are_inverted_over_the_outline)
{
	at_outlines([](outline_stage& stage) {
		scale_to(stage, 1);
		stage.choose("gno", 2);
		QImage plain = picture(stage);
		stage.locked([&] {
			stage.edit.band_active = 1;
			stage.edit.band_rect = BRect(20, 20, 30, 40);
			stage.edit.redraw(2);
		});
		EXPECT_GT(stage.user.count(BRect(70, 20, 70, 40), white), 8);
		stage.locked([&] {
			stage.edit.redraw(2);
			stage.edit.band_active = 0;
		});
		EXPECT_EQ(picture(stage), plain);
		stage.locked([&] {
			cur_object = new obj_rect;
			cur_object->create(1, BPoint(20, 20), 0);
			cur_object->create(3, BPoint(30, 40), 0);
			stage.edit.redraw(2);
		});
		EXPECT_GT(stage.user.count(BRect(70, 20, 70, 40), white), 8);
		stage.tell('drpi');
		EXPECT_EQ(picture(stage), plain);
	});
}


TEST(outline_display, a_repaint_removes_what_lies_outside_the_canvas)
{
	at_outlines([](outline_stage& stage) {
		scale_to(stage, 0.5f);
		stage.choose("gno", 1);
		QImage plain = picture(stage);
		stage.locked([&] {
			stage.edit.SetHighColor(0, 255, 0);
			stage.edit.FillRect(BRect(500, 500, 700, 700));
			stage.edit.SetHighColor(255, 255, 255);
		});
		EXPECT_NE(picture(stage), plain);
		stage.tell('edrd');
		EXPECT_EQ(picture(stage), plain);
	});
}


TEST(outline_display, a_composite_shows_the_handles_of_its_components_alone)
{
	at_outlines([](outline_stage& stage) {
		scale_to(stage, 1);
		stage.choose("gno", 4);
		QImage plain = picture(stage);
		EXPECT_EQ(pixel(stage, 100, 511), bluish);
		stage.key('8');
		EXPECT_EQ(stage.selection(), "-1");
		// The frame's corner, where the outline has no point.
		EXPECT_EQ(pixel(stage, 1, 1), white);
		EXPECT_NE(picture(stage), plain);
		stage.tell('drpi');
		EXPECT_EQ(picture(stage), plain);
	});
}
