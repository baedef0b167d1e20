// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "platform/storage/desk.h"

#include "platform/storage/stored.h"

#include <Path.h>


desk::desk(test_window& receiver, robot& hand) : window(receiver), user(hand), target(&receiver)
{
	store(folder.path("one.ttf"), "1");
	store(folder.path("two.ttf"), "2");
	get_ref_for_path(folder.path().c_str(), &place);
}


std::unique_ptr<BFilePanel>
desk::panel(file_panel_mode mode, BMessage* message, bool several, bool hideWhenDone)
{
	return std::make_unique<BFilePanel>(
		mode, &target, &place, 0, several, message, nullptr, false, hideWhenDone);
}


void
with_desk(const std::function<void(desk&)>& work)
{
	with_window([&](test_window& window, robot& user) {
		desk here(window, user);
		work(here);
	});
}


std::string
path_of(const BMessage& message, const char* field, int32 index)
{
	entry_ref ref;
	if (message.FindRef(field, index, &ref) != B_OK)
		return "";
	return BPath(&ref).Path();
}
