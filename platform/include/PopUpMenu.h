// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_POPUPMENU_H
#define KITS_POPUPMENU_H

#include <Menu.h>

// A menu for a menu field: one of its items is chosen, and the field says which.
class BPopUpMenu : public BMenu {
public:
	// The name is what the field says while nothing is marked.
	explicit BPopUpMenu(const char* name, bool radioMode = true, bool labelFromMarked = true,
		menu_layout layout = B_ITEMS_IN_COLUMN);
};

#endif
