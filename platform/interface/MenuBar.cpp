// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "interface/menu_access.h"
#include "interface/view_state.h"

#include <MenuBar.h>
#include <Window.h>

using namespace kits;


BMenuBar::BMenuBar(
	BRect frame, const char* name, uint32 resizingMode, menu_layout layout, bool resizeToFit)
	: BMenu(frame, name, resizingMode, B_WILL_DRAW, layout),
	  fResizeToFit(resizeToFit)
{
}


void
BMenuBar::AttachedToWindow()
{
	BMenu::AttachedToWindow();
	if (fResizeToFit && (ResizingMode() & 0x0F0F) == B_FOLLOW_LEFT_RIGHT)
		ResizeTo(Window()->Bounds().Width() - Frame().left, Frame().Height());
}


void
BMenuBar::_MakePeer()
{
	fState->widget = menu_peers::make_menu_bar(_ParentWidget(), _PeerFrame(), fState->hidden <= 0,
		menu_access::entries_of(*this), {_WindowToken(), _Token()});
}
