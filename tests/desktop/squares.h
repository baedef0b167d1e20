// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_DESKTOP_SQUARES_H
#define KERNIX_DESKTOP_SQUARES_H

#include "desktop/journey.h"
#include "support/font_file.h"

// A font whose box is (0, 0) to (1023, 1023), which the outline editor fits at scale 0.5. Glyph 1,
// "A", has five squares of 160 units side. On the canvas, y down, their left tops are at
// (100, 100), (400, 100), (700, 100), (100, 600) and (600, 600), in this order.
font_file squares_font();

// A journey in the outline editor. Units are those of the canvas, at the scale that fits.
class outline_journey : public journey {
protected:
	// Opens the font, shows glyf and chooses glyph 1; the canvas has the keyboard.
	void at_squares();
	// Chooses the glyph once more: all five squares, none selected.
	void choose_again();

	// A place of the canvas in the window, and what a square covers with its marks.
	static QPointF unit(double x, double y);
	static QRectF area_of(int square);
	bool is_drawn(int square);
	// Waits until these squares are there, like "01234", and the others are not.
	void drawn(const std::string& squares);
	// The canvas, as far as the window shows it.
	QRectF canvas_area();
	QImage canvas() { return picture(canvas_area()); }
	// Presses and releases where nothing is drawn.
	void press_on_canvas();
	// Drags a band around one square.
	void band(int square);
	// By the left arrow, with no other selected.
	void select_first();
	// Wait until the canvas looks different, or like this.
	void changes_from(const QImage& before);
	void canvas_is(const QImage& wanted) { shows(wanted, canvas_area()); }

private:
	QImage fUnselected;
};

#endif
