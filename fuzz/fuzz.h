// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_FUZZ_H
#define KERNIX_FUZZ_H

#include "support/octets.h"
#include <cstddef>
#include <cstdint>

class ttf;

// The entry point of each target, as libFuzzer names it.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

// Loads a font from memory; what load answered.
int load_octets(ttf& font, const octets& contents);
// What saving gives.
octets save_octets(ttf& font);

// Looks at everything a user could: glyphs, characters, names, size ranges, bitmaps, statistics, and
// every panel, drawn into a bitmap. Of what a font may have thousands of, so many: a fuzzer has to
// get on.
void walk(ttf& font, int most = 300);

#endif
