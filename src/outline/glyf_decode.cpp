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
	uint32 visits = most_visits;
	uint32 reading = most_read;
	uint32 memory = most_held;
	// Contours that the component of the outermost glyph can still take from those within it.
	uint32 useful = glyph::max_shapes;

	// One of the amounts above.
	using allowance = uint32 descent::*;
	bool spend(allowance what, uint32 amount);
	// The glyph that was asked for has slots of its own, which cost nothing here.
	bool outermost() const { return path.size() == 1; }
	bool holds_contour();
	bool holds_flattened(const glyph& g);
};


// Takes an amount from what is left. When that is less nothing is read any more, so that what has
// been read can still be shown: false.
bool
ttf_glyf::descent::spend(allowance what, uint32 amount)
{
	if (amount > this->*what) {
		visits = 0;
		return false;
	}
	this->*what -= amount;
	return true;
}


bool
ttf_glyf::descent::holds_contour()
{
	if (outermost())
		return true;
	if (useful == 0)
		return false;
	useful--;
	return spend(&descent::memory, sizeof(shape));
}


// What create_composhape() is going to make.
bool
ttf_glyf::descent::holds_flattened(const glyph& g)
{
	if (outermost())
		return true;
	int32 contours = g.num_compo;
	for (int32 k = 0; k < g.num_compo; k++)
		contours += g.compo[k]->num_shape;
	const int32 made = std::min<int32>(contours, glyph::max_shapes);
	return spend(&descent::memory, (uint32)made * sizeof(shape));
}


int
ttf_glyf::decode(unsigned long offset, unsigned long size, glyph* g)
{
	if (size == 0)
		return 0;
	descent way;
	way.path.push_back(g->gid);
	decode_record((uint32)offset, (uint32)size, g, way);
	return 0;
}


