// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "app/selectview.h"

#include "app/kernixview.h"
#include "app/kernixwindow.h"
#include "font/bytes.h"
#include "font/messages.h"
#include "font/palette.h"
#include "outline/glyph.h"
#include <algorithm>
#include <Bitmap.h>
#include <cmath>
#include <cstdio>
#include <Font.h>
#include <Message.h>
#include <Messenger.h>

// Where tags are written and where a click counts, in pixels.
static const float first_column = 10;
static const float column_width = 30;
static const float baseline = 30;
static const float first_live_row = 20;


selectview::selectview(BRect frame)
	: BView(frame, "selector", B_FOLLOW_LEFT_RIGHT, B_WILL_DRAW),
	  count(0),
	  tags(),
	  selected(-1)
{
	prepare_clipboard();
}


selectview::~selectview() = default;


void
selectview::AttachedToWindow()
{
	SetViewColor(palette_color);
	BFont font(be_plain_font);
	font.SetSize(10);
	SetFont(&font);
	if (image == nullptr)
		image = std::make_unique<BBitmap>(BRect(0, 0, 561, 32), B_RGB32, true);
	redraw();
}


void
selectview::Draw(BRect)
{
	DrawBitmap(image.get(), BPoint(0, 0));
}


void
selectview::MouseDown(BPoint where)
{
	if (where.y < first_live_row)
		return;
	// Truncated toward zero: the margin belongs to the first tag.
	float column = truncf((where.x - first_column) / column_width);
	if (!(column >= 0 && column < count))
		return;
	kernixwindow* window = dynamic_cast<kernixwindow*>(Window());
	if (window == nullptr)
		return;
	BMessage chosen(msg_table);
	chosen.AddInt32("table", (int32)tags[(int32)column]);
	BMessenger(window->workview).SendMessage(&chosen);
}


void
selectview::MessageReceived(BMessage* message)
{
	switch (message->what) {
		case msg_tables:
			list(message);
			break;
		case msg_table:
			select(message);
			break;
		default:
			BView::MessageReceived(message);
	}
}


void
selectview::redraw()
{
	if (image == nullptr)
		return;
	paint_on(image.get(), [this](BView* view) { paint(view); });
	Draw(Bounds());
}


void
selectview::list(const BMessage* message)
{
	selected = -1;
	count = 0;
	int32 tag;
	while (count < max_tags && message->FindInt32("table", count, &tag) == B_OK)
		tags[count++] = (uint32)tag;
	redraw();
}


void
selectview::select(const BMessage* message)
{
	int32 tag;
	if (message->FindInt32("table", &tag) != B_OK)
		return;
	const uint32* found = std::find(tags, tags + count, (uint32)tag);
	if (found == tags + count)
		return;
	selected = (int32)(found - tags);
	redraw();
}


void
selectview::paint(BView* view) const
{
	BFont font;
	GetFont(&font);
	view->SetFont(&font);
	view->SetLowColor(palette_color);
	view->FillRect(view->Bounds(), B_SOLID_LOW);
	for (int32 i = 0; i < count; i++) {
		uint8 tag[4];
		put32(tag, tags[i]);
		char text[8];
		snprintf(text, sizeof text, "%c%c%c%c", tag[0], tag[1], tag[2], tag[3]);
		if (i == selected)
			view->SetHighColor(255, 0, 0);
		else
			view->SetHighColor(0, 0, 0);
		view->DrawString(text, BPoint(first_column + column_width * i, baseline));
	}
}
