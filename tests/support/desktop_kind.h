// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_SUPPORT_DESKTOP_KIND_H
#define KERNIX_SUPPORT_DESKTOP_KIND_H

// Whether programs put and size their windows themselves and know where they stand. On Wayland the
// server does that, in its own time, and tells nobody.
bool programs_place_windows();

#endif
