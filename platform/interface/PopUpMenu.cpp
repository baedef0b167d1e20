// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include <PopUpMenu.h>


BPopUpMenu::BPopUpMenu(const char* name, bool radioMode, bool labelFromMarked, menu_layout layout)
	: BMenu(name, layout)
{
	SetRadioMode(radioMode);
	SetLabelFromMarked(labelFromMarked);
}
