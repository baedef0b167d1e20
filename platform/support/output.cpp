// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "support/output.h"

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <poll.h>
#include <string>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace kits;


namespace {

// One of the standard streams, by its descriptor. Only stdio calls here, with the stream locked.
struct outlet {
	const int number;
	std::string rest; // of a line that was begun
};


// Whether to wait is a property that all processes share which write to a terminal or a pipe: the
// shell's must stay as it is. Opened once more, the same terminal or pipe has one of its own. That
// is done for each line, which takes tens of microseconds, because the descriptor may be redirected.
ssize_t
write_apart(int number, const char* text, size_t size)
{
	const std::string path = "/proc/self/fd/" + std::to_string(number);
	const int own = open(path.c_str(), O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
	if (own >= 0) {
		const ssize_t done = write(own, text, size);
		close(own);
		return done;
	}
	// Another user's. What is free now is enough for a line, unless somebody else is quicker.
	pollfd asked = {number, POLLOUT, 0};
	return poll(&asked, 1, 0) == 1 && asked.revents == POLLOUT ? write(number, text, size) : -1;
}


// Writes as much as can be written now and returns how much that was.
size_t
write_now(int number, const char* text, size_t size)
{
	struct stat found;
	if (fstat(number, &found) != 0)
		return 0;
	ssize_t done;
	if (S_ISSOCK(found.st_mode))
		done = send(number, text, size, MSG_DONTWAIT | MSG_NOSIGNAL);
	else if (S_ISFIFO(found.st_mode) || S_ISCHR(found.st_mode))
		done = write_apart(number, text, size);
	else
		done = write(number, text, size);
	return (size_t)std::max<ssize_t>(done, 0);
}


// To stdio everything has been written.
ssize_t
put(void* cookie, const char* text, size_t size)
{
	auto& out = *static_cast<outlet*>(cookie);
	if (!out.rest.empty())
		out.rest.erase(0, write_now(out.number, out.rest.data(), out.rest.size()));
	if (out.rest.empty()) {
		const size_t done = write_now(out.number, text, size);
		if (done > 0)
			out.rest.assign(text + done, size - done);
	}
	return (ssize_t)size;
}


FILE*
stream_to(outlet* out, int buffering)
{
	FILE* stream = fopencookie(out, "w", {nullptr, put, nullptr, nullptr});
	setvbuf(stream, nullptr, buffering, BUFSIZ);
	return stream;
}


void
fill_gaps()
{
	int number = 0;
	while (number >= 0 && number <= STDERR_FILENO)
		number = open("/dev/null", O_RDWR);
	close(number);
}

}


void
kits::never_wait_for_output()
{
	// Never destroyed: other threads may print until the process ends.
	static outlet* outlets = nullptr;
	if (outlets)
		return;
	outlets = new outlet[2]{{STDOUT_FILENO, {}}, {STDERR_FILENO, {}}};
	// No reader, a file that may not grow, a terminal that stops those in the background.
	for (int raised : {SIGPIPE, SIGXFSZ, SIGTTOU})
		signal(raised, SIG_IGN);
	fill_gaps();
	fflush(stdout);
	stdout = stream_to(&outlets[0], _IOLBF);
	stderr = stream_to(&outlets[1], _IONBF);
}
