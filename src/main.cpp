// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "app/kernix.h"


int
main()
{
	kernix app;
	app.Run();
	return 0;
}
