// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "interface/menu_access.h"
#include "interface/peer_access.h"

#include <cmath>
#include <Menu.h>
#include <MenuField.h>
#include <Message.h>

using namespace kits;


namespace {

menu_field_look
look_of_field(const BMenuField& field, bool fixed_size)
{
	menu_field_look look{field.Divider(), fixed_size, "", {}, {}};
	if (BMenu* menu = field.Menu()) {
		look.shown = menu_access::shown_label(*menu);
		look.entries = menu_access::entries_of(*menu);
		look.menu = view_access::address_of(*menu);
	}
	return look;
}

}


BMenuField::BMenuField(BRect frame, const char* name, const char* label, BMenu* menu,
	uint32 resizingMode, uint32 flags)
	: BMenuField(frame, name, label, menu, false, resizingMode, flags)
{
}


BMenuField::BMenuField(BRect frame, const char* name, const char* label, BMenu* menu,
	bool fixedSize, uint32 resizingMode, uint32 flags)
	: BView(frame, name, resizingMode, flags),
	  fLabel(label ? label : ""),
	  fMenu(menu),
	  fDivider(fLabel.empty() ? 0 : std::floor(Frame().Width() / 2)),
	  fFixedSize(fixedSize)
{
	if (!menu)
		return;
	// A child for the sake of its messages; what is seen of it is this view's.
	AddChild(menu);
	menu_access::set_field(*menu, this);
}


BMenuField::~BMenuField()
{
	if (fMenu)
		menu_access::set_field(*fMenu, nullptr);
}


BMenu*
BMenuField::Menu() const
{
	return fMenu;
}


const char*
BMenuField::Label() const
{
	return fLabel.c_str();
}


void
BMenuField::SetDivider(float divider)
{
	fDivider = divider;
	_TellPeer();
}


float
BMenuField::Divider() const
{
	return fDivider;
}


void
BMenuField::AttachedToWindow()
{
	view_access::take_parent_colors(*this);
	_TellPeer();
}


bool
BMenuField::_IsPainted() const
{
	return false;
}


void
BMenuField::_MakePeer()
{
	view_access::widget_of(*this) = menu_peers::make_menu_field(_ParentWidget(), _PeerFrame(),
		!IsHidden(this), view_access::look_of(*this, fLabel), look_of_field(*this, fFixedSize),
		view_access::address_of(*this));
}


void
BMenuField::_TellPeer()
{
	if (const peer_ref& widget = view_access::widget_of(*this)) {
		menu_peers::set_menu_field(
			widget, view_access::look_of(*this, fLabel), look_of_field(*this, fFixedSize));
	}
}
