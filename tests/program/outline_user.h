// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_PROGRAM_OUTLINE_USER_H
#define KERNIX_PROGRAM_OUTLINE_USER_H

#include "app/kernix.h"
#include "editor/glyfeditview.h"
#include "font/globals.h"
#include "font/messages.h"
#include "font/ttf.h"
#include "outline/glyph.h"
#include "outline/shape.h"
#include "outline/ttf_glyf.h"
#include "program/journey.h"

#include <gtest/gtest.h>
#include <InterfaceDefs.h>

// What users do with an outline, and see there.

// A font with a box of 128 by 128 units, which is shown at scale 4. Its glyphs, as the canvas has
// them, y down:
// 0 has no contours;
// 1 is a square from (20, 20) to (60, 60);
// 2 is three squares of side 16 with their tops at 8, from 8, 48 and 88 on;
// 3 is glyph 1 and, moved by (5, 10), glyph 4;
// 4 is round: (80, 70) and (100, 90) on the curve, (100, 70) and (80, 90) off.
font_file outlines();
// The same in a box of 2048 by 2048 units, shown at scale 0.2.
font_file wide_outlines();

// The hand of somebody who is at the outline editor. Places are canvas units.
class outline_user {
public:
	outline_user(kernix& application, robot& user) : app(application), hand(user) {}

	// In the window: the middle of a unit of the canvas, wherever that has been scrolled to.
	BPoint place(BPoint unit);

	void choose(int16 glyph);
	void take(uint32 tool);
	void set_scale(float scale);
	void set_pen(int8 size);
	// Any message to the view.
	void tell(BMessage message);

	void press(BPoint unit, int32 button = B_PRIMARY_MOUSE_BUTTON, int32 keys = 0);
	void move(BPoint unit, int32 keys = 0);
	void release(BPoint unit, int32 button = B_PRIMARY_MOUSE_BUTTON, int32 keys = 0);
	void click(BPoint unit, int32 button = B_PRIMARY_MOUSE_BUTTON, int32 keys = 0);
	void drag(BPoint from, BPoint to, int32 keys = 0);
	// Draws the pointer's band around everything between these.
	void band(BPoint from, BPoint to) { drag(from, to); }
	// Thousands of moves at once, none of them waited for.
	void flood(const std::vector<BPoint>& units, bool held = true);

	// The own contours: "x,y" of each point, with a '*' for control points; " | " between contours.
	std::string outline();
	// The selection of each item, in order.
	std::string selection();
	// What the view says of itself, with the window locked.
	template <typename Member>
	auto edit(Member field)
	{
		std::decay_t<decltype(view().*field)> value{};
		looking(app, [&] { value = view().*field; });
		return value;
	}
	int state() { return edit(&glyfeditview::edit_state); }
	// Only with the window locked.
	glyfeditview& view() { return *curttf->glyf->edit; }

	// Whether the window looks as it does when everything is painted afresh.
	testing::AssertionResult looks_fresh();

	kernix& app;
	robot& hand;
};

// Opens the font and chooses its glyf, with this glyph.
void at_outline(const font_file& font, int16 glyph, const std::function<void(outline_user&)>& work);
void at_outline(int16 glyph, const std::function<void(outline_user&)>& work);

// Of the object in progress: its state, and all its points; "none" without one.
std::string points_in(outline_user& user);

#endif
