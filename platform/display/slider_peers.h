// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_SLIDER_PEERS_H
#define KITS_SLIDER_PEERS_H

#include "display/control_look.h"
#include "display/control_peers.h"

namespace kits {

struct slider_look {
	int32 min;
	int32 max;
	rgb_color bar;
	// Comes back with what the user does from now on.
	int32 serial;
};

// Reports: int32 "value" and "serial".
constexpr uint32 slider_moved = '_SMV';
constexpr uint32 slider_released = '_SRL';

// Commands; any thread.
namespace slider_peers {

peer_ref make(const peer_ref& parent, BRect frame, bool shown, const control_look& look,
	const slider_look& slider, report_address report);
void set(const peer_ref& peer, const control_look& look, const slider_look& slider);

}
}

#endif
