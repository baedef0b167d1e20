// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

// Unlike other tests, these are no program of the kits: they only start one.
int
main(int argc, char** argv)
{
	testing::InitGoogleTest(&argc, argv);
	return RUN_ALL_TESTS();
}
