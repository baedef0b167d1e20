// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The icons and arrows of the palettes, on a sheet of their own.
#include "editor/tool_icons.h"
#include "font/palette.h"

#include <Bitmap.h>
#include <functional>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <View.h>

static const int side = 20;


// What painting leaves on a green sheet of 20 x 20 pixels, a line for each row: '#' black, '.'
// white, 'r' (204, 0, 0), ' ' the sheet, '?' anything else.
static std::string
painted(const std::function<void(BView*)>& paint)
{
	BBitmap bitmap(BRect(0, 0, side - 1, side - 1), B_RGB32, true);
	paint_on(&bitmap, [&](BView* view) {
		view->SetHighColor(0, 255, 0);
		view->FillRect(view->Bounds());
		paint(view);
	});
	std::string text;
	for (int y = 0; y < side; y++) {
		auto* row = reinterpret_cast<const uint32*>(
			static_cast<const char*>(bitmap.Bits()) + y * bitmap.BytesPerRow());
		for (int x = 0; x < side; x++) {
			const uint32 pixel = row[x] & 0xFFFFFF;
			text += pixel == 0      ? '#'
				: pixel == 0xFFFFFF ? '.'
				: pixel == 0xCC0000 ? 'r'
				: pixel == 0x00FF00 ? ' '
									: '?';
		}
		text += '\n';
	}
	return text;
}


static std::string
icon(int tool, bool in_use)
{
	return painted([&](BView* view) { draw_tool_icon(view, tool, BPoint(2, 3), in_use); });
}


TEST(tool_icons, are_black_and_white_pixels_16_by_16)
{
	for (int tool = 0; tool < 6; tool++) {
		const std::string picture = icon(tool, false);
		for (int y = 0; y < side; y++) {
			for (int x = 0; x < side; x++) {
				const char pixel = picture[(size_t)(y * (side + 1) + x)];
				const bool within = x >= 2 && x <= 17 && y >= 3 && y <= 18;
				EXPECT_EQ(pixel == '#' || pixel == '.', within) << tool << ": " << x << ", " << y;
				EXPECT_EQ(pixel == ' ', !within) << tool << ": " << x << ", " << y;
			}
		}
	}
}


TEST(tool_icons, are_inverted_for_the_tool_in_use)
{
	for (int tool = 0; tool < 6; tool++) {
		std::string turned = icon(tool, true);
		for (char& pixel : turned)
			pixel = pixel == '#' ? '.' : pixel == '.' ? '#' : pixel;
		EXPECT_EQ(turned, icon(tool, false)) << tool;
	}
}


TEST(tool_icons, of_six_tools_are_six_pictures)
{
	std::set<std::string> pictures;
	for (int tool = 0; tool < 6; tool++) {
		const std::string picture = icon(tool, false);
		EXPECT_NE(picture.find('#'), std::string::npos) << tool;
		EXPECT_NE(picture.find('.'), std::string::npos) << tool;
		pictures.insert(picture);
	}
	EXPECT_EQ(pictures.size(), 6u);
}


TEST(tool_icons, the_pointer_is_an_arrow)
{
	EXPECT_EQ(icon(0, false),
		"                    \n"
		"                    \n"
		"                    \n"
		"  ................  \n"
		"  ...#............  \n"
		"  ...##...........  \n"
		"  ...###..........  \n"
		"  ...####.........  \n"
		"  ...#####........  \n"
		"  ...######.......  \n"
		"  ...#######......  \n"
		"  ...########.....  \n"
		"  ...#########....  \n"
		"  ...######.......  \n"
		"  ...##.###.......  \n"
		"  ...#...##.......  \n"
		"  .......###......  \n"
		"  ........##......  \n"
		"  ................  \n"
		"                    \n");
}


TEST(tool_icons, there_is_none_for_another_number)
{
	const std::string nothing = painted([](BView*) {});
	EXPECT_EQ(icon(-1, false), nothing);
	EXPECT_EQ(icon(6, true), nothing);
}


TEST(tool_icons, leave_the_pen_as_it_was)
{
	painted([](BView* view) {
		view->SetHighColor(1, 2, 3);
		draw_tool_icon(view, 2, BPoint(0, 0), true);
		EXPECT_EQ(view->HighColor().red, 1);
		EXPECT_EQ(view->HighColor().green, 2);
		EXPECT_EQ(view->HighColor().blue, 3);
	});
}


// The rows from 4 to 13 of a sheet with an arrow at (6, 5).
static std::string
arrow(arrow_direction direction)
{
	return painted([&](BView* view) {
		palette_arrow(view, BPoint(6, 5), direction);
	}).substr(4 * (side + 1), 10 * (side + 1));
}


TEST(palette_arrow, points_to_the_left_in_red)
{
	EXPECT_EQ(arrow(arrow_left),
		"                    \n"
		"            rr      \n"
		"          rrrr      \n"
		"        rrrrrr      \n"
		"      rrrrrrrr      \n"
		"      rrrrrrrr      \n"
		"        rrrrrr      \n"
		"          rrrr      \n"
		"            rr      \n"
		"                    \n");
}


TEST(palette_arrow, points_to_the_right_in_red)
{
	EXPECT_EQ(arrow(arrow_right),
		"                    \n"
		"      rr            \n"
		"      rrrr          \n"
		"      rrrrrr        \n"
		"      rrrrrrrr      \n"
		"      rrrrrrrr      \n"
		"      rrrrrr        \n"
		"      rrrr          \n"
		"      rr            \n"
		"                    \n");
}
