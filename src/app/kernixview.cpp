// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "app/kernixview.h"

#include "app/kernixwindow.h"
#include "app/selectview.h"
#include "editor/glyfeditview.h"
#include "font/globals.h"
#include "font/messages.h"
#include "font/ttf.h"
#include "font/ttf_table.h"
#include "outline/ttf_glyf.h"
#include <AppDefs.h>
#include <Font.h>
#include <Message.h>
#include <Messenger.h>

enum { max_listed = 32 };


BMessage
init_message(const ttf& font)
{
	BRect box = font.bounds();
	BMessage message(msg_init);
	message.AddRect("bounds", BRect(0, 0, box.right - box.left, box.top - box.bottom));
	return message;
}


kernixview::kernixview(BRect frame) : BView(frame, "canvas", B_FOLLOW_ALL_SIDES, B_WILL_DRAW)
{
	canvas = BRect(0, 0, 0, 0);
}


kernixview::~kernixview()
{
	fpanel = nullptr;
}


void
kernixview::AttachedToWindow()
{
	SetHighColor(255, 255, 255);
	SetViewColor(50, 50, 50);
	SetLowColor(100, 100, 100);
	SetFont(be_bold_font);
}


void
kernixview::Draw(BRect)
{
	SetFontSize(30);
	DrawString("kernix", BPoint(45, 50));
	SetFontSize(20);
	DrawString("ver.0.02", BPoint(75, 80));
}


void
kernixview::MessageReceived(BMessage* message)
{
	switch (message->what) {
		case msg_open:
			show_panel(B_OPEN_PANEL);
			break;
		case msg_save_as:
			show_panel(B_SAVE_PANEL);
			break;
		case B_SIMPLE_DATA:
			if (message->HasRef("refs"))
				be_app_messenger.SendMessage(message);
			break;
		case msg_init:
			Window()->Zoom();
			init();
			break;
		case msg_table:
			choose((uint32)message->FindInt32("table"));
			break;
		default:
			BView::MessageReceived(message);
	}
}


void
kernixview::init()
{
	if (curttf == nullptr)
		return;
	curttf->set_view(this);

	BMessage init = init_message(*curttf);
	if (curttf->glyf != nullptr) {
		BMessenger(curttf->glyf->edit).SendMessage(&init);
	} else {
		// Without an outline view nobody else sets the canvas and ends the application's wait.
		canvas = init.FindRect("bounds");
		canvasok = 1;
		canvasok.notify_all();
	}

	BMessage list(msg_tables);
	unsigned long tags[max_listed];
	int count = max_listed;
	// A font of more tables than can be listed lists none.
	if (curttf->get_tables(&count, tags) == 0) {
		for (int i = 0; i < count; i++)
			list.AddInt32("table", (int32)tags[i]);
	}
	BMessenger(mainwindow()->selector).SendMessage(&list);
}


void
kernixview::clr()
{
	kernixwindow* window = mainwindow();
	if (window != nullptr) {
		BMessage none(msg_tables);
		BMessenger(window->selector).SendMessage(&none);
		window->Zoom();
		scroll(this, nullptr);
	}
	if (curttf != nullptr)
		curttf->reset_view(this);
}


// Null once the window has let go of this view.
kernixwindow*
kernixview::mainwindow() const
{
	return dynamic_cast<kernixwindow*>(Window());
}


void
kernixview::show_panel(file_panel_mode mode)
{
	if (fpanel != nullptr) {
		// It may lie behind other windows.
		if (panel != nullptr && panel->IsShowing())
			panel->Show();
		return;
	}
	// One that is left has answered.
	panel.reset();
	panel = std::make_unique<BFilePanel>(
		mode, nullptr, nullptr, B_FILE_NODE, false, nullptr, nullptr, false, true);
	fpanel = panel.get();
	panel->Show();
}


// Shows the panel of this table, hides the others and has the selector highlight it. A tag without
// a panel only hides; 0 is no table.
void
kernixview::choose(uint32 tag)
{
	for (int32 i = 0; i < CountChildren(); i++) {
		ttf_table* table = dynamic_cast<ttf_table*>(ChildAt(i));
		if (table == nullptr)
			continue;
		Window()->Zoom();
		if (table->tag != tag) {
			table->show(false);
		} else if (tag == 'glyf') {
			show_editor(static_cast<ttf_glyf*>(table));
		} else {
			table->show(true);
			scroll(table, nullptr);
		}
	}
	if (tag != 0) {
		BMessage chosen(msg_table);
		chosen.AddInt32("table", (int32)tag);
		BMessenger(mainwindow()->selector).SendMessage(&chosen);
	}
}


// At scale 1 the window measures the edit view, not the outline; at its own the edit view then sets
// how far there is to scroll.
void
kernixview::show_editor(ttf_glyf* table)
{
	float scale = table->edit->getscale();
	table->edit->chgscale(1);
	table->show(true);
	scroll(table->edit, table->edit);
	table->edit->chgscale(scale);
}


// The scroll bars range over the target as it stands; the window grows no larger than a panel. The
// mouse messages of the handler, unless it is null, are recorded from then on.
void
kernixview::scroll(BView* target, BView* handler)
{
	mainwindow()->settarget(BRect(400, 300, 561, 511), target, handler, 0, 0);
}
