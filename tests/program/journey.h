// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_PROGRAM_JOURNEY_H
#define KERNIX_PROGRAM_JOURNEY_H

#include <functional>
#include <string>
#include <vector>

#include "support/font_file.h"
#include "support/robot.h"

#include <Message.h>
#include <Rect.h>

class BView;
class kernix;

// Runs the program for its user; afterwards destroys the font that the program leaves open.
void journey(const std::function<void(kernix&, robot&)>& user);
// The same with tiny_font() open.
void with_font(const std::function<void(kernix&, robot&)>& user);

// Looks at what belongs to the window's thread, with the window locked.
void looking(kernix& app, const std::function<void()>& look);

// As it comes from the desktop, a drop or a panel: files, in order, under "refs".
BMessage refs(uint32 what, const std::vector<std::string>& paths);
// As the save panel answers.
BMessage save_answer(const std::string& folder, const std::string& name);

// From the desktop. These return when the program is idle again.
void open_file(robot& user, const std::string& path);
void drop(kernix& app, robot& user, const std::vector<std::string>& paths);
void save_file(robot& user, const std::string& folder, const std::string& name);
// Sends the work view, or the selector, a message of this code with these int32 under "table".
void tell_view(kernix& app, robot& user, uint32 what, const std::vector<std::string>& tags);
void tell_selector(kernix& app, robot& user, uint32 what, const std::vector<std::string>& tags);

// Tags as they are written: the strip's list, the one highlighted ("" for none), and of the panels
// those that can be seen.
std::vector<std::string> listed(kernix& app);
std::string highlighted(kernix& app);
std::vector<std::string> panels_shown(kernix& app);
BView* panel_of(kernix& app, const std::string& tag);

// The program holds a font without any table.
bool holds_an_empty_font(kernix& app);
// The canvas as the window's thread sees it.
BRect shown_canvas(kernix& app);

// What the scroll bars range over, how long their thumbs are and how far they step, as lines like
// "0 to 173, 0.5, 5 and 385".
std::string bar(kernix& app, orientation posture);
BRect size_limits(kernix& app); // least width, least height, most width, most height

// The place of a tag in the window: where its text starts, on its baseline.
BPoint place_of_tag(int index);
// What the tag's text may cover.
BRect cell_of_tag(int index);

// A font of other tables than tiny_font(), in an order of its own: name, cmap, head, prep.
font_file other_font();
// Their tables in the order of the directory.
extern const std::vector<std::string> tiny_tags;
extern const std::vector<std::string> other_tags;

// What the program prints.
std::string printed_by(const std::function<void()>& work);

#endif
