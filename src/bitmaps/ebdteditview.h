// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_BITMAPS_EBDTEDITVIEW_H
#define KERNIX_BITMAPS_EBDTEDITVIEW_H

#include <memory>
#include <View.h>

class bitmap;
class glyph;
class ttf_ebdt;

// The view in which one embedded bitmap is edited pixel by pixel, in an em square of 300 x 300 view
// pixels, with the glyph's outline and the metric lines of both over it. The palette beside it
// commands it by messages and hears by messages what it shows. What is edited is written into the
// font when it is committed, and lost when another glyph or size is chosen. Window's thread.
class ebdteditview : public BView {
public:
	// Masks for send2toolv().
	enum : unsigned char { tell_gno = 0x01, tell_chr = 0x02, tell_pt = 0x04, tell_all = 0x0F };

	// Flags for redraw(); the other bits mean nothing.
	enum : char { draw_all = 0x04, draw_full = 0x05, draw_edited = 0x07 };

	// @param table borrowed; knows the palette
	ebdteditview(BRect frame, ttf_ebdt* table);
	~ebdteditview() override;

	void AttachedToWindow() override;
	void Draw(BRect area) override;
	void MouseDown(BPoint where) override;
	void MessageReceived(BMessage* message) override;

	// Paints at once.
	void redraw(char flags);
	// Posts what the mask names to the palette.
	void send2toolv(unsigned char mask);

	// Unsigned numbers in signed fields; -1 is none.
	int16 gno;
	int16 chr; // a character of that glyph
	uint16 pt; // the size: 256 times the pixels per em across, plus those down
	std::unique_ptr<bitmap> cur_bitmap; // null until something is chosen
	ttf_ebdt* ebdt_table;               // borrowed
	// The outline of gno in the em square; null: not made yet.
	std::unique_ptr<glyph> guide_glyph;

private:
	void choose(const BMessage* message);
	void load_bitmap();
	void commit();
	void draw_outline();
	void draw_bitmap_metrics();
};

#endif
