// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "platform/storage/stored.h"
#include "support/temp_files.h"
#include <Directory.h>
#include <Entry.h>
#include <File.h>
#include <Path.h>
#include <StorageDefs.h>

#include <cstring>
#include <filesystem>
#include <gtest/gtest.h>
#include <latch>
#include <string>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace {

// The working folder of the process, put back at the end.
class working_folder {
public:
	explicit working_folder(const std::string& path) : fBefore(std::filesystem::current_path())
	{
		std::filesystem::current_path(path);
	}
	~working_folder() { std::filesystem::current_path(fBefore); }

private:
	std::filesystem::path fBefore;
};


constexpr int many_folders = 100;


void
make_many_folders(const temp_folder& folder)
{
	for (int i = 0; i < many_folders; i++) {
		make_folder(folder.path(std::to_string(i)));
		store(folder.path(std::to_string(i) + "/file"), "contents");
	}
}


// Whether a ref made in each of the folders led to its file, also from a copy.
bool
follow_many_refs(const temp_folder& folder)
{
	int good = 0;
	for (int i = 0; i < many_folders; i++) {
		const std::string path = folder.path(std::to_string(i) + "/file");
		entry_ref ref;
		if (get_ref_for_path(path.c_str(), &ref) == B_OK) {
			const entry_ref copy = ref;
			good += BEntry(&copy).IsFile() ? 1 : 0;
		}
	}
	return good == many_folders;
}

}


TEST(entry_ref, names_nothing_at_first)
{
	const entry_ref ref;
	EXPECT_EQ(ref.device, static_cast<dev_t>(-1));
	EXPECT_EQ(ref.name, nullptr);
}


TEST(entry_ref, keeps_a_copy_of_the_name)
{
	char name[] = "leaf";
	const entry_ref ref(3, 4, name);
	name[0] = 'X';
	EXPECT_EQ(ref.device, 3U);
	EXPECT_EQ(ref.directory, 4U);
	EXPECT_STREQ(ref.name, "leaf");
}


TEST(entry_ref, copies_do_not_share_the_name)
{
	entry_ref ref(3, 4, "leaf");
	const entry_ref copy(ref);
	entry_ref assigned;
	assigned = ref;
	ref.set_name("other");
	EXPECT_STREQ(copy.name, "leaf");
	EXPECT_STREQ(assigned.name, "leaf");
	EXPECT_TRUE(copy == entry_ref(3, 4, "leaf"));
	EXPECT_TRUE(assigned == entry_ref(3, 4, "leaf"));
}


TEST(entry_ref, survives_being_assigned_to_itself_or_from_its_own_name)
{
	entry_ref ref(3, 4, "leaf");
	entry_ref& same = ref;
	ref = same;
	EXPECT_STREQ(ref.name, "leaf");
	EXPECT_EQ(ref.set_name(ref.name + 2), B_OK);
	EXPECT_STREQ(ref.name, "af");
}


TEST(entry_ref, is_compared_by_volume_folder_and_name)
{
	const entry_ref ref(3, 4, "leaf");
	EXPECT_TRUE(ref == entry_ref(3, 4, "leaf"));
	EXPECT_FALSE(ref != entry_ref(3, 4, "leaf"));
	EXPECT_TRUE(ref != entry_ref(5, 4, "leaf"));
	EXPECT_TRUE(ref != entry_ref(3, 5, "leaf"));
	EXPECT_TRUE(ref != entry_ref(3, 4, "Leaf"));
	EXPECT_TRUE(ref != entry_ref(3, 4, nullptr));
	EXPECT_TRUE(entry_ref() == entry_ref());
}


TEST(entry_ref, loses_its_name_when_set_to_none)
{
	entry_ref ref(3, 4, "leaf");
	EXPECT_EQ(ref.set_name(nullptr), B_OK);
	EXPECT_EQ(ref.name, nullptr);
}


TEST(get_ref_for_path, gives_volume_inode_of_the_folder_and_leaf)
{
	const temp_folder folder;
	store(folder.path("file"), "");
	struct stat st = {};
	ASSERT_EQ(stat(folder.path().c_str(), &st), 0);
	entry_ref ref;
	EXPECT_EQ(get_ref_for_path(folder.path("file").c_str(), &ref), B_OK);
	EXPECT_EQ(ref.device, st.st_dev);
	EXPECT_EQ(ref.directory, st.st_ino);
	EXPECT_STREQ(ref.name, "file");
}


