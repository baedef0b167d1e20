// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The soak's user settles down to work at one table for a while. What comes to mind at random seldom
// gets as deep as somebody does who wants something.
#include "app/kernix.h"
#include "app/kernixwindow.h"
#include "app/selectview.h"
#include "editor/glyfeditview.h"
#include "font/bytes.h"
#include "font/globals.h"
#include "font/ttf.h"
#include "outline/glyph.h"
#include "outline/shape.h"
#include "outline/ttf_glyf.h"
#include "program/bitmap_user.h"
#include "program/journey.h"
#include "soak/user.h"

#include <Messenger.h>

// Fields of the outline palette, in the window.
static const BPoint outline_gno = in_panel(30, 80);
static const BPoint component_field = in_panel(30, 270);
// Where the edit view starts in the window.
static const BPoint corner(50, 53);


void
soak_user::enter_text(BPoint place, const std::string& text)
{
	note("enter " + text + " at " + text_of(place));
	fHand.click(place);
	fHand.key(Qt::Key_A, "\x01", B_CONTROL_KEY);
	fHand.type(text);
	fHand.key(Qt::Key_Return, "\r");
}


// Where the table's tag stands in the selector, -1 for nowhere.
int
soak_user::number_of(uint32 tag)
{
	if (!fApp.window->Lock())
		return -1;
	const selectview& selector = *fApp.window->selector;
	int found = -1;
	for (int i = 0; i < selector.count && found < 0; i++)
		found = selector.tags[i] == tag ? i : -1;
	fApp.window->Unlock();
	return found;
}


// Shows the panel of this table, which a font may have to be opened for. False when there is none.
bool
soak_user::reach(uint32 tag)
{
	if (number_of(tag) < 0) {
		uint8 name[4];
		put32(name, tag);
		const std::string path = put(fShelf.good_with(std::string(name, name + 4), fChance));
		note("open " + path);
		open_file(fHand, path);
	}
	const int number = number_of(tag);
	if (number < 0)
		return false;
	note("table " + std::to_string(number));
	fHand.click(place_of_tag(number));
	return true;
}


// In the window: a point of the outline on display, or any place when it has none.
BPoint
soak_user::some_point()
{
	BPoint found = somewhere();
	if (!fApp.window->Lock())
		return found;
	std::vector<BPoint> points;
	for (int i = 0; cur_glyph != nullptr && i < cur_glyph->num_shape; i++) {
		const shape& contour = *cur_glyph->shapes[i];
		points.insert(points.end(), contour.pts, contour.pts + contour.num);
	}
	if (!points.empty() && curttf != nullptr && curttf->glyf != nullptr) {
		const glyfeditview& view = *curttf->glyf->edit;
		const BPoint unit = fChance.any(points);
		found = corner - view.Bounds().LeftTop()
			+ BPoint((unit.x + 0.5f) * view.scale, (unit.y + 0.5f) * view.scale);
	}
	fApp.window->Unlock();
	return found;
}


// Presses a point of the outline and pulls it somewhere, or does not.
void
soak_user::pull_point()
{
	const BPoint from = some_point();
	const int32 keys = some_keys();
	const int32 button = some_button();
	const int steps = fChance.below(4);
	note("pull " + text_of(from) + " button " + std::to_string(button) + " keys "
		+ std::to_string(keys) + ", " + std::to_string(steps) + " steps");
	fHand.press(from, button, keys);
	BPoint at = from;
	for (int i = 0; i < steps; i++) {
		at = at + BPoint((float)fChance.between(-30, 30), (float)fChance.between(-30, 30));
		fHand.move(at, keys);
	}
	fHand.release(at, button, keys);
}


// A band over most of the canvas.
void
soak_user::select_much()
{
	const BPoint from(52, 55);
	const BPoint to((float)fChance.between(200, 560), (float)fChance.between(200, 560));
	note("select to " + text_of(to));
	fHand.click(in_panel(38, 108));
	fHand.press(from);
	fHand.move(to);
	fHand.release(to);
}


