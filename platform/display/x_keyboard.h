// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_X_KEYBOARD_H
#define KITS_X_KEYBOARD_H

#include <SupportDefs.h>

namespace kits {

// The keyboard of an X server. Display thread.
namespace x_keyboard {

// Has the server tell of a held key by presses alone: else each repeat is a release and a press at
// the same time, which nobody can tell from two quick strokes. False where the display is no X
// server, or one that cannot do it.
bool tells_releases();

// Waits for the server.
bool is_down(uint32 code);

// Calls back whenever another program has had the keyboard for itself: what went up meanwhile was
// not told. Lasts for ever.
void watch_grabs(void (*over)());

}
}

#endif