TEST(get_ref_for_path, needs_the_folder_but_not_the_leaf)
{
	const temp_folder folder;
	store(folder.path("file"), "");
	entry_ref ref(3, 4, "before");
	EXPECT_EQ(get_ref_for_path(folder.path("absent").c_str(), &ref), B_OK);
	EXPECT_STREQ(ref.name, "absent");
	EXPECT_EQ(get_ref_for_path(folder.path("absent/leaf").c_str(), &ref), B_ENTRY_NOT_FOUND);
	EXPECT_EQ(get_ref_for_path(folder.path("file/leaf").c_str(), &ref), B_NOT_A_DIRECTORY);
	EXPECT_STREQ(ref.name, "absent");
}


TEST(get_ref_for_path, different_spellings_of_a_path_give_the_same_ref)
{
	const temp_folder folder;
	make_folder(folder.path("sub"));
	ASSERT_EQ(symlink("sub", folder.path("link").c_str()), 0);
	entry_ref ref;
	ASSERT_EQ(get_ref_for_path(folder.path("sub/leaf").c_str(), &ref), B_OK);
	const working_folder here(folder.path("sub"));
	const std::string spellings[] = {"leaf", "./leaf", "../sub/leaf", "leaf/",
		folder.path("sub//leaf"), folder.path("link/leaf"), folder.path("sub/../sub/./leaf")};
	for (const std::string& path : spellings) {
		entry_ref other;
		EXPECT_EQ(get_ref_for_path(path.c_str(), &other), B_OK) << path;
		EXPECT_TRUE(other == ref) << path;
	}
}


TEST(get_ref_for_path, a_folder_named_by_dots_gets_its_real_name)
{
	const temp_folder folder;
	make_folder(folder.path("sub"));
	entry_ref ref;
	ASSERT_EQ(get_ref_for_path(folder.path("sub").c_str(), &ref), B_OK);
	const working_folder here(folder.path("sub"));
	entry_ref other;
	EXPECT_EQ(get_ref_for_path(".", &other), B_OK);
	EXPECT_TRUE(other == ref);
	make_folder(folder.path("sub/below"));
	EXPECT_EQ(get_ref_for_path("below/..", &other), B_OK);
	EXPECT_TRUE(other == ref);
}


TEST(get_ref_for_path, the_root_has_a_ref_that_leads_back)
{
	entry_ref ref;
	EXPECT_EQ(get_ref_for_path("/", &ref), B_OK);
	const BPath path(&ref);
	EXPECT_STREQ(path.Path(), "/");
	const BDirectory directory(&ref);
	EXPECT_EQ(directory.InitCheck(), B_OK);
	EXPECT_EQ(get_ref_for_path("/leaf", &ref), B_OK);
	EXPECT_STREQ(BPath(&ref).Path(), "/leaf");
}


TEST(get_ref_for_path, an_empty_path_and_null_pointers_are_refused)
{
	entry_ref ref;
	EXPECT_EQ(get_ref_for_path("", &ref), B_ENTRY_NOT_FOUND);
	EXPECT_EQ(get_ref_for_path(nullptr, &ref), B_BAD_VALUE);
	EXPECT_EQ(get_ref_for_path("/", nullptr), B_BAD_VALUE);
}


TEST(ref, of_a_folder_never_seen_finds_nothing)
{
	const entry_ref ref(0xFFFFFFF, 0xFFFFFFF, "leaf");
	EXPECT_EQ(BFile(&ref, B_READ_ONLY).InitCheck(), B_ENTRY_NOT_FOUND);
	EXPECT_EQ(BDirectory(&ref).InitCheck(), B_ENTRY_NOT_FOUND);
	EXPECT_EQ(BPath(&ref).Path(), nullptr);
}


TEST(ref, without_a_name_is_refused)
{
	const entry_ref ref;
	EXPECT_EQ(BFile(&ref, B_READ_ONLY).InitCheck(), B_BAD_VALUE);
	EXPECT_EQ(BDirectory(&ref).InitCheck(), B_BAD_VALUE);
}


