// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// A user saves fonts with the real program.
#include "app/kernix.h"
#include "app/kernixwindow.h"
#include "font/globals.h"
#include "program/journey.h"
#include "support/attributes.h"
#include "support/expected_save.h"
#include "support/sfnt.h"
#include "support/temp_files.h"

#include <algorithm>
#include <AppDefs.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <Messenger.h>

using tags = std::vector<std::string>;
using std::filesystem::exists;


static std::string
type_of(const std::string& path)
{
	return attribute_of(path, "user.mime_type");
}


static void
expect_saved(const octets& font, const std::string& path)
{
	octets saved = read_file(path);
	EXPECT_TRUE(same(expected_save(font, modified_of(saved)), saved));
}


TEST(saving, by_the_panel_writes_the_font)
{
	temp_file font(tiny_font());
	temp_folder folder;
	journey([&](kernix&, robot& user) {
		open_file(user, font.path());
		user.choose_menu("File", "Save as");
		user.answer_panel(folder.path("saved.ttf"));
		expect_saved(tiny_font(), folder.path("saved.ttf"));
	});
}


TEST(saving, keeps_the_order_and_the_bytes_of_tables_that_nobody_models)
{
	temp_file font(other_font());
	temp_folder folder;
	journey([&](kernix&, robot& user) {
		open_file(user, font.path());
		save_file(user, folder.path(), "saved.ttf");
		expect_saved(other_font(), folder.path("saved.ttf"));
		EXPECT_EQ(sfnt(read_file(folder.path("saved.ttf"))).table("prep"), hex("b0 01 b0"));
	});
}


TEST(saving, stamps_the_time_of_the_save)
{
	temp_file font(tiny_font());
	temp_folder folder;
	journey([&](kernix&, robot& user) {
		open_file(user, font.path());
		save_file(user, folder.path(), "saved.ttf");
		uint32_t stamp = modified_of(read_file(folder.path("saved.ttf")));
		// Seconds from 1904 to 1970, and a day for the time zone.
		EXPECT_NEAR((double)stamp, (double)time(nullptr) + 2082844800.0, 86400.0);
	});
}


TEST(saving, gives_a_file_that_opens_again)
{
	temp_file font(tiny_font());
	temp_folder folder;
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		save_file(user, folder.path(), "saved.ttf");
		temp_file other(other_font());
		open_file(user, other.path());
		open_file(user, folder.path("saved.ttf"));
		EXPECT_EQ(listed(app), (tags{"cmap", "glyf", "head", "hhea", "hmtx", "loca", "maxp"}));
	});
}


TEST(saving, twice_writes_the_same_bytes_but_for_the_date_of_the_second)
{
	temp_file font(tiny_font());
	temp_folder folder;
	journey([&](kernix&, robot& user) {
		open_file(user, font.path());
		save_file(user, folder.path(), "one.ttf");
		save_file(user, folder.path(), "two.ttf");
		expect_saved(tiny_font(), folder.path("two.ttf"));
	});
}


TEST(saving, leaves_the_font_and_its_panel_on_display)
{
	temp_file font(tiny_font());
	temp_folder folder;
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		tell_view(app, user, 'tsel', {"maxp"});
		save_file(user, folder.path(), "saved.ttf");
		EXPECT_EQ(panels_shown(app), tags{"maxp"});
		EXPECT_EQ(highlighted(app), "maxp");
		EXPECT_EQ(listed(app).size(), 7u);
	});
}


TEST(saving, leaves_the_file_that_was_opened_alone)
{
	temp_file font(tiny_font());
	temp_folder folder;
	journey([&](kernix&, robot& user) {
		open_file(user, font.path());
		save_file(user, folder.path(), "saved.ttf");
		EXPECT_TRUE(same(tiny_font(), font.contents()));
	});
}


TEST(saving, over_the_file_that_was_opened_replaces_it)
{
	temp_folder folder;
	write_file(folder.path("font.ttf"), tiny_font());
	journey([&](kernix&, robot& user) {
		open_file(user, folder.path("font.ttf"));
		save_file(user, folder.path(), "font.ttf");
		expect_saved(tiny_font(), folder.path("font.ttf"));
	});
}


TEST(saving, by_the_panel_over_a_file_replaces_it_when_the_user_agrees)
{
	temp_file font(tiny_font());
	temp_folder folder;
	write_file(folder.path("saved.ttf"), hex("00 01 02"));
	journey([&](kernix&, robot& user) {
		open_file(user, font.path());
		user.choose_menu("File", "Save as");
		user.answer_panel(folder.path("saved.ttf"));
		EXPECT_NE(fpanel, nullptr) << "the question is not answered yet";
		EXPECT_TRUE(user.press_question("Replace"));
		EXPECT_EQ(fpanel, nullptr);
		expect_saved(tiny_font(), folder.path("saved.ttf"));
	});
}


TEST(saving, by_the_panel_over_a_file_leaves_it_when_the_user_does_not)
{
	temp_file font(tiny_font());
	temp_folder folder;
	write_file(folder.path("saved.ttf"), hex("00 01 02"));
	journey([&](kernix&, robot& user) {
		open_file(user, font.path());
		user.choose_menu("File", "Save as");
		user.answer_panel(folder.path("saved.ttf"));
		EXPECT_TRUE(user.press_question("Cancel"));
		EXPECT_EQ(read_file(folder.path("saved.ttf")), hex("00 01 02"));
		user.cancel_panel();
		EXPECT_EQ(fpanel, nullptr);
	});
}


