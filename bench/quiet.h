// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_BENCH_QUIET_H
#define KERNIX_BENCH_QUIET_H

// Sends standard output to nowhere while it lives: the diagnostics of the program are written as
// ever, but no terminal takes part in the measurement.
class quiet {
public:
	quiet();
	~quiet();
	quiet(const quiet&) = delete;
	quiet& operator=(const quiet&) = delete;

private:
	int fKept;
};

#endif
