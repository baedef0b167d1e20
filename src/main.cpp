// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "app/kernix.h"

#include <cstdio>


int
main()
{
	// Diagnostics appear at once, also in a pipe.
	setvbuf(stdout, nullptr, _IOLBF, BUFSIZ);
	kernix app;
	app.Run();
	return 0;
}
