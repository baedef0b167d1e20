// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The new file on its way into the place of the old, with and without a name.
#include "storage/replacement.h"
#include "platform/storage/stored.h"
#include "support/temp_files.h"

#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>
#include <vector>

using kits::replacement;
using names = std::vector<std::string>;

namespace {

constexpr const char* way_names[] = {"nameless", "hidden"};


// A replacement of the file "old", which was begun and got the text "new" where that can be.
struct begun {
	explicit begun(replacement::way way)
	{
		store(folder.path("old"), "a long text");
		EXPECT_EQ(chmod(folder.path("old").c_str(), 0640), 0);
		status = begin(folder.path("old"), way);
		if (made != nullptr) {
			EXPECT_EQ(write(made->contents(), "new", 3), 3);
		}
	}

	status_t begin(const std::string& path, replacement::way way)
	{
		kits::descriptor old(open(path.c_str(), O_RDWR | O_CLOEXEC));
		return replacement::begin(AT_FDCWD, path.c_str(), std::move(old), &made, way);
	}

	std::string contents() const { return stored(folder.path("old")); }
	names neighbours() const { return names_in(folder.path()); }

	temp_folder folder;
	std::unique_ptr<replacement> made;
	status_t status;
};


bool
has_nameless_files(const std::string& folder)
{
	const int file = open(folder.c_str(), O_RDWR | O_TMPFILE | O_CLOEXEC, 0600);
	return file >= 0 && close(file) == 0;
}


class replacement_ways : public testing::TestWithParam<replacement::way> {};

}

INSTANTIATE_TEST_SUITE_P(both, replacement_ways,
	testing::Values(replacement::NAMELESS, replacement::HIDDEN),
	[](const auto& test) { return way_names[test.param]; });


TEST_P(replacement_ways, takes_the_place_when_it_is_closed)
{
	begun file(GetParam());
	ASSERT_NE(file.made, nullptr);
	EXPECT_EQ(file.contents(), "a long text");
	file.made->close();
	EXPECT_EQ(file.contents(), "new");
	EXPECT_EQ(file.neighbours(), names{"old"});
}


TEST_P(replacement_ways, has_the_mode_of_the_old_file)
{
	begun file(GetParam());
	ASSERT_NE(file.made, nullptr);
	file.made->close();
	struct stat state = {};
	ASSERT_EQ(stat(file.folder.path("old").c_str(), &state), 0);
	EXPECT_EQ(state.st_mode, S_IFREG | 0640u);
}


TEST_P(replacement_ways, is_dropped_when_it_is_spoilt)
{
	begun file(GetParam());
	ASSERT_NE(file.made, nullptr);
	file.made->spoil();
	file.made->close();
	EXPECT_EQ(file.contents(), "a long text");
	EXPECT_EQ(file.neighbours(), names{"old"});
}


TEST_P(replacement_ways, is_dropped_when_nobody_closes_it)
{
	begun file(GetParam());
	ASSERT_NE(file.made, nullptr);
	file.made.reset();
	EXPECT_EQ(file.contents(), "a long text");
	EXPECT_EQ(file.neighbours(), names{"old"});
}


TEST_P(replacement_ways, stays_beside_what_it_can_neither_replace_nor_be_written_into)
{
	begun file(GetParam());
	ASSERT_NE(file.made, nullptr);
	std::filesystem::remove(file.folder.path("old"));
	make_folder(file.folder.path("old"));
	file.made->close();
	const names neighbours = file.neighbours();
	ASSERT_EQ(neighbours.size(), 2u);
	EXPECT_EQ(neighbours[0].substr(0, 5), ".new-");
	EXPECT_EQ(neighbours[0].size(), 21u);
	EXPECT_EQ(stored(file.folder.path(neighbours[0])), "new");
	EXPECT_TRUE(std::filesystem::is_directory(file.folder.path("old")));
}


TEST_P(replacement_ways, there_is_none_of_a_file_whose_name_another_has)
{
	const temp_folder folder;
	store(folder.path("old"), "a long text");
	kits::descriptor old(open(folder.path("old").c_str(), O_RDWR | O_CLOEXEC));
	std::filesystem::rename(folder.path("old"), folder.path("moved"));
	store(folder.path("old"), "another file");
	std::unique_ptr<replacement> made;
	EXPECT_EQ(
		replacement::begin(AT_FDCWD, folder.path("old").c_str(), std::move(old), &made, GetParam()),
		B_OK);
	EXPECT_EQ(made, nullptr);
	EXPECT_EQ(names_in(folder.path()), (names{"moved", "old"}));
}


TEST_P(replacement_ways, of_a_file_whose_place_is_unknown_is_written_into_it)
{
	const temp_folder folder;
	store(folder.path("old"), "a long text");
	kits::descriptor old(open(folder.path("old").c_str(), O_RDWR | O_CLOEXEC));
	std::unique_ptr<replacement> made;
	EXPECT_EQ(replacement::begin(AT_FDCWD, nullptr, std::move(old), &made, GetParam()), B_OK);
	ASSERT_NE(made, nullptr);
	EXPECT_EQ(write(made->contents(), "new", 3), 3);
	EXPECT_EQ(stored(folder.path("old")), "a long text");
	made->close();
	EXPECT_EQ(stored(folder.path("old")), "new");
	EXPECT_EQ(names_in(folder.path()), names{"old"});
}


TEST(replacement, without_a_name_is_not_to_be_seen)
{
	begun file(replacement::NAMELESS);
	ASSERT_NE(file.made, nullptr);
	if (!has_nameless_files(file.folder.path())) {
		GTEST_SKIP() << "every file has a name in " << file.folder.path();
	}
	EXPECT_EQ(file.neighbours(), names{"old"});
}


TEST(replacement, with_a_name_is_hidden)
{
	begun file(replacement::HIDDEN);
	ASSERT_NE(file.made, nullptr);
	const names neighbours = file.neighbours();
	ASSERT_EQ(neighbours.size(), 2u);
	EXPECT_EQ(neighbours[0].substr(0, 5), ".new-");
	EXPECT_EQ(neighbours[1], "old");
	EXPECT_EQ(stored(file.folder.path(neighbours[0])), "new");
}
