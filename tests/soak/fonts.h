// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_SOAK_FONTS_H
#define KERNIX_SOAK_FONTS_H

#include <string>
#include <vector>

#include "soak/dice.h"
#include "support/octets.h"

// What there is to open: sound fonts of every kind, and what has become of some.
class fonts {
public:
	fonts();

	// Some sound font.
	const octets& good(dice& chance) const;
	// Some sound font that has this table; just some when none has.
	const octets& good_with(const std::string& tag, dice& chance) const;
	// A font cut short or with other octets, a table of nonsense in a sound font, or no font at all.
	// Some of it can be opened all the same.
	octets garbage(dice& chance) const;

private:
	void read_corpus();

	std::vector<octets> fGood;
	// Of these one in so many is real, and large.
	std::vector<octets> fReal;
	// Pieces for nonsense.
	std::vector<octets> fPieces;
};

// Whether FreeType opens a font.
bool is_a_font_to_freetype(const octets& file);

#endif
