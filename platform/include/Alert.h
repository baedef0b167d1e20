// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_ALERT_H
#define KITS_ALERT_H

#include <string>
#include <vector>
#include <Window.h>

enum alert_type {
	B_EMPTY_ALERT = 0,
	B_INFO_ALERT = 1,
	B_IDEA_ALERT = 2,
	B_WARNING_ALERT = 3,
	B_STOP_ALERT = 4
};

// A short text and up to three buttons. Made with new; Go() deletes it.
class BAlert : public BWindow {
public:
	BAlert(const char* title, const char* text, const char* button1, const char* button2 = NULL,
		const char* button3 = NULL, button_width width = B_WIDTH_AS_USUAL,
		alert_type type = B_INFO_ALERT);

	// Shows the alert, waits for a button, deletes the alert and answers the button's index, 0 for
	// the leftmost; closing the box or Escape counts as that one. -1 when the application is asked
	// to quit meanwhile. Not on the display thread.
	int32 Go();

private:
	std::string fText;
	std::vector<std::string> fButtons;
	button_width fWidth;
	alert_type fType;
};

#endif
