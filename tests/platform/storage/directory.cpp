// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "platform/storage/stored.h"
#include "support/temp_files.h"
#include <Directory.h>
#include <Entry.h>
#include <File.h>
#include <StorageDefs.h>

#include <cstdio>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>


TEST(directory, opens_by_the_ref_of_itself_and_by_path)
{
	const temp_folder folder;
	entry_ref ref;
	ASSERT_EQ(get_ref_for_path(folder.path().c_str(), &ref), B_OK);
	EXPECT_EQ(BDirectory(&ref).InitCheck(), B_OK);
	EXPECT_EQ(BDirectory(folder.path().c_str()).InitCheck(), B_OK);
}


TEST(directory, nothing_else_opens_as_one)
{
	const temp_folder folder;
	store(folder.path("file"), "");
	EXPECT_EQ(BDirectory(folder.path("file").c_str()).InitCheck(), B_NOT_A_DIRECTORY);
	EXPECT_EQ(BDirectory(folder.path("absent").c_str()).InitCheck(), B_ENTRY_NOT_FOUND);
	EXPECT_EQ(BDirectory(static_cast<const char*>(nullptr)).InitCheck(), B_BAD_VALUE);
	EXPECT_EQ(BDirectory(static_cast<const entry_ref*>(nullptr)).InitCheck(), B_BAD_VALUE);
	EXPECT_EQ(BDirectory().InitCheck(), B_NO_INIT);
}


TEST(create_file, makes_a_file_open_for_reading_and_writing)
{
	const temp_folder folder;
	BDirectory directory(folder.path().c_str());
	BFile file;
	EXPECT_EQ(directory.CreateFile("new", &file), B_OK);
	EXPECT_EQ(file.InitCheck(), B_OK);
	EXPECT_EQ(file.Write("12345", 5), 5);
	char bytes[6] = {};
	EXPECT_EQ(file.Seek(0, SEEK_SET), 0);
	EXPECT_EQ(file.Read(bytes, 5), 5);
	EXPECT_STREQ(bytes, "12345");
	EXPECT_EQ(stored(folder.path("new")), "12345");
}


TEST(create_file, empties_a_file_that_is_already_there)
{
	const temp_folder folder;
	store(folder.path("old"), "a long text");
	BDirectory directory(folder.path().c_str());
	BFile file;
	EXPECT_EQ(directory.CreateFile("old", &file), B_OK);
	EXPECT_EQ(file.Write("short", 5), 5);
	file.Unset();
	EXPECT_EQ(stored(folder.path("old")), "short");
}


TEST(create_file, told_to_fail_on_an_existing_file_leaves_it_alone)
{
	const temp_folder folder;
	store(folder.path("old"), "a long text");
	BDirectory directory(folder.path().c_str());
	BFile file;
	EXPECT_EQ(directory.CreateFile("old", &file, true), B_FILE_EXISTS);
	EXPECT_NE(file.InitCheck(), B_OK);
	EXPECT_EQ(file.Write("short", 5), B_NO_INIT);
	EXPECT_EQ(stored(folder.path("old")), "a long text");
	EXPECT_EQ(directory.CreateFile("new", &file, true), B_OK);
	EXPECT_EQ(file.InitCheck(), B_OK);
}


TEST(create_file, a_name_may_lead_through_folders_below)
{
	const temp_folder folder;
	make_folder(folder.path("sub"));
	BDirectory directory(folder.path().c_str());
	BFile file;
	EXPECT_EQ(directory.CreateFile("sub/new", &file), B_OK);
	EXPECT_TRUE(std::filesystem::exists(folder.path("sub/new")));
	EXPECT_EQ(directory.CreateFile("absent/new", &file), B_ENTRY_NOT_FOUND);
	EXPECT_NE(file.InitCheck(), B_OK);
}


TEST(create_file, on_failure_closes_the_file_that_was_open)
{
	const temp_folder folder;
	store(folder.path("open"), "12345");
	make_folder(folder.path("sub"));
	BDirectory directory(folder.path().c_str());
	BFile file(folder.path("open").c_str(), B_READ_WRITE);
	EXPECT_EQ(directory.CreateFile("sub", &file), B_IS_A_DIRECTORY);
	EXPECT_NE(file.InitCheck(), B_OK);
	EXPECT_EQ(file.Write("x", 1), B_NO_INIT);
	EXPECT_EQ(file.SetTo(folder.path("open").c_str(), B_READ_WRITE), B_OK);
	EXPECT_EQ(directory.CreateFile(nullptr, &file), B_BAD_VALUE);
	EXPECT_NE(file.InitCheck(), B_OK);
	EXPECT_EQ(file.SetTo(folder.path("open").c_str(), B_READ_WRITE), B_OK);
	EXPECT_EQ(BDirectory().CreateFile("new", &file), B_NO_INIT);
	EXPECT_NE(file.InitCheck(), B_OK);
}


TEST(create_file, a_name_longer_than_the_system_allows_makes_nothing)
{
	const temp_folder folder;
	BDirectory directory(folder.path().c_str());
	BFile file;
	EXPECT_LT(directory.CreateFile(std::string(256, 'n').c_str(), &file), 0);
	EXPECT_LT(directory.CreateFile("", &file), 0);
	EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}


TEST(create_file, without_a_file_object_only_makes_the_file)
{
	const temp_folder folder;
	BDirectory directory(folder.path().c_str());
	EXPECT_EQ(directory.CreateFile("new", nullptr), B_OK);
	EXPECT_EQ(stored(folder.path("new")), "");
}


TEST(create_file, a_folder_without_the_right_to_write_refuses)
{
	const temp_folder folder;
	ASSERT_EQ(chmod(folder.path().c_str(), 0555), 0);
	const plain_user user;
	if (!user.plain()) {
		GTEST_SKIP() << "the rights of the administrator cannot be given up";
	}
	BDirectory directory(folder.path().c_str());
	BFile file;
	EXPECT_EQ(directory.InitCheck(), B_OK);
	EXPECT_EQ(directory.CreateFile("new", &file), B_PERMISSION_DENIED);
	EXPECT_NE(file.InitCheck(), B_OK);
}


TEST(create_file, a_folder_that_may_be_written_but_not_listed_will_do)
{
	const temp_folder folder;
	make_folder(folder.path("sub"));
	ASSERT_EQ(chmod(folder.path().c_str(), 0755), 0);
	ASSERT_EQ(chmod(folder.path("sub").c_str(), 0333), 0);
	const plain_user user;
	if (!user.plain()) {
		GTEST_SKIP() << "the rights of the administrator cannot be given up";
	}
	BDirectory directory(folder.path("sub").c_str());
	BFile file;
	EXPECT_EQ(directory.CreateFile("new", &file), B_OK);
	EXPECT_EQ(file.Write("12345", 5), 5);
}


TEST(create_file, follows_its_folder_when_that_is_moved)
{
	const temp_folder folder;
	make_folder(folder.path("sub"));
	BDirectory directory(folder.path("sub").c_str());
	std::filesystem::rename(folder.path("sub"), folder.path("moved"));
	BFile file;
	EXPECT_EQ(directory.CreateFile("new", &file), B_OK);
	EXPECT_TRUE(std::filesystem::exists(folder.path("moved/new")));
}
