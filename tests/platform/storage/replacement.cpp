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
		const int old = open(folder.path("old").c_str(), O_RDWR | O_CLOEXEC);
		status = replacement::begin(old, &made, way);
		close(old);
		if (made != nullptr) {
			EXPECT_EQ(write(made->descriptor(), "new", 3), 3);
		}
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


TEST_P(replacement_ways, leaves_nothing_when_it_cannot_take_the_name)
{
	begun file(GetParam());
	ASSERT_NE(file.made, nullptr);
	std::filesystem::remove(file.folder.path("old"));
	make_folder(file.folder.path("old"));
	file.made->close();
	EXPECT_EQ(file.neighbours(), names{"old"});
}


TEST_P(replacement_ways, there_is_none_of_a_file_that_has_no_name_any_more)
{
	const temp_folder folder;
	store(folder.path("old"), "a long text");
	const int old = open(folder.path("old").c_str(), O_RDWR | O_CLOEXEC);
	std::filesystem::remove(folder.path("old"));
	std::unique_ptr<replacement> made;
	EXPECT_EQ(replacement::begin(old, &made, GetParam()), B_OK);
	EXPECT_EQ(made, nullptr);
	store(folder.path("old"), "another file");
	// What the system calls the file that has gone.
	store(folder.path("old (deleted)"), "one more");
	EXPECT_EQ(replacement::begin(old, &made, GetParam()), B_OK);
	EXPECT_EQ(made, nullptr);
	close(old);
	EXPECT_EQ(names_in(folder.path()), (names{"old", "old (deleted)"}));
}


TEST_P(replacement_ways, there_is_none_of_what_lies_in_no_folder)
{
	int ends[2] = {-1, -1};
	ASSERT_EQ(pipe2(ends, O_CLOEXEC), 0);
	std::unique_ptr<replacement> made;
	EXPECT_EQ(replacement::begin(ends[1], &made, GetParam()), B_OK);
	EXPECT_EQ(made, nullptr);
	close(ends[0]);
	close(ends[1]);
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


TEST(replacement, is_dropped_when_closing_tells_of_lost_bytes)
{
	begun file(replacement::HIDDEN);
	ASSERT_NE(file.made, nullptr);
	// Closing it once more fails, as it does when the bytes could not be sent to another machine.
	close(file.made->descriptor());
	file.made->close();
	EXPECT_EQ(file.contents(), "a long text");
	EXPECT_EQ(file.neighbours(), names{"old"});
}
