// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// What the tools show while they are used, judged by pixels.
#include "draw/draw_fixture.h"
#include "draw/obj_ellipse.h"
#include "draw/obj_free.h"
#include "draw/obj_polygon.h"
#include "draw/obj_rect.h"
#include "draw/obj_round.h"

#include <cstring>
#include <gtest/gtest.h>
#include <View.h>

namespace {

const std::vector<BPoint> star = {{50, 5}, {79, 95}, {4, 39}, {96, 40}, {21, 94}};


template <typename tool>
std::unique_ptr<object>
dragged(BPoint from, BPoint to)
{
	std::unique_ptr<object> made = std::make_unique<tool>();
	press(*made, from.x, from.y);
	drag(*made, to.x, to.y);
	return made;
}


// The last point is pending.
template <typename tool>
std::unique_ptr<object>
clicked(const std::vector<BPoint>& path)
{
	std::unique_ptr<object> made = std::make_unique<tool>();
	for (size_t i = 0; i + 1 < path.size(); i++)
		press(*made, path[i].x, path[i].y);
	hover(*made, path.back().x, path.back().y);
	return made;
}


std::vector<std::unique_ptr<object>>
inverting_objects()
{
	std::vector<std::unique_ptr<object>> all;
	all.push_back(dragged<obj_rect>({7, 9}, {81, 62}));
	all.push_back(dragged<obj_rect>({81, 62}, {7, 9}));
	all.push_back(dragged<obj_rect>({30, 30}, {30, 30}));
	all.push_back(dragged<obj_ellipse>({7, 9}, {81, 62}));
	all.push_back(dragged<obj_ellipse>({81, 9}, {7, 62}));
	all.push_back(dragged<obj_ellipse>({20, 20}, {22, 90}));
	all.push_back(clicked<obj_polygon>({{50, 5}, {79, 95}}));
	all.push_back(clicked<obj_polygon>(star));
	all.push_back(clicked<obj_round>({{50, 5}, {79, 95}}));
	all.push_back(clicked<obj_round>(star));
	all.push_back(clicked<obj_round>({{-40, -40}, {300, 20}, {50, 300}}));
	return all;
}


void
fill_with_noise(BBitmap& bitmap)
{
	uint32 value = 1;
	for (int32 i = 0; i < bitmap.BitsLength() / 4; i++) {
		value = value * 1664525 + 1013904223;
		// The unused byte is not for us to compare.
		const uint32 pixel = value | 0xFF000000;
		memcpy((char*)bitmap.Bits() + 4 * (size_t)i, &pixel, 4);
	}
}


std::vector<char>
bits(const BBitmap& bitmap)
{
	const char* first = (const char*)bitmap.Bits();
	return std::vector<char>(first, first + bitmap.BitsLength());
}

}


TEST(obj_rect_drawframe, inverts_every_other_pixel_of_the_edges)
{
	paper sheet(7, 5);
	dragged<obj_rect>({1, 1}, {5, 3})->drawframe(&sheet.view, 1);
	EXPECT_EQ(sheet.picture(),
		"       \n"
		" W W W \n"
		"       \n"
		" W W W \n"
		"       \n");
}


TEST(obj_rect_drawframe, inverts_what_is_there)
{
	paper sheet(7, 5, true);
	dragged<obj_rect>({5, 3}, {1, 1})->drawframe(&sheet.view, 1);
	EXPECT_EQ(sheet.picture(),
		"WWWWWWW\n"
		"W W W W\n"
		"WWWWWWW\n"
		"W W W W\n"
		"WWWWWWW\n");
}


TEST(obj_rect_drawframe, multiplies_the_corners_by_the_scale)
{
	paper sheet(9, 7);
	dragged<obj_rect>({1, 1}, {3, 2})->drawframe(&sheet.view, 2);
	EXPECT_EQ(sheet.picture(),
		"         \n"
		"         \n"
		"  W W W  \n"
		"         \n"
		"  W W W  \n"
		"         \n"
		"         \n");
}


