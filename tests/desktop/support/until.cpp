// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "desktop/support/until.h"

#include <chrono>
#include <cstdlib>
#include <thread>

using std::chrono::steady_clock;


// A minute, or as many seconds as the caller of the tests says.
static int
limit()
{
	const char* seconds = getenv("KERNIX_PATIENCE");
	return 1'000 * (seconds == nullptr ? 60 : std::atoi(seconds));
}


bool
comes_within(int milliseconds, const std::function<bool()>& so)
{
	auto end = steady_clock::now() + std::chrono::milliseconds(milliseconds);
	while (!so()) {
		if (steady_clock::now() > end)
			return false;
		pause(20);
	}
	return true;
}


void
until(const std::string& what, const std::function<bool()>& so)
{
	if (!comes_within(limit(), so))
		throw journey_failed(what);
}


void
pause(int milliseconds)
{
	std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}
