// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Records of glyf into glyphs.
#include "font/cursor.h"
#include "font/ttf.h"
#include "outline/glyf_record.h"
#include "outline/glyph.h"
#include "outline/shape.h"
#include "outline/ttf_glyf.h"
#include <algorithm>
#include <memory>


// The way down to the record at hand, and what is left to spend on it.
struct ttf_glyf::descent {
	std::vector<uint16> path;
	uint32 visits = 0;
};


int
ttf_glyf::decode(unsigned long offset, unsigned long size, glyph* g)
{
	if (size == 0)
		return 0;
	descent way;
	way.path.push_back(g->gid);
	decode_record((uint32)offset, g, way);
	return 0;
}


void
ttf_glyf::decode_record(uint32 offset, glyph* g, descent& way) const
{
	cursor record(all(), offset);
	int contours = record.s16();
	record.skip(record_header - 2);
	if (record.failed())
		g->partial = true;
	else if (contours >= 0)
		decode_simple(record, contours, g);
	else
		decode_composite(record, g, way);
}


// The flags of all points, repeats written out; fewer where the bytes end.
static std::vector<uint8>
read_flags(cursor& record, uint32 count)
{
	std::vector<uint8> flags;
	flags.reserve(count);
	while (flags.size() < count) {
		uint8 flag = record.u8();
		size_t times = flag & flag_repeats ? 1u + record.u8() : 1;
		if (record.failed())
			break;
		flags.insert(flags.end(), std::min(times, count - flags.size()), flag);
	}
	return flags;
}


// The coordinates of one axis, as sums of the steps; fewer where the bytes end.
static std::vector<int32>
read_axis(cursor& record, const std::vector<uint8>& flags, axis a)
{
	std::vector<int32> values(flags.size());
	int32 sum = 0;
	for (size_t i = 0; i < flags.size(); i++) {
		bool same_or_positive = flags[i] & a.same_or_positive;
		if (flags[i] & a.is_byte)
			sum += same_or_positive ? record.u8() : -record.u8();
		else if (!same_or_positive)
			sum += record.s16();
		if (record.failed()) {
			values.resize(i);
			break;
		}
		values[i] = sum;
	}
	return values;
}


void
ttf_glyf::decode_simple(cursor& record, int contours, glyph* g) const
{
	std::vector<uint32> ends(std::min((uint32)contours, record.left() / 2));
	for (uint32& end : ends)
		end = record.u16();
	if (ends.size() < (size_t)contours)
		g->partial = true;
	if (ends.empty())
		return;
	record.skip(record.u16());
	std::vector<uint8> flags = read_flags(record, ends.back() + 1);
	std::vector<int32> x = read_axis(record, flags, x_axis);
	std::vector<int32> y = read_axis(record, flags, y_axis);
	if (record.failed())
		g->partial = true;

	uint32 start = 0;
	uint32 known = (uint32)std::min(x.size(), y.size());
	for (uint32 end : ends) {
		uint32 stop = std::min(end + 1, known);
		uint32 count = stop > start ? stop - start : 0;
		uint32 kept = std::min(count, (uint32)shape::max_points);
		if (end + 1 > known || end < start || kept < count)
			g->partial = true;
		if (kept > 0 && g->room() > 0) {
			shape* contour = new shape((int)kept);
			for (uint32 i = 0; i < kept; i++) {
				contour->pts[i] = BPoint((float)x[start + i], (float)y[start + i]);
				contour->onoff[i] = (char)(1 - (flags[start + i] & on_curve));
			}
			contour->ctrlp2form();
			g->add_shape(contour);
		} else if (kept > 0)
			g->partial = true;
		start = end + 1;
	}
}


// The offsets and the matrix that one component record gives, as far as its flags say.
struct placement {
	int16 dx, dy;
	uint16 a, b, c, d;
};


static placement
read_placement(cursor& record, uint16 flags)
{
	placement p = {0, 0, one_2_14, 0, 0, one_2_14};
	bool words = flags & args_are_words;
	p.dx = words ? record.s16() : record.s8();
	p.dy = words ? record.s16() : record.s8();
	if (flags & has_scale) {
		p.a = p.d = record.u16();
	} else if (flags & has_x_and_y_scale) {
		p.a = record.u16();
		p.d = record.u16();
	} else if (flags & has_two_by_two) {
		p.a = record.u16();
		p.b = record.u16();
		p.c = record.u16();
		p.d = record.u16();
	}
	return p;
}


// Instructions after the last component are left alone: nothing is read behind them.
void
ttf_glyf::decode_composite(cursor& record, glyph* g, descent& way) const
{
	uint16 flags = more_components;
	while (flags & more_components) {
		flags = record.u16();
		uint16 index = record.u16();
		placement p = read_placement(record, flags);
		if (record.failed() || ++way.visits > most_visits) {
			g->partial = true;
			break;
		}
		if (g->num_compo == glyph::max_compos) {
			g->partial = true;
			continue;
		}
		glyph* part = decode_component(index, g->depth + 1, way);
		if (part == nullptr) {
			g->partial = true;
			continue;
		}
		g->partial |= part->partial;
		g->add_compo(part, p.dx, p.dy, p.a, p.b, p.c, p.d);
	}
	g->create_composhape();
}


// The component's own glyph, empty for an empty record. Null for one that has no place, that
// contains itself, or that lies too deep.
glyph*
ttf_glyf::decode_component(uint16 index, int depth, descent& way) const
{
	uint32 offset;
	uint32 size;
	bool repeated = std::find(way.path.begin(), way.path.end(), index) != way.path.end();
	if (repeated || depth > deepest || !owner->find_glyph(index, &offset, &size))
		return nullptr;
	auto part = std::make_unique<glyph>(index);
	part->depth = depth;
	if (size != 0) {
		way.path.push_back(index);
		decode_record(offset, part.get(), way);
		way.path.pop_back();
	}
	return part.release();
}
