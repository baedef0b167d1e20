// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "support/strikes.h"

#include <stdexcept>

static void
put(octets& to, uint32_t value, int size)
{
	for (int shift = 8 * (size - 1); shift >= 0; shift -= 8)
		to.push_back(uint8_t(value >> shift));
}

static void
append(octets& to, const octets& more)
{
	to.insert(to.end(), more.begin(), more.end());
}

// As a row of digits, each row filled up to whole octets where they start with one.
static octets
packed(const picture& rows, bool aligned)
{
	std::string digits;
	for (const std::string& row : rows) {
		digits += row;
		while (aligned && digits.size() % 8 != 0)
			digits += '.';
	}
	octets image;
	for (size_t i = 0; i < digits.size(); i++) {
		if (i % 8 == 0)
			image.push_back(0);
		if (digits[i] == '#')
			image.back() = uint8_t(image.back() + (128 >> i % 8));
	}
	return image;
}

strikes&
strikes::size(int across, int down, int depth)
{
	octets record = zeros(48);
	put_be16(record, 42, 0xFFFF);
	record[44] = uint8_t(across);
	record[45] = uint8_t(down);
	record[46] = uint8_t(depth);
	record[47] = 1;
	fStrikes.push_back({record, {}});
	return *this;
}

strikes&
strikes::placed(int x, int y, int advance)
{
	fX = x;
	fY = y;
	fAdvance = advance;
	return *this;
}

// Eight octets, of which small metrics are the first five.
octets
strikes::metrics(const picture& rows) const
{
	return {uint8_t(rows.size()), uint8_t(rows.empty() ? 0 : rows[0].size()), uint8_t(fX),
		uint8_t(fY), uint8_t(fAdvance), 0, 0, 12};
}

void
strikes::add_image(int format, const picture& rows)
{
	octets leading = metrics(rows);
	leading.resize(format >= 6 ? 8 : format == 5 ? 0 : 5);
	octets image = packed(rows, format == 1 || format == 6);
	append(fData, leading);
	fPlaces.push_back(fData.size());
	append(fData, image);
}

strikes&
strikes::images(int first, int index_format, int image_format, const std::vector<picture>& glyphs)
{
	uint32_t start = uint32_t(fData.size());
	octets offsets;
	int width = index_format == 1 ? 4 : 2;
	for (const picture& rows : glyphs) {
		put(offsets, uint32_t(fData.size()) - start, width);
		add_image(image_format, rows);
	}
	put(offsets, uint32_t(fData.size()) - start, width);
	octets contents;
	put(contents, uint32_t(index_format), 2);
	put(contents, uint32_t(image_format), 2);
	put(contents, start, 4);
	if (index_format == 2) {
		put(contents, (uint32_t(fData.size()) - start) / uint32_t(glyphs.size()), 4);
		append(contents, metrics(glyphs[0]));
	} else {
		append(contents, offsets);
	}
	contents.resize((contents.size() + 3) / 4 * 4);
	if (fStrikes.empty())
		throw std::logic_error("images without a size");
	fStrikes.back().indexes.push_back({first, first + int(glyphs.size()) - 1, contents});
	return *this;
}

octets
strikes::eblc() const
{
	octets table = hex("00020000");
	put(table, uint32_t(fStrikes.size()), 4);
	octets behind;
	size_t behind_at = 8 + 48 * fStrikes.size();
	for (const strike& each : fStrikes) {
		octets record = each.record;
		put_be32(record, 0, uint32_t(behind_at + behind.size()));
		put_be32(record, 8, uint32_t(each.indexes.size()));
		octets array;
		octets tables;
		for (const sub_table& index : each.indexes) {
			put(array, uint32_t(index.first), 2);
			put(array, uint32_t(index.last), 2);
			put(array, uint32_t(8 * each.indexes.size() + tables.size()), 4);
			append(tables, index.contents);
		}
		put_be32(record, 4, uint32_t(array.size() + tables.size()));
		append(table, record);
		append(behind, array);
		append(behind, tables);
	}
	append(table, behind);
	return table;
}

font_file
strikes::in(const font_file& font) const
{
	return font.with("EBDT", fData).with("EBLC", eblc());
}

font_file
font_for_strikes()
{
	octets maxp = tiny_font().table("maxp");
	put_be16(maxp, 4, 5);
	return tiny_font()
		.with("maxp", maxp)
		.with("hmtx", "0200 0000 0200 0000 0000 0000 0000")
		.with("loca", "00000000 00000000 00000020 00000020 00000020 00000020");
}
