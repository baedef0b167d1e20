// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_BENCH_GLYPHS_H
#define KERNIX_BENCH_GLYPHS_H

#include <benchmark/benchmark.h>
#include <string>

// Work on the glyphs of a loaded font. Each in turns with what it is compared with; the time shown
// is the program's, counters hold the other's and the ratio, all of them medians over the
// iterations.

// Every glyph into the editable model, beside FreeType loading it without scaling.
void decode_glyphs(benchmark::State& state, const std::string& font);

// Storing 64 glyphs from all over the font, each again in its own place, beside joining the bytes
// of glyf anew with a record of the same size and moving the later offsets of loca.
void commit_glyphs(benchmark::State& state, const std::string& font);

// Counting the limits of maxp, beside a bare walk over the same records that trusts them.
void recount_glyphs(benchmark::State& state, const std::string& font);

// Looking up the lowest character of each of the first 1000 glyphs.
void lowest_characters(benchmark::State& state, const std::string& font);

#endif
