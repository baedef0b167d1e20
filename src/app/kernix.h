// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_APP_KERNIX_H
#define KERNIX_APP_KERNIX_H

#include <Application.h>

class BMessage;
class kernixwindow;
class ttf;
struct entry_ref;

// The application: owns the open font (curttf) and carries out the document's life. Whatever
// replaces the font takes the old one off the screen, destroys it, builds the new one, hands the
// work view 'init' and waits for it, so that no panel ever sees a half-built font.
//
// Everything runs in the application's thread, construction and destruction apart. The main window
// is locked around every change to its views, and nothing waits for it meanwhile. No failure is
// shown to the user.
class kernix : public BApplication {
public:
	// Opens the main window.
	kernix();
	// Takes the font's panels out of the work view and destroys the view. The font itself stays
	// reachable through curttf.
	~kernix() override;

	void MessageReceived(BMessage* message) override;
	void RefsReceived(BMessage* message) override;
	// Shows the About box and waits until it is closed.
	void AboutRequested() override;

	// Begins a new font: takes the open one off the screen, destroys it and shows the set-up view.
	void start();
	// Makes the font as the set-up view has it and shows it; nothing unless that view is there.
	void start2();
	// Opens a font file in place of the open font. True on failure: then there is an empty font and
	// an empty work view, or, when the window has gone, all is as it was.
	bool load(entry_ref& ref);
	// Writes the font under this name, over a file that bears it, and sets its type; also when the
	// window has gone. True on failure. Touches no file while there is nothing to save.
	bool save(entry_ref& directory, const char* name);
	// Takes the font off the screen and destroys it.
	void clear();

	kernixwindow* window; // the kit's; lives until the application is destroyed

private:
	bool replace(ttf* font);
	void end_setup();
	void handshake();
	bool write(entry_ref& directory, const char* name);
	void save_request(const BMessage* message);
	void load_first(const BMessage* message);
};

#endif
