// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// What the soak's user does with files, and with the program as a whole.
#include "app/kernix.h"
#include "app/kernixview.h"
#include "app/kernixwindow.h"
#include "font/messages.h"
#include "program/journey.h"
#include "soak/user.h"
#include "support/expected_save.h"
#include "support/temp_files.h"

#include <AppDefs.h>
#include <filesystem>
#include <Messenger.h>


// A file in the folder: a new one, or other contents for one that has been there.
std::string
soak_user::put(const octets& contents)
{
	const std::string path = fFolder + "/" + std::to_string(fChance.below(4)) + ".ttf";
	write_file(path, contents);
	fFiles[path] = contents;
	return path;
}


std::string
soak_user::some_path()
{
	switch (fChance.below(6)) {
		case 0:
			return fFolder;
		case 1:
			return fFolder + "/nothing.ttf";
		case 2:
			return put(fShelf.garbage(fChance));
		default:
			return put(fShelf.good(fChance));
	}
}


// The program is given time to do it, or not.
void
soak_user::send(const BMessage& message, bool to_view)
{
	BMessage copy = message;
	if (to_view)
		BMessenger(fApp.window->workview).SendMessage(&copy);
	else
		be_app_messenger.SendMessage(&copy);
	if (!fChance.one_in(4))
		fHand.settle();
}


void
soak_user::open_good()
{
	const std::string path = put(fShelf.good(fChance));
	note("open " + path + ", " + std::to_string(fFiles[path].size()) + " octets");
	send(refs(B_REFS_RECEIVED, {path}));
}


void
soak_user::open_garbage()
{
	const std::string path = put(fShelf.garbage(fChance));
	note("open garbage " + path + ", " + std::to_string(fFiles[path].size()) + " octets");
	send(refs(B_REFS_RECEIVED, {path}));
}


void
soak_user::drop_files()
{
	std::vector<std::string> paths;
	std::string names;
	for (int i = fChance.below(4); i > 0; i--) {
		paths.push_back(some_path());
		names += " " + paths.back();
	}
	const BPoint place = somewhere();
	note("drop at " + text_of(place) + ":" + names);
	fHand.drop(place, paths);
}


void
soak_user::save_new()
{
	const std::string leaf = "saved-" + std::to_string(fSaved++) + ".ttf";
	note("save " + leaf);
	send(save_answer(fFolder, leaf));
}


void
soak_user::save_over()
{
	const std::string leaf = std::to_string(fChance.below(4)) + ".ttf";
	note("save over " + leaf);
	send(save_answer(fFolder, leaf));
}


// Opens a font and saves it as it is, which changes nothing that should not be.
void
soak_user::copy_font()
{
	const octets original = fShelf.good(fChance);
	const std::string path = put(original);
	const std::string leaf = "copy-" + std::to_string(fSaved++) + ".ttf";
	note("copy " + path + " to " + leaf);
	open_file(fHand, path);
	save_file(fHand, fFolder, leaf);
	if (!std::filesystem::exists(fFolder + "/" + leaf)) {
		fProblem = leaf + " was not saved";
		return;
	}
	const octets copy = read_file(fFolder + "/" + leaf);
	if (!same(expected_save(original, modified_of(copy)), copy))
		fProblem = leaf + " is not the font that was opened";
	if (is_a_font_to_freetype(original) && !is_a_font_to_freetype(copy))
		fProblem = leaf + " is no font to FreeType";
}


void
soak_user::ask_for_panel()
{
	const char* const item = fChance.one_in(2) ? "Open" : "Save as";
	note(item);
	fHand.choose_menu("File", item);
}


void
soak_user::set_up()
{
	note("new");
	fHand.choose_menu("File", "New");
	for (int i = fChance.below(4); i > 0; i--) {
		look();
		tick_box();
	}
	look();
	for (const sight::thing& each : fSight.all(sight::button)) {
		if (each.label == "set" && !fChance.one_in(4)) {
			note("set");
			fHand.click(each.place);
		}
	}
}


void
soak_user::show_about()
{
	note("About");
	fHand.choose_menu("File", "About");
}


// What other programs and the desktop may send at any time.
void
soak_user::send_message()
{
	const uint32 codes[] = {B_REFS_RECEIVED, B_SIMPLE_DATA, B_SAVE_REQUESTED, B_CANCEL, B_COPY,
		B_PASTE, B_CUT, B_SELECT_ALL, msg_confirmed, msg_open, msg_repaint, 0};
	const int which = fChance.below((int)std::size(codes));
	const bool to_view = fChance.one_in(2);
	note("message " + std::to_string(which) + (to_view ? " to the view" : " to the program"));
	send(BMessage(codes[which]), to_view);
}
