// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_DESKTOP_UNTIL_H
#define KERNIX_DESKTOP_UNTIL_H

#include <functional>
#include <stdexcept>
#include <string>

// What ends a journey before its end.
class journey_failed : public std::runtime_error {
public:
	using std::runtime_error::runtime_error;
};

// Asks again and again until the answer is yes. Throws journey_failed with `what`, which says what
// is missing, when that takes longer than a sanitizer on a busy machine may need.
void until(const std::string& what, const std::function<bool()>& so);

// Whether the answer becomes yes within this time. Only for what must not come about.
bool comes_within(int milliseconds, const std::function<bool()>& so);

// What a user's hand takes, not what a program needs.
void pause(int milliseconds);

#endif
