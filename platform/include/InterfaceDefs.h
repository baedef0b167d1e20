// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_INTERFACEDEFS_H
#define KITS_INTERFACEDEFS_H

#include <SupportDefs.h>

// Control characters in the "bytes" of a key message.
enum {
	B_HOME = 0x01,
	B_END = 0x04,
	B_INSERT = 0x05,
	B_BACKSPACE = 0x08,
	B_TAB = 0x09,
	B_RETURN = 0x0A,
	B_ENTER = 0x0A,
	B_PAGE_UP = 0x0B,
	B_PAGE_DOWN = 0x0C,
	B_FUNCTION_KEY = 0x10,
	B_SUBSTITUTE = 0x1A,
	B_ESCAPE = 0x1B,
	B_LEFT_ARROW = 0x1C,
	B_RIGHT_ARROW = 0x1D,
	B_UP_ARROW = 0x1E,
	B_DOWN_ARROW = 0x1F,
	B_SPACE = 0x20,
	B_DELETE = 0x7F
};

// The mask of the modifier keys. A left or right key sets its own bit and the general one.
enum {
	B_SHIFT_KEY = 0x0001,
	B_COMMAND_KEY = 0x0002,
	B_CONTROL_KEY = 0x0004,
	B_CAPS_LOCK = 0x0008,
	B_SCROLL_LOCK = 0x0010,
	B_NUM_LOCK = 0x0020,
	B_OPTION_KEY = 0x0040,
	B_MENU_KEY = 0x0080,
	B_LEFT_SHIFT_KEY = 0x0100,
	B_RIGHT_SHIFT_KEY = 0x0200,
	B_LEFT_COMMAND_KEY = 0x0400,
	B_RIGHT_COMMAND_KEY = 0x0800,
	B_LEFT_CONTROL_KEY = 0x1000,
	B_RIGHT_CONTROL_KEY = 0x2000,
	B_LEFT_OPTION_KEY = 0x4000,
	B_RIGHT_OPTION_KEY = 0x8000
};

enum orientation { B_HORIZONTAL = 0, B_VERTICAL = 1 };

enum button_width { B_WIDTH_AS_USUAL = 0, B_WIDTH_FROM_WIDEST = 1, B_WIDTH_FROM_LABEL = 2 };

enum alignment { B_ALIGN_LEFT = 0, B_ALIGN_RIGHT = 1, B_ALIGN_CENTER = 2 };

enum join_mode {
	B_ROUND_JOIN = 0,
	B_MITER_JOIN = 1,
	B_BEVEL_JOIN = 2,
	B_BUTT_JOIN = 3,
	B_SQUARE_JOIN = 4
};

enum cap_mode { B_ROUND_CAP = 0, B_BUTT_CAP = 3, B_SQUARE_CAP = 4 };

const float B_DEFAULT_MITER_LIMIT = 10.0F;

// Fill rules.
enum { B_EVEN_ODD = 0, B_NONZERO = 1 };

#endif
