// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_PROGRAM_OUTLINE_STAGE_H
#define KERNIX_PROGRAM_OUTLINE_STAGE_H

#include "editor/glyfeditview.h"
#include "editor/glyftoolview.h"
#include "font/globals.h"
#include "font/ttf.h"
#include "outline/glyph.h"
#include "outline/shape.h"
#include "outline/ttf_glyf.h"
#include "support/font_file.h"
#include "support/robot.h"

#include <functional>
#include <Message.h>
#include <string>
#include <vector>

// The panel of glyf alone in a window of its own, at the window's left top: the palette from (0, 0),
// the edit view from (50, 0) on. What the two send each other is noted.

// A font of seven glyphs whose box is (0, 0) to (511, 511), of which this stands for:
//   0  nothing; empty
//   1  "A", "a": a triangle, (0, 0), (511, 0), (255, 511)
//   2  e with acute, E9: a square, (64, 64), (64, 448), (448, 448), (448, 64), and in it another
//      the other way round, (192, 192), (320, 192), (320, 320), (192, 320)
//   3  3042: composite; glyph 1 at (0, 0), glyph 2 at (10, -20)
//   4  9000: composite; glyph 1 at (0, 0)
//   5  nothing: a square, (100, 100), (100, 300), (300, 300), (300, 100)
//   6  nothing: composite; glyph 5 eight times, which is one too many
// F000 stands for glyph 300 hex, which there is not.
font_file outlines_font();
// The same with another box.
font_file outlines_font(int xmin, int ymin, int xmax, int ymax);

class stage_window;

class outline_stage {
public:
	outline_stage(stage_window& window, robot& hand);

	glyfeditview& edit;
	glyftoolview& tools;
	robot& user;

	// With the window locked.
	void locked(const std::function<void()>& work);
	// Each sends the edit view a message and returns when everything is idle.
	void tell(BMessage message);
	void tell(uint32 code) { tell(BMessage(code)); }
	void choose(const char* field, int number);
	void add(int glyph);
	void del(int index);
	// Presses and releases a key at the edit view.
	void key(char which);

	// What the palette, or the edit view, was sent since it was asked for last: the code and the
	// fields in a fixed order, like "Vchg gno=0001 chr=0041 empty=0". A field of another type than
	// it should have is marked with "?".
	std::vector<std::string> heard();
	std::vector<std::string> sent();
	// The last of them alone; how many there were before it does not count.
	std::string last_heard();

	// The outline: its contours, as "0,511 511,511 255,0 | ...", control points with a '*'; and its
	// selection words, like "0 -1".
	std::string outline();
	std::string selection();
	// Its components: "0001 at 0,0; 0002 at 10,-20".
	std::string components();
	// The numbers that the edit view is at: "gno 0001 chr 0041 mode 0 state 0".
	std::string state();

private:
	stage_window& fWindow;
};

void at_outlines(const font_file& font, const std::function<void(outline_stage&)>& work);
// With outlines_font().
void at_outlines(const std::function<void(outline_stage&)>& work);

using texts = std::vector<std::string>;

// What a press at a place of the panel sends.
texts sent_by(outline_stage& stage, float x, float y);
// What a text sends that is entered there.
texts sent_by(outline_stage& stage, BPoint field, const std::string& text);

#endif
