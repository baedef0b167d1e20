// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "tables/ttf_cmap.h"

#include "font/malloc32.h"
#include "font/messages.h"
#include "font/panel.h"
#include "font/ttf.h"
#include <algorithm>
#include <Button.h>
#include <Message.h>
#include <numeric>
#include <TextControl.h>
#include <vector>

static const uint32 code_count = 0x10000;
static const uint32 last_code = 0xFFFF;

// A glyph number that takes glyphs away, and a code that stands for none.
static const uint32 none = 0xFFFF;

// In the table: its encoding records.
enum { at_numrecords = 2, at_records = 4, record_size = 8 };

// In a subtable of format 4: its fields, and where its four arrays would start if they had no
// elements.
enum {
	at_format = 0,
	at_segcountx2 = 6,
	at_ends = 14,
	at_starts = 16,
	at_deltas = 16,
	at_ranges = 16
};

// What set_tbl writes: one record, then the subtable.
static const uint32 place_written = 12;
static const uint32 unsegmented = 28;
static const uint32 segment_size = 8;


namespace {

// The segments of a subtable of format 4 as they stand in the file.
class segment_list {
public:
	explicit segment_list(const bytes& subtable) : sub(subtable), size(subtable.u16(at_segcountx2))
	{
	}

	// Up to the first that starts at the last code, which ends the list.
	uint32 count() const
	{
		uint32 index = 0;
		while (index < size / 2 && first(index) != last_code)
			index++;
		return index;
	}

	uint32 first(uint32 index) const { return sub.u16(at_starts + size + 2 * index); }
	uint32 last(uint32 index) const { return sub.u16(at_ends + 2 * index); }
	// As the format asks for: upwards, and no code twice.
	bool in_order(uint32 segments) const;
	uint16 glyph(uint32 index, uint32 code) const;

private:
	bytes sub;
	uint32 size; // of each array, in bytes
};


// The codes that no segment has claimed yet, found without a walk over the claimed ones.
class open_codes {
public:
	open_codes() : next(code_count + 1) { std::iota(next.begin(), next.end(), 0); }

	// The first from this code on; code_count when there is none.
	uint32 from(uint32 code)
	{
		while (next[code] != code)
			code = next[code] = next[next[code]];
		return code;
	}

	void claim(uint32 code) { next[code] = code + 1; }

private:
	std::vector<uint32> next; // the code itself while it is open, else some code after it
};


bool
segment_list::in_order(uint32 segments) const
{
	uint32 next = 0;
	for (uint32 index = 0; index < segments; index++) {
		if (first(index) < next || last(index) < first(index))
			return false;
		next = last(index) + 1;
	}
	return true;
}


// An array's glyph is counted from the segment's delta too when it is 0, unlike in other readers.
uint16
segment_list::glyph(uint32 index, uint32 code) const
{
	uint32 delta = sub.u16(at_deltas + 2 * size + 2 * index);
	uint32 at = at_ranges + 3 * size + 2 * index;
	uint32 range = sub.u16(at);
	if (range == 0)
		return (uint16)(code + delta);
	return (uint16)(sub.u16(at + range + 2 * (code - first(index))) + delta);
}

}


ttf_cmap::ttf_cmap(ttf* font, unsigned char* buffer, unsigned long size)
	: ttf_table(font, 'cmap', buffer, size),
	  st(nullptr),
	  ed(nullptr),
	  gno(nullptr),
	  set(nullptr),
	  map(new unsigned short[code_count]())
{
	if (data == nullptr)
		create_default();
}


ttf_cmap::~ttf_cmap()
{
	delete[] map;
}


int
ttf_cmap::create_default()
{
	const chrs_record* chosen = owner->chrs;
	unsigned short glyph = 0;
	for (uint32 code = 1; code < code_count; code++)
		map[code] = chosen != nullptr && chosen->codes[code] != 0 ? ++glyph : 0;
	return set_tbl();
}


int
ttf_cmap::get_tbl()
{
	std::fill_n(map, code_count, 0);
	bytes chosen = subtable();
	if (chosen.at == nullptr)
		return -1;
	if (chosen.u16(at_format) != 4)
		return 1;
	const segment_list segments(chosen);
	const uint32 count = segments.count();
	if (segments.in_order(count)) {
		for (uint32 index = 0; index < count; index++) {
			for (uint32 code = segments.first(index); code <= segments.last(index); code++)
				map[code] = segments.glyph(index, code);
		}
		return 0;
	}
	// The last segment of a code decides. Backwards each code is visited once, however many
	// segments overlap: a small file could name all codes thirty thousand times.
	open_codes open;
	for (uint32 index = count; index-- > 0;) {
		uint32 code = open.from(segments.first(index));
		for (; code <= segments.last(index); code = open.from(code)) {
			map[code] = segments.glyph(index, code);
			open.claim(code);
		}
	}
	return 0;
}


