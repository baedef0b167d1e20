// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "platform/storage/stored.h"
#include "support/size_limit.h"
#include "support/temp_files.h"
#include <Entry.h>
#include <File.h>
#include <StorageDefs.h>

#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace {

// How many descriptors of the process lead into the folder.
int
open_in(const temp_folder& folder)
{
	const std::string real = std::filesystem::canonical(folder.path()).string();
	int count = 0;
	for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
		std::error_code gone; // others may close theirs meanwhile
		const std::string target = std::filesystem::read_symlink(entry.path(), gone).string();
		count += target.starts_with(real) ? 1 : 0;
	}
	return count;
}

}


TEST(file, is_not_open_at_first_and_every_call_says_so)
{
	BFile file;
	char byte = 'x';
	off_t size = 77;
	EXPECT_EQ(file.InitCheck(), B_NO_INIT);
	EXPECT_EQ(file.Read(&byte, 1), B_NO_INIT);
	EXPECT_EQ(file.Write(&byte, 1), B_NO_INIT);
	EXPECT_EQ(file.ReadAt(0, &byte, 1), B_NO_INIT);
	EXPECT_EQ(file.WriteAt(0, &byte, 1), B_NO_INIT);
	EXPECT_EQ(file.Seek(0, SEEK_SET), B_NO_INIT);
	EXPECT_EQ(file.Position(), B_NO_INIT);
	EXPECT_EQ(file.SetSize(1), B_NO_INIT);
	EXPECT_EQ(file.GetSize(&size), B_NO_INIT);
	EXPECT_EQ(byte, 'x');
	EXPECT_EQ(size, 77);
}


TEST(file, opens_by_path_and_by_ref)
{
	const temp_folder folder;
	store(folder.path("file"), "12345");
	entry_ref ref;
	ASSERT_EQ(get_ref_for_path(folder.path("file").c_str(), &ref), B_OK);
	EXPECT_EQ(BFile(folder.path("file").c_str(), B_READ_ONLY).InitCheck(), B_OK);
	EXPECT_EQ(BFile(&ref, B_READ_ONLY).InitCheck(), B_OK);
	BFile file;
	EXPECT_EQ(file.SetTo(&ref, B_READ_ONLY), B_OK);
	EXPECT_EQ(file.InitCheck(), B_OK);
}


TEST(file, a_missing_one_does_not_open)
{
	const temp_folder folder;
	entry_ref ref;
	ASSERT_EQ(get_ref_for_path(folder.path("absent").c_str(), &ref), B_OK);
	EXPECT_EQ(BFile(&ref, B_READ_ONLY).InitCheck(), B_ENTRY_NOT_FOUND);
	EXPECT_EQ(BFile(&ref, B_READ_WRITE).InitCheck(), B_ENTRY_NOT_FOUND);
	EXPECT_FALSE(std::filesystem::exists(folder.path("absent")));
}


TEST(file, null_pointers_do_not_open)
{
	EXPECT_EQ(BFile(static_cast<const char*>(nullptr), B_READ_ONLY).InitCheck(), B_BAD_VALUE);
	EXPECT_EQ(BFile(static_cast<const entry_ref*>(nullptr), B_READ_ONLY).InitCheck(), B_BAD_VALUE);
	EXPECT_EQ(BFile(static_cast<const BEntry*>(nullptr), B_READ_ONLY).InitCheck(), B_BAD_VALUE);
}


TEST(file, a_directory_does_not_open_in_any_mode)
{
	const temp_folder folder;
	entry_ref ref;
	ASSERT_EQ(get_ref_for_path(folder.path().c_str(), &ref), B_OK);
	BFile file(&ref, B_READ_ONLY);
	EXPECT_EQ(file.InitCheck(), B_IS_A_DIRECTORY);
	char byte = 0;
	EXPECT_EQ(file.Read(&byte, 1), B_NO_INIT);
	EXPECT_EQ(file.SetTo(&ref, B_READ_WRITE), B_IS_A_DIRECTORY);
	EXPECT_EQ(file.SetTo(&ref, B_READ_WRITE | B_CREATE_FILE), B_IS_A_DIRECTORY);
}


