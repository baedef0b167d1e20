// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "font/malloc32.h"

#include <algorithm>
#include <memory>

#include <gtest/gtest.h>

#include "support/octets.h"

using buffer = std::unique_ptr<unsigned char[]>;

// Reads every octet that must be there; the address sanitizer says when one is not.
static octets
first(const buffer& from, size_t count)
{
	return octets(from.get(), from.get() + count);
}


TEST(malloc32, a_size_of_0_is_still_a_buffer)
{
	EXPECT_NE(buffer(malloc32(0)), nullptr);
}


TEST(malloc32, a_size_of_1_takes_four_zeros)
{
	EXPECT_EQ(first(buffer(malloc32(1)), 4), hex("00000000"));
}


TEST(malloc32, a_size_of_3_takes_four_zeros)
{
	EXPECT_EQ(first(buffer(malloc32(3)), 4), hex("00000000"));
}


TEST(malloc32, a_size_of_4_takes_four_zeros)
{
	EXPECT_EQ(first(buffer(malloc32(4)), 4), hex("00000000"));
}


TEST(malloc32, a_size_of_5_takes_eight_zeros)
{
	EXPECT_EQ(first(buffer(malloc32(5)), 8), hex("00000000 00000000"));
}


TEST(malloc32, memory_used_before_comes_back_zeroed)
{
	for (int round = 0; round < 100; round++) {
		buffer used(malloc32(61));
		ASSERT_EQ(first(used, 64), zeros(64));
		std::fill_n(used.get(), 64, uint8_t(0xEE));
	}
}


TEST(malloc32, buffers_are_distinct)
{
	buffer one(malloc32(4));
	buffer other(malloc32(4));
	one[0] = 1;
	EXPECT_EQ(other[0], 0);
}
