// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KITS_MESSENGER_H
#define KITS_MESSENGER_H

#include <OS.h>
#include <SupportDefs.h>

class BHandler;
class BLooper;
class BMessage;

// The address of a handler in a looper. Holds tokens, not pointers: sending to a handler that has
// gone does nothing, whichever thread it went in. Any thread may send.
class BMessenger {
public:
	BMessenger();
	// Handler only: aims at it in its looper; it must belong to one now (B_MISMATCHED_VALUES).
	// Looper only: aims at whatever handler that looper prefers when the message is dispatched.
	// Both: they must belong together.
	BMessenger(const BHandler* handler, const BLooper* looper = NULL, status_t* result = NULL);

	// Copies and queues the message and returns at once, also when the target is in the calling
	// thread's own looper: never a direct call. The queue has no limit, so the time-out never
	// passes. B_BAD_PORT_ID or B_BAD_HANDLER for a target that has gone.
	status_t SendMessage(uint32 command, BHandler* replyTo = NULL) const;
	status_t SendMessage(
		BMessage* message, BHandler* replyTo = NULL, bigtime_t timeout = B_INFINITE_TIMEOUT) const;
	status_t SendMessage(
		BMessage* message, BMessenger replyTo, bigtime_t timeout = B_INFINITE_TIMEOUT) const;

	// True while the looper lives, and with it the handler unless the preferred one is meant.
	bool IsValid() const;
	// The handler, null when it has gone or the preferred one is meant. Only for comparing, or
	// with the looper locked.
	BHandler* Target(BLooper** looper) const;
	status_t SetTo(const BHandler* handler, const BLooper* looper = NULL);

	bool operator==(const BMessenger& other) const;
	bool operator!=(const BMessenger& other) const { return !(*this == other); }

private:
	int32 fLooper;
	int32 fHandler;
};

extern BMessenger be_app_messenger;

#endif
