// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "app/initview.h"

#include "font/globals.h"
#include "font/messages.h"
#include "font/panel.h"
#include "font/ttf.h"
#include "tables/unicode_ranges.h"
#include <algorithm>
#include <Application.h>
#include <Button.h>
#include <CheckBox.h>
#include <cstdio>
#include <cstring>
#include <iterator>
#include <Message.h>
#include <Messenger.h>

enum { rows = 24, specials = 69, byte_order_mark = 0xFEFF };

static_assert(std::size(unicode_ranges) == initview::max_ranges);


initview::initview(BRect)
	: BView(BRect(0, 0, 561, 511), "initview", B_FOLLOW_ALL_SIDES, B_WILL_DRAW),
	  set(nullptr),
	  boxes()
{
	delete curttf->chrs;
	curttf->chrs = new chrs_record();
}


initview::~initview() = default;


// Where the check box of a block stands.
static BRect
place_of(int index)
{
	const int column = index / rows;
	const int row = index % rows;
	const float left = 200.0f * (float)column;
	const float top = 20.0f * (float)row + 10;
	return BRect(left, top, left + 160, top + 15);
}


void
initview::AttachedToWindow()
{
	panel_colors(this);
	if (set == nullptr) {
		set = panel_button(this, BRect(500, 485, 540, 510), "set");
		for (int i = 0; i < max_ranges; i++) {
			boxes[i] = new BCheckBox(place_of(i), "unicode", unicode_ranges[i].name,
				new BMessage(msg_ticked), B_FOLLOW_LEFT | B_FOLLOW_TOP, B_WILL_DRAW | B_NAVIGABLE);
			AddChild(boxes[i]);
			boxes[i]->SetTarget(this);
		}
	}
	MakeFocus();
	setchrs();
	redraw();
}


void
initview::Draw(BRect area)
{
	panel_clear(this, area);
	redraw();
}


void
initview::redraw()
{
	SetHighColor(255, 255, 255);
	SetLowColor(0, 0, 0);
	FillRect(BRect(400, 480, 560, 510), B_SOLID_LOW);
	char text[16];
	snprintf(text, sizeof text, "%04xchrs.", curttf->chrs->count);
	DrawString(text, BPoint(400, 508));
}


void
initview::MessageReceived(BMessage* message)
{
	switch (message->what) {
		case msg_ticked:
			setchrs();
			redraw();
			break;
		case msg_pressed:
			be_app_messenger.SendMessage(msg_confirmed);
			break;
		default:
			BView::MessageReceived(message);
	}
}


void
initview::setchrs()
{
	chrs_record& chosen = *curttf->chrs;
	memset(chosen.ranges, 0, sizeof chosen.ranges);
	memset(chosen.codes, 0, sizeof chosen.codes);
	chosen.codes[0] = 1;
	for (int i = 0; i < max_ranges; i++) {
		if (boxes[i]->Value() == B_CONTROL_OFF)
			continue;
		const unicode_range& range = unicode_ranges[i];
		chosen.ranges[i] = 1;
		memset(chosen.codes + range.first, 1, (size_t)range.last - range.first + 1);
		if (i == specials)
			chosen.codes[byte_order_mark] = 1;
	}
	chosen.count = (uint32)std::count(std::begin(chosen.codes), std::end(chosen.codes), 1);
	chosen.glyphs = chosen.count;
}
