// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Other windows come and go, and the keyboard is where it was.
#include "platform/interface/form.h"
#include "platform/interface/keyboard.h"

#include <gtest/gtest.h>

#include <Alert.h>
#include <FilePanel.h>
#include <Messenger.h>
#include <QApplication>
#include <QWidget>

namespace {

constexpr BPoint upper(10, 10);


// Does something that another window may come of, has that go again, and types a letter.
using interruption = std::function<void(form&, robot&)>;


void
activate(QWidget& window)
{
	window.activateWindow();
	QApplication::processEvents();
	EXPECT_EQ(QApplication::activeWindow(), &window);
}


void
another_window(form&, robot& user)
{
	QWidget* another = nullptr;
	user.act([&](QWidget&) {
		another = new QWidget;
		another->show();
		activate(*another);
	});
	user.on_display([&] { delete another; });
	user.act([](QWidget& window) { activate(window); });
}


void
minimised(form&, robot& user)
{
	user.act([](QWidget& window) { window.showMinimized(); });
	user.settle();
	user.act([](QWidget& window) {
		window.showNormal();
		activate(window);
	});
}


void
panel(form& page, robot& user)
{
	BMessenger target(&page);
	BFilePanel asked(B_SAVE_PANEL, &target);
	asked.Show();
	EXPECT_TRUE(user.panel_is_open());
	user.cancel_panel();
	user.act([](QWidget& window) { activate(window); });
}


void
alert(form&, robot& user)
{
	std::thread asking([] { (new BAlert("title", "text", "OK"))->Go(); });
	EXPECT_TRUE(user.wait_for([&] { return user.alert_text() == "text"; }));
	user.press_alert("OK");
	asking.join();
	user.act([](QWidget& window) { activate(window); });
}


void
menu_field_list(form&, robot& user)
{
	user.act([](QWidget& window) {
		auto* popup = new QWidget(&window, Qt::Popup);
		popup->setAttribute(Qt::WA_DeleteOnClose);
		popup->show();
		EXPECT_EQ(QApplication::activePopupWidget(), popup);
		popup->close();
	});
}


const std::vector<std::pair<const char*, interruption>> interruptions = {
	{"another window", another_window},
	{"minimised", minimised},
	{"file panel", panel},
	{"alert", alert},
	{"popup", menu_field_list},
};

}


TEST(focus_windows, the_keyboard_of_a_plain_view_stays_with_it)
{
	for (const auto& [name, interrupt] : interruptions) {
		with_form([&](form& page, robot& user) {
			BTextControl& field = page.field(upper, "field", "old");
			auto& view = page.put(new key_view(BRect(120, 0, 199, 99)));
			page.locked([&] { view.MakeFocus(); });
			user.settle();
			interrupt(page, user);
			user.type("x");
			page.locked([&] { EXPECT_EQ(view.keys, (journal{"down 78", "up 78"})) << name; });
			EXPECT_EQ(page.text_of(field), "old") << name;
			EXPECT_EQ(page.focus(), "keys") << name;
			EXPECT_EQ(page.senders(), journal()) << name;
		});
	}
}


TEST(focus_windows, the_keyboard_of_a_field_stays_with_it_and_confirms_nothing)
{
	for (const auto& [name, interrupt] : interruptions) {
		with_form([&](form& page, robot& user) {
			page.field(upper, "first", "old");
			BTextControl& field = page.field(BPoint(10, 40), "field");
			user.click(middle(field));
			user.type("a");
			interrupt(page, user);
			user.type("x");
			EXPECT_EQ(page.text_of(field), "ax") << name;
			EXPECT_EQ(page.focus(), "field") << name;
			EXPECT_EQ(page.senders(), journal()) << name;
		});
	}
}


TEST(focus_windows, the_keyboard_that_nobody_has_stays_with_nobody)
{
	for (const auto& [name, interrupt] : interruptions) {
		with_form([&](form& page, robot& user) {
			BTextControl& field = page.field(upper, "field", "old");
			interrupt(page, user);
			user.type("x");
			EXPECT_EQ(page.text_of(field), "old") << name;
			EXPECT_EQ(page.focus(), "") << name;
		});
	}
}


