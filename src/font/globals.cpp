// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "font/globals.h"

ttf* curttf = nullptr;
BRect canvas(0, 0, 0, 0);
std::atomic<unsigned char> canvasok = 0;
std::atomic<BFilePanel*> fpanel = nullptr;
glyph* cur_glyph = nullptr;
object* cur_object = nullptr;
