// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Creating a file over an old one: when and whether the new one takes its place.
#include "platform/storage/stored.h"
#include "support/size_limit.h"
#include "support/temp_files.h"
#include <Directory.h>
#include <File.h>
#include <StorageDefs.h>

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <thread>
#include <vector>

using names = std::vector<std::string>;

namespace {

// A folder with a file in it, "old", to be replaced.
struct old_file {
	old_file() : directory(folder.path().c_str()) { store(folder.path("old"), "a long text"); }

	std::string contents() const { return stored(folder.path("old")); }
	names neighbours() const { return names_in(folder.path()); }

	temp_folder folder;
	BDirectory directory;
};


// Creates the file and has its closing replace the old one.
void
replace(BDirectory& directory, const char* name, const std::string& text)
{
	BFile file;
	EXPECT_EQ(directory.CreateFile(name, &file), B_OK);
	EXPECT_EQ(file.Write(text.data(), text.size()), static_cast<ssize_t>(text.size()));
}

}


TEST(replacing, shows_the_old_contents_until_the_file_is_closed)
{
	old_file old;
	BFile file;
	ASSERT_EQ(old.directory.CreateFile("old", &file), B_OK);
	EXPECT_EQ(file.Write("new", 3), 3);
	EXPECT_EQ(old.contents(), "a long text");
	file.Unset();
	EXPECT_EQ(old.contents(), "new");
	EXPECT_EQ(old.neighbours(), names{"old"});
	EXPECT_EQ(file.InitCheck(), B_NO_INIT);
}


TEST(replacing, shows_the_new_contents_to_the_file_itself_alone)
{
	old_file old;
	BFile file;
	ASSERT_EQ(old.directory.CreateFile("old", &file), B_OK);
	EXPECT_EQ(file.Write("new", 3), 3);
	BFile other(old.folder.path("old").c_str(), B_READ_ONLY);
	char bytes[20] = {};
	EXPECT_EQ(file.ReadAt(0, bytes, 19), 3);
	EXPECT_STREQ(bytes, "new");
	EXPECT_EQ(other.Read(bytes, 19), 11);
	EXPECT_STREQ(bytes, "a long text");
	file.Unset();
	EXPECT_EQ(other.ReadAt(0, bytes, 6), 6);
	EXPECT_STREQ(bytes, "a long text") << "who has the old file open keeps it";
}


TEST(replacing, is_finished_by_the_destructor)
{
	old_file old;
	{
		BFile file;
		ASSERT_EQ(old.directory.CreateFile("old", &file), B_OK);
		EXPECT_EQ(file.Write("new", 3), 3);
	}
	EXPECT_EQ(old.contents(), "new");
}


TEST(replacing, is_finished_by_closing_the_file_as_a_node)
{
	old_file old;
	BFile file;
	ASSERT_EQ(old.directory.CreateFile("old", &file), B_OK);
	EXPECT_EQ(file.Write("new", 3), 3);
	static_cast<BNode&>(file).Unset();
	EXPECT_EQ(old.contents(), "new");
}


TEST(replacing, is_finished_by_opening_another_file)
{
	old_file old;
	store(old.folder.path("other"), "12345");
	BFile file;
	ASSERT_EQ(old.directory.CreateFile("old", &file), B_OK);
	EXPECT_EQ(file.Write("new", 3), 3);
	EXPECT_EQ(file.SetTo(old.folder.path("other").c_str(), B_READ_WRITE), B_OK);
	EXPECT_EQ(old.contents(), "new");
	EXPECT_EQ(file.Write("abc", 3), 3);
	file.Unset();
	EXPECT_EQ(stored(old.folder.path("other")), "abc45");
	EXPECT_EQ(old.contents(), "new");
}


TEST(replacing, is_finished_by_creating_another_file)
{
	old_file old;
	BFile file;
	ASSERT_EQ(old.directory.CreateFile("old", &file), B_OK);
	EXPECT_EQ(file.Write("new", 3), 3);
	EXPECT_EQ(old.directory.CreateFile("old", &file), B_OK);
	EXPECT_EQ(old.contents(), "new");
	EXPECT_EQ(file.Write("newer", 5), 5);
	file.Unset();
	EXPECT_EQ(old.contents(), "newer");
}


