// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_FONT_TTF_HEAD_H
#define KERNIX_FONT_TTF_HEAD_H

#include "font/ttf_table.h"
#include <ctime>

// The font header, head (54 bytes): the font's global numbers, its design box, its dates and the
// adjustment that balances the sum of the whole file. Fields that lie outside a short table read
// as 0 and are not written.
class ttf_head : public ttf_table {
public:
	// What the file's sum and the adjustment add up to.
	static constexpr uint32 balance = 0xB1B0AFBA;

	// As for every table; computes the origin of the dates, local time without daylight saving.
	ttf_head(ttf* font, unsigned char* buffer, unsigned long size);

	// Stamps the modified date with now, and the created date too when it is zero. Seconds since
	// 1904-01-01 in the low 32 bits. Called when a save begins.
	void update();

	// Stores balance - s, modulo 2^32, as the adjustment: in host order, unlike every other
	// field.
	void setsum(unsigned long s);

	// Whether loca holds 32-bit offsets: the format is 1; every other value means 16-bit ones.
	bool is32loca() const;

	unsigned short unitsperem() const;

	// The design box in font units, upside down on purpose: left xMin, top yMax, right xMax, bottom
	// yMin, so that top - bottom is the height.
	BRect bounds() const;

private:
	time_t epoch;
};

#endif
