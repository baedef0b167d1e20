// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_PROGRAM_SETUP_USER_H
#define KERNIX_PROGRAM_SETUP_USER_H

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "program/panel_user.h"

// What users do while they set a new font up, and see there.

// Chooses "New".
void begin_font(robot& user);
// Presses "set".
void make_font(robot& user);
// Chooses "New", ticks these blocks and presses "set".
void new_font_of(robot& user, const std::vector<std::string>& blocks);

// Whether the set-up view is there, and counts this; white on black, pixel by pixel.
testing::AssertionResult counts(robot& user, const char* text);

bool in_setup(kernix& app);

#endif
