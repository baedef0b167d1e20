// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Lines that a process prints where they cannot be taken.
#include "support/output.h"

#include "support/temp_files.h"
#include "support/unread_output.h"

#include <cstdio>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <pty.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <termios.h>
#include <unistd.h>

namespace {

class output : public testing::Test {
protected:
	output() { kits::never_wait_for_output(); }
};

}


TEST_F(output, arrives_line_by_line_at_once)
{
	pipe_ends pipe;
	redirected_output there(pipe.writer());
	printf("one\ntw");
	EXPECT_EQ(pipe.contents(), "one\n");
	printf("o\n");
	EXPECT_EQ(pipe.contents(), "two\n");
}


TEST_F(output, for_a_reader_that_has_gone_is_dropped)
{
	pipe_ends pipe;
	pipe.close_reader();
	redirected_output there(pipe.writer());
	printf("nobody reads this\n");
}


TEST_F(output, into_a_full_pipe_is_dropped_and_later_lines_are_whole)
{
	pipe_ends pipe;
	pipe.fill();
	redirected_output there(pipe.writer());
	EXPECT_TRUE(ends_without_reader(pipe, [] { printf("dropped\n"); }));
	pipe.contents();
	printf("kept\n");
	EXPECT_EQ(pipe.contents(), "kept\n");
}


TEST_F(output, that_could_only_be_begun_is_finished_before_the_next_line)
{
	const std::string line = std::string(6000, 'a') + "\n";
	pipe_ends pipe;
	pipe.fill(4096);
	redirected_output there(pipe.writer());
	EXPECT_TRUE(ends_without_reader(pipe, [&] {
		fputs(line.c_str(), stdout);
		fflush(stdout);
		printf("dropped\n");
	}));
	const std::string held = pipe.contents();
	const std::string begun = held.substr(held.find('a'));
	EXPECT_EQ(begun.size(), 4096u);
	printf("next\n");
	EXPECT_EQ(begun + pipe.contents(), line + "next\n");
}


TEST_F(output, leaves_the_pipe_as_it_is_for_others)
{
	pipe_ends pipe;
	redirected_output there(pipe.writer());
	printf("one\n");
	EXPECT_EQ(fcntl(pipe.writer(), F_GETFL) & O_NONBLOCK, 0);
}


TEST_F(output, into_a_full_socket_is_dropped)
{
	int ends[2];
	ASSERT_EQ(socketpair(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK, 0, ends), 0);
	const std::string page(4096, 'x');
	while (write(ends[1], page.data(), page.size()) > 0) {
	}
	while (write(ends[1], "x", 1) > 0) {
	}
	fcntl(ends[1], F_SETFL, 0);
	{
		redirected_output there(ends[1]);
		printf("dropped\n");
		close(ends[0]);
		printf("nobody reads this\n");
	}
	close(ends[1]);
}


TEST_F(output, on_a_terminal_that_was_halted_is_dropped)
{
	int keyboard, screen;
	if (openpty(&keyboard, &screen, nullptr, nullptr, nullptr) != 0)
		GTEST_SKIP() << "this system has no pseudo-terminals";
	ASSERT_EQ(tcflow(screen, TCOOFF), 0);
	{
		redirected_output there(screen);
		printf("dropped\n");
		ASSERT_EQ(tcflow(screen, TCOON), 0);
		printf("kept\n");
	}
	char text[20] = {};
	EXPECT_GT(read(keyboard, text, sizeof text - 1), 0);
	EXPECT_STREQ(text, "kept\r\n");
	close(keyboard);
	close(screen);
}


TEST_F(output, beyond_what_a_file_may_hold_is_dropped)
{
	const temp_folder folder;
	const int file = open(folder.path("said").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
	rlimit before = {};
	getrlimit(RLIMIT_FSIZE, &before);
	const rlimit limit = {8, before.rlim_max};
	setrlimit(RLIMIT_FSIZE, &limit);
	{
		redirected_output there(file);
		printf("eight..\n");
		printf("dropped\n");
	}
	setrlimit(RLIMIT_FSIZE, &before);
	close(file);
	EXPECT_EQ(read_file(folder.path("said")), octets({'e', 'i', 'g', 'h', 't', '.', '.', '\n'}));
}


TEST_F(output, to_a_file_follows_what_others_write_there)
{
	const temp_folder folder;
	const int file = open(folder.path("said").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
	{
		redirected_output there(file);
		printf("1\n");
		EXPECT_EQ(write(file, "2\n", 2), 2);
		printf("3\n");
	}
	close(file);
	EXPECT_EQ(read_file(folder.path("said")), octets({'1', '\n', '2', '\n', '3', '\n'}));
}


TEST_F(output, of_complaints_does_not_wait_either)
{
	pipe_ends pipe;
	pipe.fill();
	const int before = dup(STDERR_FILENO);
	dup2(pipe.writer(), STDERR_FILENO);
	EXPECT_TRUE(ends_without_reader(pipe, [] { fprintf(stderr, "dropped: %d\n", 1); }));
	pipe.contents();
	fprintf(stderr, "kept: %d\n", 2);
	dup2(before, STDERR_FILENO);
	close(before);
	EXPECT_EQ(pipe.contents(), "kept: 2\n");
}
