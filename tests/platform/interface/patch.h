// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_TESTS_PATCH_H
#define KITS_TESTS_PATCH_H

#include "platform/interface/stage.h"

// A view of 8 x 3 pixels at the window's left top.
constexpr BRect patch(0, 0, 7, 2);

// For whoever holds no lock.
test_view& add_patch(test_window& window, rgb_color background = white);

#endif
