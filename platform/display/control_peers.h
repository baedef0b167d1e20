// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_CONTROL_PEERS_H
#define KITS_CONTROL_PEERS_H

#include "display/peer.h"

namespace kits {

struct scroll_bar_look {
	int32 min;
	int32 max;
	int32 value;
	int32 small_step;
	int32 large_step;
	// Length of the thumb as a part of the bar.
	float proportion;
	// How many of the user's moves the kit has heard of. The value stands only if that is all.
	int32 seen;
};

// Report of what a user did, for the kit object to act on.
constexpr uint32 scrolled = '_SCR'; // int32 "value", int32 "moves": a count of them

// Commands; any thread.
namespace control_peers {

peer_ref make_scroll_bar(const peer_ref& parent, BRect frame, bool shown, bool vertical,
	const scroll_bar_look& look, report_address report);
void set_scroll_bar(const peer_ref& bar, const scroll_bar_look& look);

}
}

#endif
