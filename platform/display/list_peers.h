// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_LIST_PEERS_H
#define KITS_LIST_PEERS_H

#include "display/control_look.h"
#include "display/control_peers.h"

#include <vector>

namespace kits {

// Reports: int32 "serial", and "row" for each selected one in ascending order.
constexpr uint32 list_selected = '_LSE';
constexpr uint32 list_invoked = '_LIN'; // int32 "serial": a double click or Enter

// Commands; any thread. Rows count from 0. A serial comes back with what the user does from then on.
namespace list_peers {

peer_ref make(const peer_ref& parent, BRect frame, bool shown, const control_look& look,
	rgb_color text, bool multiple, report_address report);
void set_look(const peer_ref& list, const control_look& look, rgb_color text);
// The rows behind move down, or up again, with their selection.
void insert(const peer_ref& list, int32 row, const std::string& text, int32 serial);
void remove(const peer_ref& list, int32 row, int32 serial);
void empty(const peer_ref& list, int32 serial);
void set_text(const peer_ref& list, int32 row, const std::string& text);
// These rows and no others.
void select(const peer_ref& list, const std::vector<int32>& rows, int32 serial);

}
}

#endif
