// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KITS_PORT_H
#define KITS_PORT_H

#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <Message.h>
#include <mutex>

namespace kits {

// Handler token of a message for whatever handler the looper prefers when it is dispatched.
constexpr int32 preferred_handler = -1;
constexpr int32 no_token = -2;

// A message on its way and the token of the handler that it is for.
struct parcel {
	std::unique_ptr<BMessage> message;
	int32 handler = no_token;
};

// The queue of one looper. Outlives the looper while somebody still posts to it; a closed port
// takes nothing. Each parcel counts as activity until its receiver says that it is done.
class port {
public:
	~port();

	// False when the port is closed. Never blocks for long.
	bool post(std::unique_ptr<BMessage> message, int32 handler);
	// As post(), but takes the place of the last parcel if that is a pointer move too and nothing
	// is held in either: while no button is down only the latest position matters.
	bool post_move(std::unique_ptr<BMessage> message, int32 handler);
	// Calls back whenever a message of that code is queued, at once if one is already. One watcher;
	// null ends the watch. The callback must not post to this port.
	void watch(uint32 what, std::function<void()> arrived);
	// Waits for the next parcel. One reader.
	parcel next();
	// Drops what is queued and everything that comes.
	void close();

private:
	bool _Replace(std::unique_ptr<BMessage>& message);

	std::mutex fLock;
	std::condition_variable fArrived;
	std::deque<parcel> fParcels;
	bool fClosed = false;
	uint32 fWatched = 0;
	std::function<void()> fWatcher;
};

}

#endif
