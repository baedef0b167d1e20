// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "support/recount.h"

#include <algorithm>
#include <vector>

namespace {

struct counts {
	uint16_t depth = 0;
	uint16_t components = 0;
	uint16_t contours = 0;
	uint16_t points = 0;
};

// The tables, and the glyphs that are being counted just now, the outermost first.
struct font_tables {
	const octets& glyf;
	const octets& loca;
	bool is_long;
	uint16_t glyphs;
	std::vector<uint16_t> open = {};

	counts glyph(uint16_t index);
	counts composite(uint16_t index, size_t at);
};


bool
inside(const octets& table, size_t at, size_t count)
{
	return at + count <= table.size();
}


counts
font_tables::glyph(uint16_t index)
{
	size_t entry = is_long ? 4 : 2;
	bool repeated = std::count(open.begin(), open.end(), index) > 0;
	if (index >= glyphs || repeated || open.size() > 32 || index * entry >= loca.size())
		return {};
	auto place = [&](size_t i) -> uint32_t {
		if (i * entry >= loca.size())
			return uint32_t(loca.size());
		if (!inside(loca, i * entry, entry))
			return 0;
		return is_long ? be32(loca, i * 4) : 2u * be16(loca, i * 2);
	};
	size_t start = place(index);
	if (start == place(index + 1u) || !inside(glyf, start, 2))
		return {};
	auto contours = int16_t(be16(glyf, start));
	if (contours < 0)
		return composite(index, start + 10);
	counts simple;
	simple.contours = uint16_t(contours);
	size_t last = start + 8 + 2 * size_t(contours);
	simple.points = inside(glyf, last, 2) ? uint16_t(be16(glyf, last) + 1) : 0;
	return simple;
}


counts
font_tables::composite(uint16_t index, size_t at)
{
	counts sum;
	open.push_back(index);
	for (bool more = true; more && inside(glyf, at, 4);) {
		uint16_t flags = be16(glyf, at);
		size_t size = 4 + (flags & 0x01 ? 4 : 2);
		size += flags & 0x08 ? 2 : flags & 0x40 ? 4 : flags & 0x80 ? 8 : 0;
		if (!inside(glyf, at, size))
			break;
		counts part = glyph(be16(glyf, at + 2));
		sum.components++;
		sum.contours = uint16_t(sum.contours + part.contours);
		sum.points = uint16_t(sum.points + part.points);
		sum.depth = std::max(sum.depth, part.depth);
		at += size;
		more = flags & 0x20;
	}
	open.pop_back();
	sum.depth++;
	return sum;
}

}


octets
recounted(const octets& maxp, const octets& glyf, const octets& loca, const octets& head)
{
	uint16_t glyphs = inside(maxp, 4, 2) ? be16(maxp, 4) : 0;
	bool is_long = inside(head, 50, 2) && be16(head, 50) == 1;
	font_tables tables{glyf, loca, is_long, glyphs};
	counts simple, composite;
	for (uint32_t i = 0; i < glyphs && !head.empty(); i++) {
		counts one = tables.glyph(uint16_t(i));
		counts& most = one.depth > 0 ? composite : simple;
		most.depth = std::max(most.depth, one.depth);
		most.components = std::max(most.components, one.components);
		most.contours = std::max(most.contours, one.contours);
		most.points = std::max(most.points, one.points);
	}
	octets result = maxp;
	const uint16_t limits[] = {
		simple.points, simple.contours, composite.points, composite.contours};
	for (size_t i = 0; i < 4; i++) {
		if (inside(maxp, 6 + 2 * i, 2))
			put_be16(result, 6 + 2 * i, limits[i]);
	}
	if (inside(maxp, 28, 2))
		put_be16(result, 28, composite.components);
	if (inside(maxp, 30, 2))
		put_be16(result, 30, composite.depth);
	return result;
}
