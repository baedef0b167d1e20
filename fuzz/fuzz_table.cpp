// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// One table of an otherwise sound font, the target's own: fuzz_glyf, fuzz_cmap, fuzz_name,
// fuzz_bitmaps are made of this source. For bitmaps the first two bytes tell how long EBLC is; the
// rest is EBDT. In glyf a glyph begins every 64 bytes, so that there are some to make composites of.
// Records of name are edited, too: what was not edited must stay.
#include "fuzz.h"

#include "font/bytes.h"
#include "font/ttf.h"
#include "support/font_file.h"
#include "tables/ttf_name.h"
#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <string>
#include <string_view>


static font_file
font_with_glyf(const octets& contents)
{
	constexpr uint16_t glyphs = 40;
	constexpr uint32_t step = 64;
	octets maxp = tiny_font().table("maxp");
	put_be16(maxp, 4, glyphs);
	// Glyph 0 is empty.
	octets loca = zeros(4 * (glyphs + 1));
	for (uint32_t i = 1; i <= glyphs; i++)
		put_be32(loca, 4 * i, step * (i - 1));
	return tiny_font().with("glyf", contents).with("loca", loca).with("maxp", maxp);
}


static font_file
font_with(std::string_view tag, const octets& contents)
{
	if (tag == "glyf")
		return font_with_glyf(contents);
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


// A record of name: its identifiers, and what can be read of it.
struct name_entry {
	unsigned short ids[4];
	std::string text;
	bool has_ids_of(const name_entry& other) const { return std::equal(ids, ids + 4, other.ids); }
	bool operator==(const name_entry&) const = default;
};


static std::vector<name_entry>
names_of(const ttf_name& name)
{
	std::vector<name_entry> found((size_t)name.count());
	// No byte becomes more than three.
	std::string text(3 * (size_t)name.length + 1, '\0');
	for (size_t i = 0; i < found.size(); i++) {
		unsigned short* ids = found[i].ids;
		long length = (long)text.size();
		name.get_field((int)i, &ids[0], &ids[1], &ids[2], &ids[3], &length, text.data());
		found[i].text = text.substr(0, (size_t)length);
	}
	return found;
}


// Puts this text in the place of the record, or deletes it. Either nothing changes or that alone does,
// and of several with these identifiers one is left, or one goes.
static void
edit_name(ttf_name& name, const name_entry& named, const char* text)
{
	std::vector<name_entry> before = names_of(name);
	const uint32 length = name.length;
	const auto is_named = [&](const name_entry& each) { return each.has_ids_of(named); };
	const auto count = std::count_if(before.begin(), before.end(), is_named);
	name.set_field(named.ids[0], named.ids[1], named.ids[2], named.ids[3], text);
	if (name.length >= 32 * (uint64)length + 1048576)
		abort();
	std::vector<name_entry> after = names_of(name);
	if (after == before)
		return;
	if (std::count_if(after.begin(), after.end(), is_named) != (text != nullptr ? 1 : count - 1))
		abort();
	std::erase_if(before, is_named);
	std::erase_if(after, is_named);
	if (after != before)
		abort();
}


// What a field shows and nobody edits is stored as it was; a letter more is a letter more.
static void
edit_text(name_encoding encoding, const octets& stored)
{
	const std::string shown = name_for_field(encoding, stored);
	const std::string kept = edited_name(encoding, stored, shown);
	if (!std::equal(kept.begin(), kept.end(), stored.begin(), stored.end(),
			[](char a, uint8_t b) { return (uint8_t)a == b; }))
		abort();
	const std::string longer = edited_name(encoding, stored, shown + "x");
	const name_bytes bytes((const uint8_t*)longer.data(), longer.size());
	if (!name_for_field(encoding, bytes).ends_with('x'))
		abort();
}


static void
edit_names(ttf& font, const octets& contents)
{
	for (name_encoding encoding : {name_raw, name_unicode, name_shift_jis})
		edit_text(encoding, part(contents, 0, 1000));
	std::vector<name_entry> names = names_of(*font.name);
	for (size_t i : {size_t(0), names.size() / 2, names.size() - 1}) {
		if (i >= names.size())
			continue;
		edit_name(*font.name, names[i], "other");
		edit_name(*font.name, names[i], nullptr);
	}
	const std::string text(contents.begin(), contents.end());
	edit_name(*font.name, {{3, 1, 0x409, 1}, ""}, text.c_str());
	edit_name(*font.name, {{1, 0, 0, 0}, ""}, text.c_str());
}


void
take_input(const uint8_t* data, size_t size)
{
	const octets contents(data, data + size);
	ttf font;
	if (load_octets(font, font_with(KERNIX_FUZZ_TABLE, contents)) != 0)
		return;
	walk(font);
	if (std::string_view(KERNIX_FUZZ_TABLE) == "name")
		edit_names(font, contents);
}
