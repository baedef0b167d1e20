// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_PEER_H
#define KITS_PEER_H

#include "display/canvas.h"

#include <memory>
#include <SupportDefs.h>

class BMessage;
class QWidget;

namespace kits {

// What stands for a view or window on the display. The kit object shares it with the commands that
// it posts; only the display thread looks inside. The widget is null before its command has run and
// after it has gone.
struct peer {
	QWidget* widget = nullptr;
};

using peer_ref = std::shared_ptr<peer>;

// Where a peer reports to: a handler of a window's looper.
struct report_address {
	int32 looper;
	int32 handler;
};

// All of these post a command and return; any thread. Frames include their right and bottom edge and
// are in the parent's coordinates.
namespace peers {

// A plain view that shows the front image. Pointer events go to the looper.
peer_ref make_view(const peer_ref& parent, BRect frame, bool shown, bool navigable,
	report_address report, const std::shared_ptr<front_image>& front);
void set_frame(const peer_ref& view, BRect frame);
void set_shown(const peer_ref& view, bool shown);
// Whether Tab walks to it.
void set_navigable(const peer_ref& view, bool navigable);
// Another front image for a plain view: the one before goes when nothing shows it any more.
void set_front(const peer_ref& view, const std::shared_ptr<front_image>& front);
// Below the other in the stacking order of siblings.
void stack_under(const peer_ref& view, const peer_ref& other);
// Shows what was published: one update at a time is on its way.
void update(const peer_ref& view, const std::shared_ptr<front_image>& front, BRect dirty);
void destroy(const peer_ref& view);

}
}

#endif
