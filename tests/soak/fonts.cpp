// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "soak/fonts.h"

#include <algorithm>
#include <filesystem>
#include <ft2build.h>
#include FT_FREETYPE_H
#include <stdexcept>

#include "program/bitmap_user.h"
#include "program/hmtx_user.h"
#include "program/outline_user.h"
#include "support/installed_fonts.h"
#include "support/new_font.h"
#include "support/sfnt.h"
#include "support/temp_files.h"

// One sound font in so many is a real one, which takes long to open.
enum { real_ones = 12 };


fonts::fonts()
{
	fGood = {tiny_font(), other_font(), outlines(), wide_outlines(), five_glyphs()};
	fGood.push_back(font_of(two_sizes()));
	fGood.push_back(two_sizes().in(outlines()));
	fGood.push_back(expected_font({0, 1}));
	fGood.push_back(tiny_font().with("prep", zeros(100'000)));
	for (const char* leaf : {"DejaVuSans.ttf", "DejaVuSansMono-Bold.ttf"}) {
		const std::string path = installed_font(leaf);
		if (!path.empty())
			fReal.push_back(read_file(path));
	}
	read_corpus();
}


// In the order of their names: a folder gives them in any.
static std::vector<std::filesystem::path>
files_below(const char* folder)
{
	std::vector<std::filesystem::path> found;
	for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
		if (entry.is_regular_file())
			found.push_back(entry.path());
	}
	std::sort(found.begin(), found.end());
	return found;
}


void
fonts::read_corpus()
{
	for (const auto& path : files_below(KERNIX_SOAK_CORPUS)) {
		octets contents = read_file(path);
		(path.extension() == ".ttf" ? fGood : fPieces).push_back(contents);
	}
	if (fPieces.empty())
		throw std::runtime_error("no pieces of fonts in " KERNIX_SOAK_CORPUS);
}


const octets&
fonts::good(dice& chance) const
{
	if (!fReal.empty() && chance.one_in(real_ones))
		return chance.any(fReal);
	return chance.any(fGood);
}


const octets&
fonts::good_with(const std::string& tag, dice& chance) const
{
	std::vector<const octets*> found;
	for (const octets& each : fGood) {
		if (sfnt(each).has(tag))
			found.push_back(&each);
	}
	return found.empty() ? good(chance) : *chance.any(found);
}


static void
spoil(octets& file, dice& chance)
{
	// Mostly in the directory and the small tables, where octets mean most.
	const int size = (int)file.size();
	for (int i = chance.between(1, 12); i > 0; i--) {
		const int place = chance.below(chance.one_in(2) ? std::min(size, 400) : size);
		const uint8_t values[] = {0, 1, 0x7F, 0x80, 0xFF, (uint8_t)chance.below(256)};
		file[(size_t)place] = chance.any(values);
	}
}


octets
fonts::garbage(dice& chance) const
{
	octets file = good(chance);
	switch (chance.below(6)) {
		case 0:
			file.resize((size_t)chance.below((int)file.size()));
			return file;
		case 1:
			return chance.any(fPieces);
		case 2: {
			const char* const tags[] = {"glyf", "cmap", "name", "EBDT", "EBLC", "head", "hhea",
				"hmtx", "loca", "maxp", "OS/2", "post", "gasp"};
			const std::string tag = chance.any(tags);
			return two_sizes().in(outlines()).with(tag, chance.any(fPieces));
		}
		default:
			spoil(file, chance);
			return file;
	}
}


bool
is_a_font_to_freetype(const octets& file)
{
	FT_Library library;
	if (FT_Init_FreeType(&library) != 0)
		throw std::runtime_error("no FreeType");
	FT_Face face;
	const bool opened =
		FT_New_Memory_Face(library, file.data(), (FT_Long)file.size(), 0, &face) == 0;
	if (opened)
		FT_Done_Face(face);
	FT_Done_FreeType(library);
	return opened;
}
