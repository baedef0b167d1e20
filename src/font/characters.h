// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_FONT_CHARACTERS_H
#define KERNIX_FONT_CHARACTERS_H

#include <string>
#include <SupportDefs.h>

// Character codes of 16 bits, and UTF-8 as text fields have it.

// The character as UTF-8, one to three bytes; empty for 0, for FFFF, which stands for none, and for
// half of a surrogate pair.
std::string utf8_of(uint16 code);

// The first character of a text. False, with nothing stored, for an empty text, for a character
// beyond 16 bits and for what is not UTF-8.
bool first_character(const char* text, uint16* code);

#endif
