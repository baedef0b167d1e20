// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_OUTLINE_EM_GUIDE_H
#define KERNIX_OUTLINE_EM_GUIDE_H

#include <GraphicsDefs.h>
#include <memory>
#include <Rect.h>
#include <SupportDefs.h>

class BView;
class glyph;
class ttf;

// The em square as panels show it: a glyph's outline drawn into a rectangle of the view, and the
// vertical lines of its metrics. Window thread.

// Where it stands in the panels that show it: 300 x 300 view pixels.
constexpr BRect em_square = BRect(100, 100, 399, 399);

constexpr rgb_color bearing_color = {0, 255, 0, 255};
constexpr rgb_color advance_color = {0, 255, 255, 255};

// The glyph of that number, mapped from the font's em square onto a square of view pixels (edges
// included); without contours when the font has no such outline.
std::unique_ptr<glyph> glyph_in_em(ttf& font, uint16 index, BRect square);

// A metric line at a distance in font units from the left edge of the square, over its full height.
// Nothing is drawn for a font of 0 units to the em. Bitmaps count in pixels instead of font units.
void draw_metric(BView* view, BRect square, int32 distance, uint16 unitsperem, rgb_color color,
	pattern fill = B_SOLID_HIGH);

#endif
