// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Where the keyboard is after something else has had it: where it was; and a press on the canvas
// brings it there whatever has been. Delete tells: on the canvas it takes the selected square away,
// anywhere else it does not.
#include "desktop/squares.h"

#include <algorithm>
#include <functional>

class keyboard : public outline_journey {
protected:
	// The left arrow has selected the first square when `interruption` comes; a band selects the
	// fourth after it has come again.
	void stays_through(const std::function<void()>& interruption);
	void saves_over(const std::string& file);
};

INSTANTIATE_TEST_SUITE_P(, keyboard, testing::ValuesIn(all_desktops), name_of);

// What only a desktop with a place for minimised windows has.
using minimised_keyboard = keyboard;
INSTANTIATE_TEST_SUITE_P(, minimised_keyboard, testing::ValuesIn(x11_desktops), name_of);


void
keyboard::stays_through(const std::function<void()>& interruption)
{
	at_squares();
	select_first();
	interruption();
	key("Delete");
	drawn("1234");

	interruption();
	press_on_canvas();
	at_rest();
	band(3);
	at_rest();
	key("Delete");
	drawn("124");
}


// Answers the question that comes with Return, which says yes.
void
keyboard::saves_over(const std::string& file)
{
	choose(file_save);
	wait_for("Save as");
	key("ctrl+a");
	type(file);
	at_rest();
	key("Return");
	until("no question", [&] { return screen().windows().size() == 3; });
	until("the question does not get the keys", [&] {
		auto all = screen().windows();
		return std::any_of(all.begin(), all.end(),
			[](const shown_window& each) { return each.active && each.contents.height() < 200; });
	});
	key("Return");
	alone();
}


TEST_P(keyboard, stays_on_the_canvas_through_a_save)
{
	int saves = 0;
	stays_through([&] {
		std::string file = path("saved" + std::to_string(saves++) + ".ttf");
		choose(file_save);
		answer("Save as", file);
		alone();
		until("nothing is saved", [&] { return size_of(file) > 0; });
	});
}


TEST_P(keyboard, stays_on_the_canvas_through_a_save_over_a_file)
{
	stays_through([&] { saves_over(path("squares.ttf")); });
}


TEST_P(keyboard, stays_on_the_canvas_through_a_panel_that_is_cancelled)
{
	stays_through([&] {
		choose(file_open);
		wait_for("Open");
		key("Escape");
		alone();
	});
}


TEST_P(keyboard, stays_on_the_canvas_through_About)
{
	stays_through([&] {
		choose(file_about);
		until("no box", [&] { return screen().windows().size() == 2 && !window().active; });
		key("Return");
		alone();
	});
}


TEST_P(keyboard, stays_on_the_canvas_through_a_menu_that_is_left)
{
	stays_through([&] {
		open_menu();
		key("Escape");
		until("the menu stays open", [&] { return !menu_is_open(); });
		stand_aside();
		at_rest();
	});
}


TEST_P(minimised_keyboard, stays_on_the_canvas)
{
	stays_through([&] {
		screen().minimise(window());
		until("the window is not minimised", [&] { return !window().visible; });
		screen().activate(window());
		until("the window does not come back", [&] { return window().visible; });
		alone();
	});
}


// Showing a panel leaves the selection to be made again.
TEST_P(keyboard, comes_back_to_the_canvas_that_was_hidden)
{
	at_squares();
	tag("head");
	click(in_panel(170, 460));
	key("1");
	tag("glyf");
	drawn("01234");
	press_on_canvas();
	at_rest();
	band(3);
	at_rest();
	key("Delete");
	drawn("0124");
}


TEST_P(keyboard, comes_to_the_canvas_of_the_next_font)
{
	at_squares();
	choose(file_open);
	answer("Open", font("next.ttf", squares_font()));
	alone();
	until("the panel stays", [&] { return count_red(strip_area) == 0; });
	tag("glyf");
	enter(in_panel(30, 80), "1");
	drawn("01234");
	press_on_canvas();
	at_rest();
	band(3);
	at_rest();
	key("Delete");
	drawn("0124");
}


// The other way round: what is typed goes where the last click was.
TEST_P(keyboard, stays_in_a_field_through_a_panel_that_is_cancelled)
{
	at_squares();
	click(in_panel(30, 80));
	key("ctrl+a");
	type("0");
	choose(file_open);
	wait_for("Open");
	key("Escape");
	alone();
	key("ctrl+a");
	type("1");
	key("Return");
	press_on_canvas();
	drawn("01234");
	select_first();
	key("Delete");
	drawn("1234");
}