TEST(focus_windows, the_keyboard_of_what_is_hidden_goes_to_no_other_control)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field", "old");
		BTextControl& other = page.field(BPoint(10, 40), "other", "old");
		user.click(middle(field));
		page.locked([&] { field.Hide(); });
		user.settle();
		another_window(page, user);
		user.type("x");
		EXPECT_EQ(page.text_of(field), "old");
		EXPECT_EQ(page.text_of(other), "old");
	});
}


TEST(focus_windows, the_keyboard_of_what_is_removed_or_switched_off_goes_to_no_other_control)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field", "old");
		BTextControl& other = page.field(BPoint(10, 40), "other", "old");
		BButton& button = page.button(BPoint(120, 10), "button");
		page.locked([&] { button.MakeFocus(); });
		page.locked([&] { button.SetEnabled(false); });
		user.settle();
		another_window(page, user);
		user.type("x");
		user.click(middle(field));
		page.locked([&] { field.RemoveSelf(); });
		user.settle();
		another_window(page, user);
		user.type("x");
		EXPECT_EQ(page.text_of(other), "old");
		EXPECT_EQ(page.focus(), "");
		delete &field;
	});
}


TEST(focus_windows, a_click_that_activates_the_window_takes_the_keyboard_to_its_field)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field");
		page.locked([&] { page.MakeFocus(); });
		QWidget* another = nullptr;
		user.act([&](QWidget&) {
			another = new QWidget;
			another->setWindowTitle("another");
			another->show();
			activate(*another);
		});
		user.use_window("test");
		// The press comes before the window is active, as some window managers have it.
		user.act([](QWidget& window) {
			click_into(window, BPoint(30, 20));
			activate(window);
		});
		user.settle();
		EXPECT_EQ(page.focus(), "field");
		user.type("x");
		EXPECT_EQ(page.text_of(field), "x");
		user.on_display([&] { delete another; });
	});
}


TEST(focus_windows, a_key_that_is_held_goes_up_when_the_window_loses_the_keyboard)
{
	with_keyboard([](key_view& view, test_window& window, robot& user) {
		user.key_down(Qt::Key_A, "a");
		QWidget* another = nullptr;
		user.act([&](QWidget&) {
			another = new QWidget;
			another->setWindowTitle("another");
			another->show();
			activate(*another);
		});
		user.settle();
		window.locked([&] { EXPECT_EQ(view.keys, (journal{"down 61", "up 61"})); });
		user.on_display([&] { delete another; });
		user.use_window("test");
		user.act([](QWidget& widget) { activate(widget); });
		// It repeats, and goes up in fact: of that the view has heard.
		user.key_down(Qt::Key_A, "a");
		user.key_up(Qt::Key_A, "a");
		window.locked([&] { EXPECT_EQ(view.keys, (journal{"down 61", "up 61"})); });
		user.key(Qt::Key_A, "a");
		window.locked([&] { EXPECT_EQ(view.keys.size(), 4U); });
	});
}


TEST(focus_windows, a_key_that_is_held_goes_up_before_a_click_takes_the_keyboard_away)
{
	with_form([](form& page, robot& user) {
		BTextControl& field = page.field(upper, "field");
		auto& view = page.put(new key_view(BRect(120, 0, 199, 99)));
		page.locked([&] { view.MakeFocus(); });
		user.key_down(Qt::Key_A, "a");
		user.click(middle(field));
		page.locked([&] { EXPECT_EQ(view.keys, (journal{"down 61", "up 61"})); });
		user.key_down(Qt::Key_A, "a");
		user.key_up(Qt::Key_A, "a");
		EXPECT_EQ(page.text_of(field), "") << "what it still does is nobody's";
		user.type("a");
		EXPECT_EQ(page.text_of(field), "a");
	});
}
