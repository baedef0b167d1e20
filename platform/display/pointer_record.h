// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_POINTER_RECORD_H
#define KITS_POINTER_RECORD_H

#include <mutex>
#include <Point.h>
#include <SupportDefs.h>

namespace kits {

// Where the pointer of a window is, as the display last heard: ahead of what the window has in its
// queue. Any thread.
class pointer_record {
public:
	// In window coordinates; the buttons as in a pointer message.
	void set(BPoint where, uint32 buttons)
	{
		std::lock_guard guard(fLock);
		fWhere = where;
		fButtons = buttons;
	}

	void get(BPoint& where, uint32& buttons) const
	{
		std::lock_guard guard(fLock);
		where = fWhere;
		buttons = fButtons;
	}

private:
	mutable std::mutex fLock;
	BPoint fWhere;
	uint32 fButtons = 0;
};

}

#endif
