// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_SUPPORT_UNREAD_OUTPUT_H
#define KERNIX_SUPPORT_UNREAD_OUTPUT_H

#include <functional>
#include <string>

// While it lives, the standard output of this process goes where the descriptor leads.
class redirected_output {
public:
	explicit redirected_output(int descriptor);
	~redirected_output();
	redirected_output(const redirected_output&) = delete;
	redirected_output& operator=(const redirected_output&) = delete;

private:
	int fBefore;
};

// A pipe; both ends may be closed before it goes.
class pipe_ends {
public:
	pipe_ends();
	~pipe_ends();
	pipe_ends(const pipe_ends&) = delete;
	pipe_ends& operator=(const pipe_ends&) = delete;

	int reader() const { return fEnds[0]; }
	int writer() const { return fEnds[1]; }
	void close_reader();
	// Until it holds no more, but for so many bytes.
	void fill(size_t spare = 0);
	// All that is in it.
	std::string contents();

private:
	int fEnds[2];
};

// Does the work while nobody reads what is in the pipe; false when it was not done in ten seconds.
// The pipe is emptied then, so that the work can come to its end.
bool ends_without_reader(pipe_ends& pipe, const std::function<void()>& work);

#endif
