// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Glyphs into records of glyf.
#include "font/cursor.h"
#include "font/truncate.h"
#include "outline/glyf_record.h"
#include "outline/glyph.h"
#include "outline/shape.h"
#include "outline/ttf_glyf.h"
#include <algorithm>

typedef std::vector<uint8> octets;


static void
append16(octets& to, uint16 value)
{
	size_t at = to.size();
	to.resize(at + 2);
	put16(to.data() + at, value);
}


// The header's words, in its order.
struct record_box {
	int16 xmin = 32767;
	int16 ymin = 32767;
	int16 xmax = -32768;
	int16 ymax = -32768;
};


static void
write_header(octets& record, int16 contours, const record_box& box)
{
	put16(record.data() + at_contours, (uint16)contours);
	put16(record.data() + at_xmin, (uint16)box.xmin);
	put16(record.data() + at_ymin, (uint16)box.ymin);
	put16(record.data() + at_xmax, (uint16)box.xmax);
	put16(record.data() + at_ymax, (uint16)box.ymax);
}


// Appends one step in its shortest form and gives the flag bits that tell which that is. A step of
// exactly -256 is not short.
static uint8
write_step(octets& to, int32 step, axis a)
{
	if (step == 0)
		return a.same_or_positive;
	if (step > -256 && step < 0) {
		to.push_back((uint8)-step);
		return a.is_byte;
	}
	if (step > 0 && step <= 255) {
		to.push_back((uint8)step);
		return a.is_byte | a.same_or_positive;
	}
	append16(to, (uint16)step);
	return 0;
}


// The points of all contours: flags, then x, then y, joined at the end.
struct point_writer {
	octets flags, xs, ys;
	record_box box;
	// As it is stored, not truncated: steps mix a truncated point with an untruncated one before
	// it, and what was saved so is read so.
	BPoint previous = BPoint(0, 0);

	void add(BPoint point, bool on)
	{
		int16 x = toward_zero<int16>(point.x);
		int16 y = toward_zero<int16>(point.y);
		box.xmin = std::min(box.xmin, x);
		box.ymin = std::min(box.ymin, y);
		box.xmax = std::max(box.xmax, x);
		box.ymax = std::max(box.ymax, y);
		uint8 flag = on ? on_curve : 0;
		flag |= write_step(xs, toward_zero<int32>((float)x - previous.x), x_axis);
		flag |= write_step(ys, toward_zero<int32>((float)y - previous.y), y_axis);
		flags.push_back(flag);
		previous = point;
	}
};


static octets
simple_record(const glyph& g, const octets& instructions)
{
	octets record(record_header);
	uint16 end = 0xFFFF;
	point_writer points;
	for (int32 i = 0; i < g.num_shape; i++) {
		const shape& contour = *g.shapes[i];
		end += (uint16)contour.num;
		append16(record, end);
		for (int32 k = 0; k < contour.num; k++)
			points.add(contour.pts[k], (contour.onoff[k] & 1) == 0);
	}
	append16(record, (uint16)instructions.size());
	const octets* const pieces[] = {&instructions, &points.flags, &points.xs, &points.ys};
	for (const octets* piece : pieces)
		record.insert(record.end(), piece->begin(), piece->end());
	write_header(record, (int16)g.num_shape, points.box);
	return record;
}


// A matrix in the fewest values that hold it.
static uint16
matrix_flags(const glyph& g, int k)
{
	if (g.compo_b[k] != 0 || g.compo_c[k] != 0)
		return has_two_by_two;
	if (g.compo_a[k] != g.compo_d[k])
		return has_x_and_y_scale;
	return g.compo_d[k] != one_2_14 ? has_scale : 0;
}


static void
write_matrix(octets& record, const glyph& g, int k, uint16 flags)
{
	if (flags & (has_scale | has_x_and_y_scale | has_two_by_two))
		append16(record, g.compo_a[k]);
	if (flags & has_two_by_two) {
		append16(record, g.compo_b[k]);
		append16(record, g.compo_c[k]);
	}
	if (flags & (has_x_and_y_scale | has_two_by_two))
		append16(record, g.compo_d[k]);
}


static bool
fits_byte(int16 value)
{
	return value >= -128 && value <= 127;
}


// No flag beyond these is ever written: the decoder ignores the others.
static void
write_component(octets& record, const glyph& g, int k)
{
	int16 dx = g.compo_dx[k];
	int16 dy = g.compo_dy[k];
	uint16 flags = matrix_flags(g, k);
	if (!fits_byte(dx) || !fits_byte(dy))
		flags |= args_are_words;
	if (k + 1 < g.num_compo)
		flags |= more_components;
	append16(record, flags);
	append16(record, g.compo[k]->gid);
	if (flags & args_are_words) {
		append16(record, (uint16)dx);
		append16(record, (uint16)dy);
	} else {
		record.push_back((uint8)dx);
		record.push_back((uint8)dy);
	}
	write_matrix(record, g, k, flags);
}


static octets
composite_record(const glyph& g)
{
	octets record(record_header);
	BRect all = g.bounds();
	record_box box = {toward_zero<int16>(all.left), toward_zero<int16>(all.top),
		toward_zero<int16>(all.right), toward_zero<int16>(all.bottom)};
	for (int k = 0; k < g.num_compo; k++)
		write_component(record, g, k);
	write_header(record, -1, box);
	return record;
}


int
ttf_glyf::encode(const glyph* g, unsigned long* offset, unsigned long* size)
{
	octets record = record_of(g, (uint32)*offset, (uint32)*size);
	if (replace((uint32)*offset, (uint32)*size, record))
		*size = record.size();
	return 0;
}


octets
ttf_glyf::record_of(const glyph* g, uint32 offset, uint32 size) const
{
	octets record =
		g->num_compo > 0 ? composite_record(*g) : simple_record(*g, instructions(offset, size));
	// Records keep even lengths.
	if (record.size() % 2 != 0)
		record.push_back(0);
	return record;
}


// The instructions of a simple record, as far as the table has them.
octets
ttf_glyf::instructions(uint32 offset, unsigned long size) const
{
	cursor record(all(), offset);
	int contours = record.s16();
	if (size == 0 || contours < 0)
		return octets();
	record.skip(record_header - 2 + 2 * (uint32)contours);
	uint32 count = record.u16();
	if (record.failed())
		return octets();
	count = std::min(count, record.left());
	return octets(record.rest(), record.rest() + count);
}
