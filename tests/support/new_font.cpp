// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "support/new_font.h"

#include <bit>
#include <numeric>
#include <set>

#include "tables/unicode_ranges.h"

using codes = std::set<unsigned>;


static codes
chosen_codes(const std::vector<int>& rows)
{
	codes chosen = {0};
	for (int row : rows) {
		for (unsigned code = unicode_ranges[row].first; code <= unicode_ranges[row].last; code++)
			chosen.insert(code);
		if (row == 69)
			chosen.insert(0xFEFF);
	}
	return chosen;
}


std::vector<int>
all_rows()
{
	std::vector<int> rows(71);
	std::iota(rows.begin(), rows.end(), 0);
	return rows;
}


std::unique_ptr<ttf>
new_font(const std::vector<int>& rows)
{
	auto font = std::make_unique<ttf>();
	font->chrs = new chrs_record();
	for (int row : rows)
		font->chrs->ranges[row] = 1;
	for (unsigned code : chosen_codes(rows))
		font->chrs->codes[code] = 1;
	font->chrs->count = (uint32)chosen_codes(rows).size();
	font->chrs->glyphs = font->chrs->count;
	font->init();
	return font;
}


static void
add16(octets& to, unsigned value)
{
	to.push_back(uint8_t(value >> 8));
	to.push_back(uint8_t(value));
}


struct segment {
	unsigned first;
	unsigned last;
	unsigned delta;
};


// The mapped codes, glyphs in their order from 1 on, as unbroken runs; and the segment that ends
// them.
static std::vector<segment>
segments_of(const codes& chosen)
{
	std::vector<segment> segments;
	unsigned glyph = 0;
	for (unsigned code : chosen) {
		bool mapped = code != 0 && code != 0xFFFF;
		if (mapped && (segments.empty() || segments.back().last + 1 != code))
			segments.push_back({code, code, glyph - code});
		else if (mapped)
			segments.back().last = code;
		glyph++;
	}
	segments.push_back({0xFFFF, 0xFFFF, 1});
	return segments;
}


static octets
cmap_of(const codes& chosen)
{
	const std::vector<segment> segments = segments_of(chosen);
	const unsigned count = (unsigned)segments.size();
	const unsigned range = std::bit_ceil(count);
	octets table = hex("0000 0001 0003 0001 0000000c 0004");
	add16(table, 8 * count + 16);
	add16(table, 0);
	add16(table, 2 * count);
	add16(table, range);
	add16(table, (unsigned)std::countr_zero(range) - 1);
	add16(table, 2 * count - range);
	for (const segment& each : segments)
		add16(table, each.last);
	add16(table, 0);
	for (const segment& each : segments)
		add16(table, each.first);
	for (const segment& each : segments)
		add16(table, each.delta);
	table.resize(table.size() + 2 * count, 0);
	return table;
}


static octets
os2_of(const std::vector<int>& rows)
{
	octets table = hex("0001 0200 01f4 0005 0004 0100 0100 0000 0100 0100 0100 0000 0100 0010 0100"
					   "0000 0200 0509 0000 0000 0000"
					   "00000000 00000000 00000000 00000000 5461726e"
					   "0040 0001 fffe 0200 0000 0000 0200 0000 ffffffff ffffffff");
	// Bits count from the end of a word of four octets.
	for (int row : rows)
		table.at((size_t)(42 + row / 32 * 4 + 3 - row % 32 / 8)) |= uint8_t(1 << row % 8);
	return table;
}


// Fourteen records; the seven texts as ASCII, then as UTF-16.
static constexpr std::string_view names =
	"0000 000e 00ae"
	"0001 0000 0000 0000 000a 0000  0001 0000 0000 0001 0006 000a"
	"0001 0000 0000 0002 0007 0010  0001 0000 0000 0003 0007 0017"
	"0001 0000 0000 0004 000e 001e  0001 0000 0000 0005 0004 002c"
	"0001 0000 0000 0006 000e 0030"
	"0003 0001 0409 0000 0014 003e  0003 0001 0409 0001 000c 0052"
	"0003 0001 0409 0002 000e 005e  0003 0001 0409 0003 000e 006c"
	"0003 0001 0409 0004 001c 007a  0003 0001 0409 0005 0008 0096"
	"0003 0001 0409 0006 001c 009e"
	"286329756e6b6e6f776e 6e6f6e616d65 526567756c6172 756e6b6e6f776e"
	"6e6f6e616d652d726567756c6172 2d2e2d2d 6e6f6e616d652d726567756c6172"
	"0028 0063 0029 0075 006e 006b 006e 006f 0077 006e"
	"006e 006f 006e 0061 006d 0065"
	"0052 0065 0067 0075 006c 0061 0072"
	"0075 006e 006b 006e 006f 0077 006e"
	"006e 006f 006e 0061 006d 0065 002d 0072 0065 0067 0075 006c 0061 0072"
	"002d 002e 002d 002d"
	"006e 006f 006e 0061 006d 0065 002d 0072 0065 0067 0075 006c 0061 0072";


static octets
with_count(std::string_view digits, size_t at, size_t count)
{
	octets table = hex(digits);
	put_be16(table, at, uint16_t(count));
	return table;
}


static octets
hmtx_of(size_t count)
{
	octets table;
	for (size_t i = 0; i < count; i++) {
		add16(table, 512);
		add16(table, 0);
	}
	return table;
}


font_file
expected_font(const std::vector<int>& rows)
{
	const codes chosen = chosen_codes(rows);
	const size_t count = chosen.size();
	return font_file()
		.with("OS/2", os2_of(rows))
		.with("cmap", cmap_of(chosen))
		.with("glyf", octets())
		.with("head",
			"00010000 00000000 00000000 5f0f3cf5 0001 0200"
			"0000000000000000 0000000000000000"
			"0000 0000 01ff 01ff 0000 0006 0001 0001 0000")
		.with("hhea",
			with_count("00010000 0200 0000 0000 0200 0000 0000 0200 0001 0000"
					   "0000 0000 0000 0000 0000 0000 0000",
				34, count))
		.with("hmtx", hmtx_of(count))
		.with("loca", zeros(4 * count + 4))
		.with("maxp",
			with_count("00010000 0000 0000 0000 0000 0000 0001"
					   "0000 0000 0000 0000 0000 0000 0000 0001",
				4, count))
		.with("name", names)
		.with("post",
			"00030000 00140000 0000 0014"
			"00000000 00000000 00000000 00000000 00000000");
}
