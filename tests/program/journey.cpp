// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "program/journey.h"

#include "app/kernix.h"
#include "app/kernixview.h"
#include "app/kernixwindow.h"
#include "app/selectview.h"
#include "font/globals.h"
#include "font/ttf.h"
#include "font/ttf_table.h"
#include "support/temp_files.h"

#include <AppDefs.h>
#include <Entry.h>
#include <gtest/gtest.h>
#include <Messenger.h>
#include <ScrollBar.h>
#include <sstream>
#include <stdexcept>

const std::vector<std::string> tiny_tags = {"cmap", "glyf", "head", "hhea", "hmtx", "loca", "maxp"};
const std::vector<std::string> other_tags = {"name", "cmap", "head", "prep"};


void
journey(const std::function<void(kernix&, robot&)>& user)
{
	with_application<kernix>(user);
	delete curttf;
	curttf = nullptr;
}


void
with_font(const std::function<void(kernix&, robot&)>& user)
{
	temp_file font(tiny_font());
	journey([&](kernix& app, robot& hand) {
		open_file(hand, font.path());
		user(app, hand);
	});
}


void
looking(kernix& app, const std::function<void()>& look)
{
	if (!app.window->Lock())
		throw std::runtime_error("the window has gone");
	look();
	app.window->Unlock();
}


static entry_ref
ref_of(const std::string& path)
{
	entry_ref ref;
	if (get_ref_for_path(path.c_str(), &ref) != B_OK)
		throw std::runtime_error("no ref for " + path);
	return ref;
}


BMessage
refs(uint32 what, const std::vector<std::string>& paths)
{
	BMessage message(what);
	for (const std::string& path : paths) {
		entry_ref ref = ref_of(path);
		message.AddRef("refs", &ref);
	}
	return message;
}


BMessage
save_answer(const std::string& folder, const std::string& name)
{
	BMessage message(B_SAVE_REQUESTED);
	entry_ref directory = ref_of(folder);
	message.AddRef("directory", &directory);
	message.AddString("name", name.c_str());
	return message;
}


void
open_file(robot& user, const std::string& path)
{
	BMessage message = refs(B_REFS_RECEIVED, {path});
	be_app_messenger.SendMessage(&message);
	user.settle();
}


void
drop(kernix& app, robot& user, const std::vector<std::string>& paths)
{
	BMessage message = refs(B_SIMPLE_DATA, paths);
	BMessenger(app.window->workview).SendMessage(&message);
	user.settle();
}


void
save_file(robot& user, const std::string& folder, const std::string& name)
{
	BMessage message = save_answer(folder, name);
	be_app_messenger.SendMessage(&message);
	user.settle();
}


static uint32
tag_of(const std::string& text)
{
	uint32 tag = 0;
	for (char each : text)
		tag = tag << 8 | (uint8)each;
	return tag;
}


static std::string
text_of(uint32 tag)
{
	std::string text;
	for (int shift = 24; shift >= 0; shift -= 8)
		text += (char)(tag >> shift);
	return text;
}


static BMessage
tags_message(uint32 what, const std::vector<std::string>& tags)
{
	BMessage message(what);
	for (const std::string& tag : tags)
		message.AddInt32("table", (int32)tag_of(tag));
	return message;
}


void
tell_view(kernix& app, robot& user, uint32 what, const std::vector<std::string>& tags)
{
	BMessage message = tags_message(what, tags);
	BMessenger(app.window->workview).SendMessage(&message);
	user.settle();
}


void
tell_selector(kernix& app, robot& user, uint32 what, const std::vector<std::string>& tags)
{
	BMessage message = tags_message(what, tags);
	BMessenger(app.window->selector).SendMessage(&message);
	user.settle();
}


std::vector<std::string>
listed(kernix& app)
{
	std::vector<std::string> tags;
	looking(app, [&] {
		for (int32 i = 0; i < app.window->selector->count; i++)
			tags.push_back(text_of(app.window->selector->tags[i]));
	});
	return tags;
}


std::string
highlighted(kernix& app)
{
	std::vector<std::string> tags = listed(app);
	int32 selected = -1;
	looking(app, [&] { selected = app.window->selector->selected; });
	return selected < 0 ? "" : tags.at((size_t)selected);
}


std::vector<std::string>
panels_shown(kernix& app)
{
	std::vector<std::string> tags;
	looking(app, [&] {
		for (int32 i = 0; BView* child = app.window->workview->ChildAt(i); i++) {
			auto* table = dynamic_cast<ttf_table*>(child);
			if (table && !table->IsHidden())
				tags.push_back(text_of(table->tag));
		}
	});
	return tags;
}


BView*
panel_of(kernix& app, const std::string& tag)
{
	BView* found = nullptr;
	looking(app, [&] {
		for (int32 i = 0; BView* child = app.window->workview->ChildAt(i); i++) {
			auto* table = dynamic_cast<ttf_table*>(child);
			if (table && table->tag == tag_of(tag))
				found = table;
		}
	});
	return found;
}


bool
holds_an_empty_font(kernix& app)
{
	bool found = false;
	looking(app, [&] { found = curttf != nullptr && curttf->empty(); });
	return found;
}


BRect
shown_canvas(kernix& app)
{
	BRect found;
	looking(app, [&] { found = canvas; });
	return found;
}


std::string
bar(kernix& app, orientation posture)
{
	std::ostringstream text;
	looking(app, [&] {
		const BScrollBar* bar = posture == B_VERTICAL ? app.window->scrollv : app.window->scrollh;
		float min, max, small, large;
		bar->GetRange(&min, &max);
		bar->GetSteps(&small, &large);
		text.precision(3);
		text << min << " to " << max << ", " << bar->Proportion() << ", " << small << " and "
			 << large;
	});
	return text.str();
}


BRect
size_limits(kernix& app)
{
	BRect limits;
	looking(app, [&] {
		app.window->GetSizeLimits(&limits.left, &limits.right, &limits.top, &limits.bottom);
	});
	return limits;
}


BPoint
place_of_tag(int index)
{
	return BPoint((float)(10 + 30 * index), 50);
}


BRect
cell_of_tag(int index)
{
	BPoint place = place_of_tag(index);
	return BRect(place.x, place.y - 10, place.x + 29, 52);
}


font_file
other_font()
{
	return tiny_font()
		.without("glyf")
		.without("hhea")
		.without("hmtx")
		.without("loca")
		.without("maxp")
		.with("name", "0000 0000 0006")
		.with("prep", "b0 01 b0")
		.ordered({"name", "cmap", "head", "prep"});
}


std::string
printed_by(const std::function<void()>& work)
{
	testing::internal::CaptureStdout();
	work();
	return testing::internal::GetCapturedStdout();
}
