// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_FONT_TTF_TABLE_H
#define KERNIX_FONT_TTF_TABLE_H

#include "font/bytes.h"
#include <View.h>

class ttf;

// One table of the font: its bytes in file form, and the panel that shows and edits them. The
// bytes are the model; nothing is unpacked. The panel is a child of the work view while its font
// is on display; until then, and for tables without a panel for good, it is never attached.
//
// Made in the application's thread with the font, used in the window's thread after that.
class ttf_table : public BView {
public:
	// A table that the program does not model; it draws nothing and is never shown.
	// @param font borrowed; the font that will own this object
	// @param buffer size bytes with the padding of malloc32; becomes this object's
	// @param size the true length in bytes, without the padding
	ttf_table(ttf* font, unsigned long number, unsigned char* buffer, unsigned long size);
	~ttf_table() override;

	// Makes the panel's own visibility exactly this, however often it was hidden before. What its
	// ancestors do does not count.
	virtual void show(bool visible);

	// The checksum that the directory holds: the sum, modulo 2^32, of the big-endian words. The
	// last 1 to 3 bytes of a length that is no multiple of 4 are left out on purpose.
	unsigned long sumB32() const;

	// Reading at a byte offset; past the end it gives 0.
	uint8 u8(uint32 offset) const { return all().u8(offset); }
	uint16 u16(uint32 offset) const { return all().u16(offset); }
	int16 s16(uint32 offset) const { return all().s16(offset); }
	uint32 u32(uint32 offset) const { return all().u32(offset); }
	uint64 u64(uint32 offset) const { return all().u64(offset); }

	// Writing at a byte offset; a value that does not wholly fit into the table is not written.
	void put16(uint32 offset, uint16 value);
	void put32(uint32 offset, uint32 value);
	void put64(uint32 offset, uint64 value);

	ttf* owner;          // borrowed
	uint32 tag;          // as a number: 0x68656164 for head
	unsigned char* data; // owned; padded with zeros to a multiple of 4
	uint32 length;       // without the padding

protected:
	bytes all() const { return {data, length}; }
};

#endif
