// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
// What reaches a window from the display, and which view it is for.
#include "app/registry.h"
#include "interface/view_state.h"
#include "interface/window_state.h"

#include <AppDefs.h>
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
			_DeliverPointer(message);
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
	if (under == fWindow->root)
		under = nullptr;
	if (message->what == B_MOUSE_MOVED)
		_PointerMoved(message, under);
	else if (under)
		_SendPointer(*message, under, B_INSIDE_VIEW);
}


void
BWindow::_PointerMoved(BMessage* message, BView* under)
{
	auto* before = dynamic_cast<BView*>(registry::find(fWindow->under_pointer, fToken));
	fWindow->under_pointer = under ? under->fToken : 0;
	if (before && before != under)
		_SendPointer(*message, before, B_EXITED_VIEW);
	if (under)
		_SendPointer(*message, under, before == under ? B_INSIDE_VIEW : B_ENTERED_VIEW);
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
