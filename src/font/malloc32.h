// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_FONT_MALLOC32_H
#define KERNIX_FONT_MALLOC32_H

#include <SupportDefs.h>

// A length with its padding: the next multiple of 4, in 64 bits so that none wraps to 0.
inline uint64
round32(uint64 size)
{
	return (size + 3) & ~(uint64)3;
}


// A zero-filled array of size bytes rounded up to a multiple of 4; a negative size counts as 0.
// The caller owns it and releases it with delete[].
unsigned char* malloc32(int size);

// The same array with only the padding zeroed, for a caller that fills the rest at once. Null when
// there is no memory for it: the size may be a file's claim.
unsigned char* padded32(uint32 size);

#endif
