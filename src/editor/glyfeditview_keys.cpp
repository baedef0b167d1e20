// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The outline edit view: keys.
#include "editor/glyfeditview.h"
#include "font/globals.h"
#include "outline/glyph.h"
#include <InterfaceDefs.h>


static unsigned char
key_of(char key)
{
	switch (key) {
		case '8':
		case B_UP_ARROW:
			return glyfeditview::key_up;
		case '2':
		case B_DOWN_ARROW:
			return glyfeditview::key_down;
		case '4':
		case B_LEFT_ARROW:
			return glyfeditview::key_left;
		case '6':
		case B_RIGHT_ARROW:
			return glyfeditview::key_right;
		case '@':
			return glyfeditview::key_reverse;
		case B_DELETE:
			return glyfeditview::key_delete;
		default:
			return 0;
	}
}


// With the keyboard the release of a held key goes elsewhere, too.
void
glyfeditview::MakeFocus(bool focus)
{
	if (!focus || !IsFocus())
		key_state = 0;
	BView::MakeFocus(focus);
}


// A key that is held counts once.
void
glyfeditview::KeyDown(const char* bytes, int32 count)
{
	if (key_state != 0 || count != 1 || IsHidden())
		return;
	key_state = key_of(bytes[0]);
	if (key_state == 0 || is_empty() || tool_mode != pointer_tool)
		return;
	if (key_state == key_left || key_state == key_right)
		step_selection(key_state);
	else
		edit_selection(key_state);
	redraw(draw_full);
}


void
glyfeditview::KeyUp(const char*, int32)
{
	key_state = 0;
}


// Left goes forward and right backward, on purpose.
void
glyfeditview::step_selection(unsigned char key)
{
	if (key == key_left)
		cur_glyph->sel_back();
	else
		cur_glyph->sel_next();
	edit_state = selecting;
}


void
glyfeditview::edit_selection(unsigned char key)
{
	const bool selected = edit_state == selecting;
	switch (key) {
		case key_up:
			selected ? cur_glyph->sel_to_top() : cur_glyph->sel_first();
			edit_state = selecting;
			break;
		case key_down:
			selected ? cur_glyph->sel_to_bot() : cur_glyph->sel_last();
			edit_state = selecting;
			break;
		case key_reverse:
			if (selected)
				cur_glyph->rev_sel();
			break;
		case key_delete:
			if (!selected)
				break;
			cur_glyph->del_sel();
			edit_state = idle;
			send2toolv(tell_empty);
	}
}