void
ttf_glyf::decode_record(uint32 offset, uint32 size, glyph* g, descent& way) const
{
	cursor record(all(), offset);
	int contours = record.s16();
	record.skip(record_header - 2);
	if (record.failed())
		g->partial = true;
	else if (contours >= 0)
		decode_simple(record, contours, (uint64)offset + size, g, way);
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


// What a step makes of the next two bytes, as factors: which form follows which is beyond any
// processor's guess, and a table is quicker than a wrong one.
struct step_form {
	int32 of_byte;
	int32 of_word;
	uint32 size;
};
// By whether it is a byte, then whether it is positive or none at all.
static constexpr step_form step_forms[4] = {{0, 1, 2}, {0, 0, 0}, {-1, 0, 1}, {1, 0, 1}};


using coordinate_of = float BPoint::*;


// The coordinates of one axis, as sums of the steps, into places that are there; gives how many
// could be read before the bytes end.
static uint32
read_axis(cursor& record, const std::vector<uint8>& flags, axis a, coordinate_of coordinate,
	BPoint* places)
{
	if (record.failed())
		return 0;
	const uint8* at = record.rest();
	const uint8* const end = at + record.left();
	uint32 count = 0;
	int32 sum = 0;
	for (uint8 flag : flags) {
		uint32 kind = 2u * ((flag & a.is_byte) != 0) + ((flag & a.same_or_positive) != 0);
		const step_form& form = step_forms[kind];
		ptrdiff_t left = end - at;
		if (left < (ptrdiff_t)form.size)
			break;
		uint16 next = left >= 2 ? get16(at) : left == 1 ? (uint16)(at[0] << 8) : 0;
		sum += (next >> 8) * form.of_byte + (int16)next * form.of_word;
		at += form.size;
		places[count++].*coordinate = (float)sum;
	}
	// One more than there are tells everybody that they have run out.
	record.skip(count < flags.size() ? record.left() + 1 : (uint32)(at - record.rest()));
	return count;
}


// A contour of points one after the other; the caller owns it.
static shape*
contour_of(const BPoint* places, const uint8* flags, uint32 count)
{
	shape* contour = new shape((int)count);
	std::copy_n(places, count, contour->pts);
	for (uint32 i = 0; i < count; i++)
		contour->onoff[i] = (char)(1 - (flags[i] & on_curve));
	contour->ctrlp2form();
	return contour;
}


// The number from which encoding counts points on, before the first one: the end of a contour
// without points when there has been none yet.
static const uint16 no_point = 0xFFFF;


// How many points there are: one more than the number of the last. That is no_point only where the
// record ends before any, but for a byte of padding; else it is the last of 65,536.
static uint32
count_points(const cursor& record, uint16 last, uint64 stop)
{
	return last == no_point && record.place() + 1u >= stop ? 0 : last + 1u;
}


void
ttf_glyf::decode_simple(cursor& record, int contours, uint64 stop, glyph* g, descent& way) const
{
	uint32 stated = std::min((uint32)contours, record.left() / 2);
	g->partial |= stated < (uint32)contours;
	if (stated == 0)
		return;
	cursor ends = record;
	record.skip(2 * (stated - 1));
	uint16 last = record.u16();
	record.skip(record.u16());
	uint32 count = count_points(record, last, stop);
	if (!way.spend(&descent::reading, count + stated)) {
		g->partial = true;
		return;
	}
	std::vector<uint8> flags = read_flags(record, count);
	std::vector<BPoint> places(flags.size());
	uint32 xs = read_axis(record, flags, x_axis, &BPoint::x, places.data());
	uint32 ys = read_axis(record, flags, y_axis, &BPoint::y, places.data());
	g->partial |= record.failed();

	uint32 start = 0;
	uint32 known = std::min(xs, ys);
	for (; stated > 0; stated--) {
		uint16 number = ends.u16();
		uint32 end = number == no_point && start == 0 && count <= no_point ? 0 : number + 1u;
		uint32 reached = std::min(end, known);
		uint32 there = reached > start ? reached - start : 0;
		uint32 kept = std::min(there, (uint32)shape::max_points);
		bool whole = end >= start && end <= known;
		if (!whole || kept < there)
			g->partial = true;
		// A contour of no points is one too; one that has lost them all is not.
		if (kept > 0 || (whole && end == start)) {
			if (g->room() == 0 || !way.holds_contour()) {
				g->partial = true;
				return;
			}
			g->add_shape(contour_of(places.data() + start, flags.data() + start, kept));
		}
		start = end;
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
		// More than is of use to the component of the outermost glyph is not read either.
		if (record.failed() || way.useful == 0 || !way.spend(&descent::visits, 1)) {
			g->partial = true;
			break;
		}
		if (g->num_compo == glyph::max_compos) {
			g->partial = true;
			continue;
		}
		glyph* part = decode_component(index, g->depth + 1, way);
		if (way.outermost())
			way.useful = glyph::max_shapes;
		if (part == nullptr) {
			g->partial = true;
			continue;
		}
		g->add_compo(part, p.dx, p.dy, p.a, p.b, p.c, p.d);
	}
	if (way.holds_flattened(*g))
		g->create_composhape();
	else
		g->partial = true;
}


// The component's own glyph, empty for an empty record. Null for one that has no place, that
// contains itself, that lies too deep, or for which there is no memory left.
glyph*
ttf_glyf::decode_component(uint16 index, int depth, descent& way) const
{
	uint32 offset;
	uint32 size;
	bool repeated = std::find(way.path.begin(), way.path.end(), index) != way.path.end();
	if (repeated || depth > deepest || !owner->find_glyph(index, &offset, &size)
		|| !way.spend(&descent::memory, sizeof(glyph)))
		return nullptr;
	auto part = std::make_unique<glyph>(index);
	part->depth = depth;
	if (size != 0) {
		way.path.push_back(index);
		decode_record(offset, size, part.get(), way);
		way.path.pop_back();
	}
	return part.release();
}
