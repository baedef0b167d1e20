// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// A user opens fonts with the real program.
#include "app/kernix.h"
#include "app/kernixwindow.h"
#include "app/selectview.h"
#include "font/globals.h"
#include "font/ttf.h"
#include "support/font_file.h"
#include "support/robot.h"
#include "support/temp_files.h"

#include <AppDefs.h>
#include <Entry.h>
#include <gtest/gtest.h>


TEST(program, starts_with_its_title_and_an_empty_selector)
{
	with_application<kernix>([](kernix& app, robot& user) {
		EXPECT_EQ(user.window_title(), "kernix ver.0.02");
		EXPECT_EQ(user.window_size(), BPoint(400, 300));
		EXPECT_EQ(app.window->selector->count, 0);
	});
}
