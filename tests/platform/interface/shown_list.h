// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_TESTS_SHOWN_LIST_H
#define KITS_TESTS_SHOWN_LIST_H

#include "platform/interface/form.h"

#include <deque>
#include <ListView.h>
#include <StringItem.h>

// Within the list.
constexpr BPoint on_list(50, 20);
// Rows are this far from each other, in pixels.
constexpr float row_height = 15;


// A list of 100 x 80 pixels at (10, 10), aimed at the form, with rows "0", "1"...
struct shown_list {
	shown_list(form& form, int count, list_view_type type = B_SINGLE_SELECTION_LIST)
		: page(form),
		  list(*new BListView(BRect(10, 10, 109, 89), "list", type))
	{
		list.SetSelectionMessage(message("selected"));
		list.SetInvocationMessage(message("invoked"));
		page.locked([&] {
			page.AddChild(&list);
			list.SetTarget(&page);
			for (int row = 0; row < count; row++)
				add(std::to_string(row));
		});
	}
	~shown_list()
	{
		page.locked([&] {
			if (!gone)
				list.MakeEmpty();
		});
	}

	static BMessage* message(const char* from)
	{
		auto* made = new BMessage('sent');
		made->AddString("from", from);
		return made;
	}

	void add(const std::string& text) { list.AddItem(&items.emplace_back(text.c_str())); }

	// What was sent: who and the row.
	journal sent()
	{
		journal all;
		for (const BMessage& message : page.messages()) {
			std::string line = message.FindString("from");
			int32 index;
			for (int32 n = 0; message.FindInt32("index", n, &index) == B_OK; n++)
				line += " " + std::to_string(index);
			all.push_back(line);
		}
		return all;
	}

	form& page;
	std::deque<BStringItem> items;
	BListView& list;
	bool gone = false;
};


inline BPoint
row_at(int row)
{
	return BPoint(50, 10 + row_height * (float)row + row_height / 2);
}

#endif
