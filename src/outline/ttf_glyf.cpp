// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "outline/ttf_glyf.h"

#include "editor/glyfeditview.h"
#include "editor/glyftoolview.h"
#include "font/malloc32.h"
#include "font/ttf.h"
#include "outline/glyf_record.h"
#include <algorithm>
#include <cstring>


ttf_glyf::ttf_glyf(ttf* font, unsigned char* buffer, unsigned long size)
	: ttf_table(font, 'glyf', buffer, size),
	  tools(new glyftoolview(BRect(0, 0, 49, 511), this)),
	  edit(new glyfeditview(BRect(50, 0, 561, 511), this))
{
	AddChild(tools);
	AddChild(edit);
	if (data == nullptr)
		create_default();
}


void
ttf_glyf::create_default()
{
	delete[] data;
	length = 0;
	data = malloc32(0);
}


int
ttf_glyf::get_rect(unsigned short index, short* xmin, short* ymin, short* xmax, short* ymax)
{
	uint32 offset;
	uint32 size;
	if (!owner->find_glyph(index, &offset, &size) || size == 0) {
		*xmin = *ymin = 32767;
		*xmax = *ymax = -32768;
		return 0;
	}
	*xmin = s16(offset + at_xmin);
	*ymin = s16(offset + at_ymin);
	*xmax = s16(offset + at_xmax);
	*ymax = s16(offset + at_ymax);
	return 0;
}


bool
ttf_glyf::replace(uint32 offset, uint32 size, const std::vector<uint8>& record)
{
	if (offset > length || size > length - offset)
		return false;
	uint32 tail = length - offset - size;
	uint64 grown = (uint64)offset + record.size() + tail;
	unsigned char* fresh = grown <= UINT32_MAX ? padded32((uint32)grown) : nullptr;
	if (fresh == nullptr)
		return false;
	memcpy(fresh, data, offset);
	std::copy(record.begin(), record.end(), fresh + offset);
	memcpy(fresh + offset + record.size(), data + offset + size, tail);
	delete[] data;
	data = fresh;
	length = (uint32)grown;
	return true;
}
