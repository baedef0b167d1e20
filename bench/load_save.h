// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_BENCH_LOAD_SAVE_H
#define KERNIX_BENCH_LOAD_SAVE_H

#include <benchmark/benchmark.h>
#include <string>

// Loads the font and saves it into a new file, in turns with a plain copy of the file and with the
// floor: each table read into a buffer of its own with its padding, summed, and written. The time
// shown is the program's; counters hold those of the two others and the ratios, all of them medians
// over the iterations.
void load_and_save(benchmark::State& state, const std::string& font);

#endif
