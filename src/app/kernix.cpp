// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#include "app/kernix.h"

#include "app/initview.h"
#include "app/kernixview.h"
#include "app/kernixwindow.h"
#include "font/globals.h"
#include "font/messages.h"
#include "font/ttf.h"
#include <Alert.h>
#include <AppDefs.h>
#include <AppFileInfo.h>
#include <cstdio>
#include <Directory.h>
#include <Entry.h>
#include <File.h>
#include <Message.h>
#include <Messenger.h>


kernix::kernix()
	: BApplication("application/x-vnd.Tarn-kernix"),
	  window(new kernixwindow(BRect(100, 100, 499, 399)))
{
	fpanel = nullptr;
}


kernix::~kernix()
{
	kernixview* view = window->workview;
	// A window that quit has let go of it already.
	if (view->Window() != nullptr)
		window->RemoveChild(view);
	// A view destroys its children, and the panels belong to the font.
	if (curttf != nullptr)
		curttf->reset_view(view);
	delete view;
	window->workview = nullptr;
}


void
kernix::MessageReceived(BMessage* message)
{
	switch (message->what) {
		case msg_new:
			start();
			break;
		case msg_confirmed:
			start2();
			break;
		case B_SAVE_REQUESTED:
			save_request(message);
			fpanel = nullptr;
			break;
		case B_SIMPLE_DATA:
			load_first(message);
			break;
		case B_CANCEL:
			fpanel = nullptr;
			break;
		default:
			BApplication::MessageReceived(message);
	}
}


void
kernix::RefsReceived(BMessage* message)
{
	entry_ref ref;
	if (message->FindRef("refs", &ref) == B_OK)
		load(ref);
	fpanel = nullptr;
}


void
kernix::AboutRequested()
{
	const char* text = "kernix ver.0.02   2012. 1. 1\n"
					   "An editor for TrueType fonts: tables, outlines, bitmaps.\n"
					   "Made by the kernix authors.";
	(new BAlert("", text, "Thank you", nullptr, nullptr, B_WIDTH_AS_USUAL, B_INFO_ALERT))->Go();
}


void
kernix::start()
{
	ttf* font = new ttf;
	if (!replace(font)) {
		delete font;
		return;
	}
	// Locked again for what is shown of it; nothing else makes or destroys a font.
	if (!window->Lock())
		return;
	window->setupview = new initview(BRect(0, 0, 561, 511));
	window->workview->AddChild(window->setupview);
	window->Zoom();
	window->Unlock();
}


void
kernix::start2()
{
	if (!window->Lock())
		return;
	// A second "set" may have been on its way.
	const bool chosen = window->setupview != nullptr;
	if (chosen) {
		end_setup();
		curttf->init();
	}
	window->Unlock();
	if (chosen)
		handshake();
}


// With the window locked.
void
kernix::end_setup()
{
	if (window->setupview == nullptr)
		return;
	window->workview->RemoveChild(window->setupview);
	delete window->setupview;
	window->setupview = nullptr;
}


bool
kernix::load(entry_ref& ref)
{
	printf("kernix:load\n");
	ttf* font = new ttf;
	if (!replace(font)) {
		delete font;
		return true;
	}
	BFile file(&ref, B_READ_ONLY);
	// A font that cannot be read stays, empty.
	if (font->load(file) != 0)
		return true;
	handshake();
	return false;
}


bool
kernix::save(entry_ref& directory, const char* name)
{
	printf("kernix:save\n");
	// Held while the bytes are written, so that no edit tears the file. Once the window has gone
	// nobody edits any more, and what the user has confirmed is still to be saved.
	const bool locked = window->Lock();
	bool failed = write(directory, name);
	if (locked)
		window->Unlock();
	return failed;
}


void
kernix::clear()
{
	replace(nullptr);
}


// Puts font, or none, in the place of the open one. False, with nothing changed, when the window
// has gone.
bool
kernix::replace(ttf* font)
{
	if (!window->Lock())
		return false;
	if (curttf != nullptr) {
		window->workview->clr();
		// It looks at the font that goes.
		end_setup();
		delete curttf;
	}
	curttf = font;
	window->Unlock();
	return true;
}


// Has the work view build the display of the open font and waits until it has.
void
kernix::handshake()
{
	canvasok = 0;
	BMessage init = init_message(*curttf);
	// A window that quits in the meantime sets canvasok too; one that has gone takes no message.
	if (BMessenger(window->workview).SendMessage(&init) == B_OK)
		canvasok.wait(0);
}


// Not before any was opened, nor while one is set up, nor after one that could not be opened.
static bool
has_font()
{
	return curttf != nullptr && !curttf->empty();
}


bool
kernix::write(entry_ref& directory, const char* name)
{
	// Asked before the file is created: creating empties the one that is there.
	if (!has_font())
		return true;
	BFile file;
	BDirectory(&directory).CreateFile(name, &file, false);
	if (curttf->save(file) != 0)
		return true;
	BAppFileInfo(&file).SetType("application/x-truetype");
	return false;
}


void
kernix::save_request(const BMessage* message)
{
	entry_ref directory;
	const char* name;
	if (has_font() && message->FindRef("directory", &directory) == B_OK
		&& message->FindString("name", &name) == B_OK)
		save(directory, name);
}


// Of several dropped files the first that is a font.
void
kernix::load_first(const BMessage* message)
{
	type_code type;
	int32 count;
	if (message->GetInfo("refs", &type, &count) != B_OK)
		return;
	for (int32 i = 0; i < count; i++) {
		entry_ref ref;
		if (message->FindRef("refs", i, &ref) == B_OK && !load(ref))
			break;
	}
}
