// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "support/live_handlers.h"

#include "app/registry.h"


static int
next_token()
{
	int32 token = kits::registry::enter(nullptr);
	kits::registry::leave(token);
	return token;
}


live_handlers::live_handlers() : fFirst(next_token()) {}


int
live_handlers::count() const
{
	int alive = 0;
	for (int token = fFirst + 1, end = next_token(); token < end; token++)
		alive += kits::registry::find(token, -1) != nullptr;
	return alive;
}
