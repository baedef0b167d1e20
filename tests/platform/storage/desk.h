// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_TESTS_DESK_H
#define KITS_TESTS_DESK_H

#include "platform/interface/stage.h"
#include "support/temp_files.h"

#include <Entry.h>
#include <FilePanel.h>
#include <memory>
#include <Messenger.h>

// A folder with two files, one.ttf and two.ttf, a window to answer to, and panels that start in the
// folder.
class desk {
public:
	desk(test_window& receiver, robot& hand);

	std::unique_ptr<BFilePanel> panel(file_panel_mode mode, BMessage* message = nullptr,
		bool several = true, bool hideWhenDone = true);

	temp_folder folder;
	test_window& window;
	robot& user;
	BMessenger target;
	// The folder.
	entry_ref place;
};

void with_desk(const std::function<void(desk&)>& work);

// Where a ref in the message leads to; empty when there is none.
std::string path_of(const BMessage& message, const char* field, int32 index = 0);

#endif
