// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_SUPPORT_TIME_ZONE_H
#define KERNIX_SUPPORT_TIME_ZONE_H

#include <optional>
#include <string>

// Local time is that of this zone (a TZ value) while the object lives.
class time_zone {
public:
	explicit time_zone(const char* zone);
	~time_zone();
	time_zone(const time_zone&) = delete;
	time_zone& operator=(const time_zone&) = delete;

private:
	std::optional<std::string> fBefore;
};

#endif
