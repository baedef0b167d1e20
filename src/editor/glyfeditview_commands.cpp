// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The outline edit view: what it is told by messages, and the use of its tools.
#include "app/kernixwindow.h"
#include "draw/obj_ellipse.h"
#include "draw/obj_free.h"
#include "draw/obj_polygon.h"
#include "draw/obj_rect.h"
#include "draw/obj_round.h"
#include "editor/glyfeditview.h"
#include "font/globals.h"
#include "font/messages.h"
#include "font/ttf.h"
#include "outline/glyph.h"
#include "outline/shape.h"
#include "outline/ttf_glyf.h"
#include <AppDefs.h>
#include <cmath>
#include <memory>
#include <Message.h>
#include <vector>

// 1.0 in 2.14.
static const uint16 one = 0x4000;


void
glyfeditview::MessageReceived(BMessage* message)
{
	switch (message->what) {
		case msg_init:
			start(message);
			break;
		case msg_editor:
			choose(message);
			break;
		case msg_commit:
			commit();
			break;
		case msg_clear:
			clear();
			break;
		case msg_add_component:
			add_component(message);
			break;
		case msg_del_component:
			del_component(message);
			break;
		case B_COPY:
			copy();
			break;
		case B_PASTE:
			paste();
			break;
		case msg_pointer:
			take_tool(pointer_tool);
			break;
		case msg_free:
			take_tool(free_tool);
			break;
		case msg_rect:
			take_tool(rect_tool);
			break;
		case msg_ellipse:
			take_tool(ellipse_tool);
			break;
		case msg_polygon:
			take_tool(polygon_tool);
			break;
		case msg_round:
			take_tool(round_tool);
			break;
		case msg_repaint:
			redraw(draw_full);
			break;
		default:
			BView::MessageReceived(message);
	}
}


// A font has been loaded: its box gives the canvas. Whoever loaded it waits for canvasok.
void
glyfeditview::start(const BMessage* message)
{
	BRect bounds;
	if (message->FindRect("bounds", &bounds) != B_OK)
		return;
	gno = -1;
	load_glyph();
	drop_object();
	chgscale(1);
	Window()->Zoom();
	canvas = bounds;
	canvasok = 1;
	canvasok.notify_all();
	init();
	Window()->Zoom();
	Invalidate();
}


// What the palette chose: a glyph by number or by character, the pen's size, the scale.
void
glyfeditview::choose(const BMessage* message)
{
	if (curttf == nullptr)
		return;
	if (glyf_table->owner->choose_glyph(message, &gno, &chr))
		show_glyph();
	int8 size;
	if (message->FindInt8("psize", &size) == B_OK)
		psize = (uint8)size;
	float chosen;
	// What is no scale is left alone.
	if (message->FindFloat("scale", &chosen) == B_OK && std::isfinite(chosen) && chosen >= 0)
		chgscale(chosen);
}


void
glyfeditview::show_glyph()
{
	reset_editing();
	load_glyph();
	send2toolv(tell_glyph);
	redraw(draw_full);
	// Only the pointer can do anything with components.
	if (is_composite())
		take_tool(pointer_tool);
}


// What was in progress was done to the outline that goes. So was the press that may have led here,
// by taking the keyboard from a field with another number: what comes after it counts no more.
void
glyfeditview::reset_editing()
{
	edit_state = idle;
	band_active = 0;
	button_held = 0;
	first_move = 1;
	drop_object();
}


// Reads the glyph afresh from the font; what was edited and not committed is gone.
void
glyfeditview::load_glyph()
{
	ttf* font = glyf_table->owner;
	delete cur_glyph;
	cur_glyph = new glyph((unsigned short)gno);
	font->get_glyph((uint16)gno, cur_glyph);
	cur_glyph->trans(font->bounds(), canvas);
}


void
glyfeditview::commit()
{
	// What could not be shown whole must not take the place of the original.
	if (gno == -1 || !cur_glyph->complete())
		return;
	ttf* font = glyf_table->owner;
	cur_glyph->trans(canvas, font->bounds());
	font->set_glyph((uint16)gno, cur_glyph);
	reset_editing();
	load_glyph();
	send2toolv(tell_glyph);
	redraw(draw_full);
}


