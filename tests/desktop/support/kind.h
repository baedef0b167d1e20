// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_DESKTOP_KIND_H
#define KERNIX_DESKTOP_KIND_H

#include <ostream>
#include <string>
#include <vector>

// A kind of desktop: who manages its windows, and how many pixels of its screen one pixel of a
// program is.
struct desktop_kind {
	// What a test is called there: "openbox", "xfwm4_125", "sway".
	const char* name;
	enum { openbox, xfwm4, sway } manager;
	double scale;

	bool is_wayland() const { return manager == sway; }
};

extern const std::vector<desktop_kind> x11_desktops;
extern const std::vector<desktop_kind> wayland_desktops;
extern const std::vector<desktop_kind> all_desktops;

// What this kind of desktop needs and this machine lacks; empty where it can be started.
std::string missing_for(const desktop_kind& kind);

std::ostream& operator<<(std::ostream& out, const desktop_kind& kind);

#endif
