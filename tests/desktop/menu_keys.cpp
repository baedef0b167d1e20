// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The menu without the pointer.
#include "desktop/squares.h"

class menu_keys : public outline_journey {
protected:
	// F10, and the arrow down where that alone opens nothing.
	void open_by_keys();
};

INSTANTIATE_TEST_SUITE_P(, menu_keys, testing::ValuesIn(all_desktops), name_of);


void
menu_keys::open_by_keys()
{
	constexpr QRectF title(2, 1, 36, 18);
	QImage before = picture(title);
	key("F10");
	until("F10 does not lead to the menu bar", [&] { return picture(title) != before; });
	if (!menu_is_open())
		key("Down");
	until("the menu does not open", [&] { return menu_is_open(); });
}


TEST_P(menu_keys, F10_opens_the_menu_and_Escape_gives_the_keyboard_back)
{
	at_squares();
	select_first();
	open_by_keys();
	key("Down");
	key("Escape");
	until("the menu stays open", [&] { return !menu_is_open(); });
	at_rest();
	// Closed, it may still be chosen in the bar.
	key("Escape");
	at_rest();
	key("Delete");
	drawn("1234");
}


TEST_P(menu_keys, arrows_and_Return_choose_an_item)
{
	at_squares();
	select_first();
	open_by_keys();
	at_rest();
	key("Home");
	for (int i = file_new; i < file_about; i++)
		key("Down");
	key("Return");
	until("no box", [&] { return screen().windows().size() == 2 && !window().active; });
	key("Return");
	alone();
	key("Delete");
	drawn("1234");
}
