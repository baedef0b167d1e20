// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "outline/em_guide.h"

#include "font/ttf.h"
#include "font/ttf_head.h"
#include "outline/glyph.h"
#include <View.h>


std::unique_ptr<glyph>
glyph_in_em(ttf& font, uint16 index, BRect square)
{
	auto g = std::make_unique<glyph>(index);
	font.get_glyph(index, g.get());
	float last = (float)font.unitsperem() - 1;
	g->trans(BRect(0, last, last, 0), square);
	return g;
}


void
draw_metric(
	BView* view, BRect square, int32 distance, uint16 unitsperem, rgb_color color, pattern fill)
{
	if (unitsperem == 0)
		return;
	float x = square.left + (square.Width() + 1) * (float)distance / (float)unitsperem;
	view->SetHighColor(color);
	view->StrokeLine(BPoint(x, square.top), BPoint(x, square.bottom), fill);
}
