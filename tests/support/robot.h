// Copyright 2026 the kernix authors
// SPDX-License-Identifier: MIT
#ifndef KERNIX_SUPPORT_ROBOT_H
#define KERNIX_SUPPORT_ROBOT_H

#include <Application.h>
#include <functional>
#include <memory>
#include <Message.h>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include <GraphicsDefs.h>
#include <Point.h>
#include <QImage>
#include <Rect.h>
#include <View.h>

class BWindow;
class QWidget;

// The user of a program that runs in this process: works the pointer, the menus and the dialogs of
// what is on the display, and looks at it. Every action returns when the program is idle again.
// Used from a thread that is none of the program's; positions are in the window's content.
class robot {
public:
	// Waits until nothing is under way in any thread: messages, repainting, display commands.
	void settle();
	// Waits, settling, until the condition holds; false when it does not within ten seconds. For
	// what the display's own helpers do in their time.
	bool wait_for(const std::function<bool()>& condition);

	// Which of the windows on the screen is meant; with one there, that one.
	void use_window(const std::string& title) { fTitle = title; }
	bool window_is_shown();
	std::string window_title();
	// Content size in pixels.
	BPoint window_size();

	void press(BPoint where, int32 button = B_PRIMARY_MOUSE_BUTTON, int32 modifiers = 0);
	void move(BPoint where, int32 modifiers = 0);
	void release(BPoint where, int32 button = B_PRIMARY_MOUSE_BUTTON, int32 modifiers = 0);
	void click(BPoint where, int32 button = B_PRIMARY_MOUSE_BUTTON, int32 modifiers = 0);
	// Notches; positive is down and right.
	void wheel(BPoint where, float down, float across = 0);
	// What a pen does beside the pointer; positions may be fractions of a pixel.
	struct pen {
		float pressure = 0;
		// Degrees from upright, -60..60.
		float tilt_x = 0;
		float tilt_y = 0;
		bool eraser = false;
	};
	void pen_down(BPoint where, pen held);
	void pen_move(BPoint where, pen held);
	void pen_up(BPoint where, pen held);
	// Drags files in from outside and lets go of them; or, without files, a piece of text.
	void drop(BPoint where, const std::vector<std::string>& paths);
	void resize_window(float width, float height);
	void press_close_box();
	void press_zoom_box();
	// False when there is no such item.
	bool choose_menu(const std::string& menu, const std::string& item);
	bool menu_is_marked(const std::string& menu, const std::string& item);

	// The pixels of the window as the screen has them.
	QImage picture();
	rgb_color pixel(BPoint where);
	// How many pixels of the rectangle have this colour, exactly.
	int count(BRect place, rgb_color color);

	// Values of a scroll bar as its user sees them: minimum, maximum, value, page; empty for none.
	std::vector<int> scroll_bar(orientation posture);
	void drag_scroll_bar(orientation posture, int value);

	// Keys go to whatever has the keyboard on the display. A key is a Qt::Key. One that goes down
	// again before it has gone up repeats.
	void key_down(int key, const std::string& text = "", int32 modifiers = 0);
	void key_up(int key, const std::string& text = "", int32 modifiers = 0);
	void key(int key, const std::string& text = "", int32 modifiers = 0);
	// Types ASCII text.
	void type(const std::string& text);

	// The list at that place: its rows as the screen has them, from the first to the last, and the
	// numbers of the selected ones. A row is chosen by a click on it, wherever it had been scrolled
	// to; false when there is none.
	std::vector<std::string> list_rows(BPoint where);
	std::vector<int> selected_rows(BPoint where);
	bool choose_row(BPoint where, int row, int32 modifiers = 0);
	// The check box of that label which can be seen. False when there is none.
	bool tick(const std::string& label);
	bool is_ticked(const std::string& label);
	// The menu field at that place: what its button says, and the labels of its menu. An item is
	// chosen by opening the menu and a click; false when it cannot be.
	std::string menu_field_text(BPoint where);
	std::vector<std::string> menu_field_items(BPoint where);
	bool choose_menu_field(BPoint where, const std::string& item);

	// Text of the field at that place, as the screen shows it; empty where there is none.
	std::string field_text(BPoint where);
	// True when the widget at that place has the keyboard on the display.
	bool has_keyboard(BPoint where);
	std::string tooltip(BPoint where);
	// The alert on the screen: its text, and pressing one of its buttons (false when there is none).
	std::string alert_text();
	std::vector<std::string> alert_buttons();
	bool press_alert(const std::string& button);

	bool panel_is_open();
	int count_panels();
	// Types a path, or a name, into the open panel's field and confirms it.
	void answer_panel(const std::string& path);
	void cancel_panel();
	// Presses a button of a question that is shown over a panel.
	bool press_question(const std::string& button);

	// What a user of the window does beyond that, as one event of the display's own. Waits for that
	// alone: nothing has settled before or after.
	void act(const std::function<void(QWidget& window)>& work);
	// Runs on the display while everything else goes on; for looking at what is not covered above.
	void on_display(const std::function<void()>& look);

private:
	QWidget* _Window();
	// Waits for the work, which is done as an event of the display's own.
	void _Act(const std::function<void()>& work);
	void _Key(bool down, int key, const std::string& text, int32 modifiers);
	void _Pen(int type, BPoint where, const pen& held);
	void _Pointer(int type, BPoint where, int32 button, int32 modifiers);

	std::string fTitle;
	int32 fHeld = 0;
	std::set<int> fKeysDown;
};

inline bool
operator==(rgb_color a, rgb_color b)
{
	return a.red == b.red && a.green == b.green && a.blue == b.blue;
}

std::ostream& operator<<(std::ostream& out, rgb_color color);

// Runs the application on this thread, the display thread, and the user on another; asks the
// application to quit when the user has done and has not done so.
void run_with_user(BApplication& application, const std::function<void(robot&)>& user);

// The same for an application of the given class, made and destroyed around it.
template <typename App>
void
with_application(const std::function<void(App&, robot&)>& user)
{
	App application;
	run_with_user(application, [&](robot& hand) { user(application, hand); });
}

#endif
