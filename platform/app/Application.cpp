// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "app/activity.h"
#include "app/looper_state.h"
#include "app/start_arguments.h"
#include "display/display.h"
#include "display/window_peer.h"
#include "support/output.h"

#include <algorithm>
#include <AppDefs.h>
#include <Application.h>
#include <Window.h>

using namespace kits;

BApplication* be_app = nullptr;


BApplication::BApplication(const char* signature)
	: BLooper(signature),
	  fStarted(false),
	  fReady(false)
{
	never_wait_for_output();
	display::start();
	be_app = this;
	be_app_messenger = BMessenger(this);
}


BApplication::~BApplication()
{
	std::vector<BWindow*> left = _Windows();
	for (BWindow* window : left)
		delete window;
	be_app_messenger = BMessenger();
	be_app = nullptr;
	display::drain();
}


thread_id
BApplication::Run()
{
	BMessage refs = refs_of_start_arguments();
	if (refs.HasRef("refs"))
		PostMessage(&refs);
	PostMessage(B_READY_TO_RUN);
	_StartWindows();
	activity::begin();
	fState->started = true;
	fState->thread = std::thread([this] {
		_Loop();
		_QuitWindows();
		display::stop();
	});
	while (IsLocked())
		Unlock();
	display::serve();
	_Join();
	display::drain();
	return Thread();
}


void
BApplication::_StartWindows()
{
	std::vector<BWindow*> waiting;
	{
		std::lock_guard guard(fWindowLock);
		fStarted = true;
		waiting = fWindows;
	}
	// All locks are had before any thread runs: this one must not wait for those that will wait for
	// the display. The birth lock of a window that was never shown goes, too.
	for (BWindow* window : waiting)
		window->Lock();
	for (BWindow* window : waiting) {
		window->_StartIfShown();
		while (window->IsLocked())
			window->_GiveUpLock();
	}
}


// The files that the program was started with are open now, and the windows have been told. So each
// is shown first with what is in it, at its size: after what its own queue holds.
void
BApplication::_ShowWindows()
{
	std::lock_guard guard(fWindowLock);
	fReady = true;
	for (BWindow* window : fShownLater)
		window->PostMessage(show_now);
	fShownLater.clear();
}


bool
BApplication::_ShowsLater(BWindow* window)
{
	std::lock_guard guard(fWindowLock);
	if (!fReady)
		fShownLater.push_back(window);
	return !fReady;
}


void
BApplication::Quit()
{
	if (std::this_thread::get_id() == fState->thread_id.load())
		_EndLoop();
	else
		PostMessage(_QUIT_);
}


bool
BApplication::QuitRequested()
{
	for (BWindow* window : _Windows()) {
		if (!window->Lock())
			continue;
		if (!window->QuitRequested()) {
			window->Unlock();
			return false;
		}
		window->Quit();
	}
	return true;
}


// Those that are left when the application ends without asking them. Their threads may still need an
// answer of the display, so that it goes on until they are done.
void
BApplication::_QuitWindows()
{
	for (BWindow* window : _Windows()) {
		if (window->Lock())
			window->Quit();
	}
}


void
BApplication::MessageReceived(BMessage* message)
{
	BLooper::MessageReceived(message);
}


void
BApplication::DispatchMessage(BMessage* message, BHandler* handler)
{
	if (handler != this) {
		BLooper::DispatchMessage(message, handler);
		return;
	}
	switch (message->what) {
		case B_REFS_RECEIVED:
			RefsReceived(message);
			break;
		case B_ABOUT_REQUESTED:
			AboutRequested();
			break;
		case B_READY_TO_RUN:
			ReadyToRun();
			_ShowWindows();
			break;
		default:
			BLooper::DispatchMessage(message, handler);
	}
}


void
BApplication::RefsReceived(BMessage*)
{
}


void
BApplication::AboutRequested()
{
}


void
BApplication::ReadyToRun()
{
}


int32
BApplication::CountWindows() const
{
	return (int32)_RunningWindows().size();
}


BWindow*
BApplication::WindowAt(int32 index) const
{
	std::vector<BWindow*> running = _RunningWindows();
	return index >= 0 && (size_t)index < running.size() ? running[(size_t)index] : nullptr;
}


bool
BApplication::_AddWindow(BWindow* window)
{
	std::lock_guard guard(fWindowLock);
	fWindows.push_back(window);
	return fStarted;
}


void
BApplication::_RemoveWindow(BWindow* window)
{
	std::lock_guard guard(fWindowLock);
	std::erase(fWindows, window);
	std::erase(fShownLater, window);
}


bool
BApplication::_Started() const
{
	std::lock_guard guard(fWindowLock);
	return fStarted;
}


std::vector<BWindow*>
BApplication::_Windows() const
{
	std::lock_guard guard(fWindowLock);
	return fWindows;
}


std::vector<BWindow*>
BApplication::_RunningWindows() const
{
	std::vector<BWindow*> all = _Windows();
	std::erase_if(all, [](BWindow* window) { return window->_HasQuit(); });
	return all;
}
