// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "quiet.h"

#include <cstdio>
#include <fcntl.h>
#include <iostream>
#include <unistd.h>


quiet::quiet()
{
	std::cout.flush();
	fflush(stdout);
	fKept = dup(STDOUT_FILENO);
	int nowhere = open("/dev/null", O_WRONLY);
	dup2(nowhere, STDOUT_FILENO);
	close(nowhere);
}


quiet::~quiet()
{
	fflush(stdout);
	dup2(fKept, STDOUT_FILENO);
	close(fKept);
}
