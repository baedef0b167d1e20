// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Creating a file under the name of a link, or of what is no regular file.
#include "platform/storage/stored.h"
#include "support/size_limit.h"
#include "support/temp_files.h"
#include <Directory.h>
#include <File.h>
#include <StorageDefs.h>

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <vector>

using names = std::vector<std::string>;
using std::filesystem::create_symlink;
using std::filesystem::is_symlink;

namespace {

// A folder with a file in it, "file", and one below, "sub".
struct linked_folder {
	linked_folder() : directory(folder.path().c_str())
	{
		store(folder.path("file"), "a long text");
		make_folder(folder.path("sub"));
	}

	std::string path(const std::string& leaf) const { return folder.path(leaf); }

	// Creates the file and returns what the path `seen` shows while it is still open.
	std::string created(const char* name, const std::string& seen)
	{
		BFile file;
		EXPECT_EQ(directory.CreateFile(name, &file), B_OK);
		EXPECT_EQ(file.Write("new", 3), 3);
		return stored(path(seen));
	}

	temp_folder folder;
	BDirectory directory;
};

}


TEST(replacing_links, replaces_the_target_and_keeps_the_link)
{
	linked_folder at;
	create_symlink(at.path("file"), at.path("link"));
	EXPECT_EQ(at.created("link", "file"), "a long text");
	EXPECT_EQ(stored(at.path("file")), "new");
	EXPECT_EQ(std::filesystem::read_symlink(at.path("link")), at.path("file"));
	EXPECT_EQ(names_in(at.folder.path()), (names{"file", "link", "sub"}));
}


TEST(replacing_links, follows_one_that_is_relative_to_its_own_folder)
{
	linked_folder at;
	create_symlink("../file", at.path("sub/link"));
	EXPECT_EQ(at.created("sub/link", "file"), "a long text");
	EXPECT_EQ(stored(at.path("file")), "new");
	EXPECT_TRUE(is_symlink(at.path("sub/link")));
	EXPECT_EQ(names_in(at.path("sub")), names{"link"});
}


TEST(replacing_links, follows_one_into_a_folder_elsewhere)
{
	linked_folder at;
	const temp_folder elsewhere;
	store(elsewhere.path("font"), "a text elsewhere");
	create_symlink(elsewhere.path("font"), at.path("link"));
	at.created("link", "file");
	EXPECT_EQ(stored(elsewhere.path("font")), "new");
	EXPECT_EQ(names_in(elsewhere.path()), names{"font"});
	EXPECT_TRUE(is_symlink(at.path("link")));
}


TEST(replacing_links, follows_a_chain_of_them_and_links_of_folders)
{
	linked_folder at;
	std::filesystem::create_directory_symlink(".", at.path("here"));
	create_symlink("here/file", at.path("one"));
	create_symlink("here/one", at.path("two"));
	EXPECT_EQ(at.created("here/two", "file"), "a long text");
	EXPECT_EQ(stored(at.path("file")), "new");
	EXPECT_TRUE(is_symlink(at.path("one")));
	EXPECT_TRUE(is_symlink(at.path("two")));
	EXPECT_TRUE(is_symlink(at.path("here")));
}


TEST(replacing_links, after_a_failed_write_leaves_the_target)
{
	linked_folder at;
	create_symlink("file", at.path("link"));
	BFile file;
	ASSERT_EQ(at.directory.CreateFile("link", &file), B_OK);
	{
		const size_limit full(2);
		EXPECT_EQ(file.Write("12345", 5), 2);
	}
	file.Unset();
	EXPECT_EQ(stored(at.path("link")), "a long text");
	EXPECT_EQ(names_in(at.folder.path()), (names{"file", "link", "sub"}));
}


TEST(replacing_links, makes_the_target_of_one_that_leads_nowhere)
{
	linked_folder at;
	create_symlink("sub/absent", at.path("link"));
	EXPECT_EQ(at.created("link", "sub/absent"), "new") << "a new name is written where it is";
	EXPECT_EQ(stored(at.path("sub/absent")), "new");
	EXPECT_TRUE(is_symlink(at.path("link")));
}


TEST(replacing_links, told_to_fail_on_an_existing_file_does_not_follow_even_those)
{
	linked_folder at;
	create_symlink("sub/absent", at.path("link"));
	BFile file;
	EXPECT_EQ(at.directory.CreateFile("link", &file, true), B_FILE_EXISTS);
	EXPECT_EQ(names_in(at.path("sub")), names{});
}


TEST(replacing_links, refuses_one_that_leads_to_itself)
{
	linked_folder at;
	create_symlink("link", at.path("link"));
	BFile file;
	EXPECT_LT(at.directory.CreateFile("link", &file), 0);
	EXPECT_NE(file.InitCheck(), B_OK);
	EXPECT_EQ(names_in(at.folder.path()), (names{"file", "link", "sub"}));
}


TEST(replacing_links, leaves_the_old_contents_to_the_other_names_of_the_file)
{
	linked_folder at;
	std::filesystem::create_hard_link(at.path("file"), at.path("sub/other"));
	at.created("file", "file");
	EXPECT_EQ(stored(at.path("file")), "new");
	EXPECT_EQ(stored(at.path("sub/other")), "a long text");
}


TEST(replacing_links, replaces_the_one_name_that_it_was_told_of_two)
{
	linked_folder at;
	std::filesystem::create_hard_link(at.path("file"), at.path("sub/other"));
	at.created("sub/other", "file");
	EXPECT_EQ(stored(at.path("sub/other")), "new");
	EXPECT_EQ(stored(at.path("file")), "a long text");
}


TEST(replacing_links, opens_a_pipe_and_leaves_it_one)
{
	linked_folder at;
	ASSERT_EQ(mkfifo(at.path("pipe").c_str(), 0600), 0);
	BFile file;
	ASSERT_EQ(at.directory.CreateFile("pipe", &file), B_OK);
	char bytes[4] = {};
	EXPECT_EQ(file.Write("new", 3), 3);
	EXPECT_EQ(file.Read(bytes, 3), 3);
	EXPECT_STREQ(bytes, "new");
	file.Unset();
	EXPECT_TRUE(std::filesystem::is_fifo(at.path("pipe")));
}


// One of the test's own: a device of the system's would be at stake.
TEST(replacing_links, opens_a_device_and_leaves_it_one)
{
	linked_folder at;
	const std::string path = at.path("full");
	if (mknod(path.c_str(), S_IFCHR | 0600, makedev(1, 7)) != 0) {
		GTEST_SKIP() << "only the administrator makes devices";
	}
	BFile file;
	if (at.directory.CreateFile("full", &file) == B_PERMISSION_DENIED) {
		GTEST_SKIP() << "no devices in " << at.folder.path();
	}
	EXPECT_EQ(file.Write("new", 3), B_IO_ERROR);
	file.Unset();
	EXPECT_TRUE(std::filesystem::is_character_file(path));
}
