// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "platform/storage/stored.h"
#include "support/temp_files.h"
#include <Entry.h>
#include <File.h>
#include <Path.h>
#include <StorageDefs.h>

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>


TEST(entry, need_not_exist)
{
	const temp_folder folder;
	const BEntry entry(folder.path("absent").c_str());
	EXPECT_EQ(entry.InitCheck(), B_OK);
	EXPECT_FALSE(entry.Exists());
	EXPECT_FALSE(entry.IsFile());
	EXPECT_FALSE(entry.IsDirectory());
}


TEST(entry, needs_its_folder)
{
	EXPECT_EQ(BEntry("/no such folder/leaf").InitCheck(), B_ENTRY_NOT_FOUND);
	EXPECT_EQ(BEntry(static_cast<const char*>(nullptr)).InitCheck(), B_BAD_VALUE);
	EXPECT_EQ(BEntry(static_cast<const entry_ref*>(nullptr)).InitCheck(), B_BAD_VALUE);
	EXPECT_EQ(BEntry().InitCheck(), B_NO_INIT);
}


TEST(entry, tells_files_from_folders_from_links)
{
	const temp_folder folder;
	store(folder.path("file"), "12345");
	ASSERT_EQ(symlink("file", folder.path("link").c_str()), 0);
	const BEntry file(folder.path("file").c_str());
	EXPECT_TRUE(file.Exists());
	EXPECT_TRUE(file.IsFile());
	EXPECT_FALSE(file.IsDirectory());
	EXPECT_FALSE(file.IsSymLink());
	const BEntry directory(folder.path().c_str());
	EXPECT_TRUE(directory.Exists());
	EXPECT_FALSE(directory.IsFile());
	EXPECT_TRUE(directory.IsDirectory());
	const BEntry link(folder.path("link").c_str());
	EXPECT_TRUE(link.IsSymLink());
	EXPECT_FALSE(link.IsFile());
}


TEST(entry, knows_the_size_of_the_data)
{
	const temp_folder folder;
	store(folder.path("file"), "12345");
	off_t size = 0;
	EXPECT_EQ(BEntry(folder.path("file").c_str()).GetSize(&size), B_OK);
	EXPECT_EQ(size, 5);
	EXPECT_EQ(BEntry(folder.path("absent").c_str()).GetSize(&size), B_ENTRY_NOT_FOUND);
	EXPECT_EQ(BEntry().GetSize(&size), B_NO_INIT);
	EXPECT_EQ(BEntry(folder.path("file").c_str()).GetSize(nullptr), B_BAD_VALUE);
}


TEST(entry, traversed_is_what_the_chain_of_links_leads_to)
{
	const temp_folder folder;
	store(folder.path("file"), "");
	ASSERT_EQ(symlink("file", folder.path("link").c_str()), 0);
	ASSERT_EQ(symlink("link", folder.path("chain").c_str()), 0);
	const BEntry entry(folder.path("chain").c_str(), true);
	EXPECT_TRUE(entry.IsFile());
	char name[B_FILE_NAME_LENGTH] = {};
	EXPECT_EQ(entry.GetName(name), B_OK);
	EXPECT_STREQ(name, "file");
}


TEST(entry, a_dead_link_exists_but_cannot_be_traversed)
{
	const temp_folder folder;
	ASSERT_EQ(symlink("absent", folder.path("link").c_str()), 0);
	EXPECT_TRUE(BEntry(folder.path("link").c_str()).Exists());
	EXPECT_EQ(BEntry(folder.path("link").c_str(), true).InitCheck(), B_ENTRY_NOT_FOUND);
}


TEST(entry, gives_ref_path_and_name)
{
	const temp_folder folder;
	const std::string real = std::filesystem::canonical(folder.path()).string();
	entry_ref ref;
	ASSERT_EQ(get_ref_for_path(folder.path("leaf").c_str(), &ref), B_OK);
	const BEntry entry(&ref);
	entry_ref same;
	EXPECT_EQ(entry.GetRef(&same), B_OK);
	EXPECT_TRUE(same == ref);
	BPath path;
	EXPECT_EQ(entry.GetPath(&path), B_OK);
	EXPECT_EQ(path.Path(), real + "/leaf");
	char name[B_FILE_NAME_LENGTH] = {};
	EXPECT_EQ(entry.GetName(name), B_OK);
	EXPECT_STREQ(name, "leaf");
}


TEST(entry, gives_nothing_before_it_is_set)
{
	const BEntry entry;
	entry_ref ref;
	BPath path;
	char name[B_FILE_NAME_LENGTH] = "untouched";
	EXPECT_EQ(entry.GetRef(&ref), B_NO_INIT);
	EXPECT_EQ(entry.GetPath(&path), B_NO_INIT);
	EXPECT_EQ(entry.GetName(name), B_NO_INIT);
	EXPECT_STREQ(name, "untouched");
	EXPECT_FALSE(entry.Exists());
}


TEST(entry, a_name_too_long_for_the_buffer_is_refused)
{
	const temp_folder folder;
	const std::string longest(255, 'n');
	char name[B_FILE_NAME_LENGTH] = {};
	EXPECT_EQ(BEntry(folder.path(longest).c_str()).GetName(name), B_OK);
	EXPECT_EQ(name, longest);
	EXPECT_EQ(BEntry(folder.path(longest + "n").c_str()).GetName(name), B_BAD_VALUE);
}


TEST(entry, opens_as_a_file)
{
	const temp_folder folder;
	store(folder.path("file"), "12345");
	const BEntry entry(folder.path("file").c_str());
	EXPECT_EQ(BFile(&entry, B_READ_ONLY).InitCheck(), B_OK);
	const BEntry none;
	EXPECT_EQ(BFile(&none, B_READ_ONLY).InitCheck(), B_NO_INIT);
}
