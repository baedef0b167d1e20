// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_FONT_DIRECTORY_H
#define KERNIX_FONT_DIRECTORY_H

#include <cstdio>
#include <SupportDefs.h>

// How a file's header and the directory of its tables are laid out (OpenType, "Organization of an
// OpenType Font"), for the container alone. Bytes.
enum {
	header_size = 12,
	at_numtables = 4,
	at_searchrange = 6,
	at_entryselector = 8,
	at_rangeshift = 10
};
enum { entry_size = 16, at_sum = 4, at_place = 8, at_length = 12 };

constexpr uint32 sfnt_version = 0x00010000;

// Tells on standard output which table it is the turn of.
inline void
print_tag(const unsigned char* tag)
{
	printf("name=[%c%c%c%c]\n", tag[0], tag[1], tag[2], tag[3]);
}

#endif
