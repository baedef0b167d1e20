// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "platform/storage/stored.h"
#include "support/attributes.h"
#include "support/temp_files.h"
#include <AppFileInfo.h>
#include <File.h>
#include <NodeInfo.h>
#include <StorageDefs.h>

#include <cstring>
#include <gtest/gtest.h>
#include <string>
#include <sys/xattr.h>

namespace {

std::string
type_attribute_of(const std::string& path)
{
	return attribute_of(path, "user.mime_type");
}

}

#define SKIP_WITHOUT_ATTRIBUTES(folder)                                                            \
	if (!keeps_attributes(folder)) {                                                               \
		GTEST_SKIP() << "no attributes in " << (folder).path();                                    \
	}


TEST(file_type, is_kept_where_the_desktops_look_for_it)
{
	const temp_folder folder;
	SKIP_WITHOUT_ATTRIBUTES(folder)
	store(folder.path("file"), "12345");
	BFile file(folder.path("file").c_str(), B_READ_WRITE);
	EXPECT_EQ(BAppFileInfo(&file).SetType("font/ttf"), B_OK);
	EXPECT_EQ(type_attribute_of(folder.path("file")), "font/ttf");
}


TEST(file_type, comes_back_and_is_replaced)
{
	const temp_folder folder;
	SKIP_WITHOUT_ATTRIBUTES(folder)
	store(folder.path("file"), "12345");
	BFile file(folder.path("file").c_str(), B_READ_WRITE);
	BAppFileInfo info(&file);
	EXPECT_EQ(info.SetType("application/x-something-long"), B_OK);
	EXPECT_EQ(info.SetType("font/ttf"), B_OK);
	char type[B_MIME_TYPE_LENGTH] = {};
	EXPECT_EQ(info.GetType(type), B_OK);
	EXPECT_STREQ(type, "font/ttf");
	EXPECT_EQ(BNodeInfo(&file).GetType(type), B_OK);
	EXPECT_STREQ(type, "font/ttf");
}


TEST(file_type, is_taken_away_by_none)
{
	const temp_folder folder;
	SKIP_WITHOUT_ATTRIBUTES(folder)
	store(folder.path("file"), "12345");
	BFile file(folder.path("file").c_str(), B_READ_WRITE);
	BNodeInfo info(&file);
	EXPECT_EQ(info.SetType("font/ttf"), B_OK);
	EXPECT_EQ(info.SetType(nullptr), B_OK);
	EXPECT_EQ(type_attribute_of(folder.path("file")), "none");
	char type[B_MIME_TYPE_LENGTH] = "untouched";
	EXPECT_EQ(info.GetType(type), B_ENTRY_NOT_FOUND);
	EXPECT_STREQ(type, "untouched");
}


TEST(file_type, fills_the_buffer_and_never_more)
{
	const temp_folder folder;
	SKIP_WITHOUT_ATTRIBUTES(folder)
	store(folder.path("file"), "12345");
	BFile file(folder.path("file").c_str(), B_READ_WRITE);
	BNodeInfo info(&file);
	const std::string longest(239, 't');
	EXPECT_EQ(info.SetType((longest + "t").c_str()), B_BAD_VALUE);
	EXPECT_EQ(info.SetType(longest.c_str()), B_OK);
	char type[B_MIME_TYPE_LENGTH] = {};
	EXPECT_EQ(info.GetType(type), B_OK);
	EXPECT_EQ(type, longest);
	const std::string foreign(500, 'f');
	setxattr(folder.path("file").c_str(), "user.mime_type", foreign.data(), foreign.size(), 0);
	EXPECT_EQ(info.GetType(type), B_BAD_VALUE);
	EXPECT_EQ(type, longest);
}


TEST(file_type, needs_an_open_file)
{
	BFile file;
	BAppFileInfo info(&file);
	char type[B_MIME_TYPE_LENGTH] = "untouched";
	EXPECT_EQ(info.InitCheck(), B_NO_INIT);
	EXPECT_EQ(info.SetType("font/ttf"), B_NO_INIT);
	EXPECT_EQ(info.SetType(nullptr), B_NO_INIT);
	EXPECT_EQ(info.GetType(type), B_NO_INIT);
	EXPECT_STREQ(type, "untouched");
	EXPECT_EQ(BAppFileInfo().SetType("font/ttf"), B_NO_INIT);
	EXPECT_EQ(BAppFileInfo(nullptr).SetType("font/ttf"), B_NO_INIT);
}


TEST(file_type, a_null_buffer_is_refused)
{
	const temp_folder folder;
	store(folder.path("file"), "12345");
	BFile file(folder.path("file").c_str(), B_READ_WRITE);
	EXPECT_EQ(BNodeInfo(&file).GetType(nullptr), B_BAD_VALUE);
}


TEST(file_type, setting_it_never_touches_contents_or_position)
{
	const temp_folder folder;
	store(folder.path("file"), "12345");
	BFile file(folder.path("file").c_str(), B_READ_WRITE);
	EXPECT_EQ(file.Seek(3, SEEK_SET), 3);
	// Whether it succeeds is the file system's affair.
	BAppFileInfo(&file).SetType("font/ttf");
	EXPECT_EQ(file.Position(), 3);
	EXPECT_EQ(stored(folder.path("file")), "12345");
}


TEST(file_type, where_no_attributes_are_kept_it_only_fails)
{
	BFile file("/proc/self/status", B_READ_ONLY);
	if (file.InitCheck() != B_OK) {
		GTEST_SKIP() << "no file system without attributes at hand";
	}
	char type[B_MIME_TYPE_LENGTH] = "untouched";
	EXPECT_LT(BAppFileInfo(&file).SetType("font/ttf"), 0);
	EXPECT_LT(BAppFileInfo(&file).GetType(type), 0);
	EXPECT_STREQ(type, "untouched");
	char byte = 0;
	EXPECT_EQ(file.Read(&byte, 1), 1);
}
