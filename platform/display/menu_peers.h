// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_MENU_PEERS_H
#define KITS_MENU_PEERS_H

#include "display/control_look.h"
#include "display/control_peers.h"

#include <string>
#include <vector>

namespace kits {

// A line of a menu; with a submenu when it has items of its own.
struct menu_entry {
	int32 id;
	std::string label;
	bool marked;
	bool enabled;
	bool opens;
	std::vector<menu_entry> entries;
};

struct menu_field_look {
	// Width of the label, in pixels.
	float divider;
	// The button fills its part of the frame, however short its texts are.
	bool fixed_size;
	// What the button says.
	std::string shown;
	std::vector<menu_entry> entries;
	// Who hears of choices; the field itself hears of the keyboard.
	report_address menu;
};

// Report of what a user did, for the kit object to act on.
constexpr uint32 menu_chosen = '_MNU'; // int32 "id"

// Commands; any thread.
namespace menu_peers {

peer_ref make_menu_bar(const peer_ref& parent, BRect frame, bool shown,
	const std::vector<menu_entry>& entries, report_address report);
// Replaces the whole content.
void set_menu_bar(
	const peer_ref& bar, const std::vector<menu_entry>& entries, report_address report);
// Changes one line, wherever it stands in the bar.
void set_menu_entry(const peer_ref& bar, int32 id, bool marked, bool enabled);

peer_ref make_menu_field(const peer_ref& parent, BRect frame, bool shown, const control_look& look,
	const menu_field_look& field, report_address report);
void set_menu_field(
	const peer_ref& field, const control_look& look, const menu_field_look& content);

}
}

#endif
