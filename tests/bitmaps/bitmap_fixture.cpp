// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "bitmaps/bitmap_fixture.h"

#include <algorithm>
#include <cstdio>

placed_picture
content(const bitmap& of)
{
	placed_picture found{{}, of.horiBearingX, of.horiBearingY, of.horiAdvance};
	if (of.pixels == nullptr)
		return found;
	for (int row = 0; row < of.height; row++) {
		std::string pixels;
		for (int column = 0; column < of.width; column++)
			pixels += of.pixels[row * of.width + column] == 1 ? '#'
				: of.pixels[row * of.width + column] == 0     ? '.'
															  : '?';
		found.rows.push_back(pixels);
	}
	return found;
}

std::unique_ptr<bitmap>
bitmap_of(ttf& font, int glyph, int across, int down, int* answer)
{
	auto found = std::make_unique<bitmap>(
		(unsigned short)glyph, (unsigned char)across, (unsigned char)down, 1);
	int got = font.get_bitmap(found.get());
	if (answer != nullptr)
		*answer = got;
	return found;
}

std::unique_ptr<bitmap>
bitmap_from(const picture& rows)
{
	auto made = std::make_unique<bitmap>(1, 12, 12, 1);
	made->height = uint8(rows.size());
	made->width = uint8(rows.at(0).size());
	made->pixels = new unsigned char[made->width * made->height];
	unsigned char* pixel = made->pixels;
	for (const std::string& row : rows) {
		for (char each : row)
			*pixel++ = each == '#';
	}
	return made;
}

lone_tables::lone_tables(std::string_view eblc_digits, std::string_view ebdt_digits)
	: eblc(&font, buffer_of(hex(eblc_digits)), hex(eblc_digits).size()),
	  ebdt(&font, buffer_of(hex(ebdt_digits)), hex(ebdt_digits).size())
{
}

std::string
looked_up(const ttf_eblc& table, bitmap& b)
{
	unsigned long offset = 0xDDDDDDDD;
	unsigned short format = 0xFFFF;
	int answer = table.get_offset(&b, &offset, &format);
	char text[40];
	snprintf(text, sizeof text, "%d %lx %x", answer, offset, format);
	return text;
}

std::string
looked_up(const ttf_eblc& table, int glyph, int across, int down)
{
	bitmap b((unsigned short)glyph, (unsigned char)across, (unsigned char)down, 1);
	return looked_up(table, b);
}

int
decoded(const ttf_ebdt& table, unsigned long offset, int format, placed_picture* found)
{
	auto b = bitmap_from({"#"});
	int answer = table.decode(offset, (unsigned short)format, b.get());
	if (found != nullptr)
		*found = content(*b);
	return answer;
}
