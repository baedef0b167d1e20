// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The limits on an input, as far as a target can hold them itself.
#include "fuzz.h"

#include <csignal>
#include <cstdlib>
#include <string>
#include <sys/time.h>
#include <unistd.h>
#include <vector>


static void
out_of_time(int)
{
	const char text[] = "this input takes too long\n";
	// Whether anybody reads it makes no difference.
	(void)!write(STDERR_FILENO, text, sizeof text - 1);
	abort();
}


// The timer goes while the process works, and only then.
static void
set_timer(int seconds)
{
	itimerval timer = {};
	timer.it_value.tv_sec = seconds;
	setitimer(ITIMER_PROF, &timer, nullptr);
}


int
LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
	signal(SIGPROF, out_of_time);
	set_timer(most_seconds);
	take_input(data, size);
	set_timer(0);
	return 0;
}


// Freed memory that is kept to find late uses of it would drown what an input takes.
extern "C" const char*
__asan_default_options()
{
	return "quarantine_size_mb=16";
}


// libFuzzer holds the memory. Its own time is that of the clock on the wall, and there for an input
// that waits for ever. Options of the command line come later, and count.
extern "C" int
LLVMFuzzerInitialize(int* count, char*** words)
{
	static std::string timeout = "-timeout=" + std::to_string(60 * most_seconds);
	static std::string memory = "-rss_limit_mb=" + std::to_string(most_megabytes);
	static std::vector<char*> all = {(*words)[0], timeout.data(), memory.data()};
	all.insert(all.end(), *words + 1, *words + *count);
	*count = (int)all.size();
	all.push_back(nullptr);
	*words = all.data();
	return 0;
}
