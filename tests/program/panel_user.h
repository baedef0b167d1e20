// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_PROGRAM_PANEL_USER_H
#define KERNIX_PROGRAM_PANEL_USER_H

#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <Point.h>

#include "program/journey.h"

// What users do at the panel of a table, and see there.

// A place of the panel, in the window.
BPoint in_panel(float x, float y);

// Puts this text in the place of what the field there holds, and confirms it.
void enter(robot& user, BPoint field, const std::string& text);

struct line {
	const char* label;
	const char* value;
};

// Whether the upper part of the panel, which has no controls, shows just these lines: white on
// black, 15 pixels from one baseline to the next from 20 on, labels from 20, values from 170.
testing::AssertionResult shows(robot& user, const std::vector<line>& lines);

// The octets of the table in the file that the program saves.
octets saved_table(robot& user, const std::string& tag);

#endif
