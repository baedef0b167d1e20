// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Rows, their selection, and what is sent when the program changes it.
#include <ListView.h>
#include <StringItem.h>

#include "platform/interface/form.h"

#include <deque>
#include <gtest/gtest.h>

namespace {

// A list that nobody sees, with rows of its own.
struct rows {
	std::deque<BStringItem> items;
	BListView list;

	explicit rows(
		std::initializer_list<const char*> texts, list_view_type type = B_SINGLE_SELECTION_LIST)
		: list(BRect(0, 0, 99, 99), "list", type)
	{
		for (const char* text : texts)
			list.AddItem(&items.emplace_back(text));
	}

	std::string texts() const
	{
		std::string all;
		for (int32 row = 0; row < list.CountItems(); row++)
			all += static_cast<BStringItem*>(list.ItemAt(row))->Text();
		return all;
	}

	std::vector<int32> selected() const
	{
		std::vector<int32> found;
		for (int32 n = 0; list.CurrentSelection(n) >= 0; n++)
			found.push_back(list.CurrentSelection(n));
		return found;
	}
};

using numbers = std::vector<int32>;


// A list in a window, aimed at the form, and what it has sent: the "index" fields of each message.
struct sending {
	explicit sending(form& form, list_view_type type = B_SINGLE_SELECTION_LIST)
		: page(form),
		  list(*new BListView(BRect(0, 0, 99, 99), "list", type))
	{
		auto* model = new BMessage('sent');
		model->AddString("from", "list");
		list.SetSelectionMessage(model);
		page.locked([&] {
			for (const char* text : {"a", "b", "c", "d"})
				list.AddItem(&items.emplace_back(text));
			page.AddChild(&list);
			list.SetTarget(&page);
		});
	}
	~sending()
	{
		page.locked([&] { list.MakeEmpty(); });
	}

	std::vector<numbers> sent()
	{
		std::vector<numbers> all;
		for (const BMessage& message : page.messages()) {
			numbers indexes;
			int32 index;
			for (int32 n = 0; message.FindInt32("index", n, &index) == B_OK; n++)
				indexes.push_back(index);
			all.push_back(indexes);
		}
		return all;
	}

	form& page;
	std::deque<BStringItem> items;
	BListView& list;
};

}


TEST(string_item, copies_its_text)
{
	char text[] = "abc";
	BStringItem item(text);
	text[0] = 'x';
	EXPECT_STREQ(item.Text(), "abc");
	item.SetText(nullptr);
	EXPECT_STREQ(item.Text(), "");
	EXPECT_STREQ(BStringItem(nullptr).Text(), "");
}


TEST(list_view, is_made_as_the_layouts_want_it)
{
	BListView list(BRect(20, 20, 540, 380), "name-list");
	EXPECT_EQ(list.Frame(), BRect(20, 20, 540, 380));
	EXPECT_EQ(list.Flags(), B_WILL_DRAW | B_FRAME_EVENTS | B_NAVIGABLE);
	EXPECT_EQ(list.ResizingMode(), B_FOLLOW_LEFT | B_FOLLOW_TOP);
	EXPECT_EQ(list.CountItems(), 0);
	EXPECT_EQ(list.CurrentSelection(), -1);
}


TEST(list_view, keeps_items_in_their_places)
{
	rows of({"a", "b"});
	BStringItem first("1");
	BStringItem between("2");
	EXPECT_TRUE(of.list.AddItem(&first, 0));
	EXPECT_TRUE(of.list.AddItem(&between, 2));
	EXPECT_EQ(of.texts(), "1a2b");
	EXPECT_EQ(of.list.IndexOf(&between), 2);
	EXPECT_EQ(of.list.ItemAt(0), &first);
}


TEST(list_view, takes_no_item_beyond_its_end_and_none_that_is_null)
{
	rows of({"a"});
	BStringItem item("x");
	EXPECT_FALSE(of.list.AddItem(&item, 2));
	EXPECT_FALSE(of.list.AddItem(&item, -1));
	EXPECT_FALSE(of.list.AddItem(nullptr));
	EXPECT_EQ(of.texts(), "a");
}


TEST(list_view, gives_removed_items_back)
{
	rows of({"a", "b", "c"});
	EXPECT_EQ(of.list.RemoveItem((int32)1), &of.items[1]);
	EXPECT_EQ(of.texts(), "ac");
	EXPECT_TRUE(of.list.RemoveItem(&of.items[2]));
	EXPECT_EQ(of.texts(), "a");
	EXPECT_EQ(of.list.IndexOf(&of.items[2]), -1);
}


TEST(list_view, has_nothing_to_remove_where_there_is_no_item)
{
	rows of({"a"});
	EXPECT_EQ(of.list.RemoveItem((int32)1), nullptr);
	EXPECT_EQ(of.list.RemoveItem((int32)-1), nullptr);
	EXPECT_EQ(of.list.ItemAt(1), nullptr);
	EXPECT_EQ(of.list.ItemAt(-1), nullptr);
	BStringItem stranger("x");
	EXPECT_FALSE(of.list.RemoveItem(&stranger));
	EXPECT_FALSE(of.list.RemoveItem(nullptr));
}


TEST(list_view, is_emptied_without_a_look_at_its_items)
{
	BListView list(BRect(0, 0, 99, 99), "list");
	auto* item = new BStringItem("a");
	list.AddItem(item);
	list.Select(0);
	delete item;
	list.MakeEmpty();
	EXPECT_EQ(list.CountItems(), 0);
	EXPECT_EQ(list.CurrentSelection(), -1);
}