TEST(replacing, without_any_write_leaves_an_empty_file)
{
	old_file old;
	BFile file;
	ASSERT_EQ(old.directory.CreateFile("old", &file), B_OK);
	file.Unset();
	EXPECT_EQ(old.contents(), "");
}


TEST(replacing, without_a_file_object_empties_the_old_file)
{
	old_file old;
	EXPECT_EQ(old.directory.CreateFile("old", nullptr), B_OK);
	EXPECT_EQ(old.contents(), "");
	EXPECT_EQ(old.neighbours(), names{"old"});
}


TEST(replacing, a_name_may_lead_through_folders_below)
{
	old_file old;
	make_folder(old.folder.path("sub"));
	store(old.folder.path("sub/old"), "another text");
	replace(old.directory, "sub/old", "new");
	EXPECT_EQ(stored(old.folder.path("sub/old")), "new");
	EXPECT_EQ(names_in(old.folder.path("sub")), names{"old"});
	EXPECT_EQ(old.contents(), "a long text");
}


TEST(replacing, follows_its_folder_when_that_is_moved)
{
	old_file old;
	make_folder(old.folder.path("sub"));
	store(old.folder.path("sub/old"), "another text");
	BFile file;
	ASSERT_EQ(old.directory.CreateFile("sub/old", &file), B_OK);
	EXPECT_EQ(file.Write("new", 3), 3);
	std::filesystem::rename(old.folder.path("sub"), old.folder.path("moved"));
	file.Unset();
	EXPECT_EQ(stored(old.folder.path("moved/old")), "new");
}


TEST(replacing, after_a_failed_write_leaves_the_old_file_and_nothing_beside_it)
{
	old_file old;
	BFile file;
	ASSERT_EQ(old.directory.CreateFile("old", &file), B_OK);
	{
		const size_limit full(8);
		EXPECT_EQ(file.Write("12345678", 8), 8);
		EXPECT_EQ(file.Write("9", 1), B_IO_ERROR);
	}
	file.Unset();
	EXPECT_EQ(old.contents(), "a long text");
	EXPECT_EQ(old.neighbours(), names{"old"});
}


TEST(replacing, after_a_write_of_fewer_bytes_than_told_leaves_the_old_file)
{
	old_file old;
	BFile file;
	ASSERT_EQ(old.directory.CreateFile("old", &file), B_OK);
	{
		const size_limit full(3);
		EXPECT_EQ(file.Write("12345", 5), 3);
	}
	file.Unset();
	EXPECT_EQ(old.contents(), "a long text");
}


TEST(replacing, after_a_failed_write_at_a_position_leaves_the_old_file)
{
	old_file old;
	BFile file;
	ASSERT_EQ(old.directory.CreateFile("old", &file), B_OK);
	{
		const size_limit full(8);
		EXPECT_EQ(file.WriteAt(6, "1234", 4), 2);
	}
	file.Unset();
	EXPECT_EQ(old.contents(), "a long text");
	ASSERT_EQ(old.directory.CreateFile("old", &file), B_OK);
	EXPECT_EQ(file.WriteAt(-1, "1234", 4), B_BAD_VALUE);
	file.Unset();
	EXPECT_EQ(old.contents(), "a long text");
}


TEST(replacing, after_a_size_that_could_not_be_set_leaves_the_old_file)
{
	old_file old;
	BFile file;
	ASSERT_EQ(old.directory.CreateFile("old", &file), B_OK);
	{
		const size_limit full(8);
		EXPECT_EQ(file.SetSize(9), B_IO_ERROR);
	}
	file.Unset();
	EXPECT_EQ(old.contents(), "a long text");
}


TEST(replacing, after_bytes_from_nowhere_leaves_the_old_file)
{
	old_file old;
	BFile file;
	ASSERT_EQ(old.directory.CreateFile("old", &file), B_OK);
	EXPECT_EQ(file.Write(nullptr, 5), B_BAD_VALUE);
	file.Unset();
	EXPECT_EQ(old.contents(), "a long text");
}


TEST(replacing, is_not_saved_by_later_writes_that_succeed)
{
	old_file old;
	BFile file;
	ASSERT_EQ(old.directory.CreateFile("old", &file), B_OK);
	{
		const size_limit full(2);
		EXPECT_EQ(file.Write("12345", 5), 2);
	}
	EXPECT_EQ(file.Write("345", 3), 3);
	EXPECT_EQ(file.SetSize(5), B_OK);
	file.Unset();
	EXPECT_EQ(old.contents(), "a long text");
}


