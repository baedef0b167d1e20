// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// What a user does with this program: its menu, its panels.
#include "desktop/journey.h"

#include <algorithm>
#include <filesystem>

static constexpr QPointF menu_title(18, 10);
// Where the menu is, once it is open.
static constexpr QRectF menu_area(0, 21, 300, 300);
static constexpr int menu_items = 5;


// The smallest rectangle with everything that the menu covers.
QRectF
journey::menu_box()
{
	QRectF box = difference(picture(menu_area), fBeforeMenu);
	double scale = fDesktop->scale();
	return QRectF(box.x() / scale, box.y() / scale, box.width() / scale, box.height() / scale)
		.translated(menu_area.topLeft());
}


// Open it covers the strip.
bool
journey::menu_is_open()
{
	return count(strip_yellow, {20, 22, 40, 15}) == 0;
}


void
journey::open_menu()
{
	bring_forward();
	fBeforeMenu = picture(menu_area);
	click(menu_title);
	until("the menu does not open", [&] { return menu_is_open(); });
}


void
journey::choose(item which)
{
	open_menu();
	QRectF box, last;
	until("the menu is not painted", [&] {
		last = box;
		box = menu_box();
		return box == last && box.height() > 15 * menu_items;
	});
	double row = box.height() / menu_items;
	click({box.center().x(), box.top() + row * ((int)which + 0.5)});
	stand_aside();
	if (which != file_quit)
		until("the menu stays open", [&] { return !menu_is_open(); });
}


// A Return that comes while the panel still reads folders for its suggestions may lead it into one
// of them: then once more.
void
journey::answer(const std::string& title, const std::string& file)
{
	wait_for(title);
	for (int i = 0; i < 3 && find(title); i++) {
		key("ctrl+a");
		type(file);
		at_rest();
		key("Return");
		at_rest();
	}
	until("the panel \"" + title + "\" stays", [&] { return !find(title); });
}


void
journey::tag(const std::string& name)
{
	std::vector<std::string> all;
	until("the font has no " + name, [&] {
		all = fProgram->tags();
		return std::find(all.begin(), all.end(), name) != all.end();
	});
	auto place = (double)(std::find(all.begin(), all.end(), name) - all.begin());
	QRectF cell(10 + 30 * place, 42, 30, 11);
	click({cell.left() + 8, 46});
	stand_aside();
	until("the tag " + name + " is not red", [&] { return count_red(cell) >= 5; });
}


void
journey::enter(QPointF field, const std::string& text)
{
	QRectF around(field - QPointF(45, 9), QSizeF(90, 18));
	at_rest();
	QImage before = picture(around);
	click(field);
	key("ctrl+a");
	until("the field does not take the keyboard", [&] { return picture(around) != before; });
	type(text);
	key("Return");
}
