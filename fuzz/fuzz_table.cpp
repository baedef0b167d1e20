// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// One table of an otherwise sound font, the target's own: fuzz_glyf, fuzz_cmap, fuzz_name,
// fuzz_bitmaps are made of this source. For bitmaps the first two bytes tell how long EBLC is; the
// rest is EBDT.
#include "fuzz.h"

#include "font/bytes.h"
#include "font/ttf.h"
#include "support/font_file.h"
#include <algorithm>
#include <string_view>


static font_file
font_with(std::string_view tag, const octets& contents)
{
	if (tag != "bitmaps")
		return tiny_font().with(std::string(tag), contents);
	if (contents.size() < 2)
		return tiny_font();
	const auto split = contents.begin()
		+ (ptrdiff_t)std::min<size_t>(2u + get16(contents.data()), contents.size());
	return tiny_font()
		.with("EBLC", octets(contents.begin() + 2, split))
		.with("EBDT", octets(split, contents.end()));
}


int
LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
	ttf font;
	if (load_octets(font, font_with(KERNIX_FUZZ_TABLE, octets(data, data + size))) == 0)
		walk(font);
	return 0;
}
