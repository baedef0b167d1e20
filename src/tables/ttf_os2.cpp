// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "tables/ttf_os2.h"

#include "font/malloc32.h"
#include "font/panel.h"
#include "font/ttf.h"
#include "tables/unicode_ranges.h"
#include <cstdio>
#include <iterator>

enum { table_size = 86, at_panose = 32, at_unicode_ranges = 42, at_vendor = 58 };

static constexpr panel_field measures[] = {
	{"version", 0, 2},
	{"xAvgCharWidth", 2, 2},
	{"usWeightClass", 4, 2},
	{"usWidthClass", 6, 2},
	{"fsType", 8, 2},
	{"ySubscriptXSize", 10, 2},
	{"ySubscriptYSize", 12, 2},
	{"ySubscriptXOffset", 14, 2},
	{"ySubscriptYOffset", 16, 2},
	{"ySuperscriptXSize", 18, 2},
	{"ySuperscriptYSize", 20, 2},
	{"ySuperscriptXOffset", 22, 2},
	{"ySuperscriptYOffset", 24, 2},
	{"yStrikeoutSize", 26, 2},
	{"yStrikeoutPosition", 28, 2},
	{"sFamilyClass", 30, 2},
};
static_assert(rows_fill(measures, at_panose));

static constexpr panel_field panose[] = {
	{"panose(FamilyKind)", 32, 1},
	{"panose(SerifStyle)", 33, 1},
	{"panose(Weight)", 34, 1},
	{"panose(Proportion)", 35, 1},
	{"panose(Contrast)", 36, 1},
	{"panose(StrokeVariation)", 37, 1},
	{"panose(ArmStyle)", 38, 1},
	{"panose(Letterform)", 39, 1},
	{"panose(Midline)", 40, 1},
	{"panose(X-height)", 41, 1},
};

static constexpr panel_field ranges[] = {
	{"ulUnicodeRange1", 42, 4},
	{"ulUnicodeRange2", 46, 4},
	{"ulUnicodeRange3", 50, 4},
	{"ulUnicodeRange4", 54, 4},
	{"achVendID", at_vendor, 4},
	{"fsSelection", 62, 2},
	{"usFirstCharIndex", 64, 2},
	{"usLastCharIndex", 66, 2},
	{"sTypoAscender", 68, 2},
	{"sTypoDescender", 70, 2},
	{"sTypoLineGap", 72, 2},
	{"usWinAscent", 74, 2},
	{"usWinDescent", 76, 2},
	{"ulCodePageRange1", 78, 4},
	{"ulCodePageRange2", 82, 4},
};

static constexpr panel_column below = {20, 170, 270};
static constexpr panel_column beside = {300, 450, 20};


ttf_os2::ttf_os2(ttf* font, unsigned char* buffer, unsigned long size)
	: ttf_table(font, 'OS/2', buffer, size)
{
	if (data == nullptr)
		create_default();
}


int
ttf_os2::create_default()
{
	delete[] data;
	length = table_size;
	data = malloc32(table_size);
	static const uint16 first[] = {
		1, 512, 500, 5, 4, 256, 256, 0, 256, 256, 256, 0, 256, 16, 256, 0};
	static const uint8 classes[] = {2, 0, 5, 9, 0, 0, 0, 0, 0, 0};
	static const uint16 last[] = {64, 1, 0xFFFE, 512, 0, 0, 512, 0};
	uint32 at = 0;
	for (uint16 value : first) {
		put16(at, value);
		at += 2;
	}
	for (size_t i = 0; i < std::size(classes); i += 2) {
		put16(at, (uint16)(classes[i] << 8 | classes[i + 1]));
		at += 2;
	}
	put_ranges();
	put32(at_vendor, 'Tarn');
	at = at_vendor + 4;
	for (uint16 value : last) {
		put16(at, value);
		at += 2;
	}
	put32(at, 0xFFFFFFFF);
	put32(at + 4, 0xFFFFFFFF);
	return 0;
}


// A chosen block's number is its bit, counted from the lowest of the first word.
void
ttf_os2::put_ranges()
{
	if (owner->chrs == nullptr)
		return;
	for (uint32 i = 0; i < std::size(unicode_ranges); i++) {
		const uint32 word = at_unicode_ranges + 4 * (i / 32);
		if (owner->chrs->ranges[i])
			put32(word, u32(word) | (uint32)1 << i % 32);
	}
}


void
ttf_os2::Draw(BRect area)
{
	panel_clear(this, area);
	redraw();
}


void
ttf_os2::redraw()
{
	panel_rows(this, measures);
	panel_rows(this, panose, below);
	int row = 0;
	for (const panel_field& field : ranges) {
		std::string value = field_text(*this, field);
		if (field.offset == at_vendor && !value.empty()) {
			char letters[8];
			snprintf(letters, sizeof letters, " (%c%c%c%c)", u8(at_vendor), u8(at_vendor + 1),
				u8(at_vendor + 2), u8(at_vendor + 3));
			value += letters;
		}
		panel_row(this, row++, field.label, value.c_str(), beside);
	}
}
