// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_PROGRAM_HMTX_USER_H
#define KERNIX_PROGRAM_HMTX_USER_H

#include "app/kernix.h"
#include "font/globals.h"
#include "font/ttf.h"
#include "outline/ttf_hmtx.h"
#include "program/panel_user.h"

class BSlider;

// What users do at the panel of hmtx, and see there.

// Three full records and two bearings.
constexpr std::string_view three_and_two = "0101 0010 0202 0020 0303 fff0 fff6 0014";
// A font of five glyphs with these metrics and 512 units to the em. Glyph 0 is empty, glyph 1 a
// triangle: (0, 0), (511, 0), (255, 511).
font_file five_glyphs();

// Opens the font and chooses its hmtx, by its number in the directory.
void at_hmtx(
	const font_file& contents, int number, const std::function<void(kernix&, robot&)>& work);
void at_hmtx(const font_file& contents, const std::function<void(kernix&, robot&)>& work);

// The fields and the button.
const BPoint first_glyph = in_panel(100, 460);
const BPoint last_glyph = in_panel(220, 460);
const BPoint width_field = in_panel(340, 460);
const BPoint bearing_field = in_panel(460, 460);
const BPoint set_button = in_panel(520, 460);

// The texts of the fields, in their order.
std::string metric_fields(robot& user);
// Fills all four and presses the button.
void set_metrics(
	robot& user, const char* first, const char* last, const char* width, const char* lsb);
octets hmtx_octets(kernix& app);

// With the window locked.
BSlider* slider(const char* name);
// The values of both.
std::vector<int32> stand_of(kernix& app);
// The user's hand on a slider: a key, and a drag of its thumb to another value.
void press_on_slider(kernix& app, robot& user, const char* name, int key);
void drag_slider(robot& user, const char* name, int value);

#endif
