// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Thousands of moves in one go leave what one slow move leaves, and nothing behind.
#include "program/outline_user.h"

static const int16 square = 1;
static const int16 three_squares = 2;
static const int16 composite = 3;

// How the canvas lies in the window.
struct lie {
	const char* name;
	bool wide; // shown at 0.2
	float scale;
	int across;
	int down;
};
static const lie lies[] = {{"fitted", false, 4, 0, 0}, {"smaller than the view", false, 1.5f, 0, 0},
	{"scrolled", false, 8, 160, 100}, {"at 0.2", true, 0, 0, 0}};

struct gesture {
	int16 glyph;
	uint32 tool;
	BPoint from;
	BPoint to;
	// In the wide box, where the same glyphs lie at the left bottom.
	BPoint wide_from;
	BPoint wide_to;
};


// So many places all over a part of the canvas, ending at the last.
static std::vector<BPoint>
wandering(int count, BRect within, BPoint last)
{
	std::vector<BPoint> path;
	uint32 seed = 12345;
	for (int i = 0; i < count; i++) {
		seed = seed * 1664525 + 1013904223;
		float x = within.left + (float)((seed >> 8) % (uint32)(within.Width() + 1));
		seed = seed * 1664525 + 1013904223;
		float y = within.top + (float)((seed >> 8) % (uint32)(within.Height() + 1));
		path.emplace_back(x, y);
	}
	path.push_back(last);
	return path;
}


static bool
is_dragged(const gesture& what)
{
	return what.tool != msg_polygon && what.tool != msg_round;
}


static void
start(outline_user& user, const lie& here, const gesture& what)
{
	if (here.scale != 0)
		user.set_scale(here.scale);
	user.hand.drag_scroll_bar(B_HORIZONTAL, here.across);
	user.hand.drag_scroll_bar(B_VERTICAL, here.down);
	user.take(what.tool);
	user.set_pen(10);
	// What scrolling has moved may be a pixel off where it would be painted.
	user.take(msg_repaint);
	BPoint from = here.wide ? what.wide_from : what.from;
	// The first click with the pointer selects what is there.
	if (!is_dragged(what) || what.tool == msg_pointer)
		user.click(from);
	if (is_dragged(what))
		user.press(from);
}


// What the window shows after the gesture, with nothing selected or in progress.
static QImage
performed(const lie& here, const gesture& what, bool flooded)
{
	QImage seen;
	at_outline(here.wide ? wide_outlines() : outlines(), what.glyph, [&](outline_user& user) {
		start(user, here, what);
		BPoint to = here.wide ? what.wide_to : what.to;
		BRect all = here.wide ? BRect(480, 320, 1120, 1120) : BRect(30, 20, 70, 70);
		if (flooded)
			user.flood(wandering(3000, all, to), is_dragged(what));
		user.move(to);
		if (is_dragged(what))
			user.release(to);
		EXPECT_TRUE(user.looks_fresh()) << here.name;
		user.take(msg_pointer);
		EXPECT_EQ(user.selection().find('-'), std::string::npos);
		EXPECT_TRUE(user.looks_fresh()) << here.name;
		seen = user.hand.picture();
	});
	return seen;
}


static void
expect_no_trace(const gesture& what)
{
	for (const lie& here : lies)
		EXPECT_TRUE(performed(here, what, true) == performed(here, what, false)) << here.name;
}


TEST(outline_input, a_flood_of_moves_of_a_band_leaves_no_trace)
{
	expect_no_trace({square, msg_pointer, {35, 64}, {66, 68}, {30, 1900}, {70, 1990}});
}


TEST(outline_input, a_flood_of_moves_of_a_contour_leaves_no_trace)
{
	expect_no_trace({square, msg_pointer, {40, 40}, {50, 45}, {40, 1960}, {100, 1900}});
}


TEST(outline_input, a_flood_of_moves_of_a_point_leaves_no_trace)
{
	expect_no_trace({square, msg_pointer, {60, 60}, {70, 75}, {60, 1980}, {800, 1500}});
}


TEST(outline_input, a_flood_of_moves_of_a_handle_leaves_no_trace)
{
	expect_no_trace({composite, msg_pointer, {40, 40}, {50, 45}, {40, 1960}, {100, 1900}});
}


TEST(outline_input, a_flood_of_moves_of_a_rectangle_leaves_no_trace)
{
	expect_no_trace({three_squares, msg_rect, {35, 30}, {66, 68}, {200, 300}, {1500, 1600}});
}


TEST(outline_input, a_flood_of_moves_of_an_ellipse_leaves_no_trace)
{
	expect_no_trace({three_squares, msg_ellipse, {35, 30}, {66, 68}, {200, 300}, {1500, 1600}});
}


TEST(outline_input, a_flood_of_moves_of_a_polygon_leaves_no_trace)
{
	expect_no_trace({three_squares, msg_polygon, {35, 30}, {66, 68}, {200, 300}, {1500, 1600}});
}


TEST(outline_input, a_flood_of_moves_of_a_round_leaves_no_trace)
{
	expect_no_trace({three_squares, msg_round, {35, 30}, {66, 68}, {200, 300}, {1500, 1600}});
}


TEST(outline_input, a_flood_over_everything_selected_leaves_no_trace_within_or_beyond_the_canvas)
{
	at_outline(three_squares, [](outline_user& user) {
		user.set_scale(2);
		user.band({2, 2}, {120, 40});
		EXPECT_EQ(user.selection(), "-1 -1 -1");
		user.press({16, 16});
		user.flood(wandering(3000, BRect(0, 0, 127, 127), {127, 127}));
		user.flood(wandering(3000, BRect(0, 0, 127, 127), {0, 0}));
		user.release({16, 16});
		EXPECT_TRUE(user.looks_fresh());
		EXPECT_EQ(user.outline(),
			"8,8 24,8 24,24 8,24 | 48,8 64,8 64,24 48,24 | 88,8 104,8 104,24 88,24");
		user.click({100, 100});
		EXPECT_EQ(user.selection(), "0 0 0");
		EXPECT_TRUE(user.looks_fresh());
	});
}


TEST(outline_input, a_stroke_of_thousands_of_moves_looks_as_if_painted_at_once)
{
	for (const lie& here : lies) {
		at_outline(here.wide ? wide_outlines() : outlines(), square, [&](outline_user& user) {
			gesture stroke = {square, msg_free, {35, 30}, {66, 68}, {200, 300}, {1500, 1600}};
			start(user, here, stroke);
			BRect all = here.wide ? BRect(480, 320, 1120, 1120) : BRect(30, 20, 70, 70);
			user.flood(wandering(2000, all, BPoint(all.left, all.top)));
			EXPECT_TRUE(user.looks_fresh()) << here.name;
			user.release(BPoint(all.left, all.top));
			EXPECT_TRUE(user.looks_fresh()) << here.name;
		});
	}
}
