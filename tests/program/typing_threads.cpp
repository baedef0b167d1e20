// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Users open, drop, choose, type, draw, save and quit while the program is still at work.
#include "app/kernix.h"
#include "app/kernixview.h"
#include "app/kernixwindow.h"
#include "font/globals.h"
#include "font/ttf.h"
#include "program/panel_user.h"
#include "support/sfnt.h"
#include "support/temp_files.h"

#include <AppDefs.h>
#include <gtest/gtest.h>
#include <Messenger.h>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

static const BPoint tag_of_head = place_of_tag(2);
static const BPoint revision_field = in_panel(170, 460);


static void
press(QWidget& window, Qt::Key key, const char* text)
{
	for (auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
		QKeyEvent event(type, key, Qt::NoModifier, text);
		QCoreApplication::sendEvent(window.windowHandle(), &event);
	}
}


static void
click(QWidget& window, BPoint where)
{
	QPointF place(where.x, where.y);
	QPointF screen = window.windowHandle()->mapToGlobal(place);
	QMouseEvent down(QEvent::MouseButtonPress, place, place, screen, Qt::LeftButton, Qt::LeftButton,
		Qt::NoModifier);
	QCoreApplication::sendEvent(window.windowHandle(), &down);
	QMouseEvent up(QEvent::MouseButtonRelease, place, place, screen, Qt::LeftButton, Qt::NoButton,
		Qt::NoModifier);
	QCoreApplication::sendEvent(window.windowHandle(), &up);
}


// Clicks and types at once, whatever is there by now.
static void
hurry(robot& user, int times)
{
	for (int i = 0; i < times; i++) {
		user.act([&](QWidget& window) {
			click(window, i % 3 == 0 ? place_of_tag(i % 7) : revision_field);
			press(window, Qt::Key_1, "1");
			press(window, Qt::Key_A, "a");
			if (i % 2 == 0)
				press(window, Qt::Key_Return, "\r");
			else
				press(window, Qt::Key_Tab, "\t");
		});
	}
}


TEST(typing_threads, a_whole_session_again_and_again)
{
	temp_file font(tiny_font());
	temp_file other(other_font());
	for (int round = 0; round < 6; round++) {
		temp_folder folder;
		journey([&](kernix& app, robot& user) {
			open_file(user, other.path());
			user.drop(BPoint(200, 200), {font.path()});
			user.click(tag_of_head);
			enter(user, revision_field, "1A");
			save_file(user, folder.path(), "saved.ttf");
			octets head = sfnt(read_file(folder.path("saved.ttf"))).table("head");
			EXPECT_EQ(part(head, 4, 4), hex("0000001a"));
			EXPECT_EQ(panels_shown(app), std::vector<std::string>{"head"});
			if (round % 2 == 0)
				user.choose_menu("File", "Quit");
			else
				user.press_close_box();
		});
	}
}


TEST(typing_threads, input_that_does_not_wait_for_the_program)
{
	temp_file font(tiny_font());
	temp_file other(other_font());
	for (int round = 0; round < 12; round++) {
		temp_folder folder;
		journey([&](kernix&, robot& user) {
			BMessage one = refs(B_REFS_RECEIVED, {font.path()});
			BMessage two = refs(B_REFS_RECEIVED, {other.path()});
			BMessage save = save_answer(folder.path(), "saved.ttf");
			be_app_messenger.SendMessage(&one);
			hurry(user, 10);
			be_app_messenger.SendMessage(&save);
			hurry(user, 5);
			be_app_messenger.SendMessage(&two);
			hurry(user, 5);
			be_app_messenger.SendMessage(&one);
			hurry(user, 10);
			// Half of the rounds quit in the middle of it.
			if (round % 2 == 0) {
				user.settle();
				EXPECT_EQ(canvasok, 1);
				EXPECT_FALSE(read_file(folder.path("saved.ttf")).empty());
			}
		});
	}
}


TEST(typing_threads, questions_while_files_come_and_the_program_quits)
{
	temp_file font(tiny_font());
	for (int round = 0; round < 8; round++) {
		journey([&](kernix& app, robot& user) {
			BMessage file = refs(B_REFS_RECEIVED, {font.path()});
			be_app_messenger.SendMessage(B_ABOUT_REQUESTED);
			be_app_messenger.SendMessage(&file);
			hurry(user, 3);
			BMessenger window((BHandler*)nullptr, (BLooper*)app.window);
			(round % 2 == 0 ? window : be_app_messenger).SendMessage(B_QUIT_REQUESTED);
			hurry(user, 3);
		});
	}
}
