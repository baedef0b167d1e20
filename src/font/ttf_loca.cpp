// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "font/ttf_loca.h"

#include "font/malloc32.h"
#include "font/ttf.h"
#include <algorithm>


ttf_loca::ttf_loca(ttf* font, unsigned char* buffer, unsigned long size)
	: ttf_table(font, 'loca', buffer, size)
{
	if (data == nullptr)
		create_default();
}


void
ttf_loca::create_default()
{
	delete[] data;
	length = 4 * owner->newglyphs() + 4;
	data = malloc32((int)length);
}


// An entry of all ones ends the run, and so does a piece of an entry.
template <class word, word (*get)(const uint8*), void (*put)(uint8*, word)>
static void
shift(uint8* at, const uint8* end, uint32 delta)
{
	const word none = (word)~0u;
	for (; end - at >= (ptrdiff_t)sizeof(word) && get(at) != none; at += sizeof(word))
		put(at, (word)(get(at) + delta));
}


int
ttf_loca::chg_length(bool is32, int index, unsigned long size)
{
	if (!holds(is32, index))
		return -1;
	uint32 later = (uint32)index + 1;
	// In the entries' unit: with short offsets an odd length loses its last byte. Without a later
	// entry there is nothing to move.
	uint32 unit = is32 ? 1 : 2;
	uint32 old = entry(is32, later) - entry(is32, (uint32)index);
	uint32 delta = (uint32)size / unit - old;
	// In 64 bits: the longest table ends where 32 bits do.
	if (is32)
		shift<uint32, get32, ::put32>(data + (uint64)4 * later, data + length, delta);
	else
		shift<uint16, get16, ::put16>(data + (uint64)2 * later, data + length, delta);
	return 0;
}


bool
ttf_loca::outgrown_by(int index, unsigned long size, uint32 glyphs, uint32 glyf) const
{
	const uint32 later = (uint32)index + 1;
	const uint32 end = std::min(glyphs + 1, length / 2);
	if (later >= end)
		return false;
	const int64 words = entry(false, later) - entry(false, (uint32)index);
	const int64 delta = (int64)(size / 2) - words;
	for (uint32 i = later; delta != 0 && i < end; i++) {
		const uint16 word = get16(data + (uint64)2 * i);
		if (is_none(word, glyf))
			return false;
		if (word == 0xFFFF || word + delta > 0xFFFF)
			return true;
	}
	return false;
}


bool
ttf_loca::make_long(uint32 glyf)
{
	// A piece of an entry counts as one of 0, as it is read.
	const uint64 count = ((uint64)length + 1) / 2;
	if (4 * count > UINT32_MAX)
		return false;
	unsigned char* fresh = padded32((uint32)(4 * count));
	if (fresh == nullptr)
		return false;
	for (uint64 i = 0; i < count; i++) {
		const uint16 word = u16((uint32)(2 * i));
		::put32(fresh + 4 * i, is_none(word, glyf) ? UINT32_MAX : 2u * word);
	}
	delete[] data;
	data = fresh;
	length = (uint32)(4 * count);
	return true;
}
