// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// The program, watched. It says when its window was first painted. Where BENCH_FONT names a font it
// opens that when the window has come to rest, as the open panel does, and says when that began and
// when the tags were painted. Last it says how much memory it takes, and ends. The font is no word of
// the command line because the program would open that at once.

#include "app/kernix.h"
#include "first_paint.h"
#include "font/globals.h"
#include <AppDefs.h>
#include <Application.h>
#include <cstdio>
#include <cstdlib>
#include <Entry.h>
#include <Message.h>
#include <Messenger.h>
#include <QApplication>
#include <QImage>
#include <QPixmap>
#include <QTimer>
#include <QWidget>

namespace {

const int rest = 300; // milliseconds

// On the display thread only; the times are 0 until then.
double first = 0;
double asked = 0;
double opened = 0;
const char* font = nullptr;

}


// Something dark in the strip below the menu: its paper is yellow, its tags black.
static bool
tags_are_painted()
{
	for (QWidget* window : QApplication::topLevelWidgets()) {
		if (window->windowTitle() != "kernix ver.0.02")
			continue;
		QImage strip = window->grab(QRect(10, 30, 120, 22)).toImage();
		for (int y = 0; y < strip.height(); y++) {
			for (int x = 0; x < strip.width(); x++) {
				if (qGray(strip.pixel(x, y)) < 60)
					return true;
			}
		}
	}
	return false;
}


static void
end()
{
	printf("painted %.6f\n", first);
	if (font != nullptr)
		printf("asked %.6f\nopened %.6f\n", asked, opened);
	printf("resident %.0f\n", resident());
	fflush(stdout);
	be_app_messenger.SendMessage(B_QUIT_REQUESTED);
}


static void
open_font()
{
	entry_ref ref;
	get_ref_for_path(font, &ref);
	BMessage refs(B_REFS_RECEIVED);
	refs.AddRef("refs", &ref);
	asked = now();
	be_app_messenger.SendMessage(&refs);
}


static void
painted(double when)
{
	if (first == 0) {
		first = when;
		QTimer::singleShot(rest, font != nullptr ? open_font : end);
	} else if (asked != 0 && opened == 0 && canvasok != 0 && tags_are_painted()) {
		opened = when;
		QTimer::singleShot(rest, end);
	}
}


int
main()
{
	setvbuf(stdout, nullptr, _IOLBF, BUFSIZ);
	font = getenv("BENCH_FONT");
	kernix app;
	paint_watch watch(painted);
	app.Run();
	return 0;
}
