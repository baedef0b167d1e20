// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "app/activity.h"

#include <atomic>

namespace {

std::atomic<int64> under_way{0};
std::atomic<int64> begun{0};

}


void
kits::activity::begin()
{
	under_way.fetch_add(1);
	begun.fetch_add(1);
}


void
kits::activity::end()
{
	under_way.fetch_sub(1);
}


int64
kits::activity::pending()
{
	return under_way.load();
}


int64
kits::activity::generation()
{
	return begun.load();
}
