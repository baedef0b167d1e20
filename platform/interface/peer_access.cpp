// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "interface/peer_access.h"

#include "interface/view_state.h"

#include <Window.h>

using namespace kits;


peer_ref&
view_access::widget_of(BView& view)
{
	return view.fState->widget;
}


report_address
view_access::address_of(const BView& view)
{
	if (!view.Window())
		return {-1, -1};
	return {view._WindowToken(), view._Token()};
}


control_look
view_access::look_of(const BView& view, const std::string& label)
{
	control_look look;
	look.label = label;
	look.navigable = view.Flags() & B_NAVIGABLE;
	look.background = view.ViewColor();
	view.GetFont(&look.font);
	return look;
}


void
view_access::take_parent_colors(BView& view)
{
	if (const BView* parent = view.fState->parent) {
		view.SetViewColor(parent->ViewColor());
		view.SetLowColor(parent->LowColor());
	}
}
