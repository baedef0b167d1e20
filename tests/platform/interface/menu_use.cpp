// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Menus under a user's hand.
#include <MenuBar.h>
#include <MenuItem.h>

#include "platform/interface/stage.h"

#include <gtest/gtest.h>
#include <OS.h>
#include <QAction>
#include <QMenu>
#include <QMenuBar>

namespace {

// A bar with the menu "File": "Open", "Save", and "More" with "Deep" in it.
struct menus {
	BMenuBar* bar = new BMenuBar(BRect(0, 0, 99, 19), "bar");
	BMenu* file = new BMenu("File");
	BMenuItem* open = new BMenuItem("Open", new BMessage('open'));
	BMenuItem* save = new BMenuItem("Save", new BMessage('save'));
	BMenu* more = new BMenu("More");
	BMenuItem* deep = new BMenuItem("Deep", new BMessage('deep'));

	menus()
	{
		file->AddItem(open);
		file->AddItem(save);
		more->AddItem(deep);
		file->AddItem(more);
		bar->AddItem(file);
	}
};


// Chooses an item wherever it stands; false when the user finds none of that label.
bool
choose(robot& user, const char* label)
{
	bool found = false;
	user.settle();
	user.act([&](QWidget& window) {
		for (const QMenu* menu : window.findChildren<QMenu*>()) {
			for (QAction* action : menu->actions()) {
				if (action->text() != label || action->menu())
					continue;
				found = true;
				action->trigger();
			}
		}
	});
	user.settle();
	return found;
}


// Labels of what opens from the bar's first menu, as the user reads them.
journal
shown_items(robot& user)
{
	journal labels;
	user.settle();
	user.act([&](QWidget& window) {
		auto* bar = window.findChild<QMenuBar*>();
		for (const QAction* action : bar->actions().at(0)->menu()->actions())
			labels.push_back(action->text().toStdString());
	});
	return labels;
}

}


TEST(menu_use, a_chosen_item_sends_its_message_to_the_window)
{
	with_window([](test_window& window, robot& user) {
		menus of;
		window.AddChild(of.bar);
		EXPECT_TRUE(user.choose_menu("File", "Save"));
		EXPECT_EQ(window.dispatched('save').size(), 1U);
		EXPECT_EQ(window.handlers_of('save'), journal{"test"});
		EXPECT_EQ(window.dispatched('open').size(), 0U);
	});
}


TEST(menu_use, the_message_tells_when_and_by_what_it_was_sent)
{
	with_window([](test_window& window, robot& user) {
		menus of;
		window.AddChild(of.bar);
		const bigtime_t before = system_time();
		user.choose_menu("File", "Save");
		const BMessage sent = window.last_dispatched('save');
		void* source = nullptr;
		sent.FindPointer("source", &source);
		EXPECT_EQ(source, of.save);
		EXPECT_EQ(sent.FindInt32("index"), 1);
		EXPECT_GE(sent.FindInt64("when"), before);
		EXPECT_LE(sent.FindInt64("when"), system_time());
		BMessenger sender;
		EXPECT_EQ(sent.FindMessenger("be:sender", &sender), 0);
	});
}


TEST(menu_use, the_message_carries_the_models_fields)
{
	with_window([](test_window& window, robot& user) {
		menus of;
		of.open->Message()->AddString("name", "font.ttf");
		window.AddChild(of.bar);
		user.choose_menu("File", "Open");
		EXPECT_STREQ(window.last_dispatched('open').FindString("name"), "font.ttf");
	});
}


TEST(menu_use, each_choice_sends_a_fresh_copy)
{
	with_window([](test_window& window, robot& user) {
		menus of;
		window.AddChild(of.bar);
		user.choose_menu("File", "Open");
		user.choose_menu("File", "Open");
		EXPECT_EQ(window.dispatched('open').size(), 2U);
		int32 indexes = 0;
		window.last_dispatched('open').GetInfo("index", nullptr, &indexes);
		EXPECT_EQ(indexes, 1);
		window.locked([&] { EXPECT_FALSE(of.open->Message()->HasInt32("index")); });
	});
}


