// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// A key that is held on a control acts once.
#include "platform/interface/form.h"
#include "platform/interface/shown_list.h"

#include <gtest/gtest.h>

#include <CheckBox.h>
#include <MenuBar.h>
#include <MenuField.h>
#include <MenuItem.h>
#include <PopUpMenu.h>
#include <QApplication>
#include <QWidget>
#include <Slider.h>

namespace {

BMessage*
model(const char* from)
{
	return shown_list::message(from);
}


// The key goes down, repeats ten times and goes up.
void
hold(robot& user, Qt::Key key, const char* text = "")
{
	for (int i = 0; i < 11; i++)
		user.key_down(key, text);
	user.key_up(key, text);
}


// What was sent: who, and the value of it.
journal
values(form& page)
{
	journal all;
	for (const BMessage& message : page.messages()) {
		all.push_back(message.FindString("from"));
		all.back() += " " + std::to_string(message.FindInt32("be:value"));
	}
	return all;
}

}


TEST(held_keys, press_a_button_once)
{
	with_form([](form& page, robot& user) {
		page.button(BPoint(10, 10), "button");
		press_tab(user);
		hold(user, Qt::Key_Return, "\r");
		EXPECT_EQ(page.senders(), journal{"button"});
		hold(user, Qt::Key_Space, " ");
		EXPECT_EQ(page.senders(), (journal{"button", "button"}));
	});
}


TEST(held_keys, turn_a_check_box_once)
{
	with_form([](form& page, robot& user) {
		auto& box = page.put(new BCheckBox(BRect(10, 10, 90, 30), "box", "box", model("box")));
		page.locked([&] { box.SetTarget(&page); });
		press_tab(user);
		hold(user, Qt::Key_Space, " ");
		hold(user, Qt::Key_Return, "\r");
		EXPECT_EQ(values(page), (journal{"box 1", "box 0"}));
	});
}


TEST(held_keys, move_a_slider_on_and_send_its_message_once)
{
	with_form([](form& page, robot& user) {
		auto& slider =
			page.put(new BSlider(BRect(10, 10, 190, 30), "slider", "", model("slider"), 0, 100));
		page.locked([&] { slider.SetTarget(&page); });
		press_tab(user);
		for (int i = 0; i < 11; i++)
			user.key_down(Qt::Key_Right);
		EXPECT_EQ(values(page), journal());
		page.locked([&] { EXPECT_EQ(slider.Value(), 11); });
		user.key_up(Qt::Key_Right);
		EXPECT_EQ(values(page), journal{"slider 11"});
	});
}


TEST(held_keys, on_a_slider_are_let_go_when_the_user_goes_elsewhere)
{
	with_form([](form& page, robot& user) {
		auto& slider =
			page.put(new BSlider(BRect(10, 40, 190, 60), "slider", "", model("slider"), 0, 100));
		page.locked([&] { slider.SetTarget(&page); });
		BTextControl& field = page.field(BPoint(10, 10), "field");
		press_tab(user);
		user.key_down(Qt::Key_Right);
		user.key_down(Qt::Key_Right);
		user.click(middle(field));
		EXPECT_EQ(values(page), journal{"slider 2"});
		user.key_up(Qt::Key_Right);
		EXPECT_EQ(values(page), journal{"slider 2"});
	});
}


TEST(held_keys, move_a_lists_selection_on_and_send_its_message_once)
{
	with_form([](form& page, robot& user) {
		shown_list of(page, 20);
		press_tab(user);
		for (int i = 0; i < 11; i++)
			user.key_down(Qt::Key_Down);
		EXPECT_EQ(user.selected_rows(on_list), std::vector<int>{10});
		EXPECT_EQ(of.sent(), journal());
		user.key_up(Qt::Key_Down);
		EXPECT_EQ(of.sent(), journal{"selected 10"});
		page.locked([&] { EXPECT_EQ(of.list.CurrentSelection(), 10); });
	});
}


TEST(held_keys, on_a_list_that_the_program_changes_give_way_to_the_program)
{
	with_form([](form& page, robot& user) {
		shown_list of(page, 20);
		user.click(row_at(1));
		for (int i = 0; i < 3; i++)
			user.key_down(Qt::Key_Down);
		page.locked([&] { of.list.Select(7); });
		user.settle();
		user.key_up(Qt::Key_Down);
		EXPECT_EQ(user.selected_rows(on_list), std::vector<int>{7});
		page.locked([&] { EXPECT_EQ(of.list.CurrentSelection(), 7); });
	});
}


TEST(held_keys, invoke_a_list_once_with_what_an_arrow_has_selected)
{
	with_form([](form& page, robot& user) {
		shown_list of(page, 20);
		press_tab(user);
		user.key_down(Qt::Key_Down);
		user.key_down(Qt::Key_Down);
		hold(user, Qt::Key_Return, "\r");
		EXPECT_EQ(of.sent(), (journal{"selected 1", "invoked 1"}));
		user.key_up(Qt::Key_Down);
		EXPECT_EQ(of.sent().size(), 2U);
	});
}


TEST(held_keys, open_a_menu_and_choose_nothing_from_it)
{
	with_form([](form& page, robot& user) {
		auto* menu = new BPopUpMenu("menu");
		menu->AddItem(new BMenuItem("One", model("One")));
		menu->AddItem(new BMenuItem("Two", model("Two")));
		page.put(new BMenuField(BRect(10, 10, 90, 30), "field", nullptr, menu));
		page.locked([&] { menu->SetTargetForItems(&page); });
		press_tab(user);
		hold(user, Qt::Key_Return, "\r");
		user.on_display([] { EXPECT_NE(QApplication::activePopupWidget(), nullptr); });
		EXPECT_EQ(page.senders(), journal());
		hold(user, Qt::Key_Down);
		hold(user, Qt::Key_Return, "\r");
		EXPECT_EQ(page.senders().size(), 1U);
		user.on_display([] { EXPECT_EQ(QApplication::activePopupWidget(), nullptr); });
	});
}


TEST(held_keys, repeat_in_a_field)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(BPoint(10, 10), "field");
		user.click(middle(field));
		hold(user, Qt::Key_A, "a");
		EXPECT_EQ(page.text_of(field), "aaaaaaaaaaa");
		hold(user, Qt::Key_Return, "\r");
		EXPECT_EQ(page.senders(), journal{"field"});
	});
}


TEST(held_keys, walk_on_from_control_to_control)
{
	with_form([](form& page, robot& user) {
		for (const char* name : {"1", "2", "3", "4"})
			page.button(BPoint(10, 10), name);
		user.key_down(Qt::Key_Tab, "\t");
		EXPECT_EQ(page.focus(), "1");
		for (const char* next : {"2", "3", "4", "1"}) {
			user.key_down(Qt::Key_Tab, "\t");
			EXPECT_EQ(page.focus(), next);
		}
		user.key_up(Qt::Key_Tab, "\t");
	});
}
