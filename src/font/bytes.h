// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_FONT_BYTES_H
#define KERNIX_FONT_BYTES_H

#include <ByteOrder.h>
#include <cstddef>
#include <cstring>
#include <SupportDefs.h>

// Table bytes stay in file order (big-endian) for life; they are converted here and nowhere else.

inline uint16
get16(const uint8* p)
{
	uint16 v;
	memcpy(&v, p, sizeof v);
	return B_BENDIAN_TO_HOST_INT16(v);
}


inline uint32
get32(const uint8* p)
{
	uint32 v;
	memcpy(&v, p, sizeof v);
	return B_BENDIAN_TO_HOST_INT32(v);
}


inline uint64
get64(const uint8* p)
{
	uint64 v;
	memcpy(&v, p, sizeof v);
	return B_BENDIAN_TO_HOST_INT64(v);
}


inline void
put16(uint8* p, uint16 value)
{
	uint16 v = B_HOST_TO_BENDIAN_INT16(value);
	memcpy(p, &v, sizeof v);
}


inline void
put32(uint8* p, uint32 value)
{
	uint32 v = B_HOST_TO_BENDIAN_INT32(value);
	memcpy(p, &v, sizeof v);
}


inline void
put64(uint8* p, uint64 value)
{
	uint64 v = B_HOST_TO_BENDIAN_INT64(value);
	memcpy(p, &v, sizeof v);
}


// A stretch of table bytes, borrowed. Reading outside it gives 0, as the missing tail of a short
// file does.
struct bytes {
	const uint8* at;
	uint32 len;

	// Whether n bytes from off on lie inside; arranged so that no sum can overflow.
	bool has(uint32 off, uint32 n) const { return off <= len && n <= len - off; }

	uint8 u8(uint32 off) const { return has(off, 1) ? at[off] : 0; }
	uint16 u16(uint32 off) const { return has(off, 2) ? get16(at + off) : 0; }
	int16 s16(uint32 off) const { return (int16)u16(off); }
	uint32 u32(uint32 off) const { return has(off, 4) ? get32(at + off) : 0; }
	uint64 u64(uint32 off) const { return has(off, 8) ? get64(at + off) : 0; }
};


// The sum, modulo 2^32, of count big-endian 32-bit words. The caller has checked that they are
// there.
inline uint32
sum_words(const uint8* p, size_t count)
{
	uint32 total = 0;
	while (count > 0) {
		// Four byte columns, two to a word: 256 times 255 still fits the 16 bits of a column. Plain
		// additions without a byte swap, which the compiler turns into vector instructions.
		size_t run = count < 256 ? count : 256;
		uint32 even = 0;
		uint32 odd = 0;
		for (size_t i = 0; i < run; i++) {
			uint32 v;
			memcpy(&v, p + 4 * i, sizeof v);
			v = B_LENDIAN_TO_HOST_INT32(v);
			even += v & 0x00FF00FF;
			odd += (v >> 8) & 0x00FF00FF;
		}
		total += (even << 24) + ((even >> 16) << 8) + (odd << 16) + (odd >> 16);
		p += 4 * run;
		count -= run;
	}
	return total;
}

#endif
