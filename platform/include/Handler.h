// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KITS_HANDLER_H
#define KITS_HANDLER_H

#include <Archivable.h>
#include <atomic>
#include <string>
#include <SupportDefs.h>

class BLooper;
class BMessage;

// Something that messages can be sent to. Belongs to one looper at a time, whose lock guards it.
class BHandler : public BArchivable {
public:
	explicit BHandler(const char* name = NULL);
	// Leaves its looper; messages still queued for it are dropped.
	~BHandler() override;
	BHandler(const BHandler&) = delete;
	BHandler& operator=(const BHandler&) = delete;

	// The base passes a message it does not know to the next handler; at the end of the chain it
	// is dropped.
	virtual void MessageReceived(BMessage* message);

	BLooper* Looper() const;
	const char* Name() const;
	void SetName(const char* name);
	virtual void SetNextHandler(BHandler* handler);
	BHandler* NextHandler() const;

private:
	friend class BLooper;
	friend class BMessenger;
	friend class BView;
	friend class BWindow;

	const int32 fToken;
	std::atomic<BLooper*> fLooper;
	BHandler* fNext;
	std::string fName;
};

#endif
