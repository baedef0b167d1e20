// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "bitmaps/ebdttoolview.h"

#include "bitmaps/ebdteditview.h"
#include "bitmaps/ttf_ebdt.h"
#include "bitmaps/ttf_eblc.h"
#include "font/messages.h"
#include "font/palette.h"
#include "font/panel.h"
#include "font/ttf.h"
#include <algorithm>
#include <Bitmap.h>
#include <Button.h>
#include <cstdio>
#include <Font.h>
#include <MenuField.h>
#include <MenuItem.h>
#include <Message.h>
#include <Messenger.h>
#include <PopUpMenu.h>
#include <TextControl.h>
#include <vector>

ebdttoolview::ebdttoolview(BRect frame, ttf_ebdt* table)
	: BView(frame, "tools", B_FOLLOW_TOP_BOTTOM, B_WILL_DRAW),
	  gno_entry(nullptr),
	  chr_code(nullptr),
	  strike_field(nullptr),
	  set_button(nullptr),
	  ebdt_table(table),
	  gno(-1),
	  chr(-1),
	  pt(0)
{
}


ebdttoolview::~ebdttoolview() = default;


void
ebdttoolview::AttachedToWindow()
{
	SetLowColor(200, 200, 0);
	SetViewColor(palette_color);
	BFont font(be_plain_font);
	font.SetSize(palette_font_size);
	SetFont(&font);
	if (offscreen == nullptr) {
		offscreen = std::make_unique<BBitmap>(Bounds(), B_RGB32, true);
		chr_code = palette_edit(this, BRect(0, 10, 45, 30), "chr", "chr.", "0000", 15);
		gno_entry = palette_edit(this, BRect(0, 40, 45, 60), "gno", "gno.", "0000", 15);
		set_button = palette_button(this, BRect(5, 430, 45, 450), "set");
	}
	redraw();
}


static BPopUpMenu*
make_menu(const ttf_eblc* places)
{
	BPopUpMenu* menu = new BPopUpMenu("pt", true, true, B_ITEMS_IN_COLUMN);
	std::vector<uint16> strikes;
	if (places != nullptr)
		strikes = places->strikes();
	strikes.resize(std::min<size_t>(strikes.size(), ebdttoolview::max_strikes));
	for (uint16 strike : strikes) {
		char label[8];
		snprintf(label, sizeof label, "%d", strike % 256);
		BMessage* message = new BMessage(msg_strike);
		message->AddInt16("pt", (int16)strike);
		menu->AddItem(new BMenuItem(label, message));
	}
	return menu;
}


void
ebdttoolview::init()
{
	if (strike_field != nullptr) {
		strike_field->RemoveSelf();
		delete strike_field;
	}
	BPopUpMenu* menu = make_menu(ebdt_table->owner->eblc);
	menu->SetTargetForItems(this);
	strike_field = new BMenuField(BRect(5, 85, 45, 105), "point", nullptr, menu, true,
		B_FOLLOW_LEFT | B_FOLLOW_TOP, B_WILL_DRAW);
	strike_field->SetFontSize(palette_font_size);
	AddChild(strike_field);
}


void
ebdttoolview::redraw()
{
	if (offscreen == nullptr)
		return;
	paint_on(offscreen.get(), [](BView* view) {
		view->SetHighColor(palette_color);
		view->FillRect(view->Bounds());
	});
	show_hex(gno_entry, (uint16)gno, 4);
	show_hex(chr_code, (uint16)chr, 4);
	Draw(Bounds());
}


void
ebdttoolview::Draw(BRect)
{
	DrawBitmap(offscreen.get(), BPoint(0, 0));
	if (strike_field != nullptr)
		DrawString("point", BPoint(5, 80));
}


void
ebdttoolview::MouseDown(BPoint)
{
	palette_choose(ebdt_table->edit, "gno", (int16)(gno + 1));
}


void
ebdttoolview::MessageReceived(BMessage* message)
{
	void* source;
	int16 strike;
	BMessage commit(msg_commit);
	switch (message->what) {
		case msg_editor:
			learn(message);
			break;
		case msg_entered:
			if (message->FindPointer("source", &source) == B_OK)
				entered(source);
			break;
		case msg_pressed:
			if (message->FindPointer("source", &source) == B_OK && source == set_button)
				send(commit);
			break;
		case msg_strike:
			if (message->FindInt16("pt", &strike) == B_OK)
				palette_choose(ebdt_table->edit, "pt", strike);
			break;
		default:
			BView::MessageReceived(message);
	}
}


// What the edit view tells; what a message does not hold has not changed.
void
ebdttoolview::learn(const BMessage* message)
{
	int16 number;
	if (message->FindInt16("gno", &number) == B_OK)
		gno = number;
	if (message->FindInt16("chr", &number) == B_OK)
		chr = number;
	if (message->FindInt16("pt", &number) == B_OK)
		pt = (uint16)number;
	redraw();
}


void
ebdttoolview::entered(const void* source)
{
	if (source == chr_code)
		palette_choose(ebdt_table->edit, "chr", palette_number(chr_code, 0));
	else if (source == gno_entry)
		palette_choose(ebdt_table->edit, "gno", palette_number(gno_entry, 0));
}


void
ebdttoolview::send(BMessage& message)
{
	BMessenger(ebdt_table->edit).SendMessage(&message);
}
