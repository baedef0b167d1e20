// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_FONT_MESSAGES_H
#define KERNIX_FONT_MESSAGES_H

#include <SupportDefs.h>

// Every message of the program's own: who sends it to whom, and its fields.
//
// Of the platform's messages these carry the document's life as well:
// B_SIMPLE_DATA 'DATA': a drop, to the work view and from there to the application; "refs".
// B_REFS_RECEIVED: the open panel or the desktop, to the application; "refs".
// B_SAVE_REQUESTED 'SAVE': the save panel, to the application; "directory" (entry reference),
// "name" (string).
// B_CANCEL: a file panel closed without a choice, to the application.
// B_COPY, B_PASTE: the desktop's shortcuts, to the view that has the keyboard: an edit view.
enum : uint32 {
	// Menu "New" to the application. No fields.
	msg_new = 'fine',

	// Menu "Open" to the work view. No fields.
	msg_open = 'fiop',

	// Menu "Save as" to the work view. No fields.
	msg_save_as = 'finw',

	// The application to the work view: build the display of a new font. "bounds" (BRect): the
	// font's design box moved to the origin, font units, height downward.
	msg_init = 'init',

	// The work view to the selector: the font's tables. "table" (int32, repeated): their tags in
	// directory order; none clears the list.
	msg_tables = 'tset',

	// The selector to the work view: show this table's panel. The work view to the selector:
	// highlight this tag. "table" (int32): the tag.
	msg_table = 'tsel',

	// A text field of a panel to that panel: its text was confirmed. The fields of a control.
	msg_changed = 'Vchg',

	// A button of a panel to that panel: it was pressed. The fields of a control.
	msg_pressed = 'Bhit',

	// A slider of a panel to that panel: it has been moved, on the way and at the end. The fields
	// of a control.
	msg_slider_moved = 'Smov',

	// To the panel of name. The list: a record was selected; "index" (int32), -1 for none. The
	// buttons: begin a new record, delete the one selected, store what is typed. The fields of a
	// control.
	msg_name_selected = 'Nsel',
	msg_name_add = 'Nadd',
	msg_name_del = 'Ndel',
	msg_name_set = 'Nset',

	// The list of gasp's panel to that panel: a range was selected; "index" (int32), -1 for none.
	msg_range_selected = 'Fsel',

	// A check box of the set-up view to that view: it was ticked or not. The fields of a control.
	msg_ticked = 'Bchk',

	// The set-up view to the application: make the font as it is chosen. No fields.
	msg_confirmed = 'cfge',

	// A text field of an editor's palette to that palette: its text was confirmed. The fields of a
	// control.
	msg_entered = 'Tchg',

	// A palette to its edit view: choose. "gno" (int16): this glyph; "chr" (int16): the glyph of this
	// character; outlines also "psize" (int8): the pen's size, 0 to 100; "scale" (float): view
	// pixels for each canvas unit, 0 to fit; bitmaps also "pt" (int16): the size, 256 times the
	// pixels per em across plus those down. Each is optional.
	// The edit view to its palette: what has changed. "gno", "chr", "scale" as above, -1 for none;
	// bitmaps also "pt"; outlines also "compo" (int16, one for each component): its glyph; "empty" (bool): neither
	// contours nor components; "mode" (int8): the tool.
	msg_editor = 'Vchg',

	// A palette to its edit view: write what is edited into the font. No fields.
	msg_commit = 'Gset',

	// The outline palette to its edit view: empty the glyph. No fields.
	msg_clear = 'Gclr',

	// The outline palette to its edit view: add a component. "sub" (int16): its glyph.
	msg_add_component = 'Cadd',

	// The outline palette to its edit view: take a component away. "no" (int8): which, from 0.
	msg_del_component = 'Cdel',

	// The outline palette to its edit view: take this tool. No fields.
	msg_pointer = 'drpi',
	msg_free = 'drfr',
	msg_rect = 'drre',
	msg_ellipse = 'drel',
	msg_polygon = 'drpo',
	msg_round = 'drro',

	// The menu of the bitmap palette to that palette: a size was chosen. "pt" (int16) as above.
	msg_strike = 'Msel',

	// Anybody to the outline edit view: paint everything. No fields.
	msg_repaint = 'edrd'
};

#endif