TEST(file, an_unreadable_one_does_not_open)
{
	const temp_folder folder;
	store(folder.path("file"), "12345");
	ASSERT_EQ(chmod(folder.path().c_str(), 0755), 0);
	ASSERT_EQ(chmod(folder.path("file").c_str(), 0), 0);
	entry_ref ref;
	ASSERT_EQ(get_ref_for_path(folder.path("file").c_str(), &ref), B_OK);
	const plain_user user;
	if (!user.plain()) {
		GTEST_SKIP() << "the rights of the administrator cannot be given up";
	}
	EXPECT_EQ(BFile(&ref, B_READ_ONLY).InitCheck(), B_PERMISSION_DENIED);
}


TEST(file, a_pipe_nobody_writes_to_opens_without_waiting_and_is_empty)
{
	const temp_folder folder;
	ASSERT_EQ(mkfifo(folder.path("pipe").c_str(), 0600), 0);
	BFile file(folder.path("pipe").c_str(), B_READ_ONLY);
	char byte = 0;
	EXPECT_EQ(file.InitCheck(), B_OK);
	EXPECT_EQ(file.Read(&byte, 1), 0);
	EXPECT_LT(file.Seek(0, SEEK_SET), 0);
}


TEST(file, reads_on_from_where_it_stopped_until_nothing_is_left)
{
	const temp_folder folder;
	store(folder.path("file"), "12345");
	BFile file(folder.path("file").c_str(), B_READ_ONLY);
	char bytes[10] = {};
	EXPECT_EQ(file.Read(bytes, 2), 2);
	EXPECT_STREQ(bytes, "12");
	EXPECT_EQ(file.Position(), 2);
	EXPECT_EQ(file.Read(bytes, 10), 3);
	EXPECT_STREQ(bytes, "345");
	EXPECT_EQ(file.Read(bytes, 10), 0);
}


TEST(file, an_empty_one_opens_and_has_nothing_to_read)
{
	const temp_folder folder;
	store(folder.path("file"), "");
	BFile file(folder.path("file").c_str(), B_READ_ONLY);
	char byte = 'x';
	EXPECT_EQ(file.InitCheck(), B_OK);
	EXPECT_EQ(file.Read(&byte, 1), 0);
	EXPECT_EQ(byte, 'x');
}


TEST(file, reading_at_a_place_leaves_the_position)
{
	const temp_folder folder;
	store(folder.path("file"), "12345");
	BFile file(folder.path("file").c_str(), B_READ_ONLY);
	char bytes[10] = {};
	EXPECT_EQ(file.Seek(1, SEEK_SET), 1);
	EXPECT_EQ(file.ReadAt(3, bytes, 10), 2);
	EXPECT_STREQ(bytes, "45");
	EXPECT_EQ(file.Position(), 1);
	EXPECT_EQ(file.ReadAt(5, bytes, 10), 0);
	EXPECT_EQ(file.ReadAt(-1, bytes, 10), B_BAD_VALUE);
}


TEST(file, seeks_from_the_start_the_position_and_the_end)
{
	const temp_folder folder;
	store(folder.path("file"), "12345");
	BFile file(folder.path("file").c_str(), B_READ_ONLY);
	EXPECT_EQ(file.Seek(2, SEEK_SET), 2);
	EXPECT_EQ(file.Seek(2, SEEK_CUR), 4);
	EXPECT_EQ(file.Seek(-1, SEEK_CUR), 3);
	EXPECT_EQ(file.Seek(-5, SEEK_END), 0);
	EXPECT_EQ(file.Seek(-6, SEEK_END), B_BAD_VALUE);
	EXPECT_EQ(file.Seek(-1, SEEK_SET), B_BAD_VALUE);
	EXPECT_EQ(file.Seek(0, 3), B_BAD_VALUE);
	EXPECT_EQ(file.Position(), 0);
}


