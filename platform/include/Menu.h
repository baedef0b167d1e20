// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_MENU_H
#define KITS_MENU_H

#include <Messenger.h>
#include <vector>
#include <View.h>

class BMenuField;
class BMenuItem;

enum menu_layout { B_ITEMS_IN_ROW = 0, B_ITEMS_IN_COLUMN = 1, B_ITEMS_IN_MATRIX = 2 };

// A list of items, in the order added. Owns its items.
class BMenu : public BView {
public:
	// The name is also the label that the parent menu shows.
	explicit BMenu(const char* name, menu_layout layout = B_ITEMS_IN_COLUMN);
	~BMenu() override;

	// Takes the item over. False when it is null or has a menu already.
	bool AddItem(BMenuItem* item);
	bool AddItem(BMenuItem* item, int32 index);
	bool AddItem(BMenu* submenu);
	bool AddItem(BMenu* submenu, int32 index);
	// Null past the end.
	BMenuItem* ItemAt(int32 index) const;
	BMenu* SubmenuAt(int32 index) const;
	int32 CountItems() const;
	int32 IndexOf(BMenuItem* item) const;
	BMenuItem* FindItem(const char* label) const;
	BMenuItem* FindItem(uint32 command) const;
	menu_layout Layout() const;
	// Choosing or marking an item unmarks the others.
	virtual void SetRadioMode(bool radio);
	bool IsRadioMode() const;
	// A menu field that opens this menu says what is marked.
	void SetLabelFromMarked(bool follows);
	bool IsLabelFromMarked() const;
	// The first one; null when none is marked.
	BMenuItem* FindMarked();

	// For the items present now.
	virtual status_t SetTargetForItems(BHandler* target);
	virtual status_t SetTargetForItems(BMessenger target);

	void AttachedToWindow() override;
	void MessageReceived(BMessage* message) override;

protected:
	BMenu(BRect frame, const char* name, uint32 resizingMode, uint32 flags, menu_layout layout);

private:
	friend class BMenuItem;
	friend struct menu_access;

	bool _IsPainted() const override;
	void _MakePeer() override;
	void _ContentChanged();
	void _Unmark(const BMenuItem* but);
	BMenu* _Top();
	BMenuItem* _ItemOf(int32 id) const;
	void _AdoptTargets(BWindow* window);

	std::vector<BMenuItem*> fItems;
	BMenuItem* fSuperItem;
	BMenuField* fField;
	menu_layout fLayout;
	bool fRadioMode;
	bool fLabelFromMarked;
};

#endif
