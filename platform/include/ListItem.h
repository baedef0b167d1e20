// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_LISTITEM_H
#define KITS_LISTITEM_H

#include <Archivable.h>
#include <string>
#include <SupportDefs.h>

// A row of a list view. A list does not own its rows, and looks at them only while they are in it.
class BListItem : public BArchivable {
public:
	BListItem() = default;
	BListItem(const BListItem&) = delete;
	BListItem& operator=(const BListItem&) = delete;

private:
	friend class BListView;

	// What the list shows; UTF-8.
	virtual const char* _Text() const = 0;
};

// A row that is a line of text.
class BStringItem : public BListItem {
public:
	// Copies the text; null is the empty one. Lists here have one level, and all of it is shown.
	explicit BStringItem(const char* text, uint32 level = 0, bool expanded = true);

	const char* Text() const;
	// A list that the item is in shows it after InvalidateItem().
	virtual void SetText(const char* text);

private:
	const char* _Text() const override;

	std::string fText;
};

#endif
