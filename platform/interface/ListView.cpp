// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "app/invocation.h"
#include "display/list_peers.h"
#include "interface/peer_access.h"

#include <algorithm>
#include <Errors.h>
#include <ListView.h>
#include <Message.h>
#include <Window.h>

using namespace kits;


BListView::BListView(
	BRect frame, const char* name, list_view_type type, uint32 resizingMode, uint32 flags)
	: BView(frame, name, resizingMode, flags),
	  fType(type),
	  fSerial(0)
{
}


BListView::~BListView() = default;


void
BListView::SetSelectionMessage(BMessage* message)
{
	fSelectionMessage.reset(message);
}


BMessage*
BListView::SelectionMessage() const
{
	return fSelectionMessage.get();
}


void
BListView::SetInvocationMessage(BMessage* message)
{
	SetMessage(message);
}


status_t
BListView::Invoke(BMessage* message)
{
	std::optional<BMessage> sent = invocation(*this, message, this);
	if (!sent)
		return B_BAD_VALUE;
	sent->AddMessenger("be:sender", BMessenger(this));
	for (int32 row : fSelected)
		sent->AddInt32("index", row);
	if (fSelected.empty() && fType == B_SINGLE_SELECTION_LIST)
		sent->AddInt32("index", -1);
	return BInvoker::Invoke(&*sent);
}


bool
BListView::AddItem(BListItem* item)
{
	return AddItem(item, CountItems());
}


bool
BListView::AddItem(BListItem* item, int32 index)
{
	if (!item || index < 0 || index > CountItems())
		return false;
	fItems.insert(fItems.begin() + index, item);
	for (int32& row : fSelected)
		row += row >= index;
	fSerial++;
	if (const peer_ref& widget = view_access::widget_of(*this))
		list_peers::insert(widget, index, item->_Text(), fSerial);
	return true;
}


BListItem*
BListView::RemoveItem(int32 index)
{
	BListItem* item = ItemAt(index);
	if (!item)
		return nullptr;
	Deselect(index);
	fItems.erase(fItems.begin() + index);
	for (int32& row : fSelected)
		row -= row > index;
	fSerial++;
	if (const peer_ref& widget = view_access::widget_of(*this))
		list_peers::remove(widget, index, fSerial);
	return item;
}


bool
BListView::RemoveItem(BListItem* item)
{
	return RemoveItem(IndexOf(item)) != nullptr;
}


void
BListView::MakeEmpty()
{
	fItems.clear();
	fSelected.clear();
	fSerial++;
	if (const peer_ref& widget = view_access::widget_of(*this))
		list_peers::empty(widget, fSerial);
}


BListItem*
BListView::ItemAt(int32 index) const
{
	return index >= 0 && index < CountItems() ? fItems[(size_t)index] : nullptr;
}


int32
BListView::IndexOf(BListItem* item) const
{
	auto found = std::find(fItems.begin(), fItems.end(), item);
	return found == fItems.end() ? -1 : (int32)(found - fItems.begin());
}


int32
BListView::CountItems() const
{
	return (int32)fItems.size();
}


void
BListView::InvalidateItem(int32 index)
{
	const peer_ref& widget = view_access::widget_of(*this);
	if (BListItem* item = ItemAt(index); item && widget)
		list_peers::set_text(widget, index, item->_Text());
}


int32
BListView::CurrentSelection(int32 n) const
{
	return n >= 0 && n < (int32)fSelected.size() ? fSelected[(size_t)n] : -1;
}


bool
BListView::IsItemSelected(int32 index) const
{
	return std::binary_search(fSelected.begin(), fSelected.end(), index);
}


void
BListView::Select(int32 index, bool extend)
{
	if (!ItemAt(index))
		return;
	std::vector<int32> rows;
	if (extend && fType == B_MULTIPLE_SELECTION_LIST)
		rows = fSelected;
	if (!std::binary_search(rows.begin(), rows.end(), index))
		rows.insert(std::upper_bound(rows.begin(), rows.end(), index), index);
	_SetSelection(std::move(rows));
}


void
BListView::Deselect(int32 index)
{
	std::vector<int32> rows = fSelected;
	std::erase(rows, index);
	_SetSelection(std::move(rows));
}


void
BListView::DeselectAll()
{
	_SetSelection({});
}


void
BListView::_SetSelection(std::vector<int32> rows)
{
	if (rows == fSelected)
		return;
	fSelected = std::move(rows);
	_TellSelection();
	if (fSelectionMessage)
		Invoke(fSelectionMessage.get());
}


void
BListView::SetHighColor(rgb_color color)
{
	BView::SetHighColor(color);
	_TellLook();
}


void
BListView::SetViewColor(rgb_color color)
{
	BView::SetViewColor(color);
	_TellLook();
}


void
BListView::SetFont(const BFont* font, uint32 mask)
{
	BView::SetFont(font, mask);
	_TellLook();
}


void
BListView::AttachedToWindow()
{
	if (Window() && !Messenger().IsValid())
		SetTarget(Window());
}


void
BListView::MessageReceived(BMessage* message)
{
	switch (message->what) {
		case list_selected:
			_SelectionReported(*message);
			break;
		case list_invoked:
			if (message->FindInt32("serial") == fSerial && !fSelected.empty())
				Invoke();
			break;
		default:
			BView::MessageReceived(message);
	}
}


void
BListView::_SelectionReported(const BMessage& report)
{
	if (report.FindInt32("serial") != fSerial) {
		// The display shows what the user did; it is not so any more.
		_TellSelection();
		return;
	}
	std::vector<int32> rows;
	int32 row;
	for (int32 n = 0; report.FindInt32("row", n, &row) == B_OK; n++)
		rows.push_back(row);
	if (rows == fSelected)
		return;
	fSelected = std::move(rows);
	if (fSelectionMessage)
		Invoke(fSelectionMessage.get());
}


bool
BListView::_IsPainted() const
{
	return false;
}


void
BListView::_MakePeer()
{
	peer_ref& widget = view_access::widget_of(*this);
	widget = list_peers::make(_ParentWidget(), _PeerFrame(), !IsHidden(this),
		view_access::look_of(*this, ""), HighColor(), fType == B_MULTIPLE_SELECTION_LIST,
		view_access::address_of(*this));
	for (int32 row = 0; row < CountItems(); row++)
		list_peers::insert(widget, row, fItems[(size_t)row]->_Text(), fSerial);
	_TellSelection();
}


void
BListView::_TellLook()
{
	if (const peer_ref& widget = view_access::widget_of(*this))
		list_peers::set_look(widget, view_access::look_of(*this, ""), HighColor());
}


void
BListView::_TellSelection()
{
	fSerial++;
	if (const peer_ref& widget = view_access::widget_of(*this))
		list_peers::select(widget, fSelected, fSerial);
}
