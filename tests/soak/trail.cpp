// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "soak/trail.h"

#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <mutex>
#include <thread>

// The sanitizers' own, where there are any.
extern "C" void __sanitizer_set_death_callback(void (*callback)()) __attribute__((weak));

enum { most_kept = 40 };

static struct {
	std::mutex lock;
	std::condition_variable changed;
	std::string path;
	FILE* log = nullptr;
	std::deque<std::string> last;
	// Of actions begun.
	long count = 0;
	bool ended = false;
	std::thread watcher;
} state;


static void
write(const std::string& line)
{
	state.count++;
	state.last.push_back(line);
	if (state.last.size() > most_kept)
		state.last.pop_front();
	fprintf(state.log, "%s\n", line.c_str());
	fflush(state.log);
}


static void
print_last()
{
	for (const std::string& line : state.last)
		fprintf(stderr, "  %s\n", line.c_str());
}


// Without the lock: whoever dies may hold it.
static void
print_at_death()
{
	fprintf(stderr, "soak: what led to it (all of it in %s):\n", state.path.c_str());
	print_last();
}


static void
watch(int patience)
{
	std::unique_lock guard(state.lock);
	long seen = -1;
	while (!state.ended) {
		if (seen == state.count) {
			fprintf(stderr, "soak: no end of the last action after %d s\n", patience);
			print_at_death();
			abort();
		}
		seen = state.count;
		state.changed.wait_for(guard, std::chrono::seconds(patience),
			[&] { return state.ended || seen != state.count; });
	}
}


void
trail::begin(const std::string& log, int patience)
{
	state.path = log;
	state.log = fopen(log.c_str(), "w");
	if (state.log == nullptr)
		abort();
	if (__sanitizer_set_death_callback)
		__sanitizer_set_death_callback(print_at_death);
	state.watcher = std::thread(watch, patience);
}


void
trail::end()
{
	{
		std::lock_guard guard(state.lock);
		state.ended = true;
		state.changed.notify_all();
	}
	state.watcher.join();
	fclose(state.log);
}


void
trail::session(const std::string& name)
{
	std::lock_guard guard(state.lock);
	state.log = freopen(state.path.c_str(), "w", state.log);
	if (state.log == nullptr)
		abort();
	write(name);
	state.changed.notify_all();
}


void
trail::note(const std::string& action)
{
	std::lock_guard guard(state.lock);
	write(action);
	state.changed.notify_all();
}


void
trail::print()
{
	std::lock_guard guard(state.lock);
	print_last();
}
