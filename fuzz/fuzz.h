// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_FUZZ_H
#define KERNIX_FUZZ_H

#include "support/octets.h"
#include <cstddef>
#include <cstdint>

class ttf;

// What each target does with an input; ends the process where the program fails.
void take_input(const uint8_t* data, size_t size);

// The entry point as libFuzzer names it: take_input() within the limits.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

// What an input may take, whether a fuzzer made it or it is replayed: seconds of this process's own
// work, however busy the machine is otherwise, and megabytes in memory with all that the sanitizers
// add. Far more than any input needs that is dealt with as it should be, and far less than what is to
// be found: a few hundred bytes that ask for minutes or gigabytes.
constexpr int most_seconds = 10;
constexpr int most_megabytes = 500;

// Loads a font from memory; what load answered.
int load_octets(ttf& font, const octets& contents);
// What saving gives.
octets save_octets(ttf& font);

// Looks at everything a user could: glyphs, characters, names, size ranges, bitmaps, statistics, and
// every panel, drawn into a bitmap. Of what a font may have thousands of, so many: a fuzzer has to
// get on.
void walk(ttf& font, int most = 300);

#endif
