// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "font/truncate.h"

#include <cmath>
#include <gtest/gtest.h>


TEST(toward_zero, drops_the_fraction_of_positive_and_negative_numbers)
{
	EXPECT_EQ(toward_zero<int16>(3.9), 3);
	EXPECT_EQ(toward_zero<int16>(-3.9), -3);
	EXPECT_EQ(toward_zero<int16>(-0.9), 0);
	EXPECT_EQ(toward_zero<int32>(7.0), 7);
}


TEST(toward_zero, takes_the_nearest_value_of_the_type_for_what_does_not_fit)
{
	EXPECT_EQ(toward_zero<int16>(32767.5), 32767);
	EXPECT_EQ(toward_zero<int16>(40000), 32767);
	EXPECT_EQ(toward_zero<int16>(-32768.5), -32768);
	EXPECT_EQ(toward_zero<int16>(-1e30), -32768);
	EXPECT_EQ(toward_zero<uint8>(-5), 0);
	EXPECT_EQ(toward_zero<uint8>(256), 255);
	EXPECT_EQ(toward_zero<uint32>(4294967294.5), 4294967294U);
	EXPECT_EQ(toward_zero<uint32>(1e20), 4294967295U);
	EXPECT_EQ(toward_zero<int32>(INFINITY), 2147483647);
	EXPECT_EQ(toward_zero<int32>(-INFINITY), -2147483647 - 1);
}


TEST(toward_zero, gives_0_for_what_is_no_number)
{
	EXPECT_EQ(toward_zero<int16>(NAN), 0);
	EXPECT_EQ(toward_zero<uint32>(-NAN), 0U);
}
