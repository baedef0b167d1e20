// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_DRAW_OBJECT_H
#define KERNIX_DRAW_OBJECT_H

#include <Point.h>
#include <Rect.h>
#include <SupportDefs.h>

class BView;
class shape;

// One use of a drawing tool: it collects the pointer's events, shows what it would become, and
// becomes contours when it is complete. Points are canvas units, y down. Made by the outline editor
// at a press, fed until create() answers below 0, then turned into contours or thrown away. Used in
// the thread of the edit view.
class object {
public:
	// The values of kind.
	enum { free_hand = 0x10, rectangle = 0x30, ellipse = 0x40, polygon = 0x50, rounded = 0x51 };
	// What an event is: a press, with the secondary button too; a move, with the button held or
	// not; a release. Objects pass over what they have no use for.
	enum : unsigned char { press = 1, release = 2, drag = 3, hover = 4, step_back = 6 };
	// The values of state below 0.
	enum { complete = -1, abandoned = -2 };
	// In these steps the points grow.
	enum { step = 256 };

	// So many points at (0, 0), or with 0 none and room for a step.
	explicit object(int n);
	object(const object&) = delete;
	object& operator=(const object&) = delete;

	// Takes one event and answers the state. psize is the palette's size, for the tool with a pen.
	// Nothing happens once the object is complete or abandoned. Base: nothing ever does.
	virtual int32 create(const unsigned char& code, const BPoint& p, unsigned char psize);

	// Paints the preview, each point multiplied by scale: inverted through B_MIXED_COLORS, so that
	// a second identical call takes it away. Leaves the view in B_OP_COPY. Base: nothing.
	virtual void drawframe(BView* view, float scale);

	// The contours in an array that ends with a null; the caller owns both. Unselected, with their
	// frames, in the direction in which the user drew. Only for a complete object. What a contour
	// has no room for is left out. Base: no array.
	virtual shape** to_shape();

	virtual ~object();

	// Which tool: set by the editor, not read here.
	uint8 kind;
	// 0 before the first event, below 0 after the last; in between as the class says.
	int32 state;
	int32 num;
	// Owned; num count.
	BPoint* pts;

protected:
	void append(const BPoint& p);
	// An array of one contour of all points, each with flag f of shape::set.
	shape** as_contour(char f) const;
};

// An array of this contour and a null, or with a null contour of a null alone. The caller owns
// both.
shape** contour_list(shape* contour);

// A tool dragged from corner to corner. The points are the corners: the start, then (present x,
// start y), the present one, (start x, present y). state is 1 while the button is held.
class object_r : public object {
public:
	explicit object_r(int n);

	int32 create(const unsigned char& code, const BPoint& p, unsigned char psize) override;
	// The rectangle.
	void drawframe(BView* view, float scale) override;

protected:
	// From the start to the present corner, scaled; not in order.
	BRect dragged(float scale) const;

private:
	void follow(const BPoint& p);
};

// A tool that fixes a point at each click. While it goes on, the last point is pending: it follows
// the pointer; state counts the others. A press within 2 units of the last fixed point completes
// the object; a step back takes the last fixed point away, and with the only one abandons it, as it
// does when it comes first of all.
class object_l : public object {
public:
	explicit object_l(int n);

	int32 create(const unsigned char& code, const BPoint& p, unsigned char psize) override;

private:
	void fix(const BPoint& p);
	void unfix(const BPoint& p);
};

#endif
