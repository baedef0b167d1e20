// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "app/kernixwindow.h"

#include "app/kernixview.h"
#include "app/selectview.h"
#include "font/globals.h"
#include "font/messages.h"
#include <algorithm>
#include <AppDefs.h>
#include <cstring>
#include <Menu.h>
#include <MenuBar.h>
#include <MenuItem.h>
#include <Message.h>
#include <Messenger.h>
#include <ScrollBar.h>

// Pixels that the parts of the window take from the work view.
static const float bar_thickness = 14;
static const float menu_height = 20;
static const float strip_height = 32;


kernixwindow::kernixwindow(BRect frame)
	: BWindow(frame, "kernix ver.0.02", B_DOCUMENT_WINDOW, 0),
	  input(),
	  setupview(nullptr),
	  canvaswidth(512),
	  canvasheight(512),
	  scrolltarget(nullptr),
	  inputhandler(nullptr)
{
	BRect all = Bounds();
	BRect strip(0, 0, all.right, strip_height);
	strip.OffsetTo(0, menu_height);
	selector = new selectview(strip);
	AddChild(selector);

	BRect work(
		0, 0, all.right - bar_thickness, all.bottom - bar_thickness - menu_height - strip_height);
	work.OffsetTo(0, strip.bottom + 1);
	workview = new kernixview(work);
	AddChild(workview);

	setupmenus();

	BRect right(0, 0, bar_thickness, work.Height());
	right.OffsetTo(work.right + 1, work.top);
	scrollv = new BScrollBar(right, "scrollv", workview, 0, 0, B_VERTICAL);
	AddChild(scrollv);
	BRect below(0, 0, work.Width(), bar_thickness);
	below.OffsetTo(work.left, work.bottom + 1);
	scrollh = new BScrollBar(below, "scrollh", workview, 0, 0, B_HORIZONTAL);
	AddChild(scrollh);

	FrameResized(frame.Width(), frame.Height());
	Show();
	SetPulseRate(100000);
}


kernixwindow::~kernixwindow() = default;


void
kernixwindow::DispatchMessage(BMessage* message, BHandler* handler)
{
	bool mouse = message->what == B_MOUSE_DOWN || message->what == B_MOUSE_UP
		|| message->what == B_MOUSE_MOVED;
	// Copies that the platform makes for itself are no user's doing.
	if (mouse && handler == inputhandler && !message->HasInt32("be:cursor_needed")
		&& !message->HasInt32("_msg_what_"))
		record(message);
	BWindow::DispatchMessage(message, handler);
}


bool
kernixwindow::QuitRequested()
{
	RemoveChild(workview);
	be_app_messenger.SendMessage(B_QUIT_REQUESTED);
	// Only now: an 'init' sent after this finds no work view, one sent before has been dropped.
	canvasok = 1;
	canvasok.notify_all();
	return true;
}


void
kernixwindow::FrameResized(float, float)
{
	updatescrollbar();
}


void
kernixwindow::Zoom(BPoint, float, float)
{
	ResizeTo(575, 578);
}


void
kernixwindow::setupmenus()
{
	menubar = new BMenuBar(
		BRect(0, 0, 20, 20), "menubar", B_FOLLOW_LEFT_RIGHT | B_FOLLOW_TOP, B_ITEMS_IN_ROW, true);
	BMenu* file = new BMenu("File", B_ITEMS_IN_COLUMN);
	// Aimed at the work view itself: the preferred handler is nobody while nothing has the focus.
	const struct {
		const char* label;
		uint32 what;
		BMessenger target;
	} items[] = {
		{"New", msg_new, be_app_messenger},
		{"Open", msg_open, BMessenger(workview)},
		{"Save as", msg_save_as, BMessenger(workview)},
		{"About", B_ABOUT_REQUESTED, be_app_messenger},
		{"Quit", B_QUIT_REQUESTED, be_app_messenger},
	};
	for (const auto& row : items) {
		BMenuItem* item = new BMenuItem(row.label, new BMessage(row.what));
		item->SetTarget(row.target);
		file->AddItem(item);
	}
	menubar->AddItem(file);
	AddChild(menubar);
}


