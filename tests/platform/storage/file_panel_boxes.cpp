// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Boxes and menus over file panels.
#include "platform/storage/desk.h"
#include "platform/storage/stored.h"

#include <AppDefs.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QItemSelectionModel>
#include <QMessageBox>
#include <QShortcut>
#include <QTimer>


namespace {

QFileDialog*
shown_dialog()
{
	for (QWidget* widget : QApplication::topLevelWidgets()) {
		auto* dialog = dynamic_cast<QFileDialog*>(widget);
		if (dialog && dialog->isVisible())
			return dialog;
	}
	return nullptr;
}


QAbstractItemView*
files_in(QFileDialog* dialog)
{
	auto* list = dialog->findChild<QAbstractItemView*>("listView");
	return list->isVisible() ? list : dialog->findChild<QAbstractItemView*>("treeView");
}


// The text of the box on the screen; empty for none.
std::string
box_text(robot& user)
{
	std::string text;
	user.on_display([&] {
		for (QWidget* widget : QApplication::topLevelWidgets()) {
			auto* box = dynamic_cast<QMessageBox*>(widget);
			if (box && box->isVisible())
				text = box->text().toStdString();
		}
	});
	return text;
}


// Chooses the file in the list, once the dialog has read the folder.
bool
select_file(desk& of, const std::string& leaf)
{
	return of.user.wait_for([&] {
		bool chosen = false;
		of.user.on_display([&] {
			QFileDialog* dialog = shown_dialog();
			auto* model = dialog->findChild<QFileSystemModel*>();
			dialog->selectFile(QString::fromStdString(leaf));
			const QModelIndex row = model->index(QString::fromStdString(of.folder.path(leaf)));
			files_in(dialog)->selectionModel()->setCurrentIndex(
				row, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
			chosen = row.isValid();
		});
		return chosen;
	});
}

}


TEST(file_panel, to_open_says_that_a_file_is_not_there_and_goes_on)
{
	with_desk([](desk& of) {
		auto panel = of.panel(B_OPEN_PANEL);
		panel->Show();
		of.user.answer_panel("lost.ttf");
		EXPECT_EQ(box_text(of.user), "There is no file \"lost.ttf\".");
		EXPECT_EQ(of.window.dispatched(B_REFS_RECEIVED).size(), 0U);
		EXPECT_TRUE(of.user.press_question("OK"));
		EXPECT_EQ(box_text(of.user), "");
		of.user.answer_panel("one.ttf");
		EXPECT_EQ(
			path_of(of.window.last_dispatched(B_REFS_RECEIVED), "refs"), of.folder.path("one.ttf"));
	});
}


TEST(file_panel, deleted_under_its_box_sends_nothing)
{
	with_desk([](desk& of) {
		auto panel = of.panel(B_OPEN_PANEL);
		panel->Show();
		of.user.answer_panel("lost.ttf");
		panel.reset();
		EXPECT_TRUE(of.user.wait_for([&] { return of.user.count_panels() == 0; }));
		EXPECT_EQ(box_text(of.user), "");
		EXPECT_EQ(of.window.dispatched(B_REFS_RECEIVED).size(), 0U);
	});
}


TEST(file_panel, deleted_under_its_menu_takes_the_menu_along)
{
	with_desk([](desk& of) {
		auto panel = of.panel(B_OPEN_PANEL);
		panel->Show();
		ASSERT_TRUE(select_file(of, "one.ttf"));
		of.user.act([](QWidget&) {
			QWidget* files = files_in(shown_dialog())->viewport();
			QContextMenuEvent event(
				QContextMenuEvent::Mouse, {20, 10}, files->mapToGlobal(QPoint(20, 10)));
			QApplication::sendEvent(files, &event);
		});
		of.user.on_display([] { EXPECT_NE(QApplication::activePopupWidget(), nullptr); });
		panel.reset();
		EXPECT_TRUE(of.user.wait_for([&] { return of.user.count_panels() == 0; }));
		of.user.on_display([] { EXPECT_EQ(QApplication::activePopupWidget(), nullptr); });
	});
}


TEST(file_panel, deletes_a_file_when_the_user_agrees)
{
	with_desk([](desk& of) {
		auto panel = of.panel(B_OPEN_PANEL);
		panel->Show();
		for (const char* answer : {"Cancel", "Delete"}) {
			ASSERT_TRUE(select_file(of, "one.ttf"));
			of.user.act([](QWidget&) {
				shown_dialog()->findChild<QAction*>("qt_delete_action")->setEnabled(true);
				shown_dialog()->findChild<QAction*>("qt_delete_action")->trigger();
			});
			EXPECT_EQ(box_text(of.user), "Delete \"one.ttf\"?");
			EXPECT_EQ(stored(of.folder.path("one.ttf")), "1");
			EXPECT_TRUE(of.user.press_question(answer));
		}
		EXPECT_FALSE(std::filesystem::exists(of.folder.path("one.ttf")));
		EXPECT_TRUE(std::filesystem::exists(of.folder.path("two.ttf")));
	});
}


TEST(file_panel, asks_before_the_delete_key_deletes)
{
	with_desk([](desk& of) {
		auto panel = of.panel(B_OPEN_PANEL);
		panel->Show();
		ASSERT_TRUE(select_file(of, "two.ttf"));
		of.user.act([](QWidget&) {
			for (auto* key : files_in(shown_dialog())->findChildren<QShortcut*>())
				Q_EMIT key->activated();
		});
		EXPECT_EQ(box_text(of.user), "Delete \"two.ttf\"?");
		panel.reset();
		EXPECT_TRUE(of.user.wait_for([&] { return of.user.count_panels() == 0; }));
		EXPECT_EQ(stored(of.folder.path("two.ttf")), "2");
	});
}


// The toolkit says in a loop of its own that a folder has gone, for one.
TEST(file_panel, deleted_under_a_box_of_the_toolkit_goes_when_that_has_gone)
{
	with_desk([](desk& of) {
		auto panel = of.panel(B_OPEN_PANEL);
		panel->Show();
		of.user.on_display([] {
			QFileDialog* dialog = shown_dialog();
			QTimer::singleShot(0, dialog,
				[dialog] { QMessageBox::warning(dialog, "Open", "Directory not found."); });
		});
		EXPECT_TRUE(of.user.wait_for([&] { return !box_text(of.user).empty(); }));
		panel.reset();
		EXPECT_TRUE(of.user.wait_for([&] { return of.user.count_panels() == 0; }));
		EXPECT_EQ(box_text(of.user), "");
	});
}
