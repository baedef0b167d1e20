// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_SUPPORT_LIVE_HANDLERS_H
#define KERNIX_SUPPORT_LIVE_HANDLERS_H

// Watches for views (any handlers) that nobody destroyed: the kits know every living handler by its
// token, which keeps a forgotten one out of the leak checker's sight. While the object lives no
// other thread may make handlers.
class live_handlers {
public:
	live_handlers();

	// Made since, not destroyed yet and belonging to no looper.
	int count() const;

private:
	int fFirst;
};

#endif
