// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_SOAK_DICE_H
#define KERNIX_SOAK_DICE_H

#include <cstdint>
#include <random>

// Everything random of a session, from one generator: its seed repeats the session, as far as
// threads let it.
class dice {
public:
	explicit dice(uint64_t seed) : fSource(seed) {}

	uint64_t seed() { return fSource(); }
	// 0 to count - 1; count is at least 1.
	int below(int count) { return (int)(fSource() % (uint64_t)count); }
	int between(int least, int most) { return least + below(most - least + 1); }
	bool one_in(int count) { return below(count) == 0; }

	template <typename List>
	const auto& any(const List& list)
	{
		return *(std::begin(list) + below((int)std::size(list)));
	}

private:
	std::mt19937_64 fSource;
};

#endif
