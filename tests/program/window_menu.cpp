// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The window's one menu, and the marks of its items.
#include "app/kernix.h"
#include "app/kernixview.h"
#include "app/kernixwindow.h"
#include "program/journey.h"

#include <AppDefs.h>
#include <gtest/gtest.h>
#include <MenuBar.h>
#include <MenuItem.h>


TEST(menu, has_one_menu_with_five_items)
{
	journey([](kernix& app, robot&) {
		looking(app, [&] {
			const BMenuBar* bar = app.window->menubar;
			EXPECT_STREQ(bar->Name(), "menubar");
			EXPECT_EQ(bar->ResizingMode(), B_FOLLOW_LEFT_RIGHT | B_FOLLOW_TOP);
			EXPECT_EQ(bar->Layout(), B_ITEMS_IN_ROW);
			ASSERT_EQ(bar->CountItems(), 1);
			const BMenu* file = bar->SubmenuAt(0);
			ASSERT_NE(file, nullptr);
			EXPECT_STREQ(file->Name(), "File");
			EXPECT_EQ(file->Layout(), B_ITEMS_IN_COLUMN);
			const char* const labels[] = {"New", "Open", "Save as", "About", "Quit"};
			ASSERT_EQ(file->CountItems(), 5);
			for (int32 i = 0; i < 5; i++)
				EXPECT_STREQ(file->ItemAt(i)->Label(), labels[i]);
		});
	});
}


TEST(menu, sends_its_messages_to_the_application_and_the_work_view)
{
	journey([](kernix& app, robot&) {
		looking(app, [&] {
			const BMenu* file = app.window->menubar->SubmenuAt(0);
			const uint32 codes[] = {'fine', 'fiop', 'finw', B_ABOUT_REQUESTED, B_QUIT_REQUESTED};
			BHandler* const targets[] = {
				&app, app.window->workview, app.window->workview, &app, &app};
			for (int32 i = 0; i < 5; i++) {
				EXPECT_EQ(file->ItemAt(i)->Command(), codes[i]) << i;
				EXPECT_EQ(file->ItemAt(i)->Target(), targets[i]) << i;
			}
		});
	});
}


// As the program's other parts do, in the window's lock.
static void
mark(kernix& app, const char* menu, const char* label)
{
	looking(app, [&] { app.window->markmenu(menu, label); });
}


TEST(markmenu, marks_the_item_of_that_label)
{
	journey([](kernix& app, robot& user) {
		mark(app, "File", "Save as");
		EXPECT_TRUE(user.menu_is_marked("File", "Save as"));
		EXPECT_FALSE(user.menu_is_marked("File", "Open"));
	});
}


TEST(markmenu, leaves_other_marks_alone)
{
	journey([](kernix& app, robot& user) {
		mark(app, "File", "Save as");
		mark(app, "File", "Open");
		EXPECT_TRUE(user.menu_is_marked("File", "Save as"));
		EXPECT_TRUE(user.menu_is_marked("File", "Open"));
	});
}


TEST(markmenu, unmarks_every_item_for_the_empty_label)
{
	journey([](kernix& app, robot& user) {
		mark(app, "File", "Save as");
		mark(app, "File", "Open");
		mark(app, "File", "");
		EXPECT_FALSE(user.menu_is_marked("File", "Save as"));
		EXPECT_FALSE(user.menu_is_marked("File", "Open"));
	});
}


TEST(markmenu, leaves_menus_of_other_names_alone)
{
	journey([](kernix& app, robot& user) {
		mark(app, "file", "Open");
		EXPECT_FALSE(user.menu_is_marked("File", "Open"));
		mark(app, "File", "Open");
		mark(app, "Edit", "");
		EXPECT_TRUE(user.menu_is_marked("File", "Open"));
	});
}


TEST(markmenu, knows_no_label_but_the_whole_one)
{
	journey([](kernix& app, robot& user) {
		mark(app, "File", "Save");
		mark(app, "File", "open");
		EXPECT_FALSE(user.menu_is_marked("File", "Save as"));
		EXPECT_FALSE(user.menu_is_marked("File", "Open"));
	});
}


TEST(markmenu, marks_in_every_menu_of_that_name)
{
	journey([](kernix& app, robot&) {
		looking(app, [&] {
			BMenu* second = new BMenu("File");
			second->AddItem(new BMenuItem("Open", nullptr));
			app.window->menubar->AddItem(second);
			app.window->markmenu("File", "Open");
			EXPECT_TRUE(app.window->menubar->SubmenuAt(0)->ItemAt(1)->IsMarked());
			EXPECT_TRUE(second->ItemAt(0)->IsMarked());
		});
	});
}
