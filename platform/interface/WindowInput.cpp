// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
// What reaches a window from the display, and which view it is for.
#include "app/message_access.h"
#include "app/registry.h"
#include "display/field_peers.h"
#include "display/focus.h"
#include "display/input.h"
#include "interface/view_state.h"
#include "interface/window_state.h"

#include <algorithm>
#include <AppDefs.h>
#include <Application.h>
#include <cmath>
#include <Message.h>
#include <Window.h>

using namespace kits;


void
BWindow::_Deliver(BMessage* message, BHandler* handler)
{
	bool ours = handler == this;
	switch (ours ? message->what : 0) {
		case B_MOUSE_DOWN:
		case B_MOUSE_UP:
		case B_MOUSE_MOVED:
		case B_MOUSE_WHEEL_CHANGED:
		case pointer_left:
			_DeliverPointer(message);
			break;
		case B_KEY_DOWN:
		case B_KEY_UP:
		case B_UNMAPPED_KEY_DOWN:
		case B_UNMAPPED_KEY_UP:
		case B_MODIFIERS_CHANGED:
			_DeliverKey(message);
			break;
		case B_SIMPLE_DATA:
			_DeliverDrop(message);
			break;
		case B_VIEW_RESIZED:
			// A change from now on is told by another.
			fWindow->resize_told = false;
			BLooper::_Deliver(message, handler);
			break;
		default:
			BLooper::_Deliver(message, handler);
	}
}


void
BWindow::DispatchMessage(BMessage* message, BHandler* handler)
{
	if (handler != this) {
		BLooper::DispatchMessage(message, handler);
		return;
	}
	switch (message->what) {
		case B_WINDOW_RESIZED:
			_ResizedByUser(message);
			break;
		case B_WINDOW_MOVED:
			if (message->FindInt32(serial_field) == fWindow->move_serial)
				fWindow->position = message->FindPoint(place_field);
			break;
		case B_VIEW_RESIZED:
			FrameResized(fWindow->width, fWindow->height);
			break;
		case B_ZOOM:
			Zoom();
			break;
		case ratio_changed:
			fWindow->ratio = message->FindFloat("ratio");
			fWindow->root->_ForgetImages();
			break;
		case focus_taken:
			_FocusReported(*message);
			break;
		case show_now:
			if (fWindow->hidden <= 0)
				window_peers::show(fWindow->widget, true);
			break;
		case _UPDATE_:
			break;
		default:
			BLooper::DispatchMessage(message, handler);
	}
}


void
BWindow::MessageReceived(BMessage* message)
{
	BLooper::MessageReceived(message);
}


// Reports from before the window's own last change of size are out of date.
void
BWindow::_ResizedByUser(BMessage* message)
{
	if (message->FindInt32(serial_field) != fWindow->size_serial)
		return;
	float width = (float)message->FindInt32(width_field) - 1;
	float height = (float)message->FindInt32(height_field) - 1;
	if (width != fWindow->width || height != fWindow->height)
		_SetSize(width, height);
}


void
BWindow::_DeliverPointer(BMessage* message)
{
	BPoint where = message->FindPoint("where");
	BView* under = fWindow->root->_ViewAt(where);
	if (under == fWindow->root || message->what == pointer_left)
		under = nullptr;
	if (message->what == pointer_left)
		message->what = B_MOUSE_MOVED;
	if (message->what == B_MOUSE_MOVED) {
		_PointerMoved(message, under);
		return;
	}
	int32 meant = under ? under->fToken : 0;
	// Pressed without a move before: the next move may leave it all the same.
	if (under) {
		fWindow->under_pointer = meant;
		_SendPointer(*message, under, B_INSIDE_VIEW);
	}
	if (message->what != B_MOUSE_WHEEL_CHANGED)
		_TellWatchers(*message, B_POINTER_EVENTS, {meant});
	if (message->what == B_MOUSE_DOWN)
		field_peers::press_answered(fWindow->widget);
	if (message->what == B_MOUSE_UP && message->FindInt32("buttons") == 0)
		_EndPress();
}


void
BWindow::_PointerMoved(BMessage* message, BView* under)
{
	int32 left = fWindow->under_pointer;
	auto* before = dynamic_cast<BView*>(registry::find(left, fToken));
	fWindow->under_pointer = under ? under->fToken : 0;
	if (before && before != under)
		_SendPointer(*message, before, B_EXITED_VIEW);
	bool entered = before != under;
	// Found anew: what a view did when it was left may have removed this one.
	under = dynamic_cast<BView*>(registry::find(fWindow->under_pointer, fToken));
	std::vector<int32> told = {left, fWindow->under_pointer};
	if (under)
		_SendPointer(*message, under, entered ? B_ENTERED_VIEW : B_INSIDE_VIEW);
	_TellWatchers(*message, B_POINTER_EVENTS, told);
}