TEST(list_view, selects_one_row_in_a_list_of_single_selection)
{
	rows of({"a", "b", "c"});
	of.list.Select(1);
	EXPECT_EQ(of.selected(), numbers{1});
	of.list.Select(2, true);
	EXPECT_EQ(of.selected(), numbers{2});
	EXPECT_TRUE(of.list.IsItemSelected(2));
	EXPECT_FALSE(of.list.IsItemSelected(1));
	of.list.Select(3);
	of.list.Select(-1);
	EXPECT_EQ(of.selected(), numbers{2});
}


TEST(list_view, selects_several_rows_in_a_list_of_multiple_selection)
{
	rows of({"a", "b", "c", "d"}, B_MULTIPLE_SELECTION_LIST);
	of.list.Select(3);
	of.list.Select(1, true);
	of.list.Select(1, true);
	EXPECT_EQ(of.selected(), (numbers{1, 3}));
	of.list.Deselect(3);
	EXPECT_EQ(of.selected(), numbers{1});
	of.list.Select(0);
	EXPECT_EQ(of.selected(), numbers{0});
	of.list.DeselectAll();
	EXPECT_EQ(of.selected(), numbers{});
	EXPECT_EQ(of.list.CurrentSelection(-1), -1);
}


TEST(list_view, its_selection_stays_with_the_item)
{
	rows of({"a", "b", "c"});
	of.list.Select(1);
	BStringItem first("x");
	of.list.AddItem(&first, 0);
	EXPECT_EQ(of.selected(), numbers{2});
	of.list.RemoveItem((int32)0);
	EXPECT_EQ(of.selected(), numbers{1});
	of.list.RemoveItem((int32)2);
	EXPECT_EQ(of.selected(), numbers{1});
	of.list.RemoveItem((int32)1);
	EXPECT_EQ(of.selected(), numbers{});
}


TEST(list_view, sends_its_message_at_each_change_by_the_program)
{
	with_form([](form& page, robot& user) {
		sending of(page);
		page.locked([&] {
			of.list.Select(1);
			of.list.Select(1);
			of.list.Select(2);
			of.list.DeselectAll();
			of.list.DeselectAll();
			of.list.Deselect(2);
		});
		user.settle();
		EXPECT_EQ(of.sent(), (std::vector<numbers>{{1}, {2}, {-1}}));
	});
}


TEST(list_view, sends_each_selected_row_of_a_multiple_selection)
{
	with_form([](form& page, robot& user) {
		sending of(page, B_MULTIPLE_SELECTION_LIST);
		page.locked([&] {
			of.list.Select(2);
			of.list.Select(0, true);
			of.list.DeselectAll();
		});
		user.settle();
		EXPECT_EQ(of.sent(), (std::vector<numbers>{{2}, {0, 2}, {}}));
	});
}


TEST(list_view, sends_minus_one_before_a_selected_row_is_removed)
{
	with_form([](form& page, robot& user) {
		sending of(page);
		page.locked([&] {
			of.list.Select(1);
			of.list.RemoveItem((int32)0);
			of.list.RemoveItem((int32)0);
		});
		user.settle();
		EXPECT_EQ(of.sent(), (std::vector<numbers>{{1}, {-1}}));
		page.locked([&] { EXPECT_EQ(of.list.CountItems(), 2); });
	});
}


TEST(list_view, sends_nothing_when_it_is_emptied)
{
	with_form([](form& page, robot& user) {
		sending of(page);
		page.locked([&] {
			of.list.Select(1);
			of.list.MakeEmpty();
		});
		user.settle();
		EXPECT_EQ(of.sent(), (std::vector<numbers>{{1}}));
	});
}


TEST(list_view, says_who_and_when)
{
	with_form([](form& page, robot& user) {
		sending of(page);
		page.locked([&] { of.list.Select(1); });
		user.settle();
		BMessage sent = page.messages().at(0);
		void* source = nullptr;
		EXPECT_EQ(sent.FindPointer("source", &source), B_OK);
		EXPECT_EQ(source, (void*)&of.list);
		EXPECT_TRUE(sent.HasInt64("when"));
		BMessenger sender;
		EXPECT_EQ(sent.FindMessenger("be:sender", &sender), B_OK);
		EXPECT_EQ(sender, BMessenger(&of.list));
		page.locked([&] { EXPECT_FALSE(of.list.SelectionMessage()->HasInt32("index")); });
	});
}


TEST(list_view, that_nobody_has_aimed_sends_to_its_window)
{
	with_form([](form& page, robot& user) {
		auto& window = *static_cast<test_window*>(page.Window());
		auto& list = page.put(new BListView(BRect(0, 0, 99, 99), "list"));
		BStringItem item("a");
		page.locked([&] {
			list.SetSelectionMessage(new BMessage('Nsel'));
			list.AddItem(&item);
			list.Select(0);
		});
		user.settle();
		EXPECT_EQ(window.handlers_of('Nsel'), journal{"test"});
	});
}


TEST(list_view, without_a_message_selects_in_silence)
{
	with_form([](form& page, robot& user) {
		sending of(page);
		page.locked([&] {
			of.list.SetSelectionMessage(nullptr);
			of.list.Select(1);
			EXPECT_EQ(of.list.Invoke(), B_BAD_VALUE);
		});
		user.settle();
		EXPECT_EQ(of.sent(), std::vector<numbers>{});
	});
}