void
kernixwindow::updatescrollbar()
{
	if (scrolltarget == nullptr)
		return;
	BRect view = scrolltarget->Bounds();
	float width = view.Width() + 1;
	float height = view.Height() + 1;
	scrollv->SetRange(0, std::max(canvasheight - height - 1, 0.0f));
	scrollh->SetRange(0, std::max(canvaswidth - width - 1, 0.0f));
	scrollv->SetProportion(height / canvasheight);
	scrollh->SetProportion(width / canvaswidth);
	scrollv->SetSteps(5, view.Height());
	scrollh->SetSteps(5, view.Width());
}


void
kernixwindow::settarget(BRect limits, BView* target, BView* handler, float width, float height)
{
	if (target != nullptr) {
		scrolltarget = target;
		float right = limits.right + bar_thickness;
		float bottom = limits.bottom + bar_thickness + menu_height + strip_height + 1;
		SetSizeLimits(limits.left, right, limits.top, bottom);
		SetZoomLimits(right, bottom);
		scrollv->SetValue(0);
		scrollh->SetValue(0);
		updatescrollbar();
		scrollv->SetTarget(target);
		scrollh->SetTarget(target);
	}
	if (width != 0 && height != 0) {
		canvaswidth = width;
		canvasheight = height;
	} else if (scrolltarget != nullptr) {
		canvaswidth = scrolltarget->Bounds().Width() + 1;
		canvasheight = scrolltarget->Bounds().Height() + 1;
	}
	updatescrollbar();
	if (handler != nullptr)
		inputhandler = handler;
}


void
kernixwindow::markmenu(const char* menu, const char* label)
{
	for (int32 i = 0; i < menubar->CountItems(); i++) {
		BMenu* submenu = menubar->SubmenuAt(i);
		if (submenu == nullptr || strcmp(submenu->Name(), menu) != 0)
			continue;
		for (int32 k = 0; k < submenu->CountItems(); k++) {
			BMenuItem* item = submenu->ItemAt(k);
			if (label[0] == '\0')
				item->SetMarked(false);
			else if (strcmp(item->Label(), label) == 0)
				item->SetMarked(true);
		}
	}
}


// The value of a field. A failed look-up may spoil its output, and what is missing must keep its
// value: so each goes through a local.
static bool
take(const BMessage* message, const char* name, float* value)
{
	float found;
	if (message->FindFloat(name, &found) != B_OK)
		return false;
	*value = found;
	return true;
}


static bool
take(const BMessage* message, const char* name, int32* value)
{
	int32 found;
	if (message->FindInt32(name, &found) != B_OK)
		return false;
	*value = found;
	return true;
}


static bool
take(const BMessage* message, const char* name, int64* value)
{
	int64 found;
	if (message->FindInt64(name, &found) != B_OK)
		return false;
	*value = found;
	return true;
}


static bool
take(const BMessage* message, const char* name, BPoint* value)
{
	BPoint found;
	if (message->FindPoint(name, &found) != B_OK)
		return false;
	*value = found;
	return true;
}


// Two fields that only count together.
static bool
take_both(const BMessage* message, const char* xname, float* x, const char* yname, float* y)
{
	return message->HasFloat(xname) && take(message, yname, y) && take(message, xname, x);
}


void
kernixwindow::record(const BMessage* message)
{
	input.flags = 0;
	if (take_both(message, "be:tablet_x", &input.x, "be:tablet_y", &input.y))
		input.flags |= input_position;
	if (take_both(message, "be:tablet_tilt_x", &input.tilt_x, "be:tablet_tilt_y", &input.tilt_y))
		input.flags |= input_tilt;
	if (take(message, "be:tablet_pressure", &input.pressure))
		input.flags |= input_pressure;
	if (take(message, "be:tablet_eraser", &input.eraser))
		input.flags |= input_eraser;
	if (take(message, "buttons", &input.buttons))
		input.flags |= input_buttons;
	if (take(message, "modifiers", &input.modifiers))
		input.flags |= input_modifiers;
	if (take(message, "be:transit", &input.transit))
		input.flags |= input_transit;
	if (take(message, "when", &input.when))
		input.flags |= input_when;
	if (take(message, "be:view_where", &input.where))
		input.flags |= input_where;
}
