// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_OUTPUT_H
#define KITS_OUTPUT_H

namespace kits {

// From now on nothing that this process prints can stop it or hold it up, whatever becomes of the
// reader: what stdout and stderr cannot take at once is dropped. A line that could only be begun is
// finished before the next one. The signals that writing may raise are ignored. Standard
// descriptors that are closed lead to nowhere, so that no file is opened under their numbers.
//
// Called before the process has other threads; once more it does nothing.
void never_wait_for_output();

}

#endif
