// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "outline/ttf_hmtx.h"

#include "font/malloc32.h"
#include "font/messages.h"
#include "font/panel.h"
#include "font/ttf.h"
#include "font/ttf_hhea.h"
#include "outline/em_guide.h"
#include "outline/glyph.h"
#include <Button.h>
#include <Message.h>
#include <Slider.h>
#include <TextControl.h>

enum { record_size = 4, at_lsb = 2 };
static const uint16 none = 0xFFFF;


ttf_hmtx::ttf_hmtx(ttf* font, unsigned char* buffer, unsigned long size)
	: ttf_table(font, 'hmtx', buffer, size),
	  st(nullptr),
	  ed(nullptr),
	  width(nullptr),
	  lsb(nullptr),
	  set(nullptr),
	  left(nullptr),
	  right(nullptr),
	  left_rest(0),
	  right_rest(0),
	  shown(none)
{
	if (data == nullptr)
		create_default();
}


ttf_hmtx::~ttf_hmtx() = default;


void
ttf_hmtx::create_default()
{
	delete[] data;
	uint32 count = owner->newglyphs();
	length = record_size * count;
	data = malloc32((int)length);
	for (uint32 i = 0; i < count; i++)
		put16(record_size * i, 512);
}


uint16
ttf_hmtx::numhmetrics() const
{
	return owner->hhea != nullptr ? owner->hhea->numhmtx() : 0;
}


// Beyond the full records only bearings follow, counted here in 16-bit words from the start. At the
// boundary itself the test is strict on purpose.
int
ttf_hmtx::get_mtx(unsigned short gid, unsigned short* advance, short* bearing) const
{
	if (gid >= owner->numglyphs())
		return 1;
	uint32 full = numhmetrics();
	if (gid > full) {
		*advance = full > 0 ? u16(record_size * (full - 1)) : 0;
		*bearing = s16(2 * (full + gid));
	} else {
		*advance = u16(record_size * (uint32)gid);
		*bearing = s16(record_size * (uint32)gid + at_lsb);
	}
	return 0;
}


int
ttf_hmtx::set_mtx(unsigned short gid, unsigned short advance, short bearing)
{
	if (gid >= owner->numglyphs())
		return 1;
	uint32 full = numhmetrics();
	if (gid > full) {
		put16(2 * (full + gid), (uint16)bearing);
	} else {
		put16(record_size * (uint32)gid, advance);
		put16(record_size * (uint32)gid + at_lsb, (uint16)bearing);
	}
	return 0;
}


static BSlider*
add_slider(BView* panel, BRect place, const char* label, int32 min, int32 max, rgb_color color)
{
	BSlider* slider = new BSlider(place, label, label, new BMessage(msg_slider_moved), min, max);
	slider->SetModificationMessage(new BMessage(msg_slider_moved));
	slider->SetBarColor(color);
	panel->AddChild(slider);
	slider->SetTarget(panel);
	return slider;
}


void
ttf_hmtx::AttachedToWindow()
{
	panel_colors(this);
	if (st != nullptr)
		return;
	st = panel_edit(this, panel_slots[0], "st", "st_glyph", 50);
	ed = panel_edit(this, panel_slots[1], "ed", "ed_glyph", 50);
	width = panel_edit(this, panel_slots[2], "width", "width", 50);
	lsb = panel_edit(this, panel_slots[3], "lsb", "lsb", 50);
	set = panel_button(this, panel_set, "set");
	int32 em = owner->unitsperem();
	left = add_slider(this, BRect(20, 480, 240, 500), "left", -em, em, bearing_color);
	right = add_slider(this, BRect(260, 480, 480, 500), "right", 0, 2 * em, advance_color);
	left_rest = left->Value();
	right_rest = right->Value();
}


void
ttf_hmtx::Draw(BRect area)
{
	panel_clear(this, area);
	SetHighColor(50, 50, 50);
	StrokeRect(em_square);
	if (preview == nullptr && shown != none)
		preview = glyph_in_em(*owner, shown, em_square);
	SetHighColor(255, 255, 255);
	if (preview == nullptr || left == nullptr)
		return;
	preview->draw(this, 0);
	uint16 em = owner->unitsperem();
	draw_metric(this, em_square, left->Value(), em, bearing_color);
	draw_metric(this, em_square, right->Value(), em, advance_color);
	SetHighColor(255, 255, 255);
}


void
ttf_hmtx::MessageReceived(BMessage* message)
{
	void* source;
	switch (message->what) {
		case msg_changed:
			if (message->FindPointer("source", &source) == B_OK && source == st)
				choose();
			break;
		case msg_slider_moved:
			slide();
			break;
		case msg_pressed:
			if (message->FindPointer("source", &source) == B_OK && source == set)
				set_range();
			break;
		default:
			BView::MessageReceived(message);
	}
}


// Shows the glyph whose number was typed, if there is such a glyph.
void
ttf_hmtx::choose()
{
	int64 first;
	unsigned short advance;
	short bearing;
	if (!read_hex(st, &first) || first < 0 || first > none
		|| get_mtx((uint16)first, &advance, &bearing) != 0)
		return;
	shown = (uint16)first;
	preview = nullptr;
	show_hex(st, shown, 4);
	show_hex(ed, shown, 4);
	show_hex(width, advance, 4);
	show_hex(lsb, (uint16)bearing, 4);
	left->SetValue(bearing);
	right->SetValue(advance);
	left_rest = left->Value();
	right_rest = right->Value();
	Invalidate();
}


// Takes over into its field what a slider was moved to. One that only clamped the glyph's value has
// not been moved: its field keeps the true one.
static void
follow(const BSlider* slider, int32* rest, BTextControl* field)
{
	if (slider->Value() == *rest)
		return;
	*rest = slider->Value();
	int64 typed;
	if (!read_hex(field, &typed) || (typed != *rest && typed != (uint16)*rest))
		show_hex(field, (uint16)*rest, 4);
}


void
ttf_hmtx::slide()
{
	follow(right, &right_rest, width);
	follow(left, &left_rest, lsb);
	Invalidate();
}


void
ttf_hmtx::set_range()
{
	int64 first;
	int64 last;
	int64 advance;
	int64 bearing;
	bool typed = read_hex(st, &first) && read_hex(ed, &last) && read_hex(width, &advance)
		&& read_hex(lsb, &bearing);
	if (!typed || first < 0 || first > last || first >= owner->numglyphs())
		return;
	// Of other numbers 16 bits would keep a part. A bearing is typed with its sign or as it is stored.
	if (advance < 0 || advance > 0xFFFF || bearing < INT16_MIN || bearing > 0xFFFF)
		return;
	for (int64 g = first; g <= last; g++) {
		if (set_mtx((uint16)g, (uint16)advance, (int16)bearing) != 0)
			break;
	}
	preview = nullptr;
	Invalidate();
}
