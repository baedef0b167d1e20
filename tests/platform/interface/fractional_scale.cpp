// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT

// Screens on which a pixel of the kits is not a whole number of the screen's.
#include "platform/app/again.h"
#include "platform/interface/stage.h"
#include "support/temp_files.h"

#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <QWindow>
#include <Shape.h>

namespace {

const std::vector<std::string> ratios = {"1", "1.25", "1.5", "1.75", "2"};


// What a drawing program shows: more than fits the view, with handles laid over it by inverting.
class drawing_view : public BView {
public:
	drawing_view() : BView(BRect(0, 0, 160, 90), "drawing", B_FOLLOW_NONE, B_WILL_DRAW)
	{
		fShape.MoveTo(BPoint(20.3F, 30.7F));
		BPoint bend[3] = {BPoint(300, 10), BPoint(5, 280), BPoint(290, 260)};
		fShape.BezierTo(bend);
		fShape.LineTo(BPoint(60, 200));
		fShape.Close();
	}

	void Draw(BRect update) override
	{
		// Rows are drawn only where they are asked for.
		for (float y = std::max(0.0F, update.top); y <= update.bottom; y++) {
			SetHighColor(uchar((int)y * 37), uchar((int)y * 91), 200);
			FillRect(BRect(150, y, 400, y));
		}
		SetHighColor(0, 0, 0);
		for (float at = 0; at < 400; at += 13) {
			StrokeLine(BPoint(at, 0), BPoint(at + slant * 390, 390));
			StrokeRect(BRect(at, at, at + 6, at + 6));
			if (slant > 0)
				StrokeEllipse(BRect(at, 300 - at, at + 20, 320 - at));
			DrawString("Hxg", BPoint(at, at));
		}
		FillRect(BRect(100, 100, 140, 140), B_MIXED_COLORS);
		FillShape(&fShape);
		if (handles)
			draw_handles();
	}

	void draw_handles()
	{
		PushState();
		SetDrawingMode(B_OP_INVERT);
		for (float at = 1; at < 400; at += 11) {
			FillRect(BRect(at, 40, at + 2, 42));
			FillEllipse(BRect(30, at, 36, at + 6));
			StrokeRect(BRect(at, at + 20, at + 4, at + 24));
			StrokeLine(BPoint(at, 10), BPoint(at - slant * 300, 310));
		}
		StrokeRect(BRect(15, 15, 170, 170), B_MIXED_COLORS);
		if (slant > 0)
			StrokeShape(&fShape, B_MIXED_COLORS);
		PopState();
	}

	bool handles = false;
	// Where a pixel is one of the screen's, the toolkit's lines that leave the view are the same
	// everywhere only if they are upright.
	float slant = 0;

private:
	BShape fShape;
};


int
differing_pixels(const QImage& one, const QImage& other)
{
	if (one.size() != other.size())
		return -1;
	int count = 0;
	for (int y = 0; y < one.height(); y++) {
		for (int x = 0; x < one.width(); x++)
			count += one.pixel(x, y) != other.pixel(x, y);
	}
	return count;
}


// How many pixels a full repaint changes.
int
wrong_pixels(test_window& window, robot& user, drawing_view& view)
{
	QImage found = user.picture();
	window.locked([&] { view.Invalidate(); });
	return differing_pixels(found, user.picture());
}


// Steps there and partly back, of odd and even lengths, each with an update of its own.
template <typename Each>
void
scroll_about(test_window& window, robot& user, BView& view, Each after)
{
	for (int i = 0; i < 24; i++) {
		BPoint by = i < 16 ? BPoint(5, 3) : BPoint(-7, -4);
		window.locked([&] { view.ScrollBy(by.x, by.y); });
		user.settle();
		after();
	}
}


std::string
text_of(const ended& process)
{
	std::string text;
	for (const std::string& line : process.output)
		text += line + "\n";
	return text;
}


void
expect_in_processes_of_every_ratio(const std::string& test)
{
	for (const std::string& ratio : ratios) {
		const ended result = run_again(test, {}, {"QT_SCALE_FACTOR=" + ratio});
		EXPECT_EQ(result.status, 0) << "ratio " << ratio << "\n" << text_of(result);
	}
}


// In a process that was started for this ratio.
drawing_view&
add_view(test_window& window, robot& user)
{
	const double ratio = atof(getenv("QT_SCALE_FACTOR"));
	EXPECT_EQ(user.picture().devicePixelRatio(), ratio);
	auto* view = new drawing_view;
	view->slant = ratio > 1 ? 0.37F : 0;
	window.add(view);
	user.settle();
	return *view;
}

}


TEST(fractional_scale, DISABLED_scrolls)
{
	with_window([](test_window& window, robot& user) {
		drawing_view& view = add_view(window, user);
		scroll_about(window, user, view, [] {});
		EXPECT_EQ(wrong_pixels(window, user, view), 0);
	});
}


TEST(fractional_scale, scrolling_leaves_what_a_full_repaint_would_paint)
{
	expect_in_processes_of_every_ratio("fractional_scale.DISABLED_scrolls");
}


TEST(fractional_scale, DISABLED_lifts_handles)
{
	with_window([](test_window& window, robot& user) {
		drawing_view& view = add_view(window, user);
		auto toggle = [&] {
			window.locked([&] {
				view.handles = !view.handles;
				view.draw_handles();
			});
		};
		toggle();
		scroll_about(window, user, view, [&] {
			toggle();
			if (!view.handles) {
				EXPECT_EQ(wrong_pixels(window, user, view), 0);
			}
		});
	});
}


TEST(fractional_scale, handles_laid_before_a_scroll_are_lifted_exactly_after_it)
{
	expect_in_processes_of_every_ratio("fractional_scale.DISABLED_lifts_handles");
}


TEST(fractional_scale, DISABLED_moves_to_another_screen)
{
	with_window([](test_window& window, robot& user) {
		auto& view = window.add(new drawing_view);
		window.locked([&] {
			view.handles = true;
			view.ScrollTo(7, 3);
		});
		for (double ratio : {1.25, 2.0, 1.0}) {
			user.act([&](QWidget& widget) {
				for (QScreen* screen : QGuiApplication::screens()) {
					if (screen->devicePixelRatio() == ratio)
						widget.windowHandle()->setScreen(screen);
				}
			});
			user.settle();
			EXPECT_EQ(user.picture().devicePixelRatio(), ratio);
			scroll_about(window, user, view, [] {});
			window.locked([&] {
				view.draw_handles();
				view.handles = false;
			});
			EXPECT_EQ(wrong_pixels(window, user, view), 0) << "ratio " << ratio;
			window.locked([&] {
				view.handles = true;
				view.draw_handles();
			});
		}
	});
}


TEST(fractional_scale, a_screen_of_another_scale_shows_all_of_it_as_drawn_there)
{
	const temp_folder folder;
	const std::string screens = folder.path("screens.json");
	std::ofstream(screens) << R"({"screens": [
		{"name": "one", "x": 0, "y": 0, "width": 800, "height": 600, "dpr": 1},
		{"name": "two", "x": 800, "y": 0, "width": 800, "height": 600, "dpr": 1.25},
		{"name": "three", "x": 1600, "y": 0, "width": 800, "height": 600, "dpr": 2}]})";
	const ended result = run_again("fractional_scale.DISABLED_moves_to_another_screen", {},
		{"QT_QPA_PLATFORM=offscreen:configfile=" + screens});
	EXPECT_EQ(result.status, 0) << text_of(result);
}