// The rest of the table from the last (3, 1) subtable on; empty when that lies outside. Without
// such a record, or with 0 in the last, a null one.
bytes
ttf_cmap::subtable() const
{
	uint32 place = 0;
	for (uint32 i = 0; i < u16(at_numrecords); i++) {
		uint32 record = at_records + record_size * i;
		if (u16(record) == 3 && u16(record + 2) == 1)
			place = u32(record + 4);
	}
	if (place == 0)
		return {nullptr, 0};
	return place < length ? bytes{data + place, length - place} : bytes{data, 0};
}


int
ttf_cmap::set_tbl()
{
	map[0] = map[last_code] = 0;
	uint32 count = segments();
	delete[] data;
	length = unsegmented + segment_size * count;
	data = malloc32((int)length);
	put_header(count);
	uint32 index = 0;
	for (uint32 code = 1; code < last_code; code++) {
		if (map[code] == 0)
			continue;
		uint32 first = code;
		while (map[code + 1] != 0)
			code++;
		put_segment(count, index++, first, code, map[first] - first);
	}
	put_segment(count, index, last_code, last_code, 1);
	return 0;
}


// One for each run of codes that have glyphs, and one that ends the list.
uint32
ttf_cmap::segments() const
{
	uint32 count = 1;
	for (uint32 code = 0; code < last_code; code++)
		count += map[code] == 0 && map[code + 1] != 0;
	return count;
}


// The search fields are not the published ones when the count is a power of two, on purpose. All
// fields are modulo 2^16: with 32768 segments the length and the count wrap.
void
ttf_cmap::put_header(uint32 count)
{
	uint32 range = 1;
	int selector = -1;
	while (range < count) {
		range *= 2;
		selector++;
	}
	put16(at_numrecords, 1);
	put16(at_records, 3);
	put16(at_records + 2, 1);
	put32(at_records + 4, place_written);
	put16(place_written + at_format, 4);
	put16(place_written + 2, (uint16)(length - place_written));
	put16(place_written + at_segcountx2, (uint16)(2 * count));
	put16(place_written + 8, (uint16)range);
	put16(place_written + 10, (uint16)selector);
	put16(place_written + 12, (uint16)(2 * count - range));
}


void
ttf_cmap::put_segment(uint32 count, uint32 index, uint32 first, uint32 last, uint32 delta)
{
	uint32 at = place_written + 2 * index;
	put16(at + at_ends, (uint16)last);
	put16(at + at_starts + 2 * count, (uint16)first);
	put16(at + at_deltas + 4 * count, (uint16)delta);
}


int
ttf_cmap::set_chr(unsigned short first, unsigned short last, unsigned short glyph)
{
	// Wider than a code: a range may end at the last one.
	for (uint32 code = first; code <= last; code++)
		map[code] = glyph == none ? 0 : (unsigned short)(glyph + (code - first));
	return set_tbl();
}


unsigned short
ttf_cmap::get_gno(unsigned short code) const
{
	return map[code];
}


unsigned short
ttf_cmap::get_chr(unsigned short glyph) const
{
	// Found nowhere, it is the last code's own number: none.
	return (unsigned short)(std::find(map, map + last_code, glyph) - map);
}


void
ttf_cmap::AttachedToWindow()
{
	panel_colors(this);
	if (set == nullptr) {
		set = panel_button(this, panel_set, "set");
		st = panel_edit(this, panel_slots[0], "st", "start_chr.", 50);
		ed = panel_edit(this, panel_slots[1], "ed", "end_chr.", 50);
		gno = panel_edit(this, panel_slots[2], "gno", "glyph_no.", 50);
	}
	MakeFocus();
}


void
ttf_cmap::Draw(BRect area)
{
	panel_clear(this, area);
}


void
ttf_cmap::MessageReceived(BMessage* message)
{
	void* source = nullptr;
	switch (message->what) {
		case msg_changed:
			if (message->FindPointer("source", &source) == B_OK)
				changed(source);
			break;
		case msg_pressed:
			if (message->FindPointer("source", &source) == B_OK && source == set)
				pressed();
			break;
		default:
			BView::MessageReceived(message);
	}
}


void
ttf_cmap::redraw()
{
}


// What is typed in a field; 0 when that is no number. What 32 bits cannot hold stays too large for a
// code when it is written back.
static uint32
typed(const BTextControl* field)
{
	int64 number = 0;
	read_hex(field, &number);
	return number < 0 ? UINT32_MAX : (uint32)std::min<int64>(number, UINT32_MAX);
}


// A new start code shows its glyph, which is 0 for a code that no map has; the end code stays as it
// is.
void
ttf_cmap::changed(const void* source)
{
	uint32 start = typed(st);
	uint32 glyph = typed(gno);
	if (source == st)
		glyph = start <= last_code ? get_gno((unsigned short)start) : 0;
	show_hex(st, start, 4);
	show_hex(ed, typed(ed), 4);
	show_hex(gno, glyph, 4);
}


// Only the first glyph of a range is checked against the glyph count. A number beyond 16 bits would
// change another code or glyph than the user means.
void
ttf_cmap::pressed()
{
	uint32 start = typed(st);
	uint32 end = typed(ed);
	uint32 glyph = typed(gno);
	if (start > end || end > last_code || (glyph != none && glyph >= owner->numglyphs()))
		return;
	set_chr((unsigned short)start, (unsigned short)end, (unsigned short)glyph);
}
