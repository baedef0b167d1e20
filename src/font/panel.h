// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_FONT_PANEL_H
#define KERNIX_FONT_PANEL_H

#include "font/messages.h"
#include <cstddef>
#include <Rect.h>
#include <span>
#include <string>
#include <SupportDefs.h>

class BButton;
class BListView;
class BTextControl;
class BView;
class ttf_table;

// What the table panels share, as data and functions; what is a panel's own stands in its file.
// All of it runs in the window's thread. Places are view pixels of the panel, 562 x 512 of them.

// One line of a listing: a number in the table's bytes, shown in hexadecimal with two digits for
// each byte.
struct panel_field {
	const char* label;
	uint16 offset;
	uint8 size; // 1, 2, 4 or 8 bytes
};

// Whether the rows cover a table of this length: each starts where the one before ended.
template <size_t count>
constexpr bool
rows_fill(const panel_field (&rows)[count], uint32 length)
{
	uint32 end = 0;
	for (const panel_field& row : rows) {
		if (row.offset != end)
			return false;
		end += row.size;
	}
	return end == length;
}

// Where the controls that panels have in common stand.
constexpr BRect panel_slots[4] = {BRect(20, 450, 120, 470), BRect(140, 450, 240, 470),
	BRect(260, 450, 360, 470), BRect(380, 450, 480, 470)};
constexpr BRect panel_set = BRect(500, 448, 540, 470);
constexpr BRect panel_add = BRect(20, 410, 70, 430);
constexpr BRect panel_del = BRect(100, 410, 150, 430);
constexpr BPoint panel_list = BPoint(20, 20);

// Colours and font of a panel as it is attached: its controls take them over.
void panel_colors(BView* panel);

// White on black from here on, and all of the rectangle black.
void panel_clear(BView* panel, BRect area);

// Where a listing stands: its labels and values, and the baseline of its first row.
struct panel_column {
	float label_x;
	float value_x;
	float first;
};

constexpr panel_column panel_main = {20, 170, 20};

// Writes a line of the listing, from row 0.
void panel_row(BView* panel, int row, const char* label, const char* value,
	const panel_column& column = panel_main);

// The value of a field; empty where the table is too short for it.
std::string field_text(const ttf_table& table, const panel_field& field);

// Lists these rows from row 0 on, each with the value that stands in the panel's bytes.
void panel_rows(
	ttf_table* panel, std::span<const panel_field> rows, const panel_column& column = panel_main);

// Adds a text field whose message is the panel's 'Vchg', aimed at the panel, and gives it; it
// becomes the panel's. The panel must be attached. The divider is the width of the label.
BTextControl* panel_edit(
	BView* panel, BRect place, const char* name, const char* label, float divider);

// Adds a button, labelled with its name, whose message is of that code, aimed at the panel, and gives
// it; it becomes the panel's. The panel must be attached.
BButton* panel_button(BView* panel, BRect place, const char* name, uint32 what = msg_pressed);

// Adds a list of single selection whose selection message is of that code, aimed at the panel, and
// gives it; it becomes the panel's. The panel must be attached.
BListView* panel_listview(BView* panel, BRect place, const char* name, uint32 what);

// Removes and destroys the rows of a list, the last first.
void empty_list(BListView* list);

// The number typed in a field: true when its text begins with a hexadecimal one, which may have a
// sign. It may be larger than what it is meant for; beyond 63 bits it is the largest of these.
bool read_hex(const BTextControl* control, int64* value);

// Shows a number with so many digits, as a text of the program's: the field counts as unchanged.
void show_hex(BTextControl* control, uint32 value, int digits);

#endif
