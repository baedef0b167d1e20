// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "desktop/support/desktop.h"

#include "desktop/support/sway_desktop.h"
#include "desktop/support/until.h"
#include "desktop/support/x11_desktop.h"

#include <cstdlib>
#include <filesystem>
#include <unistd.h>
#include <xkbcommon/xkbcommon.h>

extern char** environ;


// Nothing of the user's own desktop or settings is seen or changed.
static void
forget_the_users_desktop()
{
	std::vector<std::string> all;
	for (char** each = environ; *each != nullptr; each++)
		all.push_back(std::string(*each).substr(0, std::string(*each).find('=')));
	for (const std::string& name : all) {
		if (name.starts_with("QT_") || name.starts_with("LC_") || name.starts_with("XDG_"))
			unsetenv(name.c_str());
	}
	for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "XAUTHORITY", "SESSION_MANAGER",
			 "DBUS_SESSION_BUS_ADDRESS", "SWAYSOCK"})
		unsetenv(name);
}


static void
live_in(const std::string& folder)
{
	for (const char* each : {"home", "config", "data", "cache", "run"})
		std::filesystem::create_directory(folder + "/" + each);
	std::filesystem::permissions(folder + "/run", std::filesystem::perms::owner_all);
	setenv("HOME", (folder + "/home").c_str(), 1);
	setenv("XDG_CONFIG_HOME", (folder + "/config").c_str(), 1);
	setenv("XDG_DATA_HOME", (folder + "/data").c_str(), 1);
	setenv("XDG_CACHE_HOME", (folder + "/cache").c_str(), 1);
	setenv("XDG_RUNTIME_DIR", (folder + "/run").c_str(), 1);
	setenv("LANG", "C.UTF-8", 1);
}


std::unique_ptr<desktop>
desktop::start(const desktop_kind& kind, const std::string& folder)
{
	forget_the_users_desktop();
	live_in(folder);
	if (kind.is_wayland())
		return std::make_unique<sway_desktop>(kind, folder);
	return std::make_unique<x11_desktop>(kind, folder);
}


uint32_t
key_symbol(const std::string& name)
{
	uint32_t symbol = name.size() == 1 ? xkb_utf32_to_keysym((unsigned char)name[0])
									   : xkb_keysym_from_name(name.c_str(), XKB_KEYSYM_NO_FLAGS);
	if (symbol == XKB_KEY_NoSymbol)
		throw journey_failed("no key is called " + name);
	return symbol;
}
