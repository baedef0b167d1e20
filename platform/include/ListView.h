// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_LISTVIEW_H
#define KITS_LISTVIEW_H

#include <Invoker.h>
#include <ListItem.h>
#include <memory>
#include <vector>
#include <View.h>

enum list_view_type { B_SINGLE_SELECTION_LIST = 0, B_MULTIPLE_SELECTION_LIST = 1 };

// Rows of which the user selects one, or several. BView is the first base: the address in "source" is
// that of the list view.
//
// A copy of the selection message goes out at every change of the selection, by the mouse, by keys
// or by the program; one of the invocation message at a double click or Enter. Both with "when",
// "source", "be:sender" and "index": one for each selected row; in a list of single selection exactly
// one, -1 for none. Attached, a list that nobody has aimed sends to its window.
class BListView : public BView, public BInvoker {
public:
	BListView(BRect frame, const char* name, list_view_type type = B_SINGLE_SELECTION_LIST,
		uint32 resizingMode = B_FOLLOW_LEFT | B_FOLLOW_TOP,
		uint32 flags = B_WILL_DRAW | B_FRAME_EVENTS | B_NAVIGABLE);
	// Leaves the items alone, as all of these do: their owner deletes them.
	~BListView() override;

	// Take the message over.
	virtual void SetSelectionMessage(BMessage* message);
	BMessage* SelectionMessage() const;
	virtual void SetInvocationMessage(BMessage* message);
	// Sends nothing without a message of its own or the argument.
	status_t Invoke(BMessage* message = NULL) override;

	// False for no item, and for a place beyond the end.
	virtual bool AddItem(BListItem* item);
	virtual bool AddItem(BListItem* item, int32 index);
	// Deselects the row first. Null, or false, when there is no such item.
	virtual BListItem* RemoveItem(int32 index);
	virtual bool RemoveItem(BListItem* item);
	// Sends nothing, and does not look at the items, which may be gone.
	virtual void MakeEmpty();
	BListItem* ItemAt(int32 index) const;
	int32 IndexOf(BListItem* item) const;
	int32 CountItems() const;
	// Shows the item's text anew.
	void InvalidateItem(int32 index);

	// Row of the n-th selected item, -1 past the last.
	int32 CurrentSelection(int32 n = 0) const;
	bool IsItemSelected(int32 index) const;
	// Deselects the other rows, unless they are to stay and the list allows several. A row that does
	// not exist changes nothing.
	void Select(int32 index, bool extend = false);
	void Deselect(int32 index);
	void DeselectAll();

	using BView::SetHighColor;
	using BView::SetViewColor;
	void SetHighColor(rgb_color color) override;
	void SetViewColor(rgb_color color) override;
	void SetFont(const BFont* font, uint32 mask = B_FONT_ALL) override;
	void AttachedToWindow() override;
	void MessageReceived(BMessage* message) override;

private:
	bool _IsPainted() const override;
	void _MakePeer() override;
	void _TellLook();
	void _TellSelection();
	void _SelectionReported(const BMessage& report);
	// What the program makes of the selection.
	void _SetSelection(std::vector<int32> rows);

	const list_view_type fType;
	std::vector<BListItem*> fItems;
	// Rows in ascending order.
	std::vector<int32> fSelected;
	std::unique_ptr<BMessage> fSelectionMessage;
	// Counts the program's own changes: what the user selected before the last is out of date.
	int32 fSerial;
};

#endif
