// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Files that are let go of over a window.
#include "platform/interface/form.h"
#include "platform/storage/stored.h"
#include "support/temp_files.h"

#include <gtest/gtest.h>

#include <AppDefs.h>
#include <filesystem>
#include <Path.h>
#include <QCoreApplication>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>
#include <QWindow>

namespace {

journal
paths_in(const BMessage& message)
{
	journal paths;
	entry_ref ref;
	for (int32 i = 0; message.FindRef("refs", i, &ref) == B_OK; i++)
		paths.push_back(BPath(&ref).Path());
	return paths;
}


// Takes what is dropped on it and keeps it.
class taker : public test_view {
public:
	explicit taker(BRect frame, const char* name = "taker") : test_view(frame, name) {}

	void MessageReceived(BMessage* message) override
	{
		if (message->what == B_SIMPLE_DATA)
			dropped.push_back(*message);
		else
			test_view::MessageReceived(message);
	}

	std::vector<BMessage> dropped;
};


// A window that takes what none of its views has taken.
class last_window : public BWindow {
public:
	last_window() : BWindow(BRect(40, 30, 239, 129), "last", B_DOCUMENT_WINDOW, 0) {}

	void MessageReceived(BMessage* message) override
	{
		drops += message->WasDropped();
		BWindow::MessageReceived(message);
	}

	int drops = 0;
};


class drop_application : public plain_application {
public:
	drop_application() : window(new last_window)
	{
		window->AddChild(new test_view(BRect(0, 0, 99, 99)));
		window->Show();
	}

	last_window* window;
};


// Something else than local files.
void
drop_urls(robot& user, BPoint where, const std::vector<const char*>& urls)
{
	user.act([&](QWidget& window) {
		QMimeData data;
		QList<QUrl> list;
		for (const char* url : urls)
			list.append(QUrl::fromEncoded(url));
		data.setUrls(list);
		QDragEnterEvent enter(
			QPoint((int)where.x, (int)where.y), Qt::CopyAction, &data, Qt::LeftButton, {});
		QCoreApplication::sendEvent(window.windowHandle(), &enter);
		QDropEvent drop(QPointF(where.x, where.y), Qt::CopyAction, &data, Qt::LeftButton, {});
		QCoreApplication::sendEvent(window.windowHandle(), &drop);
	});
	user.settle();
}

}


TEST(drop, brings_one_ref_for_each_file_in_order)
{
	temp_folder folder;
	for (const char* name : {"c", "a", "b é"})
		write_file(folder.path(name), {});
	with_window([&](test_window& window, robot& user) {
		auto& view = window.add(new taker(BRect(0, 0, 199, 99)));
		user.drop(BPoint(50, 60), {folder.path("c"), folder.path("a"), folder.path("b é")});
		window.locked([&] {
			ASSERT_EQ(view.dropped.size(), 1u);
			EXPECT_EQ(view.dropped[0].what, (uint32)'DATA');
			EXPECT_EQ(paths_in(view.dropped[0]),
				(journal{folder.path("c"), folder.path("a"), folder.path("b é")}));
		});
	});
}


TEST(drop, says_that_it_is_one_and_where_on_the_screen)
{
	temp_file file;
	with_window([&](test_window& window, robot& user) {
		auto& view = window.add(new taker(BRect(0, 0, 199, 99)));
		user.drop(BPoint(50, 60), {file.path()});
		window.locked([&] {
			ASSERT_EQ(view.dropped.size(), 1u);
			EXPECT_TRUE(view.dropped[0].WasDropped());
			EXPECT_EQ(view.dropped[0].DropPoint(), BPoint(90, 90)) << "the window is at (40, 30)";
			EXPECT_FALSE(BMessage('DATA').WasDropped());
		});
	});
}


TEST(drop, goes_to_the_innermost_view_under_the_pointer)
{
	temp_file file;
	with_window([&](test_window& window, robot& user) {
		auto& outer = window.add(new taker(BRect(0, 0, 199, 99), "outer"));
		auto* inner = new taker(BRect(20, 20, 59, 59), "inner");
		window.locked([&] { outer.AddChild(inner); });
		user.drop(BPoint(30, 30), {file.path()});
		user.drop(BPoint(10, 10), {file.path()});
		user.drop(BPoint(100, 30), {file.path()});
		window.locked([&] {
			EXPECT_EQ(inner->dropped.size(), 1u);
			EXPECT_EQ(outer.dropped.size(), 2u);
		});
	});
}


TEST(drop, that_a_view_does_not_take_climbs_to_its_parent)
{
	temp_file file;
	with_window([&](test_window& window, robot& user) {
		auto& outer = window.add(new taker(BRect(0, 0, 199, 99), "outer"));
		auto* inner = new test_view(BRect(20, 20, 59, 59), "inner");
		window.locked([&] { outer.AddChild(inner); });
		user.drop(BPoint(30, 30), {file.path()});
		window.locked([&] {
			EXPECT_EQ(inner->received, std::vector<uint32>{'DATA'}) << "asked first";
			ASSERT_EQ(outer.dropped.size(), 1u);
			EXPECT_TRUE(outer.dropped[0].WasDropped());
		});
	});
}


TEST(drop, that_no_view_takes_climbs_to_the_window)
{
	temp_file file;
	with_application<drop_application>([&](drop_application& app, robot& user) {
		user.drop(BPoint(30, 30), {file.path()});
		user.drop(BPoint(150, 80), {file.path()});
		app.window->Lock();
		EXPECT_EQ(app.window->drops, 2);
		app.window->Unlock();
	});
}


