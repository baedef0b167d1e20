// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// What a field does when it gets and loses the keyboard.
#include "platform/interface/form.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMenu>
#include <QWidget>

#include <MenuBar.h>
#include <MenuItem.h>

namespace {

constexpr BPoint upper(10, 10);
constexpr BPoint lower(10, 40);


// Two fields, the upper one being edited.
void
editing(const std::function<void(form&, robot&, BTextControl& field, BTextControl& other)>& user)
{
	with_form([&](form& page, robot& hand) {
		BTextControl& field = page.field(upper, "field", "old");
		BTextControl& other = page.field(lower, "other");
		hand.click(middle(field));
		user(page, hand, field, other);
	});
}

}


TEST(text_control_focus, comes_with_a_click)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field");
		EXPECT_EQ(page.focus(), "");
		user.click(middle(field));
		EXPECT_EQ(page.focus(), "field");
		EXPECT_TRUE(user.has_keyboard(middle(field)));
	});
}


TEST(text_control_focus, got_by_a_click_selects_all)
{
	editing([](form& page, robot& user, BTextControl& field, BTextControl&) {
		user.type("x");
		EXPECT_EQ(page.text_of(field), "x");
	});
}


TEST(text_control_focus, got_by_tab_selects_all)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field", "old");
		press_tab(user);
		EXPECT_EQ(page.focus(), "field");
		user.type("x");
		EXPECT_EQ(page.text_of(field), "x");
	});
}


TEST(text_control_focus, got_from_the_program_selects_all)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field", "old");
		page.locked([&] { field.MakeFocus(); });
		user.type("x");
		EXPECT_EQ(page.text_of(field), "x");
	});
}


TEST(text_control_focus, another_click_puts_the_cursor_where_it_is)
{
	editing([](form& page, robot& user, BTextControl& field, BTextControl&) {
		BPoint end = middle(field);
		end.x += 40;
		user.click(end);
		user.type("x");
		EXPECT_EQ(page.text_of(field), "oldx");
	});
}


TEST(text_control_focus, lost_by_tab_confirms_a_change_once)
{
	editing([](form& page, robot& user, BTextControl&, BTextControl&) {
		user.type("new");
		press_tab(user);
		EXPECT_EQ(page.focus(), "other");
		EXPECT_EQ(page.senders(), journal{"field"});
		press_tab(user);
		press_tab(user);
		EXPECT_EQ(page.senders(), journal{"field"});
	});
}


TEST(text_control_focus, left_by_tab_confirms_a_change_once_also_when_there_is_no_other_stop)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field");
		user.click(middle(field));
		press_tab(user);
		EXPECT_EQ(page.senders(), journal());
		user.type("new");
		press_tab(user);
		EXPECT_EQ(page.senders(), journal{"field"});
		EXPECT_EQ(page.focus(), "field");
		EXPECT_TRUE(user.has_keyboard(middle(field)));
		press_shift_tab(user);
		EXPECT_EQ(page.senders(), journal{"field"});
		user.type("x");
		EXPECT_EQ(page.text_of(field), "x") << "entered again, all of it is selected";
	});
}


TEST(text_control_focus, lost_by_a_click_into_another_field_confirms_a_change_once)
{
	editing([](form& page, robot& user, BTextControl& field, BTextControl& other) {
		user.type("new");
		user.click(middle(other));
		EXPECT_EQ(page.focus(), "other");
		EXPECT_EQ(page.senders(), journal{"field"});
		user.click(middle(field));
		user.click(middle(other));
		EXPECT_EQ(page.senders(), journal{"field"});
	});
}


TEST(text_control_focus, lost_to_a_view_of_the_programs_choice_confirms_a_change_once)
{
	editing([](form& page, robot& user, BTextControl& field, BTextControl&) {
		user.type("new");
		page.locked([&] { page.MakeFocus(); });
		user.settle();
		EXPECT_EQ(page.focus(), "form");
		EXPECT_FALSE(user.has_keyboard(middle(field)));
		EXPECT_EQ(page.senders(), journal{"field"});
	});
}


