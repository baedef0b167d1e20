// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Lists under a user's hand.
#include "platform/interface/shown_list.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

namespace {

using numbers = std::vector<int>;


// The second press of two.
void
double_click_into(QWidget& window, BPoint where)
{
	QPointF local(where.x, where.y);
	QPointF screen = window.windowHandle()->mapToGlobal(local);
	QMouseEvent press(QEvent::MouseButtonDblClick, local, local, screen, Qt::LeftButton,
		Qt::LeftButton, Qt::NoModifier);
	QCoreApplication::sendEvent(window.windowHandle(), &press);
	QMouseEvent release(QEvent::MouseButtonRelease, local, local, screen, Qt::LeftButton,
		Qt::NoButton, Qt::NoModifier);
	QCoreApplication::sendEvent(window.windowHandle(), &release);
}

}


TEST(list_view_use, a_click_on_a_row_selects_it)
{
	with_form([](form& page, robot& user) {
		shown_list of(page, 3);
		user.click(row_at(1));
		EXPECT_EQ(of.sent(), journal{"selected 1"});
		EXPECT_EQ(user.selected_rows(on_list), numbers{1});
		page.locked([&] { EXPECT_EQ(of.list.CurrentSelection(), 1); });
		EXPECT_TRUE(user.choose_row(on_list, 2));
		EXPECT_EQ(of.sent(), (journal{"selected 1", "selected 2"}));
		EXPECT_FALSE(user.choose_row(on_list, 3));
	});
}


TEST(list_view_use, a_click_on_the_selected_row_changes_nothing)
{
	with_form([](form& page, robot& user) {
		shown_list of(page, 3);
		user.click(row_at(1));
		user.settle();
		user.click(row_at(1), B_PRIMARY_MOUSE_BUTTON, B_CONTROL_KEY);
		user.click(row_at(1), B_PRIMARY_MOUSE_BUTTON, B_SHIFT_KEY);
		EXPECT_EQ(user.selected_rows(on_list), numbers{1});
		page.locked([&] { EXPECT_EQ(of.list.CurrentSelection(), 1); });
		journal selections = of.sent();
		std::erase(selections, "invoked 1");
		EXPECT_EQ(selections, journal{"selected 1"});
	});
}


TEST(list_view_use, a_click_below_the_last_row_changes_nothing)
{
	for (list_view_type type : {B_SINGLE_SELECTION_LIST, B_MULTIPLE_SELECTION_LIST}) {
		with_form([type](form& page, robot& user) {
			shown_list of(page, 3, type);
			user.click(row_at(1));
			user.click(row_at(4));
			EXPECT_EQ(of.sent(), journal{"selected 1"});
			EXPECT_EQ(user.selected_rows(on_list), numbers{1});
		});
	}
}


TEST(list_view_use, a_click_brings_the_keyboard)
{
	with_form([](form& page, robot& user) {
		shown_list of(page, 3);
		user.click(row_at(1));
		EXPECT_EQ(page.focus(), "list");
		EXPECT_TRUE(user.has_keyboard(on_list));
	});
}


TEST(list_view_use, arrow_keys_move_the_selection)
{
	with_form([](form& page, robot& user) {
		shown_list of(page, 3);
		user.click(row_at(0));
		user.key(Qt::Key_Down);
		user.key(Qt::Key_Down);
		user.key(Qt::Key_Down);
		user.key(Qt::Key_Up);
		EXPECT_EQ(of.sent(), (journal{"selected 0", "selected 1", "selected 2", "selected 1"}));
		user.key(Qt::Key_End);
		EXPECT_EQ(user.selected_rows(on_list), numbers{2});
		user.key(Qt::Key_Home);
		EXPECT_EQ(user.selected_rows(on_list), numbers{0});
	});
}


TEST(list_view_use, the_first_arrow_key_selects_the_first_row)
{
	with_form([](form& page, robot& user) {
		shown_list of(page, 3);
		press_tab(user);
		EXPECT_EQ(page.focus(), "list");
		EXPECT_EQ(of.sent(), journal()) << "getting the keyboard selects nothing";
		user.key(Qt::Key_Down);
		EXPECT_EQ(of.sent(), journal{"selected 0"});
	});
}


TEST(list_view_use, arrow_keys_go_from_what_the_program_has_selected)
{
	with_form([](form& page, robot& user) {
		shown_list of(page, 4);
		user.click(row_at(0));
		page.locked([&] { of.list.Select(2); });
		user.key(Qt::Key_Down);
		EXPECT_EQ(user.selected_rows(on_list), numbers{3});
		page.locked([&] { of.list.DeselectAll(); });
		EXPECT_EQ(user.selected_rows(on_list), numbers{});
		user.key(Qt::Key_Down);
		EXPECT_EQ(user.selected_rows(on_list), numbers{0});
	});
}


TEST(list_view_use, tab_leaves_the_list)
{
	with_form([](form& page, robot& user) {
		shown_list of(page, 3);
		page.button(BPoint(120, 10), "push");
		user.click(row_at(1));
		press_tab(user);
		EXPECT_EQ(page.focus(), "push");
		press_shift_tab(user);
		EXPECT_EQ(page.focus(), "list");
		EXPECT_EQ(user.selected_rows(on_list), numbers{1});
	});
}


