// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_APP_KERNIXWINDOW_H
#define KERNIX_APP_KERNIXWINDOW_H

#include <Point.h>
#include <Window.h>

class BMenuBar;
class BScrollBar;
class initview;
class kernixview;
class selectview;

// Which fields of a pointer record are valid.
enum : uint16 {
	input_position = 0x0001,
	input_tilt = 0x0002,
	input_pressure = 0x0004,
	input_eraser = 0x0008,
	input_buttons = 0x0010,
	input_modifiers = 0x0020,
	input_when = 0x0100,
	input_where = 0x0200,
	input_transit = 0x0400
};

// One mouse message in full, what the mouse hooks do not pass on included. A field whose bit is
// clear keeps the value of an earlier message.
struct input {
	uint16 flags;
	float x; // on the tablet, 0 to 1
	float y;
	float tilt_x; // -1 to 1
	float tilt_y;
	float pressure; // 0 to 1
	int32 eraser;   // 1 for the eraser end of the pen
	int32 buttons;
	int32 modifiers;
	int32 transit;
	int64 when;   // microseconds
	BPoint where; // in the target view's coordinates
};

// The one window: menu bar, table selector, work view and two scroll bars. Knows which view the
// scroll bars scroll and how large a canvas that view shows, and records the mouse messages of the
// view that draws. Runs in its own thread; the application locks it before it touches a view.
class kernixwindow : public BWindow {
public:
	// Builds everything and shows itself. The frame is in screen coordinates.
	explicit kernixwindow(BRect frame);
	~kernixwindow() override;

	// Fills input before a mouse message reaches the input handler.
	void DispatchMessage(BMessage* message, BHandler* handler) override;
	// Lets go of the work view, so that the panels are not destroyed with the window, asks the
	// application to quit and releases it if it waits for a display. Always true; may be called
	// more than once, and in the application's thread.
	bool QuitRequested() override;
	void FrameResized(float width, float height) override;
	using BWindow::Zoom;
	// One size whatever the arguments: that of a panel with what surrounds it.
	void Zoom(BPoint position, float width, float height) override;

	void setupmenus();
	// Range, proportion and steps of the scroll bars for the scroll target and the canvas size;
	// nothing without a target.
	void updatescrollbar();
	// Makes target, unless null, what the scroll bars scroll, from 0 on, and handler, unless null,
	// the one whose mouse messages are recorded; both are borrowed.
	// @param limits left and top: the smallest work view; right and bottom: the largest
	// @param width of the canvas in pixels; with this or height 0 it is as large as the target
	void settarget(BRect limits, BView* target, BView* handler, float width, float height);
	// Marks the item of this label in every menu of this name; an empty label unmarks them all.
	// Marking leaves other marks alone on purpose: clear them first where one is wanted.
	void markmenu(const char* menu, const char* label);

	BMenuBar* menubar;
	struct input input;
	kernixview* workview; // destroyed by the application, not with the window
	selectview* selector;
	initview* setupview; // in the work view while a new font is being set up, else null
	BScrollBar* scrollv;
	BScrollBar* scrollh;
	float canvaswidth; // pixels
	float canvasheight;
	BView* scrolltarget; // borrowed, or null
	// Only ever compared: it is not cleared when its view goes.
	BHandler* inputhandler;

private:
	void record(const BMessage* message);
};

#endif
