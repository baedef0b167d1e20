// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "editor/glyftoolview.h"

#include "editor/glyfeditview.h"
#include "editor/tool_icons.h"
#include "font/characters.h"
#include "font/messages.h"
#include "font/palette.h"
#include "font/panel.h"
#include "font/truncate.h"
#include "outline/ttf_glyf.h"
#include <algorithm>
#include <Bitmap.h>
#include <Button.h>
#include <cstdio>
#include <Font.h>
#include <iterator>
#include <ListItem.h>
#include <ListView.h>
#include <Message.h>
#include <Messenger.h>
#include <TextControl.h>

static const int16 none = -1;

// Pixels of the palette.
static const BPoint first_icon(30, 100);
static const float icon_step = 18;
static const float size_row = 300;
static const float scale_row = 500;

static const uint32 tools[tool_icon_count] = {
	msg_pointer, msg_free, msg_rect, msg_ellipse, msg_polygon, msg_round};


glyftoolview::glyftoolview(BRect frame, ttf_glyf* table)
	: BView(frame, "tools", B_FOLLOW_TOP_BOTTOM, B_WILL_DRAW),
	  chr_entry(nullptr),
	  chr_code(nullptr),
	  gno_entry(nullptr),
	  mode_button(nullptr),
	  set_button(nullptr),
	  compo_list(nullptr),
	  component_entry(nullptr),
	  add_button(nullptr),
	  del_button(nullptr),
	  glyf_table(table),
	  mode(0),
	  psize(0),
	  scale(1),
	  gno(none),
	  chr(none),
	  compo_count(0),
	  compo(),
	  empty(1),
	  composite(0)
{
}


glyftoolview::~glyftoolview()
{
	if (compo_list != nullptr)
		empty_list(compo_list);
}


void
glyftoolview::AttachedToWindow()
{
	SetLowColor(200, 200, 0);
	SetViewColor(palette_color);
	BFont font(be_plain_font);
	font.SetSize(palette_font_size);
	SetFont(&font);
	if (offscreen == nullptr) {
		offscreen = std::make_unique<BBitmap>(Bounds(), B_RGB32, true);
		make_controls();
	}
	redraw();
}


void
glyftoolview::make_controls()
{
	chr_entry = palette_edit(this, BRect(10, 10, 35, 30), "chr", "", "", 0);
	chr_code = palette_edit(this, BRect(0, 40, 45, 60), "cno", "chr.", "0000", 15);
	gno_entry = palette_edit(this, BRect(0, 70, 45, 90), "gno", "gno.", "0000", 15);
	mode_button = palette_button(this, BRect(5, 400, 45, 420), "clr/simpl/compo");
	set_button = palette_button(this, BRect(5, 430, 45, 450), "set");
	compo_list = new BListView(BRect(5, 120, 45, 240), "components", B_SINGLE_SELECTION_LIST,
		B_FOLLOW_LEFT | B_FOLLOW_TOP, B_WILL_DRAW | B_FRAME_EVENTS | B_NAVIGABLE);
	compo_list->SetFontSize(palette_font_size);
	AddChild(compo_list);
	compo_list->SetTarget(this);
	component_entry = palette_edit(this, BRect(0, 260, 45, 280), "sub", "gno.", "0000", 15);
	add_button = palette_button(this, BRect(5, 300, 45, 320), "add");
	del_button = palette_button(this, BRect(5, 330, 45, 350), "del");
	show_components(false);
}


void
glyftoolview::Draw(BRect)
{
	DrawBitmap(offscreen.get(), BPoint(0, 0));
	if (composite)
		DrawString("composite", BPoint(0, 100));
	char text[16];
	if (!composite && mode == glyfeditview::free_tool) {
		snprintf(text, sizeof text, "%3dpt", psize);
		DrawString(text, BPoint(15, 310));
	}
	snprintf(text, sizeof text, "%3d%%", toward_zero<int16>(scale * 100));
	DrawString(text, BPoint(15, 510));
}


void
glyftoolview::redraw()
{
	if (offscreen == nullptr)
		return;
	paint_on(offscreen.get(), [this](BView* view) { paint(view); });
	if (composite)
		fill_list();
	show_components(composite);
	show_texts();
	Draw(Bounds());
}


void
glyftoolview::paint(BView* view) const
{
	view->SetHighColor(palette_color);
	view->FillRect(view->Bounds());
	palette_arrow(view, BPoint(2, 15), arrow_left);
	palette_arrow(view, BPoint(40, 15), arrow_right);
	if (!composite && mode == glyfeditview::free_tool) {
		palette_arrow(view, BPoint(1, size_row), arrow_left);
		palette_arrow(view, BPoint(41, size_row), arrow_right);
	}
	palette_arrow(view, BPoint(1, scale_row), arrow_left);
	palette_arrow(view, BPoint(41, scale_row), arrow_right);
	for (int i = 0; i < tool_icon_count && !composite; i++)
		draw_tool_icon(view, i, first_icon + BPoint(0, icon_step * (float)i), i == mode);
}


void
glyftoolview::fill_list()
{
	empty_list(compo_list);
	for (int i = 0; i < compo_count; i++) {
		char text[8];
		snprintf(text, sizeof text, "%04x", (uint16)compo[i]);
		compo_list->AddItem(new BStringItem(text));
	}
}


