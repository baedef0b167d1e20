// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Which of the sizes that a server gives are only repeated.
#include "display/left_sizes.h"

#include <gtest/gtest.h>

using namespace kits;

namespace {

constexpr QSize mapped(400, 300), chosen(576, 579);
const left_sizes::moment start(std::chrono::hours(1));

}


TEST(left_sizes, repeats_what_the_program_has_left)
{
	left_sizes sizes;
	EXPECT_FALSE(sizes.repeats(mapped, start));
	sizes.leave(mapped, chosen);
	EXPECT_TRUE(sizes.repeats(mapped, start));
	EXPECT_FALSE(sizes.repeats(QSize(401, 300), start));
	EXPECT_FALSE(sizes.repeats(chosen, start));
}


TEST(left_sizes, a_size_that_is_chosen_again_is_not_left)
{
	left_sizes sizes;
	sizes.leave(mapped, chosen);
	sizes.leave(chosen, mapped);
	EXPECT_FALSE(sizes.repeats(mapped, start));
	EXPECT_TRUE(sizes.repeats(chosen, start));
}


TEST(left_sizes, a_size_that_stays_is_not_left)
{
	left_sizes sizes;
	sizes.leave(chosen, chosen);
	EXPECT_FALSE(sizes.repeats(chosen, start));
}


TEST(left_sizes, are_forgotten_when_the_user_decides)
{
	left_sizes sizes;
	sizes.leave(mapped, chosen);
	sizes.forget();
	EXPECT_FALSE(sizes.repeats(mapped, start));
}


TEST(left_sizes, a_repetition_at_every_change_of_focus_stays_one)
{
	left_sizes sizes;
	sizes.leave(mapped, chosen);
	for (int second = 0; second < 100; second++)
		EXPECT_TRUE(sizes.repeats(mapped, start + std::chrono::milliseconds(1001 * second)));
}


TEST(left_sizes, a_server_that_insists_is_believed)
{
	left_sizes sizes;
	sizes.leave(mapped, chosen);
	for (int i = 0; i < 8; i++)
		EXPECT_TRUE(sizes.repeats(mapped, start));
	EXPECT_FALSE(sizes.repeats(mapped, start));
}


TEST(left_sizes, the_first_is_kept_however_often_the_program_chooses)
{
	left_sizes sizes;
	sizes.leave(mapped, chosen);
	for (int i = 0; i < 100; i++)
		sizes.leave(QSize(1000 + i, 10), QSize(1001 + i, 10));
	EXPECT_TRUE(sizes.repeats(mapped, start));
	EXPECT_FALSE(sizes.repeats(QSize(1050, 10), start));
	EXPECT_TRUE(sizes.repeats(QSize(1099, 10), start));
}
