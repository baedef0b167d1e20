// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "interface/menu_access.h"
#include "interface/view_state.h"

#include <Errors.h>
#include <Menu.h>
#include <MenuField.h>
#include <MenuItem.h>
#include <Message.h>
#include <OS.h>

#include <atomic>

using namespace kits;


namespace {

int32
next_id()
{
	static std::atomic<int32> last{0};
	return ++last;
}

}


BMenuItem::BMenuItem(const char* label, BMessage* message, char shortcut, uint32 modifiers)
	: BInvoker(message),
	  fLabel(label ? label : ""),
	  fMenu(nullptr),
	  fSubmenu(nullptr),
	  fId(next_id()),
	  fShortcut(shortcut),
	  fModifiers(modifiers),
	  fMarked(false),
	  fEnabled(true)
{
}


BMenuItem::BMenuItem(BMenu* submenu, BMessage* message)
	: BMenuItem(submenu ? submenu->Name() : "", message)
{
	fSubmenu = submenu;
	if (submenu)
		submenu->fSuperItem = this;
}


BMenuItem::~BMenuItem()
{
	delete fSubmenu;
}


const char*
BMenuItem::Label() const
{
	return fLabel.c_str();
}


void
BMenuItem::SetMarked(bool marked)
{
	if (marked && fMenu && fMenu->fRadioMode)
		fMenu->_Unmark(this);
	fMarked = marked;
	_TellPeer();
}


bool
BMenuItem::IsMarked() const
{
	return fMarked;
}


void
BMenuItem::SetEnabled(bool enabled)
{
	fEnabled = enabled;
	_TellPeer();
}


bool
BMenuItem::IsEnabled() const
{
	return fEnabled;
}


BMenu*
BMenuItem::Submenu() const
{
	return fSubmenu;
}


BMenu*
BMenuItem::Menu() const
{
	return fMenu;
}


status_t
BMenuItem::Invoke(BMessage* message)
{
	if (!message)
		message = Message();
	if (!message)
		return B_BAD_VALUE;
	BMessage copy(*message);
	copy.AddInt64("when", system_time());
	copy.AddPointer("source", this);
	if (fMenu) {
		copy.AddInt32("index", fMenu->IndexOf(this));
		copy.AddMessenger("be:sender", BMessenger(fMenu));
	}
	return BInvoker::Invoke(&copy);
}


void
BMenuItem::_TellPeer()
{
	BMenu* top = fMenu ? fMenu->_Top() : nullptr;
	if (top && top->fField)
		top->fField->_TellPeer();
	else if (top && top->fState->widget)
		menu_peers::set_menu_entry(top->fState->widget, fId, fMarked, fEnabled);
}
