// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_WINDOW_STATE_H
#define KITS_WINDOW_STATE_H

#include "display/window_peer.h"

#include <string>
#include <vector>
#include <View.h>

namespace kits {

// What a window is, behind its header; its lock guards it.
struct window_state {
	std::string title;
	// Parent of the top-level views; it draws nothing itself.
	BView* root = nullptr;
	peer_ref widget;
	// Where drawing goes in a bitmap's window, null in one on the screen.
	canvas* offscreen = nullptr;

	BPoint position;
	float width = 0;
	float height = 0;
	// Counts the kit's own changes of size: what the display reports from before the last is old.
	int32 size_serial = 0;
	// The same of its places.
	int32 move_serial = 0;
	float min_width = 0;
	float max_width = 32767;
	float min_height = 0;
	float max_height = 32767;
	float zoom_width = 32767;
	float zoom_height = 32767;
	// The frame before zooming, and whether the window is in the zoomed one.
	BRect unzoomed;
	bool zoomed = false;
	// A message that tells of a change of size is on its way.
	bool resize_told = false;

	int32 hidden = 1;
	bool first_show = true;
	float ratio = 1;
	bool ratio_known = false;
	bigtime_t pulse_rate = 500000;

	BView* focus = nullptr;
	// How many of the user's moves of it the window has heard of.
	int32 focus_moves = 0;
	// Token of the view that the pointer was over last.
	int32 under_pointer = 0;
	// Tokens of the views that have an event mask.
	std::vector<int32> watchers;
	const std::shared_ptr<pointer_record> pointer = std::make_shared<pointer_record>();
	// Something was invalidated or drawn since the last flush.
	bool dirty = false;
};

}

#endif
