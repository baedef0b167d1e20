// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_EDITOR_TOOL_ICONS_H
#define KERNIX_EDITOR_TOOL_ICONS_H

#include <Point.h>
#include <SupportDefs.h>

class BView;

enum { tool_icon_size = 16, tool_icon_count = 6 };

// Paints the icon of a tool, by its number from 0, black on white, or white on black when it is the
// tool in use. Pixels of the view; nothing for another number.
void draw_tool_icon(BView* view, int tool, BPoint leftTop, bool in_use);

#endif
