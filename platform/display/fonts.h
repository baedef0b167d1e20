// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KITS_FONTS_H
#define KITS_FONTS_H

#include <QFont>

namespace kits {

// The screen font in the given size (pixels). Full hinting and grey edges, so that text has the
// same pixels on every display. Any thread.
QFont screen_font(float size, bool bold);

}

#endif
