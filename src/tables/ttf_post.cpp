// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "tables/ttf_post.h"

#include "font/malloc32.h"
#include "font/messages.h"
#include "font/panel.h"
#include <Message.h>
#include <TextControl.h>

enum { header_size = 32, at_italicAngle = 4, at_underlineThickness = 10, at_isFixedPitch = 12 };

static constexpr panel_field rows[] = {
	{"FormatType", 0, 4},
	{"italicAngle", at_italicAngle, 4},
	{"underlinePosition", 8, 2},
	{"underlineThickness", at_underlineThickness, 2},
	{"isFixedPitch", at_isFixedPitch, 4},
	{"minMemType42", 16, 4},
	{"maxMemType42", 20, 4},
	{"minMemType1", 24, 4},
	{"maxMemType1", 28, 4},
};
static_assert(rows_fill(rows, header_size));


ttf_post::ttf_post(ttf* font, unsigned char* buffer, unsigned long size)
	: ttf_table(font, 'post', buffer, size),
	  isFixedPitch(nullptr)
{
	if (data == nullptr)
		create_default();
}


ttf_post::~ttf_post() = default;


int
ttf_post::create_default()
{
	delete[] data;
	length = header_size;
	data = malloc32(header_size);
	put32(0, 0x00030000);
	put32(at_italicAngle, 0x00140000);
	put16(at_underlineThickness, 20);
	return 0;
}


void
ttf_post::AttachedToWindow()
{
	panel_colors(this);
	if (isFixedPitch == nullptr)
		isFixedPitch =
			panel_edit(this, BRect(20, 450, 200, 470), "isFixedPitch", "isFixedPitch", 120);
	MakeFocus();
}


void
ttf_post::Draw(BRect area)
{
	panel_clear(this, area);
	redraw();
}


void
ttf_post::redraw()
{
	panel_rows(this, rows);
}


void
ttf_post::MessageReceived(BMessage* message)
{
	if (message->what != msg_changed) {
		BView::MessageReceived(message);
		return;
	}
	int64 value;
	if (read_hex(isFixedPitch, &value)) {
		show_hex(isFixedPitch, (uint32)value, 8);
		put32(at_isFixedPitch, (uint32)value);
	}
	Draw(Bounds());
}
