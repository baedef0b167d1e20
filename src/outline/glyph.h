// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_OUTLINE_GLYPH_H
#define KERNIX_OUTLINE_GLYPH_H

#include <Point.h>
#include <Rect.h>
#include <SupportDefs.h>

class BView;
class shape;

// The editable outline of one glyph: its contours, and for a composite its components, each a
// glyph of its own placed by an offset and a 2 x 2 matrix. Behind the contours of a composite, which
// are its components' flattened, stands one frame contour for each component, from
// create_composhape() on.
//
// Selecting works on a range of contours, from sel_begin() to before sel_end(): all contours of a
// simple glyph, the frames alone of a composite, of which the user moves whole components. Deleting,
// copying, reversing, toggling and reordering always work on the own contours, on purpose.
//
// Used in one thread at a time: the one that owns the edit view. The limits hold everywhere: what
// does not fit is left out.
class glyph {
public:
	// Slots for contours and frames together, and components. There is room for one component
	// more, which is not used.
	enum { max_shapes = 512, max_compos = 7 };

	// Empty. Index FFFF stands for none.
	explicit glyph(unsigned short index);
	// Destroys contours, frames and components.
	~glyph();
	glyph(const glyph&) = delete;
	glyph& operator=(const glyph&) = delete;

	// Takes the contour over and puts it after the others; frames move up by one. Without a slot
	// for it, it is deleted.
	void add_shape(shape* contour);
	// How many contours add_shape() still has slots for, one for the frame of each component kept.
	int32 room() const;
	// False when decoding or flattening had to leave something out, here or in a component: such
	// a glyph must not be stored, its record holds more.
	bool complete() const;

	// The box around the points of the own contours. It starts from (3.40282347e38, 3.40282347e38,
	// 1.17549435e-38, 1.17549435e-38), which an empty glyph gives: right and bottom are never
	// below 0, on purpose.
	BRect bounds() const;

	// The own contours in order; color as for shape::draw.
	void draw(BView* view, unsigned long color) const;
	// The markers of the selectable contours; r is half a marker's size.
	void drawframe(BView* view, float r) const;
	// Contours and frames, as shape::trans.
	void trans(const BRect& src, const BRect& dst);

	// Hits by a point test what is selected already, and no other: t is half the side of the square
	// around each point. For a simple glyph bit 0 tells of a frame, bit 1 of a point; for a
	// composite 1 of either. 0 for none.
	unsigned char sel_check(const BPoint& p, float t);
	// Selects what is not selected yet and lies in r or meets it; true when there was any.
	bool sel_check(const BRect& r);
	// Turns selected points into selected contours.
	void sel_check();
	// Deselects everything, contours and frames.
	void sel_none();

	// One selectable contour alone, as a whole; nothing happens when there is none. sel_next()
	// goes from the lowest selected one downward, sel_back() from the highest upward, that way
	// round on purpose; both go round the end, and begin there when nothing is selected.
	void sel_first();
	void sel_last();
	void sel_next();
	void sel_back();

	// Puts the selected contours last, or first; the order among them and among the others stays.
	void sel_to_top();
	void sel_to_bot();

	// Moves what is selected. Of a composite it moves the frame and the component's offset, of
	// which y is subtracted (views have y down, fonts up); what is flattened already stays behind.
	void move_sel(const BPoint& d);
	// Deletes selected contours and points, and contours with fewer than three points left.
	void del_sel();
	// As shape::reverse and shape::tglpoint for every own contour.
	void rev_sel();
	void tgl_sel();

	// Puts copies of the contours selected as a whole on the clipboard, in place of what was there.
	void copy();
	// Adds copies of what is on the clipboard, unselected.
	void paste();
	// Duplicates the contours selected as a whole, without the offset on purpose; the selection
	// goes over to the duplicates. Where a point is selected, one is inserted, d away. What there
	// is no room to duplicate stays selected.
	void copy_sel(const BPoint& d);
	// Whether there is room for all that copy_sel() would add.
	bool can_copy_sel() const;

	// Takes the component over, with its offset in font units and its matrix in 2.14. True, with
	// the component still the caller's, when there are seven already. The frames do not follow.
	bool add_compo(glyph* part, short dx, short dy, unsigned short a, unsigned short b,
		unsigned short c, unsigned short d);
	// Destroys a component; true when there is none of that index. The frames do not follow.
	bool del_compo(unsigned char index);
	// Adds the components' own contours, transformed, to the contours, and makes the frames anew.
	// They lie where they are drawn only after a trans(). A component without points has a frame of
	// a few units around its offset.
	void create_composhape();
	// Destroys contours and frames; the components stay.
	void clr_composhape();

	// The contours that selecting works on.
	int32 sel_begin() const;
	int32 sel_end() const;

	// 0, or one more than the glyph's that this is a component of.
	int32 depth;
	int32 num_shape;
	shape* shapes[max_shapes]; // owned
	int32 num_compo;
	glyph* compo[max_compos + 1]; // owned; their gid is the index they stand for
	int16 compo_dx[max_compos + 1];
	int16 compo_dy[max_compos + 1];
	uint16 compo_a[max_compos + 1];
	uint16 compo_b[max_compos + 1];
	uint16 compo_c[max_compos + 1];
	uint16 compo_d[max_compos + 1];
	uint16 gid;
	// Set by whoever decodes a record and has to leave something of it out.
	bool partial;

private:
	int32 reserved() const;
	BRect box(int32 first, int32 end) const;
	BRect component_box(int32 k, int32 first, int32 end) const;
	void flatten(int32 k);
	void frame_components();
	void drop_frames();
	void sel_only(int32 index);

	// Frames behind the contours; differs from num_compo until they are made anew.
	int32 frames;
	// Flattening had no room for all contours.
	bool cut;
};

// The outline clipboard: one for all glyphs, it outlives them. Window's thread.
extern int32 cnt_cp;
extern shape** sh_cp; // owned, as are its cnt_cp contours; null until it is prepared

// Makes the clipboard, empty; called before the first editing, by the selector.
void prepare_clipboard();

#endif