TEST(menu_use, an_item_of_a_submenu_can_be_chosen)
{
	with_window([](test_window& window, robot& user) {
		menus of;
		window.AddChild(of.bar);
		EXPECT_TRUE(choose(user, "Deep"));
		EXPECT_EQ(window.last_dispatched('deep').FindInt32("index"), 0);
		EXPECT_EQ(window.handlers_of('deep'), journal{"test"});
	});
}


TEST(menu_use, an_item_keeps_the_target_it_was_given)
{
	with_window([](test_window& window, robot& user) {
		menus of;
		auto& view = window.add(new test_view(BRect(0, 20, 99, 99), "view"));
		of.open->SetTarget(&view);
		window.AddChild(of.bar);
		user.choose_menu("File", "Open");
		EXPECT_EQ(window.handlers_of('open'), journal{"view"});
	});
}


TEST(menu_use, all_items_of_a_menu_can_be_aimed_at_once)
{
	with_window([](test_window& window, robot& user) {
		menus of;
		auto& view = window.add(new test_view(BRect(0, 20, 99, 99), "view"));
		window.AddChild(of.bar);
		window.locked([&] { EXPECT_EQ(of.file->SetTargetForItems(&view), 0); });
		user.choose_menu("File", "Open");
		user.choose_menu("File", "Save");
		EXPECT_EQ(window.handlers_of('open'), journal{"view"});
		EXPECT_EQ(window.handlers_of('save'), journal{"view"});
	});
}


TEST(menu_use, an_item_aimed_at_the_preferred_handler_reaches_the_focus_view)
{
	with_window([](test_window& window, robot& user) {
		menus of;
		auto& view = window.add(new test_view(BRect(0, 20, 99, 99), "view"));
		of.open->SetTarget(nullptr, &window);
		window.AddChild(of.bar);
		user.choose_menu("File", "Open");
		window.locked([&] { view.MakeFocus(true); });
		user.choose_menu("File", "Open");
		EXPECT_EQ(window.handlers_of('open'), (journal{"test", "view"}));
	});
}


TEST(menu_use, an_item_without_a_message_sends_nothing)
{
	with_window([](test_window& window, robot& user) {
		menus of;
		of.file->AddItem(new BMenuItem("Nothing", nullptr));
		window.AddChild(of.bar);
		EXPECT_TRUE(user.choose_menu("File", "Nothing"));
		EXPECT_EQ(window.handlers_of(0), journal{});
	});
}


TEST(menu_use, a_disabled_item_cannot_be_chosen)
{
	with_window([](test_window& window, robot& user) {
		menus of;
		of.open->SetEnabled(false);
		window.AddChild(of.bar);
		EXPECT_FALSE(user.choose_menu("File", "Open"));
		window.locked([&] {
			of.open->SetEnabled(true);
			of.save->SetEnabled(false);
		});
		EXPECT_FALSE(user.choose_menu("File", "Save"));
		EXPECT_TRUE(user.choose_menu("File", "Open"));
		EXPECT_EQ(window.dispatched('open').size(), 1U);
		EXPECT_EQ(window.dispatched('save').size(), 0U);
	});
}


TEST(menu_use, the_user_sees_the_marks)
{
	with_window([](test_window& window, robot& user) {
		menus of;
		of.open->SetMarked(true);
		window.AddChild(of.bar);
		EXPECT_TRUE(user.menu_is_marked("File", "Open"));
		EXPECT_FALSE(user.menu_is_marked("File", "Save"));
		window.locked([&] {
			of.open->SetMarked(false);
			of.save->SetMarked(true);
		});
		EXPECT_FALSE(user.menu_is_marked("File", "Open"));
		EXPECT_TRUE(user.menu_is_marked("File", "Save"));
	});
}


