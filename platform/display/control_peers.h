// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_CONTROL_PEERS_H
#define KITS_CONTROL_PEERS_H

#include "display/peer.h"

#include <string>
#include <vector>

namespace kits {

// Where a control's peer reports to: a handler of a window's looper.
struct report_address {
	int32 looper;
	int32 handler;
};

struct scroll_bar_look {
	int32 min;
	int32 max;
	int32 value;
	int32 small_step;
	int32 large_step;
	// Length of the thumb as a part of the bar.
	float proportion;
};

// A line of a menu; with a submenu when it has items of its own.
struct menu_entry {
	int32 id;
	std::string label;
	char shortcut;
	bool marked;
	bool enabled;
	bool opens;
	std::vector<menu_entry> entries;
};

// Reports of what a user did, for the kit object to act on.
constexpr uint32 scrolled = '_SCR';    // int32 "value"
constexpr uint32 menu_chosen = '_MNU'; // int32 "id"

// Commands; any thread.
namespace control_peers {

peer_ref make_scroll_bar(const peer_ref& parent, BRect frame, bool shown, bool vertical,
	const scroll_bar_look& look, report_address report);
void set_scroll_bar(const peer_ref& bar, const scroll_bar_look& look);

peer_ref make_menu_bar(const peer_ref& parent, BRect frame, bool shown,
	const std::vector<menu_entry>& entries, report_address report);
// Replaces the whole content.
void set_menu_bar(
	const peer_ref& bar, const std::vector<menu_entry>& entries, report_address report);
// Changes one line, wherever it stands in the bar.
void set_menu_entry(const peer_ref& bar, int32 id, bool marked, bool enabled);

}
}

#endif
