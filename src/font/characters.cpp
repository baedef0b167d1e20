// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "font/characters.h"


static bool
is_surrogate(uint16 code)
{
	return code >= 0xD800 && code <= 0xDFFF;
}


std::string
utf8_of(uint16 code)
{
	if (code == 0 || code == 0xFFFF || is_surrogate(code))
		return "";
	if (code < 0x80)
		return {(char)code};
	if (code < 0x800)
		return {(char)(0xC0 | code >> 6), (char)(0x80 | (code & 0x3F))};
	return {
		(char)(0xE0 | code >> 12), (char)(0x80 | (code >> 6 & 0x3F)), (char)(0x80 | (code & 0x3F))};
}


// A continuation byte adds six bits; the NUL at the end of a text is none.
static bool
add_bits(char byte, uint16* code)
{
	if ((byte & 0xC0) != 0x80)
		return false;
	*code = (uint16)(*code << 6 | (byte & 0x3F));
	return true;
}


bool
first_character(const char* text, uint16* code)
{
	const uint8 lead = (uint8)text[0];
	uint16 found = 0;
	if (lead == 0)
		return false;
	if (lead < 0x80) {
		found = lead;
	} else if ((lead & 0xE0) == 0xC0) {
		found = lead & 0x1F;
		if (!add_bits(text[1], &found))
			return false;
	} else if ((lead & 0xF0) == 0xE0) {
		found = lead & 0x0F;
		if (!add_bits(text[1], &found) || !add_bits(text[2], &found))
			return false;
	} else {
		return false;
	}
	*code = found;
	return true;
}
