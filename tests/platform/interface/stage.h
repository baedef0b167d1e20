// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KITS_TESTS_STAGE_H
#define KITS_TESTS_STAGE_H

#include "support/robot.h"

#include <Bitmap.h>
#include <functional>
#include <Message.h>
#include <string>
#include <vector>
#include <View.h>
#include <Window.h>

constexpr rgb_color black = {0, 0, 0, 255};
constexpr rgb_color white = {255, 255, 255, 255};
constexpr rgb_color red = {255, 0, 0, 255};
constexpr rgb_color green = {0, 255, 0, 255};
constexpr rgb_color blue = {0, 0, 255, 255};

// What happened, in order.
using journal = std::vector<std::string>;

// A view whose hooks do what the test gives them, and which notes them in the test's journal.
class test_view : public BView {
public:
	explicit test_view(BRect frame, const char* name = "view", uint32 mode = B_FOLLOW_NONE,
		uint32 flags = B_WILL_DRAW);

	// Where the attachment hooks and MakeFocus() are noted.
	journal* notes = nullptr;
	std::function<void()> on_attached;
	std::function<void()> on_detached;
	std::function<void(BRect)> on_draw;
	std::function<void(BMessage&)> on_message;
	// Update rectangles of the calls of Draw(), and the codes of the messages received.
	std::vector<BRect> draws;
	std::vector<uint32> received;
	// Of the pointer hooks: "down", "up" or "moved", the place, and the transit of moves.
	journal pointer;

	void AttachedToWindow() override;
	void AllAttached() override;
	void DetachedFromWindow() override;
	void AllDetached() override;
	void MakeFocus(bool focus = true) override;
	void MessageReceived(BMessage* message) override;
	void Draw(BRect updateRect) override;
	void MouseDown(BPoint where) override;
	void MouseUp(BPoint where) override;
	void MouseMoved(BPoint where, uint32 transit, const BMessage* dragMessage) override;

private:
	void _Note(const char* event);
};

// Pixels in memory for views to draw on, all white at first. Locked while it lives.
class sheet {
public:
	sheet(int32 width, int32 height);

	// Attaches the view, which the sheet then owns.
	template <typename View>
	View& add(View* view)
	{
		bitmap.AddChild(view);
		return *view;
	}
	// A view over all of it.
	BView& whole();
	// A line of text for each row: '.' white, '#' black, 'r', 'g', 'b' the full colours, '?' any
	// other.
	std::string picture() const;

	BBitmap bitmap;
};

// The same of a part of what the user sees.
std::string picture(robot& user, BRect place);

// A window that notes what reaches it.
class test_window : public BWindow {
public:
	explicit test_window(BRect frame, const char* title = "test");
	using BWindow::Zoom;

	// Runs with the window locked, or as it is when it has quit.
	void locked(const std::function<void()>& work);
	// Adds a view and gives it back, for whoever holds no lock.
	template <typename View>
	View& add(View* view)
	{
		AddChild(view);
		return *view;
	}
	// Copies of the messages of that code which have been dispatched so far.
	std::vector<BMessage> dispatched(uint32 what);
	// The last one; empty when there is none.
	BMessage last_dispatched(uint32 what);
	// The names of the handlers that it was dispatched to.
	journal handlers_of(uint32 what);

	// Guarded by the window's lock.
	std::vector<BPoint> resized;
	std::vector<BRect> zoomed;
	// Whether Zoom() does more than be noted.
	bool may_zoom = false;
	int quit_questions = 0;
	bool may_quit = true;

	void DispatchMessage(BMessage* message, BHandler* handler) override;
	void FrameResized(float newWidth, float newHeight) override;
	void Zoom(BPoint leftTop, float width, float height) override;
	bool QuitRequested() override;

private:
	std::vector<BMessage> fDispatched;
	journal fHandlers;
};

// An application without a window.
class plain_application : public BApplication {
public:
	plain_application();
};

// Runs a program of one window, empty and on the screen, 200 x 100 pixels at (40, 30).
void with_window(const std::function<void(test_window&, robot&)>& user);

// Puts the rectangle into a failed test's output.
std::ostream& operator<<(std::ostream& out, const BRect& rect);
std::ostream& operator<<(std::ostream& out, const BPoint& point);

#endif
