// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_MENUBAR_H
#define KITS_MENUBAR_H

#include <Menu.h>

class BMenuBar : public BMenu {
public:
	// With resizeToFit a bar that follows left and right becomes as wide as the window when it is
	// attached.
	BMenuBar(BRect frame, const char* name,
		uint32 resizingMode = B_FOLLOW_LEFT_RIGHT | B_FOLLOW_TOP,
		menu_layout layout = B_ITEMS_IN_ROW, bool resizeToFit = true);

	void AttachedToWindow() override;

private:
	void _MakePeer() override;

	bool fResizeToFit;
};

#endif
