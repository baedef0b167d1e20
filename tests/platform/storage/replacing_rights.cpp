// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Creating a file over an old one: what the new one takes over, and who may.
#include "platform/storage/stored.h"
#include "support/attributes.h"
#include "support/size_limit.h"
#include "support/temp_files.h"
#include <AppFileInfo.h>
#include <Directory.h>
#include <File.h>
#include <StorageDefs.h>

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <vector>

using names = std::vector<std::string>;

namespace {

struct stat
state_of(const std::string& path)
{
	struct stat state = {};
	EXPECT_EQ(stat(path.c_str(), &state), 0);
	return state;
}


mode_t
mode_of(const std::string& path)
{
	return state_of(path).st_mode & 07777;
}


// A folder for everybody with a file in it, "old".
struct shared_folder {
	explicit shared_folder(mode_t file_mode, mode_t folder_mode = 0777)
	{
		store(folder.path("old"), "a long text");
		EXPECT_EQ(chmod(folder.path("old").c_str(), file_mode), 0);
		EXPECT_EQ(chmod(folder.path().c_str(), folder_mode), 0);
	}

	~shared_folder() { chmod(folder.path().c_str(), 0700); } // else it could not be removed

	std::string old() const { return folder.path("old"); }

	// Returns the contents of "old" while the new file is not closed yet.
	std::string replace() const
	{
		BFile file;
		EXPECT_EQ(BDirectory(folder.path().c_str()).CreateFile("old", &file), B_OK);
		EXPECT_EQ(file.Write("new", 3), 3);
		return stored(old());
	}

	temp_folder folder;
};


// An access list of the file's owner, its group and everybody, and of one user more with all rights.
std::string
list_with_user(uint16_t group)
{
	struct entry {
		uint16_t tag, permissions;
		uint32_t id;
	};
	constexpr uint32_t version = 2;
	constexpr uint32_t none = 0xffffffff;
	const entry entries[] = {
		{1, 6, none}, {2, 7, 1234}, {4, group, none}, {16, 7, none}, {32, 0, none}};
	std::string list(reinterpret_cast<const char*>(&version), sizeof(version));
	return list.append(reinterpret_cast<const char*>(entries), sizeof(entries));
}


bool
set_list(const std::string& path, const char* name, const std::string& list)
{
	return setxattr(path.c_str(), name, list.data(), list.size(), 0) == 0;
}

}

#define SKIP_UNLESS_PLAIN(user)                                                                    \
	if (!(user).plain()) {                                                                         \
		GTEST_SKIP() << "the rights of the administrator cannot be given up";                      \
	}

#define SKIP_UNLESS_ADMINISTRATOR()                                                                \
	if (geteuid() != 0) {                                                                          \
		GTEST_SKIP() << "only the administrator may give files away";                              \
	}


TEST(replacing_rights, keeps_the_mode)
{
	const shared_folder letter(0640);
	letter.replace();
	EXPECT_EQ(stored(letter.old()), "new");
	EXPECT_EQ(mode_of(letter.old()), 0640u);
	const shared_folder program(0755);
	program.replace();
	EXPECT_EQ(mode_of(program.old()), 0755u);
}


TEST(replacing_rights, keeps_the_mode_also_against_the_mask_of_the_user)
{
	const shared_folder at(0666);
	const mode_t before = umask(077);
	at.replace();
	umask(before);
	EXPECT_EQ(mode_of(at.old()), 0666u);
}


TEST(replacing_rights, gives_the_open_file_the_mode_and_size_of_its_own)
{
	const shared_folder at(0640);
	BFile file;
	ASSERT_EQ(BDirectory(at.folder.path().c_str()).CreateFile("old", &file), B_OK);
	EXPECT_EQ(file.Write("new", 3), 3);
	struct stat state = {};
	EXPECT_EQ(file.GetStat(&state), B_OK);
	EXPECT_EQ(state.st_mode, S_IFREG | 0640u);
	EXPECT_EQ(state.st_size, 3);
	EXPECT_NE(state.st_ino, state_of(at.old()).st_ino);
}


TEST(replacing_rights, keeps_the_attributes)
{
	const shared_folder at(0644);
	if (!keeps_attributes(at.folder)) {
		GTEST_SKIP() << "no attributes in " << at.folder.path();
	}
	const std::string binary("\x00\xff\x00", 3);
	ASSERT_TRUE(set_list(at.old(), "user.colour", "blue"));
	ASSERT_TRUE(set_list(at.old(), "user.empty", ""));
	ASSERT_TRUE(set_list(at.old(), "user.binary", binary));
	at.replace();
	EXPECT_EQ(stored(at.old()), "new");
	EXPECT_EQ(attribute_of(at.old(), "user.colour"), "blue");
	EXPECT_EQ(attribute_of(at.old(), "user.empty"), "");
	EXPECT_EQ(attribute_of(at.old(), "user.binary"), binary);
}


