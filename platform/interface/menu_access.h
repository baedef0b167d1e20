// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_MENU_ACCESS_H
#define KITS_MENU_ACCESS_H

#include "display/menu_peers.h"

class BMenu;
class BMenuField;
class BMenuItem;

// What the kit's own sources need of menus beside their public part.
struct menu_access {
	static std::vector<kits::menu_entry> entries_of(const BMenu& menu);
	static kits::menu_entry entry_of(const BMenuItem& item);
	// What a menu field says: the marked item's label, or the menu's name.
	static const char* shown_label(const BMenu& menu);
	// The field that the menu opens from; null for none.
	static void set_field(BMenu& menu, BMenuField* field);
};

#endif
