// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// A user saves fonts where something is in the way, or something is there to be lost.
#include "app/kernix.h"
#include "font/globals.h"
#include "program/journey.h"
#include "support/attributes.h"
#include "support/expected_save.h"
#include "support/size_limit.h"
#include "support/temp_files.h"

#include <AppDefs.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <Messenger.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/xattr.h>

using std::filesystem::exists;

// Longer than the disk has room for in the tests that fill it.
static font_file
long_font()
{
	return tiny_font().with("prep", octets(100000, 0xB0));
}


static void
expect_saved(const octets& font, const std::string& path)
{
	octets saved = read_file(path);
	EXPECT_TRUE(same(expected_save(font, modified_of(saved)), saved));
}


static size_t
files_in(const temp_folder& folder)
{
	using std::filesystem::directory_iterator;
	return (size_t)std::distance(directory_iterator(folder.path()), directory_iterator());
}


// Opens the long font and saves it where there is no room for it.
static void
save_on_full_disk(const temp_folder& folder, const std::string& name)
{
	temp_file font(long_font());
	// What the program prints may go to a file, which has to stay short as well.
	printed_by([&] {
		journey([&](kernix& app, robot& user) {
			open_file(user, font.path());
			{
				size_limit full(50000);
				save_file(user, folder.path(), name);
			}
			EXPECT_EQ(listed(app).size(), 8u) << "the font is still open";
		});
	});
}


TEST(saving, on_a_full_disk_leaves_the_font_that_had_the_name)
{
	temp_folder folder;
	write_file(folder.path("saved.ttf"), other_font());
	save_on_full_disk(folder, "saved.ttf");
	EXPECT_TRUE(same(other_font(), read_file(folder.path("saved.ttf"))));
	EXPECT_EQ(files_in(folder), 1u);
}


TEST(saving, on_a_full_disk_over_the_file_that_was_opened_leaves_it)
{
	temp_folder folder;
	write_file(folder.path("font.ttf"), long_font());
	printed_by([&] {
		journey([&](kernix&, robot& user) {
			open_file(user, folder.path("font.ttf"));
			size_limit full(50000);
			save_file(user, folder.path(), "font.ttf");
		});
	});
	EXPECT_TRUE(same(long_font(), read_file(folder.path("font.ttf"))));
	EXPECT_EQ(files_in(folder), 1u);
}


TEST(saving, on_a_full_disk_under_a_new_name_leaves_a_part)
{
	temp_folder folder;
	save_on_full_disk(folder, "saved.ttf");
	EXPECT_EQ(read_file(folder.path("saved.ttf")).size(), 50000u);
}


TEST(saving, can_be_done_again_when_the_disk_has_room)
{
	temp_file font(long_font());
	temp_folder folder;
	write_file(folder.path("saved.ttf"), other_font());
	printed_by([&] {
		journey([&](kernix&, robot& user) {
			open_file(user, font.path());
			{
				size_limit full(50000);
				save_file(user, folder.path(), "saved.ttf");
			}
			save_file(user, folder.path(), "saved.ttf");
		});
	});
	octets saved = read_file(folder.path("saved.ttf"));
	EXPECT_TRUE(same(expected_save(long_font(), modified_of(saved)), saved));
	EXPECT_EQ(files_in(folder), 1u);
}


TEST(saving, over_a_file_keeps_its_mode)
{
	temp_file font(tiny_font());
	temp_folder folder;
	std::string path = folder.path("saved.ttf");
	write_file(path, other_font());
	ASSERT_EQ(chmod(path.c_str(), 0640), 0);
	journey([&](kernix&, robot& user) {
		open_file(user, font.path());
		save_file(user, folder.path(), "saved.ttf");
	});
	expect_saved(tiny_font(), path);
	struct stat state = {};
	ASSERT_EQ(stat(path.c_str(), &state), 0);
	EXPECT_EQ(state.st_mode, S_IFREG | 0640u);
}


