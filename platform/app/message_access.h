// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_MESSAGE_ACCESS_H
#define KITS_MESSAGE_ACCESS_H

#include <Message.h>

// What the kits' own sources may change of a message beside its public part.
struct message_access {
	// The point is in screen coordinates.
	static void mark_dropped(BMessage& message, BPoint where)
	{
		message.fDropped = true;
		message.fDropPoint = where;
	}
};

#endif
