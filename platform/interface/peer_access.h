// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_PEER_ACCESS_H
#define KITS_PEER_ACCESS_H

#include "display/control_look.h"
#include "display/control_peers.h"

class BView;

// What views that the display paints need of the kit's own parts.
struct view_access {
	static kits::peer_ref& widget_of(BView& view);
	// For a view that is attached.
	static kits::report_address address_of(const BView& view);
	static kits::control_look look_of(const BView& view, const std::string& label);
	// Nothing without a parent.
	static void take_parent_colors(BView& view);
};

#endif