TEST(drawframe, twice_restores_every_pixel)
{
	for (float scale : {1.0F, 0.3F, 1.7F}) {
		int number = 0;
		for (const auto& each : inverting_objects()) {
			paper sheet(100, 100);
			fill_with_noise(sheet.bitmap);
			const std::vector<char> before = bits(sheet.bitmap);
			each->drawframe(&sheet.view, scale);
			EXPECT_TRUE(bits(sheet.bitmap) != before) << number << " at " << scale;
			each->drawframe(&sheet.view, scale);
			EXPECT_TRUE(bits(sheet.bitmap) == before) << number << " at " << scale;
			number++;
		}
	}
}


TEST(drawframe, twice_restores_every_pixel_of_a_scaled_view)
{
	for (float scale : {0.2000027F, 0.45F, 2.5F}) {
		int number = 0;
		for (const auto& each : inverting_objects()) {
			paper sheet(200, 200);
			fill_with_noise(sheet.bitmap);
			sheet.view.SetScale(scale);
			sheet.view.SetPenSize(0);
			const std::vector<char> before = bits(sheet.bitmap);
			each->drawframe(&sheet.view, 1);
			EXPECT_TRUE(bits(sheet.bitmap) != before) << number << " at " << scale;
			each->drawframe(&sheet.view, 1);
			EXPECT_TRUE(bits(sheet.bitmap) == before) << number << " at " << scale;
			number++;
		}
	}
}


TEST(drawframe, leaves_the_view_copying)
{
	for (const auto& each : inverting_objects()) {
		paper sheet(10, 10);
		sheet.view.SetDrawingMode(B_OP_INVERT);
		each->drawframe(&sheet.view, 1);
		EXPECT_EQ(sheet.view.DrawingMode(), B_OP_COPY);
	}
}


TEST(drawframe, of_an_object_that_has_not_begun_paints_nothing)
{
	paper sheet(3, 1);
	obj_rect().drawframe(&sheet.view, 1);
	obj_ellipse().drawframe(&sheet.view, 1);
	obj_polygon().drawframe(&sheet.view, 1);
	obj_round().drawframe(&sheet.view, 1);
	obj_free().drawframe(&sheet.view, 1);
	EXPECT_EQ(sheet.picture(), "   \n");
}


TEST(obj_ellipse_drawframe, inverts_the_ellipse_and_not_its_corners)
{
	paper sheet(61, 41);
	dragged<obj_ellipse>({56, 36}, {4, 4})->drawframe(&sheet.view, 1);
	EXPECT_EQ(sheet.pixel(30, 4), 0xFFFFFFU);
	EXPECT_EQ(sheet.pixel(30, 36), 0xFFFFFFU);
	EXPECT_EQ(sheet.pixel(4, 20), 0xFFFFFFU);
	EXPECT_EQ(sheet.pixel(56, 20), 0xFFFFFFU);
	EXPECT_EQ(sheet.pixel(4, 4), 0U);
	EXPECT_EQ(sheet.pixel(56, 36), 0U);
	EXPECT_EQ(sheet.pixel(30, 20), 0U);
	// Where the pattern has no bit.
	EXPECT_EQ(sheet.pixel(31, 4), 0U);
}


TEST(obj_ellipse_drawframe, multiplies_the_corners_by_the_scale)
{
	paper sheet(61, 41);
	dragged<obj_ellipse>({2, 2}, {28, 18})->drawframe(&sheet.view, 2);
	EXPECT_EQ(sheet.pixel(30, 4), 0xFFFFFFU);
	EXPECT_EQ(sheet.pixel(4, 20), 0xFFFFFFU);
	EXPECT_EQ(sheet.pixel(56, 20), 0xFFFFFFU);
}


TEST(obj_polygon_drawframe, of_one_fixed_point_is_a_line_to_the_pending_one)
{
	paper sheet(9, 3);
	clicked<obj_polygon>({{1, 1}, {7, 1}})->drawframe(&sheet.view, 1);
	EXPECT_EQ(sheet.picture(),
		"         \n"
		" W W W W \n"
		"         \n");
}


// The corner at (7, 1) belongs to two lines and that at (1, 1) too: inverted twice.
TEST(obj_polygon_drawframe, closes_itself_from_the_third_point_on)
{
	paper sheet(9, 9);
	clicked<obj_polygon>({{1, 1}, {7, 1}, {7, 7}, {1, 7}})->drawframe(&sheet.view, 1);
	EXPECT_EQ(sheet.picture(),
		"         \n"
		"   W W   \n"
		"         \n"
		" W     W \n"
		"         \n"
		" W     W \n"
		"         \n"
		"   W W   \n"
		"         \n");
}


