// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Files whose folder and name together are longer than a path can be.
#include "platform/storage/stored.h"
#include "support/temp_files.h"
#include <Directory.h>
#include <Entry.h>
#include <File.h>
#include <StorageDefs.h>

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

constexpr size_t longest_path = 4095;

constexpr const char* name = "quite_a_long_name";


// Makes folders in each other until the path of the last is so long.
std::string
make_deep_folder(std::string path, size_t length)
{
	while (path.size() < length) {
		const size_t missing = length - path.size() - 1;
		path +=
			'/' + std::string(missing > 250 ? std::min<size_t>(missing - 2, 200) : missing, 'd');
		make_folder(path);
	}
	return path;
}


// As somebody reads it who was given a ref.
std::string
contents_in(const std::string& folder)
{
	entry_ref ref;
	EXPECT_EQ(get_ref_for_path((folder + "/x").c_str(), &ref), B_OK);
	EXPECT_EQ(ref.set_name(name), B_OK);
	BFile file(&ref, B_READ_ONLY);
	EXPECT_EQ(file.InitCheck(), B_OK);
	char bytes[20] = {};
	file.Read(bytes, sizeof(bytes) - 1);
	return bytes;
}

}


TEST(replacing_deep, is_safe_as_anywhere_and_the_file_can_be_read)
{
	const temp_folder folder;
	const std::string deep = make_deep_folder(folder.path(), longest_path - 10);
	BDirectory directory(deep.c_str());
	{
		BFile file;
		ASSERT_EQ(directory.CreateFile(name, &file), B_OK);
		EXPECT_EQ(file.Write("a long text", 11), 11);
	}
	BFile file;
	ASSERT_EQ(directory.CreateFile(name, &file), B_OK);
	EXPECT_EQ(file.Write("new", 3), 3);
	EXPECT_EQ(contents_in(deep), "a long text");
	file.Unset();
	EXPECT_EQ(contents_in(deep), "new");
	EXPECT_EQ(names_in(deep), std::vector<std::string>{name});
}
