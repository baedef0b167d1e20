// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KITS_LOOPER_H
#define KITS_LOOPER_H

#include <Handler.h>
#include <memory>
#include <Message.h>
#include <OS.h>

namespace kits {
class port;
struct looper_state;
struct parcel;
}

// A message queue, a lock and, once it runs, a thread that dispatches one message at a time in
// order of arrival with the lock held.
//
// The lock is recursive and belongs to a thread. A looper is born locked by the thread that makes
// it; the thread that runs it must have given that lock up. The display thread must not take a
// looper's lock once the application runs: it waits for nobody.
class BLooper : public BHandler {
public:
	explicit BLooper(const char* name = NULL);
	~BLooper() override;

	// To the looper itself, not to its preferred handler. Any thread; never blocks.
	status_t PostMessage(uint32 command);
	status_t PostMessage(BMessage* message);
	// To a handler of this looper; null means the preferred one.
	status_t PostMessage(uint32 command, BHandler* handler, BHandler* replyTo = NULL);
	status_t PostMessage(BMessage* message, BHandler* handler, BHandler* replyTo = NULL);

	// Called for every message with the looper locked; those who override pass on to the base.
	virtual void DispatchMessage(BMessage* message, BHandler* handler);
	void MessageReceived(BMessage* message) override;
	// The message being dispatched, else null.
	BMessage* CurrentMessage() const;

	// Null when nobody is preferred. The lock must be held.
	BHandler* PreferredHandler() const;
	// A handler of another looper, or null, means nobody.
	void SetPreferredHandler(BHandler* handler);
	void AddHandler(BHandler* handler);
	bool RemoveHandler(BHandler* handler);

	// Starts the thread and gives up the birth lock.
	virtual thread_id Run();
	thread_id Thread() const;
	// Ends the looper. In its own thread: after the message at hand the looper is deleted and the
	// thread ends. From another thread, which holds the lock: the messages queued so far are
	// handled first, then the looper is deleted; returns when that is done.
	virtual void Quit();
	// Asked when B_QUIT_REQUESTED arrives; true lets it go.
	virtual bool QuitRequested();

	// False when the looper has ended.
	bool Lock();
	void Unlock();
	// True when the calling thread holds the lock.
	bool IsLocked() const;
	status_t LockWithTimeout(bigtime_t timeout);

protected:
	// Ends the loop without deleting anything: in the looper's own thread after the message at
	// hand, else at once after what is queued, waiting for the thread.
	void _EndLoop();

private:
	friend class BMessenger;
	friend class BAlert;
	friend class BApplication;
	friend class BWindow;
	friend class BHandler;
	friend class BView;
	friend struct looper_access;

	// What happens at the outermost Unlock(), with the lock still held.
	virtual void _Flush();
	// Finds the handlers of one parcel and dispatches to them.
	virtual void _Deliver(BMessage* message, BHandler* handler);
	void _Loop();
	void _Handle(kits::parcel& parcel);
	void _DispatchTo(BMessage* message, BHandler* handler);
	void _StartThread();
	void _GiveUpLock();
	void _Join();
	bool _HasThread() const;

	std::unique_ptr<kits::looper_state> fState;
};

#endif
