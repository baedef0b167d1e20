// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "font/ttf_table.h"


ttf_table::ttf_table(ttf* font, unsigned long number, unsigned char* buffer, unsigned long size)
	: BView(BRect(0, 0, 561, 511), "table", B_FOLLOW_ALL_SIDES, B_WILL_DRAW),
	  owner(font),
	  tag((uint32)number),
	  data(buffer),
	  length((uint32)size)
{
}


ttf_table::~ttf_table()
{
	delete[] data;
}


void
ttf_table::show(bool visible)
{
	// Only this view's own level is asked for: under a hidden ancestor the plain question is
	// answered the same for ever.
	if (visible) {
		while (IsHidden(this))
			Show();
	} else {
		while (!IsHidden(this))
			Hide();
	}
}


unsigned long
ttf_table::sumB32() const
{
	return sum_words(data, length / 4);
}


void
ttf_table::put16(uint32 offset, uint16 value)
{
	if (all().has(offset, sizeof value))
		::put16(data + offset, value);
}


void
ttf_table::put32(uint32 offset, uint32 value)
{
	if (all().has(offset, sizeof value))
		::put32(data + offset, value);
}


void
ttf_table::put64(uint32 offset, uint64 value)
{
	if (all().has(offset, sizeof value))
		::put64(data + offset, value);
}