TEST(replacing_rights, takes_the_type_that_the_open_file_is_given)
{
	const shared_folder at(0644);
	if (!keeps_attributes(at.folder)) {
		GTEST_SKIP() << "no attributes in " << at.folder.path();
	}
	ASSERT_TRUE(set_list(at.old(), "user.mime_type", "text/plain"));
	BFile file;
	ASSERT_EQ(BDirectory(at.folder.path().c_str()).CreateFile("old", &file), B_OK);
	EXPECT_EQ(BAppFileInfo(&file).SetType("font/ttf"), B_OK);
	EXPECT_EQ(attribute_of(at.old(), "user.mime_type"), "text/plain");
	file.Unset();
	EXPECT_EQ(attribute_of(at.old(), "user.mime_type"), "font/ttf");
}


TEST(replacing_rights, keeps_the_access_list)
{
	const shared_folder at(0660);
	const std::string list = list_with_user(4);
	if (!set_list(at.old(), "system.posix_acl_access", list)) {
		GTEST_SKIP() << "no access lists in " << at.folder.path();
	}
	at.replace();
	EXPECT_EQ(stored(at.old()), "new");
	EXPECT_EQ(attribute_of(at.old(), "system.posix_acl_access"), list);
}


TEST(replacing_rights, takes_no_access_list_from_the_folder)
{
	const shared_folder at(0660);
	if (!set_list(at.folder.path(), "system.posix_acl_default", list_with_user(4))) {
		GTEST_SKIP() << "no access lists in " << at.folder.path();
	}
	at.replace();
	EXPECT_EQ(stored(at.old()), "new");
	EXPECT_EQ(attribute_of(at.old(), "system.posix_acl_access"), "none");
	EXPECT_EQ(mode_of(at.old()), 0660u);
}


TEST(replacing_rights, by_the_administrator_keeps_owner_and_group)
{
	SKIP_UNLESS_ADMINISTRATOR()
	const shared_folder at(0640);
	ASSERT_EQ(chown(at.old().c_str(), 1234, 5678), 0);
	ASSERT_EQ(chmod(at.old().c_str(), 06751), 0);
	EXPECT_EQ(at.replace(), "a long text");
	EXPECT_EQ(state_of(at.old()).st_uid, 1234u);
	EXPECT_EQ(state_of(at.old()).st_gid, 5678u);
	EXPECT_EQ(mode_of(at.old()) & 0777, 0751u);
}


TEST(replacing_rights, of_somebody_elses_file_are_kept_by_writing_into_it)
{
	SKIP_UNLESS_ADMINISTRATOR()
	const shared_folder at(0676);
	ASSERT_EQ(chown(at.old().c_str(), 1234, 5678), 0);
	const ino_t inode = state_of(at.old()).st_ino;
	{
		const plain_user user;
		SKIP_UNLESS_PLAIN(user)
		EXPECT_EQ(at.replace(), "a long text");
	}
	EXPECT_EQ(stored(at.old()), "new");
	EXPECT_EQ(state_of(at.old()).st_ino, inode);
	EXPECT_EQ(state_of(at.old()).st_uid, 1234u);
	EXPECT_EQ(state_of(at.old()).st_gid, 5678u);
	EXPECT_EQ(mode_of(at.old()), 0676u);
	EXPECT_EQ(names_in(at.folder.path()), names{"old"});
}


TEST(replacing_rights, of_a_group_that_the_owner_is_not_in_are_kept_by_writing_into_the_file)
{
	SKIP_UNLESS_ADMINISTRATOR()
	const shared_folder at(0660);
	ASSERT_EQ(chown(at.old().c_str(), 65534, 5678), 0);
	{
		const plain_user user;
		SKIP_UNLESS_PLAIN(user)
		EXPECT_EQ(at.replace(), "a long text");
	}
	EXPECT_EQ(stored(at.old()), "new");
	EXPECT_EQ(state_of(at.old()).st_gid, 5678u);
	EXPECT_EQ(mode_of(at.old()), 0660u);
}


