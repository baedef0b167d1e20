// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
// What a view hears of the user, and how it asks for it.
#include "interface/view_state.h"
#include "interface/window_state.h"

#include <AppDefs.h>
#include <cstring>
#include <Errors.h>
#include <Message.h>
#include <Window.h>

using namespace kits;


void
BView::MessageReceived(BMessage* message)
{
	switch (message->what) {
		case B_MOUSE_DOWN:
			MouseDown(message->FindPoint("be:view_where"));
			break;
		case B_MOUSE_UP:
			MouseUp(message->FindPoint("be:view_where"));
			break;
		case B_MOUSE_MOVED:
			MouseMoved(message->FindPoint("be:view_where"),
				(uint32)message->FindInt32("be:transit"), nullptr);
			break;
		case B_MOUSE_WHEEL_CHANGED:
			_Wheel(message);
			break;
		case B_KEY_DOWN:
		case B_KEY_UP:
			_Key(message);
			break;
		default:
			BHandler::MessageReceived(message);
	}
}


void
BView::MouseDown(BPoint)
{
}


void
BView::MouseUp(BPoint)
{
}


void
BView::MouseMoved(BPoint, uint32, const BMessage*)
{
}


// A message without "bytes" is no key.
void
BView::_Key(BMessage* message)
{
	const char* bytes;
	if (message->FindString("bytes", &bytes) != B_OK)
		return;
	if (message->what == B_KEY_DOWN)
		KeyDown(bytes, (int32)strlen(bytes));
	else
		KeyUp(bytes, (int32)strlen(bytes));
}


void
BView::KeyDown(const char* bytes, int32 numBytes)
{
	const BMessage* message = fState->window ? fState->window->CurrentMessage() : nullptr;
	if (numBytes == 1 && bytes[0] == B_TAB && message)
		fState->window->_Navigate(!(message->FindInt32("modifiers") & B_SHIFT_KEY));
}


void
BView::KeyUp(const char*, int32)
{
}


void
BView::MakeFocus(bool focus)
{
	BWindow* window = fState->window;
	if (!window || focus == IsFocus())
		return;
	// Forgotten before the window is told, who would call this hook a second time.
	if (!focus) {
		window->fWindow->focus = nullptr;
		window->SetPreferredHandler(nullptr);
	}
	window->_SetFocus(focus ? this : nullptr);
}


bool
BView::IsFocus() const
{
	return fState->window && fState->window->CurrentFocus() == this;
}


status_t
BView::SetEventMask(uint32 mask, uint32)
{
	return _Watch(fState->event_mask, mask);
}


status_t
BView::SetMouseEventMask(uint32 mask, uint32)
{
	const BMessage* message = fState->window ? fState->window->CurrentMessage() : nullptr;
	bool pressed = message && message->what == B_MOUSE_DOWN;
	return pressed ? _Watch(fState->press_mask, mask) : B_ERROR;
}


// A view that is not attached yet is entered when it is.
status_t
BView::_Watch(uint32& mask, uint32 wanted)
{
	mask = wanted;
	if (!fState->window)
		return B_OK;
	std::vector<int32>& watchers = fState->window->fWindow->watchers;
	std::erase(watchers, fToken);
	if (fState->event_mask | fState->press_mask)
		watchers.push_back(fToken);
	return B_OK;
}


void
BView::_EndWatch()
{
	fState->event_mask = 0;
	_Watch(fState->press_mask, 0);
}


void
BView::GetMouse(BPoint* location, uint32* buttons, bool)
{
	BPoint where(0, 0);
	uint32 held = 0;
	if (BWindow* window = fState->window) {
		Flush();
		window->fWindow->pointer->get(where, held);
		where = _FromWindow(where);
	}
	if (location)
		*location = where;
	if (buttons)
		*buttons = held;
}
