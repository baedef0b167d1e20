// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_APP_INITVIEW_H
#define KERNIX_APP_INITVIEW_H

#include <View.h>

class BButton;
class BCheckBox;

// What a new font is to contain: a check box for each block of characters, and "set" to make the
// font. Writes the choice into the open font's chrs. A child of the work view, not of the kind that
// the selector shows. Window's thread; made and destroyed by the application with the window locked.
class initview : public BView {
public:
	enum { max_ranges = 71 };

	// Gives the open font, which must be there, its chrs, with nothing chosen. The view is as large
	// as a panel whatever the frame.
	explicit initview(BRect frame);
	~initview() override;

	void AttachedToWindow() override;
	void Draw(BRect area) override;
	void MessageReceived(BMessage* message) override;

	// Shows how many characters are chosen.
	void redraw();
	// Writes what is ticked into the font's chrs. Code 0 is always chosen, for the glyph of missing
	// characters; with the specials FEFF is, which no block has.
	void setchrs();

private:
	// The view's children; null until it is attached.
	BButton* set;
	BCheckBox* boxes[max_ranges];
};

#endif
