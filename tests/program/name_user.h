// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_PROGRAM_NAME_USER_H
#define KERNIX_PROGRAM_NAME_USER_H

#include "program/panel_user.h"

// What users do at the panel of name, and see there.

const BPoint list = in_panel(280, 200);
const BPoint add_button = in_panel(45, 420);
const BPoint del_button = in_panel(125, 420);
const BPoint set_button = in_panel(520, 460);
const BPoint platform_field = in_panel(110, 460);
const BPoint encoding_field = in_panel(230, 460);
const BPoint language_field = in_panel(350, 460);
const BPoint name_field = in_panel(470, 460);
const BPoint data_field = in_panel(300, 490);

// Opens a font with this table and chooses its panel.
void at_names(const octets& names, const std::function<void(kernix&, robot&)>& work);

// The table as it is.
octets name_octets(kernix& app);

// The texts of the five fields.
std::string fields(robot& user);

// Puts a text in the place of what a field holds, with any characters.
void put_text(robot& user, BPoint field, const std::string& text);

void put_ids(robot& user, const char* platform, const char* encoding, const char* language,
	const char* name);

#endif