TEST(text_control_focus, given_up_confirms_a_change_once)
{
	editing([](form& page, robot& user, BTextControl& field, BTextControl&) {
		user.type("new");
		page.locked([&] { field.MakeFocus(false); });
		user.settle();
		EXPECT_EQ(page.focus(), "");
		EXPECT_EQ(page.senders(), journal{"field"});
	});
}


TEST(text_control_focus, lost_after_return_confirms_nothing_more)
{
	editing([](form& page, robot& user, BTextControl&, BTextControl& other) {
		user.type("new");
		press_return(user);
		user.click(middle(other));
		EXPECT_EQ(page.senders(), journal{"field"});
	});
}


TEST(text_control_focus, lost_without_a_change_confirms_nothing)
{
	editing([](form& page, robot& user, BTextControl& field, BTextControl& other) {
		press_tab(user);
		user.click(middle(field));
		user.click(middle(other));
		user.click(middle(field));
		page.locked([&] { page.MakeFocus(); });
		user.settle();
		EXPECT_EQ(page.senders(), journal());
	});
}


TEST(text_control_focus, lost_with_the_programs_own_text_confirms_nothing)
{
	editing([](form& page, robot& user, BTextControl& field, BTextControl& other) {
		user.type("new");
		page.locked([&] { field.SetText("set"); });
		user.click(middle(other));
		EXPECT_EQ(page.senders(), journal());
	});
}


TEST(text_control_focus, is_confirmed_before_the_next_field_sends)
{
	editing([](form& page, robot& user, BTextControl&, BTextControl& other) {
		user.type("new");
		user.click(middle(other));
		user.type("x");
		press_return(user);
		EXPECT_EQ(page.senders(), (journal{"field", "other"}));
	});
}


TEST(text_control_focus, is_not_lost_by_a_click_on_a_button)
{
	editing([](form& page, robot& user, BTextControl& field, BTextControl&) {
		BButton& button = page.button(BPoint(120, 10), "button");
		user.type("new");
		user.click(middle(button));
		EXPECT_EQ(page.senders(), journal{"button"});
		EXPECT_EQ(page.text_of(field), "new");
		EXPECT_EQ(page.focus(), "field");
		EXPECT_TRUE(user.has_keyboard(middle(field)));
		press_return(user);
		EXPECT_EQ(page.senders(), (journal{"button", "field"}));
	});
}


TEST(text_control_focus, is_not_lost_by_a_click_on_a_plain_view)
{
	editing([](form& page, robot& user, BTextControl& field, BTextControl&) {
		user.type("new");
		user.click(BPoint(150, 80));
		EXPECT_EQ(page.focus(), "field");
		EXPECT_TRUE(user.has_keyboard(middle(field)));
		EXPECT_EQ(page.senders(), journal());
	});
}


TEST(text_control_focus, is_not_lost_when_another_window_is_activated)
{
	editing([](form& page, robot& user, BTextControl& field, BTextControl&) {
		user.type("new");
		QWidget* another = nullptr;
		user.act([&](QWidget&) {
			another = new QWidget;
			another->show();
			another->activateWindow();
			QApplication::processEvents();
			EXPECT_EQ(QApplication::activeWindow(), another);
		});
		user.settle();
		EXPECT_EQ(page.focus(), "field");
		EXPECT_EQ(page.senders(), journal());
		user.on_display([&] { delete another; });
		user.act([](QWidget& window) {
			window.activateWindow();
			QApplication::processEvents();
			EXPECT_EQ(QApplication::activeWindow(), &window);
		});
		user.settle();
		user.type("er");
		EXPECT_EQ(page.text_of(field), "newer") << "and selects nothing anew";
		EXPECT_EQ(page.senders(), journal());
	});
}


