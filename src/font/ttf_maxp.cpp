// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "font/ttf_maxp.h"

#include "font/malloc32.h"
#include "font/messages.h"
#include "font/panel.h"
#include "font/ttf.h"
#include <algorithm>
#include <Message.h>
#include <TextControl.h>

// Byte offsets of the fields used here.
enum {
	at_version = 0,
	at_numglyphs = 4,
	at_points = 6,
	at_contours = 8,
	at_composite_points = 10,
	at_composite_contours = 12,
	at_zones = 14,
	at_stack = 24,
	at_components = 28,
	at_depth = 30
};

enum { maxp_length = 32 };

static constexpr panel_field rows[] = {
	{"tableVersionNumber", 0, 4},
	{"numGlyphs", 4, 2},
	{"maxPoints", 6, 2},
	{"maxContours", 8, 2},
	{"maxCompositePoints", 10, 2},
	{"maxCompositeContours", 12, 2},
	{"maxZones", 14, 2},
	{"maxTwilightPoints", 16, 2},
	{"maxStorage", 18, 2},
	{"maxFunctionDefs", 20, 2},
	{"maxInstructionDefs", 22, 2},
	{"maxStackElements", 24, 2},
	{"maxSizeOfInstructions", 26, 2},
	{"maxComponentElements", 28, 2},
	{"maxComponentDepth", 30, 2},
};
static_assert(rows_fill(rows, maxp_length));


ttf_maxp::ttf_maxp(ttf* font, unsigned char* buffer, unsigned long size)
	: ttf_table(font, 'maxp', buffer, size),
	  maxstackelements(nullptr)
{
	if (data == nullptr)
		create_default();
}


void
ttf_maxp::create_default()
{
	delete[] data;
	length = maxp_length;
	data = malloc32(maxp_length);
	put32(at_version, 0x00010000);
	put16(at_numglyphs, (uint16)owner->newglyphs());
	put16(at_zones, 1);
	put16(at_depth, 1);
}


// Without a branch on the kind of a glyph, which is beyond any processor's guess.
void
ttf_maxp::update()
{
	uint16 points[2] = {};
	uint16 contours[2] = {};
	uint16 components = 0;
	uint16 depth = 0;
	for (const glyph_info& each : owner->glyph_infos()) {
		const uint16 if_composite = each.depth != 0 ? 0xFFFF : 0;
		const uint16 if_simple = (uint16)~if_composite;
		points[0] = std::max(points[0], (uint16)(each.points & if_simple));
		points[1] = std::max(points[1], (uint16)(each.points & if_composite));
		contours[0] = std::max(contours[0], (uint16)(each.contours & if_simple));
		contours[1] = std::max(contours[1], (uint16)(each.contours & if_composite));
		components = std::max(components, each.components);
		depth = std::max(depth, each.depth);
	}
	put16(at_points, points[0]);
	put16(at_contours, contours[0]);
	put16(at_composite_points, points[1]);
	put16(at_composite_contours, contours[1]);
	put16(at_components, components);
	put16(at_depth, depth);
}


void
ttf_maxp::AttachedToWindow()
{
	panel_colors(this);
	if (maxstackelements == nullptr)
		maxstackelements =
			panel_edit(this, BRect(20, 450, 200, 470), "maxstackelements", "maxStackElements", 120);
	MakeFocus();
}


void
ttf_maxp::Draw(BRect area)
{
	panel_clear(this, area);
	redraw();
}


void
ttf_maxp::MessageReceived(BMessage* message)
{
	if (message->what == msg_changed)
		edit();
	else
		BView::MessageReceived(message);
}


void
ttf_maxp::redraw()
{
	panel_rows(this, rows);
}


// What is no number changes nothing, but the panel is painted again all the same.
void
ttf_maxp::edit()
{
	int64 elements;
	if (read_hex(maxstackelements, &elements)) {
		show_hex(maxstackelements, (uint16)elements, 4);
		put16(at_stack, (uint16)elements);
	}
	Draw(Bounds());
}


unsigned short
ttf_maxp::numglyphs() const
{
	return u16(at_numglyphs);
}
