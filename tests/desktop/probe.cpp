// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// What the desktop journey asks about its screen and its files. The screen is the file in which
// Xvfb keeps the picture (-fbdir), so that nothing but the program is a client of the display.
//
//   probe pixels SCREEN R G B [X Y W H]   prints how many pixels have exactly this colour
//   probe box SCREEN R G B                prints X Y W H of all pixels of this colour
//   probe picture SCREEN OUT.ppm          keeps the picture
//   probe same-font FONT SAVED            says nothing, or how SAVED is not FONT saved unchanged

#include "support/expected_save.h"
#include "support/freetype_outlines.h"
#include "support/temp_files.h"
#include <algorithm>
#include <cstdio>
#include <fstream>
#include <stdexcept>
#include <string>

namespace {

struct area {
	int left, top, width, height;
};

// The format of xwd: a header of big-endian words, a colour table, rows of pixels of four octets,
// blue first.
class screen {
public:
	explicit screen(const std::string& path) : fFile(read_file(path))
	{
		enum { at_byte_order = 28, at_depth = 44 };
		if (be32(fFile, at_byte_order) != 0 || be32(fFile, at_depth) != 32)
			throw std::runtime_error("the screen is not 32 bits deep with the lowest octet first");
		fPixels = be32(fFile, 0) + 12 * be32(fFile, 76);
		fRow = be32(fFile, 48);
	}

	area all() const { return {0, 0, (int)be32(fFile, 16), (int)be32(fFile, 20)}; }

	const uint8_t* pixel(int x, int y) const
	{
		return &fFile.at(fPixels + (size_t)y * fRow + 4 * (size_t)x);
	}

private:
	octets fFile;
	size_t fPixels;
	size_t fRow;
};

struct colour {
	int red, green, blue;

	bool is(const uint8_t* pixel) const
	{
		return pixel[2] == red && pixel[1] == green && pixel[0] == blue;
	}
};

}


static long
count(const screen& shown, colour wanted, area where)
{
	long found = 0;
	for (int y = where.top; y < where.top + where.height; y++) {
		for (int x = where.left; x < where.left + where.width; x++)
			found += wanted.is(shown.pixel(x, y));
	}
	return found;
}


// Prints nothing where there is no such pixel.
static void
print_box(const screen& shown, colour wanted)
{
	area all = shown.all();
	int left = all.width, top = all.height, right = -1, bottom = -1;
	for (int y = 0; y < all.height; y++) {
		for (int x = 0; x < all.width; x++) {
			if (!wanted.is(shown.pixel(x, y)))
				continue;
			left = std::min(left, x);
			right = std::max(right, x);
			top = std::min(top, y);
			bottom = y;
		}
	}
	if (right >= 0)
		printf("%d %d %d %d\n", left, top, right - left + 1, bottom - top + 1);
}


static void
keep(const screen& shown, const std::string& path)
{
	area all = shown.all();
	std::ofstream out(path, std::ios::binary);
	out << "P6 " << all.width << " " << all.height << " 255\n";
	for (int y = 0; y < all.height; y++) {
		for (int x = 0; x < all.width; x++) {
			const uint8_t* pixel = shown.pixel(x, y);
			out << (char)pixel[2] << (char)pixel[1] << (char)pixel[0];
		}
	}
}


// Once by the rules of saving, octet for octet, and once by the outlines that FreeType finds.
static int
compare(const std::string& font, const std::string& saved)
{
	octets before = read_file(font);
	octets after = read_file(saved);
	auto octet_for_octet = same(expected_save(before, modified_of(after)), after);
	outline_comparison seen = compare_outlines(before, after);
	if (!octet_for_octet)
		printf("%s\n", octet_for_octet.message());
	if (!seen.difference.empty() || seen.points == 0)
		printf("FreeType: %s, %ld points alike\n", seen.difference.c_str(), seen.points);
	return octet_for_octet && seen.difference.empty() && seen.points > 0 ? 0 : 1;
}


static int
answer(int argc, char** argv)
{
	std::string question = argc > 3 ? argv[1] : "";
	auto number = [&](int index) { return std::stoi(argv[index]); };
	if (question == "picture") {
		keep(screen(argv[2]), argv[3]);
	} else if (question == "same-font") {
		return compare(argv[2], argv[3]);
	} else if (question == "box" && argc == 6) {
		print_box(screen(argv[2]), {number(3), number(4), number(5)});
	} else if (question == "pixels" && (argc == 6 || argc == 10)) {
		screen shown(argv[2]);
		area where = shown.all();
		if (argc == 10)
			where = {number(6), number(7), number(8), number(9)};
		printf("%ld\n", count(shown, {number(3), number(4), number(5)}, where));
	} else {
		fprintf(stderr, "probe: no such question\n");
		return 2;
	}
	return 0;
}


int
main(int argc, char** argv)
{
	try {
		return answer(argc, argv);
	} catch (const std::exception& error) {
		fprintf(stderr, "probe: %s\n", error.what());
		return 2;
	}
}
