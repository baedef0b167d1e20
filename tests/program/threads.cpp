// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// All threads at work at once.
#include "app/kernix.h"
#include "app/kernixview.h"
#include "app/kernixwindow.h"
#include "font/globals.h"
#include "program/journey.h"
#include "support/temp_files.h"

#include <AppDefs.h>
#include <gtest/gtest.h>
#include <Messenger.h>


// Moves, presses and wheel turns all over the window, as the display reports them.
static void
flood(const BMessenger& window, int count)
{
	for (int i = 0; i < count; i++) {
		const uint32 kinds[] = {B_MOUSE_MOVED, B_MOUSE_DOWN, B_MOUSE_MOVED, B_MOUSE_UP};
		BMessage message(i % 50 == 49 ? (uint32)B_MOUSE_WHEEL_CHANGED : kinds[i % 4]);
		message.AddPoint("where", BPoint((float)(i * 7 % 570), (float)(i * 13 % 570)));
		message.AddInt32("buttons", i % 4 == 1);
		message.AddFloat("be:wheel_delta_y", i % 2 ? 1.0f : -1.0f);
		window.SendMessage(&message);
	}
}


TEST(threads, open_drop_choose_save_and_quit_under_a_flood_of_pointer_input)
{
	temp_file font(tiny_font());
	temp_file other(other_font());
	temp_folder folder;
	for (int round = 0; round < 24; round++) {
		journey([&](kernix& app, robot& user) {
			BMessenger window(app.window);
			BMessenger view(app.window->workview);
			looking(
				app, [&] { app.window->settarget(BRect(), nullptr, app.window->workview, 1, 1); });
			std::thread input([=] { flood(window, 400); });
			BMessage file = refs(B_REFS_RECEIVED, {font.path()});
			be_app_messenger.SendMessage(&file);
			BMessage dropped = refs(B_SIMPLE_DATA, {other.path()});
			view.SendMessage(&dropped);
			for (uint32 tag : {'head', 'maxp', 'cmap'}) {
				BMessage chosen('tsel');
				chosen.AddInt32("table", (int32)tag);
				view.SendMessage(&chosen);
			}
			BMessage save = save_answer(folder.path(), "saved.ttf");
			be_app_messenger.SendMessage(&save);
			be_app_messenger.SendMessage(&file);
			view.SendMessage('fiop');
			// Half of the rounds quit in the middle of all this.
			if (round % 2 == 0) {
				user.settle();
				EXPECT_EQ(canvasok, 1);
				EXPECT_EQ(user.window_size(), BPoint(576, 579));
			}
			(round % 4 < 2 ? window : be_app_messenger).SendMessage(B_QUIT_REQUESTED);
			input.join();
		});
	}
}


TEST(threads, the_real_pointer_and_the_keyboards_menu_meet_the_application_at_work)
{
	temp_file font(tiny_font());
	temp_file other(other_font());
	journey([&](kernix& app, robot& user) {
		BMessage one = refs(B_REFS_RECEIVED, {font.path()});
		BMessage two = refs(B_REFS_RECEIVED, {other.path()});
		std::thread desktop([&] {
			for (int i = 0; i < 20; i++) {
				be_app_messenger.SendMessage(&one);
				be_app_messenger.SendMessage(&two);
			}
		});
		for (int i = 0; i < 20; i++) {
			user.click(place_of_tag(i % 4));
			user.move(BPoint((float)(i * 20), 200));
		}
		desktop.join();
		user.settle();
		EXPECT_EQ(listed(app).size(), 4u);
	});
}
