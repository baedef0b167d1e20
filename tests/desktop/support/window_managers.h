// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_DESKTOP_WINDOW_MANAGERS_H
#define KERNIX_DESKTOP_WINDOW_MANAGERS_H

#include <string>
#include <vector>

#include "desktop/support/kind.h"

// How to start an X window manager. Its title bars have the close button at the left end and the
// zoom button at the right, so that a journey finds them whatever the theme. Settings are written
// to `folder` and to this process's XDG_CONFIG_HOME.
std::vector<std::string> manager_command(const desktop_kind& kind, const std::string& folder);

#endif
