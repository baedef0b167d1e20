// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// bench_editing: the outline editor at work on the display's off-screen platform. From an event of
// the pointer until everything is painted and at rest: dragging all contours of a rich glyph, and a
// rectangle drawn over them. How many moves a second such a drag takes when they come in one go. How
// long choosing another glyph of a large font takes. The highest of the times counts as much as the
// middle one: percentiles are shown.

#include "app/kernix.h"
#include "app/kernixview.h"
#include "app/kernixwindow.h"
#include "editor/glyfeditview.h"
#include "font/globals.h"
#include "font/messages.h"
#include "font/ttf.h"
#include "outline/glyph.h"
#include "outline/shape.h"
#include "outline/ttf_glyf.h"
#include "support/installed_fonts.h"
#include "support/robot.h"
#include <algorithm>
#include <AppDefs.h>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <Entry.h>
#include <Messenger.h>
#include <QCoreApplication>
#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

namespace {

const int moves = 1000;
const int rich_glyph = 8018; // of Symbola_hint.ttf: 421 contours

class editing {
public:
	editing(kernix& application, robot& user) : app(application), hand(user) {}

	bool open(const std::string& name);
	void choose(int glyph);
	void take(uint32 tool);
	BMessenger editor();

	kernix& app;
	robot& hand;
};

}


template <typename work>
static double
milliseconds(const work& todo)
{
	auto start = std::chrono::steady_clock::now();
	todo();
	return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
		.count();
}


static void
report(const char* what, std::vector<double> times)
{
	std::sort(times.begin(), times.end());
	auto part = [&](double share) { return times[(size_t)(share * (double)(times.size() - 1))]; };
	printf("%-36s p50 %7.2f ms   p99 %7.2f ms   most %7.2f ms\n", what, part(0.5), part(0.99),
		times.back());
}


bool
editing::open(const std::string& name)
{
	std::string path = installed_font(name);
	entry_ref ref;
	if (path.empty() || get_ref_for_path(path.c_str(), &ref) != B_OK) {
		printf("%s is not installed\n", name.c_str());
		return false;
	}
	BMessage refs(B_REFS_RECEIVED);
	refs.AddRef("refs", &ref);
	be_app_messenger.SendMessage(&refs);
	hand.settle();
	BMessage table(msg_table);
	table.AddInt32("table", 'glyf');
	BMessenger(app.window->workview).SendMessage(&table);
	hand.settle();
	return curttf != nullptr;
}


BMessenger
editing::editor()
{
	app.window->Lock();
	BMessenger found(curttf->glyf->edit);
	app.window->Unlock();
	return found;
}


void
editing::choose(int glyph)
{
	BMessage message(msg_editor);
	message.AddInt16("gno", (int16)glyph);
	editor().SendMessage(&message);
	hand.settle();
}


void
editing::take(uint32 tool)
{
	editor().SendMessage(tool);
	hand.settle();
}


// In the window: somewhere within the largest contour.
static BPoint
middle_of_largest(editing& here)
{
	here.app.window->Lock();
	BRect largest = cur_glyph->shapes[0]->frame;
	for (int32 i = 1; i < cur_glyph->num_shape; i++) {
		BRect frame = cur_glyph->shapes[i]->frame;
		if (frame.Width() * frame.Height() > largest.Width() * largest.Height())
			largest = frame;
	}
	float scale = curttf->glyf->edit->scale;
	here.app.window->Unlock();
	// The edit view starts there.
	return BPoint(50 + (float)std::lround((largest.left + largest.right) / 2 * scale),
		53 + (float)std::lround((largest.top + largest.bottom) / 2 * scale));
}


// Round and round, a few pixels at a time, from and around there.
static BPoint
on_the_way(BPoint middle, int i)
{
	return middle
		+ BPoint((float)std::lround(20 * std::sin(i * 0.2)),
			(float)std::lround(20 - 20 * std::cos(i * 0.2)));
}


static void
drag_slowly(editing& here, const char* what)
{
	std::vector<double> times;
	BPoint middle = middle_of_largest(here);
	here.hand.press(middle);
	for (int i = 1; i <= moves; i++)
		times.push_back(milliseconds([&] { here.hand.move(on_the_way(middle, i)); }));
	here.hand.release(middle);
	report(what, times);
}


static void
drag_at_once(editing& here, const char* what)
{
	BPoint middle = middle_of_largest(here);
	here.hand.press(middle);
	double took = milliseconds([&] {
		here.hand.act([&](QWidget& window) {
			for (int i = 1; i <= moves; i++) {
				BPoint place = on_the_way(middle, i);
				QPointF at(place.x, place.y);
				QMouseEvent event(QEvent::MouseMove, at, at, window.windowHandle()->mapToGlobal(at),
					Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
				QCoreApplication::sendEvent(window.windowHandle(), &event);
			}
		});
		here.hand.settle();
	});
	here.hand.release(middle);
	printf("%-36s %.0f moves a second\n", what, moves / took * 1000);
}


static void
draw_on_rich_glyph(editing& here)
{
	here.choose(rich_glyph);
	printf("Symbola_hint.ttf, glyph %d: %d contours\n", rich_glyph, cur_glyph->num_shape);
	here.take(msg_rect);
	drag_slowly(here, "rectangle, each move");
	drag_at_once(here, "rectangle, in one go");
}


// At a scale at which the pointer does not meet a point everywhere.
static void
drag_rich_glyph(editing& here)
{
	BMessage message(msg_editor);
	message.AddFloat("scale", 0.15f);
	here.editor().SendMessage(&message);
	here.choose(rich_glyph);
	here.take(msg_pointer);
	drag_slowly(here, "band, each move");
	// A band over everything selects it.
	here.hand.press(BPoint(52, 55));
	here.hand.move(BPoint(440, 180));
	here.hand.release(BPoint(560, 560));
	drag_slowly(here, "all contours, each move");
	drag_at_once(here, "all contours, in one go");
}


static void
switch_glyphs(editing& here, const char* name)
{
	if (!here.open(name))
		return;
	int count = (int)curttf->numglyphs();
	printf("%s: %d glyphs\n", name, count);
	std::vector<double> times;
	for (int i = 0; i < moves; i++)
		times.push_back(milliseconds([&] { here.choose(i * 7919 % count); }));
	report("another glyph", times);
}


int
main()
{
	setvbuf(stdout, nullptr, _IOLBF, BUFSIZ);
	with_application<kernix>([](kernix& app, robot& user) {
		editing here(app, user);
		if (here.open("Symbola_hint.ttf")) {
			draw_on_rich_glyph(here);
			drag_rich_glyph(here);
		}
		switch_glyphs(here, "BabelStoneHan.ttf");
		switch_glyphs(here, "ipam.ttf");
	});
	return 0;
}