TEST(saving, sets_the_type_of_the_file_whatever_its_name)
{
	temp_file font(tiny_font());
	temp_folder folder;
	if (!keeps_attributes(folder))
		GTEST_SKIP() << "no attributes in " << folder.path();
	journey([&](kernix&, robot& user) {
		open_file(user, font.path());
		for (const char* name : {"saved.ttf", "saved.txt", "saved"}) {
			save_file(user, folder.path(), name);
			EXPECT_EQ(type_of(folder.path(name)), "application/x-truetype") << name;
		}
	});
}


TEST(saving, writes_a_font_whose_box_is_empty)
{
	octets head = tiny_font().table("head");
	std::fill(head.begin() + 36, head.begin() + 44, 0);
	const font_file font = tiny_font().with("head", head);
	temp_file file(font);
	temp_folder folder;
	journey([&](kernix& app, robot& user) {
		open_file(user, file.path());
		EXPECT_EQ(shown_canvas(app), BRect(0, 0, 0, 0));
		user.choose_menu("File", "Save as");
		user.answer_panel(folder.path("saved.ttf"));
		expect_saved(font, folder.path("saved.ttf"));
	});
}


TEST(saving, before_any_font_saves_nothing_and_forgets_the_panel)
{
	temp_folder folder;
	write_file(folder.path("old.ttf"), hex("00 01 02"));
	journey([&](kernix&, robot& user) {
		user.choose_menu("File", "Save as");
		save_file(user, folder.path(), "new.ttf");
		EXPECT_EQ(fpanel, nullptr);
		save_file(user, folder.path(), "old.ttf");
		EXPECT_FALSE(exists(folder.path("new.ttf")));
		EXPECT_EQ(read_file(folder.path("old.ttf")), hex("00 01 02"));
	});
}


TEST(saving, after_a_first_failed_open_saves_nothing)
{
	temp_file no_font(hex("00 01 02"));
	temp_folder folder;
	journey([&](kernix&, robot& user) {
		open_file(user, no_font.path());
		save_file(user, folder.path(), "new.ttf");
		EXPECT_FALSE(exists(folder.path("new.ttf")));
	});
}


TEST(saving, after_a_font_and_a_failed_open_makes_no_file_and_empties_none)
{
	temp_file font(tiny_font());
	temp_file no_font(hex("00 01 02"));
	temp_folder folder;
	write_file(folder.path("old.ttf"), hex("0a 0b 0c"));
	journey([&](kernix&, robot& user) {
		open_file(user, font.path());
		open_file(user, no_font.path());
		user.choose_menu("File", "Save as");
		user.answer_panel(folder.path("new.ttf"));
		EXPECT_FALSE(exists(folder.path("new.ttf")));
		EXPECT_EQ(fpanel, nullptr);
		save_file(user, folder.path(), "old.ttf");
		EXPECT_EQ(read_file(folder.path("old.ttf")), hex("0a 0b 0c"));
	});
}


TEST(saving, without_a_folder_or_a_name_saves_nothing_and_forgets_the_panel)
{
	temp_file font(tiny_font());
	temp_folder folder;
	journey([&](kernix&, robot& user) {
		open_file(user, font.path());
		for (const char* missing : {"directory", "name"}) {
			user.choose_menu("File", "Save as");
			BMessage message = save_answer(folder.path(), "saved.ttf");
			message.RemoveName(missing);
			be_app_messenger.SendMessage(&message);
			user.settle();
			EXPECT_EQ(fpanel, nullptr) << missing;
		}
		EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
	});
}


TEST(saving, prints_its_steps_and_the_tables_in_their_order)
{
	temp_file font(other_font());
	temp_folder folder;
	std::string printed = printed_by([&] {
		journey([&](kernix&, robot& user) {
			open_file(user, font.path());
			save_file(user, folder.path(), "saved.ttf");
		});
	});
	EXPECT_EQ(printed.substr(printed.find("kernix:save")),
		"kernix:save\n"
		"ttf:save\n"
		"name=[name]\n"
		"name=[cmap]\n"
		"name=[head]\n"
		"name=[prep]\n");
}


TEST(saving, prints_nothing_while_no_font_was_ever_shown)
{
	temp_folder folder;
	std::string printed = printed_by([&] {
		journey([&](kernix&, robot& user) { save_file(user, folder.path(), "saved.ttf"); });
	});
	EXPECT_EQ(printed, "");
}


TEST(saving, save_tells_failure_by_true)
{
	temp_file font(tiny_font());
	temp_folder folder;
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		entry_ref directory;
		save_answer(folder.path(), "").FindRef("directory", &directory);
		// The program is idle: its thread does not mind.
		EXPECT_FALSE(app.save(directory, "saved.ttf"));
		expect_saved(tiny_font(), folder.path("saved.ttf"));
		app.clear();
		EXPECT_TRUE(app.save(directory, "nothing.ttf"));
		EXPECT_FALSE(exists(folder.path("nothing.ttf")));
	});
}
