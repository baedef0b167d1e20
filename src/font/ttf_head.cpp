// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "font/ttf_head.h"

// Byte offsets of the fields used here.
enum {
	at_adjustment = 8,
	at_units = 18,
	at_created = 20,
	at_modified = 28,
	at_xmin = 36,
	at_ymin = 38,
	at_xmax = 40,
	at_ymax = 42,
	at_locformat = 50
};


static time_t
local_1904()
{
	struct tm start = {};
	start.tm_mday = 1;
	start.tm_mon = 0;
	start.tm_year = 4;
	start.tm_wday = -1;
	start.tm_isdst = 0;
	return mktime(&start);
}


ttf_head::ttf_head(ttf* font, unsigned char* buffer, unsigned long size)
	: ttf_table(font, 'head', buffer, size),
	  epoch(local_1904())
{
}


void
ttf_head::update()
{
	uint32 now = (uint32)(time(nullptr) - epoch);
	if (u64(at_created) == 0)
		put64(at_created, now);
	put64(at_modified, now);
}


void
ttf_head::setsum(unsigned long s)
{
	// Swapped once here, once by put32: the bytes end up in host order.
	put32(at_adjustment, B_HOST_TO_BENDIAN_INT32(balance - (uint32)s));
}


bool
ttf_head::is32loca() const
{
	return u16(at_locformat) == 1;
}


unsigned short
ttf_head::unitsperem() const
{
	return u16(at_units);
}


BRect
ttf_head::bounds() const
{
	return BRect(s16(at_xmin), s16(at_ymax), s16(at_xmax), s16(at_ymin));
}
