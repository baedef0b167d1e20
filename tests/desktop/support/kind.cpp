// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "desktop/support/kind.h"

#include <QStandardPaths>


const std::vector<desktop_kind> x11_desktops = {{"openbox", desktop_kind::openbox, 1},
	{"xfwm4", desktop_kind::xfwm4, 1}, {"openbox_125", desktop_kind::openbox, 1.25},
	{"xfwm4_125", desktop_kind::xfwm4, 1.25}};

const std::vector<desktop_kind> wayland_desktops = {{"sway", desktop_kind::sway, 1},
	{"sway_125", desktop_kind::sway, 1.25}, {"sway_200", desktop_kind::sway, 2}};

const std::vector<desktop_kind> all_desktops = [] {
	std::vector<desktop_kind> all = x11_desktops;
	all.insert(all.end(), wayland_desktops.begin(), wayland_desktops.end());
	return all;
}();


std::string
missing_for(const desktop_kind& kind)
{
	std::vector<const char*> needed;
	switch (kind.manager) {
		case desktop_kind::openbox:
			needed = {"Xvfb", "openbox"};
			break;
		case desktop_kind::xfwm4:
			needed = {"Xvfb", "xfwm4", "dbus-run-session"};
			break;
		case desktop_kind::sway:
			needed = {"sway", "grim", "setpriv"};
			break;
	}
	for (const char* each : needed) {
		if (QStandardPaths::findExecutable(each).isEmpty())
			return each;
	}
	return "";
}


std::ostream&
operator<<(std::ostream& out, const desktop_kind& kind)
{
	return out << kind.name;
}
