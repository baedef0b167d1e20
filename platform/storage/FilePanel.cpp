// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "display/file_dialog.h"

#include <AppDefs.h>
#include <Application.h>
#include <atomic>
#include <FilePanel.h>
#include <Message.h>
#include <Path.h>
#include <string>

namespace kits {

// Shared with the dialog's answer, which may come when the panel has gone.
struct panel_state {
	std::shared_ptr<file_dialog> dialog;
	BMessenger target;
	BMessage answer;
	// Names the panel in what it sends; never followed.
	void* panel = nullptr;
	bool saving = false;
	bool hide_when_done = true;
	std::atomic<bool> showing{false};
};

}

using namespace kits;


namespace {

// The folder and the leaf of what the dialog was left with.
BMessage
save_answer(const panel_state& panel, const std::string& path)
{
	BMessage message(panel.answer);
	size_t slash = path.rfind('/');
	std::string folder = slash == 0 ? "/" : path.substr(0, slash);
	entry_ref directory;
	if (get_ref_for_path(folder.c_str(), &directory) == B_OK)
		message.AddRef("directory", &directory);
	message.AddString("name", path.substr(slash + 1).c_str());
	return message;
}


BMessage
open_answer(const panel_state& panel, const std::vector<std::string>& paths)
{
	BMessage message(panel.answer);
	for (const std::string& path : paths) {
		entry_ref ref;
		if (get_ref_for_path(path.c_str(), &ref) == B_OK)
			message.AddRef("refs", &ref);
	}
	return message;
}


BMessage
cancel_answer(const panel_state& panel)
{
	BMessage message(B_CANCEL);
	message.AddInt32("old_what", (int32)panel.answer.what);
	message.AddPointer("source", panel.panel);
	return message;
}


// On the display thread: only sends.
void
answer(panel_state& panel, const std::vector<std::string>& paths)
{
	BMessage message = paths.empty() ? cancel_answer(panel)
		: panel.saving               ? save_answer(panel, paths.front())
									 : open_answer(panel, paths);
	panel.showing = false;
	panel.target.SendMessage(&message);
	if (!paths.empty() && !panel.hide_when_done) {
		panel.showing = true;
		file_dialogs::show(panel.dialog, true);
	}
}

}


BFilePanel::BFilePanel(file_panel_mode mode, BMessenger* target, const entry_ref* directory, uint32,
	bool allowMultipleSelection, BMessage* message, BRefFilter*, bool, bool hideWhenDone)
	: fState(std::make_shared<panel_state>())
{
	fState->saving = mode == B_SAVE_PANEL;
	fState->target = target ? *target : be_app_messenger;
	uint32 code = B_REFS_RECEIVED;
	if (fState->saving)
		code = B_SAVE_REQUESTED;
	fState->answer = message ? *message : BMessage(code);
	fState->panel = this;
	fState->hide_when_done = hideWhenDone;
	std::string folder;
	if (directory)
		folder = BPath(directory).Path() ? BPath(directory).Path() : "";
	// Held weakly: the state owns the dialog whose answer this is.
	std::weak_ptr<panel_state> held = fState;
	fState->dialog = file_dialogs::make({fState->saving, allowMultipleSelection, folder},
		[held](const std::vector<std::string>& paths) {
			if (auto panel = held.lock())
				answer(*panel, paths);
		});
}


BFilePanel::~BFilePanel()
{
	file_dialogs::destroy(fState->dialog);
}


void
BFilePanel::Show()
{
	fState->showing = true;
	file_dialogs::show(fState->dialog, true);
}


void
BFilePanel::Hide()
{
	fState->showing = false;
	file_dialogs::show(fState->dialog, false);
}


bool
BFilePanel::IsShowing() const
{
	return fState->showing;
}
