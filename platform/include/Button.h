// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_BUTTON_H
#define KITS_BUTTON_H

#include <Control.h>

// A push button: invoked when the mouse is released inside, or by Enter or Space with the keyboard.
// Its value is 1 in the message and 0 otherwise.
class BButton : public BControl {
public:
	BButton(BRect frame, const char* name, const char* label, BMessage* message,
		uint32 resizingMode = B_FOLLOW_LEFT | B_FOLLOW_TOP,
		uint32 flags = B_WILL_DRAW | B_NAVIGABLE);

	void MessageReceived(BMessage* message) override;

private:
	void _MakePeer() override;
	void _TellPeer() override;
};

#endif
