// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "support/font_file.h"

#include <algorithm>
#include <bit>
#include <stdexcept>
#include <utility>


font_file::piece&
font_file::last(const std::string& tag)
{
	auto is_it = [&](const piece& each) { return each.tag == tag; };
	auto found = std::find_if(fPieces.rbegin(), fPieces.rend(), is_it);
	if (found == fPieces.rend())
		throw std::invalid_argument("font_file: no table " + tag);
	return *found;
}


font_file
font_file::with(const std::string& tag, const octets& contents) const
{
	font_file changed = *this;
	auto place = changed.fPieces.begin();
	while (place != changed.fPieces.end() && place->tag < tag)
		place++;
	auto is_it = [&](const piece& each) { return each.tag == tag; };
	auto found = std::find_if(changed.fPieces.begin(), changed.fPieces.end(), is_it);
	if (found != changed.fPieces.end())
		found->contents = contents;
	else
		changed.fPieces.insert(place, {tag, contents, {}, {}, {}});
	return changed;
}


font_file
font_file::with(const std::string& tag, std::string_view digits) const
{
	return with(tag, hex(digits));
}


font_file
font_file::again(const std::string& tag, std::string_view digits) const
{
	font_file changed = *this;
	changed.fPieces.push_back({tag, hex(digits), {}, {}, {}});
	return changed;
}


font_file
font_file::without(const std::string& tag) const
{
	font_file changed = *this;
	changed.last(tag);
	std::erase_if(changed.fPieces, [&](const piece& each) { return each.tag == tag; });
	return changed;
}


font_file
font_file::ordered(const std::vector<std::string>& tags) const
{
	if (tags.size() != fPieces.size())
		throw std::invalid_argument("font_file: an order names every table");
	font_file changed = *this;
	changed.fPieces.clear();
	for (const std::string& tag : tags)
		changed.fPieces.push_back(font_file(*this).last(tag));
	return changed;
}


font_file
font_file::gap_before(const std::string& tag, std::string_view digits) const
{
	font_file changed = *this;
	changed.last(tag).before = hex(digits);
	return changed;
}


font_file
font_file::padded_with(uint8_t value) const
{
	font_file changed = *this;
	changed.fPadding = value;
	return changed;
}


font_file
font_file::says_version(uint32_t version) const
{
	font_file changed = *this;
	changed.fVersion = version;
	return changed;
}


font_file
font_file::says_tables(uint16_t count) const
{
	font_file changed = *this;
	changed.fCount = count;
	return changed;
}


font_file
font_file::says_search(uint16_t range, uint16_t selector, uint16_t shift) const
{
	octets fields = zeros(6);
	put_be16(fields, 0, range);
	put_be16(fields, 2, selector);
	put_be16(fields, 4, shift);
	font_file changed = *this;
	changed.fSearch = fields;
	return changed;
}


font_file
font_file::says_offset(const std::string& tag, uint32_t offset) const
{
	font_file changed = *this;
	changed.last(tag).offset = offset;
	return changed;
}


font_file
font_file::says_length(const std::string& tag, uint32_t length) const
{
	font_file changed = *this;
	changed.last(tag).length = length;
	return changed;
}


const octets&
font_file::table(const std::string& tag) const
{
	for (const piece& each : fPieces) {
		if (each.tag == tag)
			return each.contents;
	}
	throw std::invalid_argument("font_file: no table " + tag);
}


void
font_file::header(octets& file) const
{
	auto count = uint16_t(fPieces.size());
	uint16_t power = std::bit_floor(count);
	put_be32(file, 0, fVersion);
	put_be16(file, 4, fCount.value_or(count));
	put_be16(file, 6, uint16_t(16 * power));
	put_be16(file, 8, power > 0 ? uint16_t(std::countr_zero(power)) : 0);
	put_be16(file, 10, uint16_t(16 * (count - power)));
	if (fSearch)
		std::copy(fSearch->begin(), fSearch->end(), file.begin() + 6);
}


void
font_file::entry(octets& file, size_t index) const
{
	const piece& table = fPieces[index];
	size_t place = 12 + 16 * index;
	for (size_t i = 0; i < 4; i++)
		file[place + i] = uint8_t(table.tag.at(i));
	put_be32(file, place + 4, 0xA5A5A5A5);
	put_be32(file, place + 8, table.offset.value_or(uint32_t(file.size())));
	put_be32(file, place + 12, table.length.value_or(uint32_t(table.contents.size())));
}


octets
font_file::raw() const
{
	octets file = zeros(12 + 16 * fPieces.size());
	header(file);
	for (size_t i = 0; i < fPieces.size(); i++) {
		const piece& table = fPieces[i];
		file.insert(file.end(), table.before.begin(), table.before.end());
		entry(file, i);
		file.insert(file.end(), table.contents.begin(), table.contents.end());
		file.resize((file.size() + 3) / 4 * 4, fPadding);
	}
	return file;
}


static constexpr std::string_view tiny_cmap =
	"0000 0001"            // version, one subtable
	"0003 0001 0000000c"   // Windows, Unicode, at 12
	"0004 0020 0000"       // format, length, language
	"0004 0004 0001 0000"  // two segments, search fields
	"0041 ffff 0000"       // ends, padding
	"0041 ffff"            // starts
	"ffc0 0001 0000 0000"; // differences (41 is glyph 1), no arrays

static constexpr std::string_view tiny_glyf =
	"0001 0000 0000 01ff 01ff" // one contour, its box: (0, 0) to (511, 511)
	"0002 0000"                // last point, no instructions
	"01 01 01"                 // three points on the curve
	"0000 01ff ff00"           // x: 0 511 255
	"0000 0000 01ff"           // y: 0 0 511
	"00 00 00";

static constexpr std::string_view tiny_head =
	"00010000 00010000"         // version, revision
	"12345678 5f0f3cf5"         // adjustment, magic number
	"0001 0200"                 // flags, units per em
	"00000000 c0000000"         // created
	"00000000 c0000001"         // modified
	"0000 0000 01ff 01ff"       // the design box
	"0000 0006 0001 0001 0000"; // style, ppem, direction, long offsets, data format

static constexpr std::string_view tiny_hhea =
	"00010000 0200 0000 0000"  // version, ascender, descender, gap
	"0200 0000 0000 01ff"      // widest advance, bearings, extent
	"0001 0000"                // caret slope
	"0000 0000 0000 0000 0000" // reserved
	"0000 0002";               // format, number of metrics

static constexpr std::string_view tiny_maxp =
	"00010000 0002"       // version, glyphs
	"0003 0001 0000 0000" // points, contours, the same in composites
	"0002 0000 0000 0000" // zones, twilight points, storage, functions
	"0000 0000 0000"      // instructions, stack, size of instructions
	"0000 0000";          // components, depth


font_file
tiny_font()
{
	return font_file()
		.with("cmap", tiny_cmap)
		.with("glyf", tiny_glyf)
		.with("head", tiny_head)
		.with("hhea", tiny_hhea)
		.with("hmtx", "0200 0000 0200 0000")
		.with("loca", "00000000 00000000 00000020")
		.with("maxp", tiny_maxp);
}
