// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_SUPPORT_REAL_FONT_H
#define KERNIX_SUPPORT_REAL_FONT_H

#include <string>

#include "support/octets.h"

// Reads a font of the system's packages, for a fixture's SetUp(). One that is missing skips the test,
// or fails it where the tests run on their own; `file` stays empty then.
void read_real_font(const std::string& leaf, octets& file);

#endif