// Their own visibility alone: under a hidden palette they would count as hidden for good.
void
glyftoolview::show_components(bool visible)
{
	BView* const controls[] = {compo_list, component_entry, add_button, del_button};
	for (BView* control : controls) {
		if (control->IsHidden(control) != visible)
			continue;
		if (visible)
			control->Show();
		else
			control->Hide();
	}
}


void
glyftoolview::show_texts()
{
	chr_entry->SetText(utf8_of((uint16)chr).c_str());
	show_hex(chr_code, (uint16)chr, 4);
	show_hex(gno_entry, (uint16)gno, 4);
	mode_button->SetLabel(!empty ? "clr" : composite ? "simple" : "compo");
}


void
glyftoolview::MessageReceived(BMessage* message)
{
	void* source;
	switch (message->what) {
		case msg_editor:
			learn(message);
			break;
		case msg_entered:
			if (message->FindPointer("source", &source) == B_OK)
				entered(source);
			break;
		case msg_pressed:
			if (message->FindPointer("source", &source) == B_OK)
				pressed(source);
			break;
		default:
			BView::MessageReceived(message);
	}
}


// What the edit view tells; what a message does not hold has not changed.
void
glyftoolview::learn(const BMessage* message)
{
	int8 tool;
	if (message->FindInt8("mode", &tool) == B_OK)
		mode = tool;
	int16 number;
	if (message->FindInt16("gno", &number) == B_OK) {
		gno = number;
		compo_count = 0;
		composite = 0;
	}
	if (message->FindInt16("chr", &number) == B_OK)
		chr = number;
	for (int32 i = 0; compo_count < max_compos; i++) {
		if (message->FindInt16("compo", i, &number) != B_OK)
			break;
		compo[compo_count++] = number;
		composite = 1;
	}
	bool nothing;
	if (message->FindBool("empty", &nothing) == B_OK)
		empty = nothing;
	float shown;
	if (message->FindFloat("scale", &shown) == B_OK)
		scale = shown;
	redraw();
}


void
glyftoolview::entered(const void* source)
{
	if (source == chr_entry) {
		uint16 code;
		if (first_character(chr_entry->Text(), &code))
			palette_choose(glyf_table->edit, "chr", (int16)code);
	} else if (source == chr_code) {
		palette_choose(glyf_table->edit, "chr", palette_number(chr_code, 0));
	} else if (source == gno_entry) {
		palette_choose(glyf_table->edit, "gno", palette_number(gno_entry, 0));
	}
}


void
glyftoolview::pressed(const void* source)
{
	BMessage commit(msg_commit);
	if (source == add_button)
		add();
	else if (source == del_button)
		del();
	else if (source == set_button)
		send(commit);
	else if (source == mode_button)
		change_kind();
}


// Empties the glyph; an empty one becomes composite, or simple again.
void
glyftoolview::change_kind()
{
	BMessage told(empty ? msg_pointer : msg_clear);
	if (empty)
		composite = !composite;
	else
		empty = 1;
	send(told);
	compo_count = 0;
	redraw();
}


void
glyftoolview::add()
{
	BMessage added(msg_add_component);
	added.AddInt16("sub", palette_number(component_entry, none));
	send(added);
}


void
glyftoolview::del()
{
	int32 row = compo_list->CurrentSelection();
	if (row < 0)
		return;
	BMessage removed(msg_del_component);
	removed.AddInt8("no", (int8)row);
	send(removed);
}


void
glyftoolview::MouseDown(BPoint where)
{
	if (where.y > 10 && where.y < 30)
		step_glyph(where.x);
	else if (where.y > size_row && where.y < size_row + 10)
		step_size(where.x);
	else if (where.y > scale_row)
		step_scale(where.x);
	else if (!choose_tool(where))
		palette_choose(glyf_table->edit, "gno", (int16)(gno + 1));
}


void
glyftoolview::step_glyph(float x)
{
	if (x < 10)
		gno = (int16)(gno - 1);
	else if (x > 40)
		gno = (int16)(gno + 1);
	palette_choose(glyf_table->edit, "gno", gno);
}


void
glyftoolview::step_size(float x)
{
	psize = (uint8)(x >= 25 ? std::min(psize + 5, 100) : std::max(psize - 5, 0));
	BMessage chosen(msg_editor);
	chosen.AddInt8("psize", (int8)psize);
	send(chosen);
	redraw();
}


void
glyftoolview::step_scale(float x)
{
	if (x < 10)
		scale = scale > 0.1f ? scale - 0.05f : scale;
	else if (x > 40)
		scale = scale < 2 ? scale + 0.05f : scale;
	else
		scale = 0;
	BMessage chosen(msg_editor);
	chosen.AddFloat("scale", scale);
	send(chosen);
}


// Sends the tool whose icon is pressed; false when there is none. The edges of an icon count a
// pixel further down and to the right than it is painted.
bool
glyftoolview::choose_tool(BPoint where)
{
	const float size = tool_icon_size;
	for (int i = tool_icon_count - 1; i >= 0; i--) {
		float top = first_icon.y + icon_step * (float)i;
		if (where.x > first_icon.x && where.x < first_icon.x + size && where.y >= top
			&& where.y <= top + size) {
			BMessage tool(tools[i]);
			send(tool);
			return true;
		}
	}
	return false;
}


void
glyftoolview::send(BMessage& message)
{
	BMessenger(glyf_table->edit).SendMessage(&message);
}
