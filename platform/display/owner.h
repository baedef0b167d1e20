// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_OWNER_H
#define KITS_OWNER_H

class QWidget;

namespace kits {

// Ties a dialog that is not shown yet to the window that the user works in, so that the desktop
// keeps it in front of that window. Nothing without a window. Display thread only.
void tie_to_window(QWidget& dialog);

}

#endif