TEST(menu_use, choosing_an_item_does_not_change_its_mark)
{
	with_window([](test_window& window, robot& user) {
		menus of;
		of.open->SetMarked(true);
		window.AddChild(of.bar);
		user.choose_menu("File", "Open");
		user.choose_menu("File", "Save");
		EXPECT_TRUE(user.menu_is_marked("File", "Open"));
		EXPECT_FALSE(user.menu_is_marked("File", "Save"));
	});
}


TEST(menu_use, items_added_later_appear_in_their_place)
{
	with_window([](test_window& window, robot& user) {
		menus of;
		window.AddChild(of.bar);
		window.locked([&] {
			of.file->AddItem(new BMenuItem("New", new BMessage('newf')), 0);
			of.file->AddItem(new BMenu("Late"));
		});
		EXPECT_EQ(shown_items(user), (journal{"New", "Open", "Save", "More", "Late"}));
	});
}


TEST(menu_use, an_item_added_later_reports_to_the_window_too)
{
	with_window([](test_window& window, robot& user) {
		menus of;
		window.AddChild(of.bar);
		window.locked([&] { of.more->AddItem(new BMenuItem("New", new BMessage('newf'))); });
		EXPECT_TRUE(choose(user, "New"));
		EXPECT_EQ(window.handlers_of('newf'), journal{"test"});
	});
}


TEST(menu_use, adding_an_item_keeps_the_marks_of_the_others)
{
	with_window([](test_window& window, robot& user) {
		menus of;
		window.AddChild(of.bar);
		window.locked([&] {
			of.open->SetMarked(true);
			of.save->SetEnabled(false);
			of.file->AddItem(new BMenuItem("New", new BMessage('newf')));
		});
		EXPECT_TRUE(user.menu_is_marked("File", "Open"));
		EXPECT_FALSE(user.choose_menu("File", "Save"));
	});
}


TEST(menu_use, a_label_is_shown_as_it_is)
{
	with_window([](test_window& window, robot& user) {
		menus of;
		of.file->AddItem(new BMenuItem("R&D", new BMessage('r&d ')));
		window.AddChild(of.bar);
		// Doubled, the sign stands for itself and underlines nothing.
		EXPECT_EQ(shown_items(user), (journal{"Open", "Save", "More", "R&&D"}));
	});
}


TEST(menu_use, a_disabled_submenu_cannot_be_opened)
{
	with_window([](test_window& window, robot& user) {
		menus of;
		of.file->ItemAt(2)->SetEnabled(false);
		window.AddChild(of.bar);
		bool enabled = true;
		user.settle();
		user.act([&](QWidget& widget) {
			auto* bar = widget.findChild<QMenuBar*>();
			enabled = bar->actions().at(0)->menu()->actions().at(2)->isEnabled();
		});
		EXPECT_FALSE(enabled);
	});
}


TEST(menu_bar, becomes_as_wide_as_its_window_and_follows_it)
{
	with_window([](test_window& window, robot&) {
		auto& bar = window.add(new BMenuBar(BRect(0, 0, 9, 19), "bar"));
		EXPECT_EQ(bar.Frame(), BRect(0, 0, 199, 19));
		window.ResizeTo(259, 99);
		EXPECT_EQ(bar.Frame(), BRect(0, 0, 259, 19));
	});
}


TEST(menu_bar, keeps_its_width_when_it_is_not_to_fit)
{
	with_window([](test_window& window, robot&) {
		auto& bar = window.add(
			new BMenuBar(BRect(0, 0, 9, 19), "bar", B_FOLLOW_LEFT_RIGHT, B_ITEMS_IN_ROW, false));
		EXPECT_EQ(bar.Frame(), BRect(0, 0, 9, 19));
	});
}


TEST(menu_bar, keeps_its_width_when_it_does_not_follow_both_sides)
{
	with_window([](test_window& window, robot&) {
		auto& bar = window.add(new BMenuBar(BRect(0, 0, 9, 19), "bar", B_FOLLOW_LEFT));
		EXPECT_EQ(bar.Frame(), BRect(0, 0, 9, 19));
	});
}
