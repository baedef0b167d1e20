// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_FILEPANEL_H
#define KITS_FILEPANEL_H

#include <Entry.h>
#include <memory>
#include <Messenger.h>

class BMessage;
class BRefFilter;

namespace kits {
struct panel_state;
}

enum file_panel_mode { B_OPEN_PANEL = 0, B_SAVE_PANEL = 1 };

// A dialog of its own that asks for a file and answers its target by message: B_REFS_RECEIVED with
// "refs"; B_SAVE_REQUESTED with "directory" and "name"; or, closed without a choice, B_CANCEL with
// "old_what" and "source". A panel remembers the folder it was left in for the next of its process.
class BFilePanel {
public:
	// Built hidden. No target means the application. The target and the message are copied. A
	// filter is not offered and must be null; neither is a modal panel.
	BFilePanel(file_panel_mode mode = B_OPEN_PANEL, BMessenger* target = NULL,
		const entry_ref* directory = NULL, uint32 nodeFlavors = 0,
		bool allowMultipleSelection = true, BMessage* message = NULL, BRefFilter* filter = NULL,
		bool modal = false, bool hideWhenDone = true);
	// Closes the window; answers not yet sent are lost.
	virtual ~BFilePanel();
	BFilePanel(const BFilePanel&) = delete;
	BFilePanel& operator=(const BFilePanel&) = delete;

	// Returns at once.
	void Show();
	void Hide();
	bool IsShowing() const;

private:
	std::shared_ptr<kits::panel_state> fState;
};

#endif
