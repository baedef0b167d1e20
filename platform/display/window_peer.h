// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_WINDOW_PEER_H
#define KITS_WINDOW_PEER_H

#include "display/peer.h"
#include "display/pointer_record.h"

#include <string>

namespace kits {

// In content pixels, as counts: one more than the kit's differences.
struct size_limits {
	int32 min_width;
	int32 max_width;
	int32 min_height;
	int32 max_height;
};

// Commands for a window's widget; any thread.
namespace window_peers {

// The widget of a window, not yet shown. Input and changes of size go to the looper; the record is
// kept up to date.
peer_ref make(BRect frame, const std::string& title, int32 looper,
	const std::shared_ptr<pointer_record>& pointer);
// Device pixels per kit pixel where the window is. Waits for the display.
float ratio(const peer_ref& window);
void show(const peer_ref& window, bool shown);
// Shows it when nothing else has been asked for half a second.
void show_late(const peer_ref& window);
void set_position(const peer_ref& window, BPoint leftTop, int32 serial);
// The serial tells which of the kit's changes a later report already knows.
void set_size(const peer_ref& window, int32 width, int32 height, int32 serial);
void set_limits(const peer_ref& window, size_limits limits);
// Where the content's left top is on the screen. Waits for the display.
BPoint position(const peer_ref& window);

}

// Fields of B_WINDOW_RESIZED from the display: int32 "width" and "height" (counts of pixels) and
// "serial".
constexpr const char* width_field = "width";
constexpr const char* height_field = "height";
constexpr const char* serial_field = "serial";
// Field of B_WINDOW_MOVED from the display, beside the serial: point, the content's left top.
constexpr const char* place_field = "place";
// From the display: a pointer move, to where no view of the window is seen.
constexpr uint32 pointer_left = '_LFT';
// From the display: float "ratio" of the screen that the window has come to.
constexpr uint32 ratio_changed = '_RTO';
// From the application to a window that was to be shown before the application was ready.
constexpr uint32 show_now = '_SHN';

}

#endif
