// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_FONT_TTF_HEAD_H
#define KERNIX_FONT_TTF_HEAD_H

#include "font/ttf_table.h"
#include <ctime>
#include <string>

class BTextControl;

// The font header, head (54 bytes): the font's global numbers, its design box, its dates and the
// adjustment that balances the sum of the whole file. Fields that lie outside a short table read
// as 0 and are not written.
class ttf_head : public ttf_table {
public:
	// What the file's sum and the adjustment add up to.
	static constexpr uint32 balance = 0xB1B0AFBA;

	// As for every table; computes the origin of the dates, local time without daylight saving.
	// No buffer means the default content.
	ttf_head(ttf* font, unsigned char* buffer, unsigned long size);

	// The content of a new font's table: 512 units to the em, a box of 512 x 512, long offsets.
	void create_default();

	void AttachedToWindow() override;
	// Everything black, then the listing. The panel stays black: its light colour is that of its
	// controls.
	void Draw(BRect area) override;
	void MessageReceived(BMessage* message) override;
	// Lists all fields as they stand in the bytes.
	void redraw();

	// Stamps the modified date with now, and the created date too when it is zero. Seconds since
	// 1904-01-01 in the low 32 bits. Called when a save begins.
	void update();

	// Stores balance - s, modulo 2^32, as the adjustment: in host order, unlike every other
	// field.
	void setsum(unsigned long s);

	// Whether loca holds 32-bit offsets: the format is 1; every other value means 16-bit ones.
	bool is32loca() const;
	// Whether the table reaches as far as the format; only then can it be made 1.
	bool holds_locformat() const;
	void set32loca();

	unsigned short unitsperem() const;

	// The design box in font units, upside down on purpose: left xMin, top yMax, right xMax, bottom
	// yMin, so that top - bottom is the height.
	BRect bounds() const;

private:
	std::string date_text(uint64 seconds) const;
	void edit();

	BTextControl* fontrevision; // the panel's child; null until it is attached
	time_t epoch;
};

#endif
