// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_MENU_ACCESS_H
#define KITS_MENU_ACCESS_H

#include "display/control_peers.h"

class BMenu;
class BMenuItem;

// What the kit's own sources need of menus beside their public part.
struct menu_access {
	static std::vector<kits::menu_entry> entries_of(const BMenu& menu);
	static kits::menu_entry entry_of(const BMenuItem& item);
};

#endif
