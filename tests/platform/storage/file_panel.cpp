// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// What file panels start with, and what they answer.
#include "platform/app/again.h"
#include "platform/storage/desk.h"
#include "platform/storage/stored.h"

#include <AppDefs.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <QApplication>
#include <QFileDialog>


namespace {

// As by walking there in the panel.
void
walk_to(robot& user, const std::string& folder)
{
	user.on_display([&] {
		for (QWidget* widget : QApplication::topLevelWidgets()) {
			auto* dialog = dynamic_cast<QFileDialog*>(widget);
			if (dialog && dialog->isVisible())
				dialog->setDirectory(QString::fromStdString(folder));
		}
	});
}


class refs_application : public plain_application {
public:
	void RefsReceived(BMessage* message) override { received = *message; }

	BMessage received;
};

}


TEST(file_panel, is_hidden_until_it_is_shown)
{
	with_desk([](desk& of) {
		auto panel = of.panel(B_OPEN_PANEL);
		EXPECT_FALSE(panel->IsShowing());
		EXPECT_EQ(of.user.count_panels(), 0);
		panel->Show();
		EXPECT_TRUE(panel->IsShowing());
		EXPECT_EQ(of.user.count_panels(), 1);
		panel->Hide();
		EXPECT_FALSE(panel->IsShowing());
		EXPECT_EQ(of.user.count_panels(), 0);
	});
}


TEST(file_panel, to_open_answers_with_the_file)
{
	with_desk([](desk& of) {
		auto panel = of.panel(B_OPEN_PANEL);
		panel->Show();
		of.user.answer_panel(of.folder.path("one.ttf"));
		const BMessage answer = of.window.last_dispatched(B_REFS_RECEIVED);
		EXPECT_EQ(path_of(answer, "refs"), of.folder.path("one.ttf"));
		EXPECT_FALSE(answer.HasRef("refs", 1));
		EXPECT_FALSE(panel->IsShowing());
		EXPECT_FALSE(of.user.panel_is_open());
	});
}


TEST(file_panel, to_open_answers_with_all_files_chosen)
{
	with_desk([](desk& of) {
		auto panel = of.panel(B_OPEN_PANEL);
		panel->Show();
		of.user.answer_panel("\"one.ttf\" \"two.ttf\"");
		const BMessage answer = of.window.last_dispatched(B_REFS_RECEIVED);
		EXPECT_EQ(path_of(answer, "refs", 0), of.folder.path("one.ttf"));
		EXPECT_EQ(path_of(answer, "refs", 1), of.folder.path("two.ttf"));
		EXPECT_FALSE(answer.HasRef("refs", 2));
		EXPECT_EQ(of.window.dispatched(B_REFS_RECEIVED).size(), 1U);
	});
}


TEST(file_panel, lets_several_files_be_chosen_only_when_told_to)
{
	with_desk([](desk& of) {
		auto panel = of.panel(B_OPEN_PANEL, nullptr, false);
		panel->Show();
		QFileDialog::FileMode mode = QFileDialog::AnyFile;
		of.user.on_display([&] {
			for (QWidget* widget : QApplication::topLevelWidgets()) {
				if (auto* dialog = dynamic_cast<QFileDialog*>(widget))
					mode = dialog->fileMode();
			}
		});
		EXPECT_EQ(mode, QFileDialog::ExistingFile);
	});
}


TEST(file_panel, to_save_answers_with_folder_and_name)
{
	with_desk([](desk& of) {
		auto panel = of.panel(B_SAVE_PANEL);
		panel->Show();
		of.user.answer_panel("new.ttf");
		const BMessage answer = of.window.last_dispatched(B_SAVE_REQUESTED);
		EXPECT_EQ(path_of(answer, "directory"), of.folder.path());
		EXPECT_STREQ(answer.FindString("name"), "new.ttf");
		EXPECT_FALSE(panel->IsShowing());
		EXPECT_FALSE(of.user.panel_is_open());
	});
}


TEST(file_panel, to_save_understands_a_whole_path)
{
	with_desk([](desk& of) {
		make_folder(of.folder.path("sub"));
		auto panel = of.panel(B_SAVE_PANEL);
		panel->Show();
		of.user.answer_panel(of.folder.path("sub/new.ttf"));
		const BMessage answer = of.window.last_dispatched(B_SAVE_REQUESTED);
		EXPECT_EQ(path_of(answer, "directory"), of.folder.path("sub"));
		EXPECT_STREQ(answer.FindString("name"), "new.ttf");
	});
}


