// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_SUPPORT_INSTALLED_FONTS_H
#define KERNIX_SUPPORT_INSTALLED_FONTS_H

#include <string>

// The path of a font of the system's packages, found by its file name; empty when it is missing.
std::string installed_font(const std::string& leaf);

// Whether a missing font is an error: it is where the tests run on their own (the environment
// variable CI is set); by hand they are skipped.
bool fonts_are_required();

#endif
