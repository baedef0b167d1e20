// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Processes that are killed while they replace a file.
#include "platform/storage/stored.h"
#include "storage/replacement.h"
#include "support/temp_files.h"
#include <Directory.h>
#include <File.h>

#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <random>
#include <set>
#include <string>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace {

constexpr int rounds = 40;
constexpr size_t piece_bytes = 80;

const std::string texts[] = {std::string(8000, 'a'), std::string(12000, 'b')};


bool
is_whole(const std::string& contents)
{
	return contents == texts[0] || contents == texts[1];
}


// Hands out a text in many small pieces.
void
in_pieces(const std::string& text, const std::function<void(const char*, size_t)>& write)
{
	for (size_t place = 0; place < text.size(); place += piece_bytes) {
		write(text.data() + place, piece_bytes);
	}
}


void
save(BDirectory& directory, const std::string& text)
{
	BFile file;
	directory.CreateFile("old", &file);
	in_pieces(text, [&](const char* piece, size_t size) { file.Write(piece, size); });
}


void
save_with_hidden_name(const std::string& path, const std::string& text)
{
	kits::descriptor old(open(path.c_str(), O_RDWR | O_CLOEXEC));
	std::unique_ptr<kits::replacement> made;
	kits::replacement::begin(
		AT_FDCWD, path.c_str(), std::move(old), &made, kits::replacement::HIDDEN);
	in_pieces(text, [&](const char* piece, size_t size) {
		if (write(made->contents(), piece, size) != static_cast<ssize_t>(size)) {
			made->spoil();
		}
	});
	made->close();
}


// Saves one text after the other in a process of its own and kills that in the midst of it.
void
save_until_killed(int first, std::chrono::microseconds life,
	const std::function<void(const std::string& text)>& save)
{
	const pid_t process = fork();
	ASSERT_GE(process, 0);
	if (process == 0) {
		prctl(PR_SET_PDEATHSIG, SIGKILL);
		for (int i = first;; i++) {
			save(texts[i % 2]);
		}
	}
	std::this_thread::sleep_for(life);
	kill(process, SIGKILL);
	int status = 0;
	ASSERT_EQ(waitpid(process, &status, 0), process);
	// Whoever ended by himself was not killed in the midst of anything.
	ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
}


// Does so many times over. After each, the file must be whole; tells which contents it had.
std::set<std::string>
seen_after_kills(const std::string& path, const std::function<void(const std::string& text)>& save)
{
	store(path, texts[0]);
	std::set<std::string> seen;
	std::mt19937 random(8);
	std::uniform_int_distribution<int> lives(500, 6000);
	for (int round = 0; round < rounds; round++) {
		save_until_killed(round, std::chrono::microseconds(lives(random)), save);
		const std::string contents = stored(path);
		EXPECT_TRUE(is_whole(contents)) << contents.size() << " bytes in round " << round;
		seen.insert(contents);
	}
	return seen;
}

}


TEST(killed, while_it_replaces_a_file_leaves_the_old_or_the_new_one_whole)
{
	const temp_folder folder;
	BDirectory directory(folder.path().c_str());
	const std::set<std::string> seen = seen_after_kills(
		folder.path("old"), [&](const std::string& text) { save(directory, text); });
	EXPECT_EQ(seen, std::set<std::string>(std::begin(texts), std::end(texts)));
}


TEST(killed, where_files_can_be_without_a_name_leaves_no_part_beside_the_file)
{
	const temp_folder folder;
	const int nameless = open(folder.path().c_str(), O_RDWR | O_TMPFILE | O_CLOEXEC, 0600);
	if (nameless < 0) {
		GTEST_SKIP() << "every file has a name in " << folder.path();
	}
	close(nameless);
	BDirectory directory(folder.path().c_str());
	seen_after_kills(folder.path("old"), [&](const std::string& text) { save(directory, text); });
	for (const std::string& name : names_in(folder.path())) {
		EXPECT_TRUE(is_whole(stored(folder.path(name)))) << name;
	}
}


TEST(killed, while_the_new_file_has_a_name_leaves_the_old_or_the_new_one_whole)
{
	const temp_folder folder;
	const std::string path = folder.path("old");
	const std::set<std::string> seen =
		seen_after_kills(path, [&](const std::string& text) { save_with_hidden_name(path, text); });
	EXPECT_EQ(seen, std::set<std::string>(std::begin(texts), std::end(texts)));
}
