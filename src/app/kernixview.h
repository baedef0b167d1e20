// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

#ifndef KERNIX_APP_KERNIXVIEW_H
#define KERNIX_APP_KERNIXVIEW_H

#include <FilePanel.h>
#include <memory>
#include <View.h>

class BMessage;
class kernixwindow;
class ttf;
class ttf_glyf;

// The 'init' message for a font: "bounds" is its design box moved to the origin, y downward.
BMessage init_message(const ttf& font);

// The large area of the window: holds the panels of the open font as its children and shows one of
// them, or the title card while there is none. The menu's "Open" and "Save as" and dropped files
// arrive here. Runs in the window's thread.
class kernixview : public BView {
public:
	explicit kernixview(BRect frame);
	~kernixview() override;

	void MessageReceived(BMessage* message) override;
	void AttachedToWindow() override;
	void Draw(BRect updateRect) override;

	// Builds the display of the open font, all panels hidden, and reports it done (canvasok).
	void init();
	// Lets go of the open font's panels, before it is destroyed. Also in the application's thread
	// with the window locked; a view that the window has let go of does the same.
	void clr();

private:
	kernixwindow* mainwindow() const;
	void show_panel(file_panel_mode mode);
	void choose(uint32 tag);
	void show_editor(ttf_glyf* table);
	void scroll(BView* target, BView* handler);

	// The latest file panel. When the application clears fpanel, this one has answered.
	std::unique_ptr<BFilePanel> panel;
};

#endif
