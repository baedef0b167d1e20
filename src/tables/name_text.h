// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_TABLES_NAME_TEXT_H
#define KERNIX_TABLES_NAME_TEXT_H

#include <span>
#include <string>
#include <string_view>
#include <SupportDefs.h>

// The texts of name: as a record stores them, and as UTF-8.

// A text as it is stored.
using name_bytes = std::span<const unsigned char>;

// How the records with these identifiers store their texts.
enum name_encoding {
	name_raw,     // as the bytes that it is given
	name_unicode, // UTF-16, big-endian
	name_shift_jis
};
name_encoding name_encoding_of(uint16 platformID, uint16 encodingID, uint16 languageID);

// Writes as much of a stored text as there is room for, without a NUL at the end, and gives the bytes
// written. A converted text is cut where a character ends; of UTF-16 an odd last byte is dropped. What
// cannot be converted becomes the character 1A.
int32 read_name(name_encoding encoding, name_bytes stored, char* text, int32 room);

// A text as it is stored: what is beyond 65535 bytes is cut off where a character ends, what the
// encoding does not have becomes the character 1A.
std::string stored_name(name_encoding encoding, std::string_view text);

// All of a stored text, for a field to show: a NUL in it is the two bytes C0 80, which UTF-8 never has,
// since the text of a field ends at a NUL.
std::string name_for_field(name_encoding encoding, name_bytes stored);

// What to store for a field that showed this stored text and now holds that one. What was not edited
// keeps its bytes, also those that no text can tell.
std::string edited_name(name_encoding encoding, name_bytes stored, std::string_view text);

#endif
