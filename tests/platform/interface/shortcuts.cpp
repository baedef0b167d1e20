// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Keys that are orders to the program.
#include "platform/interface/keyboard.h"

#include <algorithm>

#include <gtest/gtest.h>

#include <AppDefs.h>
#include <InterfaceDefs.h>
#include <MenuBar.h>
#include <MenuItem.h>
#include <QApplication>

namespace {

const struct {
	Qt::Key key;
	const char* text;
	uint32 what;
} edits[] = {{Qt::Key_C, "c", B_COPY}, {Qt::Key_V, "v", B_PASTE}, {Qt::Key_X, "x", B_CUT},
	{Qt::Key_A, "a", B_SELECT_ALL}};


void
press(robot& user, Qt::Key key, const char* text, Qt::KeyboardModifiers held)
{
	strike(user, {{true, key, text, held, 100, 0}, {false, key, text, held, 200, 0}});
}


long
downs(const key_view& view)
{
	return std::count_if(view.keys.begin(), view.keys.end(),
		[](const std::string& key) { return key.starts_with("down"); });
}

}


TEST(shortcuts, of_the_command_key_tell_the_focus_view_to_edit)
{
	for (auto command : {Qt::AltModifier, Qt::MetaModifier}) {
		for (const auto& edit : edits) {
			with_keyboard([&](key_view& view, test_window& window, robot& user) {
				press(user, edit.key, edit.text, command);
				BMessage told = window.last_dispatched(edit.what);
				EXPECT_EQ(window.dispatched(edit.what).size(), 1u) << edit.text;
				EXPECT_TRUE(told.HasInt64("when"));
				EXPECT_TRUE(told.FindBool("shortcut"));
				window.locked([&] {
					EXPECT_EQ(std::count(view.received.begin(), view.received.end(), edit.what), 1);
					EXPECT_EQ(downs(view), 0);
				});
			});
		}
	}
}


TEST(shortcuts, of_the_desktop_copy_and_paste_as_well)
{
	with_keyboard([](key_view& view, test_window& window, robot& user) {
		press(user, Qt::Key_C, "\x03", Qt::ControlModifier);
		press(user, Qt::Key_V, "\x16", Qt::ControlModifier);
		EXPECT_EQ(window.dispatched(B_COPY).size(), 1u);
		EXPECT_EQ(window.dispatched(B_PASTE).size(), 1u);
		EXPECT_TRUE(window.last_dispatched(B_COPY).FindBool("shortcut"));
		window.locked([&] { EXPECT_EQ(downs(view), 0); });
	});
}


TEST(shortcuts, with_the_shift_key_are_the_same)
{
	with_keyboard([](key_view&, test_window& window, robot& user) {
		press(user, Qt::Key_C, "C", Qt::AltModifier | Qt::ShiftModifier);
		EXPECT_EQ(window.dispatched(B_COPY).size(), 1u);
	});
}


TEST(shortcuts, that_mean_nothing_are_no_keys)
{
	with_keyboard([](key_view& view, test_window& window, robot& user) {
		strike(user, {{true, Qt::Key_Z, "z", Qt::AltModifier, 100, 0}});
		strike(user, {{true, Qt::Key_Left, "", Qt::MetaModifier, 100, 0}});
		strike(user, {{true, Qt::Key_Tab, "\t", Qt::AltModifier, 100, 0}});
		window.locked([&] {
			EXPECT_EQ(view.keys, journal());
			EXPECT_TRUE(view.IsFocus());
		});
	});
}


TEST(shortcuts, without_the_keyboard_tell_nobody_to_edit)
{
	with_keyboard([](key_view& view, test_window& window, robot& user) {
		window.locked([&] { view.MakeFocus(false); });
		press(user, Qt::Key_C, "c", Qt::AltModifier);
		EXPECT_EQ(window.dispatched(B_COPY).size(), 0u);
	});
}


TEST(shortcuts, of_the_control_key_are_otherwise_keys)
{
	with_keyboard([](key_view& view, test_window& window, robot& user) {
		press(user, Qt::Key_X, "\x18", Qt::ControlModifier);
		press(user, Qt::Key_Q, "\x11", Qt::ControlModifier);
		window.locked([&] {
			EXPECT_EQ(view.keys, (journal{"down 18", "up 18", "down 11", "up 11"}));
			EXPECT_EQ(window.quit_questions, 0);
		});
	});
}


TEST(shortcuts, close_the_window_with_command_w)
{
	with_keyboard([](key_view&, test_window& window, robot& user) {
		window.locked([&] { window.may_quit = false; });
		press(user, Qt::Key_W, "w", Qt::AltModifier);
		EXPECT_EQ(window.dispatched(B_QUIT_REQUESTED).size(), 1u);
		window.locked([&] { EXPECT_EQ(window.quit_questions, 1); });
	});
}


TEST(shortcuts, quit_the_application_with_command_q)
{
	with_keyboard([](key_view&, test_window& window, robot& user) {
		window.locked([&] { window.may_quit = false; });
		press(user, Qt::Key_Q, "q", Qt::AltModifier);
		EXPECT_EQ(window.dispatched(B_QUIT_REQUESTED).size(), 0u)
			<< "the application asks, the window answers";
		window.locked([&] { EXPECT_EQ(window.quit_questions, 1); });
	});
}


TEST(shortcuts, of_the_command_key_alone_open_no_menu)
{
	with_keyboard([](key_view& view, test_window& window, robot& user) {
		auto* bar = new BMenuBar(BRect(0, 0, 20, 20), "bar");
		auto* menu = new BMenu("Menu");
		menu->AddItem(new BMenuItem("Item", new BMessage('item')));
		bar->AddItem(menu);
		window.AddChild(bar);
		user.key(Qt::Key_Alt);
		user.type("a");
		press(user, Qt::Key_M, "m", Qt::AltModifier);
		user.on_display([] { EXPECT_EQ(QApplication::activePopupWidget(), nullptr); });
		window.locked([&] { EXPECT_EQ(view.keys.front(), "down 61"); });
	});
}
