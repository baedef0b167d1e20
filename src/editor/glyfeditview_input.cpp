// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The outline edit view: pointer and pen.
#include "app/kernixwindow.h"
#include "draw/obj_free.h"
#include "editor/glyfeditview.h"
#include "font/globals.h"
#include "font/truncate.h"
#include "font/ttf.h"
#include "outline/glyph.h"
#include "outline/shape.h"
#include "outline/ttf_glyf.h"
#include <algorithm>
#include <InterfaceDefs.h>

// View pixels around a point within which it is hit.
static const float reach = 2;

// What was sampled last: canvas units and a button code. There is one edit view at a time.
static struct {
	BPoint where = BPoint(0, 0);
	unsigned char buttons = 0;
} last;


void
glyfeditview::MouseDown(BPoint)
{
	chkinput();
}


void
glyfeditview::MouseUp(BPoint)
{
	chkinput();
}


void
glyfeditview::MouseMoved(BPoint, uint32, const BMessage*)
{
	chkinput();
}


// Keys stand in for the buttons that a pen or a small mouse has not. Of several keys the last in
// this order counts.
static unsigned char
button_code(const input& record)
{
	unsigned char code = (unsigned char)record.buttons;
	if (code != glyfeditview::plain)
		return code;
	if (record.modifiers & B_SHIFT_KEY)
		code = glyfeditview::secondary;
	if (record.modifiers & B_CONTROL_KEY)
		code = glyfeditview::tertiary;
	if (record.modifiers & B_COMMAND_KEY)
		code = glyfeditview::command;
	return code;
}


void
glyfeditview::chkinput()
{
	kernixwindow* window = dynamic_cast<kernixwindow*>(Window());
	// The event mask reaches a hidden view too.
	if (window == nullptr || IsHidden())
		return;
	// Asking keeps the events coming on platforms that wait for it; the answer is newer than the
	// record and not used.
	BPoint now;
	uint32 held;
	GetMouse(&now, &held, true);
	SetEventMask(B_POINTER_EVENTS);

	input record = window->input;
	BPoint where((float)toward_zero<int32>(record.where.x / scale),
		(float)toward_zero<int32>(record.where.y / scale));
	unsigned char buttons = button_code(record);
	unsigned char before = last.buttons;
	bool moved = where != last.where;
	last = {where, buttons};
	if (moved)
		ptr_move(where, before, record);
	if (before & ~buttons)
		btn_up(where, before & ~buttons, record);
	if (buttons & ~before)
		btn_down(where, buttons & ~before, record);
}


void
glyfeditview::btn_down(BPoint where, unsigned char buttons, input rec)
{
	SetEventMask(B_POINTER_EVENTS);
	// With that mask presses on other views come here as well, where a scrolled canvas would go on.
	if (!canvas.Contains(where) || !Bounds().Contains(rec.where))
		return;
	MakeFocus();
	button_held = 1;
	anchor_point = where;
	if (tool_mode == pointer_tool)
		press_pointer(where, buttons);
	else
		press_tool(where, buttons);
}


void
glyfeditview::press_pointer(BPoint where, unsigned char buttons)
{
	redraw(draw_overlays);
	const unsigned char hit = cur_glyph->sel_check(where, reach / scale);
	if (hit == 0) {
		// With any other button the selection stays, and so does the state, on purpose: the band
		// does not follow the pointer then. The release repaints, so nothing is laid again here.
		if (buttons == plain) {
			cur_glyph->sel_none();
			edit_state = in_progress;
		}
		band_active = 1;
		band_rect = BRect(where, where);
		return;
	}
	if (hit == 1) {
		edit_state = dragging_body;
	} else {
		for (int32 i = cur_glyph->sel_begin(); i < cur_glyph->sel_end(); i++)
			cur_glyph->shapes[i]->sel = std::max<int32>(cur_glyph->shapes[i]->sel, 0);
		edit_state = buttons == command ? toggling_point
			: buttons == secondary      ? deleting_point
										: dragging_point;
		if (edit_state == deleting_point)
			send2toolv(tell_empty);
	}
	redraw(draw_overlays);
}


