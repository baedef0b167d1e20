// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "support/unread_output.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <future>
#include <stdexcept>
#include <thread>
#include <unistd.h>


redirected_output::redirected_output(int descriptor)
{
	fflush(stdout);
	fBefore = dup(STDOUT_FILENO);
	dup2(descriptor, STDOUT_FILENO);
}


redirected_output::~redirected_output()
{
	fflush(stdout);
	dup2(fBefore, STDOUT_FILENO);
	close(fBefore);
}


pipe_ends::pipe_ends()
{
	if (pipe2(fEnds, O_CLOEXEC) != 0)
		throw std::runtime_error("no pipe");
}


pipe_ends::~pipe_ends()
{
	close_reader();
	close(fEnds[1]);
}


void
pipe_ends::close_reader()
{
	if (fEnds[0] >= 0)
		close(fEnds[0]);
	fEnds[0] = -1;
}


void
pipe_ends::fill(size_t spare)
{
	fcntl(fEnds[1], F_SETFL, O_NONBLOCK);
	const std::string page(4096, 'x');
	size_t held = 0;
	for (ssize_t more; (more = write(fEnds[1], page.data(), page.size())) > 0;)
		held += (size_t)more;
	fcntl(fEnds[1], F_SETFL, 0);
	for (std::string taken(std::min(spare, held), '\0'); spare > 0; spare = 0)
		(void)!read(fEnds[0], taken.data(), taken.size());
}


std::string
pipe_ends::contents()
{
	std::string all;
	char some[4096];
	fcntl(fEnds[0], F_SETFL, O_NONBLOCK);
	for (ssize_t more; (more = read(fEnds[0], some, sizeof some)) > 0;)
		all.append(some, (size_t)more);
	return all;
}


bool
ends_without_reader(pipe_ends& pipe, const std::function<void()>& work)
{
	std::promise<void> done;
	std::future<void> end = done.get_future();
	bool in_time = true;
	std::thread watch([&] {
		using namespace std::chrono_literals;
		auto patience = 10'000ms;
		while (end.wait_for(patience) != std::future_status::ready) {
			in_time = false;
			pipe.contents();
			patience = 10ms;
		}
	});
	work();
	done.set_value();
	watch.join();
	return in_time;
}
