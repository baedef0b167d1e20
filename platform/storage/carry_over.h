// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_CARRY_OVER_H
#define KITS_CARRY_OVER_H

namespace kits {

// Gives the open file `to`, made by this process, what the open file `from` has beside its contents:
// owner and group as far as the system lets us, extended attributes as far as the file system of
// `to` takes them, and the permission bits. Nobody gets a right to `to` that he has not to `from`,
// but for the process's own user, who owns what he may not give away.
//
// Returns 0, or the system's error number when the permission bits cannot be had.
int carry_over(int from, int to);

}

#endif