TEST(replacing_rights, of_somebody_elses_file_with_a_list_are_kept)
{
	SKIP_UNLESS_ADMINISTRATOR()
	const shared_folder at(0666);
	const std::string list = list_with_user(4);
	ASSERT_EQ(chown(at.old().c_str(), 1234, 5678), 0);
	if (!set_list(at.old(), "system.posix_acl_access", list)) {
		GTEST_SKIP() << "no access lists in " << at.folder.path();
	}
	ASSERT_EQ(chmod(at.old().c_str(), 0676), 0);
	const std::string before = attribute_of(at.old(), "system.posix_acl_access");
	{
		const plain_user user;
		SKIP_UNLESS_PLAIN(user)
		EXPECT_EQ(at.replace(), "a long text");
	}
	EXPECT_EQ(stored(at.old()), "new");
	EXPECT_EQ(state_of(at.old()).st_uid, 1234u);
	EXPECT_EQ(attribute_of(at.old(), "system.posix_acl_access"), before);
}


TEST(replacing_rights, of_a_file_written_into_are_there_to_be_given_a_type)
{
	const shared_folder at(0666, 0555);
	if (setxattr(at.old().c_str(), "user.mime_type", "text/plain", 10, 0) != 0) {
		GTEST_SKIP() << "no attributes in " << at.folder.path();
	}
	{
		const plain_user user;
		SKIP_UNLESS_PLAIN(user)
		BFile file;
		ASSERT_EQ(BDirectory(at.folder.path().c_str()).CreateFile("old", &file), B_OK);
		EXPECT_EQ(BAppFileInfo(&file).SetType("font/ttf"), B_OK);
	}
	EXPECT_EQ(attribute_of(at.old(), "user.mime_type"), "font/ttf");
}


// A failed write to the file itself would leave neither the old contents nor the new.
TEST(replacing_rights, in_a_folder_that_takes_no_file_a_failed_write_leaves_the_old_contents)
{
	const shared_folder at(0666, 0555);
	{
		const plain_user user;
		SKIP_UNLESS_PLAIN(user)
		const size_limit full(8);
		BFile file;
		ASSERT_EQ(BDirectory(at.folder.path().c_str()).CreateFile("old", &file), B_OK);
		EXPECT_EQ(file.Write("1234567890", 10), 8);
	}
	EXPECT_EQ(stored(at.old()), "a long text");
}


TEST(replacing_rights, in_a_folder_that_takes_no_file_writes_to_the_old_one)
{
	const shared_folder at(0666, 0555);
	const ino_t inode = state_of(at.old()).st_ino;
	{
		const plain_user user;
		SKIP_UNLESS_PLAIN(user)
		EXPECT_EQ(at.replace(), "a long text");
	}
	EXPECT_EQ(stored(at.old()), "new");
	EXPECT_EQ(state_of(at.old()).st_ino, inode);
	EXPECT_EQ(names_in(at.folder.path()), names{"old"});
}


TEST(replacing_rights, in_a_folder_where_only_owners_replace_writes_to_the_old_file)
{
	SKIP_UNLESS_ADMINISTRATOR()
	const shared_folder at(0666, 01777);
	{
		const plain_user user;
		SKIP_UNLESS_PLAIN(user)
		EXPECT_EQ(at.replace(), "a long text");
	}
	EXPECT_EQ(stored(at.old()), "new");
	EXPECT_EQ(names_in(at.folder.path()), names{"old"});
}


TEST(replacing_rights, where_no_folder_takes_a_file_it_is_written_all_the_same)
{
	const shared_folder at(0666, 0555);
	{
		const plain_user user;
		SKIP_UNLESS_PLAIN(user)
		const std::string before = std::filesystem::temp_directory_path().string();
		setenv("TMPDIR", "/no/such/folder", 1);
		EXPECT_EQ(at.replace(), "a long text");
		setenv("TMPDIR", before.c_str(), 1);
	}
	EXPECT_EQ(stored(at.old()), "new");
	EXPECT_EQ(names_in(at.folder.path()), names{"old"});
}


TEST(replacing_rights, is_refused_without_the_right_to_write_to_the_old_file)
{
	const shared_folder at(0444);
	{
		const plain_user user;
		SKIP_UNLESS_PLAIN(user)
		BFile file;
		EXPECT_EQ(
			BDirectory(at.folder.path().c_str()).CreateFile("old", &file), B_PERMISSION_DENIED);
		EXPECT_NE(file.InitCheck(), B_OK);
	}
	EXPECT_EQ(stored(at.old()), "a long text");
	EXPECT_EQ(names_in(at.folder.path()), names{"old"});
}
