// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The menu bar under the keyboard: F10 opens it.
#include "platform/interface/form.h"
#include "platform/interface/keyboard.h"

#include <gtest/gtest.h>

#include <MenuBar.h>
#include <MenuItem.h>
#include <QApplication>
#include <QMenu>
#include <QWidget>

namespace {

// A form with a view that has the keyboard, a field, and a bar with two menus.
void
with_menus(const std::function<void(form&, robot&, key_view&, BTextControl&)>& user)
{
	with_form([&](form& page, robot& hand) {
		auto* bar = new BMenuBar(BRect(0, 0, 99, 19), "bar");
		for (const char* name : {"A", "B"}) {
			auto* menu = new BMenu(name);
			for (const char* number : {"1", "2"}) {
				auto* model = new BMessage('sent');
				model->AddString("from", (std::string(name) + number).c_str());
				menu->AddItem(new BMenuItem(number, model));
			}
			menu->SetTargetForItems(&page);
			bar->AddItem(menu);
		}
		page.locked([&] { page.Window()->AddChild(bar); });
		BTextControl& field = page.field(BPoint(10, 40), "field", "old");
		auto& view = page.put(new key_view(BRect(120, 20, 199, 99)));
		page.locked([&] { view.MakeFocus(); });
		hand.settle();
		user(page, hand, view, field);
	});
}


bool
menu_is_open(robot& user)
{
	bool open = false;
	user.on_display([&] { open = QApplication::activePopupWidget() != nullptr; });
	return open;
}


int
count_down(form& page, key_view& view, const char* key)
{
	int found = 0;
	page.locked([&] {
		for (const std::string& line : view.keys)
			found += line == std::string("down ") + key;
	});
	return found;
}

}


TEST(menu_keys, open_the_first_menu_and_choose_from_it)
{
	with_menus([](form& page, robot& user, key_view& view, BTextControl&) {
		user.key(Qt::Key_F10);
		EXPECT_TRUE(menu_is_open(user));
		user.key(Qt::Key_Down);
		user.key(Qt::Key_Return, "\r");
		EXPECT_FALSE(menu_is_open(user));
		EXPECT_EQ(page.senders(), journal{"A2"});
		EXPECT_EQ(count_down(page, view, "1f"), 0);
		EXPECT_EQ(count_down(page, view, "0a"), 0);
	});
}


TEST(menu_keys, begin_with_the_first_item)
{
	with_menus([](form& page, robot& user, key_view&, BTextControl&) {
		user.key(Qt::Key_F10);
		user.key(Qt::Key_Return, "\r");
		EXPECT_EQ(page.senders(), journal{"A1"});
	});
}


TEST(menu_keys, walk_between_menus)
{
	with_menus([](form& page, robot& user, key_view&, BTextControl&) {
		user.key(Qt::Key_F10);
		user.key(Qt::Key_Right);
		user.key(Qt::Key_Up);
		user.key(Qt::Key_Return, "\r");
		EXPECT_EQ(page.senders(), journal{"B2"});
	});
}


TEST(menu_keys, close_it_with_escape_at_once)
{
	with_menus([](form& page, robot& user, key_view& view, BTextControl&) {
		user.key(Qt::Key_F10);
		user.key(Qt::Key_Escape, "\x1b");
		EXPECT_FALSE(menu_is_open(user));
		EXPECT_EQ(page.focus(), "keys");
		user.key(Qt::Key_Down);
		EXPECT_EQ(count_down(page, view, "1f"), 1);
		EXPECT_FALSE(menu_is_open(user));
		EXPECT_EQ(page.senders(), journal());
	});
}


TEST(menu_keys, leave_the_keyboard_with_the_field_that_has_it)
{
	with_menus([](form& page, robot& user, key_view&, BTextControl& field) {
		user.click(middle(field));
		user.type("a");
		for (Qt::Key end : {Qt::Key_Escape, Qt::Key_Return}) {
			user.key(Qt::Key_F10);
			EXPECT_TRUE(menu_is_open(user));
			user.key(end);
			EXPECT_TRUE(user.has_keyboard(middle(field)));
		}
		user.type("b");
		EXPECT_EQ(page.text_of(field), "ab");
		EXPECT_EQ(page.senders(), journal{"A1"});
	});
}


TEST(menu_keys, with_a_modifier_or_without_a_bar_are_keys_like_others)
{
	with_menus([](form& page, robot& user, key_view& view, BTextControl&) {
		user.key(Qt::Key_F10, "", B_SHIFT_KEY);
		EXPECT_FALSE(menu_is_open(user));
		EXPECT_EQ(count_down(page, view, "10"), 1);
	});
	with_keyboard([](key_view& view, test_window& window, robot& user) {
		user.key(Qt::Key_F10);
		window.locked([&] { EXPECT_EQ(view.keys, (journal{"down 10", "up 10"})); });
	});
}


TEST(menu_keys, that_are_a_views_own_open_nothing)
{
	with_menus([](form& page, robot& user, key_view& view, BTextControl&) {
		for (Qt::Key key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right})
			user.key(key);
		user.key(Qt::Key_Tab, "\t");
		user.key(Qt::Key_At, "@");
		user.key(Qt::Key_Alt);
		EXPECT_FALSE(menu_is_open(user));
		EXPECT_EQ(page.focus(), "keys");
		for (const char* key : {"1e", "1f", "1c", "1d", "09", "40"})
			EXPECT_EQ(count_down(page, view, key), 1) << key;
	});
}


TEST(menu_keys, that_are_held_as_a_menu_opens_go_up_in_their_view)
{
	with_menus([](form& page, robot& user, key_view& view, BTextControl&) {
		user.key_down(Qt::Key_A, "a");
		user.click(BPoint(10, 5));
		EXPECT_TRUE(menu_is_open(user));
		user.key_up(Qt::Key_A, "a");
		page.locked([&] { EXPECT_EQ(view.keys, (journal{"down 61", "up 61"})); });
		user.key(Qt::Key_Escape, "\x1b");
	});
}
