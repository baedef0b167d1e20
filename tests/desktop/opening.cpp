// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// From the start to the end, with real fonts.
#include "desktop/journey.h"
#include "support/expected_save.h"
#include "support/freetype_outlines.h"

#include <algorithm>
#include <cstdlib>

using opening = journey;
INSTANTIATE_TEST_SUITE_P(, opening, testing::ValuesIn(all_desktops), name_of);

static const char* const first = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf";
static const char* const second = "/usr/share/fonts/truetype/dejavu/DejaVuSans-Bold.ttf";


// Once by the rules of saving, octet for octet, and once by the outlines that FreeType finds.
static void
expect_saved(const octets& before, const std::string& path)
{
	size_t size = expected_save(before, 0).size();
	until("the font is not saved", [&] { return size_of(path) == size; });
	octets after = read_file(path);
	EXPECT_TRUE(same(expected_save(before, modified_of(after)), after));
	outline_comparison seen = compare_outlines(before, after);
	EXPECT_EQ(seen.difference, "");
	EXPECT_GT(seen.points, 0);
}


TEST_P(opening, shows_the_font_that_is_named_and_saves_it_and_opens_another)
{
	start({first});
	EXPECT_GE(count(white, {40, 70, 200, 70}), 500);
	EXPECT_GE(count(work_grey, {0, 53, 560, 500}), 200'000);
	EXPECT_EQ(count_red(strip_area), 0);
	tag("head");

	choose(file_save);
	answer("Save as", path("first.ttf"));
	expect_saved(read_file(first), path("first.ttf"));
	alone();

	choose(file_open);
	answer("Open", second);
	until("the tag is still red", [&] { return count_red(strip_area) == 0; });
	until("no tags", [&] { return count_other(strip_yellow, strip_area) >= 60; });

	choose(file_save);
	answer("Save as", path("second.ttf"));
	expect_saved(read_file(second), path("second.ttf"));
	alone();

	choose(file_quit);
	ends_well();
}


TEST_P(opening, ends_by_the_close_box)
{
	start({first});
	wait_for("kernix ver.0.02");
	screen().close(window());
	ends_well();
}


TEST_P(opening, ends_while_a_file_panel_is_open)
{
	start({first});
	choose(file_open);
	wait_for("Open");
	choose(file_quit);
	ends_well();
}


TEST(no_display, is_told_in_one_line)
{
	for (const char* each : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
		unsetenv(each);
	temp_folder folder;
	program started({}, folder.path());
	EXPECT_EQ(started.status(), 1);
	std::string line = started.complaints();
	EXPECT_EQ(std::count(line.begin(), line.end(), '\n'), 1) << line;
	EXPECT_NE(line.find("no display"), std::string::npos) << line;
}
