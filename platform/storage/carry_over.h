// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_CARRY_OVER_H
#define KITS_CARRY_OVER_H

namespace kits {

// Gives the open file `to`, made by this process and still for its user alone, what the open file
// `from` has beside its contents: owner, group, permission bits, access lists, the labels of the
// system, and of the other extended attributes those that the file system of `to` takes. Attributes
// that vouch for the contents are left out.
//
// Returns 0 when everybody has exactly the rights to `to` that he has to `from`. Else the system's
// error number, EPERM when it gave none: then nobody has a right to `to` that he has not to `from`,
// but for the process's own user.
int carry_over(int from, int to);

// Gives `to` the attributes of `from` that are no matter of rights, as far as it takes them.
void carry_over_remarks(int from, int to);

}

#endif
