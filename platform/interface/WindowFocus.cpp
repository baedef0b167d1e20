// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
// Which view of a window has the keyboard.
#include "display/field_peers.h"
#include "interface/view_state.h"
#include "interface/window_state.h"

#include <algorithm>
#include <Message.h>
#include <Window.h>

using namespace kits;


BView*
BWindow::CurrentFocus() const
{
	return fWindow->focus;
}


// The program moves the keyboard: the display is told.
void
BWindow::_SetFocus(BView* view)
{
	fWindow->focus_serial++;
	_FollowFocus(view);
	if (fWindow->focus == view)
		_TellFocus();
}


void
BWindow::_TellFocus()
{
	BView* view = fWindow->focus;
	if (fWindow->widget)
		field_peers::focus(
			fWindow->widget, view ? view->fState->widget : nullptr, fWindow->focus_serial);
}


// The display has moved it, or is about to. Whoever loses it may have something to send first.
void
BWindow::_FollowFocus(BView* view)
{
	if (fWindow->focus == view)
		return;
	if (BView* before = fWindow->focus) {
		fWindow->focus = nullptr;
		SetPreferredHandler(nullptr);
		before->MakeFocus(false);
	}
	fWindow->focus = view;
	SetPreferredHandler(view);
}


// The keyboard on the display has moved on its own; the kit follows, unless the program has moved
// it since.
void
BWindow::_FocusReported(const BMessage& report, BView* view)
{
	if (report.FindInt32("serial") != fWindow->focus_serial)
		return;
	if (report.what == focus_gained)
		_FollowFocus(view);
	else if (fWindow->focus == view)
		_FollowFocus(nullptr);
}


// Gives the keyboard to the next view that takes part in the walk, in the order of the tree.
void
BWindow::_Navigate(bool forward)
{
	std::vector<BView*> stops;
	fWindow->root->_CollectNavigable(stops);
	if (stops.empty())
		return;
	if (!forward)
		std::reverse(stops.begin(), stops.end());
	auto here = std::find(stops.begin(), stops.end(), fWindow->focus);
	if (here == stops.end() || ++here == stops.end())
		here = stops.begin();
	// Round to where it began is left and entered again, so that a field alone confirms too.
	if (*here == fWindow->focus)
		(*here)->MakeFocus(false);
	(*here)->MakeFocus(true);
}


void
BView::_CollectNavigable(std::vector<BView*>& stops)
{
	if (fState->hidden > 0)
		return;
	if (fState->flags & B_NAVIGABLE && _TakesKeyboard())
		stops.push_back(this);
	for (BView* child : fState->children)
		child->_CollectNavigable(stops);
}


bool
BView::_TakesKeyboard() const
{
	return true;
}
