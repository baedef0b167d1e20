// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_FIELD_PEERS_H
#define KITS_FIELD_PEERS_H

#include "display/control_look.h"
#include "display/control_peers.h"

namespace kits {

// Reports of what a user did to a button, a check box or a field.
constexpr uint32 control_invoked = '_INV';
constexpr uint32 field_edited = '_EDT';  // string "text", int32 "serial"
constexpr uint32 field_entered = '_ENT'; // the same, on Enter
// From anything that can hold the keyboard on the display: int32 "serial", see focus().
constexpr uint32 focus_gained = '_FGN';
constexpr uint32 focus_lost = '_FLS';
// To the window: bool "forward", when Tab is pressed in such a peer.
constexpr uint32 focus_walks = '_FWK';

// Commands; any thread.
namespace field_peers {

peer_ref make_button(const peer_ref& parent, BRect frame, bool shown, const control_look& look,
	report_address report);
void set_button(const peer_ref& button, const control_look& look);

// Ticked when the look's value is not 0.
peer_ref make_check_box(const peer_ref& parent, BRect frame, bool shown, const control_look& look,
	report_address report);
void set_check_box(const peer_ref& box, const control_look& look);

peer_ref make_text(const peer_ref& parent, BRect frame, bool shown, const control_look& look,
	float divider, report_address report);
void set_text_look(const peer_ref& field, const control_look& look, float divider);
// The serial comes back with what is typed from now on.
void set_text(const peer_ref& field, const std::string& text, int32 serial);

// Gives the peer the display's keyboard focus. Where it cannot hold it, or is null, the window has
// it: keys then go to the kit. The serial comes back with what is reported from then on.
void focus(const peer_ref& window, const peer_ref& control, int32 serial);

}
}

#endif
