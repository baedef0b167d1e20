// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// What the soak's user does with the selector and with the controls in the window.
#include "app/kernix.h"
#include "app/kernixwindow.h"
#include "app/selectview.h"
#include "program/journey.h"
#include "soak/user.h"

#include <QApplication>
#include <QCheckBox>


// The editors have most to do.
void
soak_user::choose_table()
{
	std::vector<int> places;
	if (!fApp.window->Lock())
		return;
	const selectview& selector = *fApp.window->selector;
	for (int i = 0; i < selector.count; i++) {
		const bool editor = selector.tags[i] == 'glyf' || selector.tags[i] == 'EBDT';
		places.insert(places.end(), editor ? 5 : 1, i);
	}
	fApp.window->Unlock();
	if (places.empty())
		return;
	const int place = fChance.any(places);
	note("table " + std::to_string(place));
	fHand.click(place_of_tag(place));
}


void
soak_user::press_button()
{
	const auto buttons = fSight.all(sight::button);
	if (buttons.empty())
		return;
	const sight::thing& button = fChance.any(buttons);
	note("button " + button.label);
	fHand.click(button.place);
}


void
soak_user::tick_box()
{
	const auto boxes = fSight.all(sight::box);
	if (boxes.empty())
		return;
	const sight::thing& box = fChance.any(boxes);
	note("box " + box.label);
	fHand.click(box.place);
}


void
soak_user::choose_row()
{
	const auto lists = fSight.all(sight::list);
	if (lists.empty())
		return;
	const BPoint place = fChance.any(lists).place;
	const int rows = (int)fHand.list_rows(place).size();
	const int row = fChance.below(rows + 1);
	note("row " + std::to_string(row) + " of " + std::to_string(rows));
	fHand.choose_row(place, row, some_keys());
}


void
soak_user::open_menu()
{
	const auto menus = fSight.all(sight::menu);
	if (menus.empty())
		return;
	const BPoint place = fChance.any(menus).place;
	note("menu at " + text_of(place));
	fHand.click(place);
}


std::string
soak_user::some_text()
{
	static const char* const texts[] = {"", "0", "1", "2", "3", "4", "5", "10", "41", "42", "7f",
		"ff", "100", "7fff", "8000", "ffff", "10000", "7fffffff", "80000000", "ffffffff",
		"123456789abcdef0", "ffffffffffffffffff", "-1", "-8000", "1.5", "0x20", "+3", " 7 ", "g",
		"nan", "%s%n", "A", "\xC3\xA9", "\xE2\x82\xAC", "\xE6\xBC\xA2\xE5\xAD\x97",
		"\xF0\x9F\x98\x80", "e\xCC\x81", "\x01", "a\tb", "\xEF\xBF\xBD"};
	if (fChance.one_in(12))
		return std::string((size_t)fChance.below(3000), fChance.one_in(2) ? 'f' : 'w');
	if (fChance.one_in(4))
		return std::to_string(fChance.below(100000));
	return fChance.any(texts);
}


void
soak_user::fill_field()
{
	const auto fields = fSight.all(sight::field);
	if (fields.empty())
		return;
	const BPoint place = fChance.any(fields).place;
	const std::string text = some_text();
	const int end = fChance.below(4);
	note("field at " + text_of(place) + ": " + text.substr(0, 20) + ", " + std::to_string(end));
	fHand.click(place);
	if (!fChance.one_in(4))
		fHand.key(Qt::Key_A, "\x01", B_CONTROL_KEY);
	if (text.empty())
		fHand.key(Qt::Key_Delete, "\x7f");
	else
		fHand.key(Qt::Key_unknown, text);
	if (end < 2)
		fHand.key(Qt::Key_Return, "\r");
	else if (end == 2)
		fHand.key(Qt::Key_Tab, "\t");
}


void
soak_user::move_slider()
{
	const auto sliders = fSight.all(sight::slider);
	if (sliders.empty())
		return;
	const sight::thing slider = fChance.any(sliders);
	const auto anywhere = [&] {
		const int half = (int)slider.size.x / 2;
		return slider.place + BPoint((float)fChance.between(-half, half), 0);
	};
	const BPoint from = anywhere();
	const BPoint to = anywhere();
	note("slider from " + text_of(from) + " to " + text_of(to));
	fHand.press(from);
	for (int i = fChance.below(4); i > 0; i--)
		fHand.move(anywhere());
	fHand.move(to);
	fHand.release(to);
}