TEST(file, a_write_beyond_the_end_fills_the_gap_with_zeros)
{
	const temp_folder folder;
	store(folder.path("file"), "12");
	BFile file(folder.path("file").c_str(), B_READ_WRITE);
	EXPECT_EQ(file.Seek(2, SEEK_END), 4);
	char byte = 'x';
	EXPECT_EQ(file.Read(&byte, 1), 0);
	EXPECT_EQ(file.Write("5", 1), 1);
	EXPECT_EQ(stored(folder.path("file")),
		std::string("12\0\0"
					"5",
			5));
}


TEST(file, a_seek_beyond_two_gigabytes_is_possible)
{
	const temp_folder folder;
	store(folder.path("file"), "");
	BFile file(folder.path("file").c_str(), B_READ_ONLY);
	EXPECT_EQ(file.Seek(0x123456789A, SEEK_SET), 0x123456789A);
	EXPECT_EQ(file.Position(), 0x123456789A);
}


TEST(file, writes_over_what_is_there_and_keeps_the_rest)
{
	const temp_folder folder;
	store(folder.path("file"), "12345");
	BFile file(folder.path("file").c_str(), B_READ_WRITE);
	EXPECT_EQ(file.Write("ab", 2), 2);
	EXPECT_EQ(file.WriteAt(4, "ef", 2), 2);
	EXPECT_EQ(file.Position(), 2);
	file.Unset();
	EXPECT_EQ(stored(folder.path("file")), "ab34ef");
}


TEST(file, opened_to_read_refuses_to_write)
{
	const temp_folder folder;
	store(folder.path("file"), "12345");
	BFile file(folder.path("file").c_str(), B_READ_ONLY);
	EXPECT_LT(file.Write("ab", 2), 0);
	EXPECT_LT(file.WriteAt(0, "ab", 2), 0);
	EXPECT_LT(file.SetSize(0), 0);
	EXPECT_EQ(stored(folder.path("file")), "12345");
}


TEST(file, a_null_buffer_is_refused)
{
	const temp_folder folder;
	store(folder.path("file"), "12345");
	BFile file(folder.path("file").c_str(), B_READ_WRITE);
	EXPECT_EQ(file.Read(nullptr, 1), B_BAD_VALUE);
	EXPECT_EQ(file.Write(nullptr, 1), B_BAD_VALUE);
	EXPECT_EQ(file.ReadAt(0, nullptr, 1), B_BAD_VALUE);
	EXPECT_EQ(file.WriteAt(0, nullptr, 1), B_BAD_VALUE);
}


TEST(file, modes_create_refuse_empty_and_append)
{
	const temp_folder folder;
	const std::string path = folder.path("file");
	BFile file(path.c_str(), B_WRITE_ONLY | B_CREATE_FILE);
	EXPECT_EQ(file.Write("12345", 5), 5);
	EXPECT_EQ(
		file.SetTo(path.c_str(), B_WRITE_ONLY | B_CREATE_FILE | B_FAIL_IF_EXISTS), B_FILE_EXISTS);
	EXPECT_EQ(stored(path), "12345");
	EXPECT_EQ(file.SetTo(path.c_str(), B_WRITE_ONLY | B_OPEN_AT_END), B_OK);
	EXPECT_EQ(file.Write("6", 1), 1);
	EXPECT_EQ(stored(path), "123456");
	EXPECT_EQ(file.SetTo(path.c_str(), B_WRITE_ONLY | B_ERASE_FILE), B_OK);
	EXPECT_EQ(stored(path), "");
}


TEST(file, is_cut_and_lengthened)
{
	const temp_folder folder;
	store(folder.path("file"), "12345");
	BFile file(folder.path("file").c_str(), B_READ_WRITE);
	off_t size = 0;
	EXPECT_EQ(file.GetSize(&size), B_OK);
	EXPECT_EQ(size, 5);
	EXPECT_EQ(file.SetSize(2), B_OK);
	EXPECT_EQ(stored(folder.path("file")), "12");
	EXPECT_EQ(file.SetSize(3), B_OK);
	EXPECT_EQ(stored(folder.path("file")), std::string("12\0", 3));
	EXPECT_EQ(file.SetSize(-1), B_BAD_VALUE);
	EXPECT_EQ(file.GetSize(nullptr), B_BAD_VALUE);
}