void
glyfeditview::press_tool(BPoint where, unsigned char buttons)
{
	redraw(draw_overlays);
	if (edit_state == idle)
		begin_object();
	feed_object(buttons == secondary ? object::step_back : object::press, where);
}


// Hands an event to the object, whose preview has been lifted, and takes what comes of it.
void
glyfeditview::feed_object(unsigned char event, BPoint where)
{
	if (cur_object == nullptr)
		return;
	const int32 state = cur_object->create(event, where, psize);
	if (state == object::complete)
		adopt_contours();
	if (state < 0) {
		drop_object();
		edit_state = idle;
	}
	redraw(edit_state == idle ? draw_full : draw_overlays);
}


void
glyfeditview::ptr_move(BPoint where, unsigned char buttons, input)
{
	if (where == last_point)
		return;
	last_point = where;
	if (!canvas.Contains(where))
		return;
	if (tool_mode == pointer_tool) {
		if (!button_held)
			return;
		if (edit_state == in_progress)
			drag_band(where);
		else if (edit_state == dragging_body || edit_state == dragging_point)
			drag_selection(where, buttons);
		return;
	}
	// The pending edge of a polygon or a round follows the pointer between presses too.
	const bool clicked = tool_mode == polygon_tool || tool_mode == round_tool;
	if (edit_state == in_progress && cur_object != nullptr && (button_held || clicked))
		trail_object(where);
}


void
glyfeditview::drag_band(BPoint where)
{
	redraw(draw_overlays);
	band_rect = BRect(anchor_point, where);
	redraw(draw_overlays);
}


void
glyfeditview::drag_selection(BPoint where, unsigned char buttons)
{
	const bool copies = first_move && buttons == tertiary;
	// What would be dragged is the copy: the original stays where it is also when there is no room.
	if (copies && !cur_glyph->can_copy_sel())
		return;
	redraw(draw_overlays);
	const BPoint by = where - anchor_point;
	if (copies) {
		first_move = 0;
		cur_glyph->copy_sel(by);
	}
	cur_glyph->move_sel(by);
	anchor_point = where;
	redraw(draw_overlays);
}


void
glyfeditview::trail_object(BPoint where)
{
	const unsigned char event = button_held ? object::drag : object::hover;
	if (tool_mode == free_tool) {
		// A stroke is not inverted: only what it grows by has to be painted, however long it is.
		obj_free* stroke = static_cast<obj_free*>(cur_object);
		const int32 known = stroke->num;
		stroke->create(event, where, psize);
		stroke->drawtail(this, known);
		return;
	}
	redraw(draw_overlays);
	cur_object->create(event, where, psize);
	redraw(draw_overlays);
}


void
glyfeditview::btn_up(BPoint where, unsigned char, input)
{
	if (!button_held)
		return;
	button_held = 0;
	first_move = 1;
	if (tool_mode == pointer_tool)
		release_pointer(where);
	else
		release_tool(where);
}


void
glyfeditview::release_pointer(BPoint where)
{
	if (edit_state == in_progress)
		end_band(where);
	else if (edit_state == deleting_point)
		cur_glyph->del_sel();
	else if (edit_state == toggling_point)
		cur_glyph->tgl_sel();
	band_active = 0;
	if (edit_state < dragging_body) {
		if (cur_glyph->sel_check(band_rect))
			edit_state = selecting;
		redraw(draw_all);
	} else {
		end_drag();
	}
	cur_glyph->sel_check();
	send2toolv(tell_empty);
}


// The band ends within the canvas and is put in order.
void
glyfeditview::end_band(BPoint where)
{
	where.x = std::clamp(where.x, canvas.left, canvas.right);
	where.y = std::clamp(where.y, canvas.top, canvas.bottom);
	band_rect = BRect(std::min(anchor_point.x, where.x), std::min(anchor_point.y, where.y),
		std::max(anchor_point.x, where.x), std::max(anchor_point.y, where.y));
}


void
glyfeditview::end_drag()
{
	// A handle that was moved has moved its component.
	if (is_composite())
		move_components();
	edit_state = selecting;
	redraw(draw_full);
}


void
glyfeditview::release_tool(BPoint where)
{
	redraw(draw_overlays);
	if (edit_state == in_progress)
		feed_object(object::release, where);
}
