// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_FONT_PALETTE_H
#define KERNIX_FONT_PALETTE_H

#include <functional>
#include <GraphicsDefs.h>
#include <Point.h>
#include <Rect.h>
#include <SupportDefs.h>

class BBitmap;
class BButton;
class BTextControl;
class BView;

// What the palettes of the two editors share, and the strip of tags. Window's thread; places are
// pixels.

constexpr rgb_color palette_color = {255, 204, 68, 255};
// Of all texts.
constexpr float palette_font_size = 10;

// Calls paint with a view over all of the bitmap, which must accept views; the bitmap's pixels are
// complete when it returns.
void paint_on(BBitmap* picture, const std::function<void(BView* view)>& paint);

// A step arrow, 8 x 8 pixels.
enum arrow_direction { arrow_left, arrow_right };
void palette_arrow(BView* view, BPoint leftTop, arrow_direction direction);

// Adds a text field whose message is the palette's 'Tchg', aimed at the palette, and gives it; it
// becomes the palette's. The palette must be attached. The divider is the width of the label.
BTextControl* palette_edit(BView* palette, BRect place, const char* name, const char* label,
	const char* text, float divider);

// The hexadecimal number typed in a field, as far as 16 bits go: what is larger is no glyph's or
// character's, like FFFF. What is no number at all counts as the other value.
int16 palette_number(const BTextControl* field, int16 otherwise);

// Posts a palette's choice to its edit view: 'Vchg' with one number.
void palette_choose(BView* editor, const char* field, int16 value);

// Adds a button as panel_button() does.
BButton* palette_button(BView* palette, BRect place, const char* name);

#endif
