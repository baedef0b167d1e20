// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_SUPPORT_CHOICE_H
#define KERNIX_SUPPORT_CHOICE_H

#include <cstdint>
#include <vector>

struct chrs_record;

// What a new font is to contain: code 0 and these. Made with new; becomes its font's.
chrs_record* choice(const std::vector<uint16_t>& codes);

#endif
