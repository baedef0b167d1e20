// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "support/time_zone.h"

#include <cstdlib>
#include <ctime>


time_zone::time_zone(const char* zone)
{
	if (const char* before = std::getenv("TZ"))
		fBefore = before;
	setenv("TZ", zone, 1);
	tzset();
}


time_zone::~time_zone()
{
	if (fBefore)
		setenv("TZ", fBefore->c_str(), 1);
	else
		unsetenv("TZ");
	tzset();
}
