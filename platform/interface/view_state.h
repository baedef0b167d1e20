// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_VIEW_STATE_H
#define KITS_VIEW_STATE_H

#include "display/canvas.h"
#include "display/peer.h"

#include <vector>
#include <View.h>

namespace kits {

// What a view is, behind its header. The window's lock guards it once the view is attached.
struct view_state {
	BWindow* window = nullptr;
	BView* parent = nullptr;
	std::vector<BView*> children;

	BRect frame;
	// Bounds' left top: the scroll position.
	BPoint scroll = BPoint(0, 0);
	uint32 resizing = 0;
	uint32 flags = 0;
	int32 hidden = 0;
	BScrollBar* bars[2] = {nullptr, nullptr};
	// What the view hears of although it is not the one meant: for good, and until no button is held.
	uint32 event_mask = 0;
	uint32 press_mask = 0;

	rgb_color view_color = {255, 255, 255, 255};
	drawing_state drawing;
	std::vector<drawing_state> pushed;

	// In the view's coordinates: what an update must repaint, and what one repaints now.
	region invalid;
	const region* updating = nullptr;

	// The image exists only while the view can be seen.
	std::unique_ptr<canvas> image;
	std::shared_ptr<front_image> front = std::make_shared<front_image>();
	peer_ref widget;
};

}

#endif