// The keys that work on what is selected.
void
soak_user::press_editing_key()
{
	static const struct {
		int key;
		const char* text;
	} keys[] = {{Qt::Key_Left, ""}, {Qt::Key_Right, ""}, {Qt::Key_Up, ""}, {Qt::Key_Down, ""},
		{Qt::Key_At, "@"}, {Qt::Key_Delete, "\x7f"}};
	const auto& [key, text] = fChance.any(keys);
	note("editing key " + std::to_string(key));
	fHand.key(key, text);
}


// Corner after corner, as polygons are made; the last one closes it.
void
soak_user::place_corners()
{
	const int corners = fChance.between(2, 8);
	const BPoint first = somewhere();
	note(std::to_string(corners) + " corners from " + text_of(first));
	fHand.click(first);
	for (int i = 1; i < corners; i++) {
		const BPoint next = somewhere();
		fHand.move(next);
		fHand.click(next, fChance.one_in(6) ? B_SECONDARY_MOUSE_BUTTON : B_PRIMARY_MOUSE_BUTTON);
	}
	fHand.click(first);
}


void
soak_user::choose_glyph()
{
	static const char* const glyphs[] = {"0", "1", "2", "3", "4", "2", "3", "24", "41", "ffff"};
	enter_text(outline_gno, fChance.any(glyphs));
}


void
soak_user::change_components()
{
	look();
	for (const sight::thing& each : fSight.all(sight::button)) {
		if (each.label == "add") {
			enter_text(component_field, std::to_string(fChance.below(6)));
			note("add");
			fHand.click(each.place);
		}
		if (each.label == "del" && fChance.one_in(2)) {
			choose_row();
			note("del");
			fHand.click(each.place);
		}
	}
}


void
soak_user::do_some(const std::vector<void (soak_user::*)()>& choice, int most)
{
	for (int i = fChance.between(1, most); i > 0; i--) {
		look();
		if (!fSight.window || fSight.popup || fSight.alert)
			return;
		fActions++;
		(this->*fChance.any(choice))();
	}
}


void
soak_user::work_at_outlines()
{
	note("works at outlines");
	if (!reach('glyf'))
		return;
	do_some(
		{&soak_user::choose_glyph, &soak_user::take_tool, &soak_user::take_tool,
			&soak_user::select_much, &soak_user::pull_point, &soak_user::pull_point,
			&soak_user::pull_point, &soak_user::place_corners, &soak_user::drag, &soak_user::stroke,
			&soak_user::press_editing_key, &soak_user::press_editing_key, &soak_user::type_keys,
			&soak_user::edit_shortcut, &soak_user::edit_shortcut, &soak_user::change_components,
			&soak_user::press_button, &soak_user::scroll, &soak_user::save_new},
		60);
}


void
soak_user::turn_pixel()
{
	const BPoint place =
		in_editor((float)fChance.between(100, 320), (float)fChance.between(120, 320));
	note("pixel at " + text_of(place));
	fHand.click(place);
}


void
soak_user::choose_bitmap()
{
	const bool by_code = fChance.one_in(3);
	enter_text(by_code ? chr_field : gno_field, by_code ? "41" : std::to_string(fChance.below(5)));
	if (fChance.one_in(2))
		fHand.choose_menu_field(strike_menu, fChance.one_in(2) ? "12" : "16");
}


void
soak_user::work_at_bitmaps()
{
	note("works at bitmaps");
	if (!reach('EBDT'))
		return;
	choose_bitmap();
	do_some({&soak_user::choose_bitmap, &soak_user::turn_pixel, &soak_user::turn_pixel,
				&soak_user::turn_pixel, &soak_user::drag, &soak_user::press_button,
				&soak_user::type_keys},
		25);
}


void
soak_user::fill_all_fields()
{
	for (const sight::thing& each : fSight.all(sight::field))
		enter_text(each.place, std::to_string(fChance.below(fChance.one_in(3) ? 5000 : 3)));
	press_button();
}


void
soak_user::work_at_panel()
{
	static const uint32 tags[] = {
		'hmtx', 'cmap', 'name', 'gasp', 'head', 'hhea', 'maxp', 'OS/2', 'post', 'hmtx', 'EBLC'};
	note("works at a panel");
	if (!reach(fChance.any(tags)))
		return;
	do_some({&soak_user::fill_all_fields, &soak_user::fill_field, &soak_user::press_button,
				&soak_user::choose_row, &soak_user::move_slider, &soak_user::click,
				&soak_user::open_menu},
		20);
}
