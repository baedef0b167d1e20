// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// A whole file: opened, looked at, saved and opened again.
#include "fuzz.h"

#include "font/ttf.h"
#include <cstdlib>


void
take_input(const uint8_t* data, size_t size)
{
	ttf font;
	if (load_octets(font, octets(data, data + size)) != 0)
		return;
	walk(font);
	const octets file = save_octets(font);
	ttf again;
	// What was written must be a font.
	if (load_octets(again, file) != 0)
		abort();
}
