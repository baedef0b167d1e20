// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KITS_INVOKER_H
#define KITS_INVOKER_H

#include <memory>
#include <Messenger.h>

class BMessage;

// A model message and where it goes. The looper of the object that invokes guards it.
class BInvoker {
public:
	BInvoker();
	// Takes the message over; it may be null.
	explicit BInvoker(BMessage* message);
	virtual ~BInvoker();
	BInvoker(const BInvoker&) = delete;
	BInvoker& operator=(const BInvoker&) = delete;

	// Takes the message over and deletes the one before.
	virtual status_t SetMessage(BMessage* message);
	BMessage* Message() const;
	// The model message's code, 0 without one.
	uint32 Command() const;
	// The handler must belong to a looper already; null with a looper means the handler that it
	// prefers when the message is dispatched.
	virtual status_t SetTarget(const BHandler* handler, const BLooper* looper = NULL);
	virtual status_t SetTarget(BMessenger messenger);
	BHandler* Target(BLooper** looper = NULL) const;
	BMessenger Messenger() const;
	// Sends a copy of the argument or, without one, of the model message. B_BAD_VALUE when there
	// is neither.
	virtual status_t Invoke(BMessage* message = NULL);

private:
	std::unique_ptr<BMessage> fMessage;
	BMessenger fTarget;
};

#endif
