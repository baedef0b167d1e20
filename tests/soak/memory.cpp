// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "soak/memory.h"

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <fstream>
#include <malloc.h>
#include <QPixmapCache>
#include <unistd.h>

// The sanitizers' own, where there are any: the C library does not see what they allocate.
extern "C" size_t __sanitizer_get_current_allocated_bytes() __attribute__((weak));

static const int64_t mebi = 1 << 20;


static int64_t
live()
{
	if (__sanitizer_get_current_allocated_bytes)
		return (int64_t)__sanitizer_get_current_allocated_bytes();
	struct mallinfo2 found = mallinfo2();
	return (int64_t)(found.uordblks + found.hblkhd);
}


static int64_t
resident()
{
	int64_t whole = 0;
	int64_t pages = 0;
	std::ifstream("/proc/self/statm") >> whole >> pages;
	return pages * sysconf(_SC_PAGESIZE);
}


void
memory::sample()
{
	// The toolkit's style keeps pictures of its scroll bars by name, and never forgets the names.
	QPixmapCache::setCacheLimit(0);
	malloc_trim(0);
	fLive.push_back(live());
	fResident.push_back(resident());
}


// Of one third of the samples, 0 to 2.
static int64_t
median(const std::vector<int64_t>& samples, size_t third)
{
	const auto at = [&](size_t part) { return (ptrdiff_t)(samples.size() * part / 3); };
	std::vector<int64_t> found(samples.begin() + at(third), samples.begin() + at(third + 1));
	std::nth_element(found.begin(), found.begin() + (ptrdiff_t)found.size() / 2, found.end());
	return found[found.size() / 2];
}


// Prints the medians of the thirds.
static bool
stays(const char* name, const std::vector<int64_t>& samples)
{
	const int64_t before = median(samples, 1);
	const int64_t after = median(samples, 2);
	fprintf(stderr, "soak: %s memory after a session: %.2f MiB at first, %.2f, %.2f at last\n",
		name, (double)median(samples, 0) / mebi, (double)before / mebi, (double)after / mebi);
	return after <= before + before / 20 + 2 * mebi;
}


bool
memory::is_flat() const
{
	if (fLive.size() < 9) {
		fprintf(stderr, "soak: too few sessions to tell about memory\n");
		return true;
	}
	bool flat = stays("live", fLive);
	const bool flat_too = stays("resident", fResident);
	// A sanitizer holds back what is freed, so that resident memory tells nothing there.
	if (!__sanitizer_get_current_allocated_bytes)
		flat = flat && flat_too;
	if (!flat)
		fprintf(stderr, "soak: memory grows\n");
	return flat;
}