TEST(file_panel, answers_with_the_message_it_was_given)
{
	with_desk([](desk& of) {
		BMessage mine('mine');
		mine.AddInt32("number", 7);
		auto panel = of.panel(B_SAVE_PANEL, &mine);
		mine.MakeEmpty();
		panel->Show();
		of.user.answer_panel("new.ttf");
		const BMessage answer = of.window.last_dispatched('mine');
		EXPECT_EQ(answer.FindInt32("number"), 7);
		EXPECT_STREQ(answer.FindString("name"), "new.ttf");
		EXPECT_EQ(of.window.dispatched(B_SAVE_REQUESTED).size(), 0U);
	});
}


TEST(file_panel, asks_before_a_file_is_replaced)
{
	with_desk([](desk& of) {
		auto panel = of.panel(B_SAVE_PANEL);
		panel->Show();
		of.user.answer_panel("one.ttf");
		EXPECT_TRUE(of.user.panel_is_open());
		EXPECT_EQ(of.window.dispatched(B_SAVE_REQUESTED).size(), 0U);
		EXPECT_TRUE(of.user.press_question("Replace"));
		EXPECT_STREQ(of.window.last_dispatched(B_SAVE_REQUESTED).FindString("name"), "one.ttf");
		EXPECT_FALSE(of.user.panel_is_open());
	});
}


TEST(file_panel, goes_on_when_a_file_is_not_to_be_replaced)
{
	with_desk([](desk& of) {
		auto panel = of.panel(B_SAVE_PANEL);
		panel->Show();
		of.user.answer_panel("one.ttf");
		EXPECT_TRUE(of.user.press_question("Cancel"));
		EXPECT_TRUE(panel->IsShowing());
		EXPECT_TRUE(of.user.panel_is_open());
		EXPECT_FALSE(of.user.press_question("Replace"));
		EXPECT_EQ(of.window.dispatched(B_SAVE_REQUESTED).size(), 0U);
		EXPECT_EQ(of.window.dispatched(B_CANCEL).size(), 0U);
		of.user.answer_panel("three.ttf");
		EXPECT_STREQ(of.window.last_dispatched(B_SAVE_REQUESTED).FindString("name"), "three.ttf");
	});
}


TEST(file_panel, touches_no_file_itself)
{
	with_desk([](desk& of) {
		auto panel = of.panel(B_SAVE_PANEL);
		panel->Show();
		of.user.answer_panel("one.ttf");
		of.user.press_question("Replace");
		EXPECT_EQ(stored(of.folder.path("one.ttf")), "1");
	});
}


TEST(file_panel, starts_where_the_last_one_was_left)
{
	with_desk([](desk& of) {
		make_folder(of.folder.path("sub"));
		auto first = of.panel(B_OPEN_PANEL);
		first->Show();
		walk_to(of.user, of.folder.path("sub"));
		of.user.cancel_panel();
		BFilePanel second(B_SAVE_PANEL, &of.target);
		second.Show();
		of.user.answer_panel("new.ttf");
		EXPECT_EQ(path_of(of.window.last_dispatched(B_SAVE_REQUESTED), "directory"),
			of.folder.path("sub"));
	});
}


TEST(file_panel, starts_where_it_is_told_before_where_the_last_one_was_left)
{
	with_desk([](desk& of) {
		make_folder(of.folder.path("sub"));
		auto first = of.panel(B_OPEN_PANEL);
		first->Show();
		walk_to(of.user, of.folder.path("sub"));
		of.user.cancel_panel();
		auto second = of.panel(B_SAVE_PANEL);
		second->Show();
		of.user.answer_panel("new.ttf");
		EXPECT_EQ(
			path_of(of.window.last_dispatched(B_SAVE_REQUESTED), "directory"), of.folder.path());
	});
}


TEST(file_panel, leaves_no_settings_behind)
{
	const temp_folder home;
	const ended result = run_again("file_panel.to_save_answers_with_folder_and_name", {},
		{"HOME=" + home.path(), "XDG_CONFIG_HOME=" + home.path("config")});
	EXPECT_EQ(result.status, 0);
	EXPECT_FALSE(std::filesystem::exists(home.path("config")));
	EXPECT_FALSE(std::filesystem::exists(home.path(".config")));
}


TEST(file_panel, without_a_target_answers_to_the_application)
{
	with_application<refs_application>([](refs_application& app, robot& user) {
		temp_file file;
		BFilePanel panel;
		panel.Show();
		user.answer_panel(file.path());
		app.Lock();
		EXPECT_EQ(path_of(app.received, "refs"), file.path());
		app.Unlock();
	});
}
