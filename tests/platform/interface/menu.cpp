// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Menus as their program sees them; no display needed.
#include <Menu.h>
#include <MenuItem.h>
#include <Message.h>

#include <gtest/gtest.h>

namespace {

class counted_item : public BMenuItem {
public:
	explicit counted_item(int& deleted) : BMenuItem("counted", nullptr), fDeleted(deleted) {}
	~counted_item() override { fDeleted++; }

private:
	int& fDeleted;
};

// "Open" and "Save", and "Tables" with "head" in it.
class file_menu : public BMenu {
public:
	file_menu() : BMenu("File")
	{
		AddItem(open);
		AddItem(save);
		tables->AddItem(head);
		AddItem(tables);
	}

	BMenuItem* open = new BMenuItem("Open", new BMessage('open'));
	BMenuItem* save = new BMenuItem("Save", new BMessage('save'));
	BMenu* tables = new BMenu("Tables");
	BMenuItem* head = new BMenuItem("head", new BMessage('head'));
};

}


TEST(menu_item, is_as_it_was_made)
{
	BMenuItem item("Open", new BMessage('open'), 'O');
	EXPECT_STREQ(item.Label(), "Open");
	EXPECT_EQ(item.Command(), (uint32)'open');
	EXPECT_EQ(item.Menu(), nullptr);
	EXPECT_EQ(item.Submenu(), nullptr);
	EXPECT_FALSE(item.IsMarked());
	EXPECT_TRUE(item.IsEnabled());
}


TEST(menu_item, without_a_label_has_an_empty_one)
{
	BMenuItem item((const char*)nullptr, nullptr);
	EXPECT_STREQ(item.Label(), "");
}


TEST(menu_item, with_a_submenu_has_its_name_for_a_label)
{
	auto* submenu = new BMenu("Tables");
	BMenuItem item(submenu);
	EXPECT_STREQ(item.Label(), "Tables");
	EXPECT_EQ(item.Submenu(), submenu);
}


TEST(menu_item, is_marked_and_unmarked)
{
	BMenuItem item("Open", nullptr);
	item.SetMarked(true);
	EXPECT_TRUE(item.IsMarked());
	item.SetMarked(false);
	EXPECT_FALSE(item.IsMarked());
}


TEST(menu_item, is_disabled_and_enabled)
{
	BMenuItem item("Open", nullptr);
	item.SetEnabled(false);
	EXPECT_FALSE(item.IsEnabled());
	item.SetEnabled(true);
	EXPECT_TRUE(item.IsEnabled());
}


TEST(menu, keeps_its_items_in_order)
{
	file_menu menu;
	EXPECT_EQ(menu.CountItems(), 3);
	EXPECT_EQ(menu.ItemAt(0), menu.open);
	EXPECT_EQ(menu.ItemAt(1), menu.save);
	EXPECT_EQ(menu.ItemAt(3), nullptr);
	EXPECT_EQ(menu.ItemAt(-1), nullptr);
	EXPECT_EQ(menu.IndexOf(menu.save), 1);
	EXPECT_EQ(menu.IndexOf(menu.head), -1);
	EXPECT_EQ(menu.open->Menu(), &menu);
}


TEST(menu, takes_items_at_a_place)
{
	file_menu menu;
	auto* first = new BMenuItem("New", nullptr);
	auto* submenu = new BMenu("Recent");
	EXPECT_TRUE(menu.AddItem(first, 0));
	EXPECT_TRUE(menu.AddItem(submenu, 2));
	EXPECT_EQ(menu.ItemAt(0), first);
	EXPECT_EQ(menu.SubmenuAt(2), submenu);
	EXPECT_EQ(menu.ItemAt(3), menu.save);
}


TEST(menu, a_place_beyond_the_end_is_the_end)
{
	file_menu menu;
	auto* last = new BMenuItem("Quit", nullptr);
	EXPECT_TRUE(menu.AddItem(last, 99));
	EXPECT_EQ(menu.ItemAt(3), last);
}


TEST(menu, refuses_no_item_and_one_that_has_a_menu)
{
	file_menu menu;
	BMenu other("other");
	EXPECT_FALSE(menu.AddItem((BMenuItem*)nullptr));
	EXPECT_FALSE(menu.AddItem((BMenu*)nullptr));
	EXPECT_FALSE(other.AddItem(menu.open));
	EXPECT_EQ(menu.CountItems(), 3);
	EXPECT_EQ(other.CountItems(), 0);
}


TEST(menu, knows_which_items_open_submenus)
{
	file_menu menu;
	EXPECT_EQ(menu.SubmenuAt(0), nullptr);
	EXPECT_EQ(menu.SubmenuAt(2), menu.tables);
	EXPECT_EQ(menu.SubmenuAt(3), nullptr);
	EXPECT_EQ(menu.SubmenuAt(-1), nullptr);
}


TEST(menu, finds_items_by_label_in_submenus_too)
{
	file_menu menu;
	EXPECT_EQ(menu.FindItem("Save"), menu.save);
	EXPECT_EQ(menu.FindItem("head"), menu.head);
	EXPECT_EQ(menu.FindItem("Tables"), menu.ItemAt(2));
	EXPECT_EQ(menu.FindItem("save"), nullptr);
	EXPECT_EQ(menu.FindItem((const char*)nullptr), nullptr);
}


TEST(menu, finds_items_by_command_in_submenus_too)
{
	file_menu menu;
	EXPECT_EQ(menu.FindItem('save'), menu.save);
	EXPECT_EQ(menu.FindItem('head'), menu.head);
	EXPECT_EQ(menu.FindItem('none'), nullptr);
}


TEST(menu, an_item_without_a_message_has_no_command_to_be_found_by)
{
	BMenu menu("menu");
	menu.AddItem(new BMenuItem("Nothing", nullptr));
	EXPECT_EQ(menu.FindItem((uint32)0), nullptr);
}


TEST(menu, marking_one_item_leaves_the_others)
{
	file_menu menu;
	menu.open->SetMarked(true);
	menu.save->SetMarked(true);
	EXPECT_TRUE(menu.open->IsMarked());
	menu.save->SetMarked(false);
	EXPECT_TRUE(menu.open->IsMarked());
}


TEST(menu, deletes_its_items_and_those_of_its_submenus)
{
	int deleted = 0;
	auto* menu = new BMenu("menu");
	auto* submenu = new BMenu("submenu");
	menu->AddItem(new counted_item(deleted));
	submenu->AddItem(new counted_item(deleted));
	menu->AddItem(submenu);
	delete menu;
	EXPECT_EQ(deleted, 2);
}


TEST(menu, its_name_and_layout_are_as_given)
{
	BMenu menu("Tables", B_ITEMS_IN_ROW);
	EXPECT_STREQ(menu.Name(), "Tables");
	EXPECT_EQ(menu.Layout(), B_ITEMS_IN_ROW);
	EXPECT_EQ(BMenu("column").Layout(), B_ITEMS_IN_COLUMN);
}


TEST(menu, its_items_cannot_be_aimed_at_a_handler_without_a_looper)
{
	file_menu menu;
	BHandler nowhere("nowhere");
	EXPECT_NE(menu.SetTargetForItems(&nowhere), 0);
}
