// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Somebody who types faster than the program follows: every key counts, in its order, and goes
// where the keys before it have led.
#include "desktop/squares.h"
#include "support/freetype_outlines.h"

using typing = outline_journey;
INSTANTIATE_TEST_SUITE_P(, typing, testing::ValuesIn(all_desktops), name_of);


// tiny_font() with 64 glyphs, the others of which are empty.
static font_file
many_glyphs()
{
	constexpr uint16_t count = 64;
	font_file tiny = tiny_font();
	octets loca = zeros(4 * (count + 1)), hmtx = tiny.table("hmtx"), maxp = tiny.table("maxp");
	for (size_t i = 2; i <= count; i++)
		put_be32(loca, 4 * i, 0x20);
	hmtx.resize(hmtx.size() + 2 * (count - 2));
	put_be16(maxp, 4, count);
	return tiny.with("loca", loca).with("hmtx", hmtx).with("maxp", maxp);
}


TEST_P(typing, goes_to_the_right_fields_while_the_program_is_busy)
{
	start({font("many.ttf", many_glyphs())});
	tag("cmap");
	click(in_panel(100, 460));
	at_rest();
	{
		program::busy working(kernix());
		if (!working.is_possible())
			GTEST_SKIP() << "this system lets nobody stop a thread";
		type("41");
		key("Tab");
		type("5a");
		key("Tab");
		type("3");
		key("Return");
		at_rest();
	}
	at_rest();
	click(in_panel(520, 459));
	choose(file_save);
	answer("Save as", path("saved.ttf"));
	until("nothing is saved", [&] { return size_of(path("saved.ttf")) > 0; });
	alone();
	octets saved = read_file(path("saved.ttf"));
	EXPECT_EQ(glyph_of_character(saved, 'A'), 3u);
	EXPECT_EQ(glyph_of_character(saved, 'Z'), 28u);
	EXPECT_EQ(glyph_of_character(saved, '['), 0u);
}


TEST_P(typing, goes_to_the_field_that_was_clicked_just_now)
{
	at_squares();
	enter(in_panel(30, 80), "0");
	drawn("");
	press_on_canvas();
	click(in_panel(30, 80));
	key("ctrl+a");
	type("1");
	key("Return");
	drawn("01234");
}


// The keys one after the other, with these pauses between, lead to the same picture as those of
// somebody who looks after each.
class quick_keys : public outline_journey {
protected:
	void all_count(const std::vector<std::string>& keys)
	{
		at_squares();
		for (const std::string& each : keys) {
			QImage before = canvas();
			key(each);
			changes_from(before);
			at_rest();
		}
		QImage wanted = canvas();
		for (int milliseconds : {0, 4, 8, 16, 40}) {
			choose_again();
			for (const std::string& each : keys) {
				key(each);
				pause(milliseconds);
			}
			EXPECT_TRUE(comes_within(3'000, [&] { return canvas() == wanted; }))
				<< milliseconds << " ms between";
		}
	}
};

INSTANTIATE_TEST_SUITE_P(, quick_keys, testing::ValuesIn(all_desktops), name_of);


// To the first square, to the last, and so on.
TEST_P(quick_keys, all_count_when_they_go_to_and_fro)
{
	all_count({"Left", "Right", "Left", "Right"});
}


// Both keys go forward: to the fourth square.
TEST_P(quick_keys, all_count_when_they_go_one_way)
{
	all_count({"Left", "4", "Left", "4"});
}
