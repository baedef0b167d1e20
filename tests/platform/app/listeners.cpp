// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "platform/app/listeners.h"

#include "app/looper_state.h"

#include <chrono>
#include <utility>


struct looper_access {
	static int32 waiting(const BLooper& looper) { return looper.fState->waiting; }
};


void
event::set()
{
	std::lock_guard guard(fLock);
	fSet = true;
	fChanged.notify_all();
}


bool
event::wait()
{
	std::unique_lock guard(fLock);
	return fChanged.wait_for(guard, std::chrono::minutes(1), [this] { return fSet; });
}


void
record::add(uint32 code)
{
	std::lock_guard guard(fLock);
	fCodes.push_back(code);
}


std::vector<uint32>
record::all() const
{
	std::lock_guard guard(fLock);
	return fCodes;
}


listener::listener(record& heard, reaction then) : fHeard(heard), fThen(std::move(then)) {}


void
listener::MessageReceived(BMessage* message)
{
	fHeard.add(message->what);
	if (fThen)
		fThen(message);
	if (fPassOn)
		BHandler::MessageReceived(message);
}


listening_looper::listening_looper(record& heard, reaction then, event* gone)
	: BLooper("listener"),
	  fHeard(heard),
	  fThen(std::move(then)),
	  fGone(gone)
{
}


listening_looper::~listening_looper()
{
	if (fGone)
		fGone->set();
}


void
listening_looper::MessageReceived(BMessage* message)
{
	fHeard.add(message->what);
	if (fThen)
		fThen(message);
}


void
finish(BLooper* looper)
{
	if (looper->Lock())
		looper->Quit();
}


int32
waiting_for_lock(const BLooper& looper)
{
	return looper_access::waiting(looper);
}