TEST(obj_polygon_drawframe, multiplies_the_points_by_the_scale)
{
	paper sheet(9, 5);
	clicked<obj_polygon>({{1, 1}, {3, 1}})->drawframe(&sheet.view, 2);
	EXPECT_EQ(sheet.picture(),
		"         \n"
		"         \n"
		"  W W W  \n"
		"         \n"
		"         \n");
}


TEST(obj_polygon_drawframe, leaves_the_pen_at_the_origin)
{
	paper sheet(9, 9);
	sheet.view.MovePenTo(3, 3);
	clicked<obj_polygon>(star)->drawframe(&sheet.view, 1);
	EXPECT_EQ(sheet.view.PenLocation(), BPoint(0, 0));
}


TEST(obj_round_drawframe, of_one_fixed_point_is_a_line_to_the_pending_one)
{
	paper sheet(9, 3);
	clicked<obj_round>({{1, 1}, {7, 1}})->drawframe(&sheet.view, 1);
	EXPECT_EQ(sheet.picture(),
		"         \n"
		" W W W W \n"
		"         \n");
}


TEST(obj_round_drawframe, passes_half_way_between_the_points)
{
	paper sheet(50, 50);
	clicked<obj_round>({{4, 4}, {44, 4}, {44, 44}, {4, 44}})->drawframe(&sheet.view, 1);
	// Beside the middles of the edges, where the curves meet.
	EXPECT_EQ(sheet.pixel(26, 4), 0xFFFFFFU);
	EXPECT_EQ(sheet.pixel(44, 26), 0xFFFFFFU);
	EXPECT_EQ(sheet.pixel(26, 44), 0xFFFFFFU);
	EXPECT_EQ(sheet.pixel(4, 26), 0xFFFFFFU);
	// The middles of the four curves.
	EXPECT_EQ(sheet.pixel(9, 9), 0xFFFFFFU);
	EXPECT_EQ(sheet.pixel(39, 9), 0xFFFFFFU);
	EXPECT_EQ(sheet.pixel(39, 39), 0xFFFFFFU);
	EXPECT_EQ(sheet.pixel(9, 39), 0xFFFFFFU);
	EXPECT_EQ(sheet.pixel(4, 4), 0U);
	EXPECT_EQ(sheet.pixel(24, 24), 0U);
}


TEST(obj_round_drawframe, multiplies_the_points_by_the_scale)
{
	paper sheet(50, 50);
	clicked<obj_round>({{2, 2}, {22, 2}, {22, 22}, {2, 22}})->drawframe(&sheet.view, 2);
	EXPECT_EQ(sheet.pixel(26, 4), 0xFFFFFFU);
	EXPECT_EQ(sheet.pixel(39, 39), 0xFFFFFFU);
}


TEST(obj_round_drawframe, lies_on_the_contour_it_becomes)
{
	paper preview(100, 100);
	paper contour(100, 100);
	std::unique_ptr<object> made = clicked<obj_round>(star);
	made->drawframe(&preview.view, 1);
	press(*made, 21, 94);
	press(*made, 21, 94);
	ASSERT_EQ(made->state, -1);
	contours_of(*made)[0]->draw(&contour.view, 0xFFFFFF);
	int inverted = 0;
	for (int y = 0; y < 100; y++) {
		for (int x = 0; x < 100; x++) {
			if (preview.pixel(x, y) == 0)
				continue;
			inverted++;
			EXPECT_EQ(contour.pixel(x, y), 0xFFFFFFU) << x << ", " << y;
		}
	}
	EXPECT_GT(inverted, 50);
}


TEST(obj_round_drawframe, does_not_depend_on_the_pen_and_leaves_it_at_the_origin)
{
	for (const auto& made : {clicked<obj_round>(star), clicked<obj_round>({{10, 10}, {30, 40}})}) {
		paper fresh(100, 100);
		paper used(100, 100);
		made->drawframe(&fresh.view, 1);
		used.view.MovePenTo(20, 30);
		made->drawframe(&used.view, 1);
		EXPECT_EQ(used.picture(), fresh.picture());
		EXPECT_EQ(used.view.PenLocation(), BPoint(0, 0));
	}
}
