// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "support/size_limit.h"


size_limit::size_limit(rlim_t bytes)
{
	// Writing beyond the limit would end the process.
	fHandler = signal(SIGXFSZ, SIG_IGN);
	getrlimit(RLIMIT_FSIZE, &fBefore);
	const rlimit limit = {bytes, fBefore.rlim_max};
	setrlimit(RLIMIT_FSIZE, &limit);
}


size_limit::~size_limit()
{
	setrlimit(RLIMIT_FSIZE, &fBefore);
	signal(SIGXFSZ, fHandler);
}
