// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "font/ttf_loca.h"

#include "font/malloc32.h"
#include "font/ttf.h"


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
