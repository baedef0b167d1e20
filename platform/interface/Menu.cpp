// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "interface/menu_access.h"
#include "interface/view_state.h"

#include <Errors.h>
#include <Menu.h>
#include <MenuField.h>
#include <MenuItem.h>
#include <Message.h>
#include <Window.h>

#include <algorithm>
#include <cstring>

using namespace kits;


BMenu::BMenu(const char* name, menu_layout layout)
	: BMenu(BRect(0, 0, 0, 0), name, B_FOLLOW_LEFT_TOP, B_WILL_DRAW, layout)
{
}


BMenu::BMenu(BRect frame, const char* name, uint32 resizingMode, uint32 flags, menu_layout layout)
	: BView(frame, name, resizingMode, flags),
	  fSuperItem(nullptr),
	  fField(nullptr),
	  fLayout(layout),
	  fRadioMode(false),
	  fLabelFromMarked(false)
{
}


BMenu::~BMenu()
{
	if (fField)
		fField->fMenu = nullptr;
	for (BMenuItem* item : fItems)
		delete item;
}


bool
BMenu::AddItem(BMenuItem* item)
{
	return AddItem(item, CountItems());
}


bool
BMenu::AddItem(BMenuItem* item, int32 index)
{
	if (!item || item->fMenu)
		return false;
	index = std::clamp(index, 0, CountItems());
	fItems.insert(fItems.begin() + index, item);
	item->fMenu = this;
	_ContentChanged();
	return true;
}


bool
BMenu::AddItem(BMenu* submenu)
{
	return submenu && AddItem(new BMenuItem(submenu));
}


bool
BMenu::AddItem(BMenu* submenu, int32 index)
{
	return submenu && AddItem(new BMenuItem(submenu), index);
}


BMenuItem*
BMenu::ItemAt(int32 index) const
{
	return index >= 0 && index < CountItems() ? fItems[(size_t)index] : nullptr;
}


BMenu*
BMenu::SubmenuAt(int32 index) const
{
	BMenuItem* item = ItemAt(index);
	return item ? item->Submenu() : nullptr;
}


int32
BMenu::CountItems() const
{
	return (int32)fItems.size();
}


int32
BMenu::IndexOf(BMenuItem* item) const
{
	auto found = std::find(fItems.begin(), fItems.end(), item);
	return found == fItems.end() ? -1 : (int32)(found - fItems.begin());
}


BMenuItem*
BMenu::FindItem(const char* label) const
{
	for (BMenuItem* item : fItems) {
		if (label && strcmp(item->Label(), label) == 0)
			return item;
		if (BMenuItem* found = item->fSubmenu ? item->fSubmenu->FindItem(label) : nullptr)
			return found;
	}
	return nullptr;
}


BMenuItem*
BMenu::FindItem(uint32 command) const
{
	for (BMenuItem* item : fItems) {
		if (item->Message() && item->Command() == command)
			return item;
		if (BMenuItem* found = item->fSubmenu ? item->fSubmenu->FindItem(command) : nullptr)
			return found;
	}
	return nullptr;
}


menu_layout
BMenu::Layout() const
{
	return fLayout;
}


void
BMenu::SetRadioMode(bool radio)
{
	fRadioMode = radio;
}


bool
BMenu::IsRadioMode() const
{
	return fRadioMode;
}


void
BMenu::SetLabelFromMarked(bool follows)
{
	fLabelFromMarked = follows;
	if (fField)
		fField->_TellPeer();
}


bool
BMenu::IsLabelFromMarked() const
{
	return fLabelFromMarked;
}


BMenuItem*
BMenu::FindMarked()
{
	auto found = std::find_if(
		fItems.begin(), fItems.end(), [](const BMenuItem* item) { return item->IsMarked(); });
	return found == fItems.end() ? nullptr : *found;
}


void
BMenu::_Unmark(const BMenuItem* but)
{
	for (BMenuItem* item : fItems) {
		if (item != but && item->fMarked)
			item->SetMarked(false);
	}
}


status_t
BMenu::SetTargetForItems(BHandler* target)
{
	return SetTargetForItems(BMessenger(target));
}


status_t
BMenu::SetTargetForItems(BMessenger target)
{
	for (BMenuItem* item : fItems)
		item->SetTarget(target);
	return target.IsValid() ? B_OK : B_BAD_VALUE;
}


void
BMenu::AttachedToWindow()
{
	_AdoptTargets(Window());
}


// Items that nobody has aimed report to the window.
void
BMenu::_AdoptTargets(BWindow* window)
{
	for (BMenuItem* item : fItems) {
		if (!item->Messenger().IsValid())
			item->SetTarget(window);
		if (item->fSubmenu)
			item->fSubmenu->_AdoptTargets(window);
	}
}


void
BMenu::MessageReceived(BMessage* message)
{
	if (message->what != menu_chosen) {
		BView::MessageReceived(message);
		return;
	}
	BMenuItem* item = _ItemOf(message->FindInt32("id"));
	if (!item)
		return;
	if (item->fMenu->fRadioMode)
		item->SetMarked(true);
	item->Invoke();
}


BMenuItem*
BMenu::_ItemOf(int32 id) const
{
	for (BMenuItem* item : fItems) {
		if (item->fId == id)
			return item;
		if (BMenuItem* found = item->fSubmenu ? item->fSubmenu->_ItemOf(id) : nullptr)
			return found;
	}
	return nullptr;
}


// The menu that stands in a window: the one whose peer shows them all.
BMenu*
BMenu::_Top()
{
	BMenu* menu = this;
	while (menu->fSuperItem && menu->fSuperItem->fMenu)
		menu = menu->fSuperItem->fMenu;
	return menu;
}


void
BMenu::_ContentChanged()
{
	BMenu* top = _Top();
	if (top->fState->window)
		top->_AdoptTargets(top->fState->window);
	if (top->fField)
		top->fField->_TellPeer();
	else if (top->fState->widget) {
		menu_peers::set_menu_bar(top->fState->widget, menu_access::entries_of(*top),
			{top->_WindowToken(), top->_Token()});
	}
}


bool
BMenu::_IsPainted() const
{
	return false;
}


// A menu bar has one; other menus are shown by what they open from.
void
BMenu::_MakePeer()
{
}


const char*
menu_access::shown_label(const BMenu& menu)
{
	BMenuItem* marked = menu.fLabelFromMarked ? const_cast<BMenu&>(menu).FindMarked() : nullptr;
	return marked ? marked->Label() : menu.Name();
}


void
menu_access::set_field(BMenu& menu, BMenuField* field)
{
	menu.fField = field;
}


std::vector<menu_entry>
menu_access::entries_of(const BMenu& menu)
{
	std::vector<menu_entry> entries;
	for (const BMenuItem* item : menu.fItems)
		entries.push_back(entry_of(*item));
	return entries;
}


menu_entry
menu_access::entry_of(const BMenuItem& item)
{
	menu_entry entry{
		item.fId, item.fLabel, item.fMarked, item.fEnabled, item.fSubmenu != nullptr, {}};
	if (item.fSubmenu)
		entry.entries = entries_of(*item.fSubmenu);
	return entry;
}
