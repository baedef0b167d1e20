// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_PROGRAM_BITMAP_USER_H
#define KERNIX_PROGRAM_BITMAP_USER_H

#include "app/kernix.h"
#include "bitmaps/bitmap.h"
#include "bitmaps/ebdteditview.h"
#include "bitmaps/ebdttoolview.h"
#include "bitmaps/ttf_ebdt.h"
#include "font/globals.h"
#include "font/ttf.h"
#include "program/panel_user.h"
#include "support/strikes.h"

// What users do at the editor of bitmaps, and see there.

// Two sizes, 12 and 16. At 12 glyph 1, which is "A", is a cross of 3 x 3 pixels from (125, 175) of
// the edit view on, with cells of 25 x 25; glyph 2 a bar of 4 x 1 there. At 16 glyph 1 has 9 x 2
// pixels. Glyphs 0, 3 and 4 have none.
strikes two_sizes();
// Of the outlines glyph 1 is a triangle of 512 units, 256 wide, its bearing 128.
font_file font_of(const strikes& bitmaps);

// Opens a font whose first table is EBDT, and chooses it.
void at_bitmaps(const font_file& contents, const std::function<void(kernix&, robot&)>& work);

// Places of the palette, in the window.
const BPoint chr_field = in_panel(30, 20);
const BPoint gno_field = in_panel(30, 50);
const BPoint strike_menu = in_panel(25, 95);
const BPoint commit_button = in_panel(25, 440);
const BPoint background = in_panel(25, 300);

// A place of the edit view, in the window.
BPoint in_editor(float x, float y);

// "character glyph" as the palette shows them.
std::string chosen(robot& user);
// The pixels that are edited, one space between the rows; "none" for an undefined bitmap.
std::string edited(kernix& app);
// Presses there and gives edited().
std::string pressed(kernix& app, robot& user, float x, float y);

// Sends the edit view, or the palette, a message.
void tell_editor(robot& user, BMessage message);
void tell_palette(robot& user, BMessage message);

#endif
