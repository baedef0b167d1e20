// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KITS_LOOK_H
#define KITS_LOOK_H

class QApplication;

namespace kits {

// One look on every desktop, so that layouts given in pixels fit: a style of our own measures,
// a light palette, the plain font.
void set_look(QApplication& application);

}

#endif
