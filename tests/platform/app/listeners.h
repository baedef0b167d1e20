// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_TESTS_LISTENERS_H
#define KITS_TESTS_LISTENERS_H

#include <condition_variable>
#include <functional>
#include <Handler.h>
#include <Looper.h>
#include <Message.h>
#include <mutex>
#include <vector>

// Happens once, in any thread; the others wait for it.
class event {
public:
	void set();
	// False when it has not happened within a minute.
	bool wait();

private:
	std::mutex fLock;
	std::condition_variable fChanged;
	bool fSet = false;
};

// The codes of what arrived, in order; written by any thread.
class record {
public:
	void add(uint32 code);
	std::vector<uint32> all() const;

private:
	mutable std::mutex fLock;
	std::vector<uint32> fCodes;
};

using codes = std::vector<uint32>;
using reaction = std::function<void(BMessage*)>;

// Notes what it is given, and knows none of it when it is told to pass everything on.
class listener : public BHandler {
public:
	explicit listener(record& heard, reaction then = nullptr);
	void MessageReceived(BMessage* message) override;
	void pass_on() { fPassOn = true; }

private:
	record& fHeard;
	reaction fThen;
	bool fPassOn = false;
};

// The same as a looper. Tells when it has been destroyed.
class listening_looper : public BLooper {
public:
	explicit listening_looper(record& heard, reaction then = nullptr, event* gone = nullptr);
	~listening_looper() override;
	void MessageReceived(BMessage* message) override;

private:
	record& fHeard;
	reaction fThen;
	event* fGone;
};

// Lets a running looper handle all that is queued, and ends it; returns when it is gone.
void finish(BLooper* looper);

// How many threads are inside of Lock() without an answer. For those that have to be there before
// the looper goes: one that has gone cannot be asked.
int32 waiting_for_lock(const BLooper& looper);

#endif
