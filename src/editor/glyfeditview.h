// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_EDITOR_GLYFEDITVIEW_H
#define KERNIX_EDITOR_GLYFEDITVIEW_H

#include <View.h>

class object;
class ttf_glyf;
struct input;

// The view in which the outline of one glyph is shown and edited with a pointer or a pen. The outline
// is cur_glyph, in canvas units, y down; what a drawing tool is at is cur_object. The palette beside
// it commands it by messages and hears by messages what has changed; the font changes only when the
// glyph is committed.
//
// A canvas unit is a font unit, shown with scale pixels: the view's drawing scale. Positions are
// whole canvas units, within the canvas.
//
// Everything is painted at once where it changes. Handles, the rubber band and the preview of an
// object are inverted over it: laying them a second time lifts them. Window's thread.
class glyfeditview : public BView {
public:
	// The numbers of the tools, as the palette hears them.
	enum { pointer_tool, free_tool, rect_tool, ellipse_tool, polygon_tool, round_tool };

	// What edit_state tells: a rubber band or an object in progress; nothing selected; something
	// selected; a drag of whole contours or of a point; a point that the release deletes, or whose
	// kind it changes.
	enum {
		in_progress = -1,
		idle,
		selecting,
		dragging_body,
		dragging_point,
		deleting_point,
		toggling_point
	};

	// Masks for send2toolv().
	enum : unsigned char {
		tell_gno = 0x01,
		tell_chr = 0x02,
		tell_compo = 0x04,
		tell_empty = 0x08,
		tell_glyph = 0x0F,
		tell_scale = 0x10,
		tell_mode = 0x80,
		tell_all = 0xFF
	};

	// Flags for redraw(). A full repaint is asked for with 5; its lowest bit means nothing.
	enum : char { draw_overlays = 0x02, draw_all = 0x04, draw_full = 0x05 };

	// What a press is: the primary button alone, or with one of these keys, or another button.
	enum : unsigned char { plain = 1, secondary = 2, tertiary = 4, command = 8 };

	// Bits of key_state.
	enum : unsigned char {
		key_up = 0x01,
		key_down = 0x02,
		key_left = 0x04,
		key_right = 0x08,
		key_reverse = 0x10,
		key_delete = 0x80
	};

	// Makes a new cur_glyph, without a number, and no object; those that an earlier view left are
	// destroyed. Resets the canvas.
	// @param table borrowed; knows the palette
	glyfeditview(BRect frame, ttf_glyf* table);
	// cur_glyph stays.
	~glyfeditview() override;

	void AttachedToWindow() override;
	// Paints everything, whatever the rectangle.
	void Draw(BRect area) override;
	void MessageReceived(BMessage* message) override;
	// The pointer hooks take nothing from their arguments: all of them sample the window's record.
	void MouseDown(BPoint where) override;
	void MouseUp(BPoint where) override;
	void MouseMoved(BPoint where, uint32 transit, const BMessage* drag) override;
	void KeyDown(const char* bytes, int32 count) override;
	void KeyUp(const char* bytes, int32 count) override;
	void MakeFocus(bool focus = true) override;

	// Pointer tool, nothing in progress, fitted; tells the palette everything.
	void init();
	// The rubber band, inverted.
	void drawframe(BRect r);
	// Paints at once.
	void redraw(char flags);
	float getscale() const;
	// View pixels for each canvas unit; 0 fits the font's box into 512 pixels. Sets the scroll bars
	// when the view can be seen.
	void chgscale(float s);
	// Posts what the mask names to the palette.
	void send2toolv(unsigned char mask);

	// Compares the window's pointer record with the one before and calls the three below. Nothing
	// while the view is hidden.
	void chkinput();
	// Canvas units; buttons pressed, or released, since the record before.
	void btn_down(BPoint where, unsigned char buttons, input rec);
	void btn_up(BPoint where, unsigned char buttons, input rec);
	// With the buttons that were held before this record.
	void ptr_move(BPoint where, unsigned char buttons, input rec);

	uint8 band_active;
	BRect band_rect; // canvas units; not in order while it is dragged
	int8 tool_mode;
	uint8 button_held; // pressed within the canvas
	BPoint anchor_point;
	BPoint last_point;
	uint8 key_state;  // bits of keys held
	uint8 first_move; // the next step of a drag may duplicate
	int32 edit_state;
	float scale;
	ttf_glyf* glyf_table; // borrowed
	// Unsigned numbers in signed fields; -1 is none.
	int16 gno;
	int16 chr;   // a character of that glyph
	uint8 psize; // of the pen, 0 to 100

private:
	float fitting() const;
	void extend(float s);
	bool is_empty() const;
	bool is_composite() const;
	void paint_outline();
	void paint_overlays();

	void start(const BMessage* message);
	void choose(const BMessage* message);
	void show_glyph();
	void load_glyph();
	void reset_editing();
	void commit();
	void clear();
	void add_component(const BMessage* message);
	void del_component(const BMessage* message);
	void show_components();
	void place_components();
	void move_components();
	void copy();
	void paste();
	void take_tool(int8 tool);

	void press_pointer(BPoint where, unsigned char buttons);
	void press_tool(BPoint where, unsigned char buttons);
	void release_pointer(BPoint where);
	void release_tool(BPoint where);
	void end_band(BPoint where);
	void end_drag();
	void drag_selection(BPoint where, unsigned char buttons);
	void drag_band(BPoint where);
	void trail_object(BPoint where);
	void begin_object();
	void feed_object(unsigned char event, BPoint where);
	void adopt_contours();
	void drop_object();
	void edit_selection(unsigned char key);
	void step_selection(unsigned char key);
};

#endif
