// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_SOAK_MEMORY_H
#define KERNIX_SOAK_MEMORY_H

#include <cstdint>
#include <vector>

// How much memory is in use after each session, and whether that stays as it is.
class memory {
public:
	// Display thread, when the program has gone.
	void sample();

	// Prints what was found. False when the median of the last third is larger than the one of the
	// second by more than a twentieth and 2 MiB; the first third is for warming up. With less than
	// nine samples there is no telling, which is true.
	bool is_flat() const;

private:
	// Octets: allocated and not freed; resident in memory.
	std::vector<int64_t> fLive;
	std::vector<int64_t> fResident;
};

#endif
