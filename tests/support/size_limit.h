// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_SUPPORT_SIZE_LIMIT_H
#define KERNIX_SUPPORT_SIZE_LIMIT_H

#include <csignal>
#include <sys/resource.h>

// While it lives, no file that the process writes to grows beyond so many bytes: to it, the disk is
// full.
class size_limit {
public:
	explicit size_limit(rlim_t bytes);
	~size_limit();
	size_limit(const size_limit&) = delete;
	size_limit& operator=(const size_limit&) = delete;

private:
	rlimit fBefore = {};
	sighandler_t fHandler = nullptr;
};

#endif
