// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_BENCH_MEMORY_H
#define KERNIX_BENCH_MEMORY_H

#include <benchmark/benchmark.h>
#include <string>

// How far the highest resident size of a process rises while it loads the font, and while it saves
// it after that. Each time in a process of its own. Counters in MiB; of_limit is the growth of
// loading and saving as a share of what is allowed: 1.25 times the file and 12 MiB.
void memory(benchmark::State& state, const std::string& font);

#endif