TEST(text_control_focus, is_not_lost_when_a_menu_opens)
{
	editing([](form& page, robot& user, BTextControl& field, BTextControl&) {
		auto* bar = new BMenuBar(BRect(0, 0, 20, 20), "bar");
		auto* menu = new BMenu("Menu");
		menu->AddItem(new BMenuItem("Item", new BMessage('item')));
		bar->AddItem(menu);
		page.locked([&] { page.Window()->AddChild(bar); });
		user.type("new");
		user.click(BPoint(10, 5));
		user.on_display([] { EXPECT_NE(QApplication::activePopupWidget(), nullptr); });
		EXPECT_EQ(page.focus(), "field");
		EXPECT_EQ(page.senders(), journal());
		user.act([](QWidget&) { QApplication::activePopupWidget()->close(); });
		user.settle();
		EXPECT_EQ(page.senders(), journal());
		user.type("er");
		EXPECT_EQ(page.text_of(field), "newer");
	});
}


TEST(text_control_focus, is_kept_unconfirmed_while_its_view_is_hidden)
{
	editing([](form& page, robot& user, BTextControl& field, BTextControl&) {
		user.type("new");
		page.locked([&] { page.Hide(); });
		user.settle();
		EXPECT_EQ(page.focus(), "field");
		EXPECT_EQ(page.senders(), journal());
		page.locked([&] { page.Show(); });
		user.settle();
		EXPECT_TRUE(user.has_keyboard(middle(field)));
		user.type("x");
		press_return(user);
		EXPECT_EQ(page.text_of(field), "x");
		EXPECT_EQ(page.senders(), journal{"field"});
	});
}


TEST(text_control_focus, is_kept_unconfirmed_while_the_field_is_hidden)
{
	editing([](form& page, robot& user, BTextControl& field, BTextControl&) {
		user.type("new");
		page.locked([&] { field.Hide(); });
		user.settle();
		EXPECT_EQ(page.focus(), "field");
		EXPECT_EQ(page.senders(), journal());
		page.locked([&] { field.Show(); });
		user.settle();
		EXPECT_TRUE(user.has_keyboard(middle(field)));
	});
}


TEST(text_control_focus, lost_while_hidden_confirms)
{
	editing([](form& page, robot& user, BTextControl& field, BTextControl& other) {
		user.type("new");
		page.locked([&] { page.Hide(); });
		page.locked([&] { other.MakeFocus(); });
		EXPECT_EQ(page.focus(), "other");
		user.settle();
		EXPECT_EQ(page.senders(), journal{"field"});
		page.locked([&] { page.Show(); });
		user.settle();
		EXPECT_TRUE(user.has_keyboard(middle(other)));
		EXPECT_FALSE(user.has_keyboard(middle(field)));
	});
}


TEST(text_control_focus, typed_text_reaches_no_hidden_field)
{
	editing([](form& page, robot& user, BTextControl& field, BTextControl&) {
		page.locked([&] { page.Hide(); });
		user.type("x");
		EXPECT_EQ(page.text_of(field), "old");
	});
}


TEST(text_control_focus, goes_with_the_field_when_it_is_removed)
{
	editing([](form& page, robot& user, BTextControl& field, BTextControl&) {
		user.type("new");
		page.locked([&] {
			field.RemoveSelf();
			delete &field;
		});
		EXPECT_EQ(page.focus(), "");
		user.type("x");
		press_tab(user);
		EXPECT_EQ(page.focus(), "other");
	});
}


TEST(text_control_focus, goes_with_the_view_around_it_when_that_is_removed)
{
	editing([](form& page, robot& user, BTextControl& field, BTextControl&) {
		auto& window = *static_cast<test_window*>(page.Window());
		user.type("new");
		window.locked([&] { window.RemoveChild(&page); });
		user.type("x");
		window.locked([&] { EXPECT_EQ(window.CurrentFocus(), nullptr); });
		EXPECT_STREQ(field.Text(), "new");
		window.AddChild(&page);
		user.settle();
		EXPECT_EQ(user.field_text(middle(field)), "new");
		EXPECT_EQ(page.focus(), "");
	});
}


TEST(text_control_focus, is_not_taken_from_its_field_by_the_text_of_another)
{
	editing([](form& page, robot& user, BTextControl& field, BTextControl& other) {
		user.type("n");
		page.locked([&] { other.SetText("set"); });
		user.type("ew");
		EXPECT_EQ(page.text_of(field), "new");
	});
}
