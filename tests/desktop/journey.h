// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_DESKTOP_JOURNEY_H
#define KERNIX_DESKTOP_JOURNEY_H

#include "desktop/support/desktop.h"
#include "desktop/support/program.h"
#include "desktop/support/until.h"
#include "support/octets.h"
#include "support/temp_files.h"

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <QImage>
#include <string>
#include <vector>

// A user at a desktop of its own, with the built program. Each test starts a server, and ends it.
// Positions and areas are a program's pixels from the left top of the contents of the main window.
// What does not come about within a minute ends the test; its picture and logs are kept.
class journey : public testing::TestWithParam<desktop_kind> {
protected:
	void SetUp() override;
	void TearDown() override;

	desktop& screen() { return *fDesktop; }
	program& kernix() { return *fProgram; }
	// A path in a folder of the journey's own.
	std::string path(const std::string& leaf) const { return fFolder.path("files/" + leaf); }
	// Writes the font there first.
	std::string font(const std::string& leaf, const octets& contents) const;

	// --- the program

	// Starts it and returns when its window is painted, with the tags of the font that is named.
	void start(const std::vector<std::string>& arguments = {});
	// Waits for its end: with status 0 and without a complaint.
	void ends_well();

	// --- windows

	shown_window window();
	// Nothing where no window has this title.
	std::optional<shown_window> find(const std::string& title);
	// Waits for it, and that it gets the keys.
	shown_window wait_for(const std::string& title);
	// Waits until the main window is the only one, gets the keys and is at rest.
	void alone();
	// The main window gets the keys, and what is in front of it no longer is.
	void bring_forward();

	// --- the pointer

	void move(QPointF where);
	void down(QPointF where, desktop::mouse_button button = desktop::primary);
	void up(desktop::mouse_button button = desktop::primary);
	void click(QPointF where, desktop::mouse_button button = desktop::primary);
	// With the primary button, by way of some places between.
	void drag(QPointF from, QPointF to);
	void wheel(QPointF where, desktop::direction direction, int notches);
	// The pointer goes where nothing is: what is under it may look different.
	void stand_aside();

	// --- the keys

	// "Return", "a", "ctrl+a", "shift+Tab", "alt+F4".
	void key(const std::string& name);
	void hold(const std::string& name, int milliseconds);
	void type(const std::string& text);

	// --- what is seen

	QImage picture(QRectF area);
	// The contents of the main window.
	QImage picture();
	// How many pixels of the area are like this, have exactly this colour, or have not; of the
	// program's size.
	double count(const std::function<bool(QRgb)>& wanted, QRectF area);
	double count(QRgb colour, QRectF area);
	double count_other(QRgb colour, QRectF area);
	// The chosen tag's.
	double count_red(QRectF area);
	// Waits until this is what an area looks like, or all of the window.
	void shows(const QImage& wanted, QRectF area);
	// Waits until nothing has changed on the screen for longer than a caret takes to blink.
	void at_rest();

	// --- what a user does with the program

	enum item { file_new, file_open, file_save, file_about, file_quit };
	void open_menu();
	bool menu_is_open();
	void choose(item which);
	// Types a path into the file panel with this title, and Return.
	void answer(const std::string& title, const std::string& file);
	// Shows a table's panel by its tag in the strip.
	void tag(const std::string& name);
	// Fills a field, as somebody who looks before typing.
	void enter(QPointF field, const std::string& text);

private:
	QRectF menu_box();
	void keep_evidence();

	temp_folder fFolder;
	std::unique_ptr<desktop> fDesktop;
	std::unique_ptr<program> fProgram;
	QImage fBeforeMenu;
};

// Colours of the program: the work view, its title card, panels, the strip.
constexpr QRgb work_grey = qRgb(50, 50, 50), white = qRgb(255, 255, 255), black = qRgb(0, 0, 0),
			   strip_yellow = qRgb(255, 204, 68);

// Parts of the window at its full size.
constexpr QRectF strip_area(0, 21, 560, 31), work_area(0, 53, 562, 512);
// From the left top of a panel.
constexpr QPointF
in_panel(double x, double y)
{
	return {x, 53 + y};
}

// The size of a file; 0 where there is none.
size_t size_of(const std::string& path);
// The smallest rectangle with all pixels that differ; everything where the sizes do.
QRect difference(const QImage& one, const QImage& other);

// For INSTANTIATE_TEST_SUITE_P.
std::string name_of(const testing::TestParamInfo<desktop_kind>& info);

#endif
