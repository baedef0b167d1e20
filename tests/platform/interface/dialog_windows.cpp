// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Which window a dialog belongs to.
#include "platform/storage/desk.h"

#include <Alert.h>
#include <gtest/gtest.h>
#include <QApplication>
#include <QDialog>
#include <QWindow>
#include <thread>

namespace {

// The title of the window that the one dialog on the screen belongs to.
std::string
owner_of_dialog(robot& user)
{
	std::string title = "no dialog";
	user.on_display([&] {
		for (const QWidget* widget : QApplication::topLevelWidgets()) {
			if (!dynamic_cast<const QDialog*>(widget) || !widget->isVisible())
				continue;
			const QWindow* owner = widget->windowHandle()->transientParent();
			title = owner ? owner->title().toStdString() : "nobody";
		}
	});
	return title;
}


std::string
active_title(robot& user)
{
	std::string title;
	user.on_display([&] {
		if (const QWidget* active = QApplication::activeWindow())
			title = active->windowTitle().toStdString();
	});
	return title;
}

}


TEST(dialog_window, of_a_file_panel_belongs_to_the_window)
{
	with_desk([](desk& of) {
		for (file_panel_mode mode : {B_OPEN_PANEL, B_SAVE_PANEL}) {
			auto panel = of.panel(mode);
			panel->Show();
			EXPECT_EQ(owner_of_dialog(of.user), "test");
			of.user.cancel_panel();
		}
	});
}


TEST(dialog_window, of_an_alert_belongs_to_the_window)
{
	with_window([](test_window&, robot& user) {
		std::thread asking([] { (new BAlert("title", "text", "a"))->Go(); });
		EXPECT_TRUE(user.wait_for([&] { return !user.alert_text().empty(); }));
		EXPECT_EQ(owner_of_dialog(user), "test");
		user.press_alert("a");
		asking.join();
	});
}


TEST(dialog_window, belongs_to_the_window_that_is_used)
{
	with_desk([](desk& of) {
		auto* other = new test_window(BRect(300, 30, 399, 129), "other");
		other->Show();
		for (const char* title : {"test", "other"}) {
			of.user.use_window(title);
			of.user.act([](QWidget& window) { window.activateWindow(); });
			EXPECT_TRUE(of.user.wait_for([&] { return active_title(of.user) == title; }));
			auto panel = of.panel(B_OPEN_PANEL);
			panel->Show();
			EXPECT_EQ(owner_of_dialog(of.user), title);
			of.user.cancel_panel();
		}
	});
}


TEST(dialog_window, without_a_window_belongs_to_nobody)
{
	with_desk([](desk& of) {
		of.window.Hide();
		auto panel = of.panel(B_OPEN_PANEL);
		panel->Show();
		EXPECT_EQ(owner_of_dialog(of.user), "nobody");
		of.user.cancel_panel();
	});
}
