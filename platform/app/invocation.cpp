// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "app/invocation.h"

#include <Invoker.h>
#include <OS.h>


std::optional<BMessage>
kits::invocation(const BInvoker& invoker, const BMessage* message, const void* source)
{
	if (!message)
		message = invoker.Message();
	if (!message)
		return {};
	BMessage copy(*message);
	copy.AddInt64("when", system_time());
	copy.AddPointer("source", source);
	return copy;
}
