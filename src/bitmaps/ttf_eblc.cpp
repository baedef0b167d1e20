// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "bitmaps/ttf_eblc.h"

#include "bitmaps/bitmap.h"
#include "font/cursor.h"
#include "font/panel.h"
#include <algorithm>
#include <bitset>
#include <Font.h>
#include <iterator>

// Byte offsets of the table's header; then the size records.
enum { at_version = 0, at_numsizes = 4, header_size = 8 };
// Of a size record; what is listed of it starts behind what finds the bitmaps.
enum { at_array = 0, at_indexes = 8, at_listed = 12, at_ppemx = 44, at_ppemy = 45, size_size = 48 };
// Of an element of an index sub-table array.
enum { at_first = 0, at_last = 2, at_additional = 4, element_size = 8 };
// Of an index sub-table.
enum {
	at_index_format = 0,
	at_image_format = 2,
	at_image_data = 4,
	at_entries = 8,
	at_image_size = 8,
	at_metrics = 12,
	index_size = 8,
	index_2_size = 20
};

static constexpr panel_field rows[] = {
	{"colorRef", 0, 4},
	{"hori-ascender", 4, 1},
	{"hori-descender", 5, 1},
	{"hori-widthMax", 6, 1},
	{"hori-caretSlopeNumerator", 7, 1},
	{"hori-caretSlopeDenominator", 8, 1},
	{"hori-caretOffset", 9, 1},
	{"hori-minOriginSB", 10, 1},
	{"hori-minAdvanceSB", 11, 1},
	{"hori-maxBeforeBL", 12, 1},
	{"hori-minAfterBL", 13, 1},
	{"hori-pad1", 14, 1},
	{"hori-pad2", 15, 1},
	{"vert-ascender", 16, 1},
	{"vert-descender", 17, 1},
	{"vert-widthMax", 18, 1},
	{"vert-caretSlopeNumerator", 19, 1},
	{"vert-caretSlopeDenominator", 20, 1},
	{"vert-caretOffset", 21, 1},
	{"vert-minOriginSB", 22, 1},
	{"vert-minAdvanceSB", 23, 1},
	{"vert-maxBeforeBL", 24, 1},
	{"vert-minAfterBL", 25, 1},
	{"vert-pad1", 26, 1},
	{"vert-pad2", 27, 1},
	{"startGlyphIndex", 28, 2},
	{"endGlyphIndex", 30, 2},
	{"ppemX", 32, 1},
	{"ppemY", 33, 1},
	{"bitDepth", 34, 1},
	{"flags", 35, 1},
};
static_assert(rows_fill(rows, size_size - at_listed));

static constexpr panel_field header_rows[] = {
	{"version", at_version, 4},
	{"numSizes", at_numsizes, 4},
};
static_assert(rows_fill(header_rows, header_size));

// Pixels of the listing: the first size stands where values do, the others beside it.
static const float column_width = 70;
static const float label_gap = 8;


ttf_eblc::ttf_eblc(ttf* font, unsigned char* buffer, unsigned long size)
	: ttf_table(font, 'EBLC', buffer, size)
{
}


// How many size records the table really has.
uint32
ttf_eblc::whole_sizes() const
{
	return length < header_size ? 0
								: std::min(u32(at_numsizes), (length - header_size) / size_size);
}


bool
ttf_eblc::find_size(const bitmap& b, uint32* record) const
{
	for (uint32 i = 0; i < whole_sizes(); i++) {
		*record = header_size + size_size * i;
		if (u8(*record + at_ppemx) == b.ppemX && u8(*record + at_ppemy) == b.ppemY)
			return true;
	}
	return false;
}


// The index sub-table of a glyph, and the glyph's place in it, from 0.
bool
ttf_eblc::find_index(uint32 record, uint16 glyph, uint32* index, uint32* place) const
{
	uint32 array = u32(record + at_array);
	if (array > length)
		return false;
	uint32 count = std::min(u32(record + at_indexes), (length - array) / element_size);
	for (uint32 element = array; count > 0; count--, element += element_size) {
		uint16 first = u16(element + at_first);
		if (glyph < first || glyph > u16(element + at_last))
			continue;
		*index = array + u32(element + at_additional);
		*place = glyph - first;
		return true;
	}
	return false;
}


int
ttf_eblc::get_offset(bitmap* b, unsigned long* offset, unsigned short* imageFormat) const
{
	*offset = 0;
	uint32 record;
	uint32 index;
	uint32 place;
	if (!find_size(*b, &record) || !find_index(record, b->glyph, &index, &place)
		|| !all().has(index, index_size))
		return 1;
	*imageFormat = u16(index + at_image_format);
	uint32 found = u32(index + at_image_data);
	// Offsets are added modulo 2^32. Places in the table cannot wrap: they lie inside.
	uint32 entry = index + at_entries;
	uint32 span = length - entry;
	switch (u16(index + at_index_format)) {
		case 1:
			if (span / 4 <= place)
				return 1;
			found += u32(entry + 4 * place);
			break;
		case 2: {
			cursor metrics(all(), index + at_metrics);
			if (!all().has(index, index_2_size) || !b->take_metrics(metrics))
				return 1;
			found += u32(index + at_image_size) * place;
			break;
		}
		case 3:
			if (span / 2 <= place)
				return 1;
			found += u16(entry + 2 * place);
			break;
		default:
			return 2;
	}
	*offset = found;
	return found == 0 ? 1 : 0;
}


std::vector<uint16>
ttf_eblc::strikes() const
{
	std::vector<uint16> found;
	std::bitset<65536> seen;
	for (uint32 i = 0; i < whole_sizes(); i++) {
		// Both bytes at once: across, then down.
		uint16 size = u16(header_size + size_size * i + at_ppemx);
		if (seen[size])
			continue;
		seen[size] = true;
		found.push_back(size);
	}
	return found;
}


int
ttf_eblc::get_sizes(int* count, unsigned char* sizes) const
{
	*count = 0;
	for (uint16 size : strikes())
		::put16(sizes + 2 * (*count)++, size);
	return 0;
}


void
ttf_eblc::Draw(BRect area)
{
	panel_clear(this, area);
	int row = 0;
	for (const panel_field& field : header_rows)
		panel_row(this, row++, field.label, field_text(*this, field).c_str());
	for (const panel_field& field : rows)
		draw_label(row++, field.label);
	panel_column column = panel_main;
	for (uint32 i = 0; i < u32(at_numsizes) && column.value_x <= Bounds().right; i++) {
		draw_size(header_size + size_size * i, column);
		column.value_x += column_width;
	}
}


// A label that would run into the values is written smaller.
void
ttf_eblc::draw_label(int row, const char* label)
{
	const float room = panel_main.value_x - panel_main.label_x - label_gap;
	const float size = be_plain_font->Size();
	SetFontSize(size * std::min(1.0f, room / StringWidth(label)));
	panel_row(this, row, label, "");
	SetFontSize(size);
}


void
ttf_eblc::draw_size(uint32 record, const panel_column& column)
{
	int row = std::size(header_rows);
	for (panel_field field : rows) {
		field.offset = (uint16)(record + at_listed + field.offset);
		panel_row(this, row++, "", field_text(*this, field).c_str(), column);
	}
}
