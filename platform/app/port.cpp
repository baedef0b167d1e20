// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "app/port.h"

#include "app/activity.h"

#include <AppDefs.h>

using namespace kits;


namespace {

bool
idle_move(const BMessage& message)
{
	return message.what == B_MOUSE_MOVED && message.FindInt32("buttons") == 0;
}

}


port::~port()
{
	close();
}


bool
port::post(std::unique_ptr<BMessage> message, int32 handler)
{
	std::lock_guard guard(fLock);
	if (fClosed)
		return false;
	activity::begin();
	if (fWatcher && message->what == fWatched)
		fWatcher();
	fParcels.push_back({std::move(message), handler});
	fArrived.notify_one();
	return true;
}


bool
port::post_move(std::unique_ptr<BMessage> message, int32 handler)
{
	{
		std::lock_guard guard(fLock);
		if (!fClosed && _Replace(message))
			return true;
	}
	return post(std::move(message), handler);
}


bool
port::_Replace(std::unique_ptr<BMessage>& message)
{
	if (fParcels.empty() || !idle_move(*fParcels.back().message) || !idle_move(*message))
		return false;
	fParcels.back().message = std::move(message);
	return true;
}


void
port::watch(uint32 what, std::function<void()> arrived)
{
	std::lock_guard guard(fLock);
	fWatched = what;
	fWatcher = std::move(arrived);
	for (const parcel& each : fParcels) {
		if (fWatcher && each.message->what == what) {
			fWatcher();
			break;
		}
	}
}


parcel
port::next()
{
	std::unique_lock guard(fLock);
	fArrived.wait(guard, [this] { return !fParcels.empty(); });
	parcel first = std::move(fParcels.front());
	fParcels.pop_front();
	return first;
}


void
port::close()
{
	std::lock_guard guard(fLock);
	fClosed = true;
	for (size_t i = 0; i < fParcels.size(); i++)
		activity::end();
	fParcels.clear();
}
