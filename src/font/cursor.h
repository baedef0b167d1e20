// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_FONT_CURSOR_H
#define KERNIX_FONT_CURSOR_H

#include "font/bytes.h"

// Reads a record of unknown length from front to back. A read that does not fit gives 0 and so does
// every later one: a decoder asks once, after a stage, whether its bytes were there.
class cursor {
public:
	// Borrows the bytes; starts at an offset, which may lie outside.
	cursor(bytes table, uint32 start)
		: all(table),
		  next(start <= table.len ? start : table.len),
		  short_of(start > table.len)
	{
	}

	bool failed() const { return short_of; }
	uint32 left() const { return all.len - next; }
	uint32 place() const { return next; }

	uint8 u8() { return take(1) ? all.at[next - 1] : 0; }
	int8 s8() { return (int8)u8(); }
	uint16 u16() { return take(2) ? get16(all.at + next - 2) : 0; }
	int16 s16() { return (int16)u16(); }
	void skip(uint32 count) { take(count); }
	// The bytes from here to the end of the table; those that are used are skipped afterwards.
	const uint8* rest() const { return all.at + next; }

private:
	bool take(uint32 count)
	{
		if (short_of || count > left()) {
			short_of = true;
			return false;
		}
		next += count;
		return true;
	}

	bytes all;
	uint32 next;
	bool short_of;
};

#endif
