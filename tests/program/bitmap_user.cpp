// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#include "program/bitmap_user.h"

#include <Messenger.h>

#include "support/temp_files.h"


strikes
two_sizes()
{
	return strikes()
		.size(12, 12)
		.images(1, 1, 7, {{"#.#", ".#.", "#.#"}, {"#..#"}})
		.size(16, 16)
		.images(1, 3, 1, {{"########.", ".......##"}});
}


font_file
font_of(const strikes& bitmaps)
{
	return bitmaps.in(font_for_strikes()).with("hmtx", "0200 0000 0100 0080 0000 0000 0000");
}


void
at_bitmaps(const font_file& contents, const std::function<void(kernix&, robot&)>& work)
{
	temp_file font(contents);
	journey([&](kernix& app, robot& user) {
		open_file(user, font.path());
		user.click(place_of_tag(0));
		work(app, user);
	});
}


BPoint
in_editor(float x, float y)
{
	return in_panel(50 + x, y);
}


std::string
chosen(robot& user)
{
	return user.field_text(chr_field) + " " + user.field_text(gno_field);
}


std::string
edited(kernix& app)
{
	std::string text = "none";
	looking(app, [&] {
		const bitmap* shown = curttf->ebdt->edit->cur_bitmap.get();
		if (shown == nullptr || shown->pixels == nullptr)
			return;
		text.clear();
		for (int i = 0; i < shown->width * shown->height; i++) {
			if (i > 0 && i % shown->width == 0)
				text += ' ';
			text += shown->pixels[i] != 0 ? '#' : '.';
		}
	});
	return text;
}


std::string
pressed(kernix& app, robot& user, float x, float y)
{
	user.click(in_editor(x, y));
	return edited(app);
}


void
tell_editor(robot& user, BMessage message)
{
	BMessenger(curttf->ebdt->edit).SendMessage(&message);
	user.settle();
}


void
tell_palette(robot& user, BMessage message)
{
	BMessenger(curttf->ebdt->tools).SendMessage(&message);
	user.settle();
}
