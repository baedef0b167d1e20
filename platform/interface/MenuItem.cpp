// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "app/invocation.h"
#include "interface/menu_access.h"
#include "interface/view_state.h"

#include <Errors.h>
#include <Menu.h>
#include <MenuField.h>
#include <MenuItem.h>
#include <Message.h>

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


BMenuItem::BMenuItem(const char* label, BMessage* message, char, uint32)
	: BInvoker(message),
	  fLabel(label ? label : ""),
	  fMenu(nullptr),
	  fSubmenu(nullptr),
	  fId(next_id()),
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
	std::optional<BMessage> sent = invocation(*this, message, this);
	if (!sent)
		return B_BAD_VALUE;
	if (fMenu) {
		sent->AddInt32("index", fMenu->IndexOf(this));
		sent->AddMessenger("be:sender", BMessenger(fMenu));
	}
	return BInvoker::Invoke(&*sent);
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
