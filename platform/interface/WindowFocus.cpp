// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
// Which view of a window has the keyboard.
#include "app/registry.h"
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
			fWindow->widget, view ? view->fState->widget : nullptr, fWindow->focus_moves);
}


// The display has moved it, or is about to. Whoever loses it may have something to send first, or
// gives it to a third, who then has it.
void
BWindow::_FollowFocus(BView* view)
{
	if (fWindow->focus == view)
		return;
	if (BView* before = fWindow->focus) {
		fWindow->focus = nullptr;
		SetPreferredHandler(nullptr);
		before->MakeFocus(false);
		if (fWindow->focus)
			return;
	}
	fWindow->focus = view;
	SetPreferredHandler(view);
}


// The user has moved it on the display.
void
BWindow::_FocusReported(const BMessage& report)
{
	fWindow->focus_moves = report.FindInt32("moves");
	auto* view = dynamic_cast<BView*>(registry::find(report.FindInt32("view"), fToken));
	// Gone or switched off meanwhile: the keyboard goes back to where it was.
	if (!view || !view->_TakesKeyboard()) {
		_TellFocus();
		return;
	}
	// The walk may lead round to where it began: left and entered again, a field alone confirms too.
	if (fWindow->focus == view) {
		_FollowFocus(nullptr);
		if (fWindow->focus)
			return;
	}
	_FollowFocus(view);
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