TEST(ref, with_an_absolute_name_stands_for_itself)
{
	const temp_folder folder;
	store(folder.path("file"), "");
	const entry_ref ref(0, 0, folder.path("file").c_str());
	EXPECT_EQ(BFile(&ref, B_READ_ONLY).InitCheck(), B_OK);
}


TEST(ref, does_not_open_a_stranger_after_its_folder_moved_away)
{
	const temp_folder folder;
	make_folder(folder.path("sub"));
	store(folder.path("sub/file"), "ours");
	entry_ref ref;
	ASSERT_EQ(get_ref_for_path(folder.path("sub/file").c_str(), &ref), B_OK);
	std::filesystem::rename(folder.path("sub"), folder.path("moved"));
	EXPECT_EQ(BFile(&ref, B_READ_ONLY).InitCheck(), B_ENTRY_NOT_FOUND);
	make_folder(folder.path("sub"));
	store(folder.path("sub/file"), "theirs");
	EXPECT_EQ(BFile(&ref, B_READ_ONLY).InitCheck(), B_ENTRY_NOT_FOUND);
}


TEST(ref, finds_its_moved_folder_once_that_was_seen_again)
{
	const temp_folder folder;
	make_folder(folder.path("sub"));
	store(folder.path("sub/file"), "ours");
	entry_ref ref;
	ASSERT_EQ(get_ref_for_path(folder.path("sub/file").c_str(), &ref), B_OK);
	std::filesystem::rename(folder.path("sub"), folder.path("moved"));
	entry_ref other;
	ASSERT_EQ(get_ref_for_path(folder.path("moved/other").c_str(), &other), B_OK);
	EXPECT_EQ(BFile(&ref, B_READ_ONLY).InitCheck(), B_OK);
}


TEST(ref, two_threads_may_make_and_follow_their_own)
{
	const temp_folder folders[2];
	make_many_folders(folders[0]);
	make_many_folders(folders[1]);
	std::latch start(2);
	bool good = false;
	std::thread other([&] {
		start.arrive_and_wait();
		good = follow_many_refs(folders[0]);
	});
	start.arrive_and_wait();
	EXPECT_TRUE(follow_many_refs(folders[1]));
	other.join();
	EXPECT_TRUE(good);
}


TEST(path, is_absolute_and_ends_with_the_leaf)
{
	const temp_folder folder;
	const std::string real = std::filesystem::canonical(folder.path()).string();
	const working_folder here(folder.path());
	const BPath path("leaf");
	EXPECT_EQ(path.InitCheck(), B_OK);
	EXPECT_EQ(path.Path(), real + "/leaf");
	EXPECT_STREQ(path.Leaf(), "leaf");
}


TEST(path, comes_back_from_a_ref)
{
	const temp_folder folder;
	const std::string real = std::filesystem::canonical(folder.path()).string();
	entry_ref ref;
	ASSERT_EQ(get_ref_for_path(folder.path("leaf").c_str(), &ref), B_OK);
	const BPath path(&ref);
	EXPECT_EQ(path.Path(), real + "/leaf");
	EXPECT_STREQ(path.Leaf(), "leaf");
}


TEST(path, has_nothing_to_give_when_unset_or_failed)
{
	BPath path;
	EXPECT_EQ(path.InitCheck(), B_NO_INIT);
	EXPECT_EQ(path.Path(), nullptr);
	EXPECT_EQ(path.Leaf(), nullptr);
	EXPECT_EQ(path.SetTo("/"), B_OK);
	EXPECT_STREQ(path.Leaf(), "");
	EXPECT_EQ(path.SetTo("/no such folder/leaf"), B_ENTRY_NOT_FOUND);
	EXPECT_EQ(path.Path(), nullptr);
	EXPECT_EQ(path.SetTo(static_cast<const entry_ref*>(nullptr)), B_BAD_VALUE);
	EXPECT_EQ(path.SetTo(static_cast<const BEntry*>(nullptr)), B_BAD_VALUE);
	path.Unset();
	EXPECT_EQ(path.InitCheck(), B_NO_INIT);
}
