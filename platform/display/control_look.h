// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_CONTROL_LOOK_H
#define KITS_CONTROL_LOOK_H

#include <Font.h>
#include <GraphicsDefs.h>
#include <string>

namespace kits {

// What every control's peer is told.
struct control_look {
	std::string label;
	int32 value = 0;
	bool enabled = true;
	bool navigable = true;
	// The parent's colour: controls are shades of it.
	rgb_color background = {221, 221, 226, 255};
	BFont font;
};

}

#endif
