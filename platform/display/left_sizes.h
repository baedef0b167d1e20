// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_LEFT_SIZES_H
#define KITS_LEFT_SIZES_H

#include <chrono>
#include <QSize>
#include <vector>

namespace kits {

// The sizes that a program has replaced by one of its own while its window was on the screen. A
// Wayland server that sized a window once repeats that size whenever it has something else to say,
// long after the program has chosen another. Such a repetition is a suggestion, not the user.
class left_sizes {
public:
	using moment = std::chrono::steady_clock::time_point;

	// The program has replaced one size by another.
	void leave(QSize left, QSize chosen);
	// Whether the server only repeats a size that was left. A server that repeats it again and again
	// at once insists, so that the answer becomes false.
	bool repeats(QSize given, moment now);
	// The user, or the server for a reason of its own, has decided on a size.
	void forget();

private:
	std::vector<QSize> fLeft;
	moment fFirstRepetition;
	int fRepetitions = 0;
};

}

#endif
