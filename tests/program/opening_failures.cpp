// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// A user opens what is no font, or cannot be read.
#include "app/kernix.h"
#include "app/kernixview.h"
#include "app/kernixwindow.h"
#include "font/globals.h"
#include "font/ttf.h"
#include "program/journey.h"
#include "support/temp_files.h"

#include <AppDefs.h>
#include <Entry.h>
#include <gtest/gtest.h>
#include <Messenger.h>
#include <sys/stat.h>
#include <unistd.h>

using tags = std::vector<std::string>;


// What is no font, and how the program comes by it.
static void
expect_an_empty_program_after(const std::string& path)
{
	temp_file font(tiny_font());
	journey([&](kernix& app, robot& user) {
		open_file(user, path);
		EXPECT_EQ(listed(app), tags());
		EXPECT_TRUE(holds_an_empty_font(app));
		EXPECT_EQ(user.window_size(), BPoint(400, 300)) << "nothing to show, nothing to grow for";
		EXPECT_EQ(shown_canvas(app), BRect(0, 0, 0, 0));
		open_file(user, font.path());
		EXPECT_EQ(listed(app), tiny_tags) << "the program goes on";
		open_file(user, path);
		EXPECT_EQ(listed(app), tags());
		EXPECT_TRUE(holds_an_empty_font(app));
		looking(app, [&] { EXPECT_EQ(app.window->workview->CountChildren(), 0); });
	});
}


TEST(opening, from_the_desktop_never_tries_the_second_file)
{
	temp_file no_font(hex("00 01 02"));
	temp_file second(tiny_font());
	journey([&](kernix& app, robot& user) {
		BMessage both = refs(B_REFS_RECEIVED, {no_font.path(), second.path()});
		be_app_messenger.SendMessage(&both);
		user.settle();
		EXPECT_EQ(listed(app), tags());
		EXPECT_TRUE(holds_an_empty_font(app));
	});
}


TEST(opening, what_is_no_font_leaves_the_program_empty)
{
	temp_file file(tiny_font().says_version(0x4F54544F));
	expect_an_empty_program_after(file.path());
}


TEST(opening, an_empty_file_leaves_the_program_empty)
{
	temp_file file;
	expect_an_empty_program_after(file.path());
}


TEST(opening, a_directory_cut_short_leaves_the_program_empty)
{
	temp_file file(part(tiny_font(), 0, 100));
	expect_an_empty_program_after(file.path());
}


TEST(opening, a_font_without_cmap_leaves_the_program_empty)
{
	temp_file file(tiny_font().without("cmap"));
	expect_an_empty_program_after(file.path());
}


TEST(opening, a_folder_leaves_the_program_empty)
{
	temp_folder folder;
	mkdir(folder.path("font.ttf").c_str(), 0700);
	expect_an_empty_program_after(folder.path("font.ttf"));
}


TEST(opening, a_missing_file_leaves_the_program_empty)
{
	temp_folder folder;
	expect_an_empty_program_after(folder.path("font.ttf"));
}


TEST(opening, a_file_in_a_folder_that_has_gone_leaves_the_program_empty)
{
	temp_folder folder;
	mkdir(folder.path("gone").c_str(), 0700);
	journey([&](kernix& app, robot& user) {
		BMessage lost = refs(B_REFS_RECEIVED, {folder.path("gone/font.ttf")});
		rmdir(folder.path("gone").c_str());
		be_app_messenger.SendMessage(&lost);
		user.settle();
		EXPECT_EQ(listed(app), tags());
		EXPECT_TRUE(holds_an_empty_font(app));
	});
}


TEST(opening, a_file_whose_reading_fails_leaves_the_program_empty)
{
	// Opens, but its first pages are nowhere, for the superuser too.
	expect_an_empty_program_after("/proc/self/mem");
}


TEST(opening, a_file_that_may_not_be_read_leaves_the_program_empty)
{
	temp_file file(tiny_font());
	chmod(file.path().c_str(), 0);
	if (access(file.path().c_str(), R_OK) == 0)
		GTEST_SKIP() << "this user may read everything";
	expect_an_empty_program_after(file.path());
}


TEST(opening, a_named_pipe_without_a_writer_does_not_hold_up_the_program)
{
	temp_folder folder;
	ASSERT_EQ(mkfifo(folder.path("font.ttf").c_str(), 0600), 0);
	expect_an_empty_program_after(folder.path("font.ttf"));
}


TEST(opening, a_failure_keeps_the_canvas_of_the_font_before)
{
	temp_file font(tiny_font());
	temp_file no_font(hex("00 01 02"));
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		open_file(user, no_font.path());
		EXPECT_EQ(shown_canvas(app), BRect(0, 0, 511, 511));
	});
}


TEST(opening, lists_none_of_thirty_three_tables)
{
	font_file many = tiny_font();
	for (int i = 0; i < 26; i++)
		many = many.again("head", "00");
	temp_file first(tiny_font());
	temp_file font(many);
	journey([&](kernix& app, robot& user) {
		open_file(user, first.path());
		open_file(user, font.path());
		EXPECT_EQ(listed(app), tags());
		EXPECT_FALSE(holds_an_empty_font(app));
		tell_view(app, user, 'tsel', {"maxp"});
		EXPECT_EQ(panels_shown(app), tags{"maxp"}) << "the font is there all the same";
	});
}


TEST(opening, load_tells_failure_by_true)
{
	temp_file font(tiny_font());
	temp_file no_font(hex("00 01 02"));
	struct teller : kernix {
		void MessageReceived(BMessage* message) override
		{
			entry_ref ref;
			if (message->what == 'load' && message->FindRef("refs", &ref) == B_OK)
				answers.push_back(load(ref));
			else
				kernix::MessageReceived(message);
		}
		std::vector<bool> answers;
	};
	std::vector<bool> answers;
	with_application<teller>([&](teller& app, robot& user) {
		for (const std::string& path : {font.path(), no_font.path()}) {
			BMessage message = refs('load', {path});
			be_app_messenger.SendMessage(&message);
		}
		user.settle();
		answers = app.answers;
	});
	EXPECT_EQ(answers, (std::vector<bool>{false, true}));
	delete curttf;
	curttf = nullptr;
}


TEST(opening, prints_nothing_more_for_what_is_no_font)
{
	temp_file no_font(hex("4f54544f 0001"));
	std::string printed = printed_by(
		[&] { journey([&](kernix&, robot& user) { open_file(user, no_font.path()); }); });
	EXPECT_EQ(printed, "kernix:load\nttf:load\n");
}
