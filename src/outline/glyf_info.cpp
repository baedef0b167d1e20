// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// What records of glyf tell without being decoded: statistics, and which glyphs they name.
#include "font/cursor.h"
#include "font/glyph_places.h"
#include "outline/glyf_record.h"
#include "outline/ttf_glyf.h"
#include <algorithm>
#include <utility>


// Stands in the depth of what has not been worked out: no glyph lies that deep.
static const uint16 not_known = 0xFFFF;


// What one call has found out, and the way down to the record at hand.
struct ttf_glyf::survey {
	explicit survey(const ttf& font) : places(font) {}

	const glyph_places places;
	std::vector<glyph_info> known; // by glyph; empty when nothing is kept
	std::vector<uint16> path;
	// Component records that may still be visited for the glyph at hand, and for all of them.
	uint32 visits = most_visits;
	uint64 left = most_visits;
};


int
ttf_glyf::get_info(unsigned short index, unsigned short* depth, unsigned short* components,
	unsigned short* contours, unsigned short* points)
{
	survey notes(*owner);
	glyph_info info = info_of(index, notes);
	*depth = info.depth;
	*components = info.components;
	*contours = info.contours;
	*points = info.points;
	return 0;
}


std::vector<glyph_info>
ttf_glyf::all_info(uint32 count) const
{
	survey notes(*owner);
	notes.known.resize(count, {not_known, 0, 0, 0});
	// More component records than the table can hold, unless glyphs share them: a font in which
	// all do would ask for thousands of millions.
	notes.left = (uint64)length + most_visits;
	for (uint32 i = 0; i < count; i++) {
		notes.visits = most_visits;
		info_of((uint16)i, notes);
	}
	return std::move(notes.known);
}


// Empty for what has no place, contains itself or lies too deep.
glyph_info
ttf_glyf::info_of(uint16 index, survey& notes) const
{
	glyph_info info = {};
	bool kept = index < notes.known.size();
	if (kept && notes.known[index].depth != not_known)
		return notes.known[index];
	if ((int)notes.path.size() > deepest)
		return info;
	uint32 offset;
	uint32 size;
	if (notes.places.find(index, &offset, &size) && size != 0)
		info = record_info(index, offset, notes);
	if (kept)
		notes.known[index] = info;
	return info;
}


glyph_info
ttf_glyf::record_info(uint16 index, uint32 offset, survey& notes) const
{
	cursor record(all(), offset);
	int contours = record.s16();
	if (contours < 0) {
		if (std::find(notes.path.begin(), notes.path.end(), index) != notes.path.end())
			return {};
		record.skip(record_header - 2);
		notes.path.push_back(index);
		glyph_info info = composite_info(record, notes);
		notes.path.pop_back();
		return info;
	}
	// The last point's number plus one. Without contours that word is yMax: not a special case.
	record.skip(at_ymax - 2 + 2 * (uint32)contours);
	uint16 last = record.u16();
	return {0, 0, (uint16)contours, (uint16)(record.failed() ? 0 : last + 1)};
}


static uint32
placement_size(uint16 flags)
{
	uint32 size = flags & args_are_words ? 4 : 2;
	if (flags & has_scale)
		return size + 2;
	if (flags & has_x_and_y_scale)
		return size + 4;
	return flags & has_two_by_two ? size + 8 : size;
}


// The glyphs that a composite names, one component record after the other.
class component_names {
public:
	// A cursor behind the record's header; borrowed.
	explicit component_names(cursor& record) : fRecord(record) {}

	// False behind the last one, and where the bytes end.
	bool next(uint16* index)
	{
		if (!(fFlags & more_components))
			return false;
		fFlags = fRecord.u16();
		*index = fRecord.u16();
		fRecord.skip(placement_size(fFlags));
		return !fRecord.failed();
	}

private:
	cursor& fRecord;
	uint16 fFlags = more_components;
};


glyph_info
ttf_glyf::composite_info(cursor& record, survey& notes) const
{
	glyph_info sum = {};
	component_names names(record);
	uint16 index;
	while (names.next(&index) && notes.visits > 0 && notes.left > 0) {
		notes.visits--;
		notes.left--;
		glyph_info part = info_of(index, notes);
		sum.components++;
		sum.contours += part.contours;
		sum.points += part.points;
		sum.depth = std::max(sum.depth, part.depth);
	}
	sum.depth++;
	return sum;
}


// Each glyph is looked into once, so that loops end; as in a recount, no more records than a table
// of its length can hold.
bool
ttf_glyf::contains(uint16 index, uint16 sought) const
{
	const glyph_places places(*owner);
	std::vector<bool> seen(65536);
	std::vector<uint16> open = {index};
	seen[index] = true;
	uint64 left = (uint64)length + most_visits;
	while (!open.empty()) {
		uint32 offset;
		uint32 size;
		const uint16 next = open.back();
		open.pop_back();
		if (next == sought)
			return true;
		if (!places.find(next, &offset, &size) || size == 0)
			continue;
		cursor record(all(), offset);
		if (record.s16() >= 0)
			continue;
		record.skip(record_header - 2);
		component_names names(record);
		for (uint16 part; names.next(&part);) {
			if (left-- == 0)
				return true;
			if (!seen[part])
				open.push_back(part);
			seen[part] = true;
		}
	}
	return false;
}
