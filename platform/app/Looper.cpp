// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "app/activity.h"
#include "app/looper_state.h"
#include "app/registry.h"
#include "display/display.h"

#include <AppDefs.h>
#include <cassert>
#include <Errors.h>
#include <Looper.h>

using namespace kits;


namespace {

// Takes no lock and no message any more. The lock is held.
void
close(looper_state& state, int32 token)
{
	state.gone = true;
	state.messages->close();
	registry::set_port(token, nullptr);
}


// A thread that is inside of Lock(): the looper's state must not go before it has its answer.
class waiting_mark {
public:
	explicit waiting_mark(looper_state& state) : fWaiting(state.waiting) { fWaiting++; }
	~waiting_mark() { fWaiting--; }

private:
	std::atomic<int32>& fWaiting;
};

}


BLooper::BLooper(const char* name) : BHandler(name), fState(new looper_state)
{
	fLooper = this;
	registry::set_looper(fToken, fToken);
	registry::set_port(fToken, fState->messages);
	Lock();
}


BLooper::~BLooper()
{
	_Join();
	if (!fState->gone)
		close(*fState, fToken);
	for (BHandler* handler : registry::handlers_of(fToken))
		RemoveHandler(handler);
	registry::set_looper(fToken, -1);
	fLooper = nullptr;
	while (IsLocked())
		_GiveUpLock();
	while (fState->waiting > 0)
		std::this_thread::yield();
}


status_t
BLooper::PostMessage(uint32 command)
{
	return PostMessage(command, this);
}


status_t
BLooper::PostMessage(BMessage* message)
{
	return PostMessage(message, this);
}


status_t
BLooper::PostMessage(uint32 command, BHandler* handler, BHandler* replyTo)
{
	return BMessenger(handler, this).SendMessage(command, replyTo);
}


status_t
BLooper::PostMessage(BMessage* message, BHandler* handler, BHandler* replyTo)
{
	return BMessenger(handler, this).SendMessage(message, replyTo);
}


void
BLooper::DispatchMessage(BMessage* message, BHandler* handler)
{
	if (message->what == B_QUIT_REQUESTED && handler == this) {
		if (QuitRequested())
			Quit();
	} else
		handler->MessageReceived(message);
}


void
BLooper::MessageReceived(BMessage* message)
{
	BHandler::MessageReceived(message);
}


BMessage*
BLooper::CurrentMessage() const
{
	return fState->current;
}


BHandler*
BLooper::PreferredHandler() const
{
	return fState->preferred;
}


void
BLooper::SetPreferredHandler(BHandler* handler)
{
	bool ours = handler && handler->Looper() == this;
	fState->preferred = ours ? handler : nullptr;
}


void
BLooper::AddHandler(BHandler* handler)
{
	if (!handler || handler->Looper())
		return;
	handler->fLooper = this;
	handler->fNext = this;
	registry::set_looper(handler->fToken, fToken);
}


bool
BLooper::RemoveHandler(BHandler* handler)
{
	if (!handler || handler->Looper() != this || handler == this)
		return false;
	if (fState->preferred == handler)
		fState->preferred = nullptr;
	registry::set_looper(handler->fToken, -1);
	handler->fLooper = nullptr;
	handler->fNext = nullptr;
	return true;
}


thread_id
BLooper::Run()
{
	if (!Lock())
		return B_ERROR;
	_StartThread();
	// With the last turn of the lock the looper may end and delete itself.
	thread_id number = Thread();
	for (int32 turns = fState->depth; turns > 0; turns--)
		Unlock();
	return number;
}


// Any number that is the looper's alone will do; the token is one.
thread_id
BLooper::Thread() const
{
	return fToken;
}


bool
BLooper::QuitRequested()
{
	return true;
}


void
BLooper::Quit()
{
	if (!IsLocked() && !Lock())
		return;
	if (!_HasThread()) {
		delete this;
		return;
	}
	// The thread is the one that deletes, however many have asked for it.
	fState->delete_at_end = true;
	if (std::this_thread::get_id() == fState->thread_id.load()) {
		_EndLoop();
		return;
	}
	std::shared_ptr<std::latch> deleted = fState->deleted;
	PostMessage(_QUIT_);
	for (int32 turns = fState->depth; turns > 0; turns--)
		Unlock();
	deleted->wait();
}


void
BLooper::_EndLoop()
{
	if (!_HasThread()) {
		close(*fState, fToken);
		while (IsLocked())
			_GiveUpLock();
		return;
	}
	if (std::this_thread::get_id() == fState->thread_id.load()) {
		fState->ending = true;
		return;
	}
	PostMessage(_QUIT_);
	while (IsLocked())
		Unlock();
	_Join();
}


bool
BLooper::Lock()
{
	return LockWithTimeout(B_INFINITE_TIMEOUT) == B_OK;
}


status_t
BLooper::LockWithTimeout(bigtime_t timeout)
{
	assert(!display::serving_here() && "the display thread waits for nobody");
	waiting_mark mark(*fState);
	if (!IsLocked() && !fState->lock.take(timeout))
		return B_TIMED_OUT;
	fState->owner = std::this_thread::get_id();
	fState->depth++;
	if (fState->gone) {
		_GiveUpLock();
		return B_ERROR;
	}
	return B_OK;
}


void
BLooper::Unlock()
{
	if (fState->depth == 1 && !fState->gone)
		_Flush();
	_GiveUpLock();
}


void
BLooper::_GiveUpLock()
{
	if (--fState->depth > 0)
		return;
	fState->owner = std::thread::id();
	fState->lock.give();
}


bool
BLooper::IsLocked() const
{
	return fState->owner.load() == std::this_thread::get_id();
}


void
BLooper::_Flush()
{
}


void
BLooper::_StartThread()
{
	activity::begin();
	fState->started = true;
	fState->thread = std::thread([this] { _Loop(); });
}


bool
BLooper::_HasThread() const
{
	return fState->started;
}


void
BLooper::_Join()
{
	if (_HasThread() && std::this_thread::get_id() == fState->thread_id.load()) {
		fState->thread.detach();
		return;
	}
	std::lock_guard guard(fState->joining);
	if (fState->thread.joinable())
		fState->thread.join();
}


void
BLooper::_Loop()
{
	fState->thread_id = std::this_thread::get_id();
	Lock();
	// What the window was told before it ran is drawn before its first message.
	Unlock();
	activity::end();
	while (!fState->ending) {
		parcel next = fState->messages->next();
		Lock();
		_Handle(next);
		if (fState->ending)
			close(*fState, fToken);
		Unlock();
		next.message.reset();
		activity::end();
	}
	if (!fState->delete_at_end)
		return;
	std::shared_ptr<std::latch> deleted = fState->deleted;
	delete this;
	deleted->count_down();
}


void
BLooper::_Handle(parcel& next)
{
	if (next.message->what == _QUIT_ && next.handler == fToken) {
		fState->ending = true;
		return;
	}
	BHandler* target = next.handler == preferred_handler ? fState->preferred
														 : registry::find(next.handler, fToken);
	if (next.handler == preferred_handler && !target)
		target = this;
	if (!target)
		return;
	_Deliver(next.message.get(), target);
}


void
BLooper::_Deliver(BMessage* message, BHandler* handler)
{
	_DispatchTo(message, handler);
}


void
BLooper::_DispatchTo(BMessage* message, BHandler* handler)
{
	BMessage* outer = fState->current;
	fState->current = message;
	DispatchMessage(message, handler);
	fState->current = outer;
}
