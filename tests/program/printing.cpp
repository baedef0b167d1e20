// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// What the program prints goes where nobody reads it, and no work is lost.
#include "app/kernix.h"
#include "program/journey.h"
#include "support/expected_save.h"
#include "support/temp_files.h"
#include "support/unread_output.h"

#include <gtest/gtest.h>


static void
expect_saved(const std::string& path)
{
	octets saved = read_file(path);
	EXPECT_TRUE(same(expected_save(tiny_font(), modified_of(saved)), saved));
}


TEST(printing, for_a_reader_that_has_gone_costs_no_work)
{
	temp_folder folder;
	pipe_ends pipe;
	pipe.close_reader();
	redirected_output there(pipe.writer());
	with_font([&](kernix&, robot& user) {
		save_file(user, folder.path(), "saved.ttf");
		expect_saved(folder.path("saved.ttf"));
	});
}


TEST(printing, into_a_pipe_that_nobody_reads_holds_nothing_up)
{
	temp_folder folder;
	pipe_ends pipe;
	pipe.fill();
	EXPECT_TRUE(ends_without_reader(pipe, [&] {
		redirected_output there(pipe.writer());
		with_font([&](kernix&, robot& user) {
			save_file(user, folder.path(), "saved.ttf");
			expect_saved(folder.path("saved.ttf"));
		});
	}));
}
