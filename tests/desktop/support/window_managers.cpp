// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "desktop/support/window_managers.h"

#include "desktop/support/child.h"
#include "desktop/support/until.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>


static void
write_text(const std::string& path, const std::string& text)
{
	std::filesystem::create_directories(std::filesystem::path(path).parent_path());
	std::ofstream(path) << text;
}


static void
set_element(std::string& settings, const std::string& name, const std::string& value)
{
	std::string start = "<" + name + ">", end = "</" + name + ">";
	size_t from = settings.find(start), to = settings.find(end);
	if (from == std::string::npos || to == std::string::npos)
		throw journey_failed("openbox has no setting " + name);
	from += start.size();
	settings.replace(from, to - from, value);
}


// Its own settings but for the buttons, and without windows that fly about.
static std::vector<std::string>
openbox_command(const std::string& folder)
{
	std::string settings = text_of("/etc/xdg/openbox/rc.xml");
	set_element(settings, "titleLayout", "CLM");
	set_element(settings, "animateIconify", "no");
	write_text(folder + "/openbox.xml", settings);
	return {"openbox", "--sm-disable", "--config-file", folder + "/openbox.xml"};
}


// It keeps its settings in a service of the session bus, so it gets a bus of its own.
static std::vector<std::string>
xfwm4_command()
{
	std::string channel =
		std::string(getenv("XDG_CONFIG_HOME")) + "/xfce4/xfconf/xfce-perchannel-xml/xfwm4.xml";
	write_text(channel,
		R"(<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfwm4" version="1.0">
  <property name="general" type="empty">
    <property name="button_layout" type="string" value="C|M"/>
    <property name="use_compositing" type="bool" value="false"/>
  </property>
</channel>
)");
	// No helper for screen readers, which would start a second bus.
	return {"env", "NO_AT_BRIDGE=1", "dbus-run-session", "--", "xfwm4", "--compositor=off"};
}


std::vector<std::string>
manager_command(const desktop_kind& kind, const std::string& folder)
{
	return kind.manager == desktop_kind::openbox ? openbox_command(folder) : xfwm4_command();
}
