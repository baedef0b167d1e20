// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "bitmaps/ebdteditview.h"

#include "bitmaps/bitmap.h"
#include "bitmaps/ebdttoolview.h"
#include "bitmaps/ttf_ebdt.h"
#include "font/messages.h"
#include "font/panel.h"
#include "font/ttf.h"
#include "outline/em_guide.h"
#include "outline/glyph.h"
#include "outline/ttf_hmtx.h"
#include <Font.h>
#include <Message.h>
#include <Messenger.h>

static const uint32 outline_color = 0xFF0000;
// Of the outline; those of the bitmap are brighter.
static const rgb_color outline_bearing_color = {0, 191, 0, 255};
static const rgb_color outline_advance_color = {0, 191, 191, 255};

ebdteditview::ebdteditview(BRect frame, ttf_ebdt* table)
	: BView(frame, "canvas", B_FOLLOW_ALL_SIDES, B_WILL_DRAW),
	  gno(-1),
	  chr(-1),
	  pt(0),
	  ebdt_table(table)
{
}


ebdteditview::~ebdteditview() = default;


void
ebdteditview::AttachedToWindow()
{
	SetHighColor(255, 255, 255);
	SetViewColor(50, 50, 50);
	SetLowColor(0, 0, 0);
	SetFont(be_bold_font);
	SetPenSize(0);
	MakeFocus();
}


void
ebdteditview::redraw(char flags)
{
	if (flags & draw_all)
		Draw(Bounds());
}


void
ebdteditview::Draw(BRect area)
{
	panel_clear(this, area);
	SetHighColor(50, 50, 50);
	StrokeRect(em_square);
	if (cur_bitmap != nullptr)
		cur_bitmap->draw(this);
	draw_outline();
	draw_bitmap_metrics();
}


void
ebdteditview::draw_outline()
{
	if (gno == -1)
		return;
	ttf& font = *ebdt_table->owner;
	if (guide_glyph == nullptr)
		guide_glyph = glyph_in_em(font, (uint16)gno, em_square);
	// Contours are drawn from where the pen stands.
	MovePenTo(0, 0);
	guide_glyph->draw(this, outline_color);
	unsigned short advance;
	short bearing;
	if (font.hmtx == nullptr || font.hmtx->get_mtx((uint16)gno, &advance, &bearing) != 0)
		return;
	uint16 em = font.unitsperem();
	draw_metric(this, em_square, bearing, em, outline_bearing_color, B_MIXED_COLORS);
	draw_metric(this, em_square, advance, em, outline_advance_color, B_MIXED_COLORS);
}


void
ebdteditview::draw_bitmap_metrics()
{
	if (cur_bitmap == nullptr || cur_bitmap->pixels == nullptr || !cur_bitmap->has_cells())
		return;
	draw_metric(this, em_square, cur_bitmap->horiBearingX, cur_bitmap->ppemX, bearing_color);
	draw_metric(this, em_square, cur_bitmap->horiAdvance, cur_bitmap->ppemX, advance_color);
}


void
ebdteditview::MouseDown(BPoint where)
{
	if (cur_bitmap != nullptr && cur_bitmap->create(1, where) == 0)
		redraw(draw_edited);
}


void
ebdteditview::MessageReceived(BMessage* message)
{
	switch (message->what) {
		case msg_editor:
			choose(message);
			break;
		case msg_commit:
			commit();
			break;
		default:
			BView::MessageReceived(message);
	}
}


// What the palette chose: a glyph by number or by character, the size.
void
ebdteditview::choose(const BMessage* message)
{
	bool by_glyph = ebdt_table->owner->choose_glyph(message, &gno, &chr);
	int16 number;
	bool by_size = message->FindInt16("pt", &number) == B_OK;
	if (by_size)
		pt = (uint16)number;
	if (!by_glyph && !by_size)
		return;
	load_bitmap();
	send2toolv(tell_all);
	guide_glyph = nullptr;
	redraw(draw_full);
}


// Reads the bitmap afresh from the font; what was edited and not committed is gone. Where the font
// has none it is undefined.
void
ebdteditview::load_bitmap()
{
	cur_bitmap = std::make_unique<bitmap>(
		(unsigned short)gno, (unsigned char)(pt / 256), (unsigned char)(pt % 256), 1);
	ebdt_table->owner->get_bitmap(cur_bitmap.get());
	cur_bitmap->setvrect(em_square);
}


void
ebdteditview::commit()
{
	if (gno == -1 || cur_bitmap == nullptr)
		return;
	ebdt_table->owner->set_bitmap(cur_bitmap.get());
	load_bitmap();
	send2toolv(tell_all);
	redraw(draw_full);
}


void
ebdteditview::send2toolv(unsigned char mask)
{
	BMessage news(msg_editor);
	if (mask & tell_gno)
		news.AddInt16("gno", gno);
	if (mask & tell_chr)
		news.AddInt16("chr", chr);
	if (mask & tell_pt)
		news.AddInt16("pt", (int16)pt);
	BMessenger(ebdt_table->tools).SendMessage(&news);
}
