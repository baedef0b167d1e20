// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "font/ttf_hhea.h"

#include "font/malloc32.h"
#include "font/panel.h"
#include "font/ttf.h"

// Byte offsets of the fields used here.
enum {
	at_version = 0,
	at_ascender = 4,
	at_widest = 10,
	at_extent = 16,
	at_rise = 18,
	at_numhmtx = 34
};

enum { hhea_length = 36 };

static constexpr panel_field rows[] = {
	{"tableVersionNumber", 0, 4},
	{"Ascender", 4, 2},
	{"Descender", 6, 2},
	{"LineGap", 8, 2},
	{"advanceWidthMax", 10, 2},
	{"minLeftSideBearing", 12, 2},
	{"minRightSideBearing", 14, 2},
	{"xMaxExtent", 16, 2},
	{"caretSlopeRise", 18, 2},
	{"caretSlopeRun", 20, 2},
	{"reserved", 22, 2},
	{"reserved", 24, 2},
	{"reserved", 26, 2},
	{"reserved", 28, 2},
	{"reserved", 30, 2},
	{"metricDataFormat", 32, 2},
	{"numberOfHMetrics", 34, 2},
};
static_assert(rows_fill(rows, hhea_length));


ttf_hhea::ttf_hhea(ttf* font, unsigned char* buffer, unsigned long size)
	: ttf_table(font, 'hhea', buffer, size)
{
	if (data == nullptr)
		create_default();
}


void
ttf_hhea::create_default()
{
	delete[] data;
	length = hhea_length;
	data = malloc32(hhea_length);
	put32(at_version, 0x00010000);
	put16(at_ascender, 512);
	put16(at_widest, 512);
	put16(at_extent, 512);
	put16(at_rise, 1);
	put16(at_numhmtx, (uint16)owner->newglyphs());
}


void
ttf_hhea::Draw(BRect area)
{
	panel_clear(this, area);
	redraw();
}


void
ttf_hhea::redraw()
{
	panel_rows(this, rows);
}


unsigned short
ttf_hhea::numhmtx() const
{
	return u16(at_numhmtx);
}
