// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "font/palette.h"

#include "font/messages.h"
#include "font/panel.h"
#include <algorithm>
#include <Bitmap.h>
#include <Button.h>
#include <Message.h>
#include <Messenger.h>
#include <TextControl.h>
#include <View.h>

static const int arrow_size = 8;


void
paint_on(BBitmap* picture, const std::function<void(BView* view)>& paint)
{
	if (!picture->Lock())
		return;
	BView view(picture->Bounds(), "workview", B_FOLLOW_NONE, B_WILL_DRAW);
	picture->AddChild(&view);
	paint(&view);
	view.Sync();
	picture->RemoveChild(&view);
	picture->Unlock();
}


void
palette_arrow(BView* view, BPoint leftTop, arrow_direction direction)
{
	view->SetHighColor(204, 0, 0);
	for (int row = 0; row < arrow_size; row++) {
		// From the tip in the middle to the full width above and below.
		int length = 2 * std::min(row + 1, arrow_size - row);
		int first = direction == arrow_left ? arrow_size - length : 0;
		BPoint start = leftTop + BPoint((float)first, (float)row);
		view->FillRect(BRect(start, start + BPoint((float)length - 1, 0)));
	}
}


BTextControl*
palette_edit(BView* palette, BRect place, const char* name, const char* label, const char* text,
	float divider)
{
	BTextControl* control = panel_edit(palette, place, name, label, divider);
	control->SetMessage(new BMessage(msg_entered));
	control->SetText(text);
	control->SetFontSize(palette_font_size);
	return control;
}


int16
palette_number(const BTextControl* field, int16 otherwise)
{
	int64 value;
	if (!read_hex(field, &value))
		return otherwise;
	return value < 0 ? -1 : (int16)std::min<int64>(value, 0xFFFF);
}


void
palette_choose(BView* editor, const char* field, int16 value)
{
	BMessage chosen(msg_editor);
	chosen.AddInt16(field, value);
	BMessenger(editor).SendMessage(&chosen);
}


BButton*
palette_button(BView* palette, BRect place, const char* name)
{
	BButton* button = panel_button(palette, place, name);
	button->SetFontSize(palette_font_size);
	return button;
}