TEST(replacing, takes_a_write_of_no_bytes_for_no_failure)
{
	old_file old;
	BFile file;
	ASSERT_EQ(old.directory.CreateFile("old", &file), B_OK);
	EXPECT_EQ(file.Write("new", 3), 3);
	EXPECT_EQ(file.WriteAt(3, "", 0), 0);
	EXPECT_EQ(file.WriteAt(3, nullptr, 0), B_BAD_VALUE);
	file.Unset();
	EXPECT_EQ(old.contents(), "new");
}


TEST(replacing, can_be_tried_again_with_the_same_file_object)
{
	old_file old;
	BFile file;
	ASSERT_EQ(old.directory.CreateFile("old", &file), B_OK);
	EXPECT_EQ(file.Write(nullptr, 5), B_BAD_VALUE);
	ASSERT_EQ(old.directory.CreateFile("old", &file), B_OK);
	EXPECT_EQ(file.Write("new", 3), 3);
	file.Unset();
	EXPECT_EQ(old.contents(), "new");
}


TEST(replacing, is_not_what_a_new_name_does_so_that_a_failed_write_leaves_its_part)
{
	old_file old;
	BFile file;
	ASSERT_EQ(old.directory.CreateFile("new", &file), B_OK);
	{
		const size_limit full(3);
		EXPECT_EQ(file.Write("12345", 5), 3);
	}
	EXPECT_EQ(stored(old.folder.path("new")), "123");
	file.Unset();
	EXPECT_EQ(stored(old.folder.path("new")), "123");
	EXPECT_EQ(old.neighbours(), (names{"new", "old"}));
}


TEST(replacing, takes_the_name_also_when_the_old_file_was_removed_meanwhile)
{
	old_file old;
	BFile file;
	ASSERT_EQ(old.directory.CreateFile("old", &file), B_OK);
	EXPECT_EQ(file.Write("new", 3), 3);
	std::filesystem::remove(old.folder.path("old"));
	EXPECT_EQ(old.neighbours(), names{});
	file.Unset();
	EXPECT_EQ(old.contents(), "new");
	EXPECT_EQ(old.neighbours(), names{"old"});
}


TEST(replacing, leaves_the_new_file_beside_a_folder_that_took_the_name_meanwhile)
{
	old_file old;
	BFile file;
	ASSERT_EQ(old.directory.CreateFile("old", &file), B_OK);
	EXPECT_EQ(file.Write("new", 3), 3);
	std::filesystem::remove(old.folder.path("old"));
	make_folder(old.folder.path("old"));
	file.Unset();
	EXPECT_TRUE(std::filesystem::is_directory(old.folder.path("old")));
	const names neighbours = old.neighbours();
	ASSERT_EQ(neighbours.size(), 2u);
	EXPECT_EQ(neighbours[0].substr(0, 5), ".new-");
	EXPECT_EQ(stored(old.folder.path(neighbours[0])), "new");
}


TEST(replacing, by_two_at_once_is_won_by_the_last_to_close)
{
	old_file old;
	BFile one;
	BFile other;
	ASSERT_EQ(old.directory.CreateFile("old", &one), B_OK);
	ASSERT_EQ(old.directory.CreateFile("old", &other), B_OK);
	EXPECT_EQ(one.Write("one", 3), 3);
	EXPECT_EQ(other.Write("another", 7), 7);
	other.Unset();
	EXPECT_EQ(old.contents(), "another");
	one.Unset();
	EXPECT_EQ(old.contents(), "one");
	EXPECT_EQ(old.neighbours(), names{"old"});
}


TEST(replacing, by_two_threads_leaves_one_of_the_texts_whole)
{
	old_file old;
	const auto save = [&](const std::string& text) {
		BDirectory directory(old.folder.path().c_str());
		for (int i = 0; i < 50; i++) {
			replace(directory, "old", text);
		}
	};
	std::thread one(save, std::string(5000, '1'));
	std::thread other(save, std::string(3000, '2'));
	one.join();
	other.join();
	EXPECT_TRUE(
		old.contents() == std::string(5000, '1') || old.contents() == std::string(3000, '2'));
	EXPECT_EQ(old.neighbours(), names{"old"});
}
