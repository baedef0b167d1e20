// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_BITMAPS_EBDTTOOLVIEW_H
#define KERNIX_BITMAPS_EBDTTOOLVIEW_H

#include <memory>
#include <View.h>

class BBitmap;
class BButton;
class BMenuField;
class BTextControl;
class ttf_ebdt;

// The palette beside the bitmap edit view: chooses the glyph and the size, and commits. Everything
// the user does becomes a message to the edit view; what it shows it has learned from that view's
// 'Vchg'. Window's thread.
//
// A press on the background steps to the next glyph, on purpose.
class ebdttoolview : public BView {
public:
	// How many sizes the menu offers.
	enum { max_strikes = 8 };

	// @param table borrowed; knows the edit view
	ebdttoolview(BRect frame, ttf_ebdt* table);
	~ebdttoolview() override;

	void AttachedToWindow() override;
	void Draw(BRect area) override;
	void MouseDown(BPoint where) override;
	void MessageReceived(BMessage* message) override;

	// Makes the menu of the font's first distinct sizes, in the place of an earlier one; empty
	// without EBLC.
	void init();
	// Paints the picture, brings the texts up to date and shows both at once. Nothing before the
	// palette has been attached.
	void redraw();

	// The palette's children; null until it is attached.
	BTextControl* gno_entry;
	BTextControl* chr_code;
	BMenuField* strike_field; // null until init()
	BButton* set_button;

	ttf_ebdt* ebdt_table;
	// The background; null until the palette is attached.
	std::unique_ptr<BBitmap> offscreen;

	// Copies of what the edit view told last. Unsigned numbers in signed fields; -1 is none.
	int16 gno;
	int16 chr;
	uint16 pt;

private:
	void learn(const BMessage* message);
	void entered(const void* source);
	void send(BMessage& message);
};

#endif
