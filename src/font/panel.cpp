// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "font/panel.h"

#include "font/ttf_table.h"
#include <Button.h>
#include <cstdio>
#include <cstdlib>
#include <ListView.h>
#include <Message.h>
#include <TextControl.h>

// Pixels.
static const float row_height = 15;


void
panel_colors(BView* panel)
{
	panel->SetHighColor(0, 0, 0);
	panel->SetViewColor(200, 200, 220);
	panel->SetLowColor(150, 150, 165);
	panel->SetFont(be_plain_font);
}


void
panel_clear(BView* panel, BRect area)
{
	panel->SetHighColor(255, 255, 255);
	panel->SetLowColor(0, 0, 0);
	panel->SetViewColor(0, 0, 0);
	panel->FillRect(area, B_SOLID_LOW);
}


void
panel_row(BView* panel, int row, const char* label, const char* value, const panel_column& column)
{
	float baseline = column.first + row_height * (float)row;
	panel->DrawString(label, BPoint(column.label_x, baseline));
	panel->DrawString(value, BPoint(column.value_x, baseline));
}


std::string
field_text(const ttf_table& table, const panel_field& field)
{
	char text[20] = "";
	if (table.length < (uint32)field.offset + field.size)
		return text;
	switch (field.size) {
		case 1:
			snprintf(text, sizeof text, "%02x", table.u8(field.offset));
			break;
		case 2:
			snprintf(text, sizeof text, "%04x", table.u16(field.offset));
			break;
		case 4:
			snprintf(text, sizeof text, "%08x", table.u32(field.offset));
			break;
		case 8:
			snprintf(text, sizeof text, "%016llx", (unsigned long long)table.u64(field.offset));
			break;
	}
	return text;
}


void
panel_rows(ttf_table* panel, std::span<const panel_field> rows, const panel_column& column)
{
	int row = 0;
	for (const panel_field& field : rows)
		panel_row(panel, row++, field.label, field_text(*panel, field).c_str(), column);
}


BTextControl*
panel_edit(BView* panel, BRect place, const char* name, const char* label, float divider)
{
	BTextControl* control = new BTextControl(place, name, label, "", new BMessage(msg_changed),
		B_FOLLOW_LEFT | B_FOLLOW_TOP, B_WILL_DRAW | B_NAVIGABLE);
	control->SetDivider(divider);
	panel->AddChild(control);
	control->SetTarget(panel);
	return control;
}


BButton*
panel_button(BView* panel, BRect place, const char* name, uint32 what)
{
	BButton* button = new BButton(place, name, name, new BMessage(what),
		B_FOLLOW_LEFT | B_FOLLOW_TOP, B_WILL_DRAW | B_NAVIGABLE);
	panel->AddChild(button);
	button->SetTarget(panel);
	return button;
}


BListView*
panel_listview(BView* panel, BRect place, const char* name, uint32 what)
{
	BListView* list = new BListView(place, name, B_SINGLE_SELECTION_LIST,
		B_FOLLOW_LEFT | B_FOLLOW_TOP, B_WILL_DRAW | B_FRAME_EVENTS | B_NAVIGABLE);
	list->SetHighColor(0, 0, 0);
	list->SetLowColor(222, 222, 222);
	list->SetViewColor(222, 222, 222);
	list->SetSelectionMessage(new BMessage(what));
	panel->AddChild(list);
	list->SetTarget(panel);
	return list;
}


void
empty_list(BListView* list)
{
	for (int32 row = list->CountItems() - 1; row >= 0; row--)
		delete list->RemoveItem(row);
}


bool
read_hex(const BTextControl* control, int64* value)
{
	char* end;
	const long long number = strtoll(control->Text(), &end, 16);
	if (end == control->Text())
		return false;
	*value = number;
	return true;
}


void
show_hex(BTextControl* control, uint32 value, int digits)
{
	char text[12];
	snprintf(text, sizeof text, "%0*x", digits, value);
	control->SetText(text);
}
