// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_OUTLINE_SHAPE_H
#define KERNIX_OUTLINE_SHAPE_H

#include <Point.h>
#include <Rect.h>
#include <SupportDefs.h>

class BShape;
class BView;

// One closed contour of a TrueType outline: a ring of points, each on the curve or a quadratic
// control point, with its selection. It does not know its coordinate space: font units after
// decoding, canvas units once mapped. The order of the points is the contour's direction.
//
// Used in one thread at a time. What points beyond the capacity, or a selection that names no
// point, would touch is left alone.
class shape final {
public:
	enum { max_points = 1024 };

	// Points unset: set() all of them, then ctrlp2form(). n is kept within 0 and the capacity.
	explicit shape(int n);
	shape(const shape&) = delete;
	shape& operator=(const shape&) = delete;

	// Memory that an earlier contour of the same thread left, when there is some. No class derives
	// from this one.
	static void* operator new(size_t size);
	static void operator delete(void* memory);

	// With the selection and the frame, but not armed. The caller owns it.
	shape* copy() const;

	// The contour as a component of another glyph, unselected, without a frame; the caller owns
	// it. (x, y) becomes (A x + B y + dx, C x + D y + dy). A to D are a to d, fixed-point numbers
	// of 2.14, divided by 16384 to whole numbers toward zero on purpose: half a unit is nothing.
	shape* transcopy(short dx, short dy, short a, short b, short c, short d) const;

	// Neither num nor the frame follows. f is 0 on the curve, 1 for a control point.
	void set(const int& i, const BPoint& p, const char& f);
	// False, with p and f as they were, when there is no such point.
	bool get(const int& i, BPoint& p, char& f) const;

	// Finds the frame anew; the empty one when there is no point.
	void ctrlp2form();

	// Strokes the outline with the view's pen, relative to where the pen stands; leaves the view's
	// drawing state alone. color is 0xRRGGBB; 0 means by direction: white when ispositive(), else
	// a light blue.
	void draw(BView* view, unsigned long color) const;

	// Inverts a marker on every point of a selected contour, an ellipse for control points, a
	// square for others; a second call takes them away. r is half a marker's size. Leaves the
	// view in B_OP_COPY.
	void drawframe(BView* view, float r) const;

	// Maps src onto dst, both as inclusive pixels, and finds the frame anew. A rectangle with its
	// bottom above its top has a negative height: that is how y is turned round.
	void trans(const BRect& src, const BRect& dst);

	// Which way round, judged at the first of the points with the smallest y and its neighbours
	// alone; control points count like others.
	bool ispositive() const;

	// Turns the direction round when the whole contour is selected. The frame stays.
	void reverse();

	// Turns on-curve points into control points and back: all, or the selected one.
	void tglpoint();

	// Takes the selected point out; sel stays, naming the one that followed, or none. True when
	// fewer than three are left: the contour must then be discarded, its points have not moved.
	bool delpoint();

	// Inserts a point at the selected one plus d, on the side that makes the smaller detour, and
	// selects it. Once per point hit; nothing when the contour is full.
	void inspoint(const BPoint& d);

	// Moves what is selected.
	void move(const BPoint& d);

	// -1, and selects the whole contour, when r contains or meets the frame; else 0, with the
	// selection as it was: a rectangle never deselects, nor finds a contour without points. Disarms
	// either way.
	int select_chk(const BRect& r);

	// i + 1 for the last point within t of p on both axes, else -1 when the frame contains p, else
	// 0; selects what it found, deselects never. Armed when it found a point.
	int select_chk(const BPoint& p, float t);

	// 0 nothing selected, -1 the whole contour, k > 0 the point k - 1 alone.
	int32 sel;
	// 1 from a point hit until the next inspoint() or test.
	uint8 armed;
	// The box of all points, control points too; stale after set(), transcopy() and reverse().
	BRect frame;
	int32 num;
	// max_points each, of which num count; they lie in the contour itself.
	BPoint* pts;
	char* onoff;

private:
	bool has_selected_point() const { return sel > 0 && sel <= num; }
	int32 next_of(int32 i) const { return i + 1 < num ? i + 1 : 0; }
	BPoint start() const;
	void trace(BShape& path) const;
	bool belongs_after(int32 i, const BPoint& point) const;

	// For both arrays.
	alignas(BPoint) unsigned char fPoints[max_points * (sizeof(BPoint) + 1)];
};

#endif
