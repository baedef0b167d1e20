// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_BENCH_FREEHAND_H
#define KERNIX_BENCH_FREEHAND_H

#include <benchmark/benchmark.h>

// Turns a free-hand stroke of so many points into contours: a spiral on a canvas of 2048 units, with
// a pen of that width. In turns with its floor: painting the same lines into a picture of the same
// pixels, without reading it. The time shown is the former's; counters hold both, and the ratio, all
// of them medians over the iterations.
void trace_stroke(benchmark::State& state, int points, int width);

#endif
