// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_TESTS_GLYF_FIXTURE_H
#define KERNIX_TESTS_GLYF_FIXTURE_H

#include "font/ttf.h"
#include "outline/glyph.h"
#include "outline/shape_fixture.h"
#include "outline/ttf_glyf.h"
#include "support/octets.h"

#include <memory>
#include <string>
#include <vector>

using font_ptr = std::unique_ptr<ttf>;

// A font of so many glyphs as there are records, which lie in glyf one after the other, with long
// offsets. An empty one is an empty glyph.
font_ptr font_of(const std::vector<octets>& records);
// The same where glyf and loca are given as they are.
font_ptr font_with(const octets& glyf, const octets& loca, uint16_t glyphs);

// A triangle: (0, 0), (100, 0), (50, 80). 22 octets.
octets triangle();
// A composite record of these components, each without the header. 10 octets and theirs.
octets composite_of(std::string_view components);

// What ttf::get_glyph makes of a glyph of the font.
glyph_ptr decoded(ttf& font, int index);
// Its own contours in order, as dots() tells of them, " | " between them.
std::string contours(const glyph& of);
// Component k with all its numbers: "3: 200 -5 4000 0000 0000 4000".
std::string component(const glyph& of, int k);

// What get_info gives: depth, components, contours, points.
using numbers = std::vector<unsigned>;
numbers info(ttf& font, unsigned short index);

// The record that the glyph makes in the place of an old one, alone in its table.
octets encoded(const glyph& g, const octets& old = octets());

#endif