TEST(saving, over_a_file_keeps_its_attributes_and_sets_the_type)
{
	temp_file font(tiny_font());
	temp_folder folder;
	if (!keeps_attributes(folder))
		GTEST_SKIP() << "no attributes in " << folder.path();
	std::string path = folder.path("saved.ttf");
	write_file(path, other_font());
	ASSERT_EQ(setxattr(path.c_str(), "user.colour", "blue", 4, 0), 0);
	ASSERT_EQ(setxattr(path.c_str(), "user.mime_type", "text/plain", 10, 0), 0);
	journey([&](kernix&, robot& user) {
		open_file(user, font.path());
		save_file(user, folder.path(), "saved.ttf");
	});
	EXPECT_EQ(attribute_of(path, "user.colour"), "blue");
	EXPECT_EQ(attribute_of(path, "user.mime_type"), "application/x-truetype");
}


TEST(saving, under_the_name_of_a_link_replaces_what_it_leads_to)
{
	temp_file font(tiny_font());
	temp_folder folder;
	write_file(folder.path("target.ttf"), other_font());
	std::filesystem::create_symlink("target.ttf", folder.path("link.ttf"));
	journey([&](kernix&, robot& user) {
		open_file(user, font.path());
		save_file(user, folder.path(), "link.ttf");
	});
	expect_saved(tiny_font(), folder.path("target.ttf"));
	EXPECT_TRUE(std::filesystem::is_symlink(folder.path("link.ttf")));
	EXPECT_EQ(files_in(folder), 2u);
}


TEST(saving, over_a_longer_file_leaves_nothing_of_it)
{
	temp_file font(tiny_font());
	temp_folder folder;
	write_file(folder.path("saved.ttf"), octets(5000, 0xEE));
	journey([&](kernix&, robot& user) {
		open_file(user, font.path());
		save_file(user, folder.path(), "saved.ttf");
		expect_saved(tiny_font(), folder.path("saved.ttf"));
	});
}


TEST(saving, does_not_set_the_type_of_a_file_that_it_did_not_write)
{
	temp_file font(tiny_font());
	temp_file no_font(hex("00 01 02"));
	temp_folder folder;
	if (!keeps_attributes(folder))
		GTEST_SKIP() << "no attributes in " << folder.path();
	write_file(folder.path("old.ttf"), hex("0a 0b 0c"));
	journey([&](kernix&, robot& user) {
		open_file(user, font.path());
		open_file(user, no_font.path());
		save_file(user, folder.path(), "old.ttf");
		EXPECT_EQ(attribute_of(folder.path("old.ttf"), "user.mime_type"), "none");
	});
}


TEST(saving, into_a_folder_that_has_gone_does_no_harm)
{
	temp_file font(tiny_font());
	temp_folder folder;
	std::filesystem::create_directory(folder.path("gone"));
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		BMessage message = save_answer(folder.path("gone"), "saved.ttf");
		std::filesystem::remove(folder.path("gone"));
		be_app_messenger.SendMessage(&message);
		user.settle();
		EXPECT_FALSE(exists(folder.path("gone")));
		EXPECT_EQ(fpanel, nullptr);
		EXPECT_EQ(listed(app).size(), 7u);
		save_file(user, folder.path(), "saved.ttf");
		expect_saved(tiny_font(), folder.path("saved.ttf"));
	});
}


TEST(saving, into_a_folder_that_takes_no_file_does_no_harm)
{
	temp_file font(tiny_font());
	temp_folder folder;
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		// Nobody may make files there, not even the superuser.
		save_file(user, "/proc", "saved.ttf");
		EXPECT_EQ(listed(app).size(), 7u);
		save_file(user, folder.path(), "saved.ttf");
		expect_saved(tiny_font(), folder.path("saved.ttf"));
	});
}


TEST(saving, under_the_name_of_a_folder_does_no_harm)
{
	temp_file font(tiny_font());
	temp_folder folder;
	std::filesystem::create_directory(folder.path("saved.ttf"));
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		save_file(user, folder.path(), "saved.ttf");
		EXPECT_TRUE(std::filesystem::is_directory(folder.path("saved.ttf")));
		EXPECT_EQ(listed(app).size(), 7u);
	});
}


TEST(saving, to_a_full_device_does_no_harm)
{
	temp_file font(tiny_font());
	temp_folder folder;
	// The administrator, who might do the system's device harm, saves to one of the test's own.
	bool own = mknod(folder.path("full").c_str(), S_IFCHR | 0600, makedev(1, 7)) == 0;
	std::string place = own ? folder.path() : "/dev";
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		save_file(user, place, "full");
		EXPECT_EQ(listed(app).size(), 7u);
		EXPECT_TRUE(std::filesystem::is_character_file(place + "/full"));
	});
}
