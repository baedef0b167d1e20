// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "tables/name_text.h"

#include <algorithm>
#include <cstring>
#include <UTF8.h>

static const char substitute = 26;
static const size_t longest_text = 0xFFFF;
static const std::string_view nul("", 1);
// The same in a field.
static const std::string_view shown_nul = "\xC0\x80";


name_encoding
name_encoding_of(uint16 platformID, uint16 encodingID, uint16 languageID)
{
	if (platformID == 3 && encodingID == 1)
		return name_unicode;
	if (platformID == 0 && encodingID == 0 && languageID == 0)
		return name_unicode;
	if (platformID == 1 && encodingID == 1 && languageID == 11)
		return name_shift_jis;
	return name_raw;
}


static uint32
conversion_of(name_encoding encoding)
{
	return encoding == name_unicode ? B_UNICODE_CONVERSION : B_SJIS_CONVERSION;
}


// Reads as far as there is room, and tells how far that was.
static int32
read_part(name_encoding encoding, name_bytes stored, char* text, int32 room, int32* used)
{
	*used = (int32)stored.size();
	if (encoding == name_raw) {
		*used = std::min(*used, room);
		std::copy_n(stored.data(), *used, text);
		return *used;
	}
	// Half of a character at the end is none.
	if (encoding == name_unicode)
		*used &= ~1;
	int32 state = 0;
	convert_to_utf8(
		conversion_of(encoding), (const char*)stored.data(), used, text, &room, &state, substitute);
	return room;
}


int32
read_name(name_encoding encoding, name_bytes stored, char* text, int32 room)
{
	int32 used;
	return read_part(encoding, stored, text, room, &used);
}


static std::string
whole_name(name_encoding encoding, name_bytes stored)
{
	// No byte becomes more than three.
	std::string text(3 * stored.size(), '\0');
	text.resize((size_t)read_name(encoding, stored, text.data(), (int32)text.size()));
	return text;
}


// How many of the stored bytes the first so many bytes of the text stand for.
static size_t
stored_part(name_encoding encoding, name_bytes stored, size_t length)
{
	std::string text(length, '\0');
	int32 used;
	read_part(encoding, stored, text.data(), (int32)length, &used);
	return (size_t)used;
}


// Whether a character has begun before this place.
static bool
in_character(std::string_view text, size_t place)
{
	return place < text.size() && ((uint8)text[place] & 0xC0) == 0x80;
}


// How long a character is that begins so; 1 for a byte that begins none.
static size_t
character_length(char lead)
{
	const uint8 byte = (uint8)lead;
	if (byte < 0xC0 || byte >= 0xF8)
		return 1;
	return byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : 4;
}


// The beginning of a text, of at most so many bytes, without a part of a character at its end.
static std::string_view
beginning(std::string_view text, size_t most)
{
	if (text.size() <= most)
		return text;
	size_t end = most;
	while (end > 0 && most - end < 3 && in_character(text, end))
		end--;
	// Bytes that only look like the rest of a character are cut anywhere.
	return text.substr(0, end + character_length(text[end]) > most ? end : most);
}


std::string
stored_name(name_encoding encoding, std::string_view text)
{
	if (encoding == name_raw)
		return std::string(beginning(text, longest_text));
	std::string made(std::min(2 * text.size(), longest_text - 1), '\0');
	int32 from = (int32)text.size();
	int32 written = (int32)made.size();
	int32 state = 0;
	convert_from_utf8(
		conversion_of(encoding), text.data(), &from, made.data(), &written, &state, substitute);
	made.resize((size_t)written);
	return made;
}


static std::string
replaced(std::string_view text, std::string_view what, std::string_view with)
{
	std::string made;
	for (size_t at; (at = text.find(what)) != std::string_view::npos;) {
		made.append(text.substr(0, at)).append(with);
		text.remove_prefix(at + what.size());
	}
	return made.append(text);
}


std::string
name_for_field(name_encoding encoding, name_bytes stored)
{
	return replaced(whole_name(encoding, stored), nul, shown_nul);
}


// The stored text with what lies between an equal beginning and an equal end converted anew.
static std::string
spliced(name_encoding encoding, name_bytes stored, std::string_view before, std::string_view after)
{
	const size_t common = std::min(before.size(), after.size());
	size_t head = 0;
	while (head < common && before[head] == after[head])
		head++;
	while (head > 0 && (in_character(before, head) || in_character(after, head)))
		head--;
	size_t tail = 0;
	while (
		tail < common - head && before[before.size() - tail - 1] == after[after.size() - tail - 1])
		tail++;
	while (tail > 0 && in_character(before, before.size() - tail))
		tail--;

	const name_bytes first = stored.first(stored_part(encoding, stored, head));
	const name_bytes last = stored.subspan(stored_part(encoding, stored, before.size() - tail));
	std::string made(first.begin(), first.end());
	made += stored_name(encoding, after.substr(head, after.size() - head - tail));
	return made.append(last.begin(), last.end());
}


static name_bytes
bytes_of(const std::string& text)
{
	return {(const unsigned char*)text.data(), text.size()};
}


std::string
edited_name(name_encoding encoding, name_bytes stored, std::string_view text)
{
	if (text == name_for_field(encoding, stored))
		return std::string(stored.begin(), stored.end());
	const std::string before = whole_name(encoding, stored);
	std::string after(text);
	// Unless the record itself has these bytes, they are a NUL that the field showed.
	if (before.find(shown_nul) == std::string::npos)
		after = replaced(after, shown_nul, nul);
	const std::string plain = stored_name(encoding, after);
	const std::string made = spliced(encoding, stored, before, after);
	// Halves of characters that have become neighbours may read as another one.
	const bool same = made.size() <= longest_text
		&& whole_name(encoding, bytes_of(made)) == whole_name(encoding, bytes_of(plain));
	return same ? made : plain;
}
