// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/left_sizes.h"

#include <algorithm>

using namespace kits;

// A program that animates its size must not fill the memory.
static const size_t most_sizes = 16;
// What a server may repeat within a second before the window gives in.
static const int most_repetitions = 8;


void
left_sizes::leave(QSize left, QSize chosen)
{
	std::erase(fLeft, chosen);
	if (left == chosen || std::count(fLeft.begin(), fLeft.end(), left) != 0)
		return;
	// The first is the one that the server gave, which it repeats for ever.
	if (fLeft.size() == most_sizes)
		fLeft.erase(fLeft.begin() + 1);
	fLeft.push_back(left);
}


bool
left_sizes::repeats(QSize given, moment now)
{
	if (std::count(fLeft.begin(), fLeft.end(), given) == 0)
		return false;
	if (now - fFirstRepetition > std::chrono::seconds(1)) {
		fFirstRepetition = now;
		fRepetitions = 0;
	}
	return ++fRepetitions <= most_repetitions;
}


void
left_sizes::forget()
{
	fLeft.clear();
}
