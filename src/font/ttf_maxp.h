// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_FONT_TTF_MAXP_H
#define KERNIX_FONT_TTF_MAXP_H

#include "font/ttf_table.h"

class BTextControl;

// The maximum profile, maxp (32 bytes): the glyph count, which bounds every glyph index, and the
// limits that a rasteriser reserves for. Fields that lie outside a short table read as 0 and are
// not written.
class ttf_maxp : public ttf_table {
public:
	// As for every table: takes the buffer over; none means the default content.
	ttf_maxp(ttf* font, unsigned char* buffer, unsigned long size);

	// The content of a new font's table: its glyph count, one zone, a component depth of 1.
	void create_default();

	void AttachedToWindow() override;
	// Everything black, then the listing.
	void Draw(BRect area) override;
	void MessageReceived(BMessage* message) override;
	// Lists all fields as they stand in the bytes.
	void redraw();

	// Counts the six limits that follow from the outlines afresh. Called when a save begins.
	void update();

	// The number of glyphs in the font.
	unsigned short numglyphs() const;

private:
	void edit();

	BTextControl* maxstackelements; // the panel's child; null until it is attached
};

#endif
