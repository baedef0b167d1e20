// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// What the desktop is told of the program's windows, and what it makes of them.
#include "desktop/squares.h"

#include <cmath>
#include <cstdlib>

class windows : public journey {
protected:
	// As large as a panel needs, and still so when everything has come to rest.
	void expect_full_size(const char* when)
	{
		at_rest();
		QSizeF size = window().contents.size();
		EXPECT_LT(std::abs(size.width() - 576), 1) << when;
		EXPECT_LT(std::abs(size.height() - 579), 1) << when;
		// The same is painted: the corner below the scroll bars, and nothing of the desktop.
		EXPECT_EQ(count(black, {570, 572, 5, 6}), 0) << when;
	}
};

INSTANTIATE_TEST_SUITE_P(, windows, testing::ValuesIn(all_desktops), name_of);


// How often a start is tried where the order of events is a matter of luck.
static int
starts()
{
	const char* wanted = getenv("KERNIX_STARTS");
	return wanted == nullptr ? 3 : std::atoi(wanted);
}


TEST_P(windows, have_their_full_size_after_each_start)
{
	std::string file = font("squares.ttf", squares_font());
	for (int i = 0; i < starts() && !HasFailure(); i++) {
		start({file});
		expect_full_size("after the start");
		choose(file_quit);
		ends_well();
	}
}


TEST_P(windows, keep_their_full_size_when_others_come_and_go)
{
	start({font("squares.ttf", squares_font())});
	tag("head");
	expect_full_size("with a panel");
	choose(file_about);
	until("no box", [&] { return screen().windows().size() == 2 && !window().active; });
	expect_full_size("under the box");
	key("Return");
	alone();
	expect_full_size("after the box");
	choose(file_open);
	wait_for("Open");
	key("Escape");
	alone();
	expect_full_size("after the panel");
}


TEST_P(windows, of_file_panels_belong_to_the_main_window)
{
	start({font("squares.ttf", squares_font())});
	for (auto [which, title] : {std::pair(file_open, "Open"), {file_save, "Save as"}}) {
		choose(which);
		EXPECT_TRUE(wait_for(title).has_parent) << title;
		key("Escape");
		alone();
	}
}


// By this a desktop finds the program's icon and groups its windows.
TEST_P(windows, name_their_program)
{
	start();
	EXPECT_EQ(window().program, GetParam().is_wayland() ? "org.kernix.kernix" : "kernix");
}
