// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_FONT_GLOBALS_H
#define KERNIX_FONT_GLOBALS_H

#include <atomic>
#include <Rect.h>

class BFilePanel;
class glyph;
class object;
class ttf;

// The open font, or null. Owned by the application, which alone creates, replaces and destroys it,
// always with the main window locked and the work view cleared. The window's thread may read it
// whenever it runs; the application's thread may read it without the lock, being its only writer.
// Still reachable, and not destroyed, when the program ends.
extern ttf* curttf;

// The bounds of the canvas of the font on display; all zero until the first one is, and also for a
// font whose box is empty. Written in the window's thread while 'init' is handled, and reset in the
// application's when the next font's outline view is made.
extern BRect canvas;

// The handshake for a new font: the application sets it to 0, sends 'init' and waits; the window's
// thread sets it to 1 and notifies when the display is built, or when the window quits and there
// will be none. Whoever sets it has set canvas before.
extern std::atomic<unsigned char> canvasok;

// The file panel on the screen, or null. Set by the work view, which owns the panel; set back to
// null by the application when the panel has answered. Never used to reach the panel.
extern std::atomic<BFilePanel*> fpanel;

// The outline in the editor, and the object that a drawing tool is at, or null. Owned by the outline
// edit view, one at a time, which makes the outline with itself; the outline outlives it, until the
// next view is made. Window's thread; the view of a font that is being loaded is made in the
// application's, while there is no other.
extern glyph* cur_glyph;
extern object* cur_object;

#endif