void
glyfeditview::clear()
{
	if (gno == -1)
		return;
	reset_editing();
	delete cur_glyph;
	cur_glyph = new glyph((unsigned short)gno);
	send2toolv(tell_glyph);
	redraw(draw_full);
}


void
glyfeditview::add_component(const BMessage* message)
{
	int16 sub;
	if (gno == -1 || message->FindInt16("sub", &sub) != B_OK)
		return;
	// A glyph within itself has no outline, and storing it would destroy the one it had.
	if (glyf_table->contains((uint16)sub, (uint16)gno))
		return;
	glyph* part = new glyph((unsigned short)sub);
	part->depth = 1;
	if (glyf_table->owner->get_glyph((uint16)sub, part) != 0) {
		delete part;
		return;
	}
	if (cur_glyph->add_compo(part, 0, 0, one, 0, 0, one))
		delete part;
	show_components();
	if (tool_mode != pointer_tool)
		take_tool(pointer_tool);
}


void
glyfeditview::del_component(const BMessage* message)
{
	int8 number;
	if (gno == -1 || message->FindInt8("no", &number) != B_OK)
		return;
	cur_glyph->del_compo((unsigned char)number);
	show_components();
}


// A component has come or gone: it is another outline, with nothing selected.
void
glyfeditview::show_components()
{
	reset_editing();
	place_components();
	send2toolv(tell_glyph);
	redraw(draw_full);
}


// The outline of the components and their handles, made anew. A glyph with components keeps no
// contours of its own.
void
glyfeditview::place_components()
{
	cur_glyph->clr_composhape();
	cur_glyph->create_composhape();
	cur_glyph->trans(glyf_table->owner->bounds(), canvas);
}


// The handles are made anew where their components are, and are selected as they were.
void
glyfeditview::move_components()
{
	std::vector<int32> selection;
	for (int32 i = cur_glyph->sel_begin(); i < cur_glyph->sel_end(); i++)
		selection.push_back(cur_glyph->shapes[i]->sel);
	place_components();
	const int32 first = cur_glyph->sel_begin();
	selection.resize((size_t)(cur_glyph->sel_end() - first));
	for (size_t i = 0; i < selection.size(); i++)
		cur_glyph->shapes[first + (int32)i]->sel = selection[i];
}


// The shortcuts reach the view that has the keyboard, hidden as it may be.
void
glyfeditview::copy()
{
	if (IsHidden() || is_empty() || tool_mode != pointer_tool || edit_state != selecting)
		return;
	cur_glyph->copy();
	redraw(draw_full);
}


// Nothing is pasted into an empty glyph, on purpose.
void
glyfeditview::paste()
{
	if (IsHidden() || is_empty() || tool_mode != pointer_tool)
		return;
	cur_glyph->paste();
	redraw(draw_full);
}


void
glyfeditview::take_tool(int8 tool)
{
	if (tool != pointer_tool && is_composite())
		return;
	redraw(draw_overlays);
	// A stroke is not inverted and cannot be lifted.
	bool inked = cur_object != nullptr && cur_object->kind == object::free_hand;
	reset_editing();
	cur_glyph->sel_none();
	tool_mode = tool;
	if (inked)
		redraw(draw_full);
	send2toolv(tell_mode);
}


void
glyfeditview::begin_object()
{
	drop_object();
	switch (tool_mode) {
		case free_tool:
			cur_object = new obj_free;
			cur_object->kind = object::free_hand;
			break;
		case rect_tool:
			cur_object = new obj_rect;
			cur_object->kind = object::rectangle;
			break;
		case ellipse_tool:
			cur_object = new obj_ellipse;
			cur_object->kind = object::ellipse;
			break;
		case polygon_tool:
			cur_object = new obj_polygon;
			cur_object->kind = object::polygon;
			break;
		default:
			cur_object = new obj_round;
			cur_object->kind = object::rounded;
	}
	edit_state = in_progress;
}


void
glyfeditview::adopt_contours()
{
	std::unique_ptr<shape*[]> contours(cur_object->to_shape());
	for (int32 i = 0; contours != nullptr && contours[i] != nullptr; i++)
		cur_glyph->add_shape(contours[i]);
	send2toolv(tell_empty);
}


void
glyfeditview::drop_object()
{
	delete cur_object;
	cur_object = nullptr;
}
