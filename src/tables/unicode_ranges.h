// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_TABLES_UNICODE_RANGES_H
#define KERNIX_TABLES_UNICODE_RANGES_H

#include <SupportDefs.h>

// A block of characters: its first and last code, and a name of at most 31 characters.
struct unicode_range {
	uint16 first;
	uint16 last;
	char name[32];
};

// The blocks that a new font may cover. A row's number is its bit in the Unicode ranges of OS/2, so
// the order is that of the bits, not of the codes: Tibetan comes last.
extern const unicode_range unicode_ranges[71];

#endif
