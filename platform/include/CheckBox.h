// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_CHECKBOX_H
#define KITS_CHECKBOX_H

#include <Control.h>

// A box that is ticked or not, with its label: toggled, and then invoked, when the mouse is released
// inside, or by Enter or Space with the keyboard.
class BCheckBox : public BControl {
public:
	// Not ticked at first.
	BCheckBox(BRect frame, const char* name, const char* label, BMessage* message,
		uint32 resizingMode = B_FOLLOW_LEFT | B_FOLLOW_TOP,
		uint32 flags = B_WILL_DRAW | B_NAVIGABLE);

	void MessageReceived(BMessage* message) override;

private:
	void _MakePeer() override;
	void _TellPeer() override;
};

#endif
