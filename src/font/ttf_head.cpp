// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "font/ttf_head.h"

#include "font/malloc32.h"
#include "font/messages.h"
#include "font/panel.h"
#include <cstdio>
#include <Message.h>
#include <TextControl.h>

// Byte offsets of the fields used here.
enum {
	at_version = 0,
	at_revision = 4,
	at_adjustment = 8,
	at_magic = 12,
	at_flags = 16,
	at_units = 18,
	at_created = 20,
	at_modified = 28,
	at_xmin = 36,
	at_ymin = 38,
	at_xmax = 40,
	at_ymax = 42,
	at_lowestppem = 46,
	at_direction = 48,
	at_locformat = 50
};

enum { head_length = 54 };

static constexpr panel_field rows[] = {
	{"tableVersionNumber", 0, 4},
	{"fontRevision", 4, 4},
	{"checkSumAdjustment", 8, 4},
	{"magicNumber", 12, 4},
	{"flags", 16, 2},
	{"unitsPerEm", 18, 2},
	{"created", 20, 8},
	{"modified", 28, 8},
	{"xMin", 36, 2},
	{"yMin", 38, 2},
	{"xMax", 40, 2},
	{"yMax", 42, 2},
	{"macStyle", 44, 2},
	{"lowestRecPPEM", 46, 2},
	{"fontDirectionHint", 48, 2},
	{"indexToLocFormat", 50, 2},
	{"glyphDataFormat", 52, 2},
};
static_assert(rows_fill(rows, head_length));


static time_t
local_1904()
{
	struct tm start = {};
	start.tm_mday = 1;
	start.tm_mon = 0;
	start.tm_year = 4;
	start.tm_wday = -1;
	start.tm_isdst = 0;
	return mktime(&start);
}


ttf_head::ttf_head(ttf* font, unsigned char* buffer, unsigned long size)
	: ttf_table(font, 'head', buffer, size),
	  fontrevision(nullptr),
	  epoch(local_1904())
{
	if (data == nullptr)
		create_default();
}


void
ttf_head::create_default()
{
	delete[] data;
	length = head_length;
	data = malloc32(head_length);
	put32(at_version, 0x00010000);
	put32(at_magic, 0x5F0F3CF5);
	put16(at_flags, 1);
	put16(at_units, 512);
	put16(at_xmax, 511);
	put16(at_ymax, 511);
	put16(at_lowestppem, 6);
	put16(at_direction, 1);
	put16(at_locformat, 1);
}


void
ttf_head::AttachedToWindow()
{
	panel_colors(this);
	if (fontrevision == nullptr)
		fontrevision =
			panel_edit(this, BRect(20, 450, 200, 470), "fontrevision", "fontRevision", 120);
	MakeFocus();
}


void
ttf_head::Draw(BRect area)
{
	panel_clear(this, area);
	redraw();
}


void
ttf_head::MessageReceived(BMessage* message)
{
	if (message->what == msg_changed)
		edit();
	else
		BView::MessageReceived(message);
}


void
ttf_head::redraw()
{
	int row = 0;
	for (const panel_field& field : rows) {
		std::string text = field_text(*this, field);
		if (field.size == 8 && !text.empty())
			text += date_text(u64(field.offset));
		panel_row(this, row++, field.label, text.c_str());
	}
}


// What the local clock showed so many seconds after the epoch; only the low 32 bits count.
std::string
ttf_head::date_text(uint64 seconds) const
{
	time_t moment = epoch + (time_t)(uint32)seconds;
	struct tm local;
	if (localtime_r(&moment, &local) == nullptr)
		return std::string();
	char text[64];
	snprintf(text, sizeof text, " (%04d/%02d/%02d %02d:%02d:%02d)", local.tm_year + 1900,
		local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec);
	return text;
}


// What is no number changes nothing, but the panel is painted again all the same.
void
ttf_head::edit()
{
	int64 revision;
	if (read_hex(fontrevision, &revision)) {
		show_hex(fontrevision, (uint32)revision, 8);
		put32(at_revision, (uint32)revision);
	}
	Draw(Bounds());
}


void
ttf_head::update()
{
	uint32 now = (uint32)(time(nullptr) - epoch);
	if (u64(at_created) == 0)
		put64(at_created, now);
	put64(at_modified, now);
}


void
ttf_head::setsum(unsigned long s)
{
	// Swapped once here, once by put32: the bytes end up in host order.
	put32(at_adjustment, B_HOST_TO_BENDIAN_INT32(balance - (uint32)s));
}


bool
ttf_head::is32loca() const
{
	return u16(at_locformat) == 1;
}


bool
ttf_head::holds_locformat() const
{
	return all().has(at_locformat, sizeof(uint16));
}


void
ttf_head::set32loca()
{
	put16(at_locformat, 1);
}


unsigned short
ttf_head::unitsperem() const
{
	return u16(at_units);
}


BRect
ttf_head::bounds() const
{
	return BRect(s16(at_xmin), s16(at_ymax), s16(at_xmax), s16(at_ymin));
}