// Each view that asked for such events and has not been told of this one. Whoever is told may
// remove others.
void
BWindow::_TellWatchers(const BMessage& message, uint32 mask, const std::vector<int32>& told)
{
	std::vector<int32> watchers = fWindow->watchers;
	for (int32 token : watchers) {
		auto* view = dynamic_cast<BView*>(registry::find(token, fToken));
		if (!view || std::find(told.begin(), told.end(), token) != told.end())
			continue;
		if (!((view->fState->event_mask | view->fState->press_mask) & mask))
			continue;
		if (mask == B_POINTER_EVENTS)
			_SendPointer(message, view, B_OUTSIDE_VIEW);
		else {
			BMessage copy(message);
			_DispatchTo(&copy, view);
		}
	}
}


// The last button is up: what was asked for until then is over.
void
BWindow::_EndPress()
{
	std::vector<int32> watchers = fWindow->watchers;
	for (int32 token : watchers) {
		if (auto* view = dynamic_cast<BView*>(registry::find(token, fToken)))
			view->_Watch(view->fState->press_mask, 0);
	}
}


// The copy that one view gets, in its coordinates: pixels, whatever its drawing scale.
void
BWindow::_SendPointer(const BMessage& message, BView* view, uint32 transit)
{
	BMessage copy(message);
	BPoint where = view->_FromWindow(message.FindPoint("where"));
	copy.AddPoint("be:view_where", where);
	if (message.what == B_MOUSE_MOVED)
		copy.AddInt32("be:transit", (int32)transit);
	else {
		copy.RemoveName("where");
		copy.AddPoint("where", where);
	}
	_DispatchTo(&copy, view);
}


// Keys belong to the view that has the keyboard. With the Command key held they are shortcuts or
// nothing.
void
BWindow::_DeliverKey(BMessage* message)
{
	BView* focus = fWindow->focus;
	bool down = message->what == B_KEY_DOWN;
	if (down && _Shortcut(*message))
		return;
	const char* bytes = message->FindString("bytes");
	if (!focus && down && bytes && bytes[0] == B_TAB)
		_Navigate(!(message->FindInt32("modifiers") & B_SHIFT_KEY));
	else {
		int32 meant = focus ? focus->fToken : 0;
		_DispatchTo(message, focus ? static_cast<BHandler*>(focus) : this);
		_TellWatchers(*message, B_KEYBOARD_EVENTS, {meant});
	}
}


// True when the key has been dealt with.
bool
BWindow::_Shortcut(const BMessage& message)
{
	int32 modifiers = message.FindInt32("modifiers");
	bool command = modifiers & B_COMMAND_KEY;
	bool control = modifiers & B_CONTROL_KEY;
	int32 key = message.FindInt32("raw_char");
	if (command && key == 'q')
		be_app_messenger.SendMessage(B_QUIT_REQUESTED);
	else if (command && key == 'w')
		PostMessage(B_QUIT_REQUESTED);
	if (!command && !(control && (key == 'c' || key == 'v')))
		return false;
	// The desktop's own copy and paste count as well as the platform's.
	static const struct {
		int32 key;
		uint32 what;
	} edits[] = {{'c', B_COPY}, {'v', B_PASTE}, {'x', B_CUT}, {'a', B_SELECT_ALL}};
	for (const auto& edit : edits) {
		if (edit.key != key || !fWindow->focus)
			continue;
		BMessage posted(edit.what);
		posted.AddInt64("when", message.FindInt64("when"));
		posted.AddBool("shortcut", true);
		PostMessage(&posted, fWindow->focus);
	}
	return true;
}


// To the innermost view under the pointer; one that does not know it passes it on.
void
BWindow::_DeliverDrop(BMessage* message)
{
	BPoint where = message->FindPoint(drop_field);
	if (!message->WasDropped()) {
		BLooper::_Deliver(message, this);
		return;
	}
	message->RemoveName(drop_field);
	BView* under = fWindow->root->_ViewAt(where);
	bool inside = under && under != fWindow->root;
	_DispatchTo(message, inside ? static_cast<BHandler*>(under) : this);
}
