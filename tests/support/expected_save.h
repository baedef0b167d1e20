// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_SUPPORT_EXPECTED_SAVE_H
#define KERNIX_SUPPORT_EXPECTED_SAVE_H

#include <cstdint>

#include "support/octets.h"

// The file that loading `file` and saving it unchanged must give, computed from the octets alone,
// without any of the program's code. `now` is the low half of the modified date of that save.
octets expected_save(const octets& file, uint32_t now);

// The low half of the modified date in a file's head table; 0 where there is none.
uint32_t modified_of(const octets& file);

// The sum, modulo 2^32, of the big-endian words of a table; an incomplete last word is left out.
uint32_t sum_of_words(const octets& table);

#endif