TEST(list_view_use, a_letter_selects_nothing)
{
	with_form([](form& page, robot& user) {
		shown_list of(page, 3);
		user.click(row_at(0));
		user.type("2");
		user.key(Qt::Key_Space, " ");
		EXPECT_EQ(user.selected_rows(on_list), numbers{0});
	});
}


TEST(list_view_use, enter_and_a_double_click_invoke)
{
	with_form([](form& page, robot& user) {
		shown_list of(page, 3);
		press_tab(user);
		press_return(user);
		EXPECT_EQ(of.sent(), journal()) << "nothing is selected";
		user.key(Qt::Key_Down);
		press_return(user);
		EXPECT_EQ(of.sent(), (journal{"selected 0", "invoked 0"}));
		user.act([](QWidget& window) {
			click_into(window, row_at(2));
			double_click_into(window, row_at(2));
		});
		user.settle();
		EXPECT_EQ(of.sent(), (journal{"selected 0", "invoked 0", "selected 2", "invoked 2"}));
	});
}


TEST(list_view_use, the_user_sees_what_the_program_selects)
{
	with_form([](form& page, robot& user) {
		shown_list of(page, 3);
		page.locked([&] { of.list.Select(2); });
		EXPECT_EQ(user.selected_rows(on_list), numbers{2});
		page.locked([&] {
			of.items.emplace_front("first");
			of.list.AddItem(&of.items.front(), 0);
		});
		EXPECT_EQ(user.selected_rows(on_list), numbers{3});
		page.locked([&] { of.list.RemoveItem((int32)3); });
		EXPECT_EQ(user.selected_rows(on_list), numbers{}) << "not the row beside";
		EXPECT_EQ(of.sent(), (journal{"selected 2", "selected -1"}));
	});
}


TEST(list_view_use, what_the_user_selects_in_rows_that_have_gone_is_forgotten)
{
	with_form([](form& page, robot& user) {
		shown_list of(page, 3);
		page.locked([&] {
			// The window's thread waits for the lock while the user clicks.
			user.act([](QWidget& window) { click_into(window, row_at(1)); });
			of.list.MakeEmpty();
			of.add("new");
			of.add("newer");
		});
		user.settle();
		EXPECT_EQ(of.sent(), journal());
		EXPECT_EQ(user.selected_rows(on_list), numbers{});
		user.click(row_at(1));
		EXPECT_EQ(of.sent(), journal{"selected 1"});
	});
}


TEST(list_view_use, of_two_selections_at_once_the_programs_counts)
{
	with_form([](form& page, robot& user) {
		shown_list of(page, 3);
		page.locked([&] {
			user.act([](QWidget& window) { click_into(window, row_at(1)); });
			of.list.Select(2);
		});
		user.settle();
		EXPECT_EQ(of.sent(), journal{"selected 2"});
		EXPECT_EQ(user.selected_rows(on_list), numbers{2});
		page.locked([&] { EXPECT_EQ(of.list.CurrentSelection(), 2); });
	});
}


TEST(list_view_use, its_message_may_empty_and_fill_it)
{
	with_form([](form& page, robot& user) {
		shown_list of(page, 3);
		page.on_sent = [&](BMessage&) {
			of.list.MakeEmpty();
			of.items.clear();
			of.add("again");
		};
		user.click(row_at(2));
		EXPECT_EQ(user.list_rows(on_list), journal{"again"});
		EXPECT_EQ(user.selected_rows(on_list), numbers{});
	});
}


TEST(list_view_use, several_rows_are_selected_with_the_modifiers)
{
	with_form([](form& page, robot& user) {
		shown_list of(page, 4, B_MULTIPLE_SELECTION_LIST);
		user.click(row_at(0));
		user.choose_row(on_list, 2, B_SHIFT_KEY);
		EXPECT_EQ(user.selected_rows(on_list), (numbers{0, 1, 2}));
		user.choose_row(on_list, 1, B_CONTROL_KEY);
		EXPECT_EQ(of.sent(), (journal{"selected 0", "selected 0 1 2", "selected 0 2"}));
	});
}


TEST(list_view_use, lets_no_press_or_move_through)
{
	with_form([](form& page, robot& user) {
		shown_list of(page, 2);
		for (int32 with : {B_PRIMARY_MOUSE_BUTTON, B_SECONDARY_MOUSE_BUTTON}) {
			user.press(row_at(4), with);
			user.move(row_at(3));
			user.release(row_at(3), with);
		}
		page.locked([&] { EXPECT_EQ(page.pointer, journal()); });
	});
}


TEST(list_view_use, removed_by_its_own_message_does_no_harm)
{
	with_form([](form& page, robot& user) {
		shown_list of(page, 3);
		page.on_sent = [&](BMessage&) {
			if (of.gone)
				return;
			of.gone = true;
			page.RemoveChild(&of.list);
			delete &of.list;
		};
		user.act([](QWidget& window) {
			click_into(window, row_at(0));
			click_into(window, row_at(1));
		});
		user.settle();
		page.locked([&] { EXPECT_EQ(page.CountChildren(), 0); });
	});
}