TEST(drop, on_a_text_field_reaches_the_view_behind_and_is_no_text)
{
	temp_file file;
	with_window([&](test_window& window, robot& user) {
		auto& view = window.add(new taker(BRect(0, 0, 199, 99)));
		auto* field = new BTextControl(BRect(10, 10, 109, 30), "field", "Label", "old", nullptr);
		window.locked([&] { view.AddChild(field); });
		user.drop(BPoint(90, 20), {file.path()});
		user.drop(BPoint(20, 20), {file.path()});
		EXPECT_EQ(user.field_text(BPoint(90, 20)), "old");
		window.locked([&] {
			EXPECT_EQ(view.dropped.size(), 2u);
			EXPECT_STREQ(field->Text(), "old");
		});
	});
}


TEST(drop, on_a_field_that_is_being_edited_changes_nothing_of_it)
{
	temp_file file;
	with_form([&](form& page, robot& user) {
		BTextControl& field = page.field(BPoint(10, 10), "field", "old");
		user.click(middle(field));
		user.type("new");
		user.drop(middle(field), {file.path()});
		EXPECT_EQ(page.text_of(field), "new");
		EXPECT_EQ(page.focus(), "field");
		EXPECT_EQ(page.senders(), journal());
		page.locked([&] { EXPECT_EQ(page.received, std::vector<uint32>{'DATA'}); });
	});
}


TEST(drop, on_a_button_reaches_the_view_behind)
{
	temp_file file;
	with_form([&](form& page, robot& user) {
		BButton& button = page.button(BPoint(10, 10), "push");
		user.drop(middle(button), {file.path()});
		EXPECT_EQ(page.senders(), journal());
		page.locked([&] { EXPECT_EQ(page.received, std::vector<uint32>{'DATA'}); });
	});
}


TEST(drop, of_something_else_than_files_is_none)
{
	temp_file file;
	with_window([&](test_window& window, robot& user) {
		auto& view = window.add(new taker(BRect(0, 0, 199, 99)));
		auto* field = new BTextControl(BRect(10, 10, 109, 30), "field", nullptr, "old", nullptr);
		window.locked([&] { view.AddChild(field); });
		user.drop(BPoint(50, 60), {});
		user.drop(BPoint(50, 20), {});
		drop_urls(user, BPoint(50, 60), {"https://example.org/font.ttf"});
		drop_urls(user, BPoint(50, 60), {"file:///no/such/folder/font.ttf"});
		drop_urls(user, BPoint(50, 60), {});
		window.locked([&] { EXPECT_EQ(view.dropped.size(), 0u); });
		EXPECT_EQ(user.field_text(BPoint(50, 20)), "old");
	});
}


TEST(drop, of_files_among_other_things_brings_the_files)
{
	temp_file file;
	with_window([&](test_window& window, robot& user) {
		auto& view = window.add(new taker(BRect(0, 0, 199, 99)));
		std::string url = "file://" + file.path();
		drop_urls(user, BPoint(50, 60), {"https://example.org/", url.c_str()});
		window.locked([&] {
			ASSERT_EQ(view.dropped.size(), 1u);
			EXPECT_EQ(paths_in(view.dropped[0]), journal{file.path()});
		});
	});
}


TEST(drop, brings_files_whose_names_are_not_UTF_8)
{
	temp_folder folder;
	make_folder(folder.path("d\xE9p\xF4t"));
	const std::string path = folder.path("d\xE9p\xF4t/caf\xE9 100%# \xFF.ttf");
	write_file(path, {});
	with_window([&](test_window& window, robot& user) {
		auto& view = window.add(new taker(BRect(0, 0, 199, 99)));
		user.drop(BPoint(50, 60), {path});
		window.locked([&] {
			ASSERT_EQ(view.dropped.size(), 1u);
			EXPECT_EQ(paths_in(view.dropped[0]), journal{path});
		});
	});
}


TEST(drop, leaves_out_what_does_not_exist)
{
	temp_folder folder;
	write_file(folder.path("here"), {});
	std::filesystem::create_symlink("nowhere", folder.path("link"));
	with_window([&](test_window& window, robot& user) {
		auto& view = window.add(new taker(BRect(0, 0, 199, 99)));
		user.drop(BPoint(50, 60), {folder.path("gone"), folder.path("here"), folder.path("link")});
		user.drop(BPoint(50, 60), {folder.path("gone")});
		window.locked([&] {
			ASSERT_EQ(view.dropped.size(), 1u);
			EXPECT_EQ(paths_in(view.dropped[0]), journal{folder.path("here")});
		});
	});
}


TEST(drop, of_files_of_another_machine_or_with_a_NUL_in_the_name_is_none)
{
	temp_file file;
	const std::string path = file.path();
	with_window([&](test_window& window, robot& user) {
		auto& view = window.add(new taker(BRect(0, 0, 199, 99)));
		drop_urls(user, BPoint(50, 60), {("file://elsewhere" + path).c_str()});
		drop_urls(user, BPoint(50, 60), {("file://" + path + "%00.ttf").c_str()});
		window.locked([&] { EXPECT_EQ(view.dropped.size(), 0u); });
		drop_urls(user, BPoint(50, 60), {("file://localhost" + path).c_str()});
		window.locked([&] { EXPECT_EQ(view.dropped.size(), 1u); });
	});
}
