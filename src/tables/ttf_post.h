// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_TABLES_TTF_POST_H
#define KERNIX_TABLES_TTF_POST_H

#include "font/ttf_table.h"

class BTextControl;

// The PostScript information, post: italic angle, underline, pitch, memory use. Glyph names, which
// formats 2.0 and 2.5 keep behind the header, pass through.
class ttf_post : public ttf_table {
public:
	// As for every table: takes the buffer over; none means the default content.
	ttf_post(ttf* font, unsigned char* buffer, unsigned long size);
	~ttf_post() override;

	// A new font's: format 3.0, without glyph names, and with an italic angle of 20 degrees although
	// the font is upright, on purpose. Gives 0.
	int create_default();

	void AttachedToWindow() override;
	void Draw(BRect area) override;
	// Stores the isFixedPitch that was typed.
	void MessageReceived(BMessage* message) override;
	// Lists the header.
	void redraw();

private:
	// The panel's child; null until it is attached.
	BTextControl* isFixedPitch;
};

#endif