TEST(file, what_a_pipe_holds_is_not_lost_when_more_was_wanted)
{
	int ends[2] = {-1, -1};
	ASSERT_EQ(pipe(ends), 0);
	ASSERT_EQ(write(ends[1], "12345", 5), 5);
	BFile file(("/dev/fd/" + std::to_string(ends[0])).c_str(), B_READ_ONLY);
	char bytes[10] = {};
	EXPECT_EQ(file.Read(bytes, 10), 5);
	EXPECT_STREQ(bytes, "12345");
	EXPECT_EQ(file.Read(bytes, 10), B_WOULD_BLOCK);
	close(ends[0]);
	close(ends[1]);
}


TEST(file, a_full_disk_is_an_error_of_writing)
{
	BFile file("/dev/full", B_READ_WRITE);
	ASSERT_EQ(file.InitCheck(), B_OK);
	EXPECT_EQ(file.Write("12345", 5), B_IO_ERROR);
}


TEST(file, an_error_halfway_counts_what_was_written_and_shows_at_the_next_write)
{
	const temp_folder folder;
	BFile file(folder.path("file").c_str(), B_READ_WRITE | B_CREATE_FILE);
	const size_limit limit(3);
	EXPECT_EQ(file.Write("12345", 5), 3);
	EXPECT_EQ(file.Write("45", 2), B_IO_ERROR);
	EXPECT_EQ(stored(folder.path("file")), "123");
}


TEST(file, is_closed_by_unset_by_the_destructor_and_by_opening_another)
{
	const temp_folder folder;
	store(folder.path("file"), "12345");
	{
		BFile file(folder.path("file").c_str(), B_READ_ONLY);
		EXPECT_EQ(open_in(folder), 1);
		file.Unset();
		EXPECT_EQ(file.InitCheck(), B_NO_INIT);
		EXPECT_EQ(open_in(folder), 0);
		file.SetTo(folder.path("file").c_str(), B_READ_ONLY);
		file.SetTo(folder.path("file").c_str(), B_READ_ONLY);
		EXPECT_EQ(open_in(folder), 1);
		file.SetTo(folder.path("absent").c_str(), B_READ_ONLY);
		EXPECT_EQ(open_in(folder), 0);
		file.SetTo(folder.path().c_str(), B_READ_ONLY);
		EXPECT_EQ(open_in(folder), 0);
		file.SetTo(folder.path("file").c_str(), B_READ_ONLY);
	}
	EXPECT_EQ(open_in(folder), 0);
}


// As a file server holds what its client works on.
TEST(file, held_by_somebody_is_waited_for)
{
	const temp_folder folder;
	store(folder.path("held"), "a text");
	const int holder = open(folder.path("held").c_str(), O_RDWR | O_CLOEXEC);
	const auto before = signal(SIGIO, SIG_IGN);
	if (fcntl(holder, F_SETLEASE, F_WRLCK) != 0) {
		close(holder);
		GTEST_SKIP() << "files cannot be held in " << folder.path();
	}
	// Told to give the file up, the holder does.
	std::thread giving_up([&] {
		while (fcntl(holder, F_GETLEASE) == F_WRLCK) {
			std::this_thread::yield();
		}
		EXPECT_EQ(fcntl(holder, F_SETLEASE, F_UNLCK), 0);
	});
	BFile file;
	EXPECT_EQ(file.SetTo(folder.path("held").c_str(), B_READ_ONLY), B_OK);
	giving_up.join();
	char bytes[10] = {};
	EXPECT_EQ(file.Read(bytes, 9), 6);
	EXPECT_STREQ(bytes, "a text");
	close(holder);
	signal(SIGIO, before);
}
