// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Edits of a sound font, told by the input: after them it is saved, opened again, and must hold what
// was edited.
#include "fuzz.h"

#include "font/ttf.h"
#include "outline/glyph.h"
#include "outline/shape.h"
#include "support/font_file.h"
#include "tables/ttf_cmap.h"
#include "tables/ttf_name.h"
#include <cstdlib>
#include <string>

namespace {

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
	const int index = steps.byte() % 4;
	if (font.set_glyph(index, &outline) != 0)
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

}


int
LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
	ttf font;
	if (load_octets(font, tiny_font().with("name", "0000 0000 0006")) != 0)
		abort();
	script steps(data, size);
	while (!steps.over()) {
		switch (steps.byte() % 3) {
			case 0:
				set_glyph(font, steps);
				break;
			case 1:
				set_characters(font, steps);
				break;
			case 2:
				set_name(font, steps);
		}
	}
	const octets file = save_octets(font);
	ttf again;
	if (load_octets(again, file) != 0)
		abort();
	walk(again);
	// A font that nobody has touched since comes out the same, dates and sum apart.
	if (save_octets(again).size() != file.size())
		abort();
	return 0;
}
