// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_DRAW_OBJ_FREE_H
#define KERNIX_DRAW_OBJ_FREE_H

#include "draw/object.h"

// A free-hand stroke: the pointer's path, which becomes the outlines of what a round pen would
// have inked along it. state is the number of points while the button is held.
class obj_free : public object {
public:
	obj_free();

	// Records p, whatever the event, unless it is where the last one was. The first event also
	// gives the pen's width; a release completes the stroke, or abandons it when there is but one
	// point.
	int32 create(const unsigned char& code, const BPoint& p, unsigned char psize) override;

	// The whole path with the pen, round at its ends, in the view's high colour and drawing mode.
	// Not inverted and not scaled: calling it again takes nothing away. Keeps the drawing state.
	void drawframe(BView* view, float scale) override;

	// The lines that end at point first or a later one, painted as drawframe() does: it is
	// drawtail(view, 1). Enough where those before are on the view already.
	void drawtail(BView* view, int32 first);

	// The outer outlines clockwise on the screen, the holes anticlockwise, all of control points.
	// The pen inks a picture of half the resolution, with half the width; only the pixels that it
	// can reach within the canvas are there. None for an empty canvas, or when those pixels are
	// more than 2^26.
	shape** to_shape() override;

	// Of the pen, in canvas units.
	uint8 width;
};

#endif
