// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_SUPPORT_FONT_FILE_H
#define KERNIX_SUPPORT_FONT_FILE_H

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "support/octets.h"

// A font file put together octet by octet, right or wrong. Every operation gives a changed
// copy, so that a test names its font in one expression:
//
//     tiny_font().with("kern", "00 01 02").without("head")
//
// Tables lie in the file in directory order, each on a multiple of 4. The checksums in the
// directory are wrong on purpose: nobody may rely on them.
class font_file {
public:
	// Gives the table these contents; a table that is not there yet is put in tag order.
	font_file with(const std::string& tag, const octets& contents) const;
	font_file with(const std::string& tag, std::string_view digits) const;
	// One more table at the end, also of a tag that is there already.
	font_file again(const std::string& tag, std::string_view digits) const;
	font_file without(const std::string& tag) const;
	// All tables, named in their new order.
	font_file ordered(const std::vector<std::string>& tags) const;
	// Octets in front of a table that belong to none. `digits` need not keep multiples of 4.
	font_file gap_before(const std::string& tag, std::string_view digits) const;
	// The octets between the end of a table and the next multiple of 4 (0 unless told).
	font_file padded_with(uint8_t value) const;

	// What the header and the directory say, whatever the truth. Of several tables of one tag
	// the last is meant.
	font_file says_version(uint32_t version) const;
	font_file says_tables(uint16_t count) const;
	font_file says_search(uint16_t range, uint16_t selector, uint16_t shift) const;
	font_file says_offset(const std::string& tag, uint32_t offset) const;
	font_file says_length(const std::string& tag, uint32_t length) const;

	const octets& table(const std::string& tag) const;
	octets raw() const;
	operator octets() const { return raw(); }

private:
	struct piece {
		std::string tag;
		octets contents;
		octets before;
		std::optional<uint32_t> offset;
		std::optional<uint32_t> length;
	};

	piece& last(const std::string& tag);
	void header(octets& file) const;
	void entry(octets& file, size_t index) const;

	std::vector<piece> fPieces;
	uint8_t fPadding = 0;
	uint32_t fVersion = 0x00010000;
	std::optional<uint16_t> fCount;
	std::optional<octets> fSearch;
};

// A small font that is right in every respect, also for other readers: glyph 0 is empty, glyph 1
// is a triangle and stands for "A". Its tables: cmap (44 octets, one (3,1) subtable of format 4),
// glyf (32), head (54, long offsets, 512 units per em, checkSumAdjustment 12345678), hhea (36),
// hmtx (8), loca (12), maxp (32).
font_file tiny_font();

#endif
