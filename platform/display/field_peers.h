// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_FIELD_PEERS_H
#define KITS_FIELD_PEERS_H

#include "display/control_look.h"
#include "display/control_peers.h"

namespace kits {

// Reports of what a user did to a button, a check box or a field.
constexpr uint32 control_invoked = '_INV';
constexpr uint32 field_edited = '_EDT';  // string "text", int32 "edits": how many so far
constexpr uint32 field_entered = '_ENT'; // the same, on Enter

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
// Seen is how many of the user's edits the program has heard of: later ones stand.
void set_text(const peer_ref& field, const std::string& text, int32 seen);

// Gives the peer of a view the keyboard; see focus_keeper::give().
void focus(const peer_ref& window, const peer_ref& view, int32 seen);
// The looper has dealt with a press: where the keyboard is now is known.
void press_answered(const peer_ref& window);

}
}

#endif
