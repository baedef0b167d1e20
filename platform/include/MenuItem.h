// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_MENUITEM_H
#define KITS_MENUITEM_H

#include <Archivable.h>
#include <Invoker.h>
#include <string>

class BMenu;

// A line of a menu: sends its message when the user chooses it, or opens its submenu.
class BMenuItem : public BArchivable, public BInvoker {
public:
	// Takes the message over. Shortcuts of menus are not offered: the last two change nothing.
	BMenuItem(const char* label, BMessage* message, char shortcut = 0, uint32 modifiers = 0);
	// Takes the menu over.
	explicit BMenuItem(BMenu* submenu, BMessage* message = NULL);
	~BMenuItem() override;

	const char* Label() const;
	// Marking one leaves the others alone, but in radio mode.
	virtual void SetMarked(bool marked);
	bool IsMarked() const;
	virtual void SetEnabled(bool enabled);
	bool IsEnabled() const;
	BMenu* Submenu() const;
	BMenu* Menu() const;

protected:
	// Sends the message with "when", "source", "index" and "be:sender" added.
	status_t Invoke(BMessage* message = NULL) override;

private:
	friend class BMenu;
	friend struct menu_access;

	void _TellPeer();

	std::string fLabel;
	BMenu* fMenu;
	BMenu* fSubmenu;
	// Names the item to the display side.
	const int32 fId;
	bool fMarked;
	bool fEnabled;
};

#endif
