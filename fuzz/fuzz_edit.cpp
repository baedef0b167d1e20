// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Edits of a sound font, told by the input: after them it is saved, opened again, and must hold what
// was edited.
#include "fuzz.h"

#include "bitmaps/bitmap.h"
#include "font/ttf.h"
#include "outline/glyph.h"
#include "outline/shape.h"
#include "support/font_file.h"
#include "support/strikes.h"
#include "tables/ttf_cmap.h"
#include "tables/ttf_gasp.h"
#include "tables/ttf_name.h"
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <string>

namespace {

constexpr int glyph_count = 5;

// The sizes in the font, in pixels per em both ways, and the glyphs that have images in both.
constexpr uint8 sizes[] = {12, 16};
constexpr uint16 images[] = {1, 2};

// The input, taken from the front; 0 when it is used up.
class script {
public:
	script(const uint8_t* data, size_t size) : fAt(data), fEnd(data + size) {}

	bool over() const { return fAt == fEnd; }
	uint8_t byte() { return over() ? 0 : *fAt++; }
	uint16_t word()
	{
		const uint8_t high = byte();
		return (uint16_t)(high << 8 | byte());
	}

private:
	const uint8_t* fAt;
	const uint8_t* fEnd;
};


void
tell_outline(ttf& font, int index, std::string& text)
{
	glyph outline((unsigned short)index);
	font.get_glyph(index, &outline);
	for (int32 k = 0; k < outline.num_shape; k++) {
		const shape& contour = *outline.shapes[k];
		for (int32 point = 0; point < contour.num; point++) {
			text += std::to_string(contour.pts[point].x) + ' '
				+ std::to_string(contour.pts[point].y)
				+ (contour.onoff[point] == 0 ? " on " : " off ");
		}
		text += '\n';
	}
}


// All outlines but one.
std::string
other_outlines(ttf& font, int but)
{
	std::string text;
	for (int i = 0; i < glyph_count; i++) {
		if (i != but)
			tell_outline(font, i, text);
	}
	return text;
}


void
set_glyph(ttf& font, script& steps)
{
	glyph outline(0);
	for (int contours = steps.byte() % 4; contours > 0; contours--) {
		const int points = 3 + steps.byte() % 60;
		shape* contour = new shape(points);
		for (int i = 0; i < points; i++) {
			const BPoint place((float)(int16_t)steps.word(), (float)(int16_t)steps.word());
			contour->set(i, place, (char)(steps.byte() & 1));
		}
		contour->ctrlp2form();
		outline.add_shape(contour);
	}
	const int index = steps.byte() % glyph_count;
	const std::string others = other_outlines(font, index);
	const int answer = font.set_glyph(index, &outline);
	if (other_outlines(font, index) != others)
		abort();
	if (answer != 0)
		return;
	glyph stored(0);
	font.get_glyph(index, &stored);
	if (stored.num_shape != outline.num_shape)
		abort();
	for (int32 i = 0; i < stored.num_shape; i++) {
		if (stored.shapes[i]->num != outline.shapes[i]->num)
			abort();
	}
}


void
set_characters(ttf& font, script& steps)
{
	const uint16_t first = steps.word();
	const uint16_t glyph = steps.word();
	font.cmap->set_chr(first, (uint16_t)(first | (steps.byte() & 15)), glyph);
}


void
set_name(ttf& font, script& steps)
{
	const uint16_t platform = steps.byte() % 4;
	const uint16_t encoding = steps.byte() % 3;
	const uint16_t language = steps.byte() % 16;
	const uint16_t id = steps.byte() % 8;
	std::string text;
	for (int letters = steps.byte(); letters > 0; letters--)
		text += (char)(steps.byte() | 1);
	const int before = font.name->count();
	font.name->set_field(
		platform, encoding, language, id, steps.byte() & 1 ? text.c_str() : nullptr);
	if (std::abs(font.name->count() - before) > 1)
		abort();
}


void
set_range(ttf& font, script& steps)
{
	const int index = steps.byte() % 8 - 1;
	const uint16_t size = steps.word();
	font.gasp->set_field(index, size, steps.byte());
}


void
set_bitmap(ttf& font, script& steps)
{
	const uint8 size = sizes[steps.byte() % 2];
	bitmap image(images[steps.byte() % 2], size, size, 1);
	if (font.get_bitmap(&image) != 0 || image.pixels == nullptr)
		abort();
	for (int i = 0; i < image.width * image.height; i++)
		image.pixels[i] = steps.byte() & 1;
	bitmap stored(image.glyph, size, size, 1);
	if (font.set_bitmap(&image) != 0 || font.get_bitmap(&stored) != 0)
		abort();
	if (memcmp(stored.pixels, image.pixels, (size_t)image.width * image.height) != 0)
		abort();
}


// A run of codes is stored by its first glyph alone, the others count on from that.
void
tell_characters(const ttf& font, std::string& text)
{
	uint16_t next = 0;
	for (uint32_t code = 1; code < 0xFFFF; code++) {
		const uint16_t glyph = font.cmap->get_gno((uint16_t)code);
		if (glyph == 0) {
			next = 0;
			continue;
		}
		const bool begins = font.cmap->get_gno((uint16_t)(code - 1)) == 0;
		next = begins ? glyph : (uint16_t)(next + 1);
		if (next != 0)
			text += std::to_string(code) + ':' + std::to_string(next) + '\n';
	}
}


void
tell_records(const ttf& font, std::string& text)
{
	unsigned short ids[4];
	for (int i = 0; i < font.name->count(); i++) {
		char value[256];
		long size = sizeof value;
		font.name->get_field(i, &ids[0], &ids[1], &ids[2], &ids[3], &size, value);
		for (unsigned short id : ids)
			text += std::to_string(id) + ' ';
		text += std::string(value, (size_t)size) + '\n';
	}
	for (int i = 0; font.gasp->get_field(i, &ids[0], &ids[1]) == 0; i++)
		text += std::to_string(ids[0]) + ' ' + std::to_string(ids[1]) + '\n';
}


void
tell_bitmaps(ttf& font, std::string& text)
{
	for (uint8 size : sizes) {
		for (uint16 index : images) {
			bitmap image(index, size, size, 1);
			if (font.get_bitmap(&image) == 0 && image.pixels != nullptr)
				text.append((const char*)image.pixels, (size_t)image.width * image.height);
		}
	}
}


// All that the edits change, as the program reads it.
std::string
contents(ttf& font)
{
	std::string text = other_outlines(font, -1);
	tell_characters(font, text);
	tell_records(font, text);
	tell_bitmaps(font, text);
	return text;
}


// Glyph 1 is stored twice, the second time as glyph 4: so far on that short offsets just reach it.
font_file
nearly_full(const font_file& font)
{
	constexpr size_t last = 130400;
	octets glyf = font.table("glyf");
	const octets record = glyf;
	glyf.resize(last);
	glyf.insert(glyf.end(), record.begin(), record.end());
	octets loca = hex("0000 0000 0010 0010 0000 0000");
	put_be16(loca, 8, (uint16_t)(last / 2));
	put_be16(loca, 10, (uint16_t)(glyf.size() / 2));
	octets head = font.table("head");
	put_be16(head, 50, 0);
	return font.with("glyf", glyf).with("loca", loca).with("head", head);
}


font_file
font_to_edit()
{
	return strikes()
		.size(12, 12)
		.images(1, 1, 7, {{"#.#", ".#.", "#.#"}, {"#..#"}})
		.size(16, 16)
		.images(1, 3, 1, {{"########.", ".......##"}, {"#"}})
		.in(nearly_full(font_for_strikes()))
		.with("name", "0000 0000 0006")
		.with("gasp", "0000 0001 0008 0002");
}

}


void
take_input(const uint8_t* data, size_t size)
{
	ttf font;
	if (load_octets(font, font_to_edit()) != 0)
		abort();
	script steps(data, size);
	constexpr void (*edits[])(ttf&, script&) = {
		set_glyph, set_characters, set_name, set_range, set_bitmap};
	while (!steps.over())
		edits[steps.byte() % std::size(edits)](font, steps);
	const std::string before = contents(font);
	const octets file = save_octets(font);
	ttf again;
	if (load_octets(again, file) != 0 || contents(again) != before)
		abort();
	walk(again);
	// A font that nobody has touched since comes out the same, dates and sum apart.
	if (save_octets(again).size() != file.size())
		abort();
}
