// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_CONTENTS_H
#define KITS_CONTENTS_H

namespace kits {

// Makes the contents of `to` those of `from`. Both are open on regular files, `from` for reading, `to`
// for reading and writing. As long as there is no room for the new contents `to` stays as it was; then
// a single write brings them. Returns 0 or the system's error number.
int copy_contents(int from, int to);

}

#endif
