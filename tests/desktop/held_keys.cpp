// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// A key that is held on a control repeats for the desktop, not for the program.
#include "desktop/squares.h"
#include "support/freetype_outlines.h"
#include "support/sfnt.h"

using held_key = outline_journey;
INSTANTIATE_TEST_SUITE_P(, held_key, testing::ValuesIn(all_desktops), name_of);

// More than it takes any desktop to begin to repeat a key.
constexpr int long_enough = 1'500;

namespace {

// Where the keyboard goes by Tab from the field above: "add" of a composite glyph's components.
class held_on_add : public outline_journey {
protected:
	// How many components a glyph without any has when the key has been held there.
	unsigned components_after(const std::string& name)
	{
		at_squares();
		enter(in_panel(30, 80), "0");
		drawn("");
		click(in_panel(25, 410)); // "compo"
		until("no field for components", [&] { return count(white, {20, 315, 20, 16}) > 100; });
		enter(in_panel(30, 270), "1");
		at_rest();
		key("Tab");
		at_rest();
		hold(name, long_enough);
		drawn("01234");
		at_rest();
		click(in_panel(25, 440)); // "set"
		at_rest();
		choose(file_save);
		answer("Save as", path("saved.ttf"));
		until("nothing is saved", [&] { return size_of(path("saved.ttf")) > 0; });
		alone();
		return components_of_glyph(read_file(path("saved.ttf")), 0);
	}
};

}

INSTANTIATE_TEST_SUITE_P(, held_on_add, testing::ValuesIn(all_desktops), name_of);


TEST_P(held_on_add, Return_acts_once)
{
	EXPECT_EQ(components_after("Return"), 1u);
}


TEST_P(held_on_add, space_acts_once)
{
	EXPECT_EQ(components_after("space"), 1u);
}


// Tab leads to "set", then to the first box.
TEST_P(held_key, space_turns_a_check_box_over_once)
{
	constexpr QRectF mark(3, 53 + 13, 9, 9);
	auto is_dark = [](QRgb pixel) { return qGray(pixel) < 100; };
	auto is_ticked = [&] { return count(is_dark, mark) >= 6; };
	start();
	choose(file_new);
	until("no boxes", [&] { return count(white, mark) > 40; });
	at_rest();
	key("Tab");
	at_rest();
	key("Tab");
	at_rest();
	ASSERT_FALSE(is_ticked());
	int turns = 0;
	auto look = [&, was = false]() mutable {
		bool now = is_ticked();
		turns += now != was;
		was = now;
		return false;
	};
	screen().key(key_symbol("space"), true);
	comes_within(long_enough, look);
	screen().key(key_symbol("space"), false);
	comes_within(long_enough, look);
	EXPECT_EQ(turns, 1);
}


// What it stands for is stored with "set".
TEST_P(held_key, right_moves_a_slider_on_until_it_is_let_go)
{
	constexpr QRectF bar(20, 53 + 480, 220, 20);
	start({font("squares.ttf", squares_font())});
	tag("hmtx");
	enter(in_panel(100, 460), "1");
	// Over three fields and a button.
	for (int i = 0; i < 5; i++) {
		at_rest();
		key("Tab");
	}
	at_rest();
	QImage before = picture(bar);
	hold("Right", long_enough);
	until("the slider does not move", [&] { return picture(bar) != before; });
	at_rest();
	QImage after = picture(bar);
	EXPECT_FALSE(comes_within(1'000, [&] { return picture(bar) != after; }));
	click(in_panel(520, 459));
	at_rest();
	choose(file_save);
	answer("Save as", path("saved.ttf"));
	until("nothing is saved", [&] { return size_of(path("saved.ttf")) > 0; });
	alone();
	int bearing = be16(sfnt(read_file(path("saved.ttf"))).table("hmtx"), 6);
	EXPECT_GT(bearing, 1);
	EXPECT_LT(bearing, 512);
}
