// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// A process that has no display to open a window on.
#include "platform/app/again.h"

#include <Application.h>
#include <cstdio>
#include <gtest/gtest.h>


// The part of the process of its own.
TEST(no_display, DISABLED_makes_an_application)
{
	const BApplication application("application/x-vnd.test");
	puts("made it");
}


TEST(no_display, ends_the_process_with_status_1_and_one_line)
{
	const ended result = run_again(
		"no_display.DISABLED_makes_an_application", {}, {"QT_QPA_PLATFORM=xcb", "DISPLAY=:97"});
	EXPECT_EQ(result.status, 1);
	ASSERT_EQ(result.complaints.size(), 1u);
	EXPECT_NE(result.complaints[0].find("no display"), std::string::npos) << result.complaints[0];
	EXPECT_NE(result.complaints[0].find(":97"), std::string::npos) << result.complaints[0];
	EXPECT_EQ(lines_after("made", result.output).size(), 0u);
}


TEST(no_display, an_unknown_kind_of_one_ends_the_process_in_the_same_way)
{
	const ended result =
		run_again("no_display.DISABLED_makes_an_application", {}, {"QT_QPA_PLATFORM=nowhere"});
	EXPECT_EQ(result.status, 1);
	ASSERT_EQ(result.complaints.size(), 1u);
	EXPECT_NE(result.complaints[0].find("nowhere"), std::string::npos) << result.complaints[0];
}


TEST(no_display, with_one_the_same_process_ends_well_and_says_nothing)
{
	const ended result =
		run_again("no_display.DISABLED_makes_an_application", {}, {"QT_QPA_PLATFORM=offscreen"});
	EXPECT_EQ(result.status, 0);
	EXPECT_EQ(result.complaints, std::vector<std::string>());
	EXPECT_EQ(lines_after("made", result.output), std::vector<std::string>({"it"}));
}
