// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include <cstdlib>

#include <gtest/gtest.h>

// Tests run on the process's main thread, which becomes the display thread for those that make an
// application. Off-screen unless the caller has chosen a display.
int
main(int argc, char** argv)
{
	setenv("QT_QPA_PLATFORM", "offscreen", 0);
	testing::InitGoogleTest(&argc, argv);
	return RUN_ALL_TESTS();
}
