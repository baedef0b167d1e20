// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_INVOCATION_H
#define KITS_INVOCATION_H

#include <Message.h>
#include <optional>

class BInvoker;

namespace kits {

// What an invocation sends: a copy of the message or, without one, of the invoker's own, which says
// when ("when") and by what ("source"). Empty when there is neither.
std::optional<BMessage> invocation(
	const BInvoker& invoker, const BMessage* message, const void* source);

}

#endif
