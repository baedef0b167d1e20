// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Creating files on disks of which the administrator can make any.
#include "platform/storage/stored.h"
#include "support/temp_files.h"
#include <Directory.h>
#include <File.h>
#include <StorageDefs.h>

#include <fcntl.h>
#include <functional>
#include <gtest/gtest.h>
#include <sched.h>
#include <string>
#include <sys/mount.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>
#include <vector>

using names = std::vector<std::string>;

namespace {

// Runs the test in a thread that alone sees what it mounts; the mounts go with it. False where the
// system does not allow that.
bool
with_own_mounts(const std::function<bool()>& mounts, const std::function<void()>& test)
{
	bool mounted = false;
	std::thread thread([&] {
		mounted = unshare(CLONE_NEWNS) == 0
			&& mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 && mounts();
		if (mounted) {
			test();
		}
	});
	thread.join();
	return mounted;
}


// Runs the test with a disk of its own mounted on the folder.
bool
with_disk(const temp_folder& folder, const char* size, const std::function<void()>& test)
{
	return with_own_mounts(
		[&] { return mount("tmpfs", folder.path().c_str(), "tmpfs", 0, size) == 0; }, test);
}


bool
with_file_mounted(const std::string& file, const std::string& on, const std::function<void()>& test)
{
	return with_own_mounts(
		[&] { return mount(file.c_str(), on.c_str(), nullptr, MS_BIND, nullptr) == 0; }, test);
}


const std::string old_text(40000, 'o');
const std::string new_text(40000, 'n');

}

#define SKIP_UNLESS(allowed)                                                                       \
	if (!(allowed)) {                                                                              \
		GTEST_SKIP() << "nothing may be mounted here";                                             \
	}


TEST(full_disk, leaves_the_old_file_and_nothing_beside_it)
{
	const temp_folder folder;
	SKIP_UNLESS(with_disk(folder, "size=64k", [&] {
		store(folder.path("old"), old_text);
		BFile file;
		EXPECT_EQ(BDirectory(folder.path().c_str()).CreateFile("old", &file), B_OK);
		EXPECT_LT(file.Write(new_text.data(), new_text.size()), 40000);
		file.Unset();
		EXPECT_EQ(stored(folder.path("old")), old_text);
		EXPECT_EQ(names_in(folder.path()), names{"old"});
	}))
}


TEST(full_disk, with_room_for_both_takes_the_new_file)
{
	const temp_folder folder;
	SKIP_UNLESS(with_disk(folder, "size=128k", [&] {
		store(folder.path("old"), old_text);
		BFile file;
		EXPECT_EQ(BDirectory(folder.path().c_str()).CreateFile("old", &file), B_OK);
		EXPECT_EQ(file.Write(new_text.data(), new_text.size()), 40000);
		file.Unset();
		EXPECT_EQ(stored(folder.path("old")), new_text);
		EXPECT_EQ(names_in(folder.path()), names{"old"});
	}))
}


TEST(full_disk, leaves_its_part_of_a_file_under_a_new_name)
{
	const temp_folder folder;
	SKIP_UNLESS(with_disk(folder, "size=64k", [&] {
		store(folder.path("old"), old_text);
		BFile file;
		EXPECT_EQ(BDirectory(folder.path().c_str()).CreateFile("new", &file), B_OK);
		const ssize_t written = file.Write(new_text.data(), new_text.size());
		file.Unset();
		EXPECT_GT(written, 0);
		EXPECT_EQ(stored(folder.path("new")), new_text.substr(0, static_cast<size_t>(written)));
		EXPECT_EQ(stored(folder.path("old")), old_text);
	}))
}


TEST(full_disk, without_room_for_one_more_file_refuses_and_leaves_the_old_one)
{
	const temp_folder folder;
	SKIP_UNLESS(with_disk(folder, "nr_inodes=2", [&] {
		store(folder.path("old"), old_text);
		BFile file;
		EXPECT_EQ(BDirectory(folder.path().c_str()).CreateFile("old", &file), B_IO_ERROR);
		EXPECT_NE(file.InitCheck(), B_OK);
		EXPECT_EQ(stored(folder.path("old")), old_text);
	}))
}


TEST(mounted_file, cannot_be_replaced_and_is_written_itself)
{
	const temp_folder folder;
	store(folder.path("file"), "a long text");
	store(folder.path("old"), "");
	SKIP_UNLESS(with_file_mounted(folder.path("file"), folder.path("old"), [&] {
		BFile file;
		EXPECT_EQ(BDirectory(folder.path().c_str()).CreateFile("old", &file), B_OK);
		EXPECT_EQ(file.Write("new", 3), 3);
		file.Unset();
		EXPECT_EQ(stored(folder.path("old")), "new");
	}))
	EXPECT_EQ(stored(folder.path("file")), "new");
	EXPECT_EQ(names_in(folder.path()), (names{"file", "old"}));
}
