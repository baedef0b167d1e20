// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The outline edit view: construction, display and scale.
#include "editor/glyfeditview.h"

#include "app/kernixwindow.h"
#include "draw/object.h"
#include "editor/glyftoolview.h"
#include "font/globals.h"
#include "font/messages.h"
#include "font/ttf.h"
#include "outline/glyph.h"
#include "outline/ttf_glyf.h"
#include <algorithm>
#include <Font.h>
#include <Message.h>
#include <Messenger.h>

// View pixels.
static const float handle_size = 2;
static const float most_fitted = 512;
static const BPoint beside_palette(50, 0);

static const float largest_fit = 4;
static const float fit_step = 0.05f;
// Half a step: what less than one step leaves is rounding, and too small to be a scale.
static const float smallest_fit = 0.01f;


glyfeditview::glyfeditview(BRect frame, ttf_glyf* table)
	: BView(frame, "canvas", B_FOLLOW_ALL_SIDES, B_WILL_DRAW),
	  band_active(0),
	  band_rect(0, 0, -1, -1),
	  tool_mode(pointer_tool),
	  button_held(0),
	  anchor_point(0, 0),
	  last_point(0, 0),
	  key_state(0),
	  first_move(1),
	  edit_state(idle),
	  scale(1),
	  glyf_table(table),
	  gno(-1),
	  chr(-1),
	  psize(0)
{
	canvas = BRect(0, 0, 0, 0);
	delete cur_glyph;
	cur_glyph = new glyph((unsigned short)gno);
	drop_object();
}


glyfeditview::~glyfeditview() = default;


void
glyfeditview::AttachedToWindow()
{
	init();
	SetHighColor(255, 255, 255);
	SetViewColor(50, 50, 50);
	SetLowColor(0, 0, 0);
	SetFont(be_bold_font);
	SetPenSize(0);
	MakeFocus();
}


void
glyfeditview::init()
{
	band_active = 0;
	edit_state = idle;
	tool_mode = pointer_tool;
	chgscale(0);
	send2toolv(tell_all);
}


void
glyfeditview::Draw(BRect)
{
	paint_outline();
	paint_overlays();
}


// In the drawing scale, like everything: the view's own pixels have to be divided by it.
static BRect
all_of(const BView* view, float scale)
{
	BRect all = view->Bounds();
	return BRect(
		all.left / scale - 1, all.top / scale - 1, all.right / scale + 1, all.bottom / scale + 1);
}


void
glyfeditview::paint_outline()
{
	rgb_color pen = HighColor();
	// What was inverted beyond the canvas must go as well.
	SetHighColor(ViewColor());
	FillRect(all_of(this, scale));
	SetHighColor(pen);
	FillRect(canvas, B_SOLID_LOW);
	// Contours are drawn from where the pen stands.
	MovePenTo(0, 0);
	cur_glyph->draw(this, 0);
}


void
glyfeditview::paint_overlays()
{
	cur_glyph->drawframe(this, handle_size / scale);
	if (cur_object != nullptr)
		cur_object->drawframe(this, 1);
	if (band_active)
		drawframe(band_rect);
}


void
glyfeditview::drawframe(BRect r)
{
	SetDrawingMode(B_OP_INVERT);
	StrokeRect(r, B_MIXED_COLORS);
	SetDrawingMode(B_OP_COPY);
}


void
glyfeditview::redraw(char flags)
{
	if (flags & draw_overlays)
		paint_overlays();
	if (flags & draw_all)
		Draw(Bounds());
}


// The largest of the scales 4, 3.95, 3.9, ... that shows the larger side of the font's box with
// at most 512 pixels. The 32-bit arithmetic is part of it: 2048 units are shown at 0.2000027.
float
glyfeditview::fitting() const
{
	BRect box = glyf_table->owner->bounds();
	float larger = std::max(box.right - box.left, box.top - box.bottom);
	float fit = largest_fit;
	while (larger * fit > most_fitted) {
		if (fit - fit_step < smallest_fit)
			return most_fitted / larger;
		fit -= fit_step;
	}
	return fit;
}


float
glyfeditview::getscale() const
{
	return scale;
}


void
glyfeditview::chgscale(float s)
{
	scale = s == 0 ? fitting() : s;
	SetScale(scale);
	MoveTo(beside_palette);
	if (!IsHidden())
		extend(scale);
	send2toolv(tell_scale);
	Invalidate();
}


// Tells the window how far there is to scroll. A canvas without an extent is as large as what the
// window scrolls now.
void
glyfeditview::extend(float s)
{
	kernixwindow* window = dynamic_cast<kernixwindow*>(Window());
	if (window == nullptr)
		return;
	window->canvaswidth = (canvas.right - canvas.left + 1) * s;
	window->canvasheight = (canvas.bottom - canvas.top + 1) * s;
	if ((window->canvaswidth == 0 || window->canvasheight == 0)
		&& window->scrolltarget != nullptr) {
		window->canvaswidth = window->scrolltarget->Bounds().Width() + 1;
		window->canvasheight = window->scrolltarget->Bounds().Height() + 1;
	}
	window->updatescrollbar();
}


void
glyfeditview::send2toolv(unsigned char mask)
{
	BMessage news(msg_editor);
	if (mask & tell_gno)
		news.AddInt16("gno", gno);
	if (mask & tell_chr)
		news.AddInt16("chr", chr);
	for (int32 k = 0; mask & tell_compo && k < cur_glyph->num_compo; k++)
		news.AddInt16("compo", (int16)cur_glyph->compo[k]->gid);
	if (mask & tell_empty)
		news.AddBool("empty", is_empty());
	if (mask & tell_scale)
		news.AddFloat("scale", scale);
	if (mask & tell_mode)
		news.AddInt8("mode", tool_mode);
	BMessenger(glyf_table->tools).SendMessage(&news);
}


bool
glyfeditview::is_empty() const
{
	return cur_glyph->num_shape == 0 && cur_glyph->num_compo == 0;
}


bool
glyfeditview::is_composite() const
{
	return cur_glyph->num_compo > 0;
}
